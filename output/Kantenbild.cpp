#include "output/Kantenbild.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <memory>

#include "model/Aufzaehltafel.h"
#include "model/Ganzzahl.h"
#include "model/Linienarten.h"

namespace zrw {
namespace {

constexpr auto kVoll = std::to_array<Strich>({{0, 1, false}});
constexpr auto kDash = std::to_array<Strich>({{0, 1, true}});
constexpr auto kMarke = std::to_array<Strich>({{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 4, false}});
constexpr auto kSieben = std::to_array<Strich>(
    {{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 4, false}, {4, 5, false}, {5, 6, false}});
constexpr auto kSiebenHalb = std::to_array<Strich>(
    {{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 4, true}, {4, 5, true}, {5, 6, true}});
constexpr auto kZweiVoll = std::to_array<Strich>({{0, 1, false}, {2, 3, false}});
constexpr auto kZweiDash = std::to_array<Strich>({{0, 1, true}, {2, 3, true}});
constexpr auto kVollDash = std::to_array<Strich>({{0, 1, false}, {2, 3, true}});

/// In the order of `Zugform`.
constexpr auto kStriche = std::to_array<std::span<const Strich>>(
    {kVoll, kMarke, kSieben, kSiebenHalb, kZweiVoll, kZweiDash, kVollDash, kVollDash, kDash, kVoll, kVoll});
static_assert(kStriche.size() == kZugformen, "the strokes of each Zugform");

constexpr std::size_t Punktzahl(Zugform form) {
    return kStriche[static_cast<std::size_t>(form)].back().nach + std::size_t{1};
}

}  // namespace

/// A form between places along an indirect line.
struct Umwegzug {
    /// In the direction of the line.
    enum Stelle : std::uint8_t { Start, Ab, Links, Hoehe, Rechts, An, Drittel, ZweiDrittel, Ziel };
    static constexpr std::size_t kStellen = Ziel + 1;

    Zugform form;
    std::array<Stelle, kMeistePunkte> stellen;
};

namespace {

using enum Umwegzug::Stelle;

constexpr auto kHalberUmweg =
    std::to_array<Umwegzug>({{Zugform::SiebenpunktHalb, {Start, Ab, Links, Hoehe, Rechts, An, Ziel}}});
constexpr auto kGanzerUmweg = std::to_array<Umwegzug>(
    {{Zugform::Siebenpunkt, {Start, Ab, Links, Hoehe, Rechts, An, Ziel}}, {Zugform::Gestrichelt, {Ab, An}}});
// The form has three dashed strokes: they share the way to the end.
constexpr auto kGestrichelterUmweg = std::to_array<Umwegzug>(
    {{Zugform::Gestrichelt, {Start, Ab}},
     {Zugform::SiebenpunktHalb, {Ab, Links, Rechts, An, Drittel, ZweiDrittel, Ziel}}});

/// How a kind of line is drawn.
struct Linienbild {
    LinieAttr attr;
    Zugform ganz;                     ///< from end to end, or with a corner in the middle
    Zugform offen;                    ///< where a GPS marker is to stay open
    std::span<const Umwegzug> umweg;  ///< instead of both, if there is any
};
constexpr auto kLinienbilder = std::to_array<Linienbild>({
    {LinieAttr::Null, Zugform::Strecke, Zugform::Strecke, {}},
    {LinieAttr::AR1, Zugform::VollGestrichelt, Zugform::VollLueckeGestrichelt, {}},
    {LinieAttr::AR2, Zugform::Strecke, Zugform::ZweiVoll, {}},
    {LinieAttr::AST, Zugform::Gestrichelt, Zugform::ZweiGestrichelt, {}},
    {LinieAttr::ARI1, {}, {}, kHalberUmweg},
    {LinieAttr::ARI2, {}, {}, kGanzerUmweg},
    {LinieAttr::ASTI, {}, {}, kGestrichelterUmweg},
});
static_assert(InReihe(kLinienbilder, &Linienbild::attr), "a row for each LinieAttr, in its order");
static_assert(std::equal(kLinienbilder.begin(), kLinienbilder.end(), kLinienarten.begin(), kLinienarten.end(),
                         [](const Linienbild& b, const Linienart& a) {
                             return b.umweg.empty() != a.indirekt;
                         }),
              "indirect kinds of line are drawn with a detour, the others without");

Bildpunkt RundeOrt(double x, double y) {
    return {RundeZuInt64(x), RundeZuInt64(y)};
}

/// The plain root is several times as fast as `hypot` and may differ in the last bit. Marks of short lines
/// round alike with both; detours are fractions of the length, which that bit can tip over a half.
double Laenge(std::int64_t dx, std::int64_t dy, bool genau) {
    constexpr std::int64_t kKurz = 4096;
    const auto x = static_cast<double>(dx);
    const auto y = static_cast<double>(dy);
    const bool kurz = dx > -kKurz && dx < kKurz && dy > -kKurz && dy < kKurz;
    return kurz && !genau ? std::sqrt(x * x + y * y) : std::hypot(x, y);
}

}  // namespace

std::span<const Strich> Striche(Zugform form) {
    return kStriche[static_cast<std::size_t>(form)];
}

std::int64_t Zeichenreichweite(KanteAttr kAttr, LinieAttr lAttr, const Einstellungen& g) {
    constexpr std::int64_t kRunden = 2;  // moves each by a pixel
    const std::int64_t marke = kAttr.HatArt(KanteAttr::GPS) ? g.GPSGroesse : 0;
    const std::int64_t strich = kAttr.HatArt(KanteAttr::ST) ? g.GPSGroesse + 2 + g.Querstrich : 0;
    const bool hoehe = kAttr.HatArt(KanteAttr::DH1) || kAttr.HatArt(KanteAttr::DH2);
    const std::int64_t hoehenmarke = hoehe ? g.PTSize + 3 * g.Querstrich : 0;
    const std::int64_t umweg = ZurLinie(lAttr).indirekt ? g.Umweggroesse : 0;
    return std::max({marke, strich, hoehenmarke, umweg}) + kRunden;
}

/// Where a line lies: its ends, midpoint, length and unit vector, and the corners of its GPS marker.
struct Kantenbild::Lage {
    Bildpunkt s, m, e;
    double ux = 0.0;
    double uy = 0.0;
    double laenge = 0.0;
    std::int64_t gx = 0;  ///< offset of a GPS marker along the line, rounded before use
    std::int64_t gy = 0;
    double umweg = 0.0;  ///< height of the detour of indirect lines

    Lage(KanteAttr kAttr, LinieAttr lAttr, const Bildpunkt& anfang, const Bildpunkt& ende,
         const Einstellungen& groessen)
        : s(anfang), e(ende) {
        const std::int64_t dx = Differenz(e.x, s.x);
        const std::int64_t dy = Differenz(e.y, s.y);
        m = {Summe(s.x, dx / 2), Summe(s.y, dy / 2)};
        const bool indirekt = ZurLinie(lAttr).indirekt;
        if (!indirekt && kAttr == KanteAttr()) return;  // strokes from end to end need nothing more
        laenge = Laenge(dx, dy, indirekt);
        ux = static_cast<double>(dx) / laenge;
        uy = static_cast<double>(dy) / laenge;
        if (kAttr.HatArt(KanteAttr::GPS)) {
            gx = RundeZuInt64(groessen.GPSGroesse * ux);
            gy = RundeZuInt64(groessen.GPSGroesse * uy);
        }
        // On a short line the detour shrinks, so that it stays between the points.
        umweg = std::min<double>(groessen.Umweggroesse, laenge / 6);
    }

    /// The point `laengs` along the line and `quer` across it from M.
    [[nodiscard]] Bildpunkt AbMitte(double laengs, double quer) const {
        return RundeOrt(static_cast<double>(m.x) + laengs * ux - quer * uy,
                        static_cast<double>(m.y) + laengs * uy + quer * ux);
    }
};

Kantenbild::Kantenbild(KanteAttr kAttr, LinieAttr lAttr, const Bildpunkt& anfang, const Bildpunkt& ende,
                       const Einstellungen& groessen) {
    if (anfang == ende) return;
    const bool gps = kAttr.HatArt(KanteAttr::GPS);
    const Lage l(kAttr, lAttr, anfang, ende, groessen);
    Linie(lAttr, gps && l.laenge > 2.0 * groessen.GPSGroesse, l);
    if (gps) {
        Bildpunkt* p = NimmZug(Zugform::GPSMarke);
        p[0] = p[4] = {Summe(l.m.x, l.gx), Summe(l.m.y, l.gy)};
        p[1] = {Differenz(l.m.x, l.gy), Summe(l.m.y, l.gx)};
        p[2] = {Differenz(l.m.x, l.gx), Differenz(l.m.y, l.gy)};
        p[3] = {Summe(l.m.x, l.gy), Differenz(l.m.y, l.gx)};
    }
    if (kAttr.HatArt(KanteAttr::ST)) {
        const double neben = groessen.GPSGroesse + 2.0;  // clear of the marker, whether or not there is one
        const double halb = groessen.Querstrich;
        Bildpunkt* p = NimmZug(Zugform::Querstrich);
        p[0] = l.AbMitte(neben, halb);
        p[1] = l.AbMitte(neben, -halb);
    }
    if (kAttr.HatArt(KanteAttr::DH1)) Hoehenmarke(l.s, l.ux, l.uy, groessen);
    if (kAttr.HatArt(KanteAttr::DH2)) {
        Hoehenmarke(l.s, l.ux, l.uy, groessen);
        Hoehenmarke(l.e, -l.ux, -l.uy, groessen);
    }
}

void Kantenbild::Linie(LinieAttr lAttr, bool mitMarke, const Lage& l) {
    const Linienbild* bild = FindeZeile(kLinienbilder, lAttr);
    if (bild == nullptr) return;
    if (!bild->umweg.empty()) return Umweg(bild->umweg, l);
    const Zugform form = mitMarke ? bild->offen : bild->ganz;
    Bildpunkt* p = NimmZug(form);
    *p++ = l.s;
    if (Punktzahl(form) > 2) {
        *p++ = mitMarke ? Bildpunkt{Differenz(l.m.x, l.gx), Differenz(l.m.y, l.gy)} : l.m;
        *p++ = mitMarke ? Bildpunkt{Summe(l.m.x, l.gx), Summe(l.m.y, l.gy)} : l.m;
    }
    *p = l.e;
}

void Kantenbild::Umweg(std::span<const Umwegzug> zuege, const Lage& l) {
    const double w = l.umweg;
    const double rest = (l.laenge / 2 - 2 * w) / 3;
    // In the order of `Stelle`.
    const std::array<Bildpunkt, Umwegzug::kStellen> orte{
        l.s,
        l.AbMitte(-2 * w, 0),
        l.AbMitte(-w, w),
        l.AbMitte(0, w),
        l.AbMitte(w, w),
        l.AbMitte(2 * w, 0),
        l.AbMitte(2 * w + rest, 0),
        l.AbMitte(2 * w + 2 * rest, 0),
        l.e,
    };
    for (const Umwegzug& zug : zuege) {
        std::transform(zug.stellen.begin(), zug.stellen.begin() + Punktzahl(zug.form), NimmZug(zug.form),
                       [&](Umwegzug::Stelle s) { return orte[s]; });
    }
}

void Kantenbild::Hoehenmarke(Bildpunkt bezug, double ux, double uy, const Einstellungen& groessen) {
    const double a = groessen.PTSize;
    const double t = groessen.Querstrich;
    const auto punkt = [&](double laengs) {
        return RundeOrt(static_cast<double>(bezug.x) + laengs * ux - t * uy,
                        static_cast<double>(bezug.y) + laengs * uy + t * ux);
    };
    Bildpunkt* p = NimmZug(Zugform::Hoehenmarke);
    p[0] = punkt(a + t);
    p[1] = punkt(a + 2 * t);
}

inline Bildpunkt* Kantenbild::NimmZug(Zugform form) {
    const std::size_t anzahl = Punktzahl(form);
    assert(anzahl_ < kMeisteZuege && anzahl <= kMeistePunkte);
    Bildpunkt* punkte = punkte_.data() + punktzahl_;
    std::construct_at(&zuege_[anzahl_++], Zug{form, {punkte, anzahl}});
    punktzahl_ += anzahl;
    return punkte;
}

}  // namespace zrw
