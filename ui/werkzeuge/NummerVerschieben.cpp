#include "ui/werkzeuge/NummerVerschieben.h"

#include <utility>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/werkzeuge/Markierung.h"
#include "ui/werkzeuge/Nummernfang.h"

namespace zrw {

QString NummerVerschieben::Anleitung() const {
    return QStringLiteral("Punktnummer verschieben: Nummer mit gedrückter Maustaste ziehen.");
}

void NummerVerschieben::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    umgebung_.ZeigeVorschau(
        MarkiereText(umgebung_, netz != nullptr ? NummerUnter(umgebung_, *netz, ort) : nullptr));
}

std::optional<Bildpunkt> NummerVerschieben::Griff(const PunktKnoten& punkt) const {
    const Liste* netz = umgebung_.AktuelleListe();
    const PunktString* text = netz != nullptr ? netz->FindText(punkt.PNr) : nullptr;
    if (text == nullptr || !text->Item->Visible) return std::nullopt;
    return text->Item->Textort(BildortVon(*text, *netz, *netz));
}

void NummerVerschieben::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    text_ = netz != nullptr ? NummerUnter(umgebung_, *netz, ort) : nullptr;
    if (text_ == nullptr) return;
    anfang_ = ort;
    umgebung_.LasseAus({{}, {}, {text_}});
    Ziehen(ort);
}

void NummerVerschieben::Ziehen(Bildpunkt ort) {
    if (text_ == nullptr) return;
    PktText text = *text_->Item;
    text.XBiO = Summe(text.XBiO, ort.x - anfang_.x);
    text.YBiO = Summe(text.YBiO, ort.y - anfang_.y);
    const Liste& netz = *umgebung_.AktuelleListe();
    umgebung_.ZeigeVorschau(
        [text, stelle = BildortVon(*text_, netz, netz)](Zeichner& z, Zeichenflaeche& /*f*/) {
            z.ZeichneText(text, stelle, Gang::Zeigen);
        });
}

void NummerVerschieben::Loslassen(Bildpunkt ort) {
    if (text_ == nullptr) return;
    PunktString& text = *text_;
    const Bildpunkt alt{text.Item->XBiO, text.Item->YBiO};
    const Bildpunkt abstand{Summe(alt.x, ort.x - anfang_.x), Summe(alt.y, ort.y - anfang_.y)};
    LasseLos();
    if (abstand != alt)
        umgebung_.TueAenderung(std::make_unique<NummerVersetzt>(*umgebung_.AktuelleListe(), text, abstand));
}

void NummerVerschieben::LasseLos() {
    text_ = nullptr;
    umgebung_.ZeigeVorschau({});
    umgebung_.LasseAus({});
}

void NummerVerschieben::Abbrechen() {
    umgebung_.ZeigeVorschau({});
    if (text_ != nullptr) LasseLos();
}

}  // namespace zrw
