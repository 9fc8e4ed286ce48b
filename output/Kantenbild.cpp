#include "output/Kantenbild.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "model/Ganzzahl.h"

namespace zrw {
namespace {

constexpr std::array<Strich, 1> kVoll{{{0, 1, false}}};
constexpr std::array<Strich, 1> kDash{{{0, 1, true}}};
constexpr std::array<Strich, 4> kMarke{{{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 4, false}}};
constexpr std::array<Strich, 6> kSieben{
    {{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 4, false}, {4, 5, false}, {5, 6, false}}};
constexpr std::array<Strich, 6> kSiebenHalb{
    {{0, 1, false}, {1, 2, false}, {2, 3, false}, {3, 4, true}, {4, 5, true}, {5, 6, true}}};
constexpr std::array<Strich, 2> kZweiVoll{{{0, 1, false}, {2, 3, false}}};
constexpr std::array<Strich, 2> kZweiDash{{{0, 1, true}, {2, 3, true}}};
constexpr std::array<Strich, 2> kVollDash{{{0, 1, false}, {2, 3, true}}};

/// In the order of `Zugform`.
constexpr std::array<std::span<const Strich>, 11> kStriche{
    kVoll, kMarke, kSieben, kSiebenHalb, kZweiVoll, kZweiDash, kVollDash, kVollDash, kDash, kVoll, kVoll};

Bildpunkt Runde(double x, double y) {
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
        const bool indirekt = lAttr > LinieAttr::AST;
        if (!indirekt && kAttr == KanteAttr()) return;  // strokes from end to end need nothing more
        laenge = Laenge(dx, dy, indirekt);
        ux = static_cast<double>(dx) / laenge;
        uy = static_cast<double>(dy) / laenge;
        if (kAttr.Hat(KanteAttr::GPS)) {
            gx = RundeZuInt64(groessen.GPSGroesse * ux);
            gy = RundeZuInt64(groessen.GPSGroesse * uy);
        }
        // On a short line the detour shrinks, so that it stays between the points.
        umweg = std::min<double>(groessen.Umweggroesse, laenge / 6);
    }

    /// The point `laengs` along the line and `quer` across it from M.
    [[nodiscard]] Bildpunkt AbMitte(double laengs, double quer) const {
        return Runde(static_cast<double>(m.x) + laengs * ux - quer * uy,
                     static_cast<double>(m.y) + laengs * uy + quer * ux);
    }
};

Kantenbild::Kantenbild(KanteAttr kAttr, LinieAttr lAttr, const Bildpunkt& anfang, const Bildpunkt& ende,
                       const Einstellungen& groessen) {
    if (anfang == ende) return;
    const bool gps = kAttr.Hat(KanteAttr::GPS);
    const Lage l(kAttr, lAttr, anfang, ende, groessen);
    Linie(lAttr, gps && l.laenge > 2.0 * groessen.GPSGroesse, l);
    if (gps) {
        const Bildpunkt vorn{Summe(l.m.x, l.gx), Summe(l.m.y, l.gy)};
        Nimm(Zugform::GPSMarke, {vorn,
                                 {Differenz(l.m.x, l.gy), Summe(l.m.y, l.gx)},
                                 {Differenz(l.m.x, l.gx), Differenz(l.m.y, l.gy)},
                                 {Summe(l.m.x, l.gy), Differenz(l.m.y, l.gx)},
                                 vorn});
    }
    if (kAttr.Hat(KanteAttr::ST)) {
        const double neben = groessen.GPSGroesse + 2.0;  // clear of the marker, whether or not there is one
        const double halb = groessen.Querstrich;
        Nimm(Zugform::Querstrich, {l.AbMitte(neben, halb), l.AbMitte(neben, -halb)});
    }
    if (kAttr.Hat(KanteAttr::DH1)) Hoehenmarke(l.s, l.ux, l.uy, groessen);
    if (kAttr.Hat(KanteAttr::DH2)) {
        Hoehenmarke(l.s, l.ux, l.uy, groessen);
        Hoehenmarke(l.e, -l.ux, -l.uy, groessen);
    }
}

void Kantenbild::Linie(LinieAttr lAttr, bool mitMarke, const Lage& l) {
    const Bildpunkt vor{Differenz(l.m.x, l.gx), Differenz(l.m.y, l.gy)};
    const Bildpunkt nach{Summe(l.m.x, l.gx), Summe(l.m.y, l.gy)};
    switch (lAttr) {
        case LinieAttr::Null:
            Nimm(Zugform::Strecke, {l.s, l.e});
            break;
        case LinieAttr::AR1:
            if (mitMarke) {
                Nimm(Zugform::VollLueckeGestrichelt, {l.s, vor, nach, l.e});
            } else {
                Nimm(Zugform::VollGestrichelt, {l.s, l.m, l.m, l.e});
            }
            break;
        case LinieAttr::AR2:
            if (mitMarke) {
                Nimm(Zugform::ZweiVoll, {l.s, vor, nach, l.e});
            } else {
                Nimm(Zugform::Strecke, {l.s, l.e});
            }
            break;
        case LinieAttr::AST:
            if (mitMarke) {
                Nimm(Zugform::ZweiGestrichelt, {l.s, vor, nach, l.e});
            } else {
                Nimm(Zugform::Gestrichelt, {l.s, l.e});
            }
            break;
        case LinieAttr::ARI1:
        case LinieAttr::ARI2:
        case LinieAttr::ASTI:
            Umweg(lAttr, l);
            break;
    }
}

void Kantenbild::Umweg(LinieAttr lAttr, const Lage& l) {
    const double w = l.umweg;
    const Bildpunkt ab = l.AbMitte(-2 * w, 0);
    const Bildpunkt an = l.AbMitte(2 * w, 0);
    const Bildpunkt links = l.AbMitte(-w, w);
    const Bildpunkt rechts = l.AbMitte(w, w);
    if (lAttr == LinieAttr::ARI1) {
        Nimm(Zugform::SiebenpunktHalb, {l.s, ab, links, l.AbMitte(0, w), rechts, an, l.e});
    } else if (lAttr == LinieAttr::ARI2) {
        Nimm(Zugform::Siebenpunkt, {l.s, ab, links, l.AbMitte(0, w), rechts, an, l.e});
        Nimm(Zugform::Gestrichelt, {ab, an});
    } else {
        // The form has three dashed strokes: they share the way to the end.
        const double rest = (l.laenge / 2 - 2 * w) / 3;
        Nimm(Zugform::Gestrichelt, {l.s, ab});
        Nimm(Zugform::SiebenpunktHalb,
             {ab, links, rechts, an, l.AbMitte(2 * w + rest, 0), l.AbMitte(2 * w + 2 * rest, 0), l.e});
    }
}

void Kantenbild::Hoehenmarke(Bildpunkt bezug, double ux, double uy, const Einstellungen& groessen) {
    const double a = groessen.PTSize;
    const double t = groessen.Querstrich;
    const auto punkt = [&](double laengs) {
        return Runde(static_cast<double>(bezug.x) + laengs * ux - t * uy,
                     static_cast<double>(bezug.y) + laengs * uy + t * ux);
    };
    Nimm(Zugform::Hoehenmarke, {punkt(a + t), punkt(a + 2 * t)});
}

void Kantenbild::Nimm(Zugform form, std::initializer_list<Bildpunkt> punkte) {
    Bildpunkt* ziel = punkte_.data() + punktzahl_;
    std::uninitialized_copy(punkte.begin(), punkte.end(), ziel);
    std::construct_at(&zuege_[anzahl_++], Zug{form, {ziel, punkte.size()}});
    punktzahl_ += punkte.size();
}

}  // namespace zrw
