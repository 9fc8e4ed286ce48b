// Main window: legend, export, dialogs and help.
#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QUrl>

#include "model/Fehler.h"
#include "output/Export.h"
#include "ui/Systemart.h"
#include "ui/Umwandlung.h"
#include "ui/aenderungen/Punktartwahl.h"
#include "ui/ausgabe/Ausgabedialog.h"
#include "ui/dialoge/TAboutBox.h"
#include "ui/dialoge/TFormPunktart.h"
#include "ui/dialoge/TZRWLBLForm.h"
#include "ui/dialoge/TZRWParameter.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/TFormData.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Hauptfenster.h"
#include "ui/fenster/Nummernordner.h"
#include "ui/fenster/Sanduhr.h"
#include "ui/fenster/Zentrierkasten.h"
#include "ui/hilfe/Hilfefenster.h"

namespace zrw {

/// The one place that tells what an action could not do; its scopes have put everything back by then.
void TZrwMainDlg::ZeigeFehler(const std::exception& fehler) {
    programm_.dialoge.MeldeFehler(AusUtf8(Fehlertext(fehler)));
}

void TZrwMainDlg::SpeedButton12Click() {
    if (!plan_.Offen()) return;
    const bool geaendert = legendentexte_->BearbeiteLegende(*plan_.Daten());
    plan_.Daten()->Legend->Masstab = druck_.Massstabtext();
    ZeichneNeu();
    if (geaendert) MeldeErledigt(QStringLiteral("Legende geändert"));
}

void TZrwMainDlg::SpeedButton16Click() {
    if (!plan_.Offen()) return;
    bewahrung_.BewahrePlan();
    werkzeuge_.BrichAb();  // what is written is what the user let go of last
    const auto massstab = druck_.Massstab();
    if (!massstab) return;
    try {
        const Sanduhr sanduhr;
        const double faktor = Druckfaktor(*massstab, programm_.drucker.Aufloesung());
        ExportierePlan(plan_.Daten()->Vorlage(),
                       {programm_.zustand, programm_.einstellungen, programm_.netz, programm_.uhr},
                       programm_.dateien, {faktor, kPlotname, kDxfname});
        if (plan_.Daten()->ShowLegende) plan_.Daten()->Legend->Masstab = druck_.Massstabtext();
        ZeichneNeu();
    } catch (const std::exception& f) {
        ZeigeFehler(f);
        return;
    }
    MeldeErledigt(QStringLiteral("Geschrieben nach ") + QDir::toNativeSeparators(QDir::currentPath()));
    // "ZRP.PLT" is not the file's name, but what users have always read here.
    programm_.dialoge.SageErfolg(
        QStringLiteral("Dateien ZRW.DXF (DXF-Format) und ZRP.PLT (HPGL/2-Format) erzeugt."));
}

void TZrwMainDlg::AusgebenClick() {
    if (!plan_.Offen() || findChild<QDialog*>(QStringLiteral("AusgabeDialog")) != nullptr) return;
    bewahrung_.BewahrePlan();
    werkzeuge_.BrichAb();
    SchliesseEinstellungen();  // closing saves them: the command line reads what is saved
    auto* dialog = new Ausgabedialog(
        programm_, plan_, {EditMasstab_->text(), vorlieben_.KantenGlaetten, druck_.Gestaltung()}, ordner_,
        [this](const PunktString& t) { return !nummern_->IstVerschoben(t); }, this);
    dialog->geschrieben = [this](const QString& text) { MeldeErledigt(text); };
    dialog->open();
}

// --- Dialogs and help -------------------------------------------------------------------------------------

void TZrwMainDlg::SchliesseEinstellungen() {
    for (auto* offen : findChildren<QDialog*>(QStringLiteral("TZRWParameter")))
        offen->close();
}

void TZrwMainDlg::ColorButtonClick() {
    // One at a time: two would not show each other's changes. Closing saves.
    SchliesseEinstellungen();
    auto* dialog =
        new TZRWParameter(programm_.einstellungen, vorlieben_, programm_.ablage, programm_.dialoge, this);
    dialog->geschlossen = [this] { planbild_.SetzeGlatt(vorlieben_.KantenGlaetten); };
    dialog->anwenden = [this] { farben_.FaerbeNetz(); };
    dialog->show();
}

void TZrwMainDlg::SpeedButton8Click() {
    if (const auto schrift = programm_.dialoge.WaehleSchrift(planbild_.Flaeche().Planschrift())) {
        // Drawing in white must wipe every pixel of a text.
        QFont ohneGlaettung = *schrift;
        ohneGlaettung.setStyleStrategy(Zeichenschrift().styleStrategy());
        planbild_.Flaeche().SetzePlanschrift(ohneGlaettung);
        ZeichneNeu();
        MeldeErledigt(QStringLiteral("Zeichenfont: ") + schrift->family());
    }
}

void TZrwMainDlg::SpeedButton4Click() {
    auto* info = findChild<QDialog*>(QStringLiteral("TAboutBox"));
    if (info == nullptr) info = new TAboutBox(programm_.version, this);
    info->open();
}

void TZrwMainDlg::SpeedButton6Click() {
    // Offices that have a help file of their own put it where they work.
    const QString eigene = QStringLiteral("ZRWHELP.HLP");
    if (kWindows && QFileInfo::exists(eigene) &&
        programm_.dialoge.FrageJaNein(eigene + QStringLiteral(" öffnen?"))) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(eigene).absoluteFilePath()));
        return;
    }
    ZeigeHilfe(kErsteSeite);
}

void TZrwMainDlg::ZeigeHilfe(int kontext) {
    if (hilfe_ == nullptr) hilfe_ = std::make_unique<Hilfefenster>();
    hilfe_->ZeigeSeite(kontext);
}

bool TZrwMainDlg::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    if (ereignis->type() == QEvent::KeyPress && empfaenger->isWidgetType()) {
        const auto* taste = static_cast<QKeyEvent*>(ereignis);
        // In a dialog there is nothing that plain help could be about but the dialog.
        const bool dialog = static_cast<QWidget*>(empfaenger)->window() != this;
        if (taste->key() == Qt::Key_F1 &&
            (taste->modifiers() == Qt::ControlModifier || (dialog && taste->modifiers() == Qt::NoModifier))) {
            const auto* menue = qobject_cast<QMenu*>(empfaenger);
            ZeigeHilfe(menue != nullptr ? Aktionen::Thema(menue->activeAction())
                                        : ThemaZu(QApplication::focusWidget()));
            // An open menu would keep the keyboard.
            while (QWidget* offen = QApplication::activePopupWidget())
                offen->close();
            return true;
        }
    }
    return QMainWindow::eventFilter(empfaenger, ereignis);
}

void TZrwMainDlg::ZeigeErgebnis(const PunktKnoten* punkt, const PunktKante* kante) {
    if (punkt != nullptr) {
        ergebnisse_->ListeAuf(*plan_.Daten(), *punkt);
    } else if (kante != nullptr) {
        ergebnisse_->ListeAuf(*plan_.Daten(), *kante);
    }
}

void TZrwMainDlg::ZeigeNebenfenster(Nebenfenster welches, bool sichtbar) {
    const bool zeigen = sichtbar && plan_.Offen();
    switch (welches) {
        case Nebenfenster::Zentrierung:
            zeigen ? zentrierkasten_->ZeigeZentren() : zentrierkasten_->hide();
            break;
        case Nebenfenster::Punktart:
            punktart_->LoesePunkt();
            punktart_->Fenster().setVisible(zeigen);
            break;
        case Nebenfenster::Ergebnisse:
            ergebnisse_->Fenster().setVisible(zeigen);
            break;
    }
}

}  // namespace zrw
