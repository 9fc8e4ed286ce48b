#include "ui/werkzeuge/NummerVerschieben.h"

#include "model/Ganzzahl.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/werkzeuge/Markierung.h"

namespace zrw {

QString NummerVerschieben::Anleitung() const {
    return QStringLiteral("Punktnummer verschieben: Anfang der Nummer mit gedrückter Maustaste ziehen.");
}

void NummerVerschieben::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    umgebung_.ZeigeVorschau(MarkiereTreffer(netz != nullptr ? netz->ClickGezeigtenText(ort) : nullptr));
}

void NummerVerschieben::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    const PunktString* treffer = netz != nullptr ? netz->ClickGezeigtenText(ort) : nullptr;
    if (treffer == nullptr) return;
    text_ = treffer->Item;
    anfang_ = ort;
    text_->Hide(umgebung_.Bildzeichner());
    umgebung_.BildGeaendert();
    Ziehen(ort);
}

void NummerVerschieben::Ziehen(Bildpunkt ort) {
    if (text_ == nullptr) return;
    PktText text = *text_;
    text.Visible = true;
    text.XBiO = Summe(text.XBiO, ort.x - anfang_.x);
    text.YBiO = Summe(text.YBiO, ort.y - anfang_.y);
    umgebung_.ZeigeVorschau([text](Zeichner& z, Zeichenflaeche& /*f*/) mutable { text.Show(z); });
}

void NummerVerschieben::Loslassen(Bildpunkt ort) {
    if (text_ == nullptr) return;
    PktText& text = *text_;
    const Bildpunkt abstand{Summe(text.XBiO, ort.x - anfang_.x), Summe(text.YBiO, ort.y - anfang_.y)};
    Abbrechen();
    if (abstand != Bildpunkt{text.XBiO, text.YBiO})
        umgebung_.Tue(std::make_unique<NummerVersetzt>(text, abstand));
}

void NummerVerschieben::Abbrechen() {
    umgebung_.ZeigeVorschau({});
    if (text_ == nullptr) return;
    text_->Visible = true;
    text_ = nullptr;
    umgebung_.ZeichneNeu();
}

}  // namespace zrw
