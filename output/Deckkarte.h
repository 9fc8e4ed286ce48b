// Where everything in a picture is covered, by squares of 8 x 8 pixels: one bit each, so that the map of a
// whole screen lies in the core's first cache. Made while nobody draws, and asked for by each figure that
// comes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "output/Rechteck.h"

namespace zrw {

class Deckung;

class Deckkarte {
  public:
    static constexpr std::int32_t kQuadrat = 8;              ///< [px]
    static constexpr std::int32_t kWeiteste = 8 * kQuadrat;  ///< a byte of squares

    /// Nothing is known to be covered.
    void VergissAlles() { bekannt_ = false; }
    /// Of a picture, all of which is covered until its parts are taken.
    void BeginneKarte(int weite, int hoehe);
    /// @param links, oben where the part lies [px]: 64 and 8 times whole numbers. It may reach beyond the
    /// picture.
    void NimmTeil(const Deckung& teil, std::int32_t links, std::int32_t oben);
    /// Everything in the rectangle is covered, as far as it lies in the picture.
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const;

    /// From now on `Umgeben` tells whether everything as near as this is covered [px], up to the border of
    /// its squares; of nothing, when that is farther than `kWeiteste`. Once for each map.
    void BeginneUmgebungen(std::int32_t rand);
    [[nodiscard]] bool Umgeben(std::int64_t x, std::int64_t y) const {
        if (!bekannt_ || x < 0 || y < 0 || x > ganz_.rechts || y > ganz_.unten) return false;
        const auto bit = static_cast<unsigned>(x / kQuadrat) % 8;
        return (umgeben_[Stelle(static_cast<std::int32_t>(x), static_cast<std::int32_t>(y))] >> bit & 1U) !=
               0;
    }

  private:
    // In a row: a byte of covered squares, eight a byte as they lie in the picture, and as much behind as is
    // read at a time.
    static constexpr std::size_t kDavor = 1;
    static constexpr std::size_t kDanach = sizeof(std::uint64_t);
    [[nodiscard]] std::size_t Stelle(std::int32_t x, std::int32_t y) const {
        return static_cast<std::size_t>(y / kQuadrat) * zeile_ + kDavor +
               static_cast<std::size_t>(x / kQuadrat / 8);
    }

    bool bekannt_ = false;
    Rechteck ganz_;
    std::size_t zeile_ = 0;  ///< bytes from one row to the next
    std::size_t zeilen_ = 0;
    std::vector<std::uint8_t> voll_;
    std::vector<std::uint8_t> quer_;  ///< those that are covered with their neighbours in the row
    std::vector<std::uint8_t> umgeben_;
};

}  // namespace zrw
