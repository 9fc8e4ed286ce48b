// Sheets with a frame: how the plan is cut to the area within it, and each drawn onto its paper. Without
// frame and everything else of `Blattgestaltung` it is the print of Druck.h, dot for dot.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/blatt/Blattgestaltung.h"

namespace zrw {

/// What of a sheet the plan gets.
struct Blattteilung {
    Druckseite plan;                ///< its size, all of the page without a frame
    Bildpunkt ecke;                 ///< its top-left corner on the page [dots]
    std::int32_t ueberlappung = 0;  ///< that neighbours have in common [dots]
};
[[nodiscard]] Blattteilung TeileSeite(const Druckseite& seite, bool rahmen,
                                      const Blattgestaltung& gestaltung);

/// The sheets of a plan like `Blattaufteilung`; where they overlap, each reaches beyond its share by half.
/// @throws Fehler where they are too many
[[nodiscard]] std::vector<Blatt> TeileBlaetterAuf(const Druckplan& plan, double massstab,
                                                  const Blattteilung& teilung);
/// The same from the sheet of row and column 0, whose corner is given, like `Blattschnitt`.
[[nodiscard]] std::vector<Blatt> TeileBlaetterAuf(const Druckplan& plan, double massstab,
                                                  const Blattteilung& teilung, Welt ursprung);
/// Like `PassenderMassstab`, for a plan on so many sheets at most.
[[nodiscard]] std::optional<double> PassenderMassstab(const Druckplan& plan, const Blattteilung& teilung,
                                                      std::size_t blaetter);

struct Blattauftrag {
    Druckauftrag druck;  ///< its corner counts for nothing, the legend from that of the plan area
    Blattgestaltung gestaltung;
    std::vector<Blatt> blaetter;  ///< all that are printed, corners of the plan area
    std::string datei;            ///< that the plan is from, code page 1252
    bool systemBekannt = true;    ///< what the network says about its coordinates is about this one
};

/// Draws a sheet. @param nummer which of the order's @param groessen as for `DruckePlan`
void DruckeBlatt(const Bildvorlage& v, const Zeichenmittel& mittel, const Einstellungen& groessen,
                 Zeichenflaeche& drucker, const Blattauftrag& auftrag, std::size_t nummer);

/// Name of the coordinates for the title block, code page 1252; empty where the network does not say.
[[nodiscard]] std::string Koordinatensystem(const Netzangaben& netz);

}  // namespace zrw
