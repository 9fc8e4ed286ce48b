#include "output/Glattpinsel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <type_traits>
#include <utility>

#include "output/Breitpinsel.h"
#include "output/Breitstrich.h"
#include "output/Pinselstrich.h"
#include "output/Zielbild.h"

namespace zrw {
namespace {

/// Without the library call that rounding would be for each stroke. @param v not negative
std::int32_t Gerundet(double v) {
    return static_cast<std::int32_t>(v + 0.5);  // NOLINT(bugprone-incorrect-roundings)
}

/// Longer strokes are worked out step by step in floating point.
constexpr std::int64_t kLang = std::int64_t{1} << 20U;
/// Across broader ones, places do not fit into 16 bits.
constexpr std::int32_t kBreit = 64 * kGanzesPixel;
constexpr unsigned kGedeckt = 255;
constexpr std::int32_t kVier = 4;

constexpr std::uint32_t kRotBlau = 0x00FF00FFU;
constexpr std::uint32_t kGruen = 0x0000FF00U;
constexpr std::uint32_t kDeckend = 0xFF000000U;

std::uint32_t MalAnteil(std::uint32_t werte, unsigned n) {
    const std::uint32_t mal = (werte & kRotBlau) * n + 0x00800080U;
    return ((mal + (mal >> 8U & kRotBlau)) >> 8U) & kRotBlau;
}

/// A colour over what is there. @param a its share, 1 to 256
inline std::uint32_t Gemischt(std::uint32_t unten, std::uint32_t farbe, std::int32_t a) {
    const auto oben = static_cast<std::uint32_t>(a);
    const auto rest = static_cast<std::uint32_t>(kGanzesPixel - a);
    const std::uint32_t rb =
        ((farbe & kRotBlau) * oben + (unten & kRotBlau) * rest + 0x00800080U) >> 8U & kRotBlau;
    const std::uint32_t g = ((farbe & kGruen) * oben + (unten & kGruen) * rest + 0x00008000U) >> 8U & kGruen;
    return kDeckend | rb | g;
}

/// A colour times n / 255, rounded.
std::uint32_t FarbeMal(std::uint32_t farbe, unsigned n) {
    return MalAnteil(farbe, n) | MalAnteil(farbe >> 8U & 0xFFU, n) << 8U;
}

}  // namespace

inline void Darueber::FuelleBlock(const Rechteck& r, std::uint32_t farbe) const {
    FuelleZeilen(pixel + static_cast<std::size_t>(r.oben) * zeile + r.links, zeile, r.rechts - r.links + 1,
                 r.unten - r.oben + 1, kDeckend | farbe);
}

inline void Darueber::SetzePixel(std::uint32_t* p, std::int64_t /*y*/, const Vierfarbe& farbe,
                                 std::int32_t a) const {
    *p = Gemischt(*p, farbe.einzeln, a);
}

inline void Darueber::SetzeVier(std::uint32_t* p, std::int64_t /*y*/, const Vierfarbe& farbe, Acht a) const {
    // 256 times what is there, and `a` times what the colour differs: modulo 2^16 as good as both parts.
    const Acht unten = AlsAcht(LiesVier(p));
    const Acht rb = ((unten << 8) + (farbe.rotBlau - (unten & 0xFF)) * a + 0x80) >> 8;
    const Acht g = ((unten & 0xFF00) + (farbe.rest - (unten >> 8)) * a + 0x80) & 0xFF00;
    SchreibeVier(p, AlsVier(rb | g) | kDeckend);
}

/// @param neue which pixels from there on have become full
inline void Dahinter::Decke(const std::uint32_t* p, std::int64_t y, std::uint64_t neue) const {
    const auto reihe = static_cast<std::size_t>(y);
    deckung.DeckeAb(p - (pixel + reihe * zeile), reihe, neue);
}

inline void Dahinter::SetzePixel(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe,
                                 std::int32_t a) const {
    const unsigned frei = kGedeckt - (*p >> 24U);
    if (frei == 0) return;
    unsigned n = (static_cast<unsigned>(a) * frei + kGanzesPixel / 2) / kGanzesPixel;
    if (frei - n <= kSatt) {
        n = frei;
        Decke(p, y, 1);
    }
    *p += FarbeMal(farbe.einzeln & ~kDeckend, n) + (n << 24U);
}

inline void Dahinter::FuelleBlock(const Rechteck& r, std::uint32_t farbe) const {
    const Vierfarbe vierfarbe(farbe);
    for (std::int64_t y = r.oben; y <= r.unten; ++y) {
        for (std::int64_t x = r.links; x <= r.rechts; ++x)
            SetzePixel(pixel + static_cast<std::size_t>(y) * zeile + x, y, vierfarbe, kGanzesPixel);
    }
}

inline void Dahinter::SetzeVier(std::uint32_t* p, std::int64_t y, const Vierfarbe& farbe, Acht a) const {
    const Vier vorn = LiesVier(p);
    const Acht frei = kGedeckt - Zweimal(vorn >> 24);
    Acht n = (a * frei + kGanzesPixel / 2) >> 8;
    if (AlleNull(n)) return;
    const auto bleibt = std::bit_cast<AchtMitVorzeichen>(frei - n);
    const Acht satt = std::bit_cast<Acht>(bleibt <= std::int16_t{kSatt});
    n += std::bit_cast<Acht>(bleibt) & satt;
    const Acht rb = farbe.rotBlau * n + 0x80;
    const Acht g = farbe.rest * n + 0x80;
    SchreibeVier(p, vorn + AlsVier(((rb + (rb >> 8)) >> 8) | ((g + (g >> 8)) & 0xFF00)));
    const Acht neu = satt & std::bit_cast<Acht>(frei != 0);
    if (const std::uint64_t volle = Pixelbits(neu); volle != 0) Decke(p, y, volle);
}

inline void Abdruck::SetzePixel(std::uint32_t* p, std::int64_t /*y*/, const Vierfarbe& /*farbe*/,
                                std::int32_t a) {
    *p = static_cast<std::uint32_t>(a) * 0x10001U;
}

inline void Abdruck::SetzeVier(std::uint32_t* p, std::int64_t /*y*/, const Vierfarbe& /*farbe*/, Acht a) {
    SchreibeVier(p, LiesVier(p) + AlsVier(a));
}

namespace {

/// One step along, pixel by pixel, those in the tile.
template <bool Senkrecht, class Ziel>
void SetzeQuerAmRand(const Pinselstrich& s, std::int64_t m, std::int64_t oben, std::int32_t anteil,
                     const Vierfarbe& farbe, const Ziel& ziel) {
    const std::int64_t von = Senkrecht ? ziel.bereich.links : ziel.bereich.oben;
    const std::int64_t bis = Senkrecht ? ziel.bereich.rechts : ziel.bereich.unten;
    std::int64_t q = oben >> 8;
    std::int32_t rest = s.dicke;
    std::int32_t a = std::min(kGanzesPixel - static_cast<std::int32_t>(oben & (kGanzesPixel - 1)), rest);
    for (; rest > 0; ++q, rest -= a, a = std::min(kGanzesPixel, rest)) {
        const std::int32_t hier = a * anteil >> 8;
        if (q < von || q > bis || hier == 0) continue;
        const std::int64_t x = Senkrecht ? q : m;
        const std::int64_t y = Senkrecht ? m : q;
        ziel.SetzePixel(ziel.pixel + static_cast<std::size_t>(y) * ziel.zeile + x, y, farbe, hier);
    }
}

/// One step of a stroke that runs down: the pixels of a row, four at a time.
template <class Ziel>
inline void SetzeInZeile(const Pinselstrich& s, std::int64_t m, std::int64_t oben, std::int32_t anteil,
                         const Vierfarbe& farbe, const Ziel& ziel) {
    constexpr Acht kStellen{0, 0, 256, 256, 512, 512, 768, 768};
    constexpr Acht kErster{0xFFFF, 0xFFFF};
    const std::int64_t q = oben >> 8;
    const auto beginn = static_cast<std::int32_t>(oben & (kGanzesPixel - 1));
    const std::int32_t bis = beginn + s.dicke;
    const std::int32_t weite = (bis + kVier * kGanzesPixel - 1) / (kVier * kGanzesPixel) * kVier;
    if (q < ziel.bereich.links || q + weite - 1 > ziel.bereich.rechts)
        return SetzeQuerAmRand<true>(s, m, oben, anteil, farbe, ziel);
    if (anteil == 0) return;
    std::uint32_t* p = ziel.pixel + static_cast<std::size_t>(m) * ziel.zeile + q;
    Acht vorher = Ueberall(beginn) & kErster;
    for (std::int32_t i = 0; i < weite; i += kVier) {
        Acht a = BisGanz(Ueberall(bis - i * kGanzesPixel) - kStellen) - vorher;
        if (anteil != kGanzesPixel) a = (a * Ueberall(anteil)) >> 8;
        ziel.SetzeVier(p + i, m, farbe, a);
        vorher = Acht{};
    }
}

/// Four steps of a stroke that runs beside the rows: the pixels of some rows. @param anzahl of the steps that
/// it has @param v its upper edge at the first of them [2^-32 px]
template <class Ziel>
inline void SetzeInZeilen(const Pinselstrich& s, std::int64_t m, std::int64_t anzahl, std::int64_t v,
                          std::int64_t schritt, Dashlauf& lauf, const Vierfarbe& farbe, const Ziel& ziel) {
    std::array<std::int64_t, kVier> oben;
    for (std::size_t i = 0; i < kVier; ++i)
        oben[i] = (v + static_cast<std::int64_t>(i) * schritt) >> 24;
    const auto [klein, gross] = std::minmax(oben[0], oben[static_cast<std::size_t>(anzahl) - 1]);
    const std::int64_t von = klein >> 8;
    const std::int64_t bis = (gross + s.dicke - 1) >> 8;
    if (m + kVier - 1 > ziel.bereich.rechts || von < ziel.bereich.oben || bis > ziel.bereich.unten) {
        for (std::int64_t i = 0; i < anzahl; ++i)
            SetzeQuerAmRand<false>(s, m + i, oben[static_cast<std::size_t>(i)], lauf.NimmAnteil(), farbe,
                                   ziel);
        return;
    }
    const auto ab = [&](std::size_t i) {
        return static_cast<std::uint32_t>(oben[i] - von * kGanzesPixel) & 0xFFFFU;
    };
    Acht beginn = Zweimal(Vier{ab(0), ab(1), ab(2), ab(3)});
    Acht ende = beginn + static_cast<std::uint16_t>(s.dicke);
    // Where a pixel lies in a dash as a whole, its share is as it is: 256 times 256 does not fit.
    Acht ganz = ErstePixel(anzahl);
    Acht teil{};
    if (s.gesetzt != 0) {
        Vier dash{};
        for (int i = 0; i < kVier; ++i)
            dash[i] = static_cast<std::uint32_t>(lauf.NimmAnteil());
        const Acht anteil = Zweimal(dash) & ganz;
        ganz = std::bit_cast<Acht>(anteil == kGanzesPixel);
        teil = anteil & ~ganz;
    }
    std::uint32_t* p = ziel.pixel + static_cast<std::size_t>(von) * ziel.zeile + m;
    for (std::int64_t y = von; y <= bis; ++y, p += ziel.zeile) {
        Acht a = BisGanz(ende) - BisGanz(beginn);
        a = (a & ganz) | ((a * teil) >> 8);
        ziel.SetzeVier(p, y, farbe, a);
        beginn -= kGanzesPixel;
        ende -= kGanzesPixel;
    }
}

template <bool Senkrecht, class Ziel>
void ZieheStrich(const Pinselstrich& s, const Vierfarbe& farbe, const Ziel& ziel) {
    std::int64_t erster =
        std::max<std::int64_t>(s.anfang, Senkrecht ? ziel.bereich.oben : ziel.bereich.links);
    const std::int64_t letzter =
        std::min<std::int64_t>(s.ende, Senkrecht ? ziel.bereich.unten : ziel.bereich.rechts);
    if (erster > letzter) return;
    if (s.ende - s.anfang > kLang || s.dicke > kBreit) {
        Dashlauf lauf(s, erster);
        for (std::int64_t m = erster; m <= letzter; ++m) {
            const double quer = static_cast<double>(s.quer) + s.steigung * static_cast<double>(m - s.anfang);
            const auto oben = static_cast<std::int64_t>(std::floor(quer * kGanzesPixel)) + s.versatz;
            SetzeQuerAmRand<Senkrecht>(s, m, oben, lauf.NimmAnteil(), farbe, ziel);
        }
        return;
    }
    if constexpr (std::is_same_v<Ziel, Darueber>)
        erster = Senkrecht ? ZieheSteilAcht(s, erster, letzter, farbe.einzeln, ziel)
                           : ZieheFlachAcht(s, erster, letzter, farbe.einzeln, ziel);
    if (erster > letzter) return;
    Dashlauf lauf(s, erster);
    const std::int64_t schritt = s.Schritt();
    std::int64_t v = s.Oberkante(erster);
    if constexpr (Senkrecht) {
        for (std::int64_t m = erster; m <= letzter; ++m, v += schritt)
            SetzeInZeile(s, m, v >> 24, lauf.NimmAnteil(), farbe, ziel);
    } else {
        for (std::int64_t m = erster; m <= letzter; m += kVier, v += kVier * schritt)
            SetzeInZeilen(s, m, std::min<std::int64_t>(kVier, letzter - m + 1), v, schritt, lauf, farbe,
                          ziel);
    }
}

}  // namespace

template <class Ziel>
void ZieheLinie(Flaechenpunkt von, Flaechenpunkt nach, double breite, double dash, std::uint32_t farbe,
                const Ziel& ziel) {
    constexpr double kDash = kStrichlaenge + kStrichluecke;
    const std::int64_t dx = std::int64_t{nach.x} - von.x;
    const std::int64_t dy = std::int64_t{nach.y} - von.y;
    const bool senkrecht = std::llabs(dx) < std::llabs(dy);
    Pinselstrich s;
    s.anfang = senkrecht ? von.y : von.x;
    s.ende = senkrecht ? nach.y : nach.x;
    s.quer = senkrecht ? von.x : von.y;
    if (s.anfang > s.ende) {
        std::swap(s.anfang, s.ende);
        s.quer = senkrecht ? nach.x : nach.y;
        s.umgekehrt = true;
    }
    const std::int64_t laengs = senkrecht ? dy : dx;
    const std::int64_t quer = senkrecht ? dx : dy;
    const auto ganze = std::max(1, Gerundet(breite));
    if (quer == 0) {
        s.dicke = ganze * kGanzesPixel;  // along the rows: sharp
    } else {
        s.steigung = static_cast<double>(quer) / static_cast<double>(laengs);
        s.dicke = Gerundet(breite * std::sqrt(1.0 + s.steigung * s.steigung) * kGanzesPixel);
    }
    // Pens of an even width lie between two pixels.
    s.versatz = (ganze % 2 == 0 ? 0 : kGanzesPixel / 2) - s.dicke / 2;
    if (dash > 0.0) {
        s.gesetzt = Gerundet(kStrichlaenge * dash * kGanzesPixel);
        s.periode = Gerundet(kDash * dash * kGanzesPixel);
    }
    if (senkrecht) {
        ZieheStrich<true>(s, Vierfarbe(farbe), ziel);
    } else {
        ZieheStrich<false>(s, Vierfarbe(farbe), ziel);
    }
}

Deckmaske::Deckmaske(int links, int oben, int weite, int hoehe, std::span<const std::uint8_t> werte)
    : links_(links),
      oben_(oben),
      weite_(weite),
      hoehe_(hoehe),
      viererJeZeile_(((static_cast<std::size_t>(weite) + 7) / 8 * 8 + 2 * kPolster) / 4),
      worteJeZeile_((static_cast<std::size_t>(weite) + 63) / 64) {
    const auto w = static_cast<std::size_t>(weite);
    vierer_.resize(static_cast<std::size_t>(hoehe) * viererJeZeile_);
    bits_.resize(static_cast<std::size_t>(hoehe) * worteJeZeile_);
    for (std::size_t i = 0; i < w * static_cast<std::size_t>(hoehe); ++i) {
        if (werte[i] == 0) continue;
        const std::size_t x = i % w;
        // From 0..255 to 0..256.
        const auto anteil = static_cast<std::uint16_t>(werte[i] + (werte[i] >> 7));
        Acht& vier = vierer_[i / w * viererJeZeile_ + (x + kPolster) / 4];
        vier[x % 4 * 2] = vier[x % 4 * 2 + 1] = anteil;
        bits_[i / w * worteJeZeile_ + x / 64] |= std::uint64_t{1} << (x % 64);
    }
}

namespace {

/// Up to 64 pixels of a row. @param offen those that are to be drawn @param innen the tile has all of them
template <class Ziel>
inline void SetzeMaskenzeile(const Acht* vier, std::uint64_t offen, std::int64_t x, std::int64_t y,
                             bool innen, const Vierfarbe& farbe, const Ziel& ziel) {
    std::uint32_t* p = ziel.pixel + static_cast<std::size_t>(y) * ziel.zeile + x;
    for (; offen != 0; offen >>= kVier, ++vier, p += kVier, x += kVier) {
        if ((offen & 0xFU) == 0) continue;
        if (innen || (x >= ziel.bereich.links && x + kVier - 1 <= ziel.bereich.rechts)) {
            ziel.SetzeVier(p, y, farbe, *vier);
            continue;
        }
        for (int i = 0; i < kVier; ++i) {
            if ((offen >> i & 1U) != 0) ziel.SetzePixel(p + i, y, farbe, (*vier)[2 * i]);
        }
    }
}

}  // namespace

template <class Ziel>
void SetzeMaske(const Deckmaske& m, Flaechenpunkt ort, std::uint32_t farbe, const Ziel& ziel) {
    constexpr std::int64_t kWort = 64;
    const Vierfarbe vierfarbe(farbe);
    const Rechteck umfang = m.Umfang(ort);
    const Rechteck teil = Geschnitten(umfang, ziel.bereich);
    const bool ganz = umfang.links >= ziel.bereich.links;
    if (ganz && umfang.rechts + kBreiter <= ziel.bereich.rechts && KannAchtPixel())
        return SetzeMaskeAcht(m, umfang, teil, farbe, ziel);
    const bool innen = ganz && umfang.rechts + kVier - 1 <= ziel.bereich.rechts;
    if constexpr (std::is_same_v<Ziel, Darueber>) {
        // Nothing to be asked of any pixel: those that are not covered come out as they were.
        if (innen) {
            std::uint32_t* zeile =
                ziel.pixel + static_cast<std::size_t>(teil.oben) * ziel.zeile + umfang.links;
            for (std::int64_t y = teil.oben; y <= teil.unten; ++y, zeile += ziel.zeile) {
                const Acht* vier = m.Vierer(static_cast<std::size_t>(y - umfang.oben));
                for (std::int64_t x = 0; x < umfang.rechts - umfang.links + 1; x += kVier)
                    ziel.SetzeVier(zeile + x, y, vierfarbe, *vier++);
            }
            return;
        }
    }
    for (std::int64_t y = teil.oben; y <= teil.unten; ++y) {
        const auto zeile = static_cast<std::size_t>(y - umfang.oben);
        const Acht* vierer = m.Vierer(zeile);
        const std::uint64_t* bits = m.Bits(zeile);
        for (std::int64_t x = umfang.links; x <= teil.rechts; x += kWort, vierer += kWort / kVier) {
            std::uint64_t offen = *bits++;
            if (!innen) offen &= Darin(x, ziel.bereich);
            if (x >= ziel.bereich.links) offen &= ziel.Freie(x, y);
            SetzeMaskenzeile(vierer, offen, x, y, innen, vierfarbe, ziel);
        }
    }
}

template <class Ziel>
void SetzeMasken(std::span<const Maskenort> masken, std::uint32_t farbe, const Ziel& ziel) {
    if (masken.size() > 1 && KannAchtPixel() && SetzeZeileAcht(masken, farbe, ziel)) return;
    for (const Maskenort& m : masken) {
        if (!Unsichtbar(m.maske->Umfang(m.ort), ziel)) SetzeMaske(*m.maske, m.ort, farbe, ziel);
    }
}

template <class Ziel>
void FuellePixel(const Rechteck& r, std::uint32_t farbe, const Ziel& ziel) {
    const Rechteck teil = Geschnitten(r, ziel.bereich);
    if (!Leer(teil)) ziel.FuelleBlock(teil, farbe);
}

void MischeUnter(const std::uint32_t* vorn, std::uint32_t* unten, std::size_t weite) {
    std::size_t x = 0;
    for (; x + kVier <= weite; x += kVier) {
        const Vier v = LiesVier(vorn + x);
        if (AlleNull(AlsAcht(v))) continue;
        const Acht frei = kGedeckt - Zweimal(v >> 24);
        const Acht u = AlsAcht(LiesVier(unten + x));
        const Acht rb = (u & 0xFF) * frei + 0x80;
        const Acht g = (u >> 8) * frei + 0x80;
        SchreibeVier(unten + x,
                     kDeckend | (v + AlsVier(((rb + (rb >> 8)) >> 8) | ((g + (g >> 8)) & 0xFF00))));
    }
    for (; x < weite; ++x) {
        unten[x] =
            kDeckend | ((vorn[x] & ~kDeckend) + FarbeMal(unten[x] & ~kDeckend, kGedeckt - (vorn[x] >> 24U)));
    }
}

template void ZieheLinie(Flaechenpunkt, Flaechenpunkt, double, double, std::uint32_t, const Darueber&);
template void ZieheLinie(Flaechenpunkt, Flaechenpunkt, double, double, std::uint32_t, const Dahinter&);
template void ZieheLinie(Flaechenpunkt, Flaechenpunkt, double, double, std::uint32_t, const Abdruck&);
template void SetzeMaske(const Deckmaske&, Flaechenpunkt, std::uint32_t, const Darueber&);
template void SetzeMaske(const Deckmaske&, Flaechenpunkt, std::uint32_t, const Dahinter&);
template void SetzeMasken(std::span<const Maskenort>, std::uint32_t, const Darueber&);
template void SetzeMasken(std::span<const Maskenort>, std::uint32_t, const Dahinter&);
template void FuellePixel(const Rechteck&, std::uint32_t, const Darueber&);
template void FuellePixel(const Rechteck&, std::uint32_t, const Dahinter&);

}  // namespace zrw
