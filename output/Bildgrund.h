// What part of a picture still shows nothing but its background: that much needs not be filled anew for the
// next frame. Filling a large picture takes as long as drawing thousands of lines into it, and most networks
// leave its borders free.
#pragma once

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
        if (Enthaelt(r, ganz)) {
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

}  // namespace zrw
