#include "ui/fenster/Hauptfenster.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
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
#include "ui/ergebnisse/Ergebnisanzeige.h"
#include "ui/ergebnisse/TFormData.h"
#include "ui/fenster/Aussenhinweis.h"
#include "ui/fenster/Fensterort.h"
#include "ui/fenster/Nummernfeld.h"
#include "ui/fenster/Standfelder.h"
#include "ui/fenster/Startseite.h"
#include "ui/fenster/Umbruchleiste.h"
#include "ui/fenster/Zentrierkasten.h"
#include "ui/hilfe/Hilfefenster.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

/// The pictures sit in a static library, whose resources register only when asked to.
static void MeldeBilderAn() {
    Q_INIT_RESOURCE(bilder);
}

namespace zrw {
namespace {

// What a command button may be besides.
constexpr unsigned kGruppenende = 1;
constexpr unsigned kBrauchtNetz = 2;
constexpr unsigned kInJedemFenster = 4;  ///< its shortcut works while a dialog of a tool has the keyboard

/// A command button of the tool panel.
struct Befehl {
    const char* komponente;
    const char* hinweis;
    const char* bild;
    const char* taste;  ///< shortcut in Qt's portable form, or empty
    void (TZrwMainDlg::*klick)();
    unsigned merkmale = 0;
};

constexpr auto kBefehle = std::to_array<Befehl>({
    {"SpeedButton1", "Zarwik erzeugen (Steuerdatei öffnen)", "steuerdatei", "Ctrl+O",
     &TZrwMainDlg::SpeedButton1Click},
    {"SpeedButton2", "Zarwik lesen", "lesen", "Ctrl+Shift+O", &TZrwMainDlg::SpeedButton2Click},
    {"LetzteDateienButton", "Letzte Dateien", "letzte_dateien", "", &TZrwMainDlg::LetzteDateienClick},
    {"SpeedButton9", "Zarwik speichern", "speichern", "Ctrl+S", &TZrwMainDlg::SpeedButton9Click,
     kBrauchtNetz | kInJedemFenster},
    {"SpeedButton7", "Zarwik beenden", "beenden", "Ctrl+Q", &TZrwMainDlg::SpeedButton7Click, kGruppenende},
    {"RueckgaengigButton", "Rückgängig", "rueckgaengig", "Ctrl+Z", &TZrwMainDlg::Rueckgaengig,
     kInJedemFenster},
    {"WiederholenButton", "Wiederholen", "wiederholen", "Ctrl+Y", &TZrwMainDlg::WiederholeSchritt,
     kInJedemFenster | kGruppenende},
    {"ButtonGroesser", "Bild größer", "groesser", "+", &TZrwMainDlg::ButtonGroesserClick, kBrauchtNetz},
    {"ButtonKleiner", "Bild kleiner", "kleiner", "-", &TZrwMainDlg::ButtonKleinerClick, kBrauchtNetz},
    {"SpeedButton3", "Alles darstellen", "alles", "Home", &TZrwMainDlg::SpeedButton3Click, kBrauchtNetz},
    {"EinpassenButton", "Sichtbare Punkte einpassen", "einpassen", "F", &TZrwMainDlg::EinpassenClick,
     kBrauchtNetz | kGruppenende},
    {"SpeedButton14", "Punkte verstecken", "punkte_verstecken", "", &TZrwMainDlg::SpeedButton14Click},
    {"SpeedButton15", "Versteckte Punkte", "versteckte_punkte", "", &TZrwMainDlg::SpeedButton15Click},
    {"NummernZeigenButton", "Versteckte Punktnummern zeigen", "nummern_zeigen", "",
     &TZrwMainDlg::NummernZeigenClick, kBrauchtNetz | kGruppenende},
    {"SpeedButton12", "Legendentexte", "legende", "Ctrl+L", &TZrwMainDlg::SpeedButton12Click, kBrauchtNetz},
    {"SpeedButton5", "Zarwik drucken", "drucken", "Ctrl+P", &TZrwMainDlg::SpeedButton5Click, kBrauchtNetz},
    {"VorschauButton", "Druckvorschau", "vorschau", "", &TZrwMainDlg::VorschauClick, kBrauchtNetz},
    {"SpeedButton11", "Druckereinstellungen", "drucker", "", &TZrwMainDlg::SpeedButton11Click},
    {"SpeedButtonClipbrd", "Grafik als Bitmap speichern", "bitmap", "", &TZrwMainDlg::SpeedButtonClipbrdClick,
     kBrauchtNetz},
    {"SpeedButton16", "DXF und HPGL Format ausgeben", "dxf", "Ctrl+E", &TZrwMainDlg::SpeedButton16Click,
     kBrauchtNetz | kGruppenende},
    {"SpeedButton8", "Zeichenfont wählen", "schrift", "", &TZrwMainDlg::SpeedButton8Click},
    {"ColorButton", "Zarwikeinstellungen", "einstellungen", "", &TZrwMainDlg::ColorButtonClick},
    {"SpeedButton4", "Programminfo", "info", "", &TZrwMainDlg::SpeedButton4Click},
    {"SpeedButton6", "Hilfe", "hilfe", "F1", &TZrwMainDlg::SpeedButton6Click, kGruppenende},
    {"SpeedButton10", "Punkt anzeigen", "punkt_anzeigen", "", nullptr},
});

static_assert(HabenSeiten(kBefehle, &Befehl::komponente) && HabenSeiten(kSchalter, &Schalter::komponente) &&
                  HabenSeiten(kWerkzeuge, &Werkzeugzeile::komponente),
              "each button and each check box has a row in ui/hilfe/Hilfethemen.h");

const QString kOhneNetz = QStringLiteral(
    "Dazu muss ein Netz geöffnet sein: Steuerdatei mit Strg+O, Zarwikdatei mit Strg+Umschalt+O");

QToolButton* NeuerKnopf(std::string_view komponente, std::string_view hinweis, std::string_view bild,
                        QWidget* eltern) {
    auto* knopf = new QToolButton(eltern);
    knopf->setObjectName(AusUtf8(komponente));
    knopf->setToolTip(AusUtf8(hinweis));
    knopf->setAccessibleName(AusUtf8(hinweis));
    knopf->setIcon(QIcon(QStringLiteral(":/bilder/") + AusUtf8(bild) + QStringLiteral(".svg")));
    knopf->setIconSize(QSize(24, 24));
    knopf->setAutoRaise(true);
    knopf->setFocusPolicy(Qt::TabFocus);
    return knopf;
}

QFrame* Trennstrich(QWidget* eltern) {
    auto* strich = new QFrame(eltern);
    strich->setFrameShape(QFrame::VLine);
    strich->setFrameShadow(QFrame::Sunken);
    return strich;
}

/// The panel whose free area releases every tool mode. Keeps the height that its rows take: in a narrow
/// window they would lie on each other.
class Werkzeugleiste final : public QWidget {
  public:
    Werkzeugleiste(QWidget* eltern, std::function<void()> klick)
        : QWidget(eltern), klick_(std::move(klick)) {}

  protected:
    void mousePressEvent(QMouseEvent* /*ereignis*/) override { klick_(); }
    void resizeEvent(QResizeEvent* ereignis) override {
        QWidget::resizeEvent(ereignis);
        setMinimumHeight(layout()->totalHeightForWidth(width()));
    }

  private:
    std::function<void()> klick_;
};

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
    MeldeBilderAn();
    setObjectName(QStringLiteral("TZrwMainDlg"));
    titel_ = QStringLiteral("Zarwik Ver. ") + programm_.version;
    ZeigeTitel();
    setWindowIcon(QIcon(QStringLiteral(":/bilder/zarwik.svg")));
    setAcceptDrops(true);
    setAttribute(Qt::WA_AlwaysShowToolTips);  // also while the dialog of a tool has the keyboard

    auto* mitte = new QWidget(this);
    auto* spalte = new QVBoxLayout(mitte);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    auto* leiste = new Werkzeugleiste(mitte, [this] { LoeseWerkzeuge(); });
    auto* reihen = new QVBoxLayout(leiste);
    reihen->setContentsMargins(6, 4, 6, 4);
    reihen->setSpacing(2);
    auto* knoepfe = new Umbruchleiste(nullptr, 2, 2);
    BaueBefehle(*knoepfe);
    BaueWerkzeuge(*knoepfe);
    BaueFelder(*knoepfe);
    reihen->addLayout(knoepfe);
    auto* kaesten = new Umbruchleiste(nullptr, 12, 2);
    BaueSchalter(*kaesten);
    reihen->addLayout(kaesten);
    spalte->addWidget(leiste);
    bild_ = new ImageZarwik(planbild_.Flaeche(), *this, mitte);
    planbild_.SetzeAnzeige(*bild_);
    planbild_.SetzeGlatt(vorlieben_.KantenGlaetten);
    aussenhinweis_ = new Aussenhinweis(bild_);
    aussenhinweis_->einpassen = [this] { EinpassenClick(); };
    BaueStartseite();
    bild_->SetzeUeberlagerung([this](Zeichenflaeche& flaeche) {
        if (!plan_.Offen()) return;
        druck_.ZeichneRahmen(*plan_.Daten(), flaeche);
        planbild_.ZeichneStehendes(flaeche);
    });
    druck_.SetzeFelder({EditMasstab_, findChild<QCheckBox*>(QStringLiteral("CheckBoxPreview")), bild_});
    spalte->addWidget(bild_, 1);
    setCentralWidget(mitte);

    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setSizeGripEnabled(false);
    anleitung_ = new QLabel(this);
    anleitung_->setMinimumWidth(1);  // a long text must not widen the window
    anleitung_->setContentsMargins(0, 0, 6, 0);
    statusBar()->addPermanentWidget(anleitung_);
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

/// Key names as they stand on a German keyboard.
static QString Tastenname(const QKeySequence& taste) {
    return taste.toString(QKeySequence::NativeText)
        .replace(QStringLiteral("Ctrl"), QStringLiteral("Strg"))
        .replace(QStringLiteral("Shift"), QStringLiteral("Umschalt"))
        .replace(QStringLiteral("Home"), QStringLiteral("Pos1"));
}

void TZrwMainDlg::BaueBefehle(QLayout& reihe) {
    for (const Befehl& b : kBefehle) {
        const auto tue = [this, &b] {
            if ((b.merkmale & kBrauchtNetz) != 0 && !plan_.Offen()) {
                ZeigeStatus(kOhneNetz);
            } else {
                (this->*b.klick)();
            }
        };
        auto* knopf = NeuerKnopf(b.komponente, b.hinweis, b.bild, this);
        const QKeySequence taste(QString::fromLatin1(b.taste));
        if (!taste.isEmpty()) {
            // Not the button's own shortcut: it plays the click, and a second press within that is lost.
            auto* kuerzel = new QShortcut(taste, this);
            if ((b.merkmale & kInJedemFenster) != 0) kuerzel->setContext(Qt::ApplicationShortcut);
            connect(kuerzel, &QShortcut::activated, this, tue);
            knopf->setToolTip(QString::fromUtf8(b.hinweis) + QStringLiteral(" (") + Tastenname(taste) +
                              QLatin1Char(')'));
        }
        if (b.klick == nullptr) continue;  // stands beside the field that it belongs to
        connect(knopf, &QToolButton::clicked, this, tue);
        reihe.addWidget(knopf);
        if ((b.merkmale & kGruppenende) != 0) reihe.addWidget(Trennstrich(this));
    }
    Knopf("SpeedButton14").setCheckable(true);
    // Shows the point when the mouse button comes up, also with the keyboard.
    connect(&Knopf("SpeedButton10"), &QToolButton::released, this, [this] { SpeedButton10Click(); });
    for (const auto& [name, geht, ereignis] :
         {std::tuple{"RueckgaengigButton", &QUndoStack::canUndo, &QUndoStack::canUndoChanged},
          {"WiederholenButton", &QUndoStack::canRedo, &QUndoStack::canRedoChanged}}) {
        QToolButton& knopf = Knopf(name);
        knopf.setEnabled((plan_.Schritte().*geht)());
        connect(&plan_.Schritte(), ereignis, &knopf, &QToolButton::setEnabled);
    }
}

void TZrwMainDlg::BaueWerkzeuge(QLayout& reihe) {
    for (std::size_t i = 0; i < kWerkzeuge.size(); ++i) {
        const Werkzeugzeile& zeile = kWerkzeuge[i];
        auto* knopf = NeuerKnopf(zeile.komponente, zeile.hinweis, zeile.bild, this);
        knopf->setCheckable(true);
        connect(knopf, &QToolButton::toggled, this, [this, i](bool unten) { WerkzeugGewaehlt(i, unten); });
        werkzeugknoepfe_.push_back(knopf);
        reihe.addWidget(knopf);
    }
    reihe.addWidget(Trennstrich(this));
}

void TZrwMainDlg::BaueSchalter(QLayout& reihe) {
    for (const Schalter& s : kSchalter) {
        if (s.komponente.empty()) {
            schalterkaesten_.push_back(nullptr);
            continue;
        }
        auto* kasten = new QCheckBox(AusUtf8(s.beschriftung), this);
        kasten->setObjectName(AusUtf8(s.komponente));
        kasten->setToolTip(AusUtf8(s.hinweis));
        kasten->setChecked(s.anfangs);
        kasten->setHidden(s.HatMerkmal(kNurBeiAbweichung));
        connect(kasten, &QCheckBox::toggled, this, [this, &s](bool ein) { SchalterGewaehlt(s, ein); });
        schalterkaesten_.push_back(kasten);
        reihe.addWidget(kasten);
    }
}

/// Print scale and point numbers.
void TZrwMainDlg::BaueFelder(QLayout& reihe) {
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
    reihe.addWidget(schild);
    reihe.addWidget(EditMasstab_);

    ComboBox1_ = new Nummernfeld(this);
    ComboBox1_->gewaehlt = [this](const QString& nummer) { ZeigePunkt(nummer); };
    auto* suche = new QShortcut(QKeySequence(QStringLiteral("Ctrl+F")), this);
    connect(suche, &QShortcut::activated, this, [this] {
        ComboBox1_->setFocus();
        ComboBox1_->lineEdit()->selectAll();
    });
    reihe.addWidget(ComboBox1_);
    reihe.addWidget(&Knopf("SpeedButton10"));
    setTabOrder(ComboBox1_, &Knopf("SpeedButton10"));  // made with the commands, which come first
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
        Knopf("SpeedButton13").setChecked(false);
        ZeichneNeu();
    };
    legendentexte_ = new TZRWLBLForm(this);
    versteck_ = std::make_unique<Punktversteck>(static_cast<Werkzeugumgebung&>(*this), this);
    connect(&versteck_->Auswahl(), &QDialog::finished, this,
            [this] { Knopf("SpeedButton14").setChecked(false); });
    ergebnisse_ = std::make_unique<Ergebnisanzeige>(programm_, this);
    ergebnisse_->Fenster().zeigePunkt = [this](const QString& nummer) {
        // Exactly this one: the search of the number field would find others.
        if (plan_.Offen() && plan_.Daten()->FindPunkt(Utf8NachCp1252(NachUtf8(nummer))) == nullptr) {
            ZeigeStatus(QStringLiteral("Punkt %1 ist nicht im Plan.").arg(nummer));
        } else {
            MarkierePunkt(nummer);
        }
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
            [this] { Knopf("PunktartButton").setChecked(false); });
    connect(beobachtungstyp_, &QDialog::finished, this,
            [this] { Knopf("EditBeobButton").setChecked(false); });
}

QToolButton& TZrwMainDlg::Knopf(const char* komponente) const {
    return *findChild<QToolButton*>(QString::fromUtf8(komponente));
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
            anleitung_->clear();
            if (statusBar()->currentMessage() == werkzeug.Anleitung()) ZeigeStatus(QString());
        }
        return;
    }
    // One mode at most; none is allowed, which an exclusive button group is not.
    for (std::size_t i = 0; i < werkzeugknoepfe_.size(); ++i) {
        if (i != nummer) werkzeugknoepfe_[i]->setChecked(false);
    }
    werkzeug.BeginneWerkzeug();
    bild_->setCursor(werkzeug.Zeiger());
    ZeigeStatus(plan_.Offen() ? werkzeug.Anleitung() : kOhneNetz);
}

void TZrwMainDlg::LoeseWerkzeuge() {
    for (QToolButton* knopf : werkzeugknoepfe_)
        knopf->setChecked(false);
    Knopf("SpeedButton14").setChecked(false);
    zentrierkasten_->hide();
}

void TZrwMainDlg::SchalterGewaehlt(const Schalter& schalter, bool ein) {
    if (schalter.HatMerkmal(kImKartengitter) && ein) {
        if (!plan_.Offen()) {
            schalterkaesten_[static_cast<std::size_t>(&schalter - kSchalter.data())]->setChecked(false);
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
    if (ein && ausTabelle && !massstab.empty()) ZeigeStatus(AusUtf8(massstab));
    if (ein && ausTabelle && plan_.Offen() && !programm_.daten.Vorhanden("KooTABLE.DB"))
        ZeigeStatus(QStringLiteral("KooTABLE.DB liegt nicht im Ordner ") +
                    QDir::toNativeSeparators(AusUtf8(PfadText(programm_.daten.Ordner()))));
    if (schalter.HatMerkmal(kSchliesstErgebnisse)) ergebnisse_->Fenster().hide();
    if (schalter.inDarstellung == nullptr && schalter.imZustand == nullptr) druck_.AktualisiereRahmen();
    if (plan_.Offen()) ZeichneNeu();
}

}  // namespace zrw
