// Cuts a plot that does not fit one sheet into the sheets that hold something of it.
#pragma once

#include <cstddef>
#include <vector>

#include "model/FigListe.h"
#include "output/Druck.h"

namespace zrw {

struct Blatt {
    int zeile = 0;   ///< downwards from the first sheet
    int spalte = 0;  ///< to the right
    Welt ecke;       ///< world position of its top-left corner
    friend bool operator==(const Blatt& a, const Blatt& b) {
        return a.zeile == b.zeile && a.spalte == b.spalte;
    }
};

/// Most sheets of one plot; more are a wrong scale rather than a wish.
inline constexpr std::size_t kMeisteBlaetter = 400;

/// The sheets with a point or a line that is shown, row by row from the top left. Edge to edge, so that they
/// can be put together.
/// @param ursprung top-left corner of the sheet of row and column 0
/// @throws Fehler where they would be more than `kMeisteBlaetter`
[[nodiscard]] std::vector<Blatt> Blattschnitt(const Liste& liste, double massstab, const Druckseite& seite,
                                              Welt ursprung);

}  // namespace zrw
