// Main window: point numbers, centring, hidden points, point kinds, and what follows a change.
#include <QScopedValueRollback>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "output/Abschneiden.h"
#include "ui/Ergebnisanzeige.h"
#include "ui/Hauptfenster.h"
#include "ui/Nummernfeld.h"
#include "ui/Punktartwahl.h"
#include "ui/Punktversteck.h"
#include "ui/Sanduhr.h"
#include "ui/Umwandlung.h"
#include "ui/Zentrierkasten.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/aenderungen/Verwerfen.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/dialoge/TFormHidePunkte.h"

namespace zrw {
namespace {

constexpr Farbe kSuchfarbe{0xFF0000};

std::string AlsNummer(const QString& text) {
    return Utf8NachCp1252(NachUtf8(text));
}

}  // namespace

// A drag under way ends first: its figures are out of the picture, and what is changed may be one of them.
void TZrwMainDlg::Rueckgaengig() {
    BrichAb();
    if (!aenderungen_.canUndo()) return ZeigeStatus(QStringLiteral("Es gibt nichts zurückzunehmen."));
    const QString text = aenderungen_.undoText();
    Fuehre(Aenderung(aenderungen_.index() - 1), [this] { aenderungen_.undo(); });
    ZeigeStatus(QStringLiteral("Rückgängig: ") + text);
}

void TZrwMainDlg::Wiederhole() {
    BrichAb();
    if (!aenderungen_.canRedo()) return ZeigeStatus(QStringLiteral("Es gibt nichts zu wiederholen."));
    const QString text = aenderungen_.redoText();
    Fuehre(Aenderung(aenderungen_.index()), [this] { aenderungen_.redo(); });
    ZeigeStatus(QStringLiteral("Wiederholt: ") + text);
}

/// All that is on the stack came through `Tue`.
const Netzaenderung& TZrwMainDlg::Aenderung(int i) const {
    return static_cast<const Netzaenderung&>(*aenderungen_.command(i));
}

void TZrwMainDlg::Tue(std::unique_ptr<Netzaenderung> aenderung) {
    const Netzaenderung& neu = *aenderung;
    Fuehre(neu, [&] { aenderungen_.push(aenderung.release()); });
}

/// Makes a change or takes it back, and draws the picture where it shows.
template <class Tat>
void TZrwMainDlg::Fuehre(const Netzaenderung& aenderung, Tat tat) {
    if (liste_ != nullptr) pflege_.Vorher(*liste_, aenderung.Betroffene());
    {
        const QScopedValueRollback laufend(laufende_, &aenderung);
        tat();
    }
    const QScopedValueRollback still(raeumt_, true);
    Raeume(aenderungen_);
}

/// A change was made, undone or made again.
void TZrwMainDlg::NetzGeaendert() {
    if (liste_ == nullptr || raeumt_) return;
    ansicht_.NetzGeaendert();
    punktart_->NetzGeaendert();
    versteck_->Versteckte().NetzGeaendert();
    if (ComboBox1_->Veraltet(*liste_)) FuelleNummern();
    if (laufende_ != nullptr) {
        pflege_.Nachher(*liste_, laufende_->Betroffene());
        ZeigeBild();
    } else {
        ZeichneNeu();
    }
    for (const auto& werkzeug : werkzeuge_)
        werkzeug->NetzGeaendert();
}

/// In all the lists.
void TZrwMainDlg::FuelleNummern() {
    ComboBox1_->Fuelle(*liste_);
    const QStringList nummern = ComboBox1_->Nummern();
    zentrierkasten_->Fuelle(nummern);
    if (zentrierkasten_->isVisible()) zentrierkasten_->Zeige();
    if (versteck_->Auswahl().isVisible()) versteck_->Auswahl().Fuelle(nummern);
}

// --- Finding a point --------------------------------------------------------------------------------------

void TZrwMainDlg::SpeedButton10Click() {
    ZeigePunkt(ComboBox1_->currentText());
}

/// Brings a point into view and marks it. A part of a number finds the first that holds it.
void TZrwMainDlg::ZeigePunkt(const QString& nummer) {
    const PunktKnoten* punkt = MarkierePunkt(nummer);
    if (punkt == nullptr) return;
    // A window without any results would only be in the way.
    if (Knopf("DataButton").isChecked() || ergebnisse_->Vorhanden()) ergebnisse_->ListeAuf(*liste_, *punkt);
}

/// Brings the point into view and marks it. @return null where there is none of this number
const PunktKnoten* TZrwMainDlg::MarkierePunkt(const QString& nummer) {
    if (liste_ == nullptr || nummer.isEmpty()) return nullptr;
    PPunktKnoten punkt = liste_->FindPunkt(AlsNummer(nummer));
    if (punkt == nullptr) {
        if (const auto treffer = ComboBox1_->Finde(nummer)) punkt = liste_->FindPunkt(AlsNummer(*treffer));
    }
    if (punkt == nullptr) {
        ZeigeStatus(QStringLiteral("Einen Punkt %1 gibt es nicht.").arg(nummer));
        return nullptr;
    }
    BrichAb();
    const QString gefunden = AusNetz(liste_->GetPktText(punkt->PNr));
    ComboBox1_->setEditText(gefunden);
    const Rechteck bild = flaeche_.Sichtbar();
    if (!InReichweite(BildortVon(*punkt, *liste_), 0, bild)) {
        liste_->SetzeMitte({punkt->XWPu, punkt->YWPu});
    }
    ZeichneNeu();
    if (!InReichweite(BildortVon(*punkt, *liste_), 0, bild)) return punkt;
    const Flaechenpunkt m = Aufflaeche(BildortVon(*punkt, *liste_));
    {
        const Stiftwechsel stift(flaeche_, {kSuchfarbe, 2, Strichart::Voll}, {kWeiss, true});
        for (const std::int32_t r : {50, 25})
            flaeche_.Ellipse({m.x - r, m.y - r, m.x + r, m.y + r});
    }
    pflege_.Beschmutze();
    bild_->update();
    ZeigeStatus(QStringLiteral("Punkt ") + gefunden +
                (!punkt->Item->Visible
                     ? QStringLiteral(" ist versteckt („Versteckte Punkte“ zeigt ihn wieder)")
                 : !liste_->Dargestellt(*punkt->Item)
                     ? QStringLiteral(" ist nicht zu sehen: Punkte seiner Art sind ausgeschaltet")
                     : QString()));
    return punkt;
}

// --- Centring ---------------------------------------------------------------------------------------------

/// Centring is not undone by any command, so what came before cannot be undone at these points either.
void TZrwMainDlg::SindZentriert(const std::set<PunktIndex>& nummern) {
    ungesichert_ = true;
    {
        const QScopedValueRollback still(raeumt_, true);
        Verwirf(aenderungen_, nummern);
    }
    ansicht_.NetzGeaendert();
    punktart_->NetzGeaendert();
    ZeigeTitel();
}

void TZrwMainDlg::Zentriere(PunktKnoten& exzentrum, PunktKnoten& zentrum) {
    liste_->ZentrierPunkt(exzentrum, zentrum, zeichner_);
    SindZentriert({exzentrum.PNr});
    ZeichneNeu();
    ZeigeStatus(
        QStringLiteral("%1 auf %2 zentriert")
            .arg(AusNetz(liste_->GetPktText(exzentrum.PNr)), AusNetz(liste_->GetPktText(zentrum.PNr))));
}

void TZrwMainDlg::ZentriereListe(const std::optional<QString>& zentrum, const QStringList& exzentren) {
    if (liste_ == nullptr) return;
    const Sanduhr sanduhr;
    PPunktKnoten ziel = zentrum ? liste_->FindPunkt(AlsNummer(*zentrum)) : nullptr;
    if (ziel == nullptr || exzentren.isEmpty()) {
        ZeigeStatus(QStringLiteral("Nichts zentriert: links Exzentren wählen, rechts ein Zentrum."));
    } else {
        std::set<PunktIndex> nummern;
        for (const QString& nummer : exzentren) {
            PPunktKnoten p = liste_->FindPunkt(AlsNummer(nummer));
            if (p == nullptr) continue;
            liste_->ZentrierPunkt(*p, *ziel, zeichner_);
            nummern.insert(p->PNr);
        }
        zentrierkasten_->MerkeZentrierte(exzentren);
        SindZentriert(nummern);
        ZeigeStatus(
            QStringLiteral("%1 auf %2 zentriert").arg(exzentren.join(QStringLiteral(", ")), *zentrum));
    }
    ZeichneNeu();
}

// --- Hiding -----------------------------------------------------------------------------------------------

void TZrwMainDlg::SpeedButton14Click() {
    if (!Knopf("SpeedButton14").isChecked()) {
        versteck_->Auswahl().hide();
        return;
    }
    versteck_->Auswahl().Fuelle(ComboBox1_->Nummern());
    versteck_->Auswahl().show();
}

void TZrwMainDlg::SpeedButton15Click() {
    versteck_->Versteckte().show();
    versteck_->Versteckte().raise();
}

void TZrwMainDlg::VerbergePunkt(PunktKnoten& punkt) {
    const Sanduhr sanduhr;
    versteck_->Verberge(punkt);
}

void TZrwMainDlg::NummernZeigenClick() {
    if (liste_ == nullptr) return;
    BrichAb();
    versteck_->ZeigeNummern();
}

void TZrwMainDlg::WaehlePunkt(PunktKnoten& punkt) {
    punktart_->Waehle(punkt);
}

const PunktKnoten* TZrwMainDlg::GewaehlterPunkt() const {
    return punktart_->Gewaehlt();
}

Bildbereich TZrwMainDlg::Textrahmen(const PunktString& text) const {
    const Bildpunkt ort = text.Item->Textort(BildortVon(text, *liste_, *liste_));
    const Bildpunkt groesse = Textgroesse(programm_.zustand.Gezeigt(*text.Item));
    return {ort.x, ort.y, Summe(ort.x, groesse.x), Summe(ort.y, groesse.y)};
}

Bildpunkt TZrwMainDlg::Textgroesse(std::string_view text) const {
    return {flaeche_.Textbreite(text), flaeche_.Texthoehe()};
}

}  // namespace zrw
