#include "output/Deckung.h"

#include <algorithm>
#include <cstring>

namespace zrw {

void Deckung::BeginneDeckung(int weite, int hoehe, const Rechteck& ausschnitt) {
    aktiv_ = true;
    ausschnitt_ = ausschnitt;
    spalten_ = (static_cast<std::size_t>(weite) + 63) / 64;
    reihen_ = (static_cast<std::size_t>(hoehe) + kBlockhoehe - 1) / kBlockhoehe;
    hoehe_ = reihen_ * kBlockhoehe;
    bits_.assign((spalten_ + 1) * hoehe_, kVoll);
    for (std::int64_t spalte = ausschnitt.links / 64; spalte <= ausschnitt.rechts / 64; ++spalte) {
        std::fill_n(Spalte(static_cast<std::size_t>(spalte)) + ausschnitt.oben,
                    ausschnitt.unten - ausschnitt.oben + 1, ~Darin(64 * spalte, ausschnitt));
    }
    tief_.assign(spalten_ * reihen_, 0);
    for (std::size_t spalte = 0; spalte < spalten_; ++spalte) {
        for (std::size_t reihe = reihen_; reihe-- > 0;)
            PruefeBlock(spalte, reihe);
    }
}

inline std::uint64_t Deckung::GanzGedeckte(std::size_t spalte, std::size_t reihe) const {
    const std::uint64_t* wort = bits_.data() + spalte * hoehe_ + reihe * kBlockhoehe;
    std::uint64_t alle = kVoll;
    for (std::size_t i = 0; i < kBlockhoehe; ++i)
        alle &= wort[i];
    return alle;
}

/// A word has become full: whether the block has.
void Deckung::PruefeBlock(std::size_t spalte, std::size_t reihe) {
    if (GanzGedeckte(spalte, reihe) == kVoll) NimmVollenBlock(spalte, reihe);
}

std::uint8_t Deckung::VolleQuadrate(std::size_t spalte, std::size_t reihe) const {
    std::uint64_t w = GanzGedeckte(spalte, reihe);
    // The lowest bit of each byte whose bits are all set; the product gathers them in the highest one.
    w &= w >> 4U;
    w &= w >> 2U;
    w &= w >> 1U;
    return static_cast<std::uint8_t>((w & 0x0101010101010101U) * 0x0102040810204080U >> 56U);
}

/// The runs of full blocks that end above it grow.
void Deckung::NimmVollenBlock(std::size_t spalte, std::size_t reihe) {
    const bool letzte = reihe + 1 == reihen_ || reihe % kReihenJeLauf == kReihenJeLauf - 1;
    std::size_t tiefe = letzte ? 0 : tief_[(reihe + 1) * spalten_ + spalte];
    std::size_t r = reihe;
    do {
        Gemeinsam(tief_[r * spalten_ + spalte])
            .store(static_cast<std::uint16_t>(++tiefe), std::memory_order_relaxed);
    } while (r % kReihenJeLauf != 0 && tief_[--r * spalten_ + spalte] != 0);
}

/// Two rows at a time, without a branch for each. Other columns stay untouched: other cores may be there.
/// @param hin moves pixels to their places in the column @param zurueck from there
template <class Hin, class Zurueck>
inline void Deckung::DeckeInSpalte(std::size_t spalte, std::size_t y, std::span<const std::uint64_t> pixel,
                                   std::uint64_t* frei, Hin hin, Zurueck zurueck) {
    using Zwei = std::uint64_t __attribute__((vector_size(16)));
    const auto lies = [](const std::uint64_t* p) {
        Zwei v;
        std::memcpy(&v, p, sizeof v);
        return v;
    };
    std::uint64_t* const worte = Spalte(spalte) + y;
    const std::size_t paare = pixel.size() & ~std::size_t{1};
    auto gefuellt = Zwei{} == kVoll;
    for (std::size_t i = 0; i < paare; i += 2) {
        const Zwei vorher = lies(worte + i);
        const Zwei neu = hin(lies(pixel.data() + i)) & ~vorher;
        const Zwei nachher = vorher | neu;
        const Zwei freie = lies(frei + i) | zurueck(neu);
        std::memcpy(worte + i, &nachher, sizeof nachher);
        std::memcpy(frei + i, &freie, sizeof freie);
        gefuellt |= (nachher == kVoll) & (vorher != kVoll);
    }
    if (paare < pixel.size()) frei[paare] |= zurueck(DeckePixel(spalte, y + paare, hin(pixel[paare])));
    if ((gefuellt[0] | gefuellt[1]) == 0) return;
    for (std::size_t reihe = y / kBlockhoehe; reihe <= (y + paare - 1) / kBlockhoehe; ++reihe) {
        if (tief_[reihe * spalten_ + spalte] == 0) PruefeBlock(spalte, reihe);
    }
}

void Deckung::DeckeZeilen(std::int64_t x, std::size_t y, std::span<const std::uint64_t> pixel,
                          std::uint64_t* frei) {
    const auto bit = static_cast<int>(x & 63);
    const auto spalte = static_cast<std::size_t>(x >> 6);
    std::fill_n(frei, pixel.size(), 0U);
    std::uint64_t alle = 0;
    for (const std::uint64_t zeile : pixel)
        alle |= zeile;
    if (alle << bit != 0) {
        DeckeInSpalte(
            spalte, y, pixel, frei, [bit](auto v) { return v << bit; }, [bit](auto v) { return v >> bit; });
    }
    const int rest = 64 - bit;
    if (bit != 0 && alle >> rest != 0) {
        DeckeInSpalte(
            spalte + 1, y, pixel, frei, [rest](auto v) { return v >> rest; },
            [rest](auto v) { return v << rest; });
    }
}

bool Deckung::GenauVerdeckt(const Rechteck& r) const {
    if (Leer(r)) return true;
    const auto zeilen = static_cast<std::size_t>(std::int64_t{r.unten} - r.oben + 1);
    for (std::int64_t spalte = r.links / 64; spalte <= r.rechts / 64; ++spalte) {
        const std::uint64_t* wort = bits_.data() + static_cast<std::size_t>(spalte) * hoehe_ + r.oben;
        std::uint64_t alle = wort[0];
        for (std::size_t i = 1; i < zeilen; ++i)
            alle &= wort[i];
        if ((Darin(64 * spalte, r) & ~alle) != 0) return false;
    }
    return true;
}

bool Deckung::VolleBloecke(const Rechteck& r) const {
    const std::size_t letzte = static_cast<std::size_t>(r.unten) / kBlockhoehe;
    for (std::size_t s = static_cast<std::size_t>(r.links) / 64; s <= static_cast<std::size_t>(r.rechts) / 64;
         ++s) {
        for (std::size_t reihe = static_cast<std::size_t>(r.oben) / kBlockhoehe; reihe <= letzte;) {
            const std::size_t tiefe = Gemeinsam(tief_[reihe * spalten_ + s]).load(std::memory_order_relaxed);
            if (tiefe == 0) return false;
            reihe += tiefe;
        }
    }
    return true;
}

}  // namespace zrw
