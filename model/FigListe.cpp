#include "model/FigListe.h"

#include <string_view>
#include <vector>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "model/Zeichner.h"

namespace zrw {
namespace {

/// Wipes every figure of a list from its head on.
template <class Knoten>
void WischeFiguren(const Knoten* kopf, Zeichner& z) {
    for (const Knoten* k = kopf; k != nullptr; k = k->Next)
        k->Item->Done(z);
}

template <class Figur>
void ZeigeFigur(Figur& figur, Zeichner& z) {
    figur.Visible = true;
    figur.Show(z);
}

bool IstHilfspunkt(const PktText& text) {
    const std::string_view nummer = text.Aus.Text();
    return !nummer.empty() && std::string_view("WKH").find(nummer.back()) != std::string_view::npos;
}

}  // namespace

// --- Destroying -------------------------------------------------------------------------------------------

void Liste::Done(Zeichner& z) {
    Liste::PktTextDone(z);
    Liste::KanteDone(z);
    Liste::PunktDone(z);
}

void Liste::PunktDone(Zeichner& z) {
    WischeFiguren(PunktKnoten, z);
    LeerePunkte();
}

void Liste::KanteDone(Zeichner& z) {
    WischeFiguren(KanteKnoten, z);
    LeereKanten();
}

void Liste::PktTextDone(Zeichner& z) {
    WischeFiguren(PktTextKnoten, z);
    LeereTexte();
}

// --- View -------------------------------------------------------------------------------------------------

void Liste::FindWorldMinMax() {
    if (PunktKnoten != nullptr) SetzeAusdehnung(Ausdehnung());
}

void Liste::WeltinBild() {
    const auto setze = [](std::int64_t& x, std::int64_t& y, Bildpunkt ort) {
        x = ort.x;
        y = ort.y;
    };
    Bildorte orte(*this, *this);
    FuerAllePunkte([&](const zrw::PunktKnoten& p) {
        const Bildpunkt ort = BildortVon(p, *this);
        if (SuchPkt(p.PNr) == &p) orte.NimmOrt(p.PNr, ort);
        setze(p.Item->XO, p.Item->YO, ort);
    });
    FuerAlleKanten([&](const PunktKante& k) {
        setze(k.Item->XO, k.Item->YO, orte.Anfang(k));
        setze(k.Item->XBiE, k.Item->YBiE, orte.Ende(k));
    });
    FuerAlleTexte([&](const PunktString& t) { setze(t.Item->XO, t.Item->YO, orte.Text(t)); });
}

void Liste::PasseEin() {
    if (PunktKnoten == nullptr) return;
    Ansicht::PasseEin();
    WeltinBild();
}

void Liste::Alles(Zeichner& z) {
    ClearPicture(z);
    PasseEin();
    ShowPicture(z);
}

void Liste::ZoomUp(Zeichner& z) {
    ClearPicture(z);
    VergroessereUmEcke(einstellungen_.Zoomschritt);
    WeltinBild();
    ZeichneFiguren(Vorlage(), z);
}

void Liste::ZoomDown(Zeichner& z) {
    VerkleinereUmEcke(einstellungen_.Zoomschritt);
    WeltinBild();
    ZeichneFiguren(Vorlage(), z);
}

void Liste::MoveMe(std::int64_t dx, std::int64_t dy) {
    Ansicht::MoveMe(dx, dy);
    WeltinBild();
}

void Liste::ClearPicture(Zeichner& z) const {
    z.ClearPicture(Weite, Hoehe);
}

void Liste::SetLegende(Zeichner& z) {
    if (!Legend) Legend = Legende::Create();
    Legend->Show(z);
}

// --- Moving and hitting -----------------------------------------------------------------------------------

void Liste::MovePunkt(zrw::PunktKnoten& u, std::int64_t dx, std::int64_t dy) {
    VersetzePunkt(u, Versetzt({u.XWPu, u.YWPu}, {dx, dy}));
    WeltinBild();
}

void Liste::ZentrierPunkt(zrw::PunktKnoten& p1, const zrw::PunktKnoten& p2, Zeichner& z) {
    ZentrierePunkt(p1, p2);
    p1.Item->XO = p2.Item->XO;
    p1.Item->YO = p2.Item->YO;
    if (PktText* t = FindPktText(p1.PNr); t != nullptr) t->Hide(z);
}

void Liste::DragPktText(PunktString& u, Zeichner& z) {
    const Bildpunkt weg = u.Item->Drag(z);
    VersetzeText(u, {Summe(u.Item->XBiO, weg.x), Summe(u.Item->YBiO, weg.y)});
}

void Liste::LoesePunkt(const zrw::PunktKnoten& punkt, Zeichner& z) {
    // By position, not by number: what meets the point in the picture must not stay behind when it moves.
    const Bildpunkt ort = BildortVon(punkt, *this);
    const Bildbereich dort = Fangbereich(ort, 0);
    std::vector<PPunktKante> kanten;
    SammleKanten(*this, dort, kanten);
    for (PPunktKante k : kanten) {
        if (AnfangVon(*k, *this, *this) == ort || EndeVon(*k, *this, *this) == ort) k->Item->Hide(z);
    }
    std::vector<PPunktString> texte;
    SammleTexte(*this, dort, texte);
    for (PPunktString t : texte) {
        if (BildortVon(*t, *this, *this) == ort) t->Item->Hide(z);
    }
}

bool Liste::MausPunkt(Bildpunkt maus, PPunktKnoten& u, Zeichner& z) {
    const PPunktKnoten treffer = ClickPunkt(maus);
    if (treffer == nullptr) return false;
    LoesePunkt(*treffer, z);
    u = treffer;
    return true;
}

void Liste::MausLegende(Bildpunkt maus) {
    if (Legend) Legend->Move = Gefangen(maus, Legend->Position());
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

void Liste::ShowPunkt(zrw::PunktKnoten& pp, Zeichner& z) {
    FuerKantenAm(pp.PNr, [&](PunktKante& k) { ZeigeFigur(*k.Item, z); });
    if (PktText* t = FindPktText(pp.PNr); t != nullptr) ZeigeFigur(*t, z);
    ZeigeFigur(*pp.Item, z);
}

void Liste::HidePunkt(zrw::PunktKnoten& pp, Zeichner& z) {
    FuerKantenAm(pp.PNr, [&](PunktKante& k) { k.Item->Hide(z); });
    if (PktText* t = FindPktText(pp.PNr); t != nullptr) t->Hide(z);
    pp.Item->Hide(z);
}

void Liste::ChKante(LinieAttr newAttr, Zeichner& z) {
    for (PPunktKante k = KanteKnoten; k != nullptr; k = k->Next) {
        k->Item->ChangeLAttr(newAttr, z);
        SetzeBeobachtungen(*k, newAttr, k->Item->KAttr);
    }
}

void Liste::DisplayHilfp(bool show) {
    for (PPunktString t = PktTextKnoten; t != nullptr; t = t->Next) {
        const bool sichtbar = show || !IstHilfspunkt(*t->Item);
        if (PPunktKnoten p = FindPunkt(t->Item->Aus.Text()); p != nullptr) p->Item->Visible = sichtbar;
        t->Item->Visible = sichtbar;
    }
}

}  // namespace zrw
