// How sheets of paper are made up beside the plan: what users choose once for all of their sheets.
#pragma once

#include <array>
#include <string>

namespace zrw {

/// Texts of the title block beside those of the legend, code page 1252.
struct Blatttexte {
    std::string projekt;
    std::string bearbeiter;
    std::string firma;
};

inline constexpr int kGroessteUeberlappung = 20;  ///< [mm]
/// Pens of the plan to choose from [mm]; 0: the usual one.
inline constexpr std::array<double, 4> kPlanstifte{0.0, 0.13, 0.18, 0.25};

struct Blattgestaltung {
    Blatttexte texte;
    int ueberlappung = 0;       ///< of neighbouring sheets [mm], up to `kGroessteUeberlappung`
    double stift = 0.0;         ///< width of the plan's lines, one of `kPlanstifte`
    bool schwarzweiss = false;  ///< everything but white is black
};

}  // namespace zrw
