// Draws straight into the rows of a 32-bit picture: what a general painter spends on each small stroke is
// many times what setting its pixels takes. Clipped exactly: a stroke's pixels do not depend on what part of
// it is visible, so strips and edits of a picture can be drawn alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "output/Zeichenflaeche.h"

namespace zrw {

/// Which pixels of a small shape are set: one bit each, rows of whole 64-bit words, the lowest bit leftmost.
struct Pixelmaske {
    int links = 0;  ///< of the mask, from the place that the shape is drawn at [px]
    int oben = 0;
    int weite = 0;
    int hoehe = 0;
    std::vector<std::uint64_t> worte;  ///< `hoehe` rows of (`weite` + 63) / 64 words

    Pixelmaske() = default;
    Pixelmaske(int l, int o, int w, int h) : links(l), oben(o), weite(w), hoehe(h) {
        worte.resize(static_cast<std::size_t>(h) * JeZeile());
    }
    [[nodiscard]] std::size_t JeZeile() const { return (static_cast<std::size_t>(weite) + 63) / 64; }
    void Setze(int x, int y) {
        worte[static_cast<std::size_t>(y) * JeZeile() + static_cast<std::size_t>(x) / 64] |=
            std::uint64_t{1} << (static_cast<unsigned>(x) % 64U);
    }
};

class Pixelbild {
  public:
    Pixelbild() = default;
    /// @param bild first pixel of the top row @param zeile pixels from one row to the next
    Pixelbild(std::uint32_t* bild, int weite, int hoehe, std::size_t zeile)
        : bild_(bild), weite_(weite), hoehe_(hoehe), zeile_(zeile) {}

    /// Line of width 1 with both ends, in the steps of Qt's raster painter: along the longer axis from its
    /// smaller end, 16.16 fixed point, rounded down. Dashes (4 on, 2 off) count from `von`.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, Strichart art);
    void Maske(const Pixelmaske& maske, std::int32_t x, std::int32_t y, std::uint32_t farbe);
    /// One row of a mask, word by word from `x` on.
    void Zeile(std::span<const std::uint64_t> worte, std::int64_t x, std::int64_t y, std::uint32_t farbe);

  private:
    template <bool Gestrichelt, bool Senkrecht>
    void Schritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe);

    std::uint32_t* bild_ = nullptr;
    int weite_ = 0;
    int hoehe_ = 0;
    std::size_t zeile_ = 0;
};

}  // namespace zrw
