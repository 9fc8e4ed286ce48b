// Prints the plot at scale: the network draws itself once more, onto the printer, with the view set so that
// one printer dot covers the ground that 1:M puts on it. Not in here: the printer itself (ui/Drucker.h).
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "model/Einstellungen.h"
#include "model/FigListe.h"
#include "model/Zeichner.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeichenzustand.h"

namespace zrw {

/// Screens are taken as 96 dots per inch, as printers' dots are scaled from them.
inline constexpr double kBildaufloesung = 96;
inline constexpr double kMillimeterJeZoll = 25.4;
/// Width of a pen of width 1 on paper [mm]: thinner lines are lost on it.
inline constexpr double kStrichbreite = 0.15;

/// What can be printed on of one sheet.
struct Druckseite {
    std::int32_t weite = 0;     ///< [dots]
    std::int32_t hoehe = 0;     ///< [dots]
    double aufloesung = 600.0;  ///< [dots per inch]
};

struct Druckauftrag {
    double massstab = 25000;   ///< scale denominator
    std::string massstabtext;  ///< the same as the legend names it, code page 1252
    Druckseite seite;
    std::optional<Welt> ecke{};  ///< world position of the sheet's top-left corner; none: that of the picture
    /// Where the legend stands on the sheet [dots]; none: as far from its corner as in the picture.
    std::optional<Bildpunkt> legende{};
};

/// Draws the network with its overlays onto a sheet. The legend keeps naming the print scale. View, drawing
/// state and sizes afterwards are as before, whatever happens, but for the device factor: it stays at screen
/// to printer.
void Drucke(Liste& liste, Zeichner& zeichner, Zeichenzustand& zustand, Einstellungen& einstellungen,
            Zeichenflaeche& drucker, const Druckauftrag& auftrag);

/// The sheet in the picture, from its top-left corner [px].
[[nodiscard]] Bildpunkt Ausgabebereich(const Liste& liste, double massstab, const Druckseite& seite);

}  // namespace zrw
