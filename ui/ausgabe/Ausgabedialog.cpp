#include "ui/ausgabe/Ausgabedialog.h"

#include <QClipboard>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QFormLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/fenster/Sanduhr.h"

namespace zrw {
namespace {

constexpr int kPause = 200;  ///< [ms] without a change, before the preview is drawn
constexpr QSize kVorschau(400, 440);

const QString kOhneMassstab = QStringLiteral("Der Druckmaßstab muss eine Zahl größer als 0 sein.");

}  // namespace

Ausgabedialog::Ausgabedialog(const Programm& programm, Plan& plan, const Ausgabeanfang& anfang,
                             const QString& ordner, Planbeschriftung::Beweglich beweglich, QWidget* eltern)
    : QDialog(eltern), dialoge_(programm.dialoge), plan_(programm, plan, std::move(beweglich)) {
    setObjectName(QStringLiteral("AusgabeDialog"));
    setWindowTitle(QStringLiteral("Ausgeben"));
    setAttribute(Qt::WA_DeleteOnClose);
    pause_.setSingleShot(true);
    pause_.setInterval(kPause);
    connect(&pause_, &QTimer::timeout, this, [this] { ZeichneVorschau(); });

    auto* alles = new QVBoxLayout(this);
    alles->addWidget(BaueZiel(ordner));
    felder_ = new Ausgabefelder(plan_, anfang, this);
    felder_->geaendert = [this] { FormatGeaendert(); };
    auto* links = new QVBoxLayout;
    links->addWidget(felder_);
    links->addStretch();
    auto* oben = new QHBoxLayout;
    oben->addLayout(links, 1);
    oben->addWidget(BaueVorschau());
    alles->addLayout(oben, 1);
    alles->addWidget(BaueBefehl());
    alles->addLayout(BaueKnoepfe());
    felder_->setFocus();
    FormatGeaendert();
}

QWidget* Ausgabedialog::BaueZiel(const QString& ordner) {
    auto* ziel = new QWidget(this);
    auto* form = new QFormLayout(ziel);
    form->setContentsMargins(0, 0, 0, 0);
    ordner_ = new QLineEdit(
        QDir::toNativeSeparators(ordner.isEmpty() ? QDir::currentPath() : QDir(ordner).absolutePath()), ziel);
    ordner_->setObjectName(QStringLiteral("AusgabeOrdner"));
    ordner_->setToolTip(QStringLiteral("In diesen Ordner wird geschrieben; fehlt er, wird er angelegt"));
    ordner_->setMinimumWidth(420);
    connect(ordner_, &QLineEdit::textChanged, this, [this] { ZeigeBefehl(); });
    auto* knopf = new QToolButton(ziel);
    knopf->setObjectName(QStringLiteral("OrdnerKnopf"));
    knopf->setText(QStringLiteral("…"));
    knopf->setToolTip(QStringLiteral("Ordner wählen"));
    knopf->setAccessibleName(knopf->toolTip());
    connect(knopf, &QToolButton::clicked, this, [this] { WaehleOrdner(); });
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(ordner_);
    reihe->addWidget(knopf);
    auto* schild = new QLabel(QStringLiteral("Ordner"), ziel);
    schild->setBuddy(ordner_);
    form->addRow(schild, reihe);
    name_ = new QLineEdit(ziel);
    name_->setObjectName(QStringLiteral("AusgabeName"));
    name_->setToolTip(QStringLiteral("Name der Datei; die Endung des Formats kommt dazu"));
    connect(name_, &QLineEdit::textEdited, this, [this](const QString& text) {
        stamm_ = text;
        const QString endung = AusUtf8(format_->endung);
        if (stamm_.endsWith(endung, Qt::CaseInsensitive)) stamm_.chop(endung.size());
        ZeigeBefehl();
    });
    namenshinweis_ = new QLabel(QStringLiteral("Dieses Format heißt immer so."), ziel);
    namenshinweis_->setObjectName(QStringLiteral("NamensHinweis"));
    auto* namensreihe = new QHBoxLayout;
    namensreihe->addWidget(name_, 1);
    namensreihe->addWidget(namenshinweis_);
    auto* namensschild = new QLabel(QStringLiteral("Datei"), ziel);
    namensschild->setBuddy(name_);
    form->addRow(namensschild, namensreihe);
    return ziel;
}

QWidget* Ausgabedialog::BaueVorschau() {
    auto* vorschau = new QWidget(this);
    auto* spalte = new QVBoxLayout(vorschau);
    spalte->setContentsMargins(0, 0, 0, 0);
    bild_ = new QLabel(vorschau);
    bild_->setObjectName(QStringLiteral("VorschauBild"));
    bild_->setAccessibleName(QStringLiteral("Vorschau der Ausgabe"));
    bild_->setAlignment(Qt::AlignCenter);
    bild_->setFixedSize(kVorschau + QSize(12, 12));
    bild_->setStyleSheet(QStringLiteral("background: palette(mid);"));  // paper is white, too
    bildtext_ = new QLabel(vorschau);
    bildtext_->setObjectName(QStringLiteral("VorschauText"));
    bildtext_->setAlignment(Qt::AlignHCenter);
    bildtext_->setTextFormat(Qt::PlainText);
    bildtext_->setWordWrap(true);
    spalte->addWidget(bild_);
    spalte->addWidget(bildtext_);
    spalte->addStretch();
    return vorschau;
}

QWidget* Ausgabedialog::BaueBefehl() {
    auto* kasten = new QWidget(this);
    auto* spalte = new QVBoxLayout(kasten);
    spalte->setContentsMargins(0, 0, 0, 0);
    auto* schild = new QLabel(QStringLiteral("Dasselbe auf der Befehlszeile"), kasten);
    befehlsfeld_ = new QLineEdit(kasten);
    befehlsfeld_->setObjectName(QStringLiteral("BefehlsZeile"));
    befehlsfeld_->setToolTip(QStringLiteral("Schreibt dieselbe Datei ohne Fenster"));
    befehlsfeld_->setReadOnly(true);
    schild->setBuddy(befehlsfeld_);
    kopieren_ = new QPushButton(QStringLiteral("Kopieren"), kasten);
    kopieren_->setObjectName(QStringLiteral("BefehlKopieren"));
    kopieren_->setToolTip(QStringLiteral("Befehlszeile in die Zwischenablage kopieren"));
    kopieren_->setAutoDefault(false);  // Enter ends the input in a field
    connect(kopieren_, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(befehl_); });
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(befehlsfeld_, 1);
    reihe->addWidget(kopieren_);
    abweichungen_ = new QLabel(kasten);
    abweichungen_->setObjectName(QStringLiteral("BefehlsHinweis"));
    abweichungen_->setTextFormat(Qt::PlainText);
    abweichungen_->setWordWrap(true);
    spalte->addWidget(schild);
    spalte->addLayout(reihe);
    spalte->addWidget(abweichungen_);
    return kasten;
}

QBoxLayout* Ausgabedialog::BaueKnoepfe() {
    auto* reihe = new QHBoxLayout;
    reihe->addStretch();
    const auto knopf = [&](const char* name, const char* text, const char* hinweis) {
        auto* k = new QPushButton(QString::fromUtf8(text), this);
        k->setObjectName(QString::fromLatin1(name));
        k->setToolTip(QString::fromUtf8(hinweis));
        k->setAutoDefault(false);  // Enter ends the input in a field
        reihe->addWidget(k);
        return k;
    };
    connect(knopf("AusgabeSchreiben", "Ausgeben", "Die Datei schreiben"), &QPushButton::clicked, this,
            [this] { SchreibeDatei(); });
    connect(knopf("AusgabeSchliessen", "Schließen", "Nichts schreiben"), &QPushButton::clicked, this,
            &QDialog::reject);
    return reihe;
}

/// Another format has another name; all else follows whatever has changed.
void Ausgabedialog::FormatGeaendert() {
    const Format& format = felder_->GewaehltesFormat();
    if (&format != format_) {
        if (format_ == nullptr) stamm_ = AusUtf8(PfadText(plan_.Zielname(format).stem()));
        format_ = &format;
        const bool fest = !format.dateiname.empty();
        name_->setText(fest ? AusUtf8(format.dateiname) : stamm_ + AusUtf8(format.endung));
        name_->setReadOnly(fest);
        namenshinweis_->setVisible(fest);
    }
    ZeigeBefehl();
    pause_.start();
}

void Ausgabedialog::WaehleOrdner() {
    const auto ordner = dialoge_.WaehleOrdner({QStringLiteral("Ordner der Ausgabe"), {}, Ordner(), {}, {}});
    if (ordner) ordner_->setText(QDir::toNativeSeparators(*ordner));
}

QString Ausgabedialog::Ordner() const {
    const QString text = QDir::fromNativeSeparators(ordner_->text());
    return QDir::cleanPath(QDir::current().absoluteFilePath(text.isEmpty() ? QStringLiteral(".") : text));
}

QString Ausgabedialog::Dateiname() const {
    return name_->isReadOnly() ? name_->text() : stamm_ + AusUtf8(format_->endung);
}

/// Why nothing can be written; empty: nothing is wrong.
QString Ausgabedialog::Mangel() const {
    if (stamm_.isEmpty()) return QStringLiteral("Es fehlt der Name der Datei.");
    if (stamm_.contains(QLatin1Char('/')) || stamm_.contains(QLatin1Char('\\')))
        return QStringLiteral("Im Namen der Datei darf kein Ordner stehen.");
    return felder_->Auftrag() ? QString() : kOhneMassstab;
}

void Ausgabedialog::ZeigeBefehl() {
    const auto auftrag = felder_->Auftrag();
    befehl_ = auftrag ? plan_.Befehl(*format_, *auftrag, NachPfad(Ordner())) : QString();
    befehlsfeld_->setText(befehl_);
    befehlsfeld_->setCursorPosition(0);
    kopieren_->setEnabled(!befehl_.isEmpty());
    abweichungen_->setText(
        auftrag ? plan_.Abweichungen(*format_, *auftrag, NachPfad(Dateiname())).join(QLatin1Char('\n'))
                : kOhneMassstab);
    abweichungen_->setVisible(!abweichungen_->text().isEmpty());
}

void Ausgabedialog::ZeichneVorschau() {
    pause_.stop();
    QElapsedTimer uhr;
    uhr.start();
    Ausgabevorschau v;
    const qreal dichte = devicePixelRatioF();
    if (const auto auftrag = felder_->Auftrag()) {
        v = plan_.ZeichneVorschau(*format_, *auftrag, (QSizeF(kVorschau) * dichte).toSize());
    } else {
        v.text = kOhneMassstab;
    }
    QPixmap bild = QPixmap::fromImage(v.bild);
    bild.setDevicePixelRatio(dichte);
    bild_->setPixmap(bild);
    bildtext_->setText(v.text);
    // Where drawing takes long it waits for a longer pause, so that typing does not.
    constexpr int kLaengste = 2000;
    pause_.setInterval(static_cast<int>(std::min<qint64>(kPause + 2 * uhr.elapsed(), kLaengste)));
}

void Ausgabedialog::SchreibeDatei() {
    if (const QString mangel = Mangel(); !mangel.isEmpty()) return dialoge_.MeldeFehler(mangel);
    const QString datei = QDir(Ordner()).filePath(Dateiname());
    const QString anzeige = QDir::toNativeSeparators(datei);
    if (QFileInfo::exists(datei) &&
        !dialoge_.FrageJaNein(QStringLiteral("%1 ist bereits vorhanden. Ersetzen?").arg(anzeige)))
        return;
    Planausgabe::Ergebnis ergebnis;
    try {
        const Sanduhr sanduhr;
        ergebnis = plan_.SchreibeDatei(*format_, *felder_->Auftrag(), NachPfad(datei), this);
    } catch (const std::exception& f) {
        ergebnis = {.meldungen = {AusUtf8(Fehlertext(f))}};
    }
    if (ergebnis.abgebrochen) return;
    const QString meldungen = ergebnis.meldungen.join(QLatin1Char('\n'));
    if (!ergebnis.ganz) return dialoge_.MeldeFehler(meldungen);
    if (geschrieben) geschrieben(QStringLiteral("Geschrieben: ") + anzeige);
    if (!meldungen.isEmpty()) dialoge_.SageErfolg(meldungen);
    accept();
}

}  // namespace zrw
