#include "model/FigListe.h"

#include <string_view>
#include <utility>

#include "model/Punktarten.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

/// Takes a node out of its list. False where the list does not hold it.
template <class Knoten>
bool HaengeAus(Knoten*& kopf, const Knoten* knoten) {
    Knoten** zeiger = &kopf;
    while (*zeiger != nullptr && *zeiger != knoten)
        zeiger = &(*zeiger)->Next;
    if (*zeiger == nullptr) return false;
    *zeiger = knoten->Next;
    return true;
}

/// Wipes every figure of a list from its head on and empties the list.
template <class Knoten>
void Leere(Knoten*& kopf, Zeichner& z) {
    while (kopf != nullptr) {
        kopf->Item->Done(z);
        kopf = kopf->Next;
    }
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

Liste::Liste(const Einstellungen& einstellungen)
    : Legend(std::make_unique<Legende>(Legende::Create())), einstellungen_(einstellungen) {}

// --- Destroying -------------------------------------------------------------------------------------------

void Liste::Done(Zeichner& z) {
    Liste::PktTextDone(z);
    Liste::KanteDone(z);
    Liste::PunktDone(z);
}

void Liste::PunktDone(Zeichner& z) {
    Leere(PunktKnoten, z);
    index_.LeerePunkte();
}

void Liste::KanteDone(Zeichner& z) {
    Leere(KanteKnoten, z);
    index_.LeereKanten();
}

void Liste::PktTextDone(Zeichner& z) {
    Leere(PktTextKnoten, z);
    index_.LeereTexte();
}

// --- Adding -----------------------------------------------------------------------------------------------

PunktKnoten& Liste::AddPunkt(const Punkt& item, Welt ort, PunktIndex iNr) {
    PunktPlatz* platz = punktArena_.Neu(PunktPlatz{{}, item});
    platz->knoten = {ort.rechts, ort.hoch, iNr, &platz->figur, PunktKnoten};
    PunktKnoten = &platz->knoten;
    index_.Auf(platz->knoten);
    return platz->knoten;
}

PunktKante& Liste::AddKante(const Kante& item, PunktIndex iANr, PunktIndex iENr) {
    KantePlatz* platz = kanteArena_.Neu(KantePlatz{{}, item});
    PunktKante& k = platz->knoten;
    k.ANr = iANr;
    k.ENr = iENr;
    k.Item = &platz->figur;
    k.Next = KanteKnoten;
    KanteKnoten = &k;
    index_.Auf(k);
    return k;
}

PunktString& Liste::AddPktText(const PktText& item, PunktIndex iNr) {
    TextPlatz* platz = textArena_.Neu(TextPlatz{{}, item});
    platz->knoten = {iNr, &platz->figur, PktTextKnoten};
    PktTextKnoten = &platz->knoten;
    index_.Auf(platz->knoten);
    return platz->knoten;
}

// --- Looking up -------------------------------------------------------------------------------------------

PktText* Liste::FindPktText(PunktIndex n) const {
    const PunktString* knoten = index_.FindeText(n);
    return knoten != nullptr ? knoten->Item : nullptr;
}

std::string Liste::GetPktText(PunktIndex n) const {
    const PktText* text = FindPktText(n);
    return text != nullptr ? std::string(text->Aus.Text()) : std::string();
}

PPunktKnoten Liste::FindPunkt(std::string_view p) const {
    const PunktString* knoten = index_.FindeText(PunktNummernTyp(p));
    return knoten != nullptr ? SuchPkt(knoten->TNr) : nullptr;
}

// --- Editing ----------------------------------------------------------------------------------------------

void Liste::DeleteKante(PPunktKante pk, Zeichner& z) {
    if (pk == nullptr || !HaengeAus(KanteKnoten, pk)) return;
    index_.Ab(*pk);
    pk->Item->Done(z);
    --MaxKant;
}

void Liste::DeletePunkt(PPunktKnoten pp, Zeichner& z) {
    if (pp == nullptr) return;
    const PunktIndex nr = pp->PNr;
    // One walk for all lines of the point: a station may carry tens of thousands of them.
    PPunktKante* zeiger = &KanteKnoten;
    while (*zeiger != nullptr) {
        PPunktKante k = *zeiger;
        if (k->ANr != nr && k->ENr != nr) {
            zeiger = &k->Next;
            continue;
        }
        *zeiger = k->Next;
        index_.Ab(*k);
        k->Item->Done(z);
        --MaxKant;
    }
    if (PPunktString t = index_.FindeText(nr); t != nullptr) {
        index_.Ab(*t);
        HaengeAus(PktTextKnoten, t);
        t->Item->Done(z);
    }
    index_.Ab(*pp);
    if (!HaengeAus(PunktKnoten, pp)) return;
    pp->Item->Done(z);
    --MaxPkte;
}

void Liste::DreheKante(PunktKante& pk) {
    index_.Drehe(pk);
    std::swap(pk.ANr, pk.ENr);
    std::swap(pk.Item->XO, pk.Item->XBiE);
    std::swap(pk.Item->YO, pk.Item->YBiE);
}

void Liste::ShowPunkt(zrw::PunktKnoten& pp, Zeichner& z) {
    for (PPunktKante k = index_.ErsteKante(pp.PNr); k != nullptr;
         k = Figurenindex::NaechsteKante(*k, pp.PNr)) {
        Zeige(*k->Item, z);
    }
    if (PktText* t = FindPktText(pp.PNr); t != nullptr) Zeige(*t, z);
    Zeige(*pp.Item, z);
}

void Liste::HidePunkt(zrw::PunktKnoten& pp, Zeichner& z) {
    for (PPunktKante k = index_.ErsteKante(pp.PNr); k != nullptr;
         k = Figurenindex::NaechsteKante(*k, pp.PNr)) {
        k->Item->Hide(z);
    }
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

// --- Drawing ----------------------------------------------------------------------------------------------

void Liste::ClearPicture(Zeichner& z) const {
    z.ClearPicture(Weite, Hoehe);
}

bool Liste::Dargestellt(const Punkt& p) const {
    return this->*ZurArt(p.PktArt).schalter;
}

void Liste::DisplayPunkte(Zeichner& z) {
    for (PPunktKnoten p = PunktKnoten; p != nullptr; p = p->Next) {
        if (Dargestellt(*p->Item)) p->Item->Show(z);
    }
}

void Liste::DisplayKante(Zeichner& z) {
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        const zrw::PunktKnoten* a = SuchPkt(k->ANr);
        const zrw::PunktKnoten* e = SuchPkt(k->ENr);
        if (a == nullptr || e == nullptr) continue;
        if (Dargestellt(*a->Item) && Dargestellt(*e->Item)) k->Item->Show(z);
    }
}

void Liste::DisplayPktText(Zeichner& z) {
    // Switching the auxiliary points off hides every label, not only theirs. Users know it that way.
    if (!ShowHilfP) return;
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        const zrw::PunktKnoten* p = FindPunkt(t->Item->Aus.Text());
        if (p != nullptr && Dargestellt(*p->Item)) t->Item->Show(z);
    }
}

void Liste::SetLegende(Zeichner& z) {
    if (Legend == nullptr) Legend = std::make_unique<Legende>(Legende::Create());
    Legend->Show(z);
}

void Liste::ShowPicture(Zeichner& z) {
    ClearPicture(z);
    ZeichneFiguren(z);
}

void Liste::ZeichneFiguren(Zeichner& z) {
    if (ShowGitter) z.GitterShow(*this);
    if (ShowKMQ) z.KMGitterShow(*this);
    if (ShowBeob) DisplayKante(z);
    DisplayPunkte(z);
    if (ShowPktText) DisplayPktText(z);
    if (ShowLegende) SetLegende(z);
    z.ZeichnePunktRes(*this);
    z.DrawResMasstab(*this);
}

}  // namespace zrw
