#include "model/Figurenindex.h"

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

constexpr auto kImmerGleich = [](const PunktKante&) { return true; };

auto HatText(const PunktNummernTyp& nummer) {
    return [&nummer](const PunktString& t) { return t.Item->Aus == nummer; };
}

bool GleichesPaar(const PunktKante& x, const PunktKante& y) {
    return (x.ANr == y.ANr && x.ENr == y.ENr) || (x.ANr == y.ENr && x.ENr == y.ANr);
}

}  // namespace

Figurenindex::Figurenindex() : saat_(NeueSaat()) {}

/// Both orientations of a pair give one key; the mixing is reversible, so equal hashes are equal pairs.
std::uint64_t Figurenindex::Paar(PunktIndex a, PunktIndex b) const {
    if (a > b) std::swap(a, b);
    return Mische((std::uint64_t{a} << 16U | b) ^ saat_);
}

std::uint64_t Figurenindex::Streuwert(const PunktNummernTyp& nummer) const {
    return nummer.Streuwert(saat_);
}

void Figurenindex::Auf(PunktKnoten& p) {
    Lege(punkte_, p.PNr, &p);
}

void Figurenindex::Auf(PunktString& t) {
    Lege(texte_, t.TNr, &t);
    nachNummer_.Setze(Streuwert(t.Item->Aus), &t, HatText(t.Item->Aus));
}

void Figurenindex::Auf(PunktKante& k) {
    k.naechsteAmStart_ = Hole(kantenAm_, k.ANr);
    Lege(kantenAm_, k.ANr, &k);
    if (k.ENr != k.ANr) {
        k.naechsteAmEnde_ = Hole(kantenAm_, k.ENr);
        Lege(kantenAm_, k.ENr, &k);
    }
    nachPaar_.Setze(Paar(k.ANr, k.ENr), &k, kImmerGleich);
}

void Figurenindex::Ab(PunktKnoten& p) {
    if (FindePunkt(p.PNr) != &p) return;
    PunktKnoten* ersatz = p.Next;
    while (ersatz != nullptr && ersatz->PNr != p.PNr)
        ersatz = ersatz->Next;
    punkte_[p.PNr] = ersatz;
}

void Figurenindex::Ab(PunktString& t) {
    if (FindeText(t.TNr) == &t) {
        PunktString* ersatz = t.Next;
        while (ersatz != nullptr && ersatz->TNr != t.TNr)
            ersatz = ersatz->Next;
        texte_[t.TNr] = ersatz;
    }
    const PunktNummernTyp& nummer = t.Item->Aus;
    if (FindeText(nummer) != &t) return;
    PunktString* ersatz = t.Next;
    while (ersatz != nullptr && !(ersatz->Item->Aus == nummer))
        ersatz = ersatz->Next;
    if (ersatz != nullptr) {
        nachNummer_.Setze(Streuwert(nummer), ersatz, HatText(nummer));
    } else {
        nachNummer_.Entferne(Streuwert(nummer), &t);
    }
}

void Figurenindex::Ab(PunktKante& k) {
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
        nachPaar_.Setze(Paar(k.ANr, k.ENr), ersatz, kImmerGleich);
    } else {
        nachPaar_.Entferne(Paar(k.ANr, k.ENr), &k);
    }
}

void Figurenindex::Drehe(PunktKante& k) {
    if (k.ANr != k.ENr) std::swap(k.naechsteAmStart_, k.naechsteAmEnde_);
}

void Figurenindex::LeerePunkte() {
    punkte_.clear();
}

void Figurenindex::LeereTexte() {
    texte_.clear();
    nachNummer_.Leere();
}

void Figurenindex::LeereKanten() {
    kantenAm_.clear();
    nachPaar_.Leere();
}

PunktKnoten* Figurenindex::FindePunkt(PunktIndex nr) const {
    return Hole(punkte_, nr);
}

PunktString* Figurenindex::FindeText(PunktIndex nr) const {
    return Hole(texte_, nr);
}

PunktString* Figurenindex::FindeText(const PunktNummernTyp& nummer) const {
    return nachNummer_.Finde(Streuwert(nummer), HatText(nummer));
}

PunktKante* Figurenindex::FindeKante(PunktIndex a, PunktIndex b) const {
    return nachPaar_.Finde(Paar(a, b), kImmerGleich);
}

PunktKante* Figurenindex::ErsteKante(PunktIndex nr) const {
    return Hole(kantenAm_, nr);
}

PunktKante* Figurenindex::NaechsteKante(const PunktKante& k, PunktIndex nr) {
    return k.ANr == nr ? k.naechsteAmStart_ : k.naechsteAmEnde_;
}

}  // namespace zrw
