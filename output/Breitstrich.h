// Smooth strokes over what is there, eight pixels at a time, for processors that can (AVX2). Each pixel comes
// out as Glattpinsel.cpp makes it four at a time.
#pragma once

#include <cstdint>

#include "output/Glattpinsel.h"
#include "output/Pinselstrich.h"

namespace zrw {

// @param von, bis the part of the stroke, along it, that lies in the tile
// @return where to go on: what is before is drawn. Nothing is, when the stroke reaches over a side of the
// tile, is too broad, or the processor cannot.

/// One that runs down.
[[nodiscard]] std::int64_t ZieheSteilAcht(const Pinselstrich& s, std::int64_t von, std::int64_t bis,
                                          std::uint32_t farbe, const Darueber& ziel);
/// One that runs beside the rows.
[[nodiscard]] std::int64_t ZieheFlachAcht(const Pinselstrich& s, std::int64_t von, std::int64_t bis,
                                          std::uint32_t farbe, const Darueber& ziel);

}  // namespace zrw
