// What is known about figures, in words: for the card beside the mouse and the side bar.
#pragma once

#include <QString>

#include <span>

#include "input/import/Namensliste.h"
#include "model/Einstellungen.h"
#include "model/FigListe.h"
#include "model/Punktergebnisse.h"

namespace zrw {

/// Lines of a table in HTML, number and kind first. @param netztyp for what coordinates mean
/// @param ergebnisse null: no results are known @param namen that shortened numbers stand for
[[nodiscard]] QString Punkttext(const Liste& netz, const PunktKnoten& punkt,
                                const Einstellungen& einstellungen, int netztyp,
                                const Punktergebnisse* ergebnisse, const Namensliste& namen);
/// Both ends, observations, length and bearing from the coordinates, whether it is flagged.
/// @param markiergrund which tables say so, may be empty
/// @param ergebnisse null: no results are known
[[nodiscard]] QString Kantentext(const Liste& netz, const PunktKante& kante,
                                 const Einstellungen& einstellungen, int netztyp, const QString& markiergrund,
                                 const Punktergebnisse* ergebnisse);
/// The points at the other ends of its lines, and both ends of a line: links to their internal numbers.
[[nodiscard]] QString Nachbarntext(Liste& netz, const PunktKnoten& punkt);
[[nodiscard]] QString Endentext(const Liste& netz, const PunktKante& kante);
/// How many they are, of which kinds, how far apart.
[[nodiscard]] QString Punktetext(std::span<const PPunktKnoten> punkte, const Einstellungen& einstellungen,
                                 int netztyp);
/// Number of a point; a word where it has none.
[[nodiscard]] QString Nummertext(const Netz& netz, PunktIndex nr);
/// "Rechtswert<Tab>Hochwert", as spreadsheets take it.
[[nodiscard]] QString Koordinatentext(const PunktKnoten& punkt);

}  // namespace zrw
