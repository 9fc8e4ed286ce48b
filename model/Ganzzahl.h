// Arithmetic on picture coordinates that is defined for every value: picture files and extreme zooms bring
// positions up to the ends of 64 bits, and none of them may overflow.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace zrw {

/// First absolute value [px] at which a figure lies beyond what a drawing surface can address.
inline constexpr std::int64_t kZeichengrenze = 2147483647;

[[nodiscard]] constexpr bool ImZeichenbereich(std::int64_t v) {
    return v > -kZeichengrenze && v < kZeichengrenze;
}

/// Nearest integer, halves to the even neighbour. Values beyond 64 bits stop at the end of the range and
/// not-a-number becomes its lower end: both lie outside the drawable range.
[[nodiscard]] inline std::int64_t RundeZuInt64(double v) {
    // Adding 1.5 * 2^52 pushes the fraction out of the mantissa, so the addition itself rounds half to even.
    // The library's rounding calls cost ten times as much, and every figure is rounded after each zoom.
    constexpr double kSchieber = 6755399441055744.0;
    constexpr double kGrenze = 2251799813685248.0;  // 2^51
    if (v > -kGrenze && v < kGrenze) return static_cast<std::int64_t>((v + kSchieber) - kSchieber);
    if (std::isnan(v)) return std::numeric_limits<std::int64_t>::min();
    if (v >= 9223372036854775808.0) return std::numeric_limits<std::int64_t>::max();
    if (v <= -9223372036854775808.0) return std::numeric_limits<std::int64_t>::min();
    return static_cast<std::int64_t>(std::nearbyint(v));
}

/// a + b, stopping at the ends of the range.
[[nodiscard]] constexpr std::int64_t Summe(std::int64_t a, std::int64_t b) {
    constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
    constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
    if (b > 0 && a > kMax - b) return kMax;
    if (b < 0 && a < kMin - b) return kMin;
    return a + b;
}

/// a - b, stopping at the ends of the range.
[[nodiscard]] constexpr std::int64_t Differenz(std::int64_t a, std::int64_t b) {
    constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
    constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
    if (b < 0 && a > kMax + b) return kMax;
    if (b > 0 && a < kMin + b) return kMin;
    return a - b;
}

}  // namespace zrw
