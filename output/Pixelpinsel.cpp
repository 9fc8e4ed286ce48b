#include "output/Pixelpinsel.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <utility>

#include "output/Zielbild.h"

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

constexpr int kWort = 64;  ///< [px]

/// Where a character of a text stands.
struct Zeichenstelle {
    const std::uint64_t* zeilen;
    int von;  ///< its first pixel, from where the text begins
    int bis;  ///< beyond its last
};

/// Some rows of one word, spelled out for each pair: they stay in registers.
template <std::size_t... Paar>
void FuegePaareZusammen(std::span<const Zeichenstelle> zeichen, int ab, std::size_t erstes,
                        std::uint64_t* ziel, std::index_sequence<Paar...> /*paare*/) {
    using Zwei = std::uint64_t __attribute__((vector_size(16)));
    std::array<Zwei, sizeof...(Paar)> summe{};
    for (const Zeichenstelle& z : zeichen) {
        if (z.von >= ab + kWort || z.bis <= ab) continue;
        const auto zeilen = [&](std::size_t paar) {
            Zwei v;
            std::memcpy(&v, z.zeilen + 2 * (erstes + paar), sizeof v);
            return v;
        };
        if (const int x = z.von - ab; x >= 0) {
            ((summe[Paar] |= zeilen(Paar) << x), ...);
        } else {
            ((summe[Paar] |= zeilen(Paar) >> -x), ...);
        }
    }
    std::memcpy(ziel + 2 * erstes, summe.data(), sizeof summe);
}

/// The rows of one word of a text. @param ab its first pixel, from where the text begins
/// @param ziel has room for an even number of rows
void FuegeZusammen(std::span<const Zeichenstelle> zeichen, int ab, std::size_t zeilen, std::uint64_t* ziel) {
    std::size_t paar = 0;
    const std::size_t paare = (zeilen + 1) / 2;
    for (; paar + 4 <= paare; paar += 4)
        FuegePaareZusammen(zeichen, ab, paar, ziel, std::make_index_sequence<4>());
    if (paar + 2 <= paare) {
        FuegePaareZusammen(zeichen, ab, paar, ziel, std::make_index_sequence<2>());
        paar += 2;
    }
    if (paar < paare) FuegePaareZusammen(zeichen, ab, paar, ziel, std::make_index_sequence<1>());
}

}  // namespace

void Pixelpinsel::FuelleRechteck(const Rechteck& r, std::uint32_t farbe) const {
    assert(deckung == nullptr);
    const Rechteck teil = Geschnitten(r, bereich);
    if (Leer(teil)) return;
    FuelleZeilen(bild + static_cast<std::size_t>(teil.oben) * zeile + teil.links, zeile,
                 teil.rechts - teil.links + 1, teil.unten - teil.oben + 1, farbe);
}

// --- Strokes ----------------------------------------------------------------------------------------------

/// A stroke's steps along its longer axis, from its first end on.
struct Pixelpinsel::Schritte {
    std::int64_t m;  ///< along it, of the first step
    std::int64_t v;  ///< across it [1/65536 px]
    std::int64_t dm;
    std::int64_t dv;
    std::int64_t anzahl;

    /// Not steeper than the diagonal and at most `kLaengste`, so that 32 bits suffice.
    Schritte(Flaechenpunkt von, Flaechenpunkt nach, bool senkrecht) {
        static_assert(kLaengste * 65536 <= std::numeric_limits<std::int32_t>::max());
        const std::int32_t anfang = senkrecht ? von.y : von.x;
        const std::int32_t ende = senkrecht ? nach.y : nach.x;
        const std::int32_t querAnfang = senkrecht ? von.x : von.y;
        const std::int32_t querEnde = senkrecht ? nach.x : nach.y;
        const bool umgekehrt = anfang > ende;
        const std::int32_t laenge = umgekehrt ? anfang - ende : ende - anfang;
        const std::int32_t anstieg = umgekehrt ? querAnfang - querEnde : querEnde - querAnfang;
        // From the smaller end, half a step ahead where the line rises.
        const std::int32_t schritt = laenge > 0 ? anstieg * 65536 / laenge : 0;
        const std::int32_t voraus = schritt > 0 ? schritt - (schritt >> 1) : 0;
        anzahl = std::int64_t{laenge} + 1;
        m = anfang;
        v = std::int64_t{umgekehrt ? querEnde : querAnfang} * 65536 + voraus;
        v += umgekehrt ? std::int64_t{laenge} * schritt : 0;
        dm = umgekehrt ? -1 : 1;
        dv = umgekehrt ? -schritt : schritt;
    }
    /// Calls `tun(m, across)` for the steps in dashes.
    template <class Tun>
    void FuerAlle(bool gestrichelt, Tun tun) const {
        const std::int64_t strich = gestrichelt ? kStrich : anzahl;
        std::int64_t stelle = m;
        std::int64_t quer = v;
        for (std::int64_t rest = anzahl; rest > 0; rest -= kStrichfolge) {
            for (std::int64_t n = std::min(strich, rest); n > 0; --n, stelle += dm, quer += dv)
                tun(stelle, quer >> 16);
            if (!gestrichelt) return;
            stelle += (kStrichfolge - kStrich) * dm;
            quer += (kStrichfolge - kStrich) * dv;
        }
    }
    /// The same for those between two places along it.
    template <class Tun>
    void FuerAlleZwischen(std::int64_t von, std::int64_t bis, bool gestrichelt, Tun tun) const {
        const std::int64_t erster = std::max<std::int64_t>(dm > 0 ? von - m : m - bis, 0);
        const std::int64_t letzter = std::min(dm > 0 ? bis - m : m - von, anzahl - 1);
        for (std::int64_t i = erster; i <= letzter; ++i) {
            if (!gestrichelt || i % kStrichfolge < kStrich) tun(m + i * dm, (v + i * dv) >> 16);
        }
    }
};

inline void Pixelpinsel::KurzeLinie(Flaechenpunkt von, Flaechenpunkt nach, bool senkrecht,
                                    std::uint32_t farbe, bool gestrichelt) const {
    const Schritte schritte(von, nach, senkrecht);
    if (!LiegtIn(bereich, von) || !LiegtIn(bereich, nach)) {
        const std::int64_t querVon = senkrecht ? bereich.links : bereich.oben;
        const std::int64_t querBis = senkrecht ? bereich.rechts : bereich.unten;
        schritte.FuerAlleZwischen(senkrecht ? bereich.oben : bereich.links,
                                  senkrecht ? bereich.unten : bereich.rechts, gestrichelt,
                                  [&](std::int64_t m, std::int64_t q) {
                                      if (q >= querVon && q <= querBis)
                                          SetzePixel(senkrecht ? q : m, senkrecht ? m : q, farbe);
                                  });
    } else if (deckung != nullptr) {
        schritte.FuerAlle(gestrichelt, [&](std::int64_t m, std::int64_t q) {
            SetzePixel(senkrecht ? q : m, senkrecht ? m : q, farbe);
        });
    } else {
        const auto zeilen = static_cast<std::int64_t>(zeile);
        const std::int64_t laengs = senkrecht ? zeilen : 1;
        const std::int64_t quer = senkrecht ? 1 : zeilen;
        std::uint32_t* const pixel = bild;
        schritte.FuerAlle(gestrichelt,
                          [=](std::int64_t m, std::int64_t q) { pixel[m * laengs + q * quer] = farbe; });
    }
}

/// The same line with the exact remainder of each step, from wherever it comes into the picture.
template <bool Senkrecht>
void Pixelpinsel::LangeSchritte(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe,
                                bool gestrichelt) const {
    const auto laengs = [](Flaechenpunkt p) { return std::int64_t{Senkrecht ? p.y : p.x}; };
    const auto quer = [](Flaechenpunkt p) { return std::int64_t{Senkrecht ? p.x : p.y}; };
    const bool umgekehrt = laengs(von) > laengs(nach);
    if (umgekehrt) std::swap(von, nach);
    const std::int64_t anfang = laengs(von);
    const std::int64_t ende = laengs(nach);
    const std::int64_t laenge = ende - anfang;
    const std::int64_t anstieg = quer(nach) - quer(von);
    const std::int64_t querVon = Senkrecht ? bereich.links : bereich.oben;
    const std::int64_t querBis = Senkrecht ? bereich.rechts : bereich.unten;
    std::int64_t m = std::max<std::int64_t>(anfang, Senkrecht ? bereich.oben : bereich.links);
    const std::int64_t letztes = std::min<std::int64_t>(ende, Senkrecht ? bereich.unten : bereich.rechts);
    // Half a step ahead where the line rises, as the short steps begin.
    auto [weg, rest] = TeileMitRest((m - anfang) * anstieg + (anstieg > 0 ? anstieg / 2 : 0), laenge);
    const auto [ganz, teil] = TeileMitRest(anstieg, laenge);
    for (std::int64_t q = quer(von) + weg; m <= letztes; ++m) {
        const bool luecke = gestrichelt && (umgekehrt ? ende - m : m - anfang) % kStrichfolge >= kStrich;
        if (!luecke && q >= querVon && q <= querBis) SetzePixel(Senkrecht ? q : m, Senkrecht ? m : q, farbe);
        q += ganz;
        rest += teil;
        if (rest >= laenge) {
            rest -= laenge;
            ++q;
        }
    }
}

void Pixelpinsel::Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt) const {
    const Rechteck& s = bereich;
    if (std::max(von.x, nach.x) < s.links || std::max(von.y, nach.y) < s.oben ||
        std::min(von.x, nach.x) > s.rechts || std::min(von.y, nach.y) > s.unten)
        return;
    const std::int32_t breit = std::abs(von.x - nach.x);
    const std::int32_t hoch = std::abs(von.y - nach.y);
    const bool senkrecht = breit < hoch;
    if (std::max(breit, hoch) > kLaengste) {
        senkrecht ? LangeSchritte<true>(von, nach, farbe, gestrichelt)
                  : LangeSchritte<false>(von, nach, farbe, gestrichelt);
    } else {
        KurzeLinie(von, nach, senkrecht, farbe, gestrichelt);
    }
}

// --- Masks and texts --------------------------------------------------------------------------------------

/// Some rows of a column of words. Bit by bit: reading pixels to write four at a time takes longer, as most
/// of them are far from the core. What does not change is named before, for pixels might overwrite it.
template <bool Gefuellt>
void Pixelpinsel::SetzeSpalte(const Block& b, std::size_t spalte, std::int64_t x, std::int64_t y,
                              const Tinte& tinte) const {
    constexpr std::size_t kAufEinmal = 32;
    const std::uint64_t drin = Darin(x, bereich);
    if (drin == 0) return;
    const std::size_t jeZeile = b.jeZeile;
    const std::uint32_t farbe = tinte.farbe;
    const std::uint32_t fuellfarbe = tinte.fuellfarbe;
    const std::size_t schritt = zeile;
    const std::int64_t nachLetzter = std::min<std::int64_t>(bereich.unten + 1 - y, b.hoehe);
    std::array<std::uint64_t, kAufEinmal> beide;  // NOLINT(*-member-init): only those in use are set up
    std::array<std::uint64_t, kAufEinmal> freie;  // NOLINT(*-member-init): likewise
    for (std::int64_t n = std::max<std::int64_t>(bereich.oben - y, 0); n < nachLetzter;) {
        const auto anzahl = static_cast<std::size_t>(std::min<std::int64_t>(nachLetzter - n, kAufEinmal));
        const std::size_t erstes = static_cast<std::size_t>(n) * jeZeile + spalte;
        for (std::size_t i = 0, wort = erstes; i < anzahl; ++i, wort += jeZeile)
            beide[i] = (Gefuellt ? b.worte[wort] | tinte.fuellung[wort] : b.worte[wort]) & drin;
        if (deckung != nullptr)
            deckung->DeckeZeilen(x, static_cast<std::size_t>(y + n), {beide.data(), anzahl}, freie.data());
        const std::uint64_t* frei = deckung != nullptr ? freie.data() : beide.data();
        std::uint32_t* dort = bild + (y + n) * static_cast<std::int64_t>(schritt) + x;
        const auto setze = [&dort](std::uint64_t bits, std::uint32_t f) {
            for (; bits != 0; bits &= bits - 1)
                dort[std::countr_zero(bits)] = f;
        };
        for (std::size_t i = 0, wort = erstes; i < anzahl; ++i, wort += jeZeile, dort += schritt) {
            if (frei[i] == 0) continue;
            setze(Gefuellt ? frei[i] & b.worte[wort] : frei[i], farbe);
            if (Gefuellt) setze(frei[i] & ~b.worte[wort], fuellfarbe);
        }
        n += static_cast<std::int64_t>(anzahl);
    }
}

void Pixelpinsel::SetzeBlock(const Block& b, std::int64_t x, std::int64_t y, const Tinte& tinte) const {
    for (std::size_t spalte = 0; spalte < b.jeZeile; ++spalte) {
        const std::int64_t dort = x + static_cast<std::int64_t>(spalte) * kWort;
        tinte.fuellung != nullptr ? SetzeSpalte<true>(b, spalte, dort, y, tinte)
                                  : SetzeSpalte<false>(b, spalte, dort, y, tinte);
    }
}

void Pixelpinsel::Maske(const Pixelmaske& maske, Flaechenpunkt ort, std::uint32_t farbe) const {
    if (maske.worte.empty()) return;
    SetzeBlock({maske.worte.data(), maske.hoehe, maske.JeZeile()}, std::int64_t{ort.x} + maske.links,
               std::int64_t{ort.y} + maske.oben, {farbe, nullptr, 0});
}

void Pixelpinsel::Stempel(const Pixelmaske& rand, const Pixelmaske& fuellung, Flaechenpunkt ort,
                          std::uint32_t farbe, std::uint32_t fuellfarbe) const {
    if (rand.worte.empty()) return;
    SetzeBlock({rand.worte.data(), rand.hoehe, rand.JeZeile()}, std::int64_t{ort.x} + rand.links,
               std::int64_t{ort.y} + rand.oben, {farbe, fuellung.worte.data(), fuellfarbe});
}

/// Characters are gathered into words, so that each row is set at once.
void Pixelpinsel::Text(Flaechenpunkt ort, std::string_view text, std::uint32_t farbe,
                       const Glyphensatz& schrift) const {
    // Of many texts at one place most are hidden: that shows before their characters are put together.
    if (deckung != nullptr &&
        deckung->GenauVerdeckt(Geschnitten(schrift.Umfang(ort, *schrift.Textbreite(text)), bereich)))
        return;
    std::array<Zeichenstelle, kMeisteZeichen> stellen;  // NOLINT(*-member-init): only those in use are set up
    std::size_t anzahl = 0;
    int stelle = -schrift.Links();
    int bis = 0;
    for (const char c : text) {
        const Glyphensatz::Glyphe& g = schrift.Glyphenangaben(c);
        const int x = stelle + g.links;
        stelle += g.vorschub;
        if (g.leer) continue;
        stellen[anzahl++] = {schrift.Zeilen(c), x, x + g.weite};
        bis = std::max(bis, x + g.weite);
    }
    const auto zeilen = static_cast<std::size_t>(schrift.Hoehe());
    std::array<std::uint64_t, Glyphensatz::kGroesste> worte;  // NOLINT(*-member-init): likewise
    for (int ab = 0; ab < bis; ab += kWort) {
        FuegeZusammen({stellen.data(), anzahl}, ab, zeilen, worte.data());
        SetzeSpalte<false>({worte.data(), schrift.Hoehe(), 1}, 0, std::int64_t{ort.x} + schrift.Links() + ab,
                           std::int64_t{ort.y} + schrift.Oben(), {farbe, nullptr, 0});
    }
}

}  // namespace zrw
