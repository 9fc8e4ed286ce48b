// What the observations and points of a network say together, as a text with tables: for the side bar and for
// a sheet of paper.
#pragma once

#include <QString>
#include <memory>
#include <string>

#include "model/FigListe.h"
#include "model/Punktergebnisse.h"
#include "model/ergebnisse/Beobachtungsliste.h"
#include "model/ergebnisse/Statistik.h"

namespace zrw {

/// Rich text. Rows of the worst observations are links "zeile:" with their place in the list, points "punkt:"
/// with their internal number.
/// @param ergebnisse of the points, as they now are; may be null
[[nodiscard]] QString Statistiktext(const Beobachtungsliste& liste, const Liste& netz,
                                    const Punktergebnisse* ergebnisse, double grenze);

/// A4 with the text and the histograms of all observations, PDF. @return its bytes
[[nodiscard]] std::string Statistikblatt(const QString& titel, const Beobachtungsliste& liste,
                                         const Liste& netz, const Punktergebnisse* ergebnisse, double grenze);

}  // namespace zrw
