#include "ui/werkzeuge/ZentrierenMaus.h"

#include "ui/werkzeuge/Markierung.h"

namespace zrw {

QString ZentrierenMaus::Anleitung() const {
    return exzentrum_ != nullptr
               ? QStringLiteral("Exzentrum gewählt, bitte Zentrum wählen.")
               : QStringLiteral("Punktzentrierung mit Maus: Exzentrum anklicken, dann Zentrum.");
}

void ZentrierenMaus::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    PPunktKnoten punkt = netz != nullptr ? netz->ClickGezeigten(ort) : nullptr;
    if (punkt == nullptr) return;
    if (exzentrum_ == nullptr) {
        exzentrum_ = punkt;
        umgebung_.ZeigeStatus(QStringLiteral("Zentrierung Exzentrum gewählt, bitte Zentrum anklicken."));
        return;
    }
    if (punkt == exzentrum_) return;  // a double click
    PunktKnoten& exzentrum = *exzentrum_;
    Abbrechen();
    umgebung_.Zentriere(exzentrum, *punkt);
}

void ZentrierenMaus::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    const Vorschau unterMaus = MarkiereTreffer(netz->ClickGezeigten(ort));
    const Vorschau gewaehlt = MarkiereTreffer(exzentrum_);
    umgebung_.ZeigeVorschau([=](Zeichner& z, Zeichenflaeche& f) {
        if (gewaehlt) gewaehlt(z, f);
        if (unterMaus) unterMaus(z, f);
    });
    if (exzentrum_ != nullptr) umgebung_.ZeigeStatus(Anleitung());
}

void ZentrierenMaus::Abbrechen() {
    exzentrum_ = nullptr;
    umgebung_.ZeigeVorschau({});
}

void ZentrierenMaus::NetzGeaendert() {
    if (exzentrum_ != nullptr && !umgebung_.AktuelleListe()->Enthaelt(*exzentrum_)) Abbrechen();
}

}  // namespace zrw
