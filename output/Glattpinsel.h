// The inner loops of Glattbild: strokes, masks and rectangles in one tile, by how much of each pixel they
// cover. Shares of a pixel and positions across a stroke are counted in 1/256.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "output/Deckung.h"
#include "output/Rechteck.h"
#include "output/Vierpixel.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

/// What remains free of a pixel when nobody can tell it from a full one (of 255).
inline constexpr unsigned kSatt = 6;

/// How much a small shape covers of each pixel.
class Deckmaske {
  public:
    Deckmaske() = default;
    /// @param links, oben of the mask, from the place that the shape is drawn at [px]
    /// @param werte row by row, 0 to 255
    Deckmaske(int links, int oben, int weite, int hoehe, std::span<const std::uint8_t> werte);

    [[nodiscard]] bool Leer() const { return bits_.empty(); }
    /// Where the shape lies when it is drawn at a place.
    [[nodiscard]] Rechteck Umfang(Flaechenpunkt ort) const {
        return {ort.x + links_, ort.y + oben_, ort.x + links_ + weite_ - 1, ort.y + oben_ + hoehe_ - 1};
    }
    /// Shares of a row, 0 to 256, four pixels at a time, in pairs: as many as are covered, and on each side
    /// `kPolster` pixels of nothing and more to whole groups of so many.
    [[nodiscard]] const Acht* Vierer(std::size_t zeile) const {
        return vierer_.data() + zeile * viererJeZeile_ + kPolster / 4;
    }
    /// The same of all rows, twice in a word for each pixel.
    [[nodiscard]] const std::uint32_t* Anteile() const {
        return reinterpret_cast<const std::uint32_t*>(Vierer(0));
    }
    [[nodiscard]] std::size_t PixelJeZeile() const { return viererJeZeile_ * 4; }
    static constexpr std::size_t kPolster = 8;
    /// One bit for each pixel of a row that is covered at all, the lowest one leftmost.
    [[nodiscard]] const std::uint64_t* Bits(std::size_t zeile) const {
        return bits_.data() + zeile * worteJeZeile_;
    }

  private:
    int links_ = 0;
    int oben_ = 0;
    int weite_ = 0;
    int hoehe_ = 0;
    std::size_t viererJeZeile_ = 0;
    std::size_t worteJeZeile_ = 0;
    std::vector<Acht> vierer_;
    std::vector<std::uint64_t> bits_;
};

/// A mask, and where it is drawn.
struct Maskenort {
    const Deckmaske* maske;
    Flaechenpunkt ort;
};

/// How much a stroke covers of each pixel, from one of its ends on.
struct Stempel {
    static constexpr std::int32_t kReihe = 8;  ///< pixels

    const std::uint32_t* anteile = nullptr;  ///< 0 to 256, twice in a word: rows of `kReihe`, downwards
    std::int8_t links = 0;                   ///< from the first end of the stroke [px]
    std::int8_t oben = 0;
    std::uint8_t hoehe = 0;    ///< rows
    std::uint8_t gruppen = 0;  ///< of rows, beside each other
    /// @param von where the stroke begins
    [[nodiscard]] Rechteck Umfang(Flaechenpunkt von) const {
        const std::int32_t x = von.x + links;
        const std::int32_t y = von.y + oben;
        return {x, y, x + kReihe * gruppen - 1, y + hoehe - 1};
    }
};

// Two ways to draw a pixel, or four beside each other. @param y its row @param a what is covered of it, 0 to
// 256, of four twice each

/// Over what is there.
struct Darueber {
    std::uint32_t* pixel;  ///< first of the top row
    std::size_t zeile;     ///< pixels from one row to the next
    Rechteck bereich;      ///< pixels outside are neither read nor written
    /// @param r lies in `bereich`
    void FuelleBlock(const Rechteck& r, std::uint32_t farbe) const;
    void SetzePixel(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, std::int32_t a) const;
    void SetzeVier(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, Acht a) const;
    [[nodiscard]] static bool Verdeckt(const Rechteck& /*r*/) { return false; }
    /// Pixels of a row from `x` on that are not full yet, one bit each.
    [[nodiscard]] static std::uint64_t Freie(std::int64_t /*x*/, std::int64_t /*y*/) {
        return ~std::uint64_t{0};
    }
};

/// Behind what is there: colours times their share, which stands in the highest byte.
struct Dahinter {
    std::uint32_t* pixel;
    std::size_t zeile;
    Rechteck bereich;
    Deckung& deckung;
    /// @param r lies in `bereich`
    void FuelleBlock(const Rechteck& r, std::uint32_t farbe) const;
    void SetzePixel(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, std::int32_t a) const;
    void SetzeVier(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, Acht a) const;
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const { return deckung.Verdeckt(r); }
    [[nodiscard]] std::uint64_t Freie(std::int64_t x, std::int64_t y) const {
        return ~deckung.Gedeckte(static_cast<std::size_t>(x), static_cast<std::size_t>(y));
    }

  private:
    void Decke(const std::uint32_t* p, std::int64_t y, std::uint64_t pixel) const;
};

/// Not at all, for `ZieheLinie` only: keeps how much of each is covered, twice in its word.
struct Abdruck {
    std::uint32_t* pixel;
    std::size_t zeile;
    Rechteck bereich;
    static void SetzePixel(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, std::int32_t a);
    static void SetzeVier(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, Acht a);
};

// For `Darueber` and `Dahinter`.

/// Beside the tile, or behind what is there.
template <class Ziel>
[[nodiscard]] bool Unsichtbar(const Rechteck& r, const Ziel& ziel) {
    return Leer(Geschnitten(r, ziel.bereich)) || ziel.Verdeckt(r);
}
/// @param breite [px] @param dash length of a pixel of its dashes [px]; 0: solid
template <class Ziel>
void ZieheLinie(Flaechenpunkt von, Flaechenpunkt nach, double breite, double dash, std::uint32_t farbe,
                const Ziel& ziel);
template <class Ziel>
void SetzeMaske(const Deckmaske& m, Flaechenpunkt ort, std::uint32_t farbe, const Ziel& ziel);
/// Many in turn, beside each other for the most part: the characters of a text.
template <class Ziel>
void SetzeMasken(std::span<const Maskenort> masken, std::uint32_t farbe, const Ziel& ziel);
template <class Ziel>
void FuellePixel(const Rechteck& r, std::uint32_t farbe, const Ziel& ziel);
/// Lays pixels that were drawn by `Dahinter` over those of the picture.
void MischeUnter(const std::uint32_t* vorn, std::uint32_t* unten, std::size_t weite);

}  // namespace zrw
