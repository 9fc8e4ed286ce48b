#include "ui/aenderungen/Aenderungen.h"

#include <set>
#include <utility>

#include "ui/Umwandlung.h"
#include "ui/bild/Figurentext.h"

namespace zrw {
namespace {

QString Punktsatz(const Netz& netz, PunktIndex nr, const char* getan) {
    return QStringLiteral("Punkt %1 ").arg(Nummertext(netz, nr)) + QString::fromUtf8(getan);
}

QString Kantensatz(const Netz& netz, PunktIndex anfang, PunktIndex ende, const char* getan) {
    return QStringLiteral("Beobachtung %1 – %2 ").arg(Nummertext(netz, anfang), Nummertext(netz, ende)) +
           QString::fromUtf8(getan);
}

}  // namespace

PunktVersetzt::PunktVersetzt(Liste& liste, PunktKnoten& punkt, Welt nach)
    : liste_(liste), punkt_(punkt), alt_{punkt.XWPu, punkt.YWPu}, neu_(nach) {
    setText(Punktsatz(liste, punkt.PNr, "verschoben"));
}

NummerVersetzt::NummerVersetzt(Liste& liste, PunktString& text, Bildpunkt abstand)
    : liste_(liste), text_(text), alt_{text.Item->XBiO, text.Item->YBiO}, neu_(abstand) {
    setText(QStringLiteral("Punktnummer %1 verschoben").arg(Nummertext(liste, text.TNr)));
}

bool SichtbarkeitGeaendert::MerkeSchalter(bool& sichtbar, bool neu) {
    if (sichtbar == neu) return false;
    schalter_.push_back(&sichtbar);
    neu_.push_back(neu);
    return true;
}

void SichtbarkeitGeaendert::NimmFigur(PunktKnoten& p, bool neu) {
    if (MerkeSchalter(p.Item->Visible, neu)) figuren_.punkte.push_back(&p);
}

void SichtbarkeitGeaendert::NimmFigur(PunktKante& k, bool neu) {
    if (MerkeSchalter(k.Item->Visible, neu)) figuren_.kanten.push_back(&k);
}

void SichtbarkeitGeaendert::NimmFigur(PunktString& t, bool neu) {
    if (MerkeSchalter(t.Item->Visible, neu)) figuren_.texte.push_back(&t);
}

void SichtbarkeitGeaendert::NimmPunkt(Liste& liste, PunktKnoten& punkt, bool neu) {
    liste.FuerKantenAm(punkt.PNr, [&](PunktKante& k) { NimmFigur(k, neu); });
    if (PPunktString t = liste.FindText(punkt.PNr); t != nullptr) NimmFigur(*t, neu);
    NimmFigur(punkt, neu);
}

void SichtbarkeitGeaendert::NenneFiguren(const Netz& netz) {
    // Lists of numbers may name one twice.
    std::set<PunktIndex> nummern;
    for (const PunktKnoten* p : figuren_.punkte)
        nummern.insert(p->PNr);
    const bool punkte = !nummern.empty();
    for (const PunktString* t : figuren_.texte)
        if (!punkte) nummern.insert(t->TNr);
    const QString was = punkte ? QStringLiteral("Punkt") : QStringLiteral("Punktnummer");
    const QString viele = punkte ? QStringLiteral("Punkte") : QStringLiteral("Punktnummern");
    setText(nummern.size() == 1
                ? QStringLiteral("%1 %2 %3").arg(was, Nummertext(netz, *nummern.begin()), getan_)
                : QStringLiteral("%1 %2 %3").arg(nummern.size()).arg(viele, getan_));
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
    setText(Kantensatz(liste, drehen ? kante.ENr : kante.ANr, drehen ? kante.ANr : kante.ENr, "geändert"));
}

void KanteGeaendert::redo() {
    const LinieAttr richtung = std::exchange(andereRichtung_, kante_.Item->LAttr);
    const KanteAttr weitere = std::exchange(andereWeitere_, kante_.Item->KAttr);
    liste_.SetzeBeobachtungen(kante_, richtung, weitere);
    if (drehen_) liste_.DreheKante(kante_);
}

KanteEingefuegt::KanteEingefuegt(Liste& liste, const Kante& kante, PunktIndex anfang, PunktIndex ende)
    : liste_(liste), kante_(kante), anfang_(anfang), ende_(ende) {
    setText(Kantensatz(liste, anfang, ende, "eingefügt"));
}

Figurenmenge KanteEingefuegt::Betroffene() const {
    return knoten_ != nullptr ? Figurenmenge{{}, {knoten_}, {}} : Figurenmenge{};
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
    setText(Kantensatz(liste, kante.ANr, kante.ENr, "gelöscht"));
}

PunktEingefuegt::PunktEingefuegt(Liste& liste, const Punkt& punkt, const PktText& text, Welt ort,
                                 PunktIndex nr)
    : liste_(liste), punkt_(punkt), text_(text), ort_(ort), nr_(nr) {
    setText(QStringLiteral("Punkt %1 eingefügt").arg(AusNetz(text.Aus.Text())));
}

Figurenmenge PunktEingefuegt::Betroffene() const {
    return knoten_ != nullptr ? liste_.Umfeld(*knoten_) : Figurenmenge{};
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
    setText(Punktsatz(liste, punkt.PNr, "gelöscht"));
}

PunktGeaendert::PunktGeaendert(Liste& liste, PunktKnoten& punkt, const Angaben& neu)
    : liste_(liste),
      punkt_(punkt),
      text_(liste.FindPktText(punkt.PNr)),
      andere_(neu),
      andereTextfarbe_(neu.farbe) {
    setText(Punktsatz(liste, punkt.PNr, "geändert"));
}

void PunktGeaendert::redo() {
    std::swap(punkt_.Item->PktArt, andere_.art);
    std::swap(punkt_.Item->PktTyp, andere_.symbol);
    std::swap(punkt_.Item->Farbe, andere_.farbe);
    const Welt vorher{punkt_.XWPu, punkt_.YWPu};
    liste_.VersetzePunkt(punkt_, std::exchange(andere_.ort, vorher));
    if (text_ != nullptr) std::swap(text_->Col, andereTextfarbe_);
}

}  // namespace zrw
