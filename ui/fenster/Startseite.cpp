#include "ui/fenster/Startseite.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "ui/Symbol.h"
#include "ui/fenster/Umbruchleiste.h"

namespace zrw {
namespace {

constexpr QSize kDateivorschau{192, 132};  ///< of a file, on the screen
constexpr int kSchaerfe = 3;               ///< dots of the drawing to one of those: screens may be fine
constexpr int kSeitenabstand = 12;

QLabel* NeueUeberschrift(const QString& text, double groesse, QWidget* eltern) {
    auto* schild = new QLabel(text, eltern);
    QFont schrift = schild->font();
    schrift.setPointSizeF(schrift.pointSizeF() * groesse);
    schrift.setBold(true);
    schild->setFont(schrift);
    return schild;
}

/// On white like the picture in the window, in a frame of the text's colour.
QIcon Gerahmt(const QImage& bild, const QColor& rahmen) {
    QPixmap flaeche = bild.isNull() ? QPixmap(kDateivorschau * kSchaerfe) : QPixmap::fromImage(bild);
    if (bild.isNull()) flaeche.fill(Qt::white);
    QPainter maler(&flaeche);
    maler.setPen(QPen(rahmen, kSchaerfe));
    maler.drawRect(flaeche.rect().adjusted(1, 1, -1, -1));
    maler.end();
    flaeche.setDevicePixelRatio(kSchaerfe);
    return QIcon(flaeche);
}

}  // namespace

std::optional<QString> FindeBeispiel(const QString& programmordner) {
    // Installed; where the program was built; and in a folder of its own, as on Windows.
    for (const char* ort : {"../share/doc/zarwik/beispiele", "../../beispiele", "beispiele"}) {
        const QFileInfo datei(QDir(programmordner), QLatin1String(ort) + QStringLiteral("/NETZ.EIN"));
        if (datei.isFile() && datei.isReadable()) return datei.canonicalFilePath();
    }
    return std::nullopt;
}

Startseite::Startseite(QWidget* bild, Wege wege, const QStringList& letzte,
                       const std::optional<QString>& beispiel, const Einstellungen& einstellungen)
    : QScrollArea(bild), wege_(std::move(wege)), letzte_(letzte), einstellungen_(einstellungen) {
    setObjectName(QStringLiteral("StartSeite"));
    setAccessibleName(QStringLiteral("Startseite"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setCursor(Qt::ArrowCursor);
    auto* seite = new QWidget(this);
    seite->setBackgroundRole(QPalette::Base);
    setBackgroundRole(QPalette::Base);
    auto* spalte = new QVBoxLayout(seite);
    spalte->setContentsMargins(3 * kSeitenabstand, 2 * kSeitenabstand, 3 * kSeitenabstand,
                               2 * kSeitenabstand);
    spalte->setSpacing(kSeitenabstand);
    spalte->addWidget(NeueUeberschrift(QStringLiteral("Netz öffnen"), 1.6, seite));
    setWidget(seite);
    BaueWege(*spalte, beispiel);
    if (!letzte_.isEmpty()) BaueDateien(*spalte);
    auto* ziehen = new QLabel(QStringLiteral("Datei hierher ziehen"), seite);
    ziehen->setObjectName(QStringLiteral("StartZiehen"));
    ziehen->setAlignment(Qt::AlignCenter);
    ziehen->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    ziehen->setMargin(kSeitenabstand);
    spalte->addWidget(ziehen);
    spalte->addStretch();
    setGeometry(bild->rect());
    bild->installEventFilter(this);
}

void Startseite::BaueWege(QBoxLayout& spalte, const std::optional<QString>& beispiel) {
    auto* leiste = new Umbruchleiste(nullptr, kSeitenabstand, kSeitenabstand);
    const auto knopf = [&](const char* name, const char* text, const char* taste, const char* symbol,
                           const std::function<void()>& tue) {
        auto* k = new QToolButton(widget());
        k->setObjectName(QString::fromLatin1(name));
        k->setText(QString::fromUtf8(text));
        k->setIcon(Symbol(symbol));
        k->setIconSize({24, 24});
        k->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        k->setFocusPolicy(Qt::StrongFocus);
        k->setAccessibleName(QString::fromUtf8(text));
        k->setToolTip(QString::fromUtf8(taste));
        connect(k, &QToolButton::clicked, this, tue);
        leiste->addWidget(k);
        return k;
    };
    setFocusProxy(knopf("StartSteuerdatei", "Steuerdatei öffnen …", "Netz aus einer Steuerdatei (Strg+O)",
                        "steuerdatei", [this] { wege_.steuerdatei(); }));
    knopf("StartBilddatei", "Zarwikdatei lesen …", "Gesicherter Plan (Strg+Umschalt+O)", "lesen",
          [this] { wege_.bilddatei(); });
    knopf("StartImport", "Netz importieren …", "Netz von GNU Gama mit Ergebnissen übernehmen", "importieren",
          [this] { wege_.importiere(); });
    if (beispiel) {
        knopf("StartBeispiel", "Beispielnetz öffnen", "Ein erfundenes Netz mit Ergebnissen zum Ausprobieren",
              "zarwik", [this, datei = *beispiel] { wege_.datei(datei); });
    }
    spalte.addLayout(leiste);
}

void Startseite::BaueDateien(QBoxLayout& spalte) {
    spalte.addWidget(NeueUeberschrift(QStringLiteral("Zuletzt geöffnet"), 1.2, widget()));
    auto* leiste = new Umbruchleiste(nullptr, kSeitenabstand, kSeitenabstand);
    for (const QString& datei : letzte_) {
        auto* k = new QToolButton(widget());
        k->setObjectName(QStringLiteral("StartDatei%1").arg(kacheln_.size()));
        k->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        k->setIconSize(kDateivorschau);
        k->setAutoRaise(true);
        k->setFocusPolicy(Qt::StrongFocus);
        k->setToolTip(QDir::toNativeSeparators(datei));
        connect(k, &QToolButton::clicked, this, [this, datei] { wege_.datei(datei); });
        leiste->addWidget(k);
        kacheln_.push_back(k);
        ZeigeVorschau(static_cast<int>(kacheln_.size()) - 1, {});
    }
    spalte.addLayout(leiste);
}

/// The picture of a file, or why there is none.
void Startseite::ZeigeVorschau(int nummer, const Dateivorschau& vorschau) {
    QToolButton& k = *kacheln_[static_cast<std::size_t>(nummer)];
    const QString name = QFileInfo(letzte_[nummer]).fileName();
    const QString zusatz = vorschau.mangel.isEmpty() ? QString() : QStringLiteral(" – ") + vorschau.mangel;
    const int weite = kDateivorschau.width() - k.fontMetrics().horizontalAdvance(zusatz);
    QString text = k.fontMetrics().elidedText(name, Qt::ElideMiddle, weite) + zusatz;
    k.setText(text.replace(QLatin1Char('&'), QStringLiteral("&&")));
    k.setAccessibleName(name + zusatz);
    k.setAccessibleDescription(k.toolTip());
    k.setEnabled(vorschau.mangel.isEmpty());
    k.setIcon(Gerahmt(vorschau.bild, palette().color(QPalette::Mid)));
}

void Startseite::showEvent(QShowEvent* ereignis) {
    QScrollArea::showEvent(ereignis);
    // Where a file was named with the program it is opened first, and the page goes again.
    constexpr int kGleich = 100;  // [ms]
    QTimer::singleShot(kGleich, this, [this] { BeginneBilder(); });
}

void Startseite::BeginneBilder() {
    if (!isVisible() || !std::exchange(ausstehend_, false)) return;
    reihe_.BeginneReihe(letzte_, einstellungen_, kDateivorschau * kSchaerfe, *this,
                        [this](int nummer, const Dateivorschau& v) { ZeigeVorschau(nummer, v); });
}

void Startseite::BeendeSeite() {
    reihe_.BrichAb();
    if (isAncestorOf(window()->focusWidget())) parentWidget()->setFocus();
    hide();
}

bool Startseite::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    if (empfaenger == parent() && ereignis->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
    return QScrollArea::eventFilter(empfaenger, ereignis);
}

}  // namespace zrw
