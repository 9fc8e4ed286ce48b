// Which pixels of a picture are set already, for drawing from the front to the back: what lies behind is then
// never drawn at all. One bit per pixel, and for blocks of 64 x 8 pixels whether all of them are set, so that
// a figure behind full blocks is left out as a whole.
//
// Several cores may cover pixels at a time, each in areas of its own of whole blocks, `kLaufhoehe` rows high
// from the top; and one may ask meanwhile what is hidden.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <span>
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
        return DeckePixel(x / 64, y, std::uint64_t{1} << (x % 64)) != 0;
    }
    /// Covers pixels of one word of a row, x = 64 * `spalte` + bit. @return those that were free
    std::uint64_t DeckePixel(std::size_t spalte, std::size_t y, std::uint64_t pixel) {
        std::uint64_t& wort = Spalte(spalte)[y];
        const std::uint64_t neu = pixel & ~wort;
        if (neu == 0) return 0;
        wort |= neu;
        if (wort == kVoll) PruefeBlock(spalte, y / kBlockhoehe);
        return neu;
    }
    /// Covers pixels of a row from `x` on. They lie in the picture, `x` may lie left of it. @return those
    /// that were free
    std::uint64_t DeckeAb(std::int64_t x, std::size_t y, std::uint64_t pixel) {
        const auto bit = static_cast<unsigned>(x & 63);
        const auto spalte = static_cast<std::size_t>(x >> 6);
        std::uint64_t neu = 0;
        if (pixel << bit != 0) neu = DeckePixel(spalte, y, pixel << bit) >> bit;
        if (bit != 0 && pixel >> (64U - bit) != 0)
            neu |= DeckePixel(spalte + 1, y, pixel >> (64U - bit)) << (64U - bit);
        return neu;
    }
    /// The same for some rows from `y` on. @param frei as many words
    void DeckeZeilen(std::int64_t x, std::size_t y, std::span<const std::uint64_t> pixel,
                     std::uint64_t* frei);
    /// Which pixels of a row are covered, from `x` on, one bit each.
    [[nodiscard]] std::uint64_t Gedeckte(std::size_t x, std::size_t y) const {
        const std::uint64_t* wort = bits_.data() + x / 64 * hoehe_ + y;
        const std::size_t bit = x % 64;
        return bit == 0 ? wort[0] : wort[0] >> bit | wort[hoehe_] << (64 - bit);
    }
    /// Everything in the rectangle is covered, or outside `ausschnitt`.
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const {
        const Rechteck sicht = Geschnitten(r, ausschnitt_);
        return Leer(sicht) || VolleBloecke(sicht);
    }

    /// The same to the pixel, for whoever covers there. @param r empty, or in the picture
    [[nodiscard]] bool GenauVerdeckt(const Rechteck& r) const;

    /// [px]
    static constexpr std::size_t kLaufhoehe = 128;

    // Not while anybody covers: squares of 8 x 8 pixels, eight of them beside each other at a time.
    [[nodiscard]] std::size_t Spalten() const { return spalten_; }
    [[nodiscard]] std::size_t Reihen() const { return reihen_; }
    /// Those that are covered or outside `ausschnitt`, one bit each, the lowest one leftmost.
    [[nodiscard]] std::uint8_t VolleQuadrate(std::size_t spalte, std::size_t reihe) const;

  private:
    static constexpr std::size_t kBlockhoehe = 8;
    static constexpr std::size_t kReihenJeLauf = kLaufhoehe / kBlockhoehe;

    static constexpr std::uint64_t kVoll = ~std::uint64_t{0};

    [[nodiscard]] bool VolleBloecke(const Rechteck& r) const;
    /// What the rows of a block have in common.
    [[nodiscard]] std::uint64_t GanzGedeckte(std::size_t spalte, std::size_t reihe) const;
    [[nodiscard]] std::uint64_t* Spalte(std::size_t spalte) { return bits_.data() + spalte * hoehe_; }
    template <class Hin, class Zurueck>
    void DeckeInSpalte(std::size_t spalte, std::size_t y, std::span<const std::uint64_t> pixel,
                       std::uint64_t* frei, Hin hin, Zurueck zurueck);
    void PruefeBlock(std::size_t spalte, std::size_t reihe);
    void NimmVollenBlock(std::size_t spalte, std::size_t reihe);
    /// Others may be asking: an old answer does, but it must be one.
    static std::atomic_ref<std::uint16_t> Gemeinsam(const std::uint16_t& v) {
        return std::atomic_ref(const_cast<std::uint16_t&>(v));  // NOLINT: read only where it was const
    }

    bool aktiv_ = false;
    Rechteck ausschnitt_;
    std::size_t spalten_ = 0;
    std::size_t reihen_ = 0;
    std::size_t hoehe_ = 0;  ///< rows of whole blocks
    /// Column by column, so that a figure's rows lie beside each other. All of them set outside
    /// `ausschnitt_`.
    std::vector<std::uint64_t> bits_;
    std::vector<std::uint16_t>
        tief_;  ///< full blocks from each one downwards without a gap, up to the run's end
};

}  // namespace zrw
