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
/// The characters of a text as if in turn. Most pixels are read and written once: alone, each character takes
/// a whole group of them, though most are narrower.
/// @return false: too long for that, characters too narrow or with columns in common, or not in the tile;
/// nothing is drawn
[[nodiscard]] bool SetzeZeileAcht(std::span<const Maskenort> masken, std::uint32_t farbe,
                                  const Darueber& ziel);
[[nodiscard]] bool SetzeZeileAcht(std::span<const Maskenort> masken, std::uint32_t farbe,
                                  const Dahinter& ziel);
/// @param ort of its upper left pixel: all of it lies in the tile
void SetzeStempelAcht(const Stempel& s, Flaechenpunkt ort, std::uint32_t farbe, const Darueber& ziel);
void SetzeStempelAcht(const Stempel& s, Flaechenpunkt ort, std::uint32_t farbe, const Dahinter& ziel);

}  // namespace zrw
