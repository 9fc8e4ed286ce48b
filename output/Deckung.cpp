#include "output/Deckung.h"

#include <algorithm>

namespace zrw {

void Deckung::BeginneDeckung(int weite, int hoehe, const Rechteck& ausschnitt) {
    aktiv_ = true;
    ausschnitt_ = ausschnitt;
    spalten_ = (static_cast<std::size_t>(weite) + 63) / 64;
    reihen_ = (static_cast<std::size_t>(hoehe) + kBlockhoehe - 1) / kBlockhoehe;
    bits_.assign(spalten_ * static_cast<std::size_t>(hoehe) + 1, 0);
    frei_.assign(spalten_ * reihen_, 0);
    tief_.assign(spalten_ * reihen_, 0);
    const auto anteil = [](std::int32_t von, std::int32_t bis, std::int32_t anfang, std::int32_t laenge) {
        return std::max(std::min(bis, anfang + laenge - 1) - std::max(von, anfang) + 1, 0);
    };
    for (std::size_t reihe = 0; reihe < reihen_; ++reihe) {
        const std::int32_t hoch = anteil(ausschnitt.oben, ausschnitt.unten,
                                         static_cast<std::int32_t>(reihe * kBlockhoehe), kBlockhoehe);
        for (std::size_t spalte = 0; spalte < spalten_; ++spalte) {
            const std::int32_t breit =
                anteil(ausschnitt.links, ausschnitt.rechts, static_cast<std::int32_t>(spalte) * 64, 64);
            frei_[reihe * spalten_ + spalte] = static_cast<std::uint16_t>(breit * hoch);
        }
    }
    for (std::size_t spalte = 0; spalte < spalten_; ++spalte) {
        std::uint16_t tiefe = 0;
        for (std::size_t reihe = reihen_; reihe-- > 0;) {
            const std::size_t i = reihe * spalten_ + spalte;
            if (reihe % kReihenJeLauf == kReihenJeLauf - 1) tiefe = 0;
            tiefe = frei_[i] == 0 ? static_cast<std::uint16_t>(tiefe + 1) : std::uint16_t{0};
            tief_[i] = tiefe;
        }
    }
}

/// A block has become full: the runs of full blocks that end above it grow.
void Deckung::Voll(std::size_t spalte, std::size_t reihe) {
    const bool letzte = reihe + 1 == reihen_ || reihe % kReihenJeLauf == kReihenJeLauf - 1;
    std::size_t tiefe = letzte ? 0 : tief_[(reihe + 1) * spalten_ + spalte];
    for (std::size_t r = reihe + 1; r-- > reihe - reihe % kReihenJeLauf;) {
        const std::size_t i = r * spalten_ + spalte;
        if (frei_[i] != 0) break;
        Gemeinsam(tief_[i]).store(static_cast<std::uint16_t>(++tiefe), std::memory_order_relaxed);
    }
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
