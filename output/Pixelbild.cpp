#include "output/Pixelbild.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <utility>

namespace zrw {
namespace {

constexpr std::int64_t kStrich = 4;  ///< pixels of a dash that are set
constexpr std::int64_t kDash = 6;    ///< pixels from one dash to the next

}  // namespace

template <bool Gestrichelt, bool Senkrecht>
void Pixelbild::Schritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe) {
    const auto laengs = [](Flaechenpunkt p) { return std::int64_t{Senkrecht ? p.y : p.x}; };
    const auto quer = [](Flaechenpunkt p) { return std::int64_t{Senkrecht ? p.x : p.y}; };
    const bool umgekehrt = laengs(von) > laengs(nach);
    if (umgekehrt) std::swap(von, nach);
    const std::int64_t anfang = laengs(von);
    const std::int64_t ende = laengs(nach);
    const std::int64_t schritt = ende > anfang ? (quer(nach) - quer(von)) * 65536 / (ende - anfang) : 0;
    const std::int64_t laengsGrenze = Senkrecht ? hoehe_ : weite_;
    const std::int64_t querGrenze = Senkrecht ? weite_ : hoehe_;
    std::int64_t m = std::max<std::int64_t>(anfang, 0);
    const std::int64_t letztes = std::min(ende, laengsGrenze - 1);
    std::int64_t v =
        quer(von) * 65536 + (schritt > 0 ? schritt - (schritt >> 1) : 0) + (m - anfang) * schritt;
    const auto zeile = static_cast<std::ptrdiff_t>(zeile_);
    for (; m <= letztes; ++m, v += schritt) {
        if constexpr (Gestrichelt) {
            if ((umgekehrt ? ende - m : m - anfang) % kDash >= kStrich) continue;
        }
        const std::int64_t q = v >> 16;
        if (static_cast<std::uint64_t>(q) >= static_cast<std::uint64_t>(querGrenze)) continue;
        (Senkrecht ? bild_[m * zeile + q] : bild_[q * zeile + m]) = farbe;
    }
}

void Pixelbild::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, Strichart art) {
    if (std::max(von.x, nach.x) < 0 || std::max(von.y, nach.y) < 0 || std::min(von.x, nach.x) >= weite_ ||
        std::min(von.y, nach.y) >= hoehe_)
        return;
    const bool senkrecht =
        std::llabs(std::int64_t{von.x} - nach.x) < std::llabs(std::int64_t{von.y} - nach.y);
    if (art == Strichart::Gestrichelt) {
        senkrecht ? Schritte<true, true>(von, nach, farbe) : Schritte<true, false>(von, nach, farbe);
    } else {
        senkrecht ? Schritte<false, true>(von, nach, farbe) : Schritte<false, false>(von, nach, farbe);
    }
}

void Pixelbild::Zeile(std::span<const std::uint64_t> worte, std::int64_t x, std::int64_t y,
                      std::uint32_t farbe) {
    if (y < 0 || y >= hoehe_) return;
    std::uint32_t* zeile = bild_ + static_cast<std::size_t>(y) * zeile_;
    for (std::size_t w = 0; w < worte.size(); ++w) {
        std::uint64_t bits = worte[w];
        const std::int64_t links = x + static_cast<std::int64_t>(w) * 64;
        if (bits == 0 || links >= weite_ || links <= -64) continue;
        if (links < 0) bits = bits >> static_cast<unsigned>(-links) << static_cast<unsigned>(-links);
        if (links + 64 > weite_) bits &= ~std::uint64_t{0} >> static_cast<unsigned>(links + 64 - weite_);
        for (; bits != 0; bits &= bits - 1)
            zeile[links + std::countr_zero(bits)] = farbe;
    }
}

void Pixelbild::Maske(const Pixelmaske& maske, std::int32_t x, std::int32_t y, std::uint32_t farbe) {
    const std::int64_t links = std::int64_t{x} + maske.links;
    const std::int64_t oben = std::int64_t{y} + maske.oben;
    if (links >= weite_ || oben >= hoehe_ || links + maske.weite <= 0 || oben + maske.hoehe <= 0) return;
    const std::size_t jeZeile = maske.JeZeile();
    for (int i = 0; i < maske.hoehe; ++i)
        Zeile({maske.worte.data() + static_cast<std::size_t>(i) * jeZeile, jeZeile}, links, oben + i, farbe);
}

}  // namespace zrw
