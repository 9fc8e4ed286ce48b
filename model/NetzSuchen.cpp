// Which figures may touch a part of a picture: keeps the trees of `Netzsuche` in step with the lists.
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "model/Ganzzahl.h"
#include "model/Netz.h"

namespace zrw {
namespace {

/// Labels farther from their points are kept beside the tree [px].
constexpr std::int64_t kNah = 64;

using Folgen = std::vector<std::uint32_t>;

bool Endlich(const PunktKnoten& p) {
    return std::isfinite(p.XWPu) && std::isfinite(p.YWPu);
}

Weltkasten Kasten(const PunktKnoten& p) {
    return {p.XWPu, p.YWPu, p.XWPu, p.YWPu};
}

bool Nah(const PktText& t) {
    return t.XBiO >= -kNah && t.XBiO <= kNah && t.YBiO >= -kNah && t.YBiO <= kNah;
}

/// Figures by the place of their point.
class NachRang {
  public:
    explicit NachRang(std::size_t raenge) : platz_(raenge + 1) {}
    void NimmFigur(std::uint32_t rang, std::uint32_t folge) {
        eintraege_.emplace_back(rang, folge);
        ++platz_[rang + 1];
    }
    [[nodiscard]] Folgen Sortiert() {
        std::partial_sum(platz_.begin(), platz_.end(), platz_.begin());
        Folgen sortiert(eintraege_.size());
        for (const auto& [rang, folge] : eintraege_)
            sortiert[platz_[rang]++] = folge;
        return sortiert;
    }

  private:
    std::vector<std::pair<std::uint32_t, std::uint32_t>> eintraege_;
    Folgen platz_;
};

/// How much of a range lies in another one.
double Anteil(double von, double bis, double a, double b) {
    return bis > von ? std::max(std::min(bis, b) - std::max(von, a), 0.0) / (bis - von) : 1.0;
}

/// Where the points of labels lie that begin in the rectangle, or whose point lies in it.
Bildbereich OhneAbstand(const Bildbereich& b, const Bildbereich& abstaende) {
    return {Differenz(b.links, abstaende.rechts), Differenz(b.oben, abstaende.unten),
            Differenz(b.rechts, abstaende.links), Differenz(b.unten, abstaende.oben)};
}

}  // namespace

/// False where all figures may as well be asked: the view holds a good part of the network, or shows nothing.
bool Netz::Suchbereit(const Bildlage& lage, const Bildbereich& b) const {
    constexpr double kGuterTeil = 0.25;
    if (!Brauchbar(lage)) return false;
    if (!suche_.alles) suche_.alles = PunktKnoten != nullptr ? Ausdehnung() : Weltkasten{};
    const Weltkasten wo = WeltUnter(lage, b);
    const Weltkasten& netz = *suche_.alles;
    if (Anteil(netz.links, netz.rechts, wo.links, wo.rechts) *
            Anteil(netz.unten, netz.oben, wo.unten, wo.oben) >
        kGuterTeil)
        return false;
    if (suche_.Ueberholt()) BaueSuche();
    return true;
}

void Netz::BaueSuche() const {
    suche_.VergissBaeume();
    suche_.gebaut = true;
    ++suche_.bauten;
    Weltkasten& alles = suche_.alles.emplace();
    const auto punkt = [this](std::uint32_t f) -> const zrw::PunktKnoten& { return punktArena_[f].knoten; };
    Folgen folgen;
    Folgen lose;
    std::vector<Ebenenort> orte;
    suche_.punkte.FuerAlle([&](std::uint32_t f) {
        if (!Endlich(punkt(f))) return lose.push_back(f);
        folgen.push_back(f);
        orte.push_back({punkt(f).XWPu, punkt(f).YWPu});
        alles.NimmOrt(punkt(f).XWPu, punkt(f).YWPu);
    });
    Folgen sortiert = SortiereNachOrt(orte);
    Folgen rang(kMaxPunkte + 1);
    for (std::uint32_t i = 0; i < sortiert.size(); ++i) {
        sortiert[i] = folgen[sortiert[i]];
        rang[punkt(sortiert[i]).PNr] = i;
    }
    const std::size_t raenge = std::max<std::size_t>(sortiert.size(), 1);
    suche_.punkte.BaueBaum(std::move(sortiert), std::exchange(lose, {}),
                           [&](std::uint32_t f) { return Kasten(punkt(f)); });

    const auto ende = [this](PunktIndex nr) {
        const zrw::PunktKnoten* p = SuchPkt(nr);
        return p != nullptr && Endlich(*p) ? p : nullptr;
    };
    NachRang kanten(raenge);
    suche_.kanten.FuerAlle([&](std::uint32_t f) {
        const PunktKante& k = kanteArena_[f].knoten;
        if (ende(k.ANr) == nullptr || ende(k.ENr) == nullptr) return lose.push_back(f);
        kanten.NimmFigur(rang[k.ANr], f);
    });
    suche_.kanten.BaueBaum(kanten.Sortiert(), std::exchange(lose, {}), [&](std::uint32_t f) {
        const PunktKante& k = kanteArena_[f].knoten;
        Weltkasten kasten = Kasten(*SuchPkt(k.ANr));
        kasten.NimmKasten(Kasten(*SuchPkt(k.ENr)));
        return kasten;
    });

    NachRang texte(raenge);
    Bildbereich& abstaende = suche_.abstaende = {};
    suche_.texte.FuerAlle([&](std::uint32_t f) {
        const PunktString& t = textArena_[f].knoten;
        // Only the newest label of a number is told when its point moves.
        if (ende(t.TNr) == nullptr || !Nah(*t.Item) || index_.FindeText(t.TNr) != &t)
            return lose.push_back(f);
        texte.NimmFigur(rang[t.TNr], f);
        abstaende.links = std::min(abstaende.links, t.Item->XBiO);
        abstaende.rechts = std::max(abstaende.rechts, t.Item->XBiO);
        abstaende.oben = std::min(abstaende.oben, t.Item->YBiO);
        abstaende.unten = std::max(abstaende.unten, t.Item->YBiO);
    });
    suche_.texte.BaueBaum(texte.Sortiert(), std::move(lose),
                          [&](std::uint32_t f) { return Kasten(*SuchPkt(textArena_[f].knoten.TNr)); });
}

void Netz::SammlePunkte(const Ansicht& a, const Bildbereich& b, std::vector<PPunktKnoten>& aus) const {
    const auto nimm = [&](std::uint32_t f) { aus.push_back(&punktArena_[f].knoten); };
    const Bildlage lage = a.Lage();
    Suchbereit(lage, b) ? suche_.punkte.SucheFiguren(WeltUnter(lage, b), nimm) : suche_.punkte.FuerAlle(nimm);
}

void Netz::SammleKanten(const Ansicht& a, const Bildbereich& b, std::vector<PPunktKante>& aus) const {
    std::vector<std::uint32_t> folgen;
    SammleKanten(a, b, folgen);
    for (const std::uint32_t f : folgen)
        aus.push_back(&KanteNach(f));
}

void Netz::SammleKanten(const Ansicht& a, const Bildbereich& b, std::vector<std::uint32_t>& aus) const {
    const auto nimm = [&](std::uint32_t f) { aus.push_back(f); };
    const Bildlage lage = a.Lage();
    Suchbereit(lage, b) ? suche_.kanten.SucheFiguren(WeltUnter(lage, b), nimm) : suche_.kanten.FuerAlle(nimm);
}

void Netz::SammleTexte(const Ansicht& a, const Bildbereich& b, std::vector<PPunktString>& aus) const {
    const auto nimm = [&](std::uint32_t f) { aus.push_back(&textArena_[f].knoten); };
    const Bildlage lage = a.Lage();
    if (!Suchbereit(lage, b)) return suche_.texte.FuerAlle(nimm);
    suche_.texte.SucheFiguren(WeltUnter(lage, OhneAbstand(b, suche_.abstaende)), nimm);
}

/// A point came, left or moved: its lines and its label lie elsewhere.
void Netz::MeldePunkt(const zrw::PunktKnoten& p) {
    lueckenlos_.reset();
    if (!suche_.gebaut) return;
    if (suche_.punkte.HatFigur(p.Folge)) suche_.punkte.Verlegt(p.Folge);
    FuerKantenAm(p.PNr, [&](const PunktKante& k) { suche_.kanten.Verlegt(k.Folge); });
    if (const PunktString* t = index_.FindeText(p.PNr); t != nullptr) suche_.texte.Verlegt(t->Folge);
}

/// Another label of the number comes: the one there is may no longer be told when its point moves.
void Netz::VerdraengeText(PunktIndex nr) {
    if (!suche_.gebaut) return;
    if (const PunktString* alt = index_.FindeText(nr); alt != nullptr) suche_.texte.Verlegt(alt->Folge);
}

}  // namespace zrw
