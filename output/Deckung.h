// Which pixels of a picture are set already, for drawing from the front to the back: what lies behind is then
// never drawn at all. One bit per pixel, and for tiles of 64 x 8 pixels a count of the free ones, so that a
// figure behind full tiles is left out as a whole.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "output/Zeichenflaeche.h"

namespace zrw {

class Deckung {
  public:
    /// Nothing is covered inside `ausschnitt`, which lies in the picture; what is outside is never asked for.
    void BeginneDeckung(int weite, int hoehe, const Rechteck& ausschnitt);
    void BeendeDeckung() { aktiv_ = false; }
    [[nodiscard]] bool Aktiv() const { return aktiv_; }

    /// Covers a pixel. @return false: it was covered before
    bool DeckePixel(std::size_t x, std::size_t y) {
        const std::size_t i = y * spalten_ + x / 64;
        const std::uint64_t bit = std::uint64_t{1} << (x % 64);
        if ((bits_[i] & bit) != 0) return false;
        bits_[i] |= bit;
        if (--frei_[(y / kKachelhoehe) * spalten_ + x / 64] == 0) Voll(x / 64, y / kKachelhoehe);
        return true;
    }
    /// Covers pixels of one word of a row, x = 64 * `spalte` + bit. @return those that were free
    std::uint64_t DeckePixel(std::size_t spalte, std::size_t y, std::uint64_t pixel) {
        std::uint64_t& wort = bits_[y * spalten_ + spalte];
        const std::uint64_t neu = pixel & ~wort;
        if (neu == 0) return 0;
        wort |= neu;
        std::uint16_t& frei = frei_[(y / kKachelhoehe) * spalten_ + spalte];
        frei = static_cast<std::uint16_t>(frei - Anzahl(neu));
        if (frei == 0) Voll(spalte, y / kKachelhoehe);
        return neu;
    }
    /// Which pixels of a row are covered, from `x` on, one bit each.
    [[nodiscard]] std::uint64_t Gedeckte(std::size_t x, std::size_t y) const {
        const std::uint64_t* wort = bits_.data() + y * spalten_ + x / 64;
        const std::size_t bit = x % 64;
        return bit == 0 ? wort[0] : wort[0] >> bit | wort[1] << (64 - bit);
    }
    /// Everything in the rectangle is covered, or outside `ausschnitt`.
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const;

  private:
    static constexpr std::size_t kKachelhoehe = 8;

    /// Bits that are set, in parallel sums: the compiler's own call is a library function on plain machines.
    [[nodiscard]] static unsigned Anzahl(std::uint64_t v) {
        v -= v >> 1U & 0x5555555555555555U;
        v = (v & 0x3333333333333333U) + (v >> 2U & 0x3333333333333333U);
        v = (v + (v >> 4U)) & 0x0F0F0F0F0F0F0F0FU;
        return static_cast<unsigned>(v * 0x0101010101010101U >> 56U);
    }
    void Voll(std::size_t spalte, std::size_t reihe);

    bool aktiv_ = false;
    Rechteck ausschnitt_;
    std::size_t spalten_ = 0;
    std::size_t reihen_ = 0;
    std::vector<std::uint64_t> bits_;
    std::vector<std::uint16_t> frei_;  ///< free pixels of each tile
    std::vector<std::uint16_t> tief_;  ///< full tiles from each tile downwards without a gap
};

}  // namespace zrw
