// Masks of smooth shapes eight pixels at a time, for processors that can (AVX2). Each pixel comes out as
// Glattpinsel.cpp makes it four at a time.
#pragma once

#include <cstdint>
#include <span>

#include "output/Glattpinsel.h"

namespace zrw {

/// So many pixels right of a mask may be written again as they are.
inline constexpr std::int32_t kBreiter = 7;

/// Whether this processor can; else nothing of a mask is drawn.
[[nodiscard]] bool KannAchtPixel();

/// @param umfang where the mask lies: all its columns, and `kBreiter` more, in the tile @param teil its rows
/// that do
void SetzeMaskeAcht(const Deckmaske& m, const Rechteck& umfang, const Rechteck& teil, std::uint32_t farbe,
                    const Darueber& ziel);
void SetzeMaskeAcht(const Deckmaske& m, const Rechteck& umfang, const Rechteck& teil, std::uint32_t farbe,
                    const Dahinter& ziel);
/// The characters of a text in turn, but each pixel is read and written once: one by one they would wait for
/// what their neighbours have just written.
/// @return false: too long for that, not from the left to the right, or not in the tile; nothing is drawn
[[nodiscard]] bool SetzeZeileAcht(std::span<const Maskenort> masken, std::uint32_t farbe,
                                  const Darueber& ziel);
[[nodiscard]] bool SetzeZeileAcht(std::span<const Maskenort> masken, std::uint32_t farbe,
                                  const Dahinter& ziel);

}  // namespace zrw
