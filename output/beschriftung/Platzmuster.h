// The places that a label may take round its point: on a ring of boxes at one distance, closer at its
// corners.
#pragma once

#include <cstdint>
#include <vector>

#include "output/beschriftung/Beschriftung.h"

namespace zrw {

/// Appends the ring. Each place is a whole multiple of the grid from the point.
/// @param abstand of the boxes from the point's symbol [heights / 10]; not heeded where they touch the point
void NimmRing(const Schild& s, const Beschriftungswahl& wahl, std::int32_t abstand,
              std::vector<Flaechenpunkt>& aus);

}  // namespace zrw
