#include "output/Breitpinsel.h"

// Windows aligns the stack to 16 bytes, and compilers for it do not mind that these vectors need more.
#if defined(__x86_64__) && !defined(_WIN32)

#include <immintrin.h>

#include <cstddef>
#include <cstring>

namespace zrw {
namespace {

/// One number for each of eight pixels.
using Achtfach = std::uint32_t __attribute__((vector_size(32)));
/// Two numbers for each of them: of its colours, or the same one twice.
using Sechzehn = std::uint16_t __attribute__((vector_size(32)));
using SechzehnMitVorzeichen = std::int16_t __attribute__((vector_size(32)));

constexpr std::int64_t kGruppe = 8;
constexpr std::int64_t kViererJeGruppe = 2;
constexpr std::uint32_t kUndurchsichtig = 0xFF000000U;

// Every function that has such vectors is built for these processors: others hand them over in memory.

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

__attribute__((target("avx2"))) inline void SetzeUeber(std::uint32_t* p, const Achtfarbe& farbe,
                                                       const Acht* anteile) {
    const Sechzehn a = LiesSechzehn(anteile);
    const Sechzehn unten = LiesSechzehn(p);
    const Sechzehn rb = ((unten << 8) + (farbe.rotBlau - (unten & 0xFF)) * a + 0x80) >> 8;
    const Sechzehn g = ((unten & 0xFF00) + (farbe.rest - (unten >> 8)) * a + 0x80) & 0xFF00;
    SchreibeAcht(p, rb | g | JedesPixel(kUndurchsichtig));
}

/// @return pixels that have become full, one bit each
__attribute__((target("avx2"))) inline std::uint64_t SetzeHinter(std::uint32_t* p, const Achtfarbe& farbe,
                                                                 const Acht* anteile) {
    constexpr int kVoll = 255;
    constexpr auto kRest = static_cast<std::int16_t>(kSatt);
    const Sechzehn vorn = LiesSechzehn(p);
    const Achtfach gedeckt = reinterpret_cast<Achtfach>(vorn) >> 24;
    const Sechzehn frei = kVoll - reinterpret_cast<Sechzehn>(gedeckt | gedeckt << 16);
    Sechzehn n = (LiesSechzehn(anteile) * frei + 128) >> 8;
    const auto bits = reinterpret_cast<__m256i>(n);
    if (_mm256_testz_si256(bits, bits) != 0) return 0;
    const auto bleibt = reinterpret_cast<SechzehnMitVorzeichen>(frei - n);
    const auto satt = reinterpret_cast<Sechzehn>(bleibt <= kRest);
    n += reinterpret_cast<Sechzehn>(bleibt) & satt;
    const Sechzehn rb = farbe.rotBlau * n + 0x80;
    const Sechzehn g = farbe.rest * n + 0x80;
    const Sechzehn dazu = ((rb + (rb >> 8)) >> 8) | ((g + (g >> 8)) & 0xFF00);
    SchreibeAcht(
        p, reinterpret_cast<Sechzehn>(reinterpret_cast<Achtfach>(vorn) + reinterpret_cast<Achtfach>(dazu)));
    const Sechzehn neu = satt & reinterpret_cast<Sechzehn>(frei != 0);
    return static_cast<unsigned>(_mm256_movemask_ps(reinterpret_cast<__m256>(neu)));
}

}  // namespace

bool KannAchtPixel() {
    static const bool kann = __builtin_cpu_supports("avx2") != 0;
    return kann;
}

__attribute__((target("avx2"))) void SetzeMaskeAcht(const Deckmaske& m, const Rechteck& umfang,
                                                    const Rechteck& teil, std::uint32_t farbe,
                                                    const Darueber& ziel) {
    const Achtfarbe achtfarbe{JedesPixel(farbe & 0x00FF00FFU), JedesPixel(farbe >> 8U & 0x00FF00FFU)};
    std::uint32_t* zeile = ziel.pixel + static_cast<std::size_t>(teil.oben) * ziel.zeile + umfang.links;
    for (std::int64_t y = teil.oben; y <= teil.unten; ++y, zeile += ziel.zeile) {
        const Acht* vier = m.Vierer(static_cast<std::size_t>(y - umfang.oben));
        for (std::int64_t x = 0; x <= umfang.rechts - umfang.links; x += kGruppe, vier += kViererJeGruppe)
            SetzeUeber(zeile + x, achtfarbe, vier);
    }
}

__attribute__((target("avx2"))) void SetzeMaskeAcht(const Deckmaske& m, const Rechteck& umfang,
                                                    const Rechteck& teil, std::uint32_t farbe,
                                                    const Dahinter& ziel) {
    constexpr std::int64_t kWort = 64;
    const Achtfarbe achtfarbe{JedesPixel(farbe & 0x00FF00FFU), JedesPixel(farbe >> 8U & 0x00FF00FFU)};
    for (std::int64_t y = teil.oben; y <= teil.unten; ++y) {
        const auto zeile = static_cast<std::size_t>(y - umfang.oben);
        const Acht* vier = m.Vierer(zeile);
        const std::uint64_t* bits = m.Bits(zeile);
        std::uint32_t* pixel = ziel.pixel + static_cast<std::size_t>(y) * ziel.zeile;
        for (std::int64_t x = umfang.links; x <= umfang.rechts; x += kWort) {
            std::uint64_t offen = *bits++ & ziel.Freie(x, y);
            std::uint64_t volle = 0;
            for (std::int64_t i = 0; offen != 0; i += kGruppe, offen >>= kGruppe) {
                if ((offen & 0xFFU) == 0) continue;
                volle |= SetzeHinter(pixel + x + i, achtfarbe, vier + i / kGruppe * kViererJeGruppe) << i;
            }
            if (volle != 0) ziel.deckung.DeckeAb(x, static_cast<std::size_t>(y), volle);
            vier += kWort / kGruppe * kViererJeGruppe;
        }
    }
}

}  // namespace zrw

#else

namespace zrw {

bool KannAchtPixel() {
    return false;
}

void SetzeMaskeAcht(const Deckmaske& /*m*/, const Rechteck& /*umfang*/, const Rechteck& /*teil*/,
                    std::uint32_t /*farbe*/, const Darueber& /*ziel*/) {}

void SetzeMaskeAcht(const Deckmaske& /*m*/, const Rechteck& /*umfang*/, const Rechteck& /*teil*/,
                    std::uint32_t /*farbe*/, const Dahinter& /*ziel*/) {}

}  // namespace zrw

#endif
