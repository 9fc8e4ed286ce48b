// Main window: point numbers, centring, hidden points, point kinds, and what follows a change.
#include <QLineEdit>

#include "ui/Umwandlung.h"
#include "ui/aenderungen/Punktartwahl.h"
#include "ui/aenderungen/Punktversteck.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/dialoge/TFormHidePunkte.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/Planfaerber.h"
#include "ui/ergebnisse/Residuenwahl.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Hauptfenster.h"
#include "ui/fenster/Nummernfeld.h"
#include "ui/fenster/Nummernordner.h"
#include "ui/fenster/Sanduhr.h"
#include "ui/fenster/Standfelder.h"
#include "ui/fenster/Zentrierkasten.h"

namespace zrw {
namespace {

std::string AlsNummer(const QString& text) {
    return Utf8NachCp1252(NachUtf8(text));
}

}  // namespace

// A drag under way ends first: what is changed may be what it has in hand.
void TZrwMainDlg::Rueckgaengig() {
    werkzeuge_.BrichAb();
    if (!plan_.Rueckgaengig()) ZeigeStatus(QStringLiteral("Es gibt nichts zurückzunehmen."));
}

void TZrwMainDlg::WiederholeSchritt() {
    werkzeuge_.BrichAb();
    if (!plan_.WiederholeSchritt()) ZeigeStatus(QStringLiteral("Es gibt nichts zu wiederholen."));
}

void TZrwMainDlg::NachAenderung(const Figurenmenge& figuren) {
    punktart_->NetzGeaendert();
    versteck_->Versteckte().NetzGeaendert();
    if (ComboBox1_->Veraltet(*plan_.Daten())) FuelleNummern();
    faerber_->NetzGeaendert();
    planbild_.NachAenderung(figuren);
    standfelder_->ZeigeZahlen(*plan_.Daten());
    werkzeuge_.NetzGeaendert();
}

/// In all the lists.
void TZrwMainDlg::FuelleNummern() {
    ComboBox1_->FuelleListe(*plan_.Daten(), plan_.Namen());
    const QStringList nummern = ComboBox1_->Nummern();
    zentrierkasten_->FuelleListen(nummern);
    if (zentrierkasten_->isVisible()) zentrierkasten_->ZeigeZentren();
    if (versteck_->Auswahl().isVisible()) versteck_->Auswahl().FuelleListe(nummern);
}

// --- Finding a point --------------------------------------------------------------------------------------

void TZrwMainDlg::PunktSucheClick() {
    ComboBox1_->setFocus();
    ComboBox1_->lineEdit()->selectAll();
}

void TZrwMainDlg::SpeedButton10Click() {
    ZeigePunkt(ComboBox1_->currentText());
}

/// Brings a point into view and marks it. A part of a number finds the first that holds it.
void TZrwMainDlg::ZeigePunkt(const QString& nummer) {
    const PunktKnoten* punkt = MarkierePunkt(nummer);
    if (punkt == nullptr) return;
    // A window without any results would only be in the way.
    if (aktionen_->NachName("DataButton").isChecked() || ergebnisse_->Vorhanden())
        ergebnisse_->ListeAuf(*plan_.Daten(), *punkt);
}

/// Brings the point into view and marks it. @return null where there is none of this number
const PunktKnoten* TZrwMainDlg::MarkierePunkt(const QString& nummer) {
    if (!plan_.Offen() || nummer.isEmpty()) return nullptr;
    PPunktKnoten punkt = plan_.Daten()->FindPunkt(AlsNummer(ComboBox1_->NummerZu(nummer)));
    if (punkt == nullptr) {
        if (const auto treffer = ComboBox1_->FindeNummer(nummer))
            punkt = plan_.Daten()->FindPunkt(AlsNummer(*treffer));
    }
    if (punkt == nullptr) {
        ZeigeStatus(QStringLiteral("Einen Punkt %1 gibt es nicht.").arg(nummer));
        return nullptr;
    }
    werkzeuge_.BrichAb();
    const QString gefunden = AusNetz(plan_.Daten()->GetPktText(punkt->PNr));
    ComboBox1_->setEditText(gefunden);
    if (!planbild_.MarkierePunkt(*punkt)) return punkt;
    ZeigeStatus(QStringLiteral("Punkt ") + gefunden +
                (!punkt->Item->Visible
                     ? QStringLiteral(" ist versteckt („Versteckte Punkte“ zeigt ihn wieder)")
                 : !plan_.Daten()->Dargestellt(*punkt->Item)
                     ? QStringLiteral(" ist nicht zu sehen: Punkte seiner Art sind ausgeschaltet")
                     : QString()));
    return punkt;
}

// --- Centring ---------------------------------------------------------------------------------------------

void TZrwMainDlg::ZentrierePunkt(PunktKnoten& exzentrum, PunktKnoten& zentrum) {
    plan_.ZentrierePunkte({&exzentrum}, zentrum);
}

void TZrwMainDlg::ZentriereListe(const std::optional<QString>& zentrum, const QStringList& exzentren) {
    if (!plan_.Offen()) return;
    const Sanduhr sanduhr;
    const Liste& netz = *plan_.Daten();
    const PunktKnoten* ziel = zentrum ? netz.FindPunkt(AlsNummer(*zentrum)) : nullptr;
    if (ziel == nullptr || exzentren.isEmpty()) {
        ZeigeStatus(QStringLiteral("Nichts zentriert: links Exzentren wählen, rechts ein Zentrum."));
        return ZeichneNeu();
    }
    std::vector<PPunktKnoten> punkte;
    for (const QString& nummer : exzentren) {
        if (PunktKnoten* p = netz.FindPunkt(AlsNummer(nummer)); p != nullptr) punkte.push_back(p);
    }
    zentrierkasten_->MerkeZentrierte(exzentren);
    plan_.ZentrierePunkte(punkte, *ziel);
}

// --- Hiding -----------------------------------------------------------------------------------------------

void TZrwMainDlg::SpeedButton14Click() {
    if (!aktionen_->NachName("SpeedButton14").isChecked()) {
        versteck_->Auswahl().hide();
        return;
    }
    versteck_->Auswahl().FuelleListe(ComboBox1_->Nummern());
    versteck_->Auswahl().show();
}

void TZrwMainDlg::SpeedButton15Click() {
    versteck_->Versteckte().show();
    versteck_->Versteckte().raise();
}

void TZrwMainDlg::VerbergePunkt(PunktKnoten& punkt) {
    const Sanduhr sanduhr;
    versteck_->VerbergePunkt(punkt);
}

void TZrwMainDlg::NummernZeigenClick() {
    if (plan_.Offen()) versteck_->ZeigeNummern();
}

void TZrwMainDlg::WaehlePunkt(PunktKnoten& punkt) {
    punktart_->WaehlePunkt(punkt);
}

void TZrwMainDlg::ErgebnisMassstabClick() {
    residuen_->OeffneDialog();
}

void TZrwMainDlg::NummernOrdnenClick() {
    nummern_->FrageAlle();
}

const PunktKnoten* TZrwMainDlg::GewaehlterPunkt() const {
    return punktart_->Gewaehlt();
}

}  // namespace zrw
