// Eight neighbouring pixels at a time, for processors that can (AVX2). Only for sources that are built for
// such processors; every function that has such vectors is built for them: others hand them over in memory.
#pragma once

#include <immintrin.h>

#include <cstdint>
#include <cstring>

namespace zrw {

/// One number for each of eight pixels.
using Achtfach = std::uint32_t __attribute__((vector_size(32)));
/// Two numbers for each of them: of its colours, or the same one twice.
using Sechzehn = std::uint16_t __attribute__((vector_size(32)));
using SechzehnMitVorzeichen = std::int16_t __attribute__((vector_size(32)));

__attribute__((target("avx2"))) inline Sechzehn LiesSechzehn(const void* p) {
    Sechzehn v;
    std::memcpy(&v, p, sizeof v);
    return v;
}

__attribute__((target("avx2"))) inline void SchreibeAcht(std::uint32_t* p, Sechzehn v) {
    std::memcpy(p, &v, sizeof v);
}

__attribute__((target("avx2"))) inline Sechzehn JedesPixel(std::uint32_t v) {
    return reinterpret_cast<Sechzehn>(Achtfach{} + v);
}

struct Achtfarbe {
    Sechzehn rotBlau;
    Sechzehn rest;
};

__attribute__((target("avx2"))) inline Achtfarbe Achtmal(std::uint32_t farbe) {
    return {JedesPixel(farbe & 0x00FF00FFU), JedesPixel(farbe >> 8U & 0x00FF00FFU)};
}

/// The same times 128, as `Darauf` wants it.
__attribute__((target("avx2"))) inline Achtfarbe Mischfarbe(std::uint32_t farbe) {
    const Achtfarbe f = Achtmal(farbe);
    return {f.rotBlau << 7, f.rest << 7};
}

/// @return (a * b + 2^14) / 2^15, rounded down; both have a sign
__attribute__((target("avx2"))) inline Sechzehn MalGerundet(Sechzehn a, Sechzehn b) {
    return reinterpret_cast<Sechzehn>(
        _mm256_mulhrs_epi16(reinterpret_cast<__m256i>(a), reinterpret_cast<__m256i>(b)));
}

/// A colour over eight pixels: what is there, and of the difference as much as is covered. @param a its
/// shares
__attribute__((target("avx2"))) inline Sechzehn Darauf(Sechzehn unten, const Achtfarbe& mischfarbe,
                                                       Sechzehn a) {
    const Sechzehn rb = unten & 0xFF;
    const Sechzehn g = unten >> 8;
    const Sechzehn neuesRb = rb + MalGerundet(mischfarbe.rotBlau - (rb << 7), a);
    const Sechzehn neuesG = g + MalGerundet(mischfarbe.rest - (g << 7), a);
    return neuesRb | neuesG << 8 | JedesPixel(0xFF000000U);
}

}  // namespace zrw
