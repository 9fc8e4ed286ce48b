// What part of a picture still shows nothing but its background: that much needs not be filled anew for the
// next frame. Filling a large picture takes as long as drawing thousands of lines into it, and most networks
// leave its borders free.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include "output/Rechteck.h"

namespace zrw {

/// A rectangle for each tile of a picture (Kachelwerk.h). All who draw into the picture share one and tell it
/// in the order in which they draw.
class Bildgrund {
  public:
    /// Nothing is known of any tile.
    void TeileEin(std::size_t kacheln) {
        felder_.assign(kacheln, {kAlles, 0});
        fremd_ = true;
    }
    /// Somebody draws who does not tell where.
    void VergissAlles() {
        if (std::exchange(fremd_, true)) return;
        for (Feld& f : felder_)
            f.bemalt = kAlles;
    }

    /// Outside of it a tile has its background. It may reach beyond the tile.
    [[nodiscard]] const Rechteck& Bemalt(std::size_t kachel) const { return felder_[kachel].bemalt; }
    /// @param r not empty
    void Bemale(std::size_t kachel, const Rechteck& r) {
        Rechteck& b = felder_[kachel].bemalt;
        b = Vereint(b, r);
    }
    void SetzeBemalt(std::size_t kachel, const Rechteck& r) {
        felder_[kachel].bemalt = r;
        fremd_ = false;
    }
    /// What has to be filled so that a rectangle of a tile gets a colour.
    /// @param kachel its number @param ganz all of it
    [[nodiscard]] Rechteck Fuelle(std::size_t kachel, const Rechteck& ganz, const Rechteck& r,
                                  std::uint32_t farbe) {
        Feld& f = felder_[kachel];
        fremd_ = false;
        const Rechteck noetig = f.farbe == farbe ? Geschnitten(r, f.bemalt) : r;
        if (Geschnitten(r, ganz) == ganz) {
            f = {kKeinRechteck, farbe};
        } else if (f.farbe != farbe) {
            f.bemalt = Vereint(f.bemalt, r);
        }
        return noetig;
    }

  private:
    static constexpr std::int32_t kWeit = std::numeric_limits<std::int32_t>::max();
    static constexpr Rechteck kAlles{-kWeit, -kWeit, kWeit, kWeit};

    struct Feld {
        Rechteck bemalt = kAlles;
        std::uint32_t farbe = 0;  ///< of the background
    };
    std::vector<Feld> felder_;
    bool fremd_ = true;  ///< every tile may be painted anywhere
};

/// Rows below each other get one colour. @param erste first pixel of the top one @param zeile pixels from one
/// row to the next
inline void FuelleZeilen(std::uint32_t* erste, std::size_t zeile, std::int64_t weite, std::int64_t hoehe,
                         std::uint32_t farbe) {
    std::fill_n(erste, hoehe > 0 ? weite : 0, farbe);
    // Copied, not filled: compilers make vector code of the one, and a loop of the other.
    std::uint32_t* naechste = erste;
    for (std::int64_t y = 1; y < hoehe; ++y)
        std::copy_n(erste, weite, naechste += zeile);
}

/// The rows of a 32-bit picture that is drawn into.
struct Zielbild {
    std::uint32_t* pixel = nullptr;  ///< first of the top row
    int weite = 0;                   ///< [px]
    int hoehe = 0;
    std::size_t zeile = 0;       ///< pixels from one row to the next
    Bildgrund* grund = nullptr;  ///< of this picture
    unsigned helfer = 0;         ///< how many threads draw beside the caller
};

}  // namespace zrw
