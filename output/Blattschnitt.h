// Cuts a plan that does not fit one sheet into the sheets that hold something of it, and finds the scale at
// which it does fit one. What counts is what gets onto the paper: lines with their marks, symbols, numbers
// and results, all in their size at the scale of the print. Legend, scale bar and grids stand on every sheet
// and need none.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "model/Bildvorlage.h"
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

/// A plan and what it is printed with.
struct Druckplan {
    Bildvorlage vorlage;
    Zeichenmittel mittel;
    const Zeichenflaeche& geraet;  ///< tells how large its texts are
};

/// Most sheets of one plot; more are a wrong scale rather than a wish.
inline constexpr std::size_t kMeisteBlaetter = 400;

/// The sheets that hold something, row by row from the top left, none for an empty plan. Edge to edge, so
/// that they can be put together.
/// @param ursprung top-left corner of the sheet of row and column 0
/// @throws Fehler where they would be more than `kMeisteBlaetter`
[[nodiscard]] std::vector<Blatt> Blattschnitt(const Druckplan& plan, double massstab, const Druckseite& seite,
                                              Welt ursprung);

/// The same from the origin that needs the fewest sheets, the plan in the middle of them as far as that takes
/// no more. Rows and columns count from 0. @throws Fehler like `Blattschnitt`
[[nodiscard]] std::vector<Blatt> Blattaufteilung(const Druckplan& plan, double massstab,
                                                 const Druckseite& seite);

/// A sheet that holds something of a plan, however many it takes: at the top, and the first from the left
/// there. None where it is empty. @throws Fehler where even that cannot be told
[[nodiscard]] std::optional<Blatt> ErstesBlatt(const Druckplan& plan, double massstab,
                                               const Druckseite& seite);

/// Denominator of the largest scale of 1, 2, 2.5 or 5 times 10^n, at most 1:1, at which a plan fits one
/// sheet. None for a plan of a single place and for one that fits at no scale.
[[nodiscard]] std::optional<double> PassenderMassstab(const Druckplan& plan, const Druckseite& seite);

/// A scale as the legend names it: "2500", "2.5".
[[nodiscard]] std::string Massstabtext(double massstab);

/// The same with another condition: the largest that passes it, of those at which so many sheets could hold
/// the points at all.
[[nodiscard]] std::optional<double> GroessterMassstab(const Druckplan& plan, const Druckseite& seite,
                                                      double blaetter,
                                                      const std::function<bool(double massstab)>& passt);

}  // namespace zrw
