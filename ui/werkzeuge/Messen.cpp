#include "ui/werkzeuge/Messen.h"

#include <QClipboard>
#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>

#include "model/Netzarten.h"
#include "ui/Umwandlung.h"
#include "ui/fenster/Schalter.h"
#include "ui/werkzeuge/Markierung.h"
#include "ui/werkzeuge/Messbild.h"

namespace zrw {
namespace {}  // namespace

QString Messen::Anleitung() const {
    if (umgebung_.AktuelleListe() != nullptr && !Moeglich()) return AusUtf8(kKeineMeter);
    return QStringLiteral(
        "Strecken messen: Punkte oder freie Stellen anklicken, Doppelklick beendet, rechte Taste nimmt die "
        "letzte Ecke zurück, Strg+C kopiert.");
}

bool Messen::Moeglich() const {
    return InMetern(umgebung_.Angaben().Netztyp);
}

/// The point under the mouse, else the place.
Messzug::Ecke Messen::FangeEcke(const Liste& netz, Bildpunkt ort) const {
    const PunktKnoten* p = netz.ClickGezeigten(ort);
    if (p == nullptr) return {netz.BildinWelt(ort), {}};
    return {{p->XWPu, p->YWPu}, netz.GetPktText(p->PNr)};
}

bool Messen::AnLetzter(const Liste& netz, const Messzug::Ecke& ecke, Bildpunkt ort) const {
    if (zug_.Ecken().empty()) return false;
    const Welt letzte = zug_.Ecken().back().ort;
    if (letzte.rechts == ecke.ort.rechts && letzte.hoch == ecke.ort.hoch) return true;
    return ecke.nummer.empty() && netz.Gefangen(ort, netz.Bildort(letzte));
}

void Messen::Druecken(Bildpunkt ort) {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    if (!Moeglich()) return umgebung_.ZeigeStatus(AusUtf8(kKeineMeter));
    if (fertig_) LeereZug();
    Messzug::Ecke ecke = FangeEcke(*netz, ort);
    if (AnLetzter(*netz, ecke, ort)) {
        fertig_ = HatStrecke();
        if (!fertig_) LeereZug();
    } else {
        zug_.NimmEcke(std::move(ecke));
        druck_ = ort;
    }
    Schweben(ort);
}

void Messen::Loslassen(Bildpunkt ort) {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr || !druck_) return;
    const Bildpunkt druck = *druck_;
    druck_.reset();
    if (std::max(std::llabs(ort.x - druck.x), std::llabs(ort.y - druck.y)) > kZittern && ImBild(*netz, ort)) {
        Messzug::Ecke ecke = FangeEcke(*netz, ort);
        if (!AnLetzter(*netz, ecke, ort)) zug_.NimmEcke(std::move(ecke));
    }
    Schweben(ort);
}

void Messen::Schweben(Bildpunkt ort) {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr || !Moeglich()) return umgebung_.ZeigeVorschau({});
    bis_.reset();
    maus_.reset();
    if (ImBild(*netz, ort)) maus_ = ort;
    if (maus_ && !fertig_ && !zug_.Ecken().empty()) {
        const Messzug::Ecke ecke = FangeEcke(*netz, ort);
        if (!AnLetzter(*netz, ecke, ort)) bis_ = ecke.ort;
    }
    ZeigeZug();
}

/// Drawn by place in the world: the view may change meanwhile.
void Messen::ZeigeZug() {
    const Liste& netz = *umgebung_.AktuelleListe();
    const Vorschau treffer = maus_ ? MarkiereTreffer(netz, netz.ClickGezeigten(*maus_)) : Vorschau();
    if (zug_.Ecken().empty()) return umgebung_.ZeigeVorschau(treffer);
    umgebung_.ZeigeVorschau(Zusammen(
        [this](Zeichner& /*z*/, Zeichenflaeche& f) {
            if (const Liste* jetzt = umgebung_.AktuelleListe(); jetzt != nullptr)
                ZeichneMesszug(zug_, bis_, *jetzt, f);
        },
        treffer));
    if (bis_ || HatStrecke()) umgebung_.ZeigeStatus(AusUtf8(Messzeile(zug_, bis_)));
}

void Messen::DrueckeTaste(Werkzeugtaste taste) {
    if (!druck_) taste == Werkzeugtaste::Zuruecknehmen ? EntferneLetzte() : KopiereZug();
}

void Messen::EntferneLetzte() {
    zug_.EntferneLetzte();
    fertig_ = false;
    bis_.reset();
    if (umgebung_.AktuelleListe() == nullptr) return;
    if (maus_) return Schweben(*maus_);
    ZeigeZug();
}

void Messen::KopiereZug() {
    if (!HatStrecke()) return umgebung_.ZeigeStatus(QStringLiteral("Es ist noch keine Strecke gemessen."));
    QGuiApplication::clipboard()->setText(AusUtf8(zug_.Tabelle()));
    umgebung_.MeldeErledigt(
        QStringLiteral("Strecken in die Zwischenablage kopiert: %1").arg(zug_.Ecken().size() - 1));
}

void Messen::LeereZug() {
    zug_.LeereZug();
    fertig_ = false;
    bis_.reset();
}

void Messen::Abbrechen() {
    if (druck_) {
        druck_.reset();
        return EntferneLetzte();
    }
    LeereZug();
    umgebung_.ZeigeVorschau({});
}

void Messen::NetzGeaendert() {
    zug_.PruefeNummern(*umgebung_.AktuelleListe());
}

}  // namespace zrw
