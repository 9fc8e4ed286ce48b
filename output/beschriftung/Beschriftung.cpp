#include "output/beschriftung/Beschriftung.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <tuple>
#include <utility>

#include "output/beschriftung/Festkosten.h"
#include "output/beschriftung/Platzmuster.h"
#include "output/beschriftung/Platzsuche.h"
#include "output/beschriftung/Zellgitter.h"

namespace zrw {
namespace {

/// Rings of places [heights / 10]. Labels that find nothing free on the first ones try the next, too.
struct Ringstufe {
    std::array<std::int32_t, 3> abstaende;
};
constexpr auto kStufen =
    std::to_array<Ringstufe>({{{4, 9, 16}}, {{20, 25, 30}}, {{36, 43, 50}}, {{60, 70, 80}}});
constexpr std::size_t kMeisteFernplaetze = 240;
constexpr std::size_t kHoffnungslos = 2000;
constexpr std::size_t kSehrViele = 4096;

/// Distance in a row of neighbours: positions with their bits in turn.
std::uint64_t Reihenfolge(Flaechenpunkt p) {
    const auto spreize = [](std::int32_t v) {
        std::uint64_t b = static_cast<std::uint32_t>(v + kFernsterOrt);
        b = (b | b << 16U) & 0x0000FFFF0000FFFFULL;
        b = (b | b << 8U) & 0x00FF00FF00FF00FFULL;
        b = (b | b << 4U) & 0x0F0F0F0F0F0F0F0FULL;
        b = (b | b << 2U) & 0x3333333333333333ULL;
        return (b | b << 1U) & 0x5555555555555555ULL;
    };
    return spreize(p.x) | spreize(p.y) << 1U;
}

/// The task as the search wants it: near each other what lies near each other, nothing too far or too large.
struct Arbeit {
    Beschriftungsaufgabe aufgabe;
    std::vector<std::uint32_t> woher;  ///< place of each label in the task as it came
    std::vector<Flaechenpunkt> lagen;
    Kasten alles;            ///< round all places
    std::int32_t zelle = 1;  ///< of grids: few of them hold the places of a label

    explicit Arbeit(const Beschriftungsaufgabe& a);
};

Arbeit::Arbeit(const Beschriftungsaufgabe& a) : aufgabe(a) {
    std::vector<std::pair<std::uint64_t, std::uint32_t>> reihe;
    for (std::size_t i = 0; i < a.schilder.size(); ++i) {
        const Schild& s = a.schilder[i];
        if (s.weite > 0 && s.hoehe > 0)
            reihe.emplace_back(Reihenfolge(Begrenzt(s.punkt)), static_cast<std::uint32_t>(i));
    }
    std::sort(reihe.begin(), reihe.end());
    std::vector<Kasten> reich;
    aufgabe.schilder.clear();
    for (const auto& [ort, i] : reihe) {
        Schild s = a.schilder[i];
        s.punkt = Begrenzt(s.punkt);
        s.lage = Begrenzt(s.lage);
        s.weite = std::min(s.weite, kGroesstesSchild);
        s.hoehe = std::min(s.hoehe, kGroesstesSchild);
        s.radius = std::clamp(s.radius, 0, kGroesstesSchild);
        const Kasten k = KastenVon(s, {-s.weite, -s.hoehe});
        const Kasten kasten = k.Erweitert(10 * s.hoehe + s.radius);
        if (woher.empty()) alles = kasten;
        alles.NimmKasten(kasten);
        reich.push_back(k.Erweitert(s.weite + 2 * s.hoehe));
        woher.push_back(i);
        lagen.push_back(s.lage);
        aufgabe.schilder.push_back(s);
    }
    constexpr std::int32_t kMindestens = 256;
    zelle = Zellgitter::Zellweite(reich, kMindestens);
    BegrenzeHindernisse(aufgabe);
}

/// One round after the other, each for the labels that have found no free place before.
class Schildordnung {
  public:
    Schildordnung(const Beschriftungsaufgabe& aufgabe, const Beschriftungswahl& wahl,
                  const Fortschritt& fortschritt)
        : arbeit_(aufgabe),
          wahl_(wahl),
          fortschritt_(fortschritt),
          kosten_(arbeit_.aufgabe, arbeit_.zelle, arbeit_.alles),
          aktiv_(arbeit_.lagen.size()) {}

    [[nodiscard]] bool OrdneAlle();
    [[nodiscard]] const Arbeit& Ergebnis() const { return arbeit_; }

  private:
    [[nodiscard]] bool Ordne(std::size_t stufe);
    [[nodiscard]] bool Gleite();
    void LegePlaetze(std::size_t i, std::size_t stufe);
    void BewertePlaetze(const Schild& s, std::size_t meiste);
    [[nodiscard]] bool Melde(int von, int bis, std::size_t i) const;

    Arbeit arbeit_;
    const Beschriftungswahl& wahl_;
    const Fortschritt& fortschritt_;
    Festkosten kosten_;
    std::vector<bool> aktiv_;
    std::vector<Flaechenpunkt> orte_;   ///< of the label in hand
    std::vector<Schildplatz> plaetze_;  ///< the same with their costs
};

/// @return false: it was stopped
bool Schildordnung::Melde(int von, int bis, std::size_t i) const {
    constexpr std::size_t kTakt = 512;
    if (!fortschritt_ || i % kTakt != 0) return true;
    const double teil = static_cast<double>(i) / static_cast<double>(arbeit_.lagen.size());
    return fortschritt_(von + static_cast<int>((bis - von) * teil));
}

void Schildordnung::LegePlaetze(std::size_t i, std::size_t stufe) {
    const Schild& s = arbeit_.aufgabe.schilder[i];
    orte_.clear();
    for (std::size_t n = 0; n <= stufe; ++n) {
        for (const std::int32_t abstand : kStufen[n].abstaende)
            if (abstand <= wahl_.weitester && (!wahl_.anliegend || orte_.empty()))
                NimmRing(s, wahl_, abstand, orte_);
    }
    BewertePlaetze(s, stufe == 0 ? kNahePlaetze : kMeisteFernplaetze);
}

/// The cheapest of the places in hand, in the order of their costs.
void Schildordnung::BewertePlaetze(const Schild& s, std::size_t meiste) {
    plaetze_.clear();
    if (orte_.empty()) return;
    Kasten reich = KastenVon(s, orte_.front());
    for (const Flaechenpunkt p : orte_)
        reich.NimmKasten(KastenVon(s, p));
    kosten_.SammleUmgebung(s, reich);
    for (const Flaechenpunkt p : orte_)
        plaetze_.push_back({p, kosten_.KostenBei(s, p, kKostenSymbol)});
    std::sort(plaetze_.begin(), plaetze_.end(), [](const Schildplatz& a, const Schildplatz& b) {
        return std::tie(a.kosten, a.lage.x, a.lage.y) < std::tie(b.kosten, b.lage.x, b.lage.y);
    });
    plaetze_.resize(std::min(plaetze_.size(), meiste));
}

bool Schildordnung::Ordne(std::size_t stufe) {
    const std::size_t n = arbeit_.lagen.size();
    const int von = static_cast<int>(stufe) * 220;
    Platzsuche suche(arbeit_.aufgabe.schilder, arbeit_.lagen, wahl_.saat + stufe);
    for (std::size_t i = 0; i < n; ++i) {
        if (!Melde(von, von + 110, i)) return false;
        plaetze_.clear();
        if (aktiv_[i]) LegePlaetze(i, stufe);
        suche.NimmPlaetze(i, plaetze_);
    }
    const auto melde = [&](int promille) { return fortschritt_(von + 110 + promille * 110 / 1000); };
    // Very many take a shorter search: who waits for them waits long enough.
    const int durchgaenge = n > kSehrViele ? wahl_.durchgaenge / 4 : wahl_.durchgaenge;
    if (!suche.SuchePlaetze(durchgaenge, fortschritt_ ? Fortschritt(melde) : Fortschritt())) return false;
    std::fill(aktiv_.begin(), aktiv_.end(), false);
    std::size_t konflikte = 0;
    for (std::size_t i = 0; i < n; ++i)
        konflikte += suche.ImKonflikt(i) ? 1U : 0U;
    // Where so many lie upon each other there is no room farther away either.
    if (konflikte > kHoffnungslos && konflikte > n / 4) return true;
    for (std::size_t i = 0; i < n; ++i) {
        if (!suche.ImKonflikt(i)) continue;
        // With those that might make room.
        aktiv_[i] = !arbeit_.aufgabe.schilder[i].fest;
        suche.FuerNachbarn(i, [&](std::uint32_t j) { aktiv_[j] = !arbeit_.aufgabe.schilder[j].fest; });
    }
    return true;
}

bool Schildordnung::Gleite() {
    constexpr auto kSchritte = std::to_array<std::int32_t>({-4, -2, -1, 0, 1, 2, 4});
    const std::size_t n = arbeit_.lagen.size();
    Platzsuche suche(arbeit_.aufgabe.schilder, arbeit_.lagen, wahl_.saat);
    for (std::size_t i = 0; i < n; ++i) {
        if (!Melde(880, 990, i)) return false;
        const Schild& s = arbeit_.aufgabe.schilder[i];
        orte_.clear();
        plaetze_.clear();
        if (!s.fest) {
            orte_.push_back(arbeit_.lagen[i]);
            BewertePlaetze(s, 1);
        }
        // Of very many only those that are crossed by something are worth the time.
        if (!s.fest && (n <= kSehrViele || plaetze_.front().kosten >= kKostenFremd)) {
            orte_.clear();
            for (const std::int32_t y : kSchritte) {
                for (const std::int32_t x : kSchritte)
                    orte_.push_back(
                        {arbeit_.lagen[i].x + x * wahl_.raster, arbeit_.lagen[i].y + y * wahl_.raster});
            }
            BewertePlaetze(s, orte_.size());
        }
        suche.NimmPlaetze(i, plaetze_);
    }
    suche.RueckePlaetze();
    return true;
}

bool Schildordnung::OrdneAlle() {
    const auto& schilder = arbeit_.aufgabe.schilder;
    for (std::size_t i = 0; i < schilder.size(); ++i)
        aktiv_[i] = !schilder[i].fest;
    for (std::size_t stufe = 0; stufe < kStufen.size(); ++stufe) {
        if (stufe > 0 && (wahl_.anliegend || kStufen[stufe].abstaende.front() > wahl_.weitester)) break;
        if (std::find(aktiv_.begin(), aktiv_.end(), true) == aktiv_.end()) break;
        if (!Ordne(stufe)) return false;
    }
    return !wahl_.gleiten || Gleite();
}

}  // namespace

std::optional<std::vector<Flaechenpunkt>> OrdneSchilder(const Beschriftungsaufgabe& aufgabe,
                                                        const Beschriftungswahl& wahl,
                                                        const Fortschritt& fortschritt) {
    Schildordnung ordnung(aufgabe, wahl, fortschritt);
    if (!ordnung.OrdneAlle()) return std::nullopt;
    std::vector<Flaechenpunkt> lagen;
    lagen.reserve(aufgabe.schilder.size());
    for (const Schild& s : aufgabe.schilder)
        lagen.push_back(s.lage);
    const Arbeit& a = ordnung.Ergebnis();
    for (std::size_t i = 0; i < a.woher.size(); ++i)
        if (!a.aufgabe.schilder[i].fest) lagen[a.woher[i]] = a.lagen[i];
    return lagen;
}

}  // namespace zrw
