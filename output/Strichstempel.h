// Short strokes ready made: how much each covers of the pixels round it. Most strokes of a dense network are
// marks of a few pixels. To work out how steep such a stroke runs takes longer than to draw it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "output/Glattpinsel.h"

namespace zrw {

class Strichstempel {
  public:
    Strichstempel() = default;
    Strichstempel(const Strichstempel&) = delete;
    Strichstempel& operator=(const Strichstempel&) = delete;
    ~Strichstempel() = default;

    /// Between the ends, along each axis [px].
    static constexpr std::int32_t kWeitester = 10;

    /// Makes those of a pen of width 1, unless they are there. None for very broad ones, or when the
    /// processor gains nothing from them.
    /// @param dichte width of the pen, and of a pixel of its dashes [px]
    void FertigeStempel(double dichte);
    /// @param dx, dy from the first end of the stroke to the other
    /// @return nullptr: it has to be worked out
    [[nodiscard]] const Stempel* FindeStempel(std::int64_t dx, std::int64_t dy, bool gestrichelt) const {
        const auto x = static_cast<std::uint64_t>(dx + kWeitester);
        const auto y = static_cast<std::uint64_t>(dy + kWeitester);
        if (x >= kSeite || y >= kSeite || stempel_.empty()) return nullptr;
        return &stempel_[(gestrichelt ? kSeite * kSeite : 0) + y * kSeite + x];
    }

  private:
    static constexpr std::size_t kSeite = 2 * std::size_t{kWeitester} + 1;

    double dichte_ = 0.0;
    std::vector<Stempel> stempel_;        ///< solid ones, then dashed ones, row by row
    std::vector<std::uint32_t> anteile_;  ///< of all of them
};

}  // namespace zrw
