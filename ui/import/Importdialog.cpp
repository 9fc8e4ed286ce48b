#include "ui/import/Importdialog.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <ctime>

#include "input/import/Netzimport.h"
#include "model/Fehler.h"
#include "ui/Umwandlung.h"
#include "ui/fenster/Sanduhr.h"

namespace zrw {
namespace {

constexpr int kFeldbreite = 460;  // [px]
constexpr double kKleinsteTestgrenze = 0.5, kGroessteTestgrenze = 99.0;

const QString kAlle = QStringLiteral(";;Alle Dateien (*.*)");

Importauftrag Auftrag(const QString& netz, const QString& ergebnisse, const QString& ziel) {
    return {.netz = NachPfad(netz.trimmed()),
            .ergebnisse = NachPfad(ergebnisse.trimmed()),
            .ziel = NachPfad(ziel.trimmed())};
}

}  // namespace

Importdialog::Importdialog(const Programm& programm, const QStringList& dateien, const QString& ordner,
                           QWidget* eltern)
    : QDialog(eltern), programm_(programm), ordner_(ordner) {
    setObjectName(QStringLiteral("ImportDialog"));
    setWindowTitle(QStringLiteral("Netz importieren"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* spalte = new QVBoxLayout(this);
    auto* was = new QLabel(
        QStringLiteral("Aus einem Netz von GNU Gama werden eine Steuerdatei und, mit Ergebnissen, die "
                       "Tabellen der Ausgleichung. Die Dateien von GNU Gama bleiben, wie sie sind."),
        this);
    was->setWordWrap(true);
    spalte->addWidget(was);
    spalte->addLayout(BaueFelder());
    hinweis_ = new QLabel(this);
    hinweis_->setObjectName(QStringLiteral("ImportHinweis"));
    hinweis_->setTextFormat(Qt::PlainText);
    hinweis_->setWordWrap(true);
    spalte->addWidget(hinweis_);
    spalte->addStretch();
    spalte->addWidget(BaueKnoepfe());
    connect(netz_, &QLineEdit::textChanged, this, [this] { NetzGeaendert(); });
    connect(ergebnisse_, &QLineEdit::textEdited, this, [this] { eigeneErgebnisse_ = true; });
    connect(ergebnisse_, &QLineEdit::textChanged, this, [this] { ZeigeZiel(); });
    connect(ziel_, &QLineEdit::textEdited, this, [this] { eigenesZiel_ = true; });
    connect(ziel_, &QLineEdit::textChanged, this, [this] { ZeigeZiel(); });
    NimmDateien(dateien);
    ZeigeZiel();
}

QFormLayout* Importdialog::BaueFelder() {
    auto* form = new QFormLayout;
    netz_ = BaueFeld(*form, "ImportNetz", QStringLiteral("&Netz"),
                     QStringLiteral("Eingabe der Ausgleichung (gama-local), meist .gkf"),
                     [this] { return WaehleDatei(QStringLiteral("Netz importieren")); });
    ergebnisse_ = BaueFeld(*form, "ImportErgebnisse", QStringLiteral("&Ergebnisse"),
                           QStringLiteral("Was die Ausgleichung geschrieben hat (.xml); darf leer sein"),
                           [this] { return WaehleDatei(QStringLiteral("Ergebnisse zum Netz")); });
    ergebnisse_->setPlaceholderText(QStringLiteral("ohne Ergebnisse"));
    ziel_ = BaueFeld(
        *form, "ImportZiel", QStringLiteral("&Zielordner"),
        QStringLiteral("Dort entstehen Steuerdatei und Tabellen; fehlt er, wird er angelegt"), [this] {
            return programm_.dialoge.WaehleOrdner({QStringLiteral("Zielordner"), {}, ziel_->text(), {}, {}});
        });
    grenze_ = new QDoubleSpinBox(this);
    grenze_->setObjectName(QStringLiteral("ImportGrenze"));
    grenze_->setRange(kKleinsteTestgrenze, kGroessteTestgrenze);
    grenze_->setSingleStep(0.1);
    grenze_->setValue(kUeblicheGrenze);
    grenze_->setToolTip(
        QStringLiteral("Beobachtungen mit größerer Testgröße TG werden als grob falsch markiert"));
    form->addRow(QStringLiteral("&Grenze für TG"), grenze_);
    return form;
}

QWidget* Importdialog::BaueKnoepfe() {
    auto* knoepfe = new QDialogButtonBox(this);
    importieren_ = knoepfe->addButton(QStringLiteral("&Importieren"), QDialogButtonBox::AcceptRole);
    importieren_->setObjectName(QStringLiteral("ImportKnopf"));
    importieren_->setDefault(true);
    knoepfe->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(knoepfe, &QDialogButtonBox::accepted, this, [this] { Importiere(); });
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return knoepfe;
}

QLineEdit* Importdialog::BaueFeld(QFormLayout& form, const char* name, const QString& schild,
                                  const QString& hinweis, std::function<std::optional<QString>()> waehle) {
    auto* feld = new QLineEdit(this);
    feld->setObjectName(QString::fromLatin1(name));
    feld->setToolTip(hinweis);
    feld->setMinimumWidth(kFeldbreite);
    auto* knopf = new QToolButton(this);
    knopf->setObjectName(QString::fromLatin1(name) + QStringLiteral("Knopf"));
    knopf->setText(QStringLiteral("…"));
    knopf->setToolTip(hinweis);
    knopf->setAccessibleName(QString(schild).remove(QLatin1Char('&')) + QStringLiteral(" wählen"));
    connect(knopf, &QToolButton::clicked, this, [feld, waehle = std::move(waehle)] {
        const auto gewaehlt = waehle();
        if (!gewaehlt) return;
        feld->setText(QDir::toNativeSeparators(*gewaehlt));
        Q_EMIT feld->textEdited(feld->text());
    });
    auto* reihe = new QHBoxLayout;
    reihe->addWidget(feld, 1);
    reihe->addWidget(knopf);
    auto* text = new QLabel(schild, this);
    text->setBuddy(feld);
    form.addRow(text, reihe);
    return feld;
}

std::optional<QString> Importdialog::WaehleDatei(const QString& titel) const {
    const QString bei = netz_->text().isEmpty() ? ordner_ : QFileInfo(netz_->text()).path();
    return programm_.dialoge.WaehleZumOeffnen({titel, AusUtf8(Importfilter()) + kAlle, bei, {}, {}});
}

/// Results alone lead to the network beside them.
void Importdialog::NimmDateien(const QStringList& dateien) {
    QString netz;
    for (const QString& datei : dateien) {
        const std::filesystem::path pfad = NachPfad(datei);
        if (ErkenneImport(pfad, programm_.dateien).rolle != Importrolle::Ergebnisse) {
            netz = datei;
            continue;
        }
        eigeneErgebnisse_ = true;
        ergebnisse_->setText(QDir::toNativeSeparators(datei));
        if (netz.isEmpty())
            netz = AusUtf8(PfadText(Importpartner(pfad, Importrolle::Netz, programm_.dateien)));
    }
    netz_->setText(QDir::toNativeSeparators(netz));
}

/// What nobody has chosen follows the network.
void Importdialog::NetzGeaendert() {
    const std::filesystem::path netz = NachPfad(netz_->text().trimmed());
    if (!eigeneErgebnisse_) {
        const auto partner = Importpartner(netz, Importrolle::Ergebnisse, programm_.dateien);
        ergebnisse_->setText(QDir::toNativeSeparators(AusUtf8(PfadText(partner))));
    }
    if (!eigenesZiel_) {
        const QString ordner = netz.empty() ? QString() : AusUtf8(PfadText(ImportOrdner(netz)));
        ziel_->setText(QDir::toNativeSeparators(ordner));
    }
    ZeigeZiel();
}

void Importdialog::ZeigeZiel() {
    importieren_->setEnabled(!netz_->text().trimmed().isEmpty());
    if (netz_->text().trimmed().isEmpty()) {
        hinweis_->setText(
            QStringLiteral("Bitte das Netz wählen. Ergebnisse gleichen Namens daneben werden gefunden."));
        return;
    }
    const Importauftrag auftrag = Auftrag(netz_->text(), ergebnisse_->text(), ziel_->text());
    const std::size_t vorhanden = ImportZiele(auftrag, programm_.dateien).size();
    QString text =
        QStringLiteral("Es entsteht %1.EIN").arg(QFileInfo(netz_->text().trimmed()).completeBaseName());
    text += ergebnisse_->text().trimmed().isEmpty() ? QStringLiteral(" ohne Ergebnistabellen.")
                                                    : QStringLiteral(" mit den Ergebnistabellen.");
    if (vorhanden > 0)
        text += QStringLiteral(" Im Zielordner liegen davon schon %1 Dateien; vor dem Ersetzen wird gefragt.")
                    .arg(vorhanden);
    hinweis_->setText(text);
}

void Importdialog::Importiere() {
    Importauftrag auftrag = Auftrag(netz_->text(), ergebnisse_->text(), ziel_->text());
    auftrag.grenze = grenze_->value();
    try {
        const auto vorhanden = ImportZiele(auftrag, programm_.dateien);
        if (!vorhanden.empty()) {
            const QString frage =
                QStringLiteral("Im Zielordner liegen schon %1 Dateien eines Netzes (%2 …). Ersetzen?")
                    .arg(vorhanden.size())
                    .arg(AusUtf8(PfadText(vorhanden.front().filename())));
            if (!programm_.dialoge.FrageJaNein(frage)) return;
            auftrag.ersetzen = true;
        }
        Importergebnis ergebnis;
        {
            const Sanduhr sanduhr;
            ergebnis = ImportiereNetz(auftrag, programm_.dateien, std::time(nullptr));
        }
        QStringList hinweise;
        for (const std::string& h : ergebnis.hinweise)
            hinweise << AusUtf8(h);
        const auto melde = importiert;  // closing deletes the dialog
        close();
        if (melde) melde(AusUtf8(PfadText(ergebnis.steuerdatei)), AusUtf8(Importmeldung(ergebnis)), hinweise);
    } catch (const std::exception& f) {
        programm_.dialoge.MeldeFehler(AusUtf8(Fehlertext(f)));
    }
}

}  // namespace zrw
