#include "output/beschriftung/Platzsuche.h"

#include <algorithm>
#include <bit>
#include <cassert>

#include "output/beschriftung/Festkosten.h"
#include "output/beschriftung/Zellgitter.h"

namespace zrw {

Platzsuche::Platzsuche(const std::vector<Schild>& schilder, std::vector<Flaechenpunkt>& lagen,
                       std::uint64_t saat)
    : schilder_(schilder), lagen_(lagen), zufall_(MischeBits(saat) | 1U) {}

void Platzsuche::NimmPlaetze(std::size_t schild, const std::vector<Schildplatz>& plaetze) {
    assert(platzAnfang_.size() == schild + 1);
    (void)schild;
    plaetze_.insert(plaetze_.end(), plaetze.begin(), plaetze.end());
    platzAnfang_.push_back(plaetze_.size());
}

/// Pairs that may overlap, each found in one cell only: where the parts that both may reach begin.
void Platzsuche::FindeNachbarn() {
    const std::size_t n = schilder_.size();
    std::vector<Kasten> reich(n);
    for (std::size_t i = 0; i < n; ++i) {
        // Where a label is now is no matter when it chooses anew.
        reich[i] = Platzzahl(i) == 0 ? kaesten_[i] : KastenVon(schilder_[i], plaetze_[platzAnfang_[i]].lage);
        for (std::size_t p = platzAnfang_[i]; p < platzAnfang_[i + 1]; ++p)
            reich[i].NimmKasten(KastenVon(schilder_[i], plaetze_[p].lage));
    }
    Zellgitter gitter(Zellgitter::Zellweite(reich, 16));
    gitter.FuelleGitter(reich);
    std::vector<std::uint8_t> zahl(n);
    std::vector<std::pair<std::uint32_t, std::uint32_t>> paare;
    const auto voll = [&](std::uint32_t i) { return zahl[i] >= kMeisteNachbarn; };
    std::vector<std::uint32_t> offen;
    gitter.FuerAlleZellen([&](std::int32_t x, std::int32_t y, std::span<const std::uint32_t> dinge) {
        offen.assign(dinge.begin(), dinge.end());
        for (std::size_t a = 0; a < offen.size(); ++a) {
            // Where very many lie on one spot, those that have enough are looked at no more.
            if (a % 256 == 255)
                offen.erase(std::remove_if(offen.begin() + static_cast<std::ptrdiff_t>(a), offen.end(), voll),
                            offen.end());
            if (a >= offen.size()) break;
            const std::uint32_t i = offen[a];
            const Kasten& r = reich[i];
            for (std::size_t b = a + 1; b < offen.size() && !voll(i); ++b) {
                const std::uint32_t j = offen[b];
                const Kasten& q = reich[j];
                if (voll(j) || !r.Ueberlappt(q) || Platzzahl(i) + Platzzahl(j) == 0) continue;
                if (gitter.Zelle(std::max(r.links, q.links)) != x ||
                    gitter.Zelle(std::max(r.oben, q.oben)) != y)
                    continue;
                ++zahl[i];
                ++zahl[j];
                paare.emplace_back(i, j);
            }
        }
    });
    nachbarAnfang_.assign(n + 1, 0);
    for (const auto& [i, j] : paare) {
        ++nachbarAnfang_[i + 1];
        ++nachbarAnfang_[j + 1];
    }
    for (std::size_t i = 1; i <= n; ++i)
        nachbarAnfang_[i] += nachbarAnfang_[i - 1];
    nachbarn_.resize(2 * paare.size());
    std::vector<std::size_t> naechster(nachbarAnfang_.begin(), nachbarAnfang_.end() - 1);
    for (const auto& [i, j] : paare) {
        nachbarn_[naechster[i]++] = j;
        nachbarn_[naechster[j]++] = i;
    }
}

/// Costs of a label at another place against its neighbours, compared with those where it is.
/// @param unfrei the least that comes out where the place is not free @param grenze more is no matter
std::int32_t Platzsuche::Aenderung(std::size_t i, const Kasten& neu, std::int32_t unfrei,
                                   std::int64_t grenze) const {
    const Kasten alt = kaesten_[i];
    std::int32_t betroffen = 0;
    std::int32_t paare = 0;
    bool frei = true;
    for (std::size_t n = nachbarAnfang_[i]; n < nachbarAnfang_[i + 1]; ++n) {
        const std::uint32_t j = nachbarn_[n];
        const bool war = alt.Ueberlappt(kaesten_[j]);
        const bool wird = neu.Ueberlappt(kaesten_[j]);
        if (wird && unfrei > grenze) return unfrei;
        frei = frei && !wird;
        if (war == wird) continue;
        paare += wird ? 1 : -1;
        betroffen += wird ? (konflikte_[j] == 0 ? 1 : 0) : (konflikte_[j] == 1 ? -1 : 0);
    }
    betroffen += (frei ? 0 : 1) - (konflikte_[i] != 0 ? 1 : 0);
    return betroffen * kKostenUeberlappt + paare * kKostenJePaar;
}

/// The least that `Aenderung` can be for a place that is not free.
std::int32_t Platzsuche::MindestensUnfrei(std::size_t i) const {
    if (konflikte_[i] == 0) return kKostenUeberlappt;
    std::int32_t loesbar = 0;
    FuerNachbarn(i, [&](std::uint32_t j) {
        loesbar += konflikte_[j] == 1 && kaesten_[i].Ueberlappt(kaesten_[j]) ? 1 : 0;
    });
    return -loesbar * kKostenUeberlappt - static_cast<std::int32_t>(konflikte_[i]) * kKostenJePaar;
}

void Platzsuche::SetzeKasten(std::size_t i, const Kasten& neu) {
    for (std::size_t n = nachbarAnfang_[i]; n < nachbarAnfang_[i + 1]; ++n) {
        const std::uint32_t j = nachbarn_[n];
        const bool war = kaesten_[i].Ueberlappt(kaesten_[j]);
        const bool wird = neu.Ueberlappt(kaesten_[j]);
        if (war == wird) continue;
        konflikte_[i] += wird ? 1U : ~0U;
        konflikte_[j] += wird ? 1U : ~0U;
    }
    kaesten_[i] = neu;
}

void Platzsuche::NimmPlatz(std::size_t i, std::uint32_t platz) {
    gewaehlt_[i] = platz;
    lagen_[i] = plaetze_[platzAnfang_[i] + platz].lage;
    SetzeKasten(i, KastenVon(schilder_[i], lagen_[i]));
}

/// The cheapest place as things are. Places are in the order of their own costs: the rest cannot be better.
bool Platzsuche::NimmBestenPlatz(std::size_t i, bool neu) {
    const Schildplatz* plaetze = plaetze_.data() + platzAnfang_[i];
    std::int32_t beste = neu ? 1 << 30 : plaetze[gewaehlt_[i]].kosten;
    const std::uint32_t bisher = gewaehlt_[i];
    std::uint32_t wahl = bisher;
    const std::int32_t unfrei = MindestensUnfrei(i);
    for (std::uint32_t p = 0; p < Platzzahl(i) && plaetze[p].kosten - Entlastung(i) < beste; ++p) {
        if (p == bisher && !neu) continue;
        const std::int32_t kosten =
            plaetze[p].kosten + Aenderung(i, KastenVon(schilder_[i], plaetze[p].lage), unfrei,
                                          std::int64_t{beste} - plaetze[p].kosten);
        if (kosten >= beste) continue;
        beste = kosten;
        wahl = p;
    }
    if (wahl == bisher && !neu) return false;
    NimmPlatz(i, wahl);
    return true;
}

/// The most that a label and its neighbours can gain when it goes elsewhere.
std::int32_t Platzsuche::Entlastung(std::size_t i) const {
    const auto k = static_cast<std::int32_t>(konflikte_[i]);
    return k == 0 ? 0 : (k + 1) * kKostenUeberlappt + k * kKostenJePaar;
}

/// Each in turn where it is best beside those before it.
void Platzsuche::BeginneGierig() {
    constexpr std::int32_t kFern = 1 << 30;
    constexpr Kasten kNirgends{kFern, kFern, -kFern, -kFern};
    const std::size_t n = schilder_.size();
    std::vector<std::uint32_t> beweglich;
    for (std::size_t i = 0; i < n; ++i)
        if (Platzzahl(i) != 0) beweglich.push_back(static_cast<std::uint32_t>(i));
    for (const std::uint32_t i : beweglich)
        kaesten_[i] = kNirgends;
    ZaehleKonflikte();
    for (const std::uint32_t i : beweglich) {
        if (ruht_[i])
            NimmPlatz(i, 0);
        else
            NimmBestenPlatz(i, true);
    }
}

std::uint64_t Platzsuche::Zufallszahl() {
    zufall_ ^= zufall_ << 13U;
    zufall_ ^= zufall_ >> 7U;
    zufall_ ^= zufall_ << 17U;
    return zufall_ * 0x2545F4914F6CDD1DULL >> 16U;
}

/// A loss that annealing still takes at such a temperature: exponentially distributed, in whole numbers.
std::int64_t Platzsuche::Duldung(std::int64_t waerme) {
    const auto u = static_cast<std::uint32_t>(Zufallszahl()) | 1U;
    // -log2 of u / 2^32, straight between the powers of two [2^-16].
    const int null = std::countl_zero(u);
    const std::uint64_t rest = (std::uint64_t{u} << static_cast<unsigned>(null)) & 0x7FFFFFFFU;
    const std::int64_t stufen = (std::int64_t{null} + 1) * 65536 - static_cast<std::int64_t>(rest >> 15U);
    constexpr std::int64_t kNatuerlich = 45426;  // ln 2 * 2^16
    return waerme * (stufen * kNatuerlich >> 16U) >> 16U;
}

/// One try for each label of a block.
void Platzsuche::Waerme(std::size_t von, std::size_t bis, std::int64_t waerme) {
    constexpr std::int32_t kUnbekannt = -(1 << 30);
    for (std::size_t i = von; i < bis; ++i) {
        const std::size_t zahl = Platzzahl(i);
        if (zahl < 2 || ruht_[i] || nachbarAnfang_[i] == nachbarAnfang_[i + 1]) continue;
        const std::uint64_t z = Zufallszahl();
        // Rather one of the cheap ones, where there are many.
        const std::uint64_t eins = z & 0xFFFFU;
        const std::uint64_t zwei = zahl > 8 ? z >> 16U & 0xFFFFU : 0xFFFFU;
        const auto p = static_cast<std::uint32_t>(eins * zwei * zahl >> 32U);
        if (p == gewaehlt_[i]) continue;
        const Schildplatz* plaetze = plaetze_.data() + platzAnfang_[i];
        const std::int64_t duldung = Duldung(waerme);
        const std::int64_t eigene = std::int64_t{plaetze[p].kosten} - plaetze[gewaehlt_[i]].kosten;
        if (eigene - Entlastung(i) > duldung) continue;
        const std::int32_t unfrei = konflikte_[i] == 0 ? kKostenUeberlappt : kUnbekannt;
        const Kasten neu = KastenVon(schilder_[i], plaetze[p].lage);
        if (eigene + Aenderung(i, neu, unfrei, duldung - eigene) <= duldung) NimmPlatz(i, p);
    }
}

/// Each to its best place, until none moves.
void Platzsuche::VerbessereAlle(std::size_t von, std::size_t bis) {
    constexpr int kMeiste = 12;
    bool besser = true;
    for (int d = 0; d < kMeiste && besser; ++d) {
        besser = false;
        for (std::size_t i = von; i < bis; ++i)
            if (!ruht_[i] && NimmBestenPlatz(i, false)) besser = true;
    }
}

void Platzsuche::ZaehleKonflikte() {
    konflikte_.assign(schilder_.size(), 0);
    for (std::size_t i = 0; i < schilder_.size(); ++i) {
        FuerNachbarn(i, [&](std::uint32_t j) {
            if (kaesten_[i].Ueberlappt(kaesten_[j])) ++konflikte_[i];
        });
    }
}

void Platzsuche::LegeKaesten() {
    kaesten_.resize(schilder_.size());
    for (std::size_t i = 0; i < schilder_.size(); ++i)
        kaesten_[i] = KastenVon(schilder_[i], lagen_[i]);
    FindeNachbarn();
    gewaehlt_.assign(schilder_.size(), 0);
    ruht_.assign(schilder_.size(), false);
    for (std::size_t i = 0; i < schilder_.size(); ++i) {
        const std::size_t nachbarn = nachbarAnfang_[i + 1] - nachbarAnfang_[i];
        ruht_[i] = Platzzahl(i) == 0 || (nachbarn >= kMeisteNachbarn && Platzzahl(i) <= kNahePlaetze);
    }
}

bool Platzsuche::SuchePlaetze(int durchgaenge, const Fortschritt& fortschritt) {
    constexpr std::int64_t kHeiss = 5000;
    constexpr std::int64_t kKalt = 300;
    const std::size_t n = schilder_.size();
    LegeKaesten();
    BeginneGierig();
    for (std::size_t von = 0; von < n; von += kBlock) {
        if (fortschritt && !fortschritt(static_cast<int>(von * 1000 / n))) return false;
        const std::size_t bis = std::min(n, von + kBlock);
        // Cools by the same factor from sweep to sweep [2^-16].
        std::int64_t waerme = kHeiss << 16U;
        for (int d = 0; d < durchgaenge && waerme >> 16U > kKalt; ++d) {
            Waerme(von, bis, waerme >> 16U);
            waerme -= waerme / std::max(1, durchgaenge / 3);
        }
        VerbessereAlle(von, bis);
    }
    VerbessereAlle(0, n);
    return true;
}

void Platzsuche::RueckePlaetze() {
    LegeKaesten();
    ZaehleKonflikte();
    for (std::size_t i = 0; i < schilder_.size(); ++i) {
        const Schildplatz* plaetze = plaetze_.data() + platzAnfang_[i];
        for (std::uint32_t p = 0; p < Platzzahl(i); ++p)
            if (plaetze[p].lage == lagen_[i]) gewaehlt_[i] = p;
    }
    VerbessereAlle(0, schilder_.size());
}

}  // namespace zrw
