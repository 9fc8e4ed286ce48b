// Small shapes as bits: which pixels of a picture they set, and the characters of a font.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
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
    void SetzePixel(int x, int y) { worte[Wort(x, y)] |= Bit(x); }
    [[nodiscard]] bool Gesetzt(int x, int y) const { return (worte[Wort(x, y)] & Bit(x)) != 0; }
    /// Where the shape lies when it is drawn at a place.
    [[nodiscard]] Rechteck Umfang(Flaechenpunkt ort) const {
        return {ort.x + links, ort.y + oben, ort.x + links + weite - 1, ort.y + oben + hoehe - 1};
    }

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

/// The characters of a font that have been asked for, as masks in rows of one height.
class Glyphensatz {
  public:
    /// Characters are at most so wide and so high [px].
    static constexpr int kGroesste = 64;

    struct Glyphe {
        std::int16_t vorschub = 0;  ///< to the next character [px]
        std::int16_t links = 0;     ///< of its mask, from where the character begins
        std::int16_t weite = 0;     ///< of its mask
        bool bekannt = false;
        bool leer = true;
    };

    [[nodiscard]] bool Kennt(char c) const { return Glyphenangaben(c).bekannt; }
    [[nodiscard]] const Glyphe& Glyphenangaben(char c) const {
        return glyphen_[static_cast<unsigned char>(c)];
    }
    /// @param maske what is larger than `kGroesste` is left out
    void NimmZeichen(char c, const Pixelmaske& maske, int vorschub);

    /// Width of a text; nothing where a character is not known [px].
    [[nodiscard]] std::optional<int> Textbreite(std::string_view text) const {
        int breite = 0;
        int alle = 1;  // without a branch for each
        for (const char c : text) {
            const Glyphe& g = Glyphenangaben(c);
            breite += g.vorschub;
            alle &= static_cast<int>(g.bekannt);
        }
        return alle != 0 ? std::optional(breite) : std::nullopt;
    }
    /// Where a text lies. @param breite of it
    [[nodiscard]] Rechteck Umfang(Flaechenpunkt ort, int breite) const {
        return {ort.x + links_, ort.y + oben_, ort.x + breite + ueberstand_ - 1, ort.y + oben_ + hoehe_ - 1};
    }
    /// First row and number of rows of every character [px].
    [[nodiscard]] int Oben() const { return oben_; }
    [[nodiscard]] int Hoehe() const { return hoehe_; }
    /// Farthest that one lies from where it begins, to the left: not positive [px].
    [[nodiscard]] int Links() const { return links_; }
    /// `Hoehe()` rows, the lowest bit leftmost, and more of zeros up to an even number.
    [[nodiscard]] const std::uint64_t* Zeilen(char c) const {
        return &zeilen_[static_cast<unsigned char>(c) * jeGlyphe_];
    }

  private:
    void SetzeHoehe(int oben, int hoehe);

    std::vector<Glyphe> glyphen_ = std::vector<Glyphe>(256);
    std::vector<std::uint64_t> zeilen_;  ///< `jeGlyphe_` for each character
    std::size_t jeGlyphe_ = 0;
    int oben_ = 0;
    int hoehe_ = 0;
    int links_ = 0;
    int ueberstand_ = 0;  ///< farthest to the right of where a character ends
};

}  // namespace zrw
