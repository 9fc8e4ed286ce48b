#include "ui/werkzeuge/Klickwerkzeuge.h"

#include "ui/aenderungen/Aenderungen.h"
#include "ui/werkzeuge/Markierung.h"
#include "ui/werkzeuge/Nummernfang.h"

namespace zrw {

void Klickwerkzeug::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    umgebung_.ZeigeVorschau({});
    Klick(*netz, ort);
}

void Klickwerkzeug::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    umgebung_.ZeigeVorschau(netz != nullptr ? Treffer(*netz, ort) : Vorschau());
}

Vorschau Punktwerkzeug::Treffer(Liste& netz, Bildpunkt ort) const {
    return MarkiereTreffer(netz, netz.ClickGezeigten(ort));
}

void Punktwerkzeug::Klick(Liste& netz, Bildpunkt ort) {
    if (PPunktKnoten p = netz.ClickGezeigten(ort); p != nullptr) NimmPunkt(netz, *p);
}

QString PunktLoeschen::Anleitung() const {
    return QStringLiteral("Punkt löschen: Punkt anklicken; seine Linien gehen mit.");
}

void PunktLoeschen::NimmPunkt(Liste& netz, PunktKnoten& punkt) {
    Umgebung().TueAenderung(std::make_unique<PunktGeloescht>(netz, punkt));
}

QString PunktVerstecken::Anleitung() const {
    return QStringLiteral("Punkt verstecken: Punkt anklicken.");
}

void PunktVerstecken::NimmPunkt(Liste& /*netz*/, PunktKnoten& punkt) {
    Umgebung().VerbergePunkt(punkt);
}

void PunktartWaehlen::BeendeWerkzeug() {
    Abbrechen();
    Umgebung().ZeigeNebenfenster(Nebenfenster::Punktart, false);
}

QString PunktartWaehlen::Anleitung() const {
    return QStringLiteral("Punktart ändern: Punkt anklicken, Angaben wählen, „Zeichnen“.");
}

/// The point that the window shows stays marked.
Vorschau PunktartWaehlen::Treffer(Liste& netz, Bildpunkt ort) const {
    return Zusammen(MarkiereTreffer(netz, Umgebung().GewaehlterPunkt()), Punktwerkzeug::Treffer(netz, ort));
}

void PunktartWaehlen::NimmPunkt(Liste& netz, PunktKnoten& punkt) {
    Umgebung().WaehlePunkt(punkt);
    Umgebung().ZeigeVorschau(MarkiereTreffer(netz, &punkt));
}

namespace {

PPunktString Nummer(const Werkzeugumgebung& umgebung, Liste& netz, Bildpunkt ort) {
    if (!netz.ShowPktText || !netz.ShowHilfP) return nullptr;
    if (PPunktString t = NummerUnter(umgebung, netz, ort); t != nullptr) return t;
    const PunktKnoten* p = netz.ClickGezeigten(ort);
    PPunktString text = p != nullptr ? netz.FindText(p->PNr) : nullptr;
    return text != nullptr && text->Item->Visible ? text : nullptr;
}

}  // namespace

QString NummerVerstecken::Anleitung() const {
    return QStringLiteral("Punktnummer verstecken: Nummer oder Punkt anklicken.");
}

Vorschau NummerVerstecken::Treffer(Liste& netz, Bildpunkt ort) const {
    return MarkiereText(Umgebung(), Nummer(Umgebung(), netz, ort));
}

void NummerVerstecken::Klick(Liste& netz, Bildpunkt ort) {
    PPunktString text = Nummer(Umgebung(), netz, ort);
    if (text == nullptr) return;
    auto aenderung = std::make_unique<SichtbarkeitGeaendert>(QStringLiteral("versteckt"));
    aenderung->NimmFigur(*text, false);
    aenderung->NenneFiguren(netz);
    Umgebung().TueAenderung(std::move(aenderung));
}

QString BeobachtungLoeschen::Anleitung() const {
    return QStringLiteral("Beobachtung löschen: Linie anklicken.");
}

Vorschau BeobachtungLoeschen::Treffer(Liste& netz, Bildpunkt ort) const {
    return MarkiereTreffer(netz, netz.PickGezeigte(ort));
}

void BeobachtungLoeschen::Klick(Liste& netz, Bildpunkt ort) {
    if (PPunktKante k = netz.PickGezeigte(ort); k != nullptr)
        Umgebung().TueAenderung(std::make_unique<KanteGeloescht>(netz, *k));
}

void ErgebnisZeigen::BeendeWerkzeug() {
    Abbrechen();
    Umgebung().ZeigeNebenfenster(Nebenfenster::Ergebnisse, false);
}

QString ErgebnisZeigen::Anleitung() const {
    return QStringLiteral("Ausgleichungsergebnisse zeigen: Punkt oder Linie anklicken.");
}

Vorschau ErgebnisZeigen::Treffer(Liste& netz, Bildpunkt ort) const {
    const PunktKnoten* p = netz.ClickGezeigten(ort);
    return p != nullptr ? MarkiereTreffer(netz, p) : MarkiereTreffer(netz, netz.PickGezeigte(ort));
}

void ErgebnisZeigen::Klick(Liste& netz, Bildpunkt ort) {
    const PunktKnoten* p = netz.ClickGezeigten(ort);
    const PunktKante* k = p == nullptr ? netz.PickGezeigte(ort) : nullptr;
    if (p != nullptr || k != nullptr) Umgebung().ZeigeErgebnis(p, k);
}

void Punktzentrierung::BeendeWerkzeug() {
    Abbrechen();
    Umgebung().ZeigeNebenfenster(Nebenfenster::Zentrierung, false);
}

QString Punktzentrierung::Anleitung() const {
    return QStringLiteral("Punktzentrierung: Exzentren und Zentrum in den Listen wählen, „Zentrieren“.");
}

}  // namespace zrw
