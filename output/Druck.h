// Prints the plot at scale: it is drawn once more, onto the printer, in a view in which one printer dot
// covers the ground that 1:M puts on it. Not in here: the printer itself (ui/druck/Drucker.h).
#pragma once

#include <cassert>
#include <cstdint>
#include <optional>
#include <string>

#include "model/Bildvorlage.h"
#include "model/Einstellungen.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeichenmittel.h"

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

/// Device dots per screen pixel [-].
[[nodiscard]] constexpr double Geraetefaktor(const Druckseite& seite) {
    assert(seite.aufloesung > 0.0);
    return seite.aufloesung / kBildaufloesung;
}

/// Drawing settings of a device: sizes in its dots. The given ones are scaled forth and back, as they have
/// always been around a print: one of them may miss its value by one afterwards.
[[nodiscard]] Einstellungen Geraetegroessen(Einstellungen& einstellungen, double geraetefaktor);
/// Drawing state for a device of so many dots per screen pixel.
[[nodiscard]] Zeichenzustand Geraetezustand(const Zeichenzustand& bildschirm, Zeichenflaeche& geraet,
                                            double geraetefaktor);

/// Draws the network with its overlays onto a sheet. @param groessen from `Geraetegroessen`, in place of the
/// settings of `mittel`
void DruckePlan(const Bildvorlage& v, const Zeichenmittel& mittel, const Einstellungen& groessen,
                Zeichenflaeche& drucker, const Druckauftrag& auftrag);

/// The sheet in the picture, from its top-left corner [px].
[[nodiscard]] Bildpunkt Ausgabebereich(const Ansicht& ansicht, double massstab, const Druckseite& seite);

}  // namespace zrw
