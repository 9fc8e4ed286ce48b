#include "ui/fenster/Hauptfenster.h"
#include "ui/Symbol.h"
#include "ui/ergebnisse/Residuenwahl.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

#include "output/Residuenbild.h"
#include "ui/Umwandlung.h"
#include "ui/aenderungen/Punktartwahl.h"
#include "ui/aenderungen/Punktversteck.h"
#include "ui/dialoge/TFormBeobTyp.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/dialoge/TFormHidePunkte.h"
#include "ui/dialoge/TFormPunktart.h"
#include "ui/dialoge/TZRWLBLForm.h"
#include "ui/ergebnisse/Beobachtungsanzeige.h"
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/Ergebnisgitter.h"
#include "ui/ergebnisse/Planfaerber.h"
#include "ui/ergebnisse/TFormData.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Aussenhinweis.h"
#include "ui/fenster/Bildtasten.h"
#include "ui/fenster/Fensterort.h"
#include "ui/fenster/Figurenmenue.h"
#include "ui/fenster/Menueleiste.h"
#include "ui/fenster/Nummernfeld.h"
#include "ui/fenster/Nummernordner.h"
#include "ui/fenster/Standfelder.h"
#include "ui/fenster/Startseite.h"
#include "ui/fenster/Statuszeile.h"
#include "ui/fenster/Werkzeugleiste.h"
#include "ui/fenster/Zentrierkasten.h"
#include "ui/hilfe/Hilfefenster.h"
#include "ui/seitenleiste/Seitenleiste.h"
#include "ui/werkzeuge/Punktgang.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

const QString kOhneNetz = QStringLiteral(
    "Dazu muss ein Netz geöffnet sein: Steuerdatei mit Strg+O, Zarwikdatei mit Strg+Umschalt+O");

}  // namespace

TZrwMainDlg::TZrwMainDlg(const Programm& programm)
    : programm_(programm),
      plan_(programm.netz, programm.dateien, *this),
      planbild_(programm_, plan_, *this),
      druck_(programm_, planbild_.Flaeche()),
      werkzeuge_(*this, druck_.Rahmen()),
      ordner_(programm.sitzung.Ordner()),
      bewahrung_(programm_,
                 {[this] { return JetzigerPlan(); }, [this](const QString& text) { ZeigeStatus(text); },
                  [this](const std::exception& fehler) { ZeigeFehler(fehler); },
                  [this](Lesung&& lesung, const std::filesystem::path& datei) {
                      UebernimmLesung(std::move(lesung), datei);
                      plan_.MerkeUngesichert();
                  }}) {
    LadeVorlieben(vorlieben_, programm_.ablage);
    BaueFenster();
    BaueDialoge();
    qApp->installEventFilter(this);
}

TZrwMainDlg::~TZrwMainDlg() = default;

void TZrwMainDlg::BaueFenster() {
    setObjectName(QStringLiteral("TZrwMainDlg"));
    titel_ = QStringLiteral("Zarwik Ver. ") + programm_.version;
    ZeigeTitel();
    setWindowIcon(Symbol("zarwik"));
    setAcceptDrops(true);
    setAttribute(Qt::WA_AlwaysShowToolTips);  // also while the dialog of a tool has the keyboard

    BaueAktionen();
    auto* mitte = new QWidget(this);
    auto* spalte = new QVBoxLayout(mitte);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    auto* leiste = new Werkzeugleiste(*aktionen_, mitte);
    leiste->freieFlaeche = [this] { LoeseWerkzeuge(); };
    BaueFelder(*leiste);
    spalte->addWidget(leiste);
    bildfach_ = new Bildfach(mitte);
    BaueBild();
    spalte->addWidget(bildfach_, 1);
    setCentralWidget(mitte);

    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setSizeGripEnabled(false);
    status_ = new Statuszeile(*statusBar());
    standfelder_ = new Standfelder(this);
    statusBar()->addPermanentWidget(standfelder_);
    ZeigeStatus(QStringLiteral("Steuerdatei öffnen mit Strg+O, Zarwikdatei mit Strg+Umschalt+O"));
    if (!restoreGeometry(programm_.sitzung.Stand(QStringLiteral("Fensterlage")))) {
        // The whole screen but for a strip that the system's own bar may need.
        const QRect schirm = screen()->availableGeometry();
        move(schirm.topLeft());
        resize(schirm.width(), schirm.height() - 30);
    }
    startseite_->setFocus();
}

void TZrwMainDlg::BaueBild() {
    bild_ = new ImageZarwik(planbild_.Flaeche(), *this, bildfach_);
    bildfach_->setCentralWidget(bild_);
    planbild_.SetzeAnzeige(*bild_);
    planbild_.SetzeGlatt(vorlieben_.KantenGlaetten);
    const auto melde = [this](const QString& text) {
        const QString punkt = punktgang_->Beschreibung();
        if (!text.isEmpty()) punkt.isEmpty() ? status_->ZeigeFolge(text) : status_->ZeigeText(text);
        bild_->SetzeFigurtext(punkt);
        bild_->update();
    };
    punktgang_ = std::make_unique<Punktgang>(
        Punktgang::Umfeld{plan_, planbild_, *this, programm_.einstellungen, melde,
                          [this](const PunktKnoten& punkt) {
                              const Werkzeug* werkzeug = werkzeuge_.Aktiv();
                              return werkzeug != nullptr ? werkzeug->Griff(punkt) : std::nullopt;
                          },
                          [this] { return werkzeuge_.Zieht(); }});
    auto* tasten = new Bildtasten(*bild_, *punktgang_);
    tasten->kontextmenue = [this](std::optional<Bildpunkt> ort) {
        if (plan_.Offen())
            werkzeuge_.rechteTaste(ort.value_or(Bildpunkt{bild_->width() / 2, bild_->height() / 2}));
    };
    aussenhinweis_ = new Aussenhinweis(bild_);
    aussenhinweis_->einpassen = [this] { EinpassenClick(); };
    BaueStartseite();
    BaueAuswahl();
    bild_->SetzeUeberlagerung([this](Zeichenflaeche& flaeche) {
        if (!plan_.Offen()) return;
        druck_.ZeichneRahmen(*plan_.Daten(), flaeche);
        planbild_.ZeichneStehendes(flaeche);
        werkzeuge_.Ausgewaehlt().ZeichneAuswahl(flaeche);
        punktgang_->ZeichneRing(flaeche);
    });
    druck_.SetzeFelder({EditMasstab_, findChild<QCheckBox*>(QStringLiteral("CheckBoxPreview")), bild_});
}

void TZrwMainDlg::BaueAktionen() {
    aktionen_ =
        new Aktionen(*this, plan_.Schritte(),
                     {[this](const Befehl& befehl) { FuehreAus(befehl); },
                      [this](std::size_t nummer, bool unten) { WerkzeugGewaehlt(nummer, unten); },
                      [this](const Schalter& schalter, bool ein) { SchalterGewaehlt(schalter, ein); }});
    BaueMenues(*menuBar(), *aktionen_);
    BaueDateimenue(
        aktionen_->NachName("LetzteDateienButton"), *this,
        [this] { return programm_.sitzung.LetzteDateien(); },
        [this](const QString& datei) { OeffneDatei(NachPfad(datei)); });
    BewahreMeldung(*this, *statusBar());
    auto* menues = new QShortcut(QKeySequence(Qt::Key_F10), this);
    connect(menues, &QShortcut::activated, this,
            [this] { menuBar()->setActiveAction(menuBar()->actions().constFirst()); });
}

/// Print scale and point numbers.
void TZrwMainDlg::BaueFelder(Werkzeugleiste& leiste) {
    auto* schild = new QLabel(QStringLiteral("Druckmaßstab 1:"), this);
    EditMasstab_ = new Massstabfeld(this);
    EditMasstab_->setObjectName(QStringLiteral("EditMasstab"));
    EditMasstab_->setToolTip(QStringLiteral("Druckmaßstab"));
    connect(EditMasstab_, &QLineEdit::textChanged, this, [this] { druck_.AktualisiereRahmen(); });
    // Keys go to the plot again: "Strg+Z" is then its own, not that of the field.
    connect(EditMasstab_, &QLineEdit::returnPressed, this, [this] { bild_->setFocus(); });
    EditMasstab_->setFixedWidth(
        EditMasstab_->fontMetrics().horizontalAdvance(QStringLiteral("000000000000")));
    schild->setBuddy(EditMasstab_);
    leiste.NimmFelder({schild, EditMasstab_});

    ComboBox1_ = new Nummernfeld(this);
    ComboBox1_->gewaehlt = [this](const QString& nummer) { ZeigePunkt(nummer); };
    leiste.NimmFelder({ComboBox1_, NeuerKnopf(aktionen_->NachName("SpeedButton10"), "SpeedButton10",
                                              "Punkt anzeigen", &leiste)});
}

void TZrwMainDlg::BaueDialoge() {
    zentrierkasten_ = new Zentrierkasten(bild_);
    zentrierkasten_->zentriere = [this](const std::optional<QString>& zentrum, const QStringList& exzentren) {
        ZentriereListe(zentrum, exzentren);
    };
    zentrierkasten_->bestaetige = [this](qsizetype anzahl, const QString& zentrum) {
        return programm_.dialoge.FrageJaNein(
            QStringLiteral("%1 Punkte auf %2 zentrieren?\nDas lässt sich nicht zurücknehmen.")
                .arg(anzahl)
                .arg(zentrum));
    };
    zentrierkasten_->zentrumGewaehlt = [this](const QString& nummer) {
        ComboBox1_->setCurrentIndex(ComboBox1_->findText(nummer));
    };
    zentrierkasten_->beendet = [this] {
        aktionen_->NachName("SpeedButton13").setChecked(false);
        ZeichneNeu();
    };
    legendentexte_ = new TZRWLBLForm(this);
    versteck_ = std::make_unique<Punktversteck>(static_cast<Werkzeugumgebung&>(*this), this);
    nummern_ = std::make_unique<Nummernordner>(
        Nummernordner::Umfeld{*this, programm_, druck_, planbild_.Flaeche(), vorlieben_}, this);
    connect(&versteck_->Auswahl(), &QDialog::finished, this,
            [this] { aktionen_->NachName("SpeedButton14").setChecked(false); });
    ergebnisse_ = std::make_unique<Ergebnisanzeige>(programm_, vorlieben_, this);
    residuen_ = std::make_unique<Residuenwahl>(Residuenwahl::Umfeld{programm_, plan_,
                                                                    [this] {
                                                                        if (plan_.Offen()) ZeichneNeu();
                                                                    }},
                                               *aktionen_, this);
    ergebnisse_->Fenster().Gitter().zeigePunkt = [this](const QString& nummer) {
        // Exactly this one: the search of the number field would find others.
        if (plan_.Offen() && plan_.Daten()->FindPunkt(Utf8NachCp1252(NachUtf8(nummer))) == nullptr) {
            ZeigeStatus(QStringLiteral("Punkt %1 ist nicht im Plan.").arg(nummer));
        } else {
            MarkierePunkt(nummer);
        }
    };
    ergebnisse_->Fenster().Gitter().kopiert = [this](qsizetype zeilen) {
        MeldeErledigt(QStringLiteral("Zeilen der Ergebnisse kopiert: %1").arg(zeilen));
    };
    punktart_ =
        std::make_unique<Punktartwahl>(static_cast<Werkzeugumgebung&>(*this), programm_.dialoge, this);
    beobachtungstyp_ = new TFormBeobTyp(programm_.dialoge, this);
    new Fensterort(ergebnisse_->Fenster(), Rand::RechtsUnten);
    new Fensterort(versteck_->Versteckte(), Rand::RechtsUnten);  // beside the window that hides points
    for (QDialog* dialog :
         std::initializer_list<QDialog*>{&punktart_->Fenster(), beobachtungstyp_, &versteck_->Auswahl()})
        new Fensterort(*dialog, Rand::RechtsOben);
    // Closing the window of a mode ends the mode.
    connect(&punktart_->Fenster(), &QDialog::finished, this,
            [this] { aktionen_->NachName("PunktartButton").setChecked(false); });
    connect(beobachtungstyp_, &QDialog::finished, this,
            [this] { aktionen_->NachName("EditBeobButton").setChecked(false); });
    aktionen_->ErklaereWerkzeuge(werkzeuge_);
    BaueSeitenleiste();
}

void TZrwMainDlg::FuehreAus(const Befehl& befehl) {
    if (befehl.HatMerkmal(kBrauchtNetz) && !plan_.Offen()) {
        ZeigeStatus(kOhneNetz);
    } else {
        (this->*befehl.klick)();
    }
}

void TZrwMainDlg::WerkzeugGewaehlt(std::size_t nummer, bool unten) {
    werkzeuge_.SetzeAktiv(nummer, unten);
    Werkzeug& werkzeug = werkzeuge_.NachNummer(nummer);
    if (!unten) {
        werkzeug.BeendeWerkzeug();
        punktart_->LoesePunkt();
        if (werkzeuge_.Aktiv() == nullptr) {
            bild_->unsetCursor();
            // What the tool asked for is asked for no longer; other messages stay.
            status_->VergissAnleitung(werkzeug.Anleitung());
        }
        return;
    }
    // One mode at most; none is allowed, which an exclusive button group is not.
    for (std::size_t i = 0; i < aktionen_->Werkzeuge().size(); ++i) {
        if (i != nummer) aktionen_->Werkzeuge()[i]->setChecked(false);
    }
    werkzeug.BeginneWerkzeug();
    bild_->setCursor(werkzeug.Zeiger());
    ZeigeStatus(plan_.Offen() ? werkzeug.Anleitung() : kOhneNetz);
}

void TZrwMainDlg::LoeseWerkzeuge() {
    for (QAction* werkzeug : aktionen_->Werkzeuge())
        werkzeug->setChecked(false);
    aktionen_->NachName("SpeedButton14").setChecked(false);
    zentrierkasten_->hide();
}

void TZrwMainDlg::SchalterGewaehlt(const Schalter& schalter, bool ein) {
    // Hints about it come after that.
    if (plan_.Offen())
        ZeigeStatus(AusUtf8(schalter.beschriftung) +
                    (ein ? QStringLiteral(" eingeschaltet") : QStringLiteral(" ausgeschaltet")));
    if (schalter.HatMerkmal(kImKartengitter) && ein) {
        if (!plan_.Offen()) {
            aktionen_->NachName(schalter.komponente).setChecked(false);
            return;
        }
        if (!HatKartengitter(programm_.netz.Netztyp)) {
            ZeigeStatus(QStringLiteral("Zum Koordinatensystem dieses Netzes gibt es kein Kartengitter."));
        }
    }
    StelleEin(schalter, ein, plan_.Daten(), programm_.netz, programm_.zustand);
    if (schalter.HatMerkmal(kImKartengitter) && plan_.Offen()) {
        const auto text = Blattschnitthinweis(*plan_.Daten(), programm_.netz, programm_.zustand);
        if (!text.empty()) ZeigeStatus(AusUtf8(text));
    }
    if (ein && schalter.HatMerkmal(kInMetern) && plan_.Offen() && !InMetern(programm_.netz.Netztyp))
        ZeigeStatus(AusUtf8(kKeineMeter));
    const bool ausTabelle = schalter.HatMerkmal(kAusErgebnissen);
    const std::string massstab = Massstabhinweis(programm_.einstellungen.ResMF);
    if (ein && ausTabelle && plan_.Offen()) {
        if (const QString hinweis = residuen_->Hinweis(); !hinweis.isEmpty()) ZeigeStatus(hinweis);
    }
    if (ein && ausTabelle && !massstab.empty()) ZeigeStatus(AusUtf8(massstab));
    const std::string_view datei =
        schalter.inDarstellung == &Darstellung::ShowRelEllipsen ? "RELTABLE.DB" : "KooTABLE.DB";
    if (ein && ausTabelle && plan_.Offen() && !programm_.daten.Vorhanden(datei))
        ZeigeStatus(AusUtf8(datei) + QStringLiteral(" liegt nicht im Ordner ") +
                    QDir::toNativeSeparators(AusUtf8(PfadText(programm_.daten.Ordner()))));
    if (schalter.HatMerkmal(kSchliesstErgebnisse)) ergebnisse_->Fenster().hide();
    if (schalter.inDarstellung == nullptr && schalter.imZustand == nullptr) druck_.AktualisiereRahmen();
    if (plan_.Offen()) ZeichneNeu();
}

}  // namespace zrw
