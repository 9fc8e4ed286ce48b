// Rectangles on a surface, empty ones included.
#pragma once

#include <algorithm>
#include <cstdint>

namespace zrw {

/// Rectangle on a surface [dots]; `rechts` and `unten` lie on it.
struct Rechteck {
    std::int32_t links = 0;
    std::int32_t oben = 0;
    std::int32_t rechts = 0;
    std::int32_t unten = 0;
    friend bool operator==(const Rechteck&, const Rechteck&) = default;
};

inline constexpr Rechteck kKeinRechteck{1, 1, 0, 0};

[[nodiscard]] constexpr bool Leer(const Rechteck& r) {
    return r.links > r.rechts || r.oben > r.unten;
}

/// The smallest one round both.
[[nodiscard]] constexpr Rechteck Vereint(const Rechteck& a, const Rechteck& b) {
    if (Leer(a)) return b;
    if (Leer(b)) return a;
    return {std::min(a.links, b.links), std::min(a.oben, b.oben), std::max(a.rechts, b.rechts),
            std::max(a.unten, b.unten)};
}

[[nodiscard]] constexpr Rechteck Geschnitten(const Rechteck& a, const Rechteck& b) {
    return {std::max(a.links, b.links), std::max(a.oben, b.oben), std::min(a.rechts, b.rechts),
            std::min(a.unten, b.unten)};
}

/// Whether all of the inner one lies in the outer one. @param innen not empty
[[nodiscard]] constexpr bool Enthaelt(const Rechteck& aussen, const Rechteck& innen) {
    return innen.links >= aussen.links && innen.oben >= aussen.oben && innen.rechts <= aussen.rechts &&
           innen.unten <= aussen.unten;
}

/// Which of 64 dots of a row lie between its left and right side, one bit each. @param x of the first one
[[nodiscard]] constexpr std::uint64_t Darin(std::int64_t x, const Rechteck& r) {
    const std::int64_t von = std::clamp<std::int64_t>(r.links - x, 0, 64);
    const std::int64_t bis = std::clamp<std::int64_t>(r.rechts - x + 1, 0, 64);
    if (von >= bis) return 0;
    return ~std::uint64_t{0} >> (64 - (bis - von)) << von;
}

}  // namespace zrw
