#include "beispiele/Dreiecke.h"

#include <algorithm>
#include <cmath>

namespace zrw::beispiel {
namespace {

// Twice the signed area; positive when a, b, c run counter-clockwise.
double Flaeche2(const NetzPunkt& a, const NetzPunkt& b, double rechts, double hoch) {
    return (b.rechts - a.rechts) * (hoch - a.hoch) - (b.hoch - a.hoch) * (rechts - a.rechts);
}

// Whether p lies inside the circle through a, b, c (counter-clockwise).
bool ImUmkreis(const NetzPunkt& a, const NetzPunkt& b, const NetzPunkt& c, const NetzPunkt& p) {
    const double ax = a.rechts - p.rechts, ay = a.hoch - p.hoch;
    const double bx = b.rechts - p.rechts, by = b.hoch - p.hoch;
    const double cx = c.rechts - p.rechts, cy = c.hoch - p.hoch;
    const double a2 = ax * ax + ay * ay, b2 = bx * bx + by * by, c2 = cx * cx + cy * cy;
    return ax * (by * c2 - b2 * cy) - ay * (bx * c2 - b2 * cx) + a2 * (bx * cy - by * cx) > 0.0;
}

bool ZuSpitz(const NetzPunkt& a, const NetzPunkt& b, const NetzPunkt& c) {
    std::array<double, 3> s{Abstand(a, b), Abstand(b, c), Abstand(c, a)};
    std::sort(s.begin(), s.end());
    const double cosKleinster = (s[1] * s[1] + s[2] * s[2] - s[0] * s[0]) / (2.0 * s[1] * s[2]);
    return cosKleinster > 0.9563;  // cos 17 degrees
}

}  // namespace

std::vector<Dreieck> Dreiecke(const std::vector<NetzPunkt>& punkte, const std::vector<Stelle>& auswahl) {
    std::vector<Dreieck> ergebnis;
    for (std::size_t i = 0; i < auswahl.size(); ++i) {
        for (std::size_t j = i + 1; j < auswahl.size(); ++j) {
            for (std::size_t k = j + 1; k < auswahl.size(); ++k) {
                Dreieck d{auswahl[i], auswahl[j], auswahl[k]};
                const double f = Flaeche2(punkte[d[0]], punkte[d[1]], punkte[d[2]].rechts, punkte[d[2]].hoch);
                if (f < 0.0) std::swap(d[1], d[2]);
                const NetzPunkt &a = punkte[d[0]], &b = punkte[d[1]], &c = punkte[d[2]];
                if (ZuSpitz(a, b, c)) continue;
                const bool leer = std::none_of(auswahl.begin(), auswahl.end(), [&](Stelle p) {
                    return p != d[0] && p != d[1] && p != d[2] && ImUmkreis(a, b, c, punkte[p]);
                });
                if (leer) ergebnis.push_back(d);
            }
        }
    }
    return ergebnis;
}

std::set<std::pair<Stelle, Stelle>> Seiten(const std::vector<Dreieck>& dreiecke) {
    std::set<std::pair<Stelle, Stelle>> seiten;
    for (const Dreieck& d : dreiecke) {
        for (std::size_t i = 0; i < 3; ++i)
            seiten.insert(std::minmax({d[i], d[(i + 1) % 3]}));
    }
    return seiten;
}

bool LiegtIn(const std::vector<NetzPunkt>& punkte, const Dreieck& d, double rechts, double hoch) {
    for (std::size_t i = 0; i < 3; ++i) {
        if (Flaeche2(punkte[d[i]], punkte[d[(i + 1) % 3]], rechts, hoch) < 0.0) return false;
    }
    return true;
}

}  // namespace zrw::beispiel
