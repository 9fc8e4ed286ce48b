#include "model/Figurenindex.h"

#include <algorithm>
#include <random>
#include <utility>

#include "model/Knoten.h"

namespace zrw {
namespace {

template <class Knoten>
Knoten* Hole(const std::vector<Knoten*>& tafel, PunktIndex nr) {
    return nr < tafel.size() ? tafel[nr] : nullptr;
}

template <class Knoten>
void Lege(std::vector<Knoten*>& tafel, PunktIndex nr, Knoten* knoten) {
    if (nr >= tafel.size()) tafel.resize(std::size_t{nr} + 1, nullptr);
    tafel[nr] = knoten;
}

/// A secret of its own for every list: a file cannot be made so that all its keys meet in one place.
std::uint64_t NeueSaat() {
    std::random_device zufall;
    return std::uint64_t{zufall()} << 32U | zufall();
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

bool GleichesPaar(const PunktKante& x, const PunktKante& y) {
    return (x.ANr == y.ANr && x.ENr == y.ENr) || (x.ANr == y.ENr && x.ENr == y.ANr);
}

}  // namespace

Figurenindex::Figurenindex() : nachNummer_(NeueSaat()), nachPaar_(NeueSaat()) {}

void Figurenindex::Auf(PunktKnoten& p) {
    Lege(punkte_, p.PNr, &p);
}

void Figurenindex::Auf(PunktString& t) {
    if (FindeText(t.TNr) == nullptr) ++textnummern_;
    Lege(texte_, t.TNr, &t);
    ++textanzahl_;
    nachNummer_.Setze(t.Item->Aus, {&t, t.TNr});
}

void Figurenindex::Auf(PunktKante& k) {
    neuesteKante_ = &k;
    if (verkettet_) KetteAn(k);
    nachPaar_.Setze({k.ANr, k.ENr}, &k);
}

void Figurenindex::Verkette() {
    std::vector<PunktKante*> alle;
    for (PunktKante* k = neuesteKante_; k != nullptr; k = k->Next)
        alle.push_back(k);
    std::for_each(alle.rbegin(), alle.rend(), [this](PunktKante* k) { KetteAn(*k); });
    verkettet_ = true;
}

void Figurenindex::KetteAn(PunktKante& k) {
    k.naechsteAmStart_ = Hole(kantenAm_, k.ANr);
    Lege(kantenAm_, k.ANr, &k);
    if (k.ENr != k.ANr) {
        k.naechsteAmEnde_ = Hole(kantenAm_, k.ENr);
        Lege(kantenAm_, k.ENr, &k);
    }
}

void Figurenindex::Ab(PunktKnoten& p) {
    if (FindePunkt(p.PNr) != &p) return;
    PunktKnoten* ersatz = p.Next;
    while (ersatz != nullptr && ersatz->PNr != p.PNr)
        ersatz = ersatz->Next;
    punkte_[p.PNr] = ersatz;
}

void Figurenindex::Ab(PunktString& t) {
    --textanzahl_;
    if (FindeText(t.TNr) == &t) {
        PunktString* ersatz = t.Next;
        while (ersatz != nullptr && ersatz->TNr != t.TNr)
            ersatz = ersatz->Next;
        texte_[t.TNr] = ersatz;
        if (ersatz == nullptr) --textnummern_;
    }
    const PunktNummernTyp& nummer = t.Item->Aus;
    if (FindeText(nummer) != &t) return;
    PunktString* ersatz = t.Next;
    while (ersatz != nullptr && !(ersatz->Item->Aus == nummer))
        ersatz = ersatz->Next;
    if (ersatz != nullptr) {
        nachNummer_.Setze(nummer, {ersatz, ersatz->TNr});
    } else {
        nachNummer_.Entferne(nummer);
    }
}

void Figurenindex::Ab(PunktKante& k) {
    if (neuesteKante_ == &k) neuesteKante_ = k.Next;
    for (const PunktIndex nr : {k.ANr, k.ENr}) {
        PunktKante** zeiger = nr < kantenAm_.size() ? &kantenAm_[nr] : nullptr;
        while (zeiger != nullptr && *zeiger != nullptr && *zeiger != &k) {
            zeiger = (*zeiger)->ANr == nr ? &(*zeiger)->naechsteAmStart_ : &(*zeiger)->naechsteAmEnde_;
        }
        if (zeiger != nullptr && *zeiger == &k) *zeiger = NaechsteKante(k, nr);
    }
    if (FindeKante(k.ANr, k.ENr) != &k) return;
    // Both points list the lines of the pair in the same order. Searching from both ends in step takes as
    // long as the point with fewer lines takes; the other one may be a station with tens of thousands.
    PunktKante* vonA = ErsteKante(k.ANr);
    PunktKante* vonE = ErsteKante(k.ENr);
    while (vonA != nullptr && vonE != nullptr && !GleichesPaar(*vonA, k) && !GleichesPaar(*vonE, k)) {
        vonA = NaechsteKante(*vonA, k.ANr);
        vonE = NaechsteKante(*vonE, k.ENr);
    }
    PunktKante* ersatz = nullptr;
    if (vonA != nullptr && vonE != nullptr) ersatz = GleichesPaar(*vonA, k) ? vonA : vonE;
    if (ersatz != nullptr) {
        nachPaar_.Setze({k.ANr, k.ENr}, ersatz);
    } else {
        nachPaar_.Entferne({k.ANr, k.ENr});
    }
}

void Figurenindex::Zurueck(PunktKnoten& p, PunktKnoten& kopf) {
    // A point of the same number nearer the head keeps answering.
    Lege(punkte_, p.PNr,
         Erster(
             kopf, [&](const PunktKnoten& k) { return k.PNr == p.PNr; },
             FindePunkt(p.PNr) == nullptr ? &p : nullptr));
}

void Figurenindex::Zurueck(PunktString& t, PunktString& kopf) {
    ++textanzahl_;
    if (FindeText(t.TNr) == nullptr) ++textnummern_;
    Lege(texte_, t.TNr,
         Erster(
             kopf, [&](const PunktString& k) { return k.TNr == t.TNr; },
             FindeText(t.TNr) == nullptr ? &t : nullptr));
    const PunktNummernTyp& nummer = t.Item->Aus;
    PunktString* erster = Erster(
        kopf, [&](const PunktString& k) { return k.Item->Aus == nummer; },
        FindeText(nummer) == nullptr ? &t : nullptr);
    nachNummer_.Setze(nummer, {erster, erster->TNr});
}

void Figurenindex::Zurueck(PunktKante& k, PunktKante& kopf) {
    neuesteKante_ = &kopf;
    // The chains at the points are made anew when somebody asks for them.
    verkettet_ = false;
    kantenAm_.clear();
    nachPaar_.Setze({k.ANr, k.ENr}, Erster(
                                        kopf, [&](const PunktKante& x) { return GleichesPaar(x, k); },
                                        FindeKante(k.ANr, k.ENr) == nullptr ? &k : nullptr));
}

void Figurenindex::Drehe(PunktKante& k) {
    if (k.ANr != k.ENr) std::swap(k.naechsteAmStart_, k.naechsteAmEnde_);
}

void Figurenindex::LeerePunkte() {
    punkte_.clear();
}

void Figurenindex::LeereTexte() {
    texte_.clear();
    textanzahl_ = 0;
    textnummern_ = 0;
    nachNummer_.Leere();
}

void Figurenindex::Erwarte(std::size_t punkte, std::size_t kanten) {
    nachNummer_.Erwarte(punkte);
    nachPaar_.Erwarte(kanten);
}

void Figurenindex::LeereKanten() {
    neuesteKante_ = nullptr;
    verkettet_ = false;
    kantenAm_.clear();
    nachPaar_.Leere();
}

PunktString* Figurenindex::FindeText(PunktIndex nr) const {
    return Hole(texte_, nr);
}

PunktKante* Figurenindex::ErsteKante(PunktIndex nr) {
    if (!verkettet_) Verkette();
    return Hole(kantenAm_, nr);
}

PunktKante* Figurenindex::NaechsteKante(const PunktKante& k, PunktIndex nr) {
    return k.ANr == nr ? k.naechsteAmStart_ : k.naechsteAmEnde_;
}

}  // namespace zrw
