#include "model/Figurenindex.h"

#include <algorithm>
#include <utility>

namespace zrw {
namespace {

template <class Wert>
Wert HoleEintrag(const std::vector<Wert>& tafel, PunktIndex nr) {
    return nr < tafel.size() ? tafel[nr] : Wert{};
}

template <class Wert>
void LegeEintrag(std::vector<Wert>& tafel, PunktIndex nr, Wert wert) {
    if (nr >= tafel.size()) tafel.resize(std::size_t{nr} + 1, Wert{});
    tafel[nr] = wert;
}

/// The first node of a list that fits, one of which does; `einziger` where it is known to be the only one.
template <class Knoten, class Bedingung>
Knoten* Erster(Knoten& kopf, Bedingung passt, Knoten* einziger) {
    if (einziger != nullptr) return einziger;
    Knoten* k = &kopf;
    while (!passt(*k))
        k = k->Next;
    return k;
}

bool GleichesPaar(const PunktKante& k, PunktIndex a, PunktIndex e) {
    return (k.ANr == a && k.ENr == e) || (k.ANr == e && k.ENr == a);
}

/// The same for two points, whichever is named first.
std::uint64_t Streuwert(PunktIndex a, PunktIndex e, std::uint64_t saat) {
    return MischeBits((std::uint64_t{std::min(a, e)} << 16U | std::max(a, e)) ^ saat);
}

}  // namespace

void Figurenindex::ErwartePunkte(std::size_t punkte) {
    punkte_.reserve(punkte + 1);
    orte_.reserve(punkte + 1);
    texte_.reserve(punkte + 1);
}

// --- Points -----------------------------------------------------------------------------------------------

void Figurenindex::SetzePunkt(PunktIndex nr, PunktKnoten* p) {
    LegeEintrag(punkte_, nr, p);
    if (nr >= orte_.size()) orte_.resize(std::size_t{nr} + 1, kNirgends);
    orte_[nr] = p != nullptr ? Welt{p->XWPu, p->YWPu} : kNirgends;
}

void Figurenindex::TrageFigurEin(PunktKnoten& p) {
    SetzePunkt(p.PNr, &p);
}

void Figurenindex::TrageFigurAus(PunktKnoten& p) {
    if (FindePunkt(p.PNr) != &p) return;
    PunktKnoten* ersatz = p.Next;
    while (ersatz != nullptr && ersatz->PNr != p.PNr)
        ersatz = ersatz->Next;
    SetzePunkt(p.PNr, ersatz);
}

void Figurenindex::SetzeFigurZurueck(PunktKnoten& p, PunktKnoten& kopf) {
    // A point of the same number nearer the head keeps answering.
    SetzePunkt(p.PNr, Erster(
                          kopf, [&](const PunktKnoten& k) { return k.PNr == p.PNr; },
                          FindePunkt(p.PNr) == nullptr ? &p : nullptr));
}

void Figurenindex::LeerePunkte() {
    punkte_.clear();
    orte_.clear();
}

// --- Labels -----------------------------------------------------------------------------------------------

void Figurenindex::TrageFigurEin(PunktString& t) {
    if (FindeText(t.TNr) == nullptr) ++textnummern_;
    LegeEintrag(texte_, t.TNr, &t);
    ++textanzahl_;
    neuesterText_ = &t;
    if (texteBekannt_) LerneText(t, true);
}

void Figurenindex::TrageFigurAus(PunktString& t) {
    --textanzahl_;
    if (neuesterText_ == &t) neuesterText_ = t.Next;
    if (FindeText(t.TNr) == &t) {
        PunktString* ersatz = t.Next;
        while (ersatz != nullptr && ersatz->TNr != t.TNr)
            ersatz = ersatz->Next;
        texte_[t.TNr] = ersatz;
        if (ersatz == nullptr) --textnummern_;
    }
    const PunktNummernTyp& nummer = t.Item->Aus;
    if (!texteBekannt_ || FindeText(nummer) != &t) return;
    const PunktString* ersatz = t.Next;
    while (ersatz != nullptr && !(ersatz->Item->Aus == nummer))
        ersatz = ersatz->Next;
    if (ersatz != nullptr) {
        LerneText(*ersatz, true);
    } else {
        nachNummer_.EntferneEintrag(Nummer(t.Folge), [this](std::uint32_t nr) { return Textstreuwert(nr); });
    }
}

void Figurenindex::SetzeFigurZurueck(PunktString& t, PunktString& kopf) {
    ++textanzahl_;
    neuesterText_ = &kopf;
    if (FindeText(t.TNr) == nullptr) ++textnummern_;
    LegeEintrag(texte_, t.TNr,
                Erster(
                    kopf, [&](const PunktString& k) { return k.TNr == t.TNr; },
                    FindeText(t.TNr) == nullptr ? &t : nullptr));
    if (!texteBekannt_) return;
    const PunktNummernTyp& nummer = t.Item->Aus;
    LerneText(*Erster(
                  kopf, [&](const PunktString& k) { return k.Item->Aus == nummer; },
                  FindeText(nummer) == nullptr ? &t : nullptr),
              true);
}

void Figurenindex::LeereTexte() {
    texte_.clear();
    textanzahl_ = 0;
    textnummern_ = 0;
    neuesterText_ = nullptr;
    texteBekannt_ = false;
    nachNummer_.LeereTafel();
}

PunktString* Figurenindex::FindeText(PunktIndex nr) const {
    return HoleEintrag(texte_, nr);
}

PunktString* Figurenindex::FindeText(const PunktNummernTyp& nummer) const {
    if (!texteBekannt_) LerneTexte();
    const std::uint32_t nr = nachNummer_.FindeNummer(
        nummer.Streuwert(saat_), [&](std::uint32_t n) { return textarena_[n - 1].figur.Aus == nummer; });
    return nr != Markentafel::kKeins ? &textarena_[nr - 1].knoten : nullptr;
}

std::uint64_t Figurenindex::Textstreuwert(std::uint32_t nr) const {
    return textarena_[nr - 1].figur.Aus.Streuwert(saat_);
}

void Figurenindex::LerneText(const PunktString& t, bool verdraengt) const {
    nachNummer_.ErwarteEintraege(nachNummer_.Anzahl() + 1, Nummer(t.Folge),
                                 [this](std::uint32_t nr) { return Textstreuwert(nr); });
    const PunktNummernTyp& nummer = t.Item->Aus;
    (void)nachNummer_.SetzeEintrag(nummer.Streuwert(saat_), Nummer(t.Folge), verdraengt,
                                   [&](std::uint32_t nr) { return textarena_[nr - 1].figur.Aus == nummer; });
}

void Figurenindex::LerneTexte() const {
    nachNummer_.ErwarteEintraege(textanzahl_, 0, [](std::uint32_t) { return 0U; });
    for (const PunktString* t = neuesterText_; t != nullptr; t = t->Next)
        LerneText(*t, false);
    texteBekannt_ = true;
}

// --- Lines ------------------------------------------------------------------------------------------------

void Figurenindex::TrageFigurEin(PunktKante& k) {
    neuesteKante_ = &k;
    if (verkettet_) KetteAn(k);
    if (paareBekannt_) LerneKante(k, true);
}

void Figurenindex::TrageFigurAus(PunktKante& k) {
    if (neuesteKante_ == &k) neuesteKante_ = k.Next;
    if (verkettet_) {
        HaengeAus(k, k.ANr);
        HaengeAus(k, k.ENr);
    }
    if (!paareBekannt_ || FindeKante(k.ANr, k.ENr) != &k) return;
    const auto passt = [&](const PunktKante& x) { return GleichesPaar(x, k.ANr, k.ENr); };
    // Both points list the lines of the pair in the same order. Searching from both ends in step takes as
    // long as the point with fewer lines takes; the other one may be a station with tens of thousands.
    const PunktKante* vonA = ErsteKante(k.ANr);
    const PunktKante* vonE = ErsteKante(k.ENr);
    while (vonA != nullptr && vonE != nullptr && !passt(*vonA) && !passt(*vonE)) {
        vonA = NaechsteKante(*vonA, k.ANr);
        vonE = NaechsteKante(*vonE, k.ENr);
    }
    if (vonA != nullptr && vonE != nullptr) {
        LerneKante(passt(*vonA) ? *vonA : *vonE, true);
    } else {
        nachPaar_.EntferneEintrag(Nummer(k.Folge), [this](std::uint32_t nr) { return Paarstreuwert(nr); });
    }
}

void Figurenindex::SetzeFigurZurueck(PunktKante& k, PunktKante& kopf) {
    neuesteKante_ = &kopf;
    // The chains at the points are made anew when somebody asks for them.
    verkettet_ = false;
    kantenAm_.clear();
    if (!paareBekannt_) return;
    LerneKante(*Erster(
                   kopf, [&](const PunktKante& x) { return GleichesPaar(x, k.ANr, k.ENr); },
                   FindeKante(k.ANr, k.ENr) == nullptr ? &k : nullptr),
               true);
}

void Figurenindex::DreheKante(const PunktKante& k) {
    if (k.ANr != k.ENr && k.Folge < naechste_.size()) std::swap(naechste_[k.Folge][0], naechste_[k.Folge][1]);
}

void Figurenindex::LeereKanten() {
    neuesteKante_ = nullptr;
    verkettet_ = false;
    kantenAm_.clear();
    paareBekannt_ = false;
    nachPaar_.LeereTafel();
}

PunktKante* Figurenindex::FindeKante(PunktIndex a, PunktIndex b) const {
    if (!paareBekannt_) LernePaare();
    return ZurNummer(nachPaar_.FindeNummer(Streuwert(a, b, saat_), [&](std::uint32_t nr) {
        return GleichesPaar(kantenarena_[nr - 1].knoten, a, b);
    }));
}

std::uint64_t Figurenindex::Paarstreuwert(std::uint32_t nr) const {
    const PunktKante& k = kantenarena_[nr - 1].knoten;
    return Streuwert(k.ANr, k.ENr, saat_);
}

void Figurenindex::LerneKante(const PunktKante& k, bool verdraengt) const {
    nachPaar_.ErwarteEintraege(nachPaar_.Anzahl() + 1, Nummer(k.Folge),
                               [this](std::uint32_t nr) { return Paarstreuwert(nr); });
    (void)nachPaar_.SetzeEintrag(
        Streuwert(k.ANr, k.ENr, saat_), Nummer(k.Folge), verdraengt,
        [&](std::uint32_t nr) { return GleichesPaar(kantenarena_[nr - 1].knoten, k.ANr, k.ENr); });
}

void Figurenindex::LernePaare() const {
    nachPaar_.ErwarteEintraege(kantenarena_.Anzahl(), 0, [](std::uint32_t) { return 0U; });
    for (const PunktKante* k = neuesteKante_; k != nullptr; k = k->Next)
        LerneKante(*k, false);
    paareBekannt_ = true;
}

PunktKante* Figurenindex::ErsteKante(PunktIndex nr) {
    if (!verkettet_) VerketteKanten();
    return ZurNummer(HoleEintrag(kantenAm_, nr));
}

void Figurenindex::VerketteKanten() {
    std::vector<const PunktKante*> alle;
    for (const PunktKante* k = neuesteKante_; k != nullptr; k = k->Next)
        alle.push_back(k);
    naechste_.resize(kantenarena_.Anzahl());
    std::for_each(alle.rbegin(), alle.rend(), [this](const PunktKante* k) { KetteAn(*k); });
    verkettet_ = true;
}

void Figurenindex::KetteAn(const PunktKante& k) {
    if (k.Folge >= naechste_.size()) naechste_.resize(std::size_t{k.Folge} + 1);
    naechste_[k.Folge] = {HoleEintrag(kantenAm_, k.ANr), HoleEintrag(kantenAm_, k.ENr)};
    LegeEintrag(kantenAm_, k.ANr, Nummer(k.Folge));
    LegeEintrag(kantenAm_, k.ENr, Nummer(k.Folge));
}

/// Takes the line out of the chain at one of its points.
void Figurenindex::HaengeAus(const PunktKante& k, PunktIndex nr) {
    const auto naechste = [&](const PunktKante& x) { return &naechste_[x.Folge][x.ANr == nr ? 0 : 1]; };
    if (nr >= kantenAm_.size()) return;
    std::uint32_t* zeiger = &kantenAm_[nr];
    while (*zeiger != 0 && *zeiger != Nummer(k.Folge))
        zeiger = naechste(*ZurNummer(*zeiger));
    if (*zeiger != 0) *zeiger = *naechste(k);
}

}  // namespace zrw
