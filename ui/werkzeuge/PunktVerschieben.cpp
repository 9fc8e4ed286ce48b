#include "ui/werkzeuge/PunktVerschieben.h"

#include "model/Ganzzahl.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/werkzeuge/Markierung.h"

namespace zrw {

QString PunktVerschieben::Anleitung() const {
    return QStringLiteral("Punkt verschieben: Punkt mit gedrückter Maustaste ziehen.");
}

void PunktVerschieben::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    umgebung_.ZeigeVorschau(MarkiereTreffer(netz != nullptr ? netz->ClickGezeigten(ort) : nullptr));
}

void PunktVerschieben::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    punkt_ = netz != nullptr ? netz->ClickGezeigten(ort) : nullptr;
    if (punkt_ == nullptr) return;
    anfang_ = ort;
    Loese(*netz);
    Ziehen(ort);
}

/// Takes the figures at the point out of the picture and remembers which of them were in it.
void PunktVerschieben::Loese(Liste& netz) {
    const Bildpunkt ort = punkt_->Item->Position();
    const Bildbereich dort{ort.x, ort.y, ort.x, ort.y};
    std::vector<PPunktKante> kanten;
    netz.SammleKanten(dort, kanten);
    for (PPunktKante k : kanten) {
        Kante& kante = *k->Item;
        if (!kante.Visible || (kante.Position() != ort && kante.Ende() != ort)) continue;
        kanten_.push_back(
            {&kante, k->ANr == punkt_->PNr, k->ENr == punkt_->PNr, netz.ShowBeob && netz.Dargestellt(*k)});
    }
    std::vector<PPunktString> texte;
    netz.SammleTexte(dort, texte);
    for (PPunktString t : texte) {
        if (t->Item->Visible && t->Item->Position() == ort) texte_.push_back(t->Item);
    }
    sichtbar_ = punkt_->Item->Visible;
    netz.LoesePunkt(*punkt_, umgebung_.Bildzeichner());
    punkt_->Item->Hide(umgebung_.Bildzeichner());
    umgebung_.BildGeaendert();
}

void PunktVerschieben::StelleHer() {
    for (const Folger& f : kanten_)
        f.kante->Visible = true;
    for (PktText* t : texte_)
        t->Visible = true;
    punkt_->Item->Visible = sichtbar_;
    kanten_.clear();
    texte_.clear();
    punkt_ = nullptr;
    umgebung_.ZeigeVorschau({});
}

void PunktVerschieben::ZeigeVerschoben(Zeichner& z, Bildpunkt versatz) const {
    const auto verschoben = [&](auto figur) {
        figur.Visible = true;
        figur.XO = Summe(figur.XO, versatz.x);
        figur.YO = Summe(figur.YO, versatz.y);
        return figur;
    };
    const Bildpunkt nach = verschoben(*punkt_->Item).Position();
    for (const Folger& f : kanten_) {
        if (!f.gezeigt) continue;
        Kante k = *f.kante;
        k.Visible = true;
        if (f.mitAnfang) k.XO = nach.x;
        if (f.mitAnfang) k.YO = nach.y;
        if (f.mitEnde) k.XBiE = nach.x;
        if (f.mitEnde) k.YBiE = nach.y;
        k.Show(z);
    }
    verschoben(*punkt_->Item).Show(z);
    Liste& netz = *umgebung_.AktuelleListe();
    if (!netz.ShowPktText || !netz.ShowHilfP) return;
    for (const PktText* t : texte_) {
        PktText text = t == netz.FindPktText(punkt_->PNr) ? verschoben(*t) : *t;
        text.Visible = true;
        text.Show(z);
    }
}

void PunktVerschieben::Ziehen(Bildpunkt ort) {
    if (punkt_ == nullptr) return;
    const Bildpunkt versatz{ort.x - anfang_.x, ort.y - anfang_.y};
    umgebung_.ZeigeVorschau([this, versatz](Zeichner& z, Zeichenflaeche& /*f*/) {
        if (punkt_ != nullptr) ZeigeVerschoben(z, versatz);
    });
}

void PunktVerschieben::Loslassen(Bildpunkt ort) {
    if (punkt_ == nullptr) return;
    PunktKnoten& punkt = *punkt_;
    const Bildpunkt versatz{ort.x - anfang_.x, ort.y - anfang_.y};
    StelleHer();
    if (versatz == Bildpunkt{}) {
        umgebung_.HeileBild();
        return;
    }
    Liste& netz = *umgebung_.AktuelleListe();
    umgebung_.Tue(
        std::make_unique<PunktVersetzt>(netz, punkt, netz.Versetzt({punkt.XWPu, punkt.YWPu}, versatz)));
}

void PunktVerschieben::Abbrechen() {
    umgebung_.ZeigeVorschau({});
    if (punkt_ == nullptr) return;
    StelleHer();
    umgebung_.HeileBild();
}

}  // namespace zrw
