#include "model/Netz.h"

#include <cassert>
#include <string_view>
#include <utility>

#include "model/Linienarten.h"

namespace zrw {
namespace {

std::uint32_t Auf32(std::size_t n) {
    return static_cast<std::uint32_t>(n);
}

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

}  // namespace

// --- Adding -----------------------------------------------------------------------------------------------

void Netz::ErwarteFiguren(std::size_t punkte, std::size_t kanten) {
    punktArena_.ErwarteKnoten(punkte);
    textArena_.ErwarteKnoten(punkte);
    kanteArena_.ErwarteKnoten(kanten);
    index_.ErwartePunkte(punkte);
    suche_.enden.reserve(kanten);
}

PunktKnoten& Netz::AddPunkt(const Punkt& item, Welt ort, PunktIndex iNr) {
    PunktPlatz* platz = punktArena_.Neu(PunktPlatz{{}, item});
    platz->knoten = {ort.rechts, ort.hoch, iNr, Auf32(punktArena_.Anzahl() - 1), &platz->figur, PunktKnoten};
    PunktKnoten = &platz->knoten;
    index_.TrageFigurEin(platz->knoten);
    suche_.punkte.TrageFigurEin(platz->knoten.Folge, suche_.gebaut);
    if (!suche_.gebaut) suche_.alles.reset();
    MeldePunkt(platz->knoten);
    return platz->knoten;
}

PunktKante& Netz::AddKante(const Kante& item, PunktIndex iANr, PunktIndex iENr) {
    KantePlatz* platz = kanteArena_.Neu(KantePlatz{{}, item});
    PunktKante& k = platz->knoten;
    k.ANr = iANr;
    k.ENr = iENr;
    k.Folge = Auf32(kanteArena_.Anzahl() - 1);
    k.Item = &platz->figur;
    k.Next = KanteKnoten;
    KanteKnoten = &k;
    index_.TrageFigurEin(k);
    suche_.kanten.TrageFigurEin(k.Folge, suche_.gebaut);
    suche_.enden.push_back({iANr, iENr});
    mitUmwegen_ = mitUmwegen_ || ZurLinie(item.LAttr).indirekt;
    lueckenlos_.reset();
    return k;
}

PunktString& Netz::AddPktText(const PktText& item, PunktIndex iNr) {
    TextPlatz* platz = textArena_.Neu(TextPlatz{{}, item});
    platz->knoten = {iNr, Auf32(textArena_.Anzahl() - 1), &platz->figur, PktTextKnoten};
    PktTextKnoten = &platz->knoten;
    VerdraengeText(iNr);
    index_.TrageFigurEin(platz->knoten);
    suche_.texte.TrageFigurEin(platz->knoten.Folge, suche_.gebaut);
    lueckenlos_.reset();
    return platz->knoten;
}

void Netz::LeerePunkte() {
    PunktKnoten = nullptr;
    index_.LeerePunkte();
    suche_.punkte.LeereMenge();
    suche_.VergissBaeume();
    lueckenlos_.reset();
}

void Netz::LeereKanten() {
    KanteKnoten = nullptr;
    index_.LeereKanten();
    suche_.kanten.LeereMenge();
    suche_.VergissBaeume();
    lueckenlos_.reset();
}

void Netz::LeereTexte() {
    PktTextKnoten = nullptr;
    index_.LeereTexte();
    suche_.texte.LeereMenge();
    suche_.VergissBaeume();
    lueckenlos_.reset();
}

// --- Looking up -------------------------------------------------------------------------------------------

PktText* Netz::FindPktText(PunktIndex n) const {
    const PunktString* knoten = index_.FindeText(n);
    return knoten != nullptr ? knoten->Item : nullptr;
}

std::string Netz::GetPktText(PunktIndex n) const {
    const PktText* text = FindPktText(n);
    return text != nullptr ? std::string(text->Aus.Text()) : std::string();
}

PPunktKnoten Netz::FindPunkt(std::string_view p) const {
    const PunktString* knoten = index_.FindeText(PunktNummernTyp(p));
    return knoten != nullptr ? SuchPkt(knoten->TNr) : nullptr;
}

Figurenmenge Netz::Umfeld(zrw::PunktKnoten& p) {
    Figurenmenge m;
    m.punkte.push_back(&p);
    FuerKantenAm(p.PNr, [&](PunktKante& k) { m.kanten.push_back(&k); });
    if (PPunktString t = FindText(p.PNr); t != nullptr) m.texte.push_back(t);
    return m;
}

bool Netz::Lueckenlos() const {
    if (!lueckenlos_) {
        bool alle = true;
        suche_.kanten.FuerAlle([&](std::uint32_t f) {
            const Punktenden enden = suche_.enden[f];
            alle = alle && SuchPkt(enden.a) != nullptr && SuchPkt(enden.e) != nullptr;
        });
        FuerAlleTexte([&](const PunktString& t) { alle = alle && SuchPkt(t.TNr) != nullptr; });
        lueckenlos_ = alle;
    }
    return *lueckenlos_;
}

Weltkasten Netz::Ausdehnung() const {
    assert(PunktKnoten != nullptr);
    Weltkasten welt{PunktKnoten->XWPu, PunktKnoten->YWPu, PunktKnoten->XWPu, PunktKnoten->YWPu};
    FuerAllePunkte([&](const zrw::PunktKnoten& p) { welt.NimmOrt(p.XWPu, p.YWPu); });
    return welt;
}

// --- Editing ----------------------------------------------------------------------------------------------

void Netz::VersetzePunkt(zrw::PunktKnoten& p, Welt ort) {
    p.XWPu = ort.rechts;
    p.YWPu = ort.hoch;
    index_.VerlegePunkt(p);
    MeldePunkt(p);
}

void Netz::VersetzeText(PunktString& t, Bildpunkt abstand) {
    t.Item->XBiO = abstand.x;
    t.Item->YBiO = abstand.y;
    if (suche_.gebaut) suche_.texte.Verlegt(t.Folge);
}

void Netz::ZentrierePunkt(zrw::PunktKnoten& p, const zrw::PunktKnoten& zentrum) {
    VersetzePunkt(p, {zentrum.XWPu, zentrum.YWPu});
    if (PktText* t = FindPktText(p.PNr); t != nullptr) t->Visible = false;
}

void Netz::SetzeBeobachtungen(PunktKante& k, LinieAttr richtung, KanteAttr weitere) {
    assert(k.Item != nullptr);
    k.Item->LAttr = richtung;
    k.Item->KAttr = weitere;
    mitUmwegen_ = mitUmwegen_ || ZurLinie(richtung).indirekt;
}

void Netz::DreheKante(PunktKante& pk) {
    index_.DreheKante(pk);
    std::swap(pk.ANr, pk.ENr);
    std::swap(pk.Item->XO, pk.Item->XBiE);
    std::swap(pk.Item->YO, pk.Item->YBiE);
}

// --- Taking out and putting back --------------------------------------------------------------------------

Herausnahme Netz::NimmHeraus(PunktKante& pk) {
    Herausnahme h;
    if (!HaengeAus(KanteKnoten, &pk)) return h;
    index_.TrageFigurAus(pk);
    suche_.kanten.TrageFigurAus(pk.Folge);
    lueckenlos_.reset();
    --MaxKant;
    h.kanten.push_back({&pk, pk.Item->Visible});
    return h;
}

Herausnahme Netz::NimmHeraus(zrw::PunktKnoten& pp) {
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
        index_.TrageFigurAus(*k);
        suche_.kanten.TrageFigurAus(k->Folge);
        --MaxKant;
        h.kanten.push_back({k, k->Item->Visible});
    }
    if (PPunktString t = index_.FindeText(nr); t != nullptr) {
        index_.TrageFigurAus(*t);
        suche_.texte.TrageFigurAus(t->Folge);
        HaengeAus(PktTextKnoten, t);
        h.text = {t, t->Item->Visible};
    }
    index_.TrageFigurAus(pp);
    if (HaengeAus(PunktKnoten, &pp)) {
        --MaxPkte;
        h.punkt = {&pp, pp.Item->Visible};
        suche_.punkte.TrageFigurAus(pp.Folge);
    }
    MeldePunkt(pp);
    return h;
}

void Netz::SetzeZurueck(const Herausnahme& h) {
    if (h.punkt.knoten != nullptr) {
        assert(!EnthaeltPunkt(*h.punkt.knoten));  // else the list would run in a circle
        HaengeEin(&PunktKnoten, *h.punkt.knoten);
        index_.SetzeFigurZurueck(*h.punkt.knoten, *PunktKnoten);
        suche_.punkte.TrageFigurEin(h.punkt.knoten->Folge, suche_.gebaut);
        h.punkt.knoten->Item->Visible = h.punkt.sichtbar;
        ++MaxPkte;
    }
    if (h.text.knoten != nullptr) {
        HaengeEin(&PktTextKnoten, *h.text.knoten);
        VerdraengeText(h.text.knoten->TNr);
        index_.SetzeFigurZurueck(*h.text.knoten, *PktTextKnoten);
        suche_.texte.TrageFigurEin(h.text.knoten->Folge, suche_.gebaut);
        h.text.knoten->Item->Visible = h.text.sichtbar;
    }
    // One walk for all lines, as when they left.
    PPunktKante* stelle = &KanteKnoten;
    for (const auto& k : h.kanten) {
        assert(!EnthaeltKante(*k.knoten));
        stelle = HaengeEin(stelle, *k.knoten);
        index_.SetzeFigurZurueck(*k.knoten, *KanteKnoten);
        suche_.kanten.TrageFigurEin(k.knoten->Folge, suche_.gebaut);
        k.knoten->Item->Visible = k.sichtbar;
        ++MaxKant;
    }
    lueckenlos_.reset();
    if (h.punkt.knoten != nullptr) MeldePunkt(*h.punkt.knoten);
}

}  // namespace zrw
