#include "ui/werkzeuge/BeobachtungBearbeiten.h"

#include <utility>

#include "model/Bildorte.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/bild/Figurentext.h"
#include "ui/dialoge/TFormBeobTyp.h"
#include "ui/werkzeuge/Markierung.h"

namespace zrw {

QString BeobachtungBearbeiten::Anleitung() const {
    if (erster_ != nullptr) return QStringLiteral("Beobachtung einfügen P1 gesetzt P2 anklicken");
    if (umgebung_.Beobachtungsdialog().NeueBeobachtung())
        return QStringLiteral("Beobachtung einfügen: P1 anklicken, dann P2.");
    return QStringLiteral("Beobachtung ändern: Linie anklicken, dann im Fenster „Beobachtungstyp“ ändern.");
}

void BeobachtungBearbeiten::BeginneWerkzeug() {
    TFormBeobTyp& dialog = umgebung_.Beobachtungsdialog();
    dialog.geaendert = [this] { TypGewaehlt(); };
    dialog.neuUmgeschaltet = [this] {
        Abbrechen();
        umgebung_.ZeigeStatus(Anleitung());
    };
    NenneBeobachtung();
    if (umgebung_.AktuelleListe() != nullptr) dialog.show();
}

void BeobachtungBearbeiten::BeendeWerkzeug() {
    Abbrechen();
    TFormBeobTyp& dialog = umgebung_.Beobachtungsdialog();
    dialog.geaendert = {};
    dialog.neuUmgeschaltet = {};
    dialog.hide();
}

void BeobachtungBearbeiten::Druecken(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    if (!umgebung_.Beobachtungsdialog().NeueBeobachtung()) {
        WaehleKante(netz->PickGezeigte(ort));
        return;
    }
    PPunktKnoten punkt = netz->ClickGezeigten(ort);
    if (punkt == nullptr) return;
    if (erster_ != nullptr) {
        VerbindePunkte(*netz, *punkt);
    } else {
        erster_ = punkt;
        zweiter_ = nullptr;
        umgebung_.ZeigeStatus(Anleitung());
        NenneBeobachtung();
        ZeigeGewaehltes({});
    }
}

void BeobachtungBearbeiten::WaehleKante(PunktKante* kante) {
    kante_ = kante;
    if (kante != nullptr)
        umgebung_.Beobachtungsdialog().ZeigeWahl(AlsWahl({kante->Item->LAttr, kante->Item->KAttr}));
    NenneBeobachtung();
    ZeigeGewaehltes({});
}

/// The dialog has another type: the picked line takes it at once.
void BeobachtungBearbeiten::TypGewaehlt() {
    if (erster_ != nullptr) return ZieheLinie(*umgebung_.AktuelleListe());
    if (kante_ == nullptr) return;
    Kante& kante = *kante_->Item;
    const Beobachtungstyp typ = AlsTyp(umgebung_.Beobachtungsdialog().Wahl(), kante.KAttr);
    if (typ == Beobachtungstyp{kante.LAttr, kante.KAttr}) return;
    umgebung_.TueAenderung(
        std::make_unique<KanteGeaendert>(*umgebung_.AktuelleListe(), *kante_, typ.richtung, typ.weitere));
}

void BeobachtungBearbeiten::VerbindePunkte(Liste& netz, PunktKnoten& zweiter) {
    if (erster_->PNr == zweiter.PNr) return;  // a double click
    const PunktKnoten& erster = *std::exchange(erster_, nullptr);
    NenneBeobachtung();
    ZeigeGewaehltes({});
    PunktKante* vorhanden = netz.FindKante(erster.PNr, zweiter.PNr);
    const Beobachtungstyp typ = AlsTyp(umgebung_.Beobachtungsdialog().Wahl(),
                                       vorhanden != nullptr ? vorhanden->Item->KAttr : KanteAttr());
    if (vorhanden != nullptr) {
        // What is one-sided points from the first point to the second.
        const Beobachtungswahl wahl = umgebung_.Beobachtungsdialog().Wahl();
        const bool drehen = vorhanden->ANr != erster.PNr && (wahl.richtung == 1 || wahl.hoehe == 1);
        if (!drehen && typ == Beobachtungstyp{vorhanden->Item->LAttr, vorhanden->Item->KAttr})
            return umgebung_.ZeigeStatus(
                QStringLiteral("Beobachtung %1 – %2 ist schon so")
                    .arg(Nummertext(netz, erster.PNr), Nummertext(netz, zweiter.PNr)));
        return umgebung_.TueAenderung(
            std::make_unique<KanteGeaendert>(netz, *vorhanden, typ.richtung, typ.weitere, drehen));
    }
    umgebung_.TueAenderung(std::make_unique<KanteEingefuegt>(netz, Entwurf(), erster.PNr, zweiter.PNr));
}

void BeobachtungBearbeiten::Schweben(Bildpunkt ort) {
    Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    maus_ = ort;
    if (erster_ != nullptr) {
        ZieheLinie(*netz);
        return umgebung_.ZeigeStatus(Anleitung());
    }
    const bool neu = umgebung_.Beobachtungsdialog().NeueBeobachtung();
    ZeigeGewaehltes(neu ? MarkiereTreffer(*netz, netz->ClickGezeigten(ort))
                        : MarkiereTreffer(*netz, netz->PickGezeigte(ort)));
}

/// The line that a second click would insert.
Kante BeobachtungBearbeiten::Entwurf() const {
    const Beobachtungstyp typ = AlsTyp(umgebung_.Beobachtungsdialog().Wahl());
    return Kante::Create(umgebung_.Anzeige().GPSCol, typ.weitere, typ.richtung);
}

/// From the first point to the one under the mouse, else to the mouse itself.
void BeobachtungBearbeiten::ZieheLinie(Liste& netz) {
    zweiter_ = netz.ClickGezeigten(maus_);
    if (zweiter_ != nullptr && zweiter_->PNr == erster_->PNr) zweiter_ = nullptr;
    NenneBeobachtung();
    Vorschau linie;
    if (ImBild(netz, maus_))
        linie = ZeigeEntwurf(Entwurf(), BildortVon(*erster_, netz),
                             zweiter_ != nullptr ? BildortVon(*zweiter_, netz) : maus_);
    ZeigeGewaehltes(Zusammen(std::move(linie), MarkiereTreffer(netz, zweiter_)));
}

void BeobachtungBearbeiten::ZeigeGewaehltes(const Vorschau& dazu) {
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz == nullptr) return;
    umgebung_.ZeigeVorschau(Zusammen(
        erster_ != nullptr ? MarkiereTreffer(*netz, erster_) : MarkiereTreffer(*netz, kante_), dazu));
}

/// In the dialog: both ends of the observation, or the step that is missing.
void BeobachtungBearbeiten::NenneBeobachtung() {
    TFormBeobTyp& dialog = umgebung_.Beobachtungsdialog();
    const Liste* netz = umgebung_.AktuelleListe();
    if (netz != nullptr && kante_ != nullptr) {
        dialog.NenneBeobachtung(
            QStringLiteral("%1 nach %2").arg(Nummertext(*netz, kante_->ANr), Nummertext(*netz, kante_->ENr)));
    } else if (!dialog.NeueBeobachtung()) {
        dialog.NenneBeobachtung(QStringLiteral("Linie anklicken"));
    } else if (netz != nullptr && erster_ != nullptr && zweiter_ != nullptr) {
        dialog.NenneBeobachtung(QStringLiteral("%1 nach %2")
                                    .arg(Nummertext(*netz, erster_->PNr), Nummertext(*netz, zweiter_->PNr)));
    } else if (netz != nullptr && erster_ != nullptr) {
        dialog.NenneBeobachtung(QStringLiteral("%1: Ziel anklicken").arg(Nummertext(*netz, erster_->PNr)));
    } else {
        dialog.NenneBeobachtung(QStringLiteral("Ersten Punkt anklicken"));
    }
}

void BeobachtungBearbeiten::Abbrechen() {
    kante_ = nullptr;
    umgebung_.ZeigeVorschau({});
    const bool begonnen = std::exchange(erster_, nullptr) != nullptr;
    NenneBeobachtung();
    if (begonnen) umgebung_.ZeigeStatus(Anleitung());
}

void BeobachtungBearbeiten::NetzGeaendert() {
    // Another tool may have the preview.
    if (kante_ == nullptr && erster_ == nullptr) return;
    Liste& netz = *umgebung_.AktuelleListe();
    if (kante_ != nullptr && !netz.EnthaeltKante(*kante_)) kante_ = nullptr;
    if (erster_ != nullptr && !netz.EnthaeltPunkt(*erster_)) erster_ = nullptr;
    zweiter_ = nullptr;
    // Undone or done again: the dialog shows what the line has now.
    if (kante_ != nullptr) {
        WaehleKante(kante_);
    } else {
        NenneBeobachtung();
        ZeigeGewaehltes({});
    }
}

}  // namespace zrw
