#include "output/Breitstrich.h"

// Windows aligns the stack to 16 bytes, and compilers for it do not mind that these vectors need more.
#if defined(__x86_64__) && !defined(_WIN32)

#include <algorithm>
#include <cstddef>

#include "output/Achtpixel.h"
#include "output/Breitpinsel.h"

namespace zrw {
namespace {

/// Two times four pixels, each four in a row of their own.
struct Viererpaar {
    std::uint32_t* erste;
    std::uint32_t* zweite;
};

__attribute__((target("avx2"))) inline void MischePaar(const Viererpaar& p, const Achtfarbe& mischfarbe,
                                                       Sechzehn a) {
    auto* const erste = reinterpret_cast<__m128i*>(p.erste);
    auto* const zweite = reinterpret_cast<__m128i*>(p.zweite);
    const auto unten = reinterpret_cast<Sechzehn>(_mm256_loadu2_m128i(zweite, erste));
    _mm256_storeu2_m128i(zweite, erste, reinterpret_cast<__m256i>(Darauf(unten, mischfarbe, a)));
}

__attribute__((target("avx2"))) inline Sechzehn Jede(std::int32_t v) {
    return Sechzehn{} + static_cast<std::uint16_t>(v);
}

/// The numbers that are not negative, up to a limit.
__attribute__((target("avx2"))) inline Sechzehn Hoechstens(Sechzehn v, Sechzehn grenze) {
    return reinterpret_cast<Sechzehn>(
        _mm256_max_epi16(_mm256_min_epi16(reinterpret_cast<__m256i>(v), reinterpret_cast<__m256i>(grenze)),
                         _mm256_setzero_si256()));
}

/// @param wahl for each byte of four pixels: which of theirs, or 0x80 for none
__attribute__((target("avx2"))) inline Sechzehn WaehleBytes(__m256i v, __m128i wahl) {
    return reinterpret_cast<Sechzehn>(_mm256_shuffle_epi8(v, _mm256_broadcastsi128_si256(wahl)));
}

/// How much of each pixel lies in dashes, eight at a time. A solid stroke has none to ask.
template <bool Gestrichelt>
class Dashreihe {
  public:
    /// @param jeVierer pixels along the stroke that four beside each other have: 1 or 4
    __attribute__((target("avx2"))) Dashreihe(const Pinselstrich& s, std::int64_t m, int jeVierer) {
        if constexpr (Gestrichelt) {
            Dashlauf lauf(s, m);
            for (int i = 0; i < kStellen; i += kStellen / 2 / jeVierer) {
                const auto ort = static_cast<std::uint16_t>(lauf.NimmOrt());
                for (int j = 0; j < kStellen / 2 / jeVierer; ++j)
                    ort_[i + j] = ort;
            }
            const std::int32_t weiter = 2 * jeVierer * kGanzesPixel % s.periode;
            schritt_ = Jede(s.umgekehrt ? s.periode - weiter : weiter);
            gesetzt_ = Jede(s.gesetzt);
            periode_ = Jede(s.periode);
        }
    }
    /// Of the next pixels.
    [[nodiscard]] __attribute__((target("avx2"))) Sechzehn Anteile() const {
        return Hoechstens(gesetzt_ - ort_, Jede(kGanzesPixel)) +
               Hoechstens(ort_ + kGanzesPixel - periode_, gesetzt_);
    }
    __attribute__((target("avx2"))) void GehWeiter() {
        if constexpr (Gestrichelt) {
            ort_ += schritt_;
            const auto zuWeit =
                _mm256_cmpgt_epi16(reinterpret_cast<__m256i>(periode_), reinterpret_cast<__m256i>(ort_));
            ort_ -=
                reinterpret_cast<Sechzehn>(_mm256_andnot_si256(zuWeit, reinterpret_cast<__m256i>(periode_)));
        }
    }

  private:
    static constexpr int kStellen = 16;

    Sechzehn ort_{};  ///< from the beginning of a dash [1/256 px]
    Sechzehn schritt_{};
    Sechzehn gesetzt_{};
    Sechzehn periode_{};
};

/// @return a * b / 256, rounded down; both are at most 256
__attribute__((target("avx2"))) inline Sechzehn MalAnteile(Sechzehn a, Sechzehn b) {
    return reinterpret_cast<Sechzehn>(
        _mm256_mulhi_epu16(reinterpret_cast<__m256i>(a << 7), reinterpret_cast<__m256i>(b << 1)));
}

/// Two rows at a time, four pixels of each.
template <bool Gestrichelt>
__attribute__((target("avx2"))) std::int64_t ZieheSteil(const Pinselstrich& s, std::int64_t von,
                                                        std::int64_t bis, std::uint32_t farbe,
                                                        const Darueber& ziel) {
    const Sechzehn stellen{0, 0, 256, 256, 512, 512, 768, 768, 0, 0, 256, 256, 512, 512, 768, 768};
    const Sechzehn erster{0xFFFF, 0xFFFF, 0, 0, 0, 0, 0, 0, 0xFFFF, 0xFFFF};
    const __m128i hinterKomma = _mm_set1_epi16(static_cast<std::int16_t>(0x8003));
    const Achtfarbe mischfarbe = Mischfarbe(farbe);
    const Sechzehn breite = Jede(s.dicke) - stellen;
    const std::int64_t schritt = s.Schritt();
    std::int64_t v = s.Oberkante(von);
    __m256i kante = _mm256_set_epi64x(v + schritt, v + schritt, v, v);
    const __m256i weiter = _mm256_set1_epi64x(2 * schritt);
    Dashreihe<Gestrichelt> dashes(s, von, 1);
    std::uint32_t* zeile = ziel.pixel + static_cast<std::size_t>(von) * ziel.zeile;
    std::int64_t m = von;
    for (; m < bis; m += 2, v += 2 * schritt, zeile += 2 * ziel.zeile) {
        const Sechzehn beginn = WaehleBytes(kante, hinterKomma);
        Sechzehn a = Hoechstens(beginn + breite, Jede(kGanzesPixel)) - (beginn & erster);
        if constexpr (Gestrichelt) a = MalAnteile(a, dashes.Anteile());
        MischePaar({zeile + (v >> 32), zeile + ziel.zeile + ((v + schritt) >> 32)}, mischfarbe, a);
        kante = _mm256_add_epi64(kante, weiter);
        dashes.GehWeiter();
    }
    return m;
}

/// Where four columns of a stroke lie: rows that it touches.
struct Vierspalten {
    /// @param v upper edge of the first of them
    Vierspalten(const Pinselstrich& s, std::int64_t v, std::int64_t schritt)
        : von(std::min(v, v + 3 * schritt) >> 32),
          anzahl((((std::max(v, v + 3 * schritt) >> 24) + s.dicke - 1) >> 8) - von + 1) {}
    std::int64_t von;
    std::int64_t anzahl;
};

/// Eight columns at a time, four of them from a row of their own on: together they would touch more rows.
template <bool Gestrichelt>
__attribute__((target("avx2"))) std::int64_t ZieheFlach(const Pinselstrich& s, std::int64_t von,
                                                        std::int64_t bis, std::uint32_t farbe,
                                                        const Darueber& ziel) {
    constexpr std::int64_t kAcht = 8;
    const Achtfarbe mischfarbe = Mischfarbe(farbe);
    const std::int64_t schritt = s.Schritt();
    std::int64_t v = s.Oberkante(von);
    const __m256i stellen = _mm256_set_epi64x(3 * schritt, 2 * schritt, schritt, 0);
    const __m128i zweimal = _mm_set_epi8(13, 12, 13, 12, 9, 8, 9, 8, 5, 4, 5, 4, 1, 0, 1, 0);
    // Whole pixels of the highest of four: the first or the last of them, in their second byte.
    const __m128i ersteZeile = _mm_set1_epi16(static_cast<std::int16_t>(schritt >= 0 ? 0x0180 : 0x0D80));
    Dashreihe<Gestrichelt> dashes(s, von, 4);
    std::int64_t m = von;
    for (; m + kAcht - 1 <= bis; m += kAcht, v += kAcht * schritt) {
        const __m256i links = _mm256_add_epi64(_mm256_set1_epi64x(v), stellen);
        const __m256i rechts = _mm256_add_epi64(_mm256_set1_epi64x(v + 4 * schritt), stellen);
        const __m256i gemischt =
            _mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(_mm256_srli_epi64(links, 24)),
                                                  _mm256_castsi256_ps(_mm256_srli_epi64(rechts, 24)), 0x88));
        const __m256i kante = _mm256_permute4x64_epi64(gemischt, 0xD8);
        Sechzehn beginn = WaehleBytes(kante, zweimal) - WaehleBytes(kante, ersteZeile);
        Sechzehn ende = beginn + static_cast<std::uint16_t>(s.dicke);
        const Vierspalten vorn(s, v, schritt);
        const Vierspalten hinten(s, v + 4 * schritt, schritt);
        Viererpaar p{ziel.pixel + static_cast<std::size_t>(vorn.von) * ziel.zeile + m,
                     ziel.pixel + static_cast<std::size_t>(hinten.von) * ziel.zeile + m + 4};
        Sechzehn gesetzt{};
        if constexpr (Gestrichelt) gesetzt = dashes.Anteile();
        for (std::int64_t i = std::max(vorn.anzahl, hinten.anzahl); i > 0; --i) {
            Sechzehn a = Hoechstens(ende, Jede(kGanzesPixel)) - Hoechstens(beginn, Jede(kGanzesPixel));
            if constexpr (Gestrichelt) a = MalAnteile(a, gesetzt);
            MischePaar(p, mischfarbe, a);
            beginn -= kGanzesPixel;
            ende -= kGanzesPixel;
            p = {p.erste + ziel.zeile, p.zweite + ziel.zeile};
        }
        dashes.GehWeiter();
    }
    return m;
}

/// Lowest and highest pixel across the stroke. @param bis the last place along it
struct Querlage {
    Querlage(const Pinselstrich& s, std::int64_t von, std::int64_t bis)
        : erster(std::min(s.Oberkante(von), s.Oberkante(bis)) >> 32),
          letzter(((std::max(s.Oberkante(von), s.Oberkante(bis)) >> 24) + s.dicke - 1) >> 8) {}
    std::int64_t erster;
    std::int64_t letzter;
};

/// Places in dashes have to fit into 16 bits, twice.
bool Passt(const Pinselstrich& s) {
    constexpr std::int32_t kLaengste = 1 << 14;
    return KannAchtPixel() && s.periode < kLaengste;
}

}  // namespace

std::int64_t ZieheSteilAcht(const Pinselstrich& s, std::int64_t von, std::int64_t bis, std::uint32_t farbe,
                            const Darueber& ziel) {
    constexpr std::int32_t kDickster = 3 * kGanzesPixel;
    constexpr std::int64_t kNachbarn = 3;  ///< drawn with each pixel, to its right
    if (s.dicke > kDickster || !Passt(s)) return von;
    const Querlage quer(s, von, bis);
    if (quer.erster < ziel.bereich.links || quer.letzter + kNachbarn > ziel.bereich.rechts) return von;
    return s.gesetzt == 0 ? ZieheSteil<false>(s, von, bis, farbe, ziel)
                          : ZieheSteil<true>(s, von, bis, farbe, ziel);
}

std::int64_t ZieheFlachAcht(const Pinselstrich& s, std::int64_t von, std::int64_t bis, std::uint32_t farbe,
                            const Darueber& ziel) {
    if (!Passt(s)) return von;
    // Four columns may touch a row less than those beside them, but are drawn with as many.
    const Querlage quer(s, von, bis);
    if (quer.erster < ziel.bereich.oben || quer.letzter >= ziel.bereich.unten) return von;
    return s.gesetzt == 0 ? ZieheFlach<false>(s, von, bis, farbe, ziel)
                          : ZieheFlach<true>(s, von, bis, farbe, ziel);
}

}  // namespace zrw

#else

namespace zrw {

std::int64_t ZieheSteilAcht(const Pinselstrich& /*s*/, std::int64_t von, std::int64_t /*bis*/,
                            std::uint32_t /*farbe*/, const Darueber& /*ziel*/) {
    return von;
}

std::int64_t ZieheFlachAcht(const Pinselstrich& /*s*/, std::int64_t von, std::int64_t /*bis*/,
                            std::uint32_t /*farbe*/, const Darueber& /*ziel*/) {
    return von;
}

}  // namespace zrw

#endif
