// Draws straight into the rows of a 32-bit picture: what a general painter spends on each small stroke is
// many times what setting its pixels takes. Clipped exactly: a stroke's pixels do not depend on what part of
// it is visible, so strips and edits of a picture can be drawn alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "output/Deckung.h"
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
    void SetzePixel(int x, int y) { worte[Wort(x, y)] |= Bit(x); }
    [[nodiscard]] bool Gesetzt(int x, int y) const { return (worte[Wort(x, y)] & Bit(x)) != 0; }

  private:
    [[nodiscard]] std::size_t Wort(int x, int y) const {
        return static_cast<std::size_t>(y) * JeZeile() + static_cast<std::size_t>(x) / 64;
    }
    [[nodiscard]] static std::uint64_t Bit(int x) {
        return std::uint64_t{1} << (static_cast<unsigned>(x) % 64U);
    }
};

/// The pixels of a disc round a pixel. @param radius at least 0
[[nodiscard]] std::vector<Flaechenpunkt> Umkreispixel(int radius);
/// A shape with everything round it. @param rand how far [px]
[[nodiscard]] Pixelmaske Verbreitert(const Pixelmaske& maske, int rand);

class Pixelbild {
  public:
    Pixelbild() = default;
    /// @param bild first pixel of the top row @param zeile pixels from one row to the next
    Pixelbild(std::uint32_t* bild, int weite, int hoehe, std::size_t zeile)
        : bild_(bild), weite_(weite), hoehe_(hoehe), zeile_(zeile) {
        SetzeAusschnitt(Ganz());
    }

    [[nodiscard]] Rechteck Ganz() const { return {0, 0, weite_ - 1, hoehe_ - 1}; }
    /// Pixels outside keep their colour. Cut to the picture.
    void SetzeAusschnitt(const Rechteck& r);
    [[nodiscard]] const Rechteck& Ausschnitt() const { return ausschnitt_; }
    /// Moves the picture; what comes in at the border keeps its old pixels.
    void VerschiebeBild(int dx, int dy);

    // From the front to the back: pixels that were set since the beginning keep their colour.
    void BeginneVonVorn() { deckung_.BeginneDeckung(weite_, hoehe_, ausschnitt_); }
    void BeendeVonVorn() { deckung_.BeendeDeckung(); }
    [[nodiscard]] bool VonVorn() const { return deckung_.Aktiv(); }
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const { return VonVorn() && deckung_.Verdeckt(r); }

    /// Covers a rectangle, whatever lies in it. Not while drawing from the front.
    void FuelleRechteck(const Rechteck& r, std::uint32_t farbe);
    /// Line of width 1 with both ends, in the steps of Qt's raster painter: along the longer axis from its
    /// smaller end, 16.16 fixed point, rounded down. Dashes (4 on, 2 off) count from `von`. Lines too long
    /// for that are stepped with exact remainders. Ends lie within 2^30.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, Strichart art);
    void Linien(std::span<const Linienstueck> stuecke, std::uint32_t farbe);
    void Maske(const Pixelmaske& maske, std::int32_t x, std::int32_t y, std::uint32_t farbe);
    /// Rows of `jeZeile` words each, the first bit of the first row at (x, y).
    void Block(std::span<const std::uint64_t> worte, std::size_t jeZeile, std::int64_t x, std::int64_t y,
               std::uint32_t farbe);

  private:
    void Strecke(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt);
    template <bool Senkrecht, bool Innen>
    void Schritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt);
    template <bool Senkrecht>
    void LangeSchritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt);
    template <bool Senkrecht>
    void Pixel(std::int64_t laengs, std::int64_t quer, std::uint32_t farbe) {
        const auto x = static_cast<std::size_t>(Senkrecht ? quer : laengs);
        const auto y = static_cast<std::size_t>(Senkrecht ? laengs : quer);
        if (!deckung_.Aktiv() || deckung_.DeckePixel(x, y)) bild_[y * zeile_ + x] = farbe;
    }
    void FreierBlock(std::span<const std::uint64_t> worte, std::size_t x, std::size_t y, std::uint32_t farbe);
    void SetzeBits(std::uint64_t bits, std::int64_t x, std::size_t y, std::uint32_t farbe);

    std::uint32_t* bild_ = nullptr;
    int weite_ = 0;
    int hoehe_ = 0;
    std::size_t zeile_ = 0;
    Rechteck ausschnitt_;
    Deckung deckung_;
};

}  // namespace zrw
