// Four neighbouring pixels at a time, in vectors that the compiler makes into the instructions of whatever
// processor it builds for. Each comes out as it would alone.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace zrw {

/// One number for each pixel.
using Vier = std::uint32_t __attribute__((vector_size(16)));
/// Two numbers for each pixel: of its colours, or the same one twice.
using Acht = std::uint16_t __attribute__((vector_size(16)));
using AchtMitVorzeichen = std::int16_t __attribute__((vector_size(16)));

[[nodiscard]] inline Acht AlsAcht(Vier v) {
    return std::bit_cast<Acht>(v);
}
[[nodiscard]] inline Vier AlsVier(Acht v) {
    return std::bit_cast<Vier>(v);
}
/// @param v less than 65536 each
[[nodiscard]] inline Acht Zweimal(Vier v) {
    return AlsAcht(v | v << 16);
}
[[nodiscard]] inline Acht Ueberall(std::int32_t v) {
    return Acht{} + static_cast<std::uint16_t>(v);
}
/// The numbers that are not negative, up to 256.
[[nodiscard]] inline Acht BisGanz(Acht v) {
    const auto w = std::bit_cast<AchtMitVorzeichen>(v);
    const AchtMitVorzeichen ganz = AchtMitVorzeichen{} + std::int16_t{256};
    const AchtMitVorzeichen oben = w < ganz ? w : ganz;
    return std::bit_cast<Acht>(oben > 0 ? oben : AchtMitVorzeichen{});
}
/// All bits of the first pixels, none of the others. @param anzahl 0 to 4
[[nodiscard]] inline Acht ErstePixel(std::int64_t anzahl) {
    constexpr Vier kStellen{0, 1, 2, 3};
    const Vier grenze = Vier{} + static_cast<std::uint32_t>(anzahl);
    return std::bit_cast<Acht>(kStellen < grenze);
}

[[nodiscard]] inline Vier LiesVier(const std::uint32_t* p) {
    Vier v;
    std::memcpy(&v, p, sizeof v);
    return v;
}
inline void SchreibeVier(std::uint32_t* p, Vier v) {
    std::memcpy(p, &v, sizeof v);
}
[[nodiscard]] inline bool AlleNull(Acht v) {
    using Zwei = std::uint64_t __attribute__((vector_size(16)));
    const auto w = std::bit_cast<Zwei>(v);
    return (w[0] | w[1]) == 0;
}

/// One bit for each pixel whose bits are set, the lowest one for the first. @param v all bits or none of each
[[nodiscard]] inline std::uint64_t Pixelbits(Acht v) {
    using Zwei = std::uint64_t __attribute__((vector_size(16)));
    constexpr Vier kBits{1, 2, 4, 8};
    const auto w = std::bit_cast<Zwei>(AlsVier(v) & kBits);
    const std::uint64_t bits = w[0] | w[1];
    return (bits | bits >> 32) & 0xFU;
}

/// A colour for four pixels.
struct Vierfarbe {
    explicit Vierfarbe(std::uint32_t f)
        : einzeln(f),
          rotBlau(AlsAcht(Vier{} + (f & 0x00FF00FFU))),
          rest(AlsAcht(Vier{} + (f >> 8 & 0x00FF00FFU))) {}
    std::uint32_t einzeln;
    Acht rotBlau;
    Acht rest;  ///< green, and the highest byte
};

}  // namespace zrw
