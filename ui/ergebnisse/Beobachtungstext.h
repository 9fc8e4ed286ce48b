// What the window says about observations: cells of their list, a row in a sentence, and what their tables
// say about gross errors.
#pragma once

#include <QString>

#include "model/ergebnisse/Beobachtungsliste.h"
#include "model/ergebnisse/Listenordnung.h"

namespace zrw {

/// A number with few decimals; empty where it is missing.
[[nodiscard]] QString Zahltext(const Beobachtung& b, Messwert wert);
[[nodiscard]] QString Zellentext(const Beobachtung& b, Listenspalte spalte);
/// "Höhenunterschied NB22 → NB01, TG 24.70, V -49.4"
[[nodiscard]] QString Beobachtungssatz(const Beobachtung& b);
/// A row of one reading and one of a later one are of the same observation.
[[nodiscard]] bool SelbeBeobachtung(const Beobachtung& a, const Beobachtung& b);
/// Which tables could not be read, and why, a line each; empty: none.
[[nodiscard]] QString UnlesbareTabellen(const Beobachtungsliste& liste);
/// No table with observations lies beside the network.
[[nodiscard]] bool OhneTabellen(const Beobachtungsliste& liste);
[[nodiscard]] std::size_t ZaehleMarkierte(const Beobachtungsliste& liste);
/// "5 grobe Fehler markiert (F4 zeigt den ersten)", or why that is not known; empty without tables.
[[nodiscard]] QString Fehlersatz(const Beobachtungsliste& liste);

}  // namespace zrw
