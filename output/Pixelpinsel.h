// The inner loops of Pixelbild: strokes, masks, texts and rectangles in one tile, pixel by pixel. Clipped
// exactly: a stroke's pixels do not depend on what part of it is visible.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "output/Deckung.h"
#include "output/Pixelmaske.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

struct Pixelpinsel {
    std::uint32_t* bild;  ///< first pixel of the top row
    std::size_t zeile;    ///< pixels from one row to the next
    Rechteck bereich;     ///< pixels outside are neither read nor written
    Deckung* deckung;     ///< pixels that it has are kept, and others given to it; null: over what is there

    /// Covers a rectangle, whatever lies in it. Not while drawing from the front.
    void FuelleRechteck(const Rechteck& r, std::uint32_t farbe) const;
    /// Line of width 1 with both ends, in the steps of Qt's raster painter: along the longer axis from its
    /// smaller end, 16.16 fixed point, rounded down. Dashes (4 on, 2 off) count from `von`. Lines too long
    /// for that are stepped with exact remainders. Ends lie within 2^30.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) const;
    void Maske(const Pixelmaske& maske, Flaechenpunkt ort, std::uint32_t farbe) const;
    /// An outline and what lies in it, two masks of one frame.
    void Stempel(const Pixelmaske& rand, const Pixelmaske& fuellung, Flaechenpunkt ort, std::uint32_t farbe,
                 std::uint32_t fuellfarbe) const;
    static constexpr std::size_t kMeisteZeichen = 184;
    /// @param text of characters that the font knows, at most so many
    void Text(Flaechenpunkt ort, std::string_view text, std::uint32_t farbe,
              const Glyphensatz& schrift) const;

  private:
    struct Block {
        const std::uint64_t* worte;
        std::int64_t hoehe;   ///< rows
        std::size_t jeZeile;  ///< words
    };
    struct Tinte {
        std::uint32_t farbe;
        const std::uint64_t* fuellung;  ///< as many words; null: none
        std::uint32_t fuellfarbe;
    };
    void SetzeBlock(const Block& b, std::int64_t x, std::int64_t y, const Tinte& tinte) const;
    template <bool Gefuellt>
    void SetzeSpalte(const Block& b, std::size_t spalte, std::int64_t x, std::int64_t y,
                     const Tinte& tinte) const;
    struct Schritte;
    void KurzeLinie(Flaechenpunkt von, Flaechenpunkt nach, bool senkrecht, std::uint32_t farbe,
                    bool gestrichelt) const;
    template <bool Senkrecht>
    void LangeSchritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) const;
    void SetzePixel(std::int64_t x, std::int64_t y, std::uint32_t farbe) const {
        const auto spalte = static_cast<std::size_t>(x);
        const auto reihe = static_cast<std::size_t>(y);
        if (deckung == nullptr || deckung->DeckePixel(spalte, reihe)) bild[reihe * zeile + spalte] = farbe;
    }
};

}  // namespace zrw
