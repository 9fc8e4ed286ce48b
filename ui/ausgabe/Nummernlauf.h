// Point numbers put in order before something is written, as the window does it.
#pragma once

#include "ui/ausgabe/Ausgabelauf.h"

namespace zrw {

/// Does nothing where the order does not ask for it. Numbers of a picture file that have not the offset of
/// the settings stay: somebody has placed them. Tells how many overlap in the end.
/// @param netz that of the source
void OrdneNummern(const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag, Netz& netz,
                  const Sprecher& sage);

}  // namespace zrw
