#include "output/Deckung.h"

#include <algorithm>

namespace zrw {

void Deckung::BeginneDeckung(int weite, int hoehe, const Rechteck& ausschnitt) {
    aktiv_ = true;
    ausschnitt_ = ausschnitt;
    spalten_ = (static_cast<std::size_t>(weite) + 63) / 64;
    reihen_ = (static_cast<std::size_t>(hoehe) + kKachelhoehe - 1) / kKachelhoehe;
    bits_.assign(spalten_ * static_cast<std::size_t>(hoehe) + 1, 0);
    frei_.assign(spalten_ * reihen_, 0);
    tief_.assign(spalten_ * reihen_, 0);
    const auto anteil = [](std::int32_t von, std::int32_t bis, std::int32_t anfang, std::int32_t laenge) {
        return std::max(std::min(bis, anfang + laenge - 1) - std::max(von, anfang) + 1, 0);
    };
    for (std::size_t reihe = 0; reihe < reihen_; ++reihe) {
        const std::int32_t hoch = anteil(ausschnitt.oben, ausschnitt.unten,
                                         static_cast<std::int32_t>(reihe * kKachelhoehe), kKachelhoehe);
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
            tiefe = frei_[i] == 0 ? static_cast<std::uint16_t>(tiefe + 1) : std::uint16_t{0};
            tief_[i] = tiefe;
        }
    }
}

/// A tile has become full: the runs of full tiles that end above it grow.
void Deckung::Voll(std::size_t spalte, std::size_t reihe) {
    const std::size_t darunter = reihe + 1 < reihen_ ? tief_[(reihe + 1) * spalten_ + spalte] : 0;
    std::size_t tiefe = darunter;
    for (std::size_t r = reihe + 1; r-- > 0;) {
        if (frei_[r * spalten_ + spalte] != 0) break;
        tief_[r * spalten_ + spalte] = static_cast<std::uint16_t>(++tiefe);
    }
}

bool Deckung::Verdeckt(const Rechteck& r) const {
    const Rechteck sicht = Geschnitten(r, ausschnitt_);
    if (Leer(sicht)) return true;
    const auto [links, oben, rechts, unten] = sicht;
    const std::size_t erste = static_cast<std::size_t>(oben) / kKachelhoehe;
    const std::size_t tiefe = static_cast<std::size_t>(unten) / kKachelhoehe - erste + 1;
    for (std::size_t s = static_cast<std::size_t>(links) / 64; s <= static_cast<std::size_t>(rechts) / 64;
         ++s) {
        if (tief_[erste * spalten_ + s] < tiefe) return false;
    }
    return true;
}

}  // namespace zrw
