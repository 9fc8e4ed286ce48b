#include "model/FigListe.h"

#include "model/Gezeigt.h"
#include "model/Punktarten.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

/// Wipes every figure of a list from its head on and empties the list.
template <class Knoten>
void Leere(Knoten*& kopf, Zeichner& z) {
    while (kopf != nullptr) {
        kopf->Item->Done(z);
        kopf = kopf->Next;
    }
}

std::uint32_t Auf32(std::size_t n) {
    return static_cast<std::uint32_t>(n);
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
    suche_.punkte.Leere();
    suche_.Vergiss();
}

void Liste::KanteDone(Zeichner& z) {
    Leere(KanteKnoten, z);
    index_.LeereKanten();
    suche_.kanten.Leere();
    suche_.Vergiss();
}

void Liste::PktTextDone(Zeichner& z) {
    Leere(PktTextKnoten, z);
    index_.LeereTexte();
    suche_.texte.Leere();
    suche_.Vergiss();
}

// --- Adding -----------------------------------------------------------------------------------------------

void Liste::Erwarte(std::size_t punkte, std::size_t kanten) {
    punktArena_.Erwarte(punkte);
    textArena_.Erwarte(punkte);
    kanteArena_.Erwarte(kanten);
    index_.Erwarte(punkte);
    suche_.enden.reserve(kanten);
}

PunktKnoten& Liste::AddPunkt(const Punkt& item, Welt ort, PunktIndex iNr) {
    PunktPlatz* platz = punktArena_.Neu(PunktPlatz{{}, item});
    platz->knoten = {ort.rechts, ort.hoch, iNr, Auf32(punktArena_.Anzahl() - 1), &platz->figur, PunktKnoten};
    PunktKnoten = &platz->knoten;
    index_.Auf(platz->knoten);
    suche_.punkte.Auf(platz->knoten.Folge, suche_.gebaut);
    MeldePunkt(platz->knoten);
    return platz->knoten;
}

PunktKante& Liste::AddKante(const Kante& item, PunktIndex iANr, PunktIndex iENr) {
    KantePlatz* platz = kanteArena_.Neu(KantePlatz{{}, item});
    PunktKante& k = platz->knoten;
    k.ANr = iANr;
    k.ENr = iENr;
    k.Folge = Auf32(kanteArena_.Anzahl() - 1);
    k.Item = &platz->figur;
    k.Next = KanteKnoten;
    KanteKnoten = &k;
    index_.Auf(k);
    suche_.kanten.Auf(k.Folge, suche_.gebaut);
    suche_.enden.push_back({iANr, iENr});
    suche_.stand.frisch = false;
    return k;
}

PunktString& Liste::AddPktText(const PktText& item, PunktIndex iNr) {
    TextPlatz* platz = textArena_.Neu(TextPlatz{{}, item});
    platz->knoten = {iNr, Auf32(textArena_.Anzahl() - 1), &platz->figur, PktTextKnoten};
    PktTextKnoten = &platz->knoten;
    VerdraengeText(iNr);
    index_.Auf(platz->knoten);
    suche_.texte.Auf(platz->knoten.Folge, suche_.gebaut);
    suche_.stand.frisch = false;
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

// --- Drawing ----------------------------------------------------------------------------------------------

void Liste::ClearPicture(Zeichner& z) const {
    z.ClearPicture(Weite, Hoehe);
}

bool Liste::Dargestellt(const Punkt& p) const {
    return this->*ZurArt(p.PktArt).schalter;
}

bool Liste::Dargestellt(const PunktKante& k) const {
    const zrw::PunktKnoten* a = SuchPkt(k.ANr);
    const zrw::PunktKnoten* e = SuchPkt(k.ENr);
    return a != nullptr && e != nullptr && Dargestellt(*a->Item) && Dargestellt(*e->Item);
}

void Liste::DisplayPunkte(Zeichner& z) {
    for (PPunktKnoten p = PunktKnoten; p != nullptr; p = p->Next) {
        if (Dargestellt(*p->Item)) p->Item->Show(z);
    }
}

void Liste::DisplayKante(Zeichner& z) {
    Gezeigt gezeigt(*this);
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        if (gezeigt(*k)) k->Item->Show(z);
    }
}

void Liste::DisplayPktText(Zeichner& z) {
    // Switching the auxiliary points off hides every label, not only theirs. Users know it that way.
    if (!ShowHilfP) return;
    Gezeigt gezeigt(*this);
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        if (gezeigt(*t)) t->Item->Show(z);
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
    if (!z.ZeichneNetz(*this)) {
        if (ShowBeob) DisplayKante(z);
        DisplayPunkte(z);
        if (ShowPktText) DisplayPktText(z);
    }
    if (ShowLegende) SetLegende(z);
    z.ZeichnePunktRes(*this);
    z.DrawResMasstab(*this);
}

}  // namespace zrw
