#include "output/Pixelbild.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace zrw {
namespace {

constexpr std::int64_t kStrich = 4;       ///< pixels of a dash that are set
constexpr std::int64_t kStrichfolge = 6;  ///< pixels from one dash to the next
/// Beyond this length steps of 1/65536 pixel would miss the far end.
constexpr std::int64_t kLaengste = 32767;

/// Quotient rounded down, and what remains.
std::pair<std::int64_t, std::int64_t> TeileMitRest(std::int64_t a, std::int64_t b) {
    const std::int64_t rest = (a % b + b) % b;
    return {(a - rest) / b, rest};
}

bool LiegtIn(const Rechteck& r, Flaechenpunkt p) {
    return p.x >= r.links && p.x <= r.rechts && p.y >= r.oben && p.y <= r.unten;
}

}  // namespace

std::vector<Flaechenpunkt> Umkreispixel(int radius) {
    std::vector<Flaechenpunkt> pixel;
    for (int y = -radius; y <= radius; ++y) {
        for (int x = -radius; x <= radius; ++x) {
            // Half a pixel more: corners belong to the smallest disc, too.
            if (x * x + y * y <= radius * radius + radius) pixel.push_back({x, y});
        }
    }
    return pixel;
}

Pixelmaske Verbreitert(const Pixelmaske& m, int rand) {
    Pixelmaske breit(m.links - rand, m.oben - rand, m.weite + 2 * rand, m.hoehe + 2 * rand);
    const std::vector<Flaechenpunkt> umkreis = Umkreispixel(rand);
    for (int y = 0; y < m.hoehe; ++y) {
        for (int x = 0; x < m.weite; ++x) {
            if (!m.Gesetzt(x, y)) continue;
            for (const Flaechenpunkt p : umkreis)
                breit.SetzePixel(x + rand + p.x, y + rand + p.y);
        }
    }
    return breit;
}

void Pixelbild::SetzeAusschnitt(const Rechteck& r) {
    ausschnitt_ = Geschnitten(r, Ganz());
}

void Pixelbild::VerschiebeBild(int dx, int dy) {
    if (std::abs(dx) >= weite_ || std::abs(dy) >= hoehe_) return;
    const auto breite = static_cast<std::size_t>(weite_ - std::abs(dx)) * sizeof(std::uint32_t);
    for (int i = std::abs(dy); i < hoehe_; ++i) {
        // Rows that are still to be copied must not be overwritten.
        const int nach = dy > 0 ? hoehe_ - 1 - (i - dy) : i + dy;
        std::memmove(bild_ + static_cast<std::size_t>(nach) * zeile_ + std::max(dx, 0),
                     bild_ + static_cast<std::size_t>(nach - dy) * zeile_ + std::max(-dx, 0), breite);
    }
}

void Pixelbild::FuelleRechteck(const Rechteck& r, std::uint32_t farbe) {
    assert(!VonVorn());
    const Rechteck teil = Geschnitten(r, ausschnitt_);
    if (Leer(teil)) return;
    const std::int32_t weite = teil.rechts - teil.links + 1;
    std::uint32_t* const erste = bild_ + static_cast<std::size_t>(teil.oben) * zeile_ + teil.links;
    std::fill_n(erste, weite, farbe);
    // Copied, not filled: compilers make vector code of the one, and a loop of the other.
    std::uint32_t* zeile = erste;
    for (std::int32_t y = teil.oben; y < teil.unten; ++y)
        std::copy_n(erste, weite, zeile += zeile_);
}

template <bool Senkrecht, bool Innen>
void Pixelbild::Schritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) {
    const auto laengs = [](Flaechenpunkt p) { return Senkrecht ? p.y : p.x; };
    const auto quer = [](Flaechenpunkt p) { return Senkrecht ? p.x : p.y; };
    const bool umgekehrt = laengs(von) > laengs(nach);
    if (umgekehrt) std::swap(von, nach);
    const std::int64_t anfang = laengs(von);
    const std::int64_t ende = laengs(nach);
    const auto laenge = static_cast<std::int32_t>(ende - anfang);
    // Not steeper than the diagonal and at most `kLaengste`, so that 32 bits suffice.
    const std::int64_t schritt = laenge > 0 ? (quer(nach) - quer(von)) * 65536 / laenge : 0;
    std::int64_t v = std::int64_t{quer(von)} * 65536 + (schritt > 0 ? schritt - (schritt >> 1) : 0);
    std::int64_t m = anfang;
    std::int64_t letztes = ende;
    const std::int64_t querVon = Senkrecht ? ausschnitt_.links : ausschnitt_.oben;
    const std::int64_t querBis = Senkrecht ? ausschnitt_.rechts : ausschnitt_.unten;
    if constexpr (!Innen) {
        m = std::max<std::int64_t>(anfang, Senkrecht ? ausschnitt_.oben : ausschnitt_.links);
        letztes = std::min<std::int64_t>(ende, Senkrecht ? ausschnitt_.unten : ausschnitt_.rechts);
        v += (m - anfang) * schritt;
    }
    for (; m <= letztes; ++m, v += schritt) {
        if (gestrichelt && (umgekehrt ? ende - m : m - anfang) % kStrichfolge >= kStrich) continue;
        const std::int64_t q = v >> 16;
        if constexpr (!Innen) {
            if (q < querVon || q > querBis) continue;
        }
        Pixel<Senkrecht>(m, q, farbe);
    }
}

/// The same line with the exact remainder of each step, from wherever it comes into the picture.
template <bool Senkrecht>
void Pixelbild::LangeSchritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) {
    const auto laengs = [](Flaechenpunkt p) { return std::int64_t{Senkrecht ? p.y : p.x}; };
    const auto quer = [](Flaechenpunkt p) { return std::int64_t{Senkrecht ? p.x : p.y}; };
    const bool umgekehrt = laengs(von) > laengs(nach);
    if (umgekehrt) std::swap(von, nach);
    const std::int64_t anfang = laengs(von);
    const std::int64_t ende = laengs(nach);
    const std::int64_t laenge = ende - anfang;
    const std::int64_t anstieg = quer(nach) - quer(von);
    const std::int64_t querVon = Senkrecht ? ausschnitt_.links : ausschnitt_.oben;
    const std::int64_t querBis = Senkrecht ? ausschnitt_.rechts : ausschnitt_.unten;
    std::int64_t m = std::max<std::int64_t>(anfang, Senkrecht ? ausschnitt_.oben : ausschnitt_.links);
    const std::int64_t letztes =
        std::min<std::int64_t>(ende, Senkrecht ? ausschnitt_.unten : ausschnitt_.rechts);
    // Half a step ahead where the line rises, as the short steps begin.
    auto [weg, rest] = TeileMitRest((m - anfang) * anstieg + (anstieg > 0 ? anstieg / 2 : 0), laenge);
    const auto [ganz, teil] = TeileMitRest(anstieg, laenge);
    for (std::int64_t q = quer(von) + weg; m <= letztes; ++m) {
        const bool luecke = gestrichelt && (umgekehrt ? ende - m : m - anfang) % kStrichfolge >= kStrich;
        if (!luecke && q >= querVon && q <= querBis) Pixel<Senkrecht>(m, q, farbe);
        q += ganz;
        rest += teil;
        if (rest >= laenge) {
            rest -= laenge;
            ++q;
        }
    }
}

inline void Pixelbild::Strecke(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) {
    const Rechteck& s = ausschnitt_;
    if (std::max(von.x, nach.x) < s.links || std::max(von.y, nach.y) < s.oben ||
        std::min(von.x, nach.x) > s.rechts || std::min(von.y, nach.y) > s.unten)
        return;
    const std::int64_t breit = std::llabs(std::int64_t{von.x} - nach.x);
    const std::int64_t hoch = std::llabs(std::int64_t{von.y} - nach.y);
    const bool senkrecht = breit < hoch;
    if (std::max(breit, hoch) > kLaengste) {
        senkrecht ? LangeSchritte<true>(von, nach, farbe, gestrichelt)
                  : LangeSchritte<false>(von, nach, farbe, gestrichelt);
    } else if (LiegtIn(s, von) && LiegtIn(s, nach)) {
        senkrecht ? Schritte<true, true>(von, nach, farbe, gestrichelt)
                  : Schritte<false, true>(von, nach, farbe, gestrichelt);
    } else {
        senkrecht ? Schritte<true, false>(von, nach, farbe, gestrichelt)
                  : Schritte<false, false>(von, nach, farbe, gestrichelt);
    }
}

void Pixelbild::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, Strichart art) {
    Strecke(von, nach, farbe, art == Strichart::Gestrichelt);
}

void Pixelbild::Linien(std::span<const Linienstueck> stuecke, std::uint32_t farbe) {
    for (const Linienstueck& s : stuecke)
        Strecke(s.von, s.nach, farbe, s.gestrichelt);
}

/// Pixels of one row from `x` on, bit by bit; `x` may lie left of the picture.
void Pixelbild::SetzeBits(std::uint64_t bits, std::int64_t x, std::size_t y, std::uint32_t farbe) {
    if (x < ausschnitt_.links) {
        const auto fehlt = static_cast<unsigned>(ausschnitt_.links - x);
        bits = bits >> fehlt << fehlt;
    }
    if (x + 63 > ausschnitt_.rechts)
        bits &= ~std::uint64_t{0} >> static_cast<unsigned>(x + 63 - ausschnitt_.rechts);
    if (bits == 0) return;
    std::uint32_t* zeile = bild_ + y * zeile_;
    if (deckung_.Aktiv()) {
        // In the words of the mask the bits begin in the middle; what was left of the picture is cleared.
        const auto bit = static_cast<unsigned>(x & 63);
        std::uint64_t neu = 0;
        const std::int64_t spalte = x >> 6;
        if (spalte >= 0 && bits << bit != 0)
            neu = deckung_.DeckePixel(static_cast<std::size_t>(spalte), y, bits << bit) >> bit;
        if (bit != 0 && bits >> (64U - bit) != 0)
            neu |= deckung_.DeckePixel(static_cast<std::size_t>(spalte + 1), y, bits >> (64U - bit))
                   << (64U - bit);
        bits = neu;
    }
    for (; bits != 0; bits &= bits - 1)
        zeile[x + std::countr_zero(bits)] = farbe;
}

/// A block of one word a row that lies in the picture as a whole.
void Pixelbild::FreierBlock(std::span<const std::uint64_t> worte, std::size_t x, std::size_t y,
                            std::uint32_t farbe) {
    std::uint32_t* zeile = bild_ + y * zeile_ + x;
    const auto bit = static_cast<unsigned>(x % 64);
    for (std::uint64_t bits : worte) {
        if (deckung_.Aktiv() && bits != 0) {
            const std::uint64_t links = deckung_.DeckePixel(x / 64, y, bits << bit) >> bit;
            const std::uint64_t ueber = bit != 0 ? bits >> (64U - bit) : 0;
            bits = links | (ueber != 0 ? deckung_.DeckePixel(x / 64 + 1, y, ueber) << (64U - bit) : 0);
        }
        for (; bits != 0; bits &= bits - 1)
            zeile[std::countr_zero(bits)] = farbe;
        zeile += zeile_;
        ++y;
    }
}

void Pixelbild::Block(std::span<const std::uint64_t> worte, std::size_t jeZeile, std::int64_t x,
                      std::int64_t y, std::uint32_t farbe) {
    const auto hoehe = static_cast<std::int64_t>(worte.size() / std::max<std::size_t>(jeZeile, 1));
    const std::int64_t weite = static_cast<std::int64_t>(jeZeile) * 64;
    const Rechteck& a = ausschnitt_;
    if (x > a.rechts || y > a.unten || x + weite <= a.links || y + hoehe <= a.oben) return;
    if (jeZeile == 1 && x >= a.links && y >= a.oben && x + 63 <= a.rechts && y + hoehe - 1 <= a.unten)
        return FreierBlock(worte, static_cast<std::size_t>(x), static_cast<std::size_t>(y), farbe);
    for (std::int64_t i = std::max<std::int64_t>(a.oben - y, 0); i < hoehe && y + i <= a.unten; ++i) {
        for (std::size_t w = 0; w < jeZeile; ++w) {
            const std::int64_t links = x + static_cast<std::int64_t>(w) * 64;
            const std::uint64_t bits = worte[static_cast<std::size_t>(i) * jeZeile + w];
            if (bits != 0 && links <= a.rechts && links + 63 >= a.links)
                SetzeBits(bits, links, static_cast<std::size_t>(y + i), farbe);
        }
    }
}

void Pixelbild::Maske(const Pixelmaske& maske, std::int32_t x, std::int32_t y, std::uint32_t farbe) {
    Block(maske.worte, maske.JeZeile(), std::int64_t{x} + maske.links, std::int64_t{y} + maske.oben, farbe);
}

}  // namespace zrw
