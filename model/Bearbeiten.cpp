// Editing of the list: deleting, taking out and putting back, showing and hiding points, line styles.
#include <string_view>
#include <utility>

#include "model/FigListe.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

/// Takes a node out of its list. @return whether the list held it
template <class Knoten>
bool HaengeAus(Knoten*& kopf, const Knoten* knoten) {
    Knoten** zeiger = &kopf;
    while (*zeiger != nullptr && *zeiger != knoten)
        zeiger = &(*zeiger)->Next;
    if (*zeiger == nullptr) return false;
    *zeiger = knoten->Next;
    return true;
}

/// Puts a node where it belongs, at `stelle` or behind it. @return the place behind it, where the next older
/// one may go
template <class Knoten>
Knoten** HaengeEin(Knoten** stelle, Knoten& knoten) {
    while (*stelle != nullptr && (*stelle)->Folge > knoten.Folge)
        stelle = &(*stelle)->Next;
    knoten.Next = *stelle;
    *stelle = &knoten;
    return &knoten.Next;
}

template <class Figur>
void Zeige(Figur& figur, Zeichner& z) {
    figur.Visible = true;
    figur.Show(z);
}

bool IstHilfspunkt(const PktText& text) {
    const std::string_view nummer = text.Aus.Text();
    return !nummer.empty() && std::string_view("WKH").find(nummer.back()) != std::string_view::npos;
}

}  // namespace

// --- Taking out and putting back --------------------------------------------------------------------------

Herausnahme Liste::NimmHeraus(PunktKante& pk) {
    Herausnahme h;
    if (!HaengeAus(KanteKnoten, &pk)) return h;
    index_.Ab(pk);
    suche_.kanten.Ab(pk.Folge);
    --MaxKant;
    h.kanten.push_back({&pk, pk.Item->Visible});
    return h;
}

Herausnahme Liste::NimmHeraus(zrw::PunktKnoten& pp) {
    Herausnahme h;
    const PunktIndex nr = pp.PNr;
    // One walk for all lines of the point: a station may carry tens of thousands of them.
    PPunktKante davor = nullptr;
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        if (k->ANr != nr && k->ENr != nr) {
            davor = k;
            continue;
        }
        (davor != nullptr ? davor->Next : KanteKnoten) = k->Next;
        index_.Ab(*k);
        suche_.kanten.Ab(k->Folge);
        --MaxKant;
        h.kanten.push_back({k, k->Item->Visible});
    }
    if (PPunktString t = index_.FindeText(nr); t != nullptr) {
        index_.Ab(*t);
        suche_.texte.Ab(t->Folge);
        HaengeAus(PktTextKnoten, t);
        h.text = {t, t->Item->Visible};
    }
    index_.Ab(pp);
    if (HaengeAus(PunktKnoten, &pp)) {
        --MaxPkte;
        h.punkt = {&pp, pp.Item->Visible};
        suche_.punkte.Ab(pp.Folge);
    }
    MeldePunkt(pp);
    return h;
}

void Liste::SetzeZurueck(const Herausnahme& h) {
    if (h.punkt.knoten != nullptr) {
        HaengeEin(&PunktKnoten, *h.punkt.knoten);
        index_.Zurueck(*h.punkt.knoten, *PunktKnoten);
        suche_.punkte.Auf(h.punkt.knoten->Folge, suche_.gebaut);
        h.punkt.knoten->Item->Visible = h.punkt.sichtbar;
        ++MaxPkte;
    }
    if (h.text.knoten != nullptr) {
        HaengeEin(&PktTextKnoten, *h.text.knoten);
        VerdraengeText(h.text.knoten->TNr);
        index_.Zurueck(*h.text.knoten, *PktTextKnoten);
        suche_.texte.Auf(h.text.knoten->Folge, suche_.gebaut);
        h.text.knoten->Item->Visible = h.text.sichtbar;
    }
    // One walk for all lines, as when they left.
    PPunktKante* stelle = &KanteKnoten;
    for (const auto& k : h.kanten) {
        stelle = HaengeEin(stelle, *k.knoten);
        index_.Zurueck(*k.knoten, *KanteKnoten);
        suche_.kanten.Auf(k.knoten->Folge, suche_.gebaut);
        k.knoten->Item->Visible = k.sichtbar;
        ++MaxKant;
    }
    suche_.stand.frisch = false;
    if (h.punkt.knoten != nullptr) MeldePunkt(*h.punkt.knoten);
}

// --- Editing ----------------------------------------------------------------------------------------------

void Liste::DeleteKante(PPunktKante pk, Zeichner& z) {
    if (pk != nullptr && !NimmHeraus(*pk).kanten.empty()) pk->Item->Done(z);
}

void Liste::DeletePunkt(PPunktKnoten pp, Zeichner& z) {
    if (pp == nullptr) return;
    const Herausnahme h = NimmHeraus(*pp);
    for (const auto& k : h.kanten)
        k.knoten->Item->Done(z);
    if (h.text.knoten != nullptr) h.text.knoten->Item->Done(z);
    if (h.punkt.knoten != nullptr) h.punkt.knoten->Item->Done(z);
}

Figurenmenge Liste::Umfeld(zrw::PunktKnoten& p) {
    Figurenmenge m;
    m.punkte.push_back(&p);
    FuerKantenAm(p.PNr, [&](PunktKante& k) { m.kanten.push_back(&k); });
    if (PPunktString t = FindText(p.PNr); t != nullptr) m.texte.push_back(t);
    return m;
}

void Liste::DreheKante(PunktKante& pk) {
    index_.Drehe(pk);
    std::swap(pk.ANr, pk.ENr);
    std::swap(pk.Item->XO, pk.Item->XBiE);
    std::swap(pk.Item->YO, pk.Item->YBiE);
}

void Liste::ShowPunkt(zrw::PunktKnoten& pp, Zeichner& z) {
    FuerKantenAm(pp.PNr, [&](PunktKante& k) { Zeige(*k.Item, z); });
    if (PktText* t = FindPktText(pp.PNr); t != nullptr) Zeige(*t, z);
    Zeige(*pp.Item, z);
}

void Liste::HidePunkt(zrw::PunktKnoten& pp, Zeichner& z) {
    FuerKantenAm(pp.PNr, [&](PunktKante& k) { k.Item->Hide(z); });
    if (PktText* t = FindPktText(pp.PNr); t != nullptr) t->Hide(z);
    pp.Item->Hide(z);
}

void Liste::ChKante(LinieAttr newAttr, Zeichner& z) {
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next)
        k->Item->ChangeLAttr(newAttr, z);
}

void Liste::DisplayHilfp(bool show) {
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        const bool sichtbar = show || !IstHilfspunkt(*t->Item);
        if (PPunktKnoten p = FindPunkt(t->Item->Aus.Text()); p != nullptr) p->Item->Visible = sichtbar;
        t->Item->Visible = sichtbar;
    }
}

}  // namespace zrw
