#include "output/blatt/Blattlayout.h"

#include <algorithm>
#include <cmath>

namespace zrw {
namespace {

// [1/10 mm]
constexpr int kEinzug = 5;  ///< so that the pen of the border stays on the printable area
constexpr int kZahlenrandSeitlich = 115;
constexpr int kZahlenrand = 60;
constexpr int kLeiste = 420;  ///< height of the strip at the bottom
constexpr int kSchriftfeld = 1050;
constexpr int kSchriftfeldGross = 1800;
constexpr int kZeichenfeld = 450;
constexpr int kZeichenfeldGross = 800;
constexpr int kUebersichtGross = 900;
constexpr int kRest = 700;  ///< of the strip, at least; less goes to the overview

}  // namespace

std::int32_t Papiermass::Dots(int zehntel) const {
    return static_cast<std::int32_t>(std::lround(zehntel * jeZehntel_));
}

Blattlayout Blattlayout::FuerSeite(const Druckseite& seite) {
    const Papiermass mass(seite.aufloesung);
    const auto dots = [&](int zehntel) { return mass.Dots(zehntel); };
    const auto kasten = [](std::int32_t links, std::int32_t oben, std::int32_t rechts, std::int32_t unten) {
        return Rechteck{links, oben, std::max(rechts, links), std::max(unten, oben)};
    };
    Blattlayout l;
    const std::int32_t einzug = dots(kEinzug);
    l.rand = kasten(einzug, einzug, seite.weite - 1 - einzug, seite.hoehe - 1 - einzug);
    const std::int32_t leiste = std::max(l.rand.unten - dots(kLeiste), l.rand.oben);
    l.planflaeche = kasten(l.rand.links + dots(kZahlenrandSeitlich), l.rand.oben + dots(kZahlenrand),
                           l.rand.rechts - dots(kZahlenrandSeitlich), leiste - dots(kZahlenrand));
    // From the right: on large sheets the rest of the strip stays free.
    const int weite = mass.Zehntel(l.rand.rechts - l.rand.links);
    const int schrift = std::clamp(weite / 2, kSchriftfeld, kSchriftfeldGross);
    const int zeichen = std::clamp((weite - schrift) / 2, kZeichenfeld, kZeichenfeldGross);
    const std::int32_t schriftLinks = l.rand.rechts - dots(schrift);
    const std::int32_t zeichenLinks = schriftLinks - dots(zeichen);
    l.schriftfeld = kasten(schriftLinks, leiste, l.rand.rechts, l.rand.unten);
    l.zeichenfeld = kasten(zeichenLinks, leiste, schriftLinks, l.rand.unten);
    std::int32_t links = std::max(zeichenLinks - dots(kUebersichtGross), l.rand.links);
    if (links - l.rand.links < dots(kRest)) links = l.rand.links;
    l.uebersicht = kasten(links, leiste, zeichenLinks, l.rand.unten);
    return l;
}

}  // namespace zrw
