#include "output/Breitpinsel.h"

// Windows aligns the stack to 16 bytes, and compilers for it do not mind that these vectors need more.
#if defined(__x86_64__) && !defined(_WIN32)

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <utility>

#include "output/Achtpixel.h"

namespace zrw {
namespace {

constexpr std::int64_t kGruppe = 8;
static_assert(Stempel::kReihe == kGruppe);
constexpr std::int64_t kViererJeGruppe = 2;
/// A colour behind eight pixels. @param volle gets those that have become full, one bit each
/// @return whether any changed
__attribute__((target("avx2"))) inline bool SchiebeDahinter(Sechzehn& vorn, const Achtfarbe& farbe,
                                                            Sechzehn a, std::uint64_t& volle) {
    constexpr int kVoll = 255;
    constexpr auto kRest = static_cast<std::int16_t>(kSatt);
    const Achtfach gedeckt = reinterpret_cast<Achtfach>(vorn) >> 24;
    const Sechzehn frei = kVoll - reinterpret_cast<Sechzehn>(gedeckt | gedeckt << 16);
    Sechzehn n = (a * frei + 128) >> 8;
    const auto bits = reinterpret_cast<__m256i>(n);
    if (_mm256_testz_si256(bits, bits) != 0) return false;
    const auto bleibt = reinterpret_cast<SechzehnMitVorzeichen>(frei - n);
    const auto satt = reinterpret_cast<Sechzehn>(bleibt <= kRest);
    n += reinterpret_cast<Sechzehn>(bleibt) & satt;
    const Sechzehn rb = farbe.rotBlau * n + 0x80;
    const Sechzehn g = farbe.rest * n + 0x80;
    const Sechzehn dazu = ((rb + (rb >> 8)) >> 8) | ((g + (g >> 8)) & 0xFF00);
    vorn = reinterpret_cast<Sechzehn>(reinterpret_cast<Achtfach>(vorn) + reinterpret_cast<Achtfach>(dazu));
    const Sechzehn neu = satt & reinterpret_cast<Sechzehn>(frei != 0);
    volle |= static_cast<unsigned>(_mm256_movemask_ps(reinterpret_cast<__m256>(neu)));
    return true;
}

/// What a mask has of a group of eight pixels.
struct Beitrag {
    const std::uint32_t* anteile;  ///< of its first row
    std::int64_t jeZeile;
    std::int64_t oben;  ///< rows that it has
    std::int64_t unten;
};

/// A text in groups of eight pixels, from its left side on: no two of its masks have a pixel in common.
class Zeilenteilung {
  public:
    /// @return false: too long, too narrow characters, or not one right of the other
    [[nodiscard]] bool TeileEin(std::span<const Maskenort> masken);

    [[nodiscard]] const Rechteck& Umfang() const { return umfang_; }
    [[nodiscard]] std::size_t Gruppen() const { return gruppen_; }
    [[nodiscard]] std::span<const Beitrag> Gruppe(std::size_t g) const {
        return {&beitraege_[g * kMeisteJeGruppe], anzahl_[g]};
    }

  private:
    static constexpr std::size_t kMeisteGruppen = 40;
    static constexpr std::size_t kMeisteJeGruppe = 3;

    [[nodiscard]] bool NimmUmfang(std::span<const Maskenort> masken);

    Rechteck umfang_;
    std::size_t gruppen_ = 0;
    std::array<std::uint8_t, kMeisteGruppen> anzahl_;                  ///< of the contributions to each
    std::array<Beitrag, kMeisteGruppen * kMeisteJeGruppe> beitraege_;  ///< room for all of each group
};

bool Zeilenteilung::NimmUmfang(std::span<const Maskenort> masken) {
    umfang_ = kKeinRechteck;
    for (const Maskenort& m : masken) {
        const Rechteck r = m.maske->Umfang(m.ort);
        if (Leer(r)) continue;
        if (!Leer(umfang_) && r.links <= umfang_.rechts) return false;
        umfang_ = Vereint(umfang_, r);
    }
    gruppen_ = static_cast<std::size_t>(umfang_.rechts - umfang_.links) / kGruppe + 1;
    return !Leer(umfang_) && gruppen_ <= kMeisteGruppen;
}

bool Zeilenteilung::TeileEin(std::span<const Maskenort> masken) {
    if (!NimmUmfang(masken)) return false;
    std::fill_n(anzahl_.begin(), gruppen_, std::uint8_t{0});
    for (const Maskenort& m : masken) {
        const Rechteck r = m.maske->Umfang(m.ort);
        if (Leer(r)) continue;
        const auto jeZeile = static_cast<std::int64_t>(m.maske->PixelJeZeile());
        const auto erste = static_cast<std::size_t>(r.links - umfang_.links) / kGruppe;
        const auto letzte = static_cast<std::size_t>(r.rechts - umfang_.links) / kGruppe;
        // Beside the mask there is nothing: its rows may be read from up to a group before them on.
        const std::uint32_t* anteile = m.maske->Anteile() - (r.links - umfang_.links) % kGruppe;
        for (std::size_t g = erste; g <= letzte; ++g, anteile += kGruppe) {
            if (anzahl_[g] == kMeisteJeGruppe) return false;
            beitraege_[g * kMeisteJeGruppe + anzahl_[g]++] = {anteile, jeZeile, r.oben, r.unten};
        }
    }
    return true;
}

/// Some rows of a group, which all of the contributions have. @param pixel of the first one
template <std::size_t... Nummer>
__attribute__((target("avx2"))) inline void SetzeReihen(std::uint32_t* pixel, std::size_t zeile,
                                                        const Beitrag* beitraege, std::int64_t von,
                                                        std::int64_t bis, const Achtfarbe& farbe,
                                                        std::index_sequence<Nummer...> /*alle*/) {
    std::array<const std::uint32_t*, sizeof...(Nummer)> p{
        (beitraege[Nummer].anteile + (von - beitraege[Nummer].oben) * beitraege[Nummer].jeZeile)...};
    const std::array<std::int64_t, sizeof...(Nummer)> weiter{beitraege[Nummer].jeZeile...};
    for (std::int64_t y = von; y <= bis; ++y, pixel += zeile) {
        const Sechzehn a = (LiesSechzehn(p[Nummer]) + ...);
        SchreibeAcht(pixel, Darauf(LiesSechzehn(pixel), farbe, a));
        ((p[Nummer] += weiter[Nummer]), ...);
    }
}

/// A group from the left column `x` on: first the rows that all of its masks have.
__attribute__((target("avx2"))) inline void SetzeGruppe(std::span<const Beitrag> gruppe, std::int64_t x,
                                                        const Achtfarbe& farbe, const Darueber& ziel) {
    const std::int64_t oben = ziel.bereich.oben;
    const std::int64_t unten = ziel.bereich.unten;
    std::int64_t von = oben;
    std::int64_t bis = unten;
    for (const Beitrag& b : gruppe) {
        von = std::max(von, b.oben);
        bis = std::min(bis, b.unten);
    }
    const auto setze = [&](const Beitrag* b, std::int64_t erste, std::int64_t letzte, auto alle)
        __attribute__((target("avx2"))) {
        SetzeReihen(ziel.pixel + erste * static_cast<std::int64_t>(ziel.zeile) + x, ziel.zeile, b, erste,
                    letzte, farbe, alle);
    };
    if (gruppe.size() == 1) return setze(gruppe.data(), von, bis, std::make_index_sequence<1>());
    if (gruppe.size() == 2) setze(gruppe.data(), von, bis, std::make_index_sequence<2>());
    if (gruppe.size() == 3) setze(gruppe.data(), von, bis, std::make_index_sequence<3>());
    const std::int64_t danach = std::max(bis + 1, von);
    for (const Beitrag& b : gruppe) {
        if (b.oben < von)
            setze(&b, std::max(b.oben, oben), std::min({b.unten, von - 1, unten}),
                  std::make_index_sequence<1>());
        if (b.unten >= danach)
            setze(&b, std::max(b.oben, danach), std::min(b.unten, unten), std::make_index_sequence<1>());
    }
}

/// What masks have of a row of a group.
__attribute__((target("avx2"))) inline Sechzehn Summe(std::span<const Beitrag> gruppe, std::int64_t y) {
    Sechzehn a{};
    for (const Beitrag& b : gruppe) {
        if (y >= b.oben && y <= b.unten) a += LiesSechzehn(b.anteile + (y - b.oben) * b.jeZeile);
    }
    return a;
}

/// Whether the tile has all columns of a text, and what is written right of it.
template <class Ziel>
bool HatPlatz(const Rechteck& umfang, const Ziel& ziel) {
    return umfang.links >= ziel.bereich.links && umfang.rechts + kBreiter <= ziel.bereich.rechts;
}

}  // namespace

bool KannAchtPixel() {
    static const bool kann = __builtin_cpu_supports("avx2") != 0;
    return kann;
}

__attribute__((target("avx2"))) void SetzeMaskeAcht(const Deckmaske& m, const Rechteck& umfang,
                                                    const Rechteck& teil, std::uint32_t farbe,
                                                    const Darueber& ziel) {
    const Achtfarbe achtfarbe = Mischfarbe(farbe);
    std::uint32_t* zeile = ziel.pixel + static_cast<std::size_t>(teil.oben) * ziel.zeile + umfang.links;
    for (std::int64_t y = teil.oben; y <= teil.unten; ++y, zeile += ziel.zeile) {
        const Acht* vier = m.Vierer(static_cast<std::size_t>(y - umfang.oben));
        for (std::int64_t x = 0; x <= umfang.rechts - umfang.links; x += kGruppe, vier += kViererJeGruppe)
            SchreibeAcht(zeile + x, Darauf(LiesSechzehn(zeile + x), achtfarbe, LiesSechzehn(vier)));
    }
}

__attribute__((target("avx2"))) void SetzeMaskeAcht(const Deckmaske& m, const Rechteck& umfang,
                                                    const Rechteck& teil, std::uint32_t farbe,
                                                    const Dahinter& ziel) {
    constexpr std::int64_t kWort = 64;
    const Achtfarbe achtfarbe = Achtmal(farbe);
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
                std::uint64_t neue = 0;
                Sechzehn vorn = LiesSechzehn(pixel + x + i);
                const Sechzehn anteile = LiesSechzehn(vier + i / kGruppe * kViererJeGruppe);
                if (SchiebeDahinter(vorn, achtfarbe, anteile, neue)) SchreibeAcht(pixel + x + i, vorn);
                volle |= neue << i;
            }
            if (volle != 0) ziel.deckung.DeckeAb(x, static_cast<std::size_t>(y), volle);
            vier += kWort / kGruppe * kViererJeGruppe;
        }
    }
}

__attribute__((target("avx2"))) bool SetzeZeileAcht(std::span<const Maskenort> masken, std::uint32_t farbe,
                                                    const Darueber& ziel) {
    Zeilenteilung t;  // NOLINT(*-member-init): set up as far as it is used
    if (!t.TeileEin(masken) || !HatPlatz(t.Umfang(), ziel)) return false;
    const Achtfarbe achtfarbe = Mischfarbe(farbe);
    std::int64_t x = t.Umfang().links;
    for (std::size_t g = 0; g < t.Gruppen(); ++g, x += kGruppe)
        SetzeGruppe(t.Gruppe(g), x, achtfarbe, ziel);
    return true;
}

__attribute__((target("avx2"))) bool SetzeZeileAcht(std::span<const Maskenort> masken, std::uint32_t farbe,
                                                    const Dahinter& ziel) {
    constexpr std::size_t kGruppenJeWort = 8;
    Zeilenteilung t;  // NOLINT(*-member-init): set up as far as it is used
    if (!t.TeileEin(masken) || !HatPlatz(t.Umfang(), ziel)) return false;
    const Rechteck teil = Geschnitten(t.Umfang(), ziel.bereich);
    if (Leer(teil) || ziel.Verdeckt(teil)) return true;
    const Achtfarbe achtfarbe = Achtmal(farbe);
    for (std::int64_t y = teil.oben; y <= teil.unten; ++y) {
        std::uint32_t* pixel = ziel.pixel + static_cast<std::size_t>(y) * ziel.zeile + t.Umfang().links;
        std::int64_t x = t.Umfang().links;
        for (std::size_t erste = 0; erste < t.Gruppen(); erste += kGruppenJeWort, x += 64) {
            std::uint64_t frei = ziel.Freie(x, y);
            std::uint64_t volle = 0;
            const std::size_t bis = std::min(erste + kGruppenJeWort, t.Gruppen());
            for (std::size_t g = erste; g < bis; ++g, frei >>= kGruppe, pixel += kGruppe) {
                if ((frei & 0xFFU) == 0) continue;
                Sechzehn vorn = LiesSechzehn(pixel);
                std::uint64_t hier = 0;
                if (!SchiebeDahinter(vorn, achtfarbe, Summe(t.Gruppe(g), y), hier)) continue;
                SchreibeAcht(pixel, vorn);
                volle |= hier << (g - erste) * kGruppe;
            }
            if (volle != 0) ziel.deckung.DeckeAb(x, static_cast<std::size_t>(y), volle);
        }
    }
    return true;
}

__attribute__((target("avx2"))) void SetzeStempelAcht(const Stempel& s, Flaechenpunkt ort,
                                                      std::uint32_t farbe, const Darueber& ziel) {
    const Achtfarbe achtfarbe = Mischfarbe(farbe);
    const std::uint32_t* anteile = s.anteile;
    std::uint32_t* gruppe = ziel.pixel + static_cast<std::size_t>(ort.y) * ziel.zeile + ort.x;
    for (int g = 0; g < s.gruppen; ++g, gruppe += kGruppe) {
        std::uint32_t* p = gruppe;
        for (int i = 0; i < s.hoehe; ++i, p += ziel.zeile, anteile += kGruppe)
            SchreibeAcht(p, Darauf(LiesSechzehn(p), achtfarbe, LiesSechzehn(anteile)));
    }
}

__attribute__((target("avx2"))) void SetzeStempelAcht(const Stempel& s, Flaechenpunkt ort,
                                                      std::uint32_t farbe, const Dahinter& ziel) {
    const Achtfarbe achtfarbe = Achtmal(farbe);
    const std::uint32_t* anteile = s.anteile;
    for (std::int64_t x = ort.x; x < ort.x + kGruppe * s.gruppen; x += kGruppe) {
        for (std::int64_t y = ort.y; y < ort.y + s.hoehe; ++y, anteile += kGruppe) {
            std::uint32_t* p = ziel.pixel + static_cast<std::size_t>(y) * ziel.zeile + x;
            std::uint64_t volle = 0;
            Sechzehn vorn = LiesSechzehn(p);
            if (!SchiebeDahinter(vorn, achtfarbe, LiesSechzehn(anteile), volle)) continue;
            SchreibeAcht(p, vorn);
            if (volle != 0) ziel.deckung.DeckeAb(x, static_cast<std::size_t>(y), volle);
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

bool SetzeZeileAcht(std::span<const Maskenort> /*masken*/, std::uint32_t /*farbe*/,
                    const Darueber& /*ziel*/) {
    return false;
}

bool SetzeZeileAcht(std::span<const Maskenort> /*masken*/, std::uint32_t /*farbe*/,
                    const Dahinter& /*ziel*/) {
    return false;
}

void SetzeStempelAcht(const Stempel& /*s*/, Flaechenpunkt /*ort*/, std::uint32_t /*farbe*/,
                      const Darueber& /*ziel*/) {}

void SetzeStempelAcht(const Stempel& /*s*/, Flaechenpunkt /*ort*/, std::uint32_t /*farbe*/,
                      const Dahinter& /*ziel*/) {}

}  // namespace zrw

#endif
