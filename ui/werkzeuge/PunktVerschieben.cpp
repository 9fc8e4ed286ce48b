#include "ui/werkzeuge/PunktVerschieben.h"

#include <utility>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/werkzeuge/Markierung.h"

namespace zrw {

QString PunktVerschieben::Anleitung() const {
    return QStringLiteral("Punkt verschieben: Punkt mit gedrückter Maustaste ziehen.");
}

void PunktVerschieben::Schweben(Bildpunkt ort) {
    const Liste* netz = umgebung_.AktuelleListe();
    umgebung_.ZeigeVorschau(netz != nullptr ? MarkiereTreffer(*netz, netz->ClickGezeigten(ort)) : Vorschau());
}

std::optional<Bildpunkt> PunktVerschieben::Griff(const PunktKnoten& punkt) const {
    return BildortVon(punkt, *umgebung_.AktuelleListe());
}

void PunktVerschieben::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    punkt_ = netz != nullptr ? netz->ClickGezeigten(ort) : nullptr;
    if (punkt_ == nullptr) return;
    anfang_ = ort;
    FassePunkt(*netz);
    Ziehen(ort);
}

/// What lies at the place of the point, by position and not by number: it must not stay behind when the point
/// moves.
void PunktVerschieben::FassePunkt(Liste& netz) {
    ort_ = BildortVon(*punkt_, netz);
    const Bildbereich dort = Fangbereich(ort_, 0);
    Figurenmenge figuren{{punkt_}, {}, {}};
    std::vector<PPunktKante> kanten;
    netz.SammleKanten(netz, dort, kanten);
    for (PPunktKante k : kanten) {
        const Bildpunkt anfang = AnfangVon(*k, netz, netz);
        const Bildpunkt ende = EndeVon(*k, netz, netz);
        if (!k->Item->Visible || (anfang != ort_ && ende != ort_)) continue;
        figuren.kanten.push_back(k);
        kanten_.push_back({k->Item, anfang, ende, k->ANr == punkt_->PNr, k->ENr == punkt_->PNr,
                           netz.ShowBeob && Dargestellt(*k, netz, netz)});
    }
    netz.SammleTexte(netz, dort, texte_);
    std::erase_if(texte_, [&](const PunktString* t) {
        return !t->Item->Visible || BildortVon(*t, netz, netz) != ort_;
    });
    figuren.texte = texte_;
    umgebung_.LasseAus(std::move(figuren));
}

void PunktVerschieben::LasseLos() {
    kanten_.clear();
    texte_.clear();
    punkt_ = nullptr;
    umgebung_.ZeigeVorschau({});
    umgebung_.LasseAus({});
}

void PunktVerschieben::ZeigeVerschoben(Zeichner& z, Bildpunkt versatz) const {
    const Bildpunkt nach{Summe(ort_.x, versatz.x), Summe(ort_.y, versatz.y)};
    for (const Folger& f : kanten_) {
        if (f.gezeigt)
            z.ZeichneKante(*f.kante, f.mitAnfang ? nach : f.anfang, f.mitEnde ? nach : f.ende, Gang::Zeigen);
    }
    punkt_->Item->ZeigeSymbolBei(nach, z);
    const Liste& netz = *umgebung_.AktuelleListe();
    if (!netz.ZeigtNummern()) return;
    const PunktString* eigener = netz.FindText(punkt_->PNr);
    for (const PunktString* t : texte_)
        z.ZeichneText(*t->Item, t == eigener ? nach : ort_, Gang::Zeigen);
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
    LasseLos();
    if (versatz == Bildpunkt{}) return;
    Liste& netz = *umgebung_.AktuelleListe();
    umgebung_.TueAenderung(
        std::make_unique<PunktVersetzt>(netz, punkt, netz.Versetzt({punkt.XWPu, punkt.YWPu}, versatz)));
}

void PunktVerschieben::Abbrechen() {
    umgebung_.ZeigeVorschau({});
    if (punkt_ != nullptr) LasseLos();
}

}  // namespace zrw
