#include "ui/Hauptfenster.h"

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

#include "ui/Umwandlung.h"
#include "ui/werkzeuge/LegendeVerschieben.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

/// The pictures sit in a static library, whose resources register only when asked to.
static void MeldeBilderAn() {
    Q_INIT_RESOURCE(bilder);
}

namespace zrw {
namespace {

/// A command button of the tool panel.
struct Befehl {
    const char* komponente;
    const char* hinweis;
    const char* bild;
    const char* taste;  ///< shortcut in Qt's portable form, or empty
    void (TZrwMainDlg::*klick)();
};

constexpr std::array<Befehl, 9> kBefehle{{
    {"SpeedButton1", "Zarwik erzeugen (Steuerdatei öffnen)", "steuerdatei", "Ctrl+O",
     &TZrwMainDlg::SpeedButton1Click},
    {"SpeedButton2", "Zarwik lesen", "lesen", "Ctrl+Shift+O", &TZrwMainDlg::SpeedButton2Click},
    {"SpeedButton9", "Zarwik speichern", "speichern", "Ctrl+S", &TZrwMainDlg::SpeedButton9Click},
    {"SpeedButton7", "Zarwik beenden", "beenden", "Ctrl+Q", &TZrwMainDlg::SpeedButton7Click},
    {"ButtonGroesser", "Bild größer", "groesser", "+", &TZrwMainDlg::ButtonGroesserClick},
    {"ButtonKleiner", "Bild kleiner", "kleiner", "-", &TZrwMainDlg::ButtonKleinerClick},
    {"SpeedButton3", "Alles darstellen", "alles", "Home", &TZrwMainDlg::SpeedButton3Click},
    {"SpeedButton12", "Legendentexte", "legende", "Ctrl+L", &TZrwMainDlg::SpeedButton12Click},
    {"SpeedButton16", "DXF und HPGL Format ausgeben", "dxf", "Ctrl+E", &TZrwMainDlg::SpeedButton16Click},
}};

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

/// The panel whose free area releases every tool mode.
class Werkzeugleiste final : public QWidget {
  public:
    Werkzeugleiste(QWidget* eltern, std::function<void()> klick)
        : QWidget(eltern), klick_(std::move(klick)) {}

  protected:
    void mousePressEvent(QMouseEvent* /*ereignis*/) override { klick_(); }

  private:
    std::function<void()> klick_;
};

}  // namespace

TZrwMainDlg::TZrwMainDlg(const Programm& programm)
    : programm_(programm),
      flaeche_(1, 1),
      zeichner_(programm.zustand, programm.einstellungen, programm.netz, programm.uhr) {
    programm_.zustand.flaeche = &flaeche_;
    BaueFenster();
}

TZrwMainDlg::~TZrwMainDlg() {
    programm_.zustand.flaeche = nullptr;
}

void TZrwMainDlg::BaueFenster() {
    MeldeBilderAn();
    setObjectName(QStringLiteral("TZrwMainDlg"));
    setWindowTitle(QStringLiteral("Zarwik Ver. ") + programm_.version);
    setWindowIcon(QIcon(QStringLiteral(":/bilder/zarwik.svg")));

    auto* mitte = new QWidget(this);
    auto* spalte = new QVBoxLayout(mitte);
    spalte->setContentsMargins(0, 0, 0, 0);
    spalte->setSpacing(0);
    auto* leiste = new Werkzeugleiste(mitte, [this] { LoeseWerkzeuge(); });
    auto* reihen = new QVBoxLayout(leiste);
    reihen->setContentsMargins(6, 4, 6, 4);
    reihen->setSpacing(2);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->setSpacing(2);
    BaueBefehle(*knoepfe);
    BaueWerkzeuge(*knoepfe);
    knoepfe->addSpacing(12);
    BaueMassstab(*knoepfe);
    knoepfe->addStretch();
    reihen->addLayout(knoepfe);
    auto* kaesten = new QHBoxLayout;
    kaesten->setSpacing(12);
    BaueSchalter(*kaesten);
    kaesten->addStretch();
    reihen->addLayout(kaesten);
    spalte->addWidget(leiste);
    bild_ = new ImageZarwik(flaeche_, *this, mitte);
    spalte->addWidget(bild_, 1);
    setCentralWidget(mitte);

    statusBar()->setObjectName(QStringLiteral("StatusBar1"));
    statusBar()->setSizeGripEnabled(false);
    statusBar()->showMessage(
        QStringLiteral("Steuerdatei öffnen mit Strg+O, Zarwikdatei mit Strg+Umschalt+O"));
    // The whole screen but for a strip that the system's own bar may need.
    const QRect schirm = screen()->availableGeometry();
    move(schirm.topLeft());
    resize(schirm.width(), schirm.height() - 30);
    bild_->setFocus();
}

void TZrwMainDlg::BaueBefehle(QBoxLayout& reihe) {
    for (const Befehl& b : kBefehle) {
        auto* knopf = NeuerKnopf(b.komponente, b.hinweis, b.bild, this);
        const QKeySequence taste(QString::fromLatin1(b.taste));
        knopf->setShortcut(taste);
        knopf->setToolTip(QString::fromUtf8(b.hinweis) + QStringLiteral(" (") +
                          taste.toString(QKeySequence::NativeText)
                              .replace(QStringLiteral("Ctrl"), QStringLiteral("Strg"))
                              .replace(QStringLiteral("Shift"), QStringLiteral("Umschalt"))
                              .replace(QStringLiteral("Home"), QStringLiteral("Pos1")) +
                          QStringLiteral(")"));
        connect(knopf, &QToolButton::clicked, this, [this, klick = b.klick] { (this->*klick)(); });
        reihe.addWidget(knopf);
        // Files, view and output are groups of their own.
        if (b.klick == &TZrwMainDlg::SpeedButton7Click || b.klick == &TZrwMainDlg::SpeedButton3Click ||
            b.klick == &TZrwMainDlg::SpeedButton16Click) {
            reihe.addWidget(Trennstrich(this));
        }
    }
}

void TZrwMainDlg::BaueWerkzeuge(QBoxLayout& reihe) {
    mitteltaste_ = NeuesWerkzeug<BildVerschieben>(*this);
    legendenecke_ = NeuesWerkzeug<LegendeVerschieben>(*this);
    for (std::size_t i = 0; i < kWerkzeuge.size(); ++i) {
        const Werkzeugzeile& zeile = kWerkzeuge[i];
        werkzeuge_.push_back(zeile.neu(*this));
        auto* knopf = NeuerKnopf(zeile.komponente, zeile.hinweis, zeile.bild, this);
        knopf->setCheckable(true);
        connect(knopf, &QToolButton::toggled, this, [this, i](bool unten) { WerkzeugGewaehlt(i, unten); });
        werkzeugknoepfe_.push_back(knopf);
        reihe.addWidget(knopf);
    }
}

void TZrwMainDlg::BaueSchalter(QBoxLayout& reihe) {
    for (const Schalter& s : kSchalter) {
        if (s.komponente.empty()) {
            schalterkaesten_.push_back(nullptr);
            continue;
        }
        auto* kasten = new QCheckBox(AusUtf8(s.beschriftung), this);
        kasten->setObjectName(AusUtf8(s.komponente));
        kasten->setToolTip(AusUtf8(s.hinweis));
        kasten->setChecked(s.anfangs);
        connect(kasten, &QCheckBox::toggled, this, [this, &s](bool ein) { SchalterGewaehlt(s, ein); });
        schalterkaesten_.push_back(kasten);
        reihe.addWidget(kasten);
    }
}

void TZrwMainDlg::BaueMassstab(QBoxLayout& reihe) {
    auto* schild = new QLabel(QStringLiteral("Druckmaßstab 1:"), this);
    EditMasstab_ = new Massstabfeld(this);
    EditMasstab_->setObjectName(QStringLiteral("EditMasstab"));
    EditMasstab_->setToolTip(QStringLiteral("Druckmaßstab"));
    EditMasstab_->setFixedWidth(
        EditMasstab_->fontMetrics().horizontalAdvance(QStringLiteral("000000000000")));
    schild->setBuddy(EditMasstab_);
    reihe.addWidget(schild);
    reihe.addWidget(EditMasstab_);
    legendentexte_ = new TZRWLBLForm(this);
}

void TZrwMainDlg::WerkzeugGewaehlt(std::size_t nummer, bool unten) {
    werkzeuge_[nummer]->Abbrechen();
    if (unten) {
        // One mode at most; none is allowed, which an exclusive button group is not.
        for (std::size_t i = 0; i < werkzeugknoepfe_.size(); ++i) {
            if (i != nummer) werkzeugknoepfe_[i]->setChecked(false);
        }
        bild_->setCursor(werkzeuge_[nummer]->Zeiger());
    } else if (Aktiv() == nullptr) {
        bild_->unsetCursor();
    }
}

void TZrwMainDlg::LoeseWerkzeuge() {
    for (QToolButton* knopf : werkzeugknoepfe_)
        knopf->setChecked(false);
}

void TZrwMainDlg::SchalterGewaehlt(const Schalter& schalter, bool ein) {
    if (schalter.imKartengitter && ein) {
        if (liste_ == nullptr) {
            schalterkaesten_[static_cast<std::size_t>(&schalter - kSchalter.data())]->setChecked(false);
            return;
        }
        if (!HatKartengitter(programm_.netz.Netztyp)) {
            statusBar()->showMessage(
                QStringLiteral("Zum Koordinatensystem dieses Netzes gibt es kein Kartengitter."));
        }
    }
    Schalte(schalter, ein, liste_.get(), programm_.netz, programm_.zustand);
    if (liste_ != nullptr) ZeichneNeu();
}

void TZrwMainDlg::keyPressEvent(QKeyEvent* ereignis) {
    if (ereignis->key() == Qt::Key_Escape && gedrueckt_ != nullptr) {
        gedrueckt_->Abbrechen();
        gedrueckt_ = nullptr;
        return;
    }
    QMainWindow::keyPressEvent(ereignis);
}

}  // namespace zrw
