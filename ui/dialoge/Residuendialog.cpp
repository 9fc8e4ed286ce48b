#include "ui/dialoge/Residuendialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <cmath>
#include <optional>

#include "model/Zahlentext.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

std::optional<double> Zahl(const QLineEdit& feld) {
    const auto zahl = LiesReal(NachUtf8(feld.text()));
    return zahl && std::isfinite(*zahl) ? zahl : std::nullopt;
}

}  // namespace

Residuendialog::Residuendialog(QWidget* eltern)
    : QDialog(eltern),
      residuen_(BaueFeld(QStringLiteral("ResiduenFeld"),
                         QStringLiteral("Bildpunkte für einen Millimeter, mit Dezimalpunkt"))),
      eigener_(new QCheckBox(QStringLiteral("Fehlerellipsen in &eigenem Maßstab"), this)),
      ellipsen_(BaueFeld(QStringLiteral("EllipsenFeld"),
                         QStringLiteral("Bildpunkte für einen Millimeter der Halbachsen, größer als 0"))),
      hinweis_(new QLabel(this)) {
    setObjectName(QStringLiteral("ResiduenDialog"));
    setWindowTitle(QStringLiteral("Maßstäbe der Ergebnisse"));
    eigener_->setObjectName(QStringLiteral("EllipsenEigen"));
    eigener_->setToolTip(QStringLiteral("Sonst gilt für sie der Residuenmaßstab"));
    hinweis_->setObjectName(QStringLiteral("GroessenHinweis"));
    hinweis_->setWordWrap(true);
    constexpr int kWeite = 380;
    hinweis_->setMinimumSize(kWeite, 2 * hinweis_->fontMetrics().lineSpacing());
    connect(eigener_, &QCheckBox::toggled, this, [this](bool ein) {
        ellipsen_->setEnabled(ein);
        UebernimmFelder();
    });
    auto* anpassen = new QPushButton(QStringLiteral("An das Netz &anpassen"), this);
    anpassen->setObjectName(QStringLiteral("AnpassenKnopf"));
    anpassen->setToolTip(
        QStringLiteral("Runde Maßstäbe, in denen das Größte etwa ein Fünfzehntel des Bildes einnimmt"));
    anpassen->setAutoDefault(false);  // Enter ends the input in a field
    connect(anpassen, &QPushButton::clicked, this, [this] {
        UebernimmFelder();
        if (passeAn) passeAn();
    });
    auto* knoepfe = new QDialogButtonBox(this);
    knoepfe->addButton(anpassen, QDialogButtonBox::ActionRole);
    knoepfe->addButton(QStringLiteral("Schließen"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* form = new QFormLayout;
    BaueFelder(*form);
    auto* spalte = new QVBoxLayout(this);
    spalte->addLayout(form);
    spalte->addWidget(hinweis_);
    spalte->addWidget(knoepfe);
    ZeigeStand({}, {});
}

QLineEdit* Residuendialog::BaueFeld(const QString& name, const QString& hinweis) {
    auto* feld = new QLineEdit(this);
    feld->setObjectName(name);
    feld->setToolTip(hinweis);
    connect(feld, &QLineEdit::editingFinished, this, [this] { UebernimmFelder(); });
    return feld;
}

void Residuendialog::BaueFelder(QFormLayout& form) {
    form.addRow(QStringLiteral("&Residuenmaßstab (:1)"), residuen_);
    form.addRow(eigener_);
    form.addRow(QStringLiteral("&Maßstab der Fehlerellipsen (:1)"), ellipsen_);
}

void Residuendialog::ZeigeStand(const Stand& stand, const QString& hinweis) {
    stand_ = stand;
    const QSignalBlocker still(eigener_);
    const bool eigener = stand.ellipsen > 0.0;
    residuen_->setText(AusUtf8(SchreibeReal(stand.residuen)));
    eigener_->setChecked(eigener);
    ellipsen_->setEnabled(eigener);
    ellipsen_->setText(eigener ? AusUtf8(SchreibeReal(stand.ellipsen)) : residuen_->text());
    hinweis_->setText(hinweis);
}

/// What is no magnification is told and changes nothing.
void Residuendialog::UebernimmFelder() {
    const auto residuen = Zahl(*residuen_);
    if (!residuen) {
        hinweis_->setText(
            QStringLiteral("Der Residuenmaßstab ist keine Zahl (Dezimaltrenner ist der Punkt)."));
        return;
    }
    Stand neu{*residuen, 0.0};
    if (eigener_->isChecked()) {
        const auto ellipsen = Zahl(*ellipsen_);
        if (!ellipsen || *ellipsen <= 0.0) {
            hinweis_->setText(
                QStringLiteral("Der Maßstab der Fehlerellipsen muss eine Zahl größer als 0 sein."));
            return;
        }
        neu.ellipsen = *ellipsen;
    }
    if (neu != stand_ && geaendert) geaendert(neu);
}

}  // namespace zrw
