// Main window: opening, saving, ending.
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMimeData>
#include <QProgressBar>
#include <QUrl>

#include "input/import/Netzimport.h"
#include "model/Bilddatei.h"
#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/aenderungen/Punktartwahl.h"
#include "ui/aenderungen/Punktversteck.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/ergebnisse/Beobachtungsanzeige.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/Residuenwahl.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Aussenhinweis.h"
#include "ui/fenster/Hauptfenster.h"
#include "ui/fenster/Nummernfeld.h"
#include "ui/fenster/Nummernordner.h"
#include "ui/fenster/Sanduhr.h"
#include "ui/fenster/Standfelder.h"
#include "ui/fenster/Startseite.h"
#include "ui/fenster/Zentrierkasten.h"
#include "ui/hilfe/Hilfefenster.h"
#include "ui/import/Importdialog.h"
#include "ui/seitenleiste/Eigenschaftsseite.h"
#include "ui/seitenleiste/Farbseite.h"
#include "ui/seitenleiste/Seitenleiste.h"
#include "ui/seitenleiste/Statistikseite.h"
#include "ui/werkzeuge/Punktgang.h"

namespace zrw {
namespace {

/// Messages of one reading that a box can show on a small screen, with two or three lines each.
constexpr int kMeldungenInBox = 12;

const QString kBildfilter = QStringLiteral("Zarwikdatei (*.ZRW)");
const QString kSteuerfilter = QStringLiteral("Steuerdatei (*.EIN);;Alle Dateien (*.*)");

/// Collects the messages of one reading into the text of one box.
class Sammler {
  public:
    void NimmMeldung(const Meldung& m) {
        if (++anzahl_ > kMeldungenInBox) return;
        text_ += AusUtf8(m.text + '\n' + m.Stelle() + '\n');
    }
    /// It must outlive that.
    [[nodiscard]] Meldungsempfaenger Empfaenger() {
        return [this](const Meldung& m) { NimmMeldung(m); };
    }
    /// What ended the reading, below the rest.
    void SchliesseMeldungen(const QString& text) {
        if (!text.isEmpty()) schluss_ = text;
    }
    [[nodiscard]] bool Leer() const { return anzahl_ == 0 && schluss_.isEmpty(); }
    [[nodiscard]] QString Text() const {
        QString text = text_;
        if (anzahl_ > kMeldungenInBox) {
            text += QStringLiteral("… insgesamt %1 Meldungen, hier die ersten %2\n")
                        .arg(anzahl_)
                        .arg(kMeldungenInBox);
        }
        if (!text.isEmpty() && !schluss_.isEmpty()) text += QLatin1Char('\n');
        return (text + schluss_).trimmed();
    }

  private:
    QString text_;
    QString schluss_;
    qint64 anzahl_ = 0;
};

/// Shows the progress of a longer reading in the status line; Escape ends it. All other input waits: a second
/// file must not be opened inside the first.
class Lesebalken {
  public:
    explicit Lesebalken(QStatusBar& zeile) : zustand_(std::make_shared<Zustand>(zeile)) {}
    bool operator()(double anteil) const { return zustand_->ZeigeAnteil(anteil); }

  private:
    class Zustand final : public QObject {
      public:
        explicit Zustand(QStatusBar& zeile) : zeile_(zeile) {
            uhr_.start();
            qApp->installEventFilter(this);
        }
        ~Zustand() override {
            if (balken_ != nullptr) zeile_.removeWidget(balken_.get());
        }
        bool ZeigeAnteil(double anteil) {
            constexpr int kTausendstel = 1000;
            constexpr qint64 kOhneBalken = 150;  // [ms] shorter readings only flicker
            if (uhr_.elapsed() < kOhneBalken) return true;
            if (balken_ == nullptr) {
                balken_ = std::make_unique<QProgressBar>();
                balken_->setRange(0, kTausendstel);
                balken_->setFormat(QStringLiteral("Lesen: %p % – Esc bricht ab"));
                zeile_.addWidget(balken_.get(), 1);
                balken_->show();
            }
            balken_->setValue(static_cast<int>(anteil * kTausendstel));
            QCoreApplication::processEvents();
            return !abgebrochen_;
        }

      protected:
        bool eventFilter(QObject* /*empfaenger*/, QEvent* ereignis) override {
            if (ereignis->type() == QEvent::KeyPress || ereignis->type() == QEvent::ShortcutOverride) {
                abgebrochen_ = abgebrochen_ || static_cast<QKeyEvent*>(ereignis)->key() == Qt::Key_Escape;
                return true;
            }
            // QInputEvent::isInputEvent does not count closing and dropping.
            return ereignis->isInputEvent() || ereignis->type() == QEvent::Close ||
                   ereignis->type() == QEvent::Drop;
        }

      private:
        QStatusBar& zeile_;
        QElapsedTimer uhr_;
        std::unique_ptr<QProgressBar> balken_;
        bool abgebrochen_ = false;
    };
    std::shared_ptr<Zustand> zustand_;  // a callback is copied
};

/// Numbers of the points that a file holds hidden; control files hold none.
QStringList Verborgene(const Liste& netz) {
    QStringList nummern;
    for (const PunktKnoten* p = netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (p->Item->Visible) continue;
        if (const QString nummer = AusNetz(netz.GetPktText(p->PNr)); !nummer.isEmpty()) nummern << nummer;
    }
    return nummern;
}

/// What shortened numbers of a control file stand for; a picture file has none.
Namensliste LiesNamen(const std::filesystem::path& datei, const Dateien& dateien, Sammler& meldungen) {
    return IstBilddatei(datei) ? Namensliste() : LiesNamensliste(datei, dateien, meldungen.Empfaenger());
}

/// A control file from which nothing can be seen: somebody else's text, or one that needs mending.
bool OhnePunkte(const Lesung& lesung, const std::filesystem::path& datei) {
    return lesung.liste != nullptr && lesung.liste->PunktKnoten == nullptr && !IstBilddatei(datei);
}

}  // namespace

void TZrwMainDlg::BaueStartseite() {
    startseite_ = new Startseite(
        bild_,
        {[this] { SpeedButton1Click(); }, [this] { SpeedButton2Click(); }, [this] { NetzImportierenClick(); },
         [this](const QString& datei) { OeffneDatei(NachPfad(datei)); }},
        programm_.sitzung.LetzteDateien(), FindeBeispiel(QCoreApplication::applicationDirPath()),
        programm_.einstellungen);
}

void TZrwMainDlg::SpeedButton1Click() {
    const auto name =
        programm_.dialoge.WaehleZumOeffnen({QStringLiteral("Zarwik erzeugen"),
                                            kSteuerfilter + QStringLiteral(";;") + AusUtf8(Importfilter()),
                                            ordner_,
                                            {},
                                            {}});
    if (name) OeffneDatei(NachPfad(*name));
}

void TZrwMainDlg::SpeedButton2Click() {
    const auto name = programm_.dialoge.WaehleZumOeffnen(
        {QStringLiteral("Zarwikdatei lesen"), kBildfilter, ordner_, {}, {}});
    if (name) OeffneDatei(NachPfad(*name));
}

void TZrwMainDlg::SpeedButton9Click() {
    (void)SpeicherePlan();
}

void TZrwMainDlg::SpeedButton7Click() {
    if (plan_.Offen() && !BereitZumEnde()) return;
    beendet_ = true;  // has been asked
    close();
}

/// Asks whether the plot is to be saved before the program ends. Whoever wants that and then cancels the file
/// dialog ends it all the same: the plot is kept for the next start. @return false where saving failed
bool TZrwMainDlg::BereitZumEnde() {
    const bool soll = programm_.dialoge.FrageJaNein(QStringLiteral("Zarwik speichern"));
    if (soll && !SpeicherePlan()) return false;
    planBleibt_ = soll && Ungesichert();
    return true;
}

void TZrwMainDlg::LetzteDateienClick() {
    const QStringList dateien = programm_.sitzung.LetzteDateien();
    if (dateien.isEmpty()) {
        ZeigeStatus(QStringLiteral("Es wurde noch keine Datei geöffnet."));
    } else if (const auto datei = programm_.dialoge.WaehleAus(dateien)) {
        OeffneDatei(NachPfad(*datei));
    }
}

/// Asks what is to become of changes that are not saved. False where the user wants to stay.
bool TZrwMainDlg::DarfVerwerfen() {
    if (!plan_.Offen() || !Ungesichert()) return true;
    const auto antwort = programm_.dialoge.FrageMitAbbruch(QStringLiteral("Zarwik speichern"));
    return antwort && (!*antwort || (SpeicherePlan() && !Ungesichert()));
}

void TZrwMainDlg::closeEvent(QCloseEvent* ereignis) {
    if (!beendet_ && !DarfVerwerfen()) {
        ereignis->ignore();
        return;
    }
    bewahrung_.BeendeBewahrung(planBleibt_);
    LoeseWerkzeuge();
    // An open settings window keeps what was chosen in it; the help would keep the program running.
    for (QDialog* dialog : findChildren<QDialog*>())
        dialog->close();
    if (hilfe_ != nullptr) hilfe_->close();
    programm_.sitzung.MerkeStand(QStringLiteral("Fensterlage"), saveGeometry());
    seitenleiste_->MerkeStand(programm_.sitzung);
    ereignis->accept();
}

/// The files of this machine among what is dragged: addresses of the web cannot be opened. None where the
/// other program would delete them afterwards.
static QStringList Gezogene(const QDropEvent& ereignis) {
    QStringList dateien;
    if ((ereignis.possibleActions() & Qt::CopyAction) == 0) return dateien;
    for (const QUrl& url : ereignis.mimeData()->urls()) {
        if (url.isLocalFile()) dateien << url.toLocalFile();
    }
    return dateien;
}

void TZrwMainDlg::dragEnterEvent(QDragEnterEvent* ereignis) {
    if (Gezogene(*ereignis).isEmpty()) return;
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
}

void TZrwMainDlg::dropEvent(QDropEvent* ereignis) {
    const QStringList dateien = Gezogene(*ereignis);
    if (dateien.isEmpty()) return;
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
    if (dateien.size() == 2 && std::all_of(dateien.begin(), dateien.end(), [this](const QString& d) {
            return WirdImportiert(NachPfad(d));
        })) {
        BeginneImport(dateien);  // a network and its results
    } else if (dateien.size() > 1) {
        ZeigeStatus(QStringLiteral("Es lässt sich nur eine Datei öffnen; auf dem Fenster lagen %1.")
                        .arg(dateien.size()));
    } else {
        OeffneDatei(NachPfad(dateien.front()));
    }
}

bool TZrwMainDlg::WirdImportiert(const std::filesystem::path& datei) const {
    return !IstBilddatei(datei) && ErkenneImport(datei, programm_.dateien).rolle != Importrolle::Keine;
}

/// Asks for what the import needs; what becomes of it is opened like every other network.
void TZrwMainDlg::BeginneImport(const QStringList& dateien) {
    auto* dialog = new Importdialog(programm_, dateien, ordner_, this);
    dialog->importiert = [this](const QString& steuerdatei, const QString& meldung,
                                const QStringList& hinweise) {
        OeffneDatei(NachPfad(steuerdatei));
        if (!hinweise.isEmpty())
            programm_.dialoge.SageErfolg(meldung + QStringLiteral("\n\n") + hinweise.join(QLatin1Char('\n')));
    };
    dialog->open();
}

/// The file, and a star while there is something to save.
void TZrwMainDlg::ZeigeTitel() {
    setWindowTitle(titel_ + (Ungesichert() ? QStringLiteral("*") : QString()));
}

Netzbewahrung::Plan TZrwMainDlg::JetzigerPlan() {
    return {plan_.Daten(), titel_.mid(QStringLiteral("Zarwik ").size()), Ungesichert()};
}

void TZrwMainDlg::OeffneDatei(const std::filesystem::path& datei) {
    if (WirdImportiert(datei)) {
        BeginneImport({AusUtf8(PfadText(datei))});
        return;
    }
    if (!DarfVerwerfen()) return;
    // Closing saves what was chosen in it; reading starts from what is saved.
    if (!IstBilddatei(datei)) SchliesseEinstellungen();
    Sammler meldungen;
    Lesung lesung;
    const Einstellungen vorher = programm_.einstellungen;
    QString fehler;
    bool mitFenster = true;
    try {
        const Sanduhr sanduhr;
        // Every reading of a control file starts from the stored settings: they colour what is read.
        if (!IstBilddatei(datei)) LoadSettings(programm_.einstellungen, programm_.ablage);
        lesung =
            OeffneNetz(datei, programm_.dateien, programm_.einstellungen, programm_.netz,
                       {bild_->width(), bild_->height()}, meldungen.Empfaenger(), Lesebalken(*statusBar()));
    } catch (const Leseabbruch& f) {
        programm_.einstellungen = vorher;
        ZeigeStatus(AusUtf8(f.what()));
        return;
    } catch (const Oeffnungsfehler& f) {
        fehler = AusUtf8(f.what());
        // A control file that cannot be opened brings no box up; the status line names it.
        mitFenster = IstBilddatei(datei);
    } catch (const std::exception& f) {
        fehler = AusUtf8(Fehlertext(f));
    }
    if (!fehler.isEmpty()) {
        programm_.einstellungen = vorher;
        ZeigeStatus(fehler);
        if (mitFenster) meldungen.SchliesseMeldungen(fehler);
    }
    if (!lesung.endetext.empty())
        meldungen.SchliesseMeldungen(AusUtf8(lesung.endetext + '\n' + lesung.endegrund));
    // A box lets other things happen, so it comes when the picture stands.
    const auto melde = [&] {
        if (!meldungen.Leer()) programm_.dialoge.MeldeFehler(meldungen.Text());
    };
    if (lesung.ende == Leseende::Programmende) {
        melde();
        // The plot on screen is not to be lost to somebody else's missing file.
        if (plan_.Offen() && !BereitZumEnde()) return;
        beendet_ = true;
        close();
        return;
    }
    if (OhnePunkte(lesung, datei) && plan_.Offen() && plan_.Daten()->PunktKnoten != nullptr) {
        programm_.einstellungen = vorher;
        ZeigeStatus(QStringLiteral("%1: keine Punkte, das bisherige Netz bleibt.")
                        .arg(AusUtf8(PfadText(datei.filename()))));
    } else if (lesung.liste != nullptr) {
        try {
            plan_.SetzeNamen(LiesNamen(datei, programm_.dateien, meldungen));
            UebernimmLesung(std::move(lesung), datei);
        } catch (const std::exception& f) {
            ZeigeFehler(f);
        }
    }
    melde();
}

/// Puts the new network under the switches of the window.
void TZrwMainDlg::StelleSchalter(bool ausBild) {
    if (ausBild) {
        // Reading a picture file switches these two on, whatever they were.
        for (std::size_t i = 0; i < kSchalter.size(); ++i) {
            if (kSchalter[i].inDarstellung == &Darstellung::ShowPktText ||
                kSchalter[i].inDarstellung == &Darstellung::ShowBeob)
                aktionen_->Schalterliste()[i]->setChecked(true);
        }
    } else {
        // A control file starts from screen sizes and the usual font.
        programm_.zustand.Geraetefaktor = 1.0;
        programm_.einstellungen.ScaleSizes(programm_.zustand.Geraetefaktor);
        planbild_.Flaeche().SetzePlanschrift(Zeichenschrift());
    }
    for (std::size_t i = 0; i < kSchalter.size(); ++i) {
        QAction* const aktion = aktionen_->Schalterliste()[i];
        const bool ein = aktion != nullptr ? aktion->isChecked() : kSchalter[i].anfangs;
        StelleEin(kSchalter[i], ein, plan_.Daten(), programm_.netz, programm_.zustand);
        if (aktion != nullptr && kSchalter[i].HatMerkmal(kNurBeiAbweichung))
            aktion->setVisible(BlattschnittWeichtAb(programm_.netz));
    }
    residuen_->UebernimmIn(*plan_.Daten());
}

void TZrwMainDlg::UebernimmLesung(Lesung&& lesung, const std::filesystem::path& datei) {
    const Sanduhr sanduhr;
    // Nothing may point into the network that goes now.
    werkzeuge_.VergissNetz();
    punktgang_->VergissPunkt();
    ergebnisse_->VergissNetz();
    druck_.Rahmen().LoeseEcke();
    punktart_->LoesePunkt();
    planbild_.BeginneNetz();
    bewahrung_.VergissPlan();
    zentrierkasten_->BeginneNetz();
    plan_.UebernimmListe(std::move(lesung.liste), lesung.netz, datei);
    farben_.BeginneNetz();
    nummern_->BeginneNetz(IstBilddatei(datei));
    startseite_->BeendeSeite();
    ComboBox1_->SetzeSortiert(IstBilddatei(datei));
    FuelleNummern();
    const QStringList verborgen = Verborgene(*plan_.Daten());
    if (IstBilddatei(datei) || !verborgen.isEmpty()) versteck_->Versteckte().SetzeNummern(verborgen);
    versteck_->Versteckte().NetzGeaendert();
    ergebnisse_->WaehleOrdner(datei);
    StelleSchalter(IstBilddatei(datei));
    plan_.Daten()->Weite = bild_->width();
    plan_.Daten()->Hoehe = bild_->height();
    const QFileInfo info(AusUtf8(PfadText(datei)));
    ordner_ = info.absolutePath();
    titel_ = QStringLiteral("Zarwik ") + QDir::toNativeSeparators(info.filePath());
    ZeigeTitel();
    if (plan_.Daten()->PunktKnoten != nullptr || IstBilddatei(datei))
        programm_.sitzung.NimmDatei(info.absoluteFilePath());
    programm_.sitzung.MerkeOrdner(ordner_);
    // A picture file carries its marks.
    if (!IstBilddatei(datei)) ergebnisse_->MarkiereFehler(*plan_.Daten());
    QStringList status(QStringLiteral("%1: %2 Punkte, %3 Linien")
                           .arg(info.fileName())
                           .arg(plan_.Daten()->MaxPkte)
                           .arg(plan_.Daten()->MaxKant));
    status << AusUtf8(Statustext(lesung.bericht))
           << AusUtf8(Blattschnitthinweis(*plan_.Daten(), programm_.netz, programm_.zustand));
    status.removeAll(QString());
    status.prepend(beobachtungen_->NetzGeoeffnet(!IstBilddatei(datei), status.join(QStringLiteral("; "))));
    status.removeAll(QString());
    ZeigeStatus(status.join(QStringLiteral("; ")));
    // A mode that was chosen before there was a network.
    if (Werkzeug* werkzeug = werkzeuge_.Aktiv(); werkzeug != nullptr) werkzeug->BeginneWerkzeug();
    // A picture file keeps the view that it was saved with.
    if (vorlieben_.EinpassenNachOeffnen && !IstBilddatei(datei)) planbild_.SetzeEingepasst();
    ZeichneNeu();
    farbseite_->ZeigeWahl();
    statistik_->ErneuereStatistik();
    aussenhinweis_->ZeigeAnzahl(planbild_.ZaehlePunkte());
    standfelder_->ZeigeZahlen(*plan_.Daten());
}

bool TZrwMainDlg::SpeicherePlan() {
    if (!plan_.Offen()) return true;
    QString vorschlag = QFileInfo(AusUtf8(PfadText(plan_.Datei()))).fileName();
    // Of a control file without the extension and its dot.
    if (!IstBilddatei(plan_.Datei())) vorschlag.chop(std::min<qsizetype>(vorschlag.size(), 4));
    const auto name = programm_.dialoge.WaehleZumSpeichern(
        {QStringLiteral("Zarwik speichern"), kBildfilter, ordner_, vorschlag, QStringLiteral("ZRW")});
    if (!name) return true;
    std::size_t weggelassen = 0;
    try {
        const Sanduhr sanduhr;
        weggelassen = plan_.SpeicherePlan(NachPfad(*name));
    } catch (const std::exception& f) {
        ZeigeFehler(f);
        return false;
    }
    bewahrung_.VergissPlan();
    ordner_ = QFileInfo(*name).absolutePath();
    programm_.sitzung.MerkeOrdner(ordner_);
    programm_.sitzung.NimmDatei(QFileInfo(*name).absoluteFilePath());
    QStringList saetze{QStringLiteral("Gespeichert: ") + QDir::toNativeSeparators(*name)};
    if (weggelassen > 0) saetze << AusUtf8(WeggelasseneNummern(weggelassen));
    if (ergebnisse_->WaehleOrdner(NachPfad(*name))) {
        saetze << QStringLiteral("Ergebnisse der Ausgleichung werden jetzt dort gesucht.");
        ZeichneNeu();
        eigenschaften_->ZeigeAuswahl();
    }
    MeldeErledigt(saetze.join(QStringLiteral("   ")));
    return true;
}

}  // namespace zrw
