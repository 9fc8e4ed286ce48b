// The rows of a 32-bit picture that is drawn into.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace zrw {

class Bildgrund;

struct Zielbild {
    std::uint32_t* pixel = nullptr;  ///< first of the top row
    int weite = 0;                   ///< [px]
    int hoehe = 0;
    std::size_t zeile = 0;       ///< pixels from one row to the next
    Bildgrund* grund = nullptr;  ///< of this picture
    unsigned helfer = 0;         ///< how many threads draw beside the caller
};

/// Gives a rectangle of pixels one colour. @param erste its top left one @param zeile pixels from one row to
/// the next @param weite, hoehe positive
inline void FuelleZeilen(std::uint32_t* erste, std::size_t zeile, std::int64_t weite, std::int64_t hoehe,
                         std::uint32_t farbe) {
    std::fill_n(erste, weite, farbe);
    // Copied, not filled: compilers make vector code of the one, and a loop of the other.
    std::uint32_t* naechste = erste;
    for (std::int64_t y = 1; y < hoehe; ++y)
        std::copy_n(erste, weite, naechste += zeile);
}

}  // namespace zrw
