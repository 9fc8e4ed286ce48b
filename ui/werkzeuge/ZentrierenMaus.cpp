#include "ui/werkzeuge/ZentrierenMaus.h"

#include <utility>

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
    PunktKnoten& exzentrum = *std::exchange(exzentrum_, nullptr);
    umgebung_.ZentrierePunkt(exzentrum, *punkt);
}

void ZentrierenMaus::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    umgebung_.ZeigeVorschau(
        Zusammen(MarkiereTreffer(*netz, exzentrum_), MarkiereTreffer(*netz, netz->ClickGezeigten(ort))));
    if (exzentrum_ != nullptr) umgebung_.ZeigeStatus(Anleitung());
}

void ZentrierenMaus::Abbrechen() {
    umgebung_.ZeigeVorschau({});
    if (std::exchange(exzentrum_, nullptr) != nullptr) umgebung_.ZeigeStatus(Anleitung());
}

void ZentrierenMaus::NetzGeaendert() {
    if (exzentrum_ != nullptr && !umgebung_.AktuelleListe()->EnthaeltPunkt(*exzentrum_)) Abbrechen();
}

}  // namespace zrw
