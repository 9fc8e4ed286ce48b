// Steps that can no longer be undone, because something that has no way back was done to their figures since.
// They leave the stack of changes; what they did stays.
#pragma once

#include <QUndoStack>
#include <set>

#include "model/Werte.h"

namespace zrw {

/// Makes void all steps that are about points of these internal numbers, and those before them that such a
/// step builds on. The others can be undone and done again as before.
void VerwirfSchritte(QUndoStack& stapel, std::set<PunktIndex> nummern);

/// Takes void steps from where the stack stands, so that the next one to undo or to do again is a real one.
void RaeumeStapel(QUndoStack& stapel);

}  // namespace zrw
