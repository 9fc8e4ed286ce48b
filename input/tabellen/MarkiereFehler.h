// Marks the observations that the adjustment flagged: their lines take the colour of gross errors.
#pragma once

#include <string>
#include <vector>

#include "input/tabellen/UnitZRWData.h"
#include "model/FigListe.h"

namespace zrw {

/// Six passes over the flagged rows of the tables. Draws nothing. Rows whose points have no line between them
/// change nothing.
/// @return what went wrong, one message per table; the other tables are marked all the same
std::vector<Tabellenmeldung> MarkiereFehler(Liste& liste, TDM& daten, const Einstellungen& einstellungen);

}  // namespace zrw
