#include "output/Deckkarte.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "output/Deckung.h"

namespace zrw {
namespace {

constexpr std::uint8_t kAlle = 0xFF;

static_assert(std::endian::native == std::endian::little, "squares lie in words from left to right");

std::uint64_t LiesWort(const std::uint8_t* p) {
    std::uint64_t wort = 0;
    std::memcpy(&wort, p, sizeof wort);
    return wort;
}

}  // namespace

void Deckkarte::BeginneKarte(int weite, int hoehe) {
    bekannt_ = true;
    ganz_ = {0, 0, weite - 1, hoehe - 1};
    zeile_ = kDavor + static_cast<std::size_t>((weite + 63) / 64) + kDanach;
    zeilen_ = static_cast<std::size_t>((hoehe + kQuadrat - 1) / kQuadrat);
    voll_.assign(zeilen_ * zeile_, kAlle);
    umgeben_.assign(voll_.size(), 0);
}

void Deckkarte::NimmTeil(const Deckung& teil, std::int32_t links, std::int32_t oben) {
    const std::size_t spalten = std::min<std::size_t>(
        teil.Spalten(), zeile_ - kDavor - kDanach - static_cast<std::size_t>(links / 64));
    const std::size_t reihen =
        std::min<std::size_t>(teil.Reihen(), zeilen_ - static_cast<std::size_t>(oben / kQuadrat));
    std::uint8_t* zeile = voll_.data() + Stelle(links, oben);
    for (std::size_t reihe = 0; reihe < reihen; ++reihe, zeile += zeile_) {
        for (std::size_t spalte = 0; spalte < spalten; ++spalte)
            zeile[spalte] = teil.VolleQuadrate(spalte, reihe);
    }
}

bool Deckkarte::Verdeckt(const Rechteck& r) const {
    constexpr std::int32_t kAufEinmal = 56;  // wherever the first one lies in its byte
    if (!bekannt_) return false;
    const Rechteck sicht = Geschnitten(r, ganz_);
    if (Leer(sicht)) return true;
    const std::int32_t rechts = sicht.rechts / kQuadrat;
    for (std::int32_t links = sicht.links / kQuadrat; links <= rechts; links += kAufEinmal) {
        const std::int32_t anzahl = std::min(rechts - links + 1, kAufEinmal);
        const std::uint64_t gefragt = ((std::uint64_t{1} << anzahl) - 1) << (links % 8);
        const std::uint8_t* zeile = voll_.data() + Stelle(links * kQuadrat, sicht.oben);
        for (std::int32_t y = sicht.oben / kQuadrat; y <= sicht.unten / kQuadrat; ++y, zeile += zeile_) {
            if ((gefragt & ~LiesWort(zeile)) != 0) return false;
        }
    }
    return true;
}

/// First along the rows, then across them.
void Deckkarte::BeginneUmgebungen(std::int32_t rand) {
    constexpr std::size_t kAufEinmal = sizeof(std::uint64_t) - 2;  // bytes that have all neighbours in a word
    if (rand > kWeiteste) return;
    const std::int32_t weit = (rand + kQuadrat - 1) / kQuadrat;
    quer_.assign(voll_.size(), kAlle);
    for (std::size_t zeile = 0; zeile < voll_.size(); zeile += zeile_) {
        for (std::size_t i = kDavor; i < zeile_ - kDanach; i += kAufEinmal) {
            const std::uint64_t wort = LiesWort(voll_.data() + zeile + i - 1);
            std::uint64_t alle = wort;
            for (std::int32_t n = 1; n <= weit; ++n)
                alle &= wort << n & wort >> n;
            alle >>= 8U;
            std::memcpy(quer_.data() + zeile + i, &alle, kAufEinmal);
        }
    }
    umgeben_ = quer_;
    for (std::size_t n = 1; n <= static_cast<std::size_t>(weit) && n < zeilen_; ++n) {
        for (std::size_t i = n * zeile_; i < quer_.size(); ++i) {
            umgeben_[i] &= quer_[i - n * zeile_];
            umgeben_[i - n * zeile_] &= quer_[i];
        }
    }
}

}  // namespace zrw
