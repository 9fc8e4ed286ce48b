// Point numbers put in order before something is written, as the window does it.
#pragma once

#include "ui/ausgabe/Ausgabelauf.h"

namespace zrw {

/// What is ordered for the print is written at its scale: where the plan decides on it, that is found now,
/// before numbers move, and stands in order and legend from then on. Does nothing otherwise.
void LegeMassstabFest(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag);

/// Does nothing where the order does not ask for it. Numbers of a picture file that have not the offset of
/// the settings stay: somebody has placed them. Tells how many overlap in the end.
/// @param auftrag gets its scale @param netz that of the source
void OrdneNummern(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag, Netz& netz, const Sprecher& sage);

}  // namespace zrw
