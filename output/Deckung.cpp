#include "output/Deckung.h"

namespace zrw {

void Deckung::BeginneDeckung(int weite, int hoehe, const Rechteck& ausschnitt) {
    aktiv_ = true;
    ausschnitt_ = ausschnitt;
    spalten_ = (static_cast<std::size_t>(weite) + 63) / 64;
    reihen_ = (static_cast<std::size_t>(hoehe) + kBlockhoehe - 1) / kBlockhoehe;
    bits_.assign(spalten_ * reihen_ * kBlockhoehe + 1, kVoll);
    const std::int64_t letzte = ausschnitt.rechts / 64;
    for (std::int32_t y = ausschnitt.oben; y <= ausschnitt.unten; ++y) {
        std::uint64_t* zeile = bits_.data() + static_cast<std::size_t>(y) * spalten_;
        for (std::int64_t s = ausschnitt.links / 64; s <= letzte; ++s)
            zeile[s] = ~Darin(64 * s, ausschnitt);
    }
    tief_.assign(spalten_ * reihen_, 0);
    for (std::size_t spalte = 0; spalte < spalten_; ++spalte) {
        for (std::size_t reihe = reihen_; reihe-- > 0;)
            PruefeBlock(spalte, reihe);
    }
}

/// A word has become full: whether the block has.
void Deckung::PruefeBlock(std::size_t spalte, std::size_t reihe) {
    const std::uint64_t* wort = bits_.data() + reihe * kBlockhoehe * spalten_ + spalte;
    std::uint64_t alle = kVoll;
    for (std::size_t i = 0; i < kBlockhoehe; ++i)
        alle &= wort[i * spalten_];
    if (alle == kVoll) NimmVollenBlock(spalte, reihe);
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

bool Deckung::GenauVerdeckt(const Rechteck& r) const {
    for (std::int32_t y = r.oben; y <= r.unten; ++y) {
        const std::uint64_t* zeile = bits_.data() + static_cast<std::size_t>(y) * spalten_;
        for (std::int64_t s = r.links / 64; s <= r.rechts / 64; ++s) {
            if ((Darin(64 * s, r) & ~zeile[s]) != 0) return false;
        }
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
