#include "ui/aenderungen/Aenderungen.h"

#include <utility>

namespace zrw {

PunktVersetzt::PunktVersetzt(PunktKnoten& punkt, Welt nach)
    : punkt_(punkt), alt_{punkt.XWPu, punkt.YWPu}, neu_(nach) {
    setText(QStringLiteral("Punkt verschieben"));
}

void PunktVersetzt::Setze(Welt ort) {
    punkt_.XWPu = ort.rechts;
    punkt_.YWPu = ort.hoch;
}

NummerVersetzt::NummerVersetzt(PktText& text, Bildpunkt abstand)
    : text_(text), alt_{text.XBiO, text.YBiO}, neu_(abstand) {
    setText(QStringLiteral("Punktnummer verschieben"));
}

void NummerVersetzt::Setze(Bildpunkt abstand) {
    text_.XBiO = abstand.x;
    text_.YBiO = abstand.y;
}

void SichtbarkeitGeaendert::Nimm(bool& sichtbar, bool neu) {
    if (sichtbar == neu) return;
    schalter_.push_back(&sichtbar);
    neu_.push_back(neu);
}

void SichtbarkeitGeaendert::NimmPunkt(Liste& liste, const PunktKnoten& punkt, bool neu) {
    liste.FuerKantenAm(punkt.PNr, [&](PunktKante& k) { Nimm(k.Item->Visible, neu); });
    if (PktText* t = liste.FindPktText(punkt.PNr); t != nullptr) Nimm(t->Visible, neu);
    Nimm(punkt.Item->Visible, neu);
}

void SichtbarkeitGeaendert::redo() {
    for (std::size_t i = 0; i < schalter_.size(); ++i)
        *schalter_[i] = neu_[i];
    if (danach) danach(true);
}

void SichtbarkeitGeaendert::undo() {
    // Backwards: a figure that is named twice ends as it was first.
    for (std::size_t i = schalter_.size(); i-- > 0;)
        *schalter_[i] = !neu_[i];
    if (danach) danach(false);
}

KanteGeaendert::KanteGeaendert(Liste& liste, PunktKante& kante, LinieAttr richtung, KanteAttr weitere,
                               bool drehen)
    : liste_(liste), kante_(kante), andereRichtung_(richtung), andereWeitere_(weitere), drehen_(drehen) {
    setText(QStringLiteral("Beobachtung ändern"));
}

void KanteGeaendert::redo() {
    std::swap(kante_.Item->LAttr, andereRichtung_);
    std::swap(kante_.Item->KAttr, andereWeitere_);
    if (drehen_) liste_.DreheKante(kante_);
}

KanteEingefuegt::KanteEingefuegt(Liste& liste, const Kante& kante, PunktIndex anfang, PunktIndex ende)
    : liste_(liste), kante_(kante), anfang_(anfang), ende_(ende) {
    setText(QStringLiteral("Beobachtung einfügen"));
}

void KanteEingefuegt::redo() {
    if (knoten_ != nullptr) {
        liste_.SetzeZurueck(platz_);
        return;
    }
    knoten_ = &liste_.AddKante(kante_, anfang_, ende_);
    ++liste_.MaxKant;
}

void KanteEingefuegt::undo() {
    platz_ = liste_.NimmHeraus(*knoten_);
}

KanteGeloescht::KanteGeloescht(Liste& liste, PunktKante& kante) : liste_(liste), kante_(kante) {
    setText(QStringLiteral("Beobachtung löschen"));
}

PunktEingefuegt::PunktEingefuegt(Liste& liste, const Punkt& punkt, const PktText& text, Welt ort,
                                 PunktIndex nr)
    : liste_(liste), punkt_(punkt), text_(text), ort_(ort), nr_(nr) {
    setText(QStringLiteral("Punkt einfügen"));
}

void PunktEingefuegt::redo() {
    if (knoten_ != nullptr) {
        liste_.SetzeZurueck(platz_);
        return;
    }
    knoten_ = &liste_.AddPunkt(punkt_, ort_, nr_);
    liste_.AddPktText(text_, nr_);
    ++liste_.MaxPkte;
}

PunktGeloescht::PunktGeloescht(Liste& liste, PunktKnoten& punkt) : liste_(liste), punkt_(punkt) {
    setText(QStringLiteral("Punkt löschen"));
}

PunktGeaendert::PunktGeaendert(PunktKnoten& punkt, PktText* text, const Angaben& neu)
    : punkt_(punkt), text_(text), andere_(neu), andereTextfarbe_(neu.farbe) {
    setText(QStringLiteral("Punktart ändern"));
}

void PunktGeaendert::redo() {
    std::swap(punkt_.Item->PktArt, andere_.art);
    std::swap(punkt_.Item->PktTyp, andere_.symbol);
    std::swap(punkt_.Item->Farbe, andere_.farbe);
    std::swap(punkt_.XWPu, andere_.ort.rechts);
    std::swap(punkt_.YWPu, andere_.ort.hoch);
    if (text_ != nullptr) std::swap(text_->Col, andereTextfarbe_);
}

}  // namespace zrw
