// The views of the measurements, and a network in them.
#pragma once

#include <algorithm>
#include <cmath>

#include "model/FigListe.h"

namespace zrw::bench {

inline constexpr int kWeite = 1920;
inline constexpr int kHoehe = 1080;

struct Ansicht {
    const char* name;
    const char* was;
    bool fuellend;   ///< the points fill the picture, not the fit of whole kilometres
    double flaeche;  ///< part of the network's area that is seen
    // Bounds with and without numbers; 0: none.
    double gut[2];       ///< own / painter used well
    double schlicht[2];  ///< own / painter used plainly
    double richtwert;    ///< [ms]
};

inline constexpr Ansicht kAnsichten[]{
    {"a", "alles, eigene Einpassung", false, 1.0, {0.08, 0.12}, {1.0 / 20, 1.0 / 14}, 16},
    {"a2", "alles, bildfüllend", true, 1.0, {0, 0.22}, {0, 0}, 30},
    {"b", "ein Zehntel der Fläche", true, 0.1, {0.30, 0.30}, {1.0 / 25, 1.0 / 25}, 10},
    {"c", "ein Tausendstel", true, 0.001, {0.60, 0.60}, {1.0 / 80, 1.0 / 80}, 3}};

inline void SetzeAnsicht(Liste& l, const Ansicht& a) {
    l.FindWorldMinMax();
    l.PasseEin();
    if (!a.fuellend) return;
    double minX = 1e300;
    double maxX = -1e300;
    double minY = 1e300;
    double maxY = -1e300;
    for (const auto* p = l.PunktKnoten; p != nullptr; p = p->Next) {
        minX = std::min(minX, p->XWPu);
        maxX = std::max(maxX, p->XWPu);
        minY = std::min(minY, p->YWPu);
        maxY = std::max(maxY, p->YWPu);
    }
    const double voll = std::max((maxX - minX) / kWeite, (maxY - minY) / kHoehe);
    l.Faktor = voll * std::sqrt(a.flaeche);
    l.XOffset = (minX + maxX - kWeite * l.Faktor) / 2 - l.MinXW;
    l.YOffset = (minY + maxY + kHoehe * l.Faktor) / 2 - l.MaxYW;
    l.WeltinBild();
}

}  // namespace zrw::bench
