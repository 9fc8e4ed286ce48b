// Sizes of the drawing font where there is no font system to ask: Helvetica, which Arial and its twins follow
// in width. Kerning is left out, as on the screen.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "output/Schriftmasse.h"

namespace zrw {

// Of Arial, whose lines are the wider ones [em].
inline constexpr double kSchriftanstieg = 0.905;
inline constexpr double kSchriftabstieg = 0.212;

/// Advance widths by the bytes of code page 1252 [1/1000 em]; 0 where there is no glyph.
/// Source: Adobe Font Metrics, Helvetica, version 002.000 (Adobe Core 14 AFM files).
inline constexpr std::array<std::uint16_t, 256> kHelveticabreiten{
    // clang-format off
    0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,    0,   0,    0,   0,    0,
    0,   0,   0,   0,   0,   0,   0,   0,   0,   0,   0,    0,   0,    0,   0,    0,
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389,  584, 278,  333, 278,  278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278,  278, 584,  584, 584,  556,
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556,  833, 722,  778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611,  278, 278,  278, 469,  556,
    333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222,  500, 222,  833, 556,  556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500,  334, 260,  334, 584,  0,
    556, 0,   222, 556, 333, 1000, 556, 556, 333, 1000, 667, 333, 1000, 0,  611,  0,
    0,   222, 222, 333, 333, 350, 556, 1000, 333, 1000, 500, 333, 944, 0,   500,  667,
    278, 333, 556, 556, 556, 556, 260, 556, 333, 737, 370,  556, 584,  333, 737,  333,
    400, 584, 333, 333, 333, 556, 537, 278, 333, 333, 365,  556, 834,  834, 834,  611,
    667, 667, 667, 667, 667, 667, 1000, 722, 667, 667, 667, 667, 278,  278, 278,  278,
    722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722,  722, 722,  667, 667,  611,
    556, 556, 556, 556, 556, 556, 889, 500, 556, 556, 556,  556, 278,  278, 278,  278,
    556, 556, 556, 556, 556, 556, 556, 584, 611, 556, 556,  556, 556,  500, 556,  500,
    // clang-format on
};

inline constexpr Schriftmasse kHelvetica = [] {
    Schriftmasse m;
    std::copy(kHelveticabreiten.begin(), kHelveticabreiten.end(), m.breiten.begin());
    m.anstieg = kSchriftanstieg;
    m.abstieg = kSchriftabstieg;
    return m;
}();

}  // namespace zrw
