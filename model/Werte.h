// Small value types that cross the borders between the rooms: colour, picture and world position,
// point index and point number. No behaviour beyond comparing and converting.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace zrw {

/// Colour value 0x00BBGGRR: the low byte is red. Kept as 32 bits because picture files carry all four bytes.
struct Farbe {
    std::uint32_t wert = 0;
    friend bool operator==(Farbe, Farbe) = default;
};

inline constexpr Farbe kSchwarz{0x000000};
/// Background of the picture, hence also the colour that wipes.
inline constexpr Farbe kWeiss{16777215};

/// Picture position [px], x to the right, y downwards.
struct Bildpunkt {
    std::int64_t x = 0;
    std::int64_t y = 0;
    friend bool operator==(Bildpunkt, Bildpunkt) = default;
};

/// World position [m]. A control file calls the easting Y and the northing X; in here they have plain names,
/// so that nobody has to remember which is which.
struct Welt {
    double rechts = 0.0;  ///< easting, to the right in the picture
    double hoch = 0.0;    ///< northing, upwards in the picture
};

/// Internal number of a point, 1 to 65535; 0 means no point.
using PunktIndex = std::uint16_t;
inline constexpr PunktIndex kKeinPunkt = 0;
/// Most points of a network: the range of `PunktIndex`.
inline constexpr std::size_t kMaxPunkte = 65535;

/// Reversible mixing of 64 bits (the finaliser of splitmix64, Steele, Lea and Flood 2014).
[[nodiscard]] constexpr std::uint64_t MischeBits(std::uint64_t h) {
    h = (h ^ (h >> 30U)) * 0xBF58476D1CE4E5B9ULL;
    h = (h ^ (h >> 27U)) * 0x94D049BB133111EBULL;
    return h ^ (h >> 31U);
}

/// Point number as the user sees it: at most 14 bytes of code page 1252, longer texts are cut.
class PunktNummernTyp {
  public:
    static constexpr std::size_t kLaenge = 14;

    constexpr PunktNummernTyp() = default;
    explicit PunktNummernTyp(std::string_view text)
        : laenge_(static_cast<std::uint8_t>(std::min(text.size(), kLaenge))) {
        if (laenge_ > 0) std::memcpy(zeichen_.data(), text.data(), laenge_);
    }

    [[nodiscard]] constexpr std::string_view Text() const { return {zeichen_.data(), laenge_}; }
    [[nodiscard]] constexpr bool Leer() const { return laenge_ == 0; }

    /// Exact comparison of the bytes: case and blanks count.
    friend bool operator==(const PunktNummernTyp& a, const PunktNummernTyp& b) {
        return a.Wort(0) == b.Wort(0) && a.Wort(6) == b.Wort(6) && a.laenge_ == b.laenge_;
    }

    /// Spread over all 64 bits, differently for every `saat`; bytes behind the text are zero.
    [[nodiscard]] std::uint64_t Streuwert(std::uint64_t saat) const {
        return MischeBits(MischeBits(Wort(0) ^ saat) ^ Wort(6) ^ (std::uint64_t{laenge_} << 8U));
    }

  private:
    /// Eight bytes from a place on: two of these compare faster than a text of any length.
    [[nodiscard]] std::uint64_t Wort(std::size_t stelle) const {
        std::uint64_t w = 0;
        std::memcpy(&w, zeichen_.data() + stelle, sizeof w);
        return w;
    }
    std::array<char, kLaenge> zeichen_{};
    std::uint8_t laenge_ = 0;
};

}  // namespace zrw
