// Rectangle in the world.
#pragma once

#include <algorithm>
#include <limits>

namespace zrw {

/// [m]; empty as it is made.
struct Weltkasten {
    double links = 1e300;
    double unten = 1e300;
    double rechts = -1e300;
    double oben = -1e300;

    void NimmOrt(double x, double y) {
        links = std::min(links, x);
        rechts = std::max(rechts, x);
        unten = std::min(unten, y);
        oben = std::max(oben, y);
    }
    void NimmKasten(const Weltkasten& k) {
        links = std::min(links, k.links);
        rechts = std::max(rechts, k.rechts);
        unten = std::min(unten, k.unten);
        oben = std::max(oben, k.oben);
    }
    [[nodiscard]] bool Leer() const { return !(links <= rechts && unten <= oben); }
    [[nodiscard]] bool BeruehrtKasten(const Weltkasten& k) const {
        return links <= k.rechts && k.links <= rechts && unten <= k.oben && k.unten <= oben;
    }
};

/// Touches everything.
inline constexpr Weltkasten kGanzeWelt{
    -std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};

}  // namespace zrw
