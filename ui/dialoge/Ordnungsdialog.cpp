#include "ui/dialoge/Ordnungsdialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace zrw {
namespace {

constexpr int kTextbreite = 420;  // [px]

QLabel* Absatz(const QString& text, QWidget* eltern) {
    auto* label = new QLabel(text, eltern);
    label->setWordWrap(true);
    label->setMinimumWidth(kTextbreite);
    return label;
}

}  // namespace

Ordnungsdialog::Ordnungsdialog(QWidget* eltern)
    : QDialog(eltern),
      was_(Absatz({}, this)),
      bild_(new QRadioButton(QStringLiteral("für das &Bild, wie es im Fenster steht"), this)),
      druck_(new QRadioButton(QStringLiteral("für den &Druck im eingestellten Maßstab"), this)),
      verschobene_(new QCheckBox(QStringLiteral("auch von Hand &verschobene Nummern"), this)),
      verschobenHinweis_(Absatz({}, this)) {
    setObjectName(QStringLiteral("OrdnungsDialog"));
    setWindowTitle(QStringLiteral("Punktnummern ordnen"));
    bild_->setObjectName(QStringLiteral("BildWahl"));
    bild_->setToolTip(QStringLiteral("Ordnet die Nummern, deren Punkte gerade im Bild liegen"));
    bild_->setChecked(true);
    druck_->setObjectName(QStringLiteral("DruckWahl"));
    druck_->setToolTip(
        QStringLiteral("Ordnet alle gezeigten Nummern für Papier, Auflösung und Druckmaßstab"));
    verschobene_->setObjectName(QStringLiteral("VerschobeneWahl"));
    verschobene_->setToolTip(
        QStringLiteral("Sonst bleiben sie, wo sie sind, und die anderen weichen ihnen aus"));
    auto* knoepfe = new QDialogButtonBox(this);
    auto* ordnen = knoepfe->addButton(QStringLiteral("&Ordnen"), QDialogButtonBox::AcceptRole);
    ordnen->setObjectName(QStringLiteral("OrdnenKnopf"));
    ordnen->setDefault(true);
    knoepfe->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole);

    auto* spalte = new QVBoxLayout(this);
    spalte->addWidget(was_);
    spalte->addWidget(bild_);
    spalte->addWidget(druck_);
    spalte->addWidget(
        Absatz(QStringLiteral("Abstände gelten für einen Maßstab: Nach dem Zoomen oder in einem "
                              "anderen Druckmaßstab können sich Nummern wieder treffen."),
               this));
    spalte->addWidget(verschobene_);
    spalte->addWidget(verschobenHinweis_);
    spalte->addWidget(knoepfe);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this] {
        if (ordne) ordne({druck_->isChecked(), verschobene_->isChecked()});
    });
}

void Ordnungsdialog::Oeffne(const QString& was, bool ausBild) {
    was_->setText(
        QStringLiteral("Sucht für %1 Plätze neben ihren Punkten, so dass sie einander, fremde Symbole "
                       "und möglichst auch Linien nicht treffen.")
            .arg(was));
    verschobenHinweis_->setText(
        ausBild ? QStringLiteral(
                      "Eine Zarwikdatei sagt nicht, wer eine Nummer verschoben hat: Als verschoben gilt "
                      "hier jede, die nicht im eingestellten Abstand steht.")
                : QStringLiteral(
                      "Als verschoben gilt, was seit dem Öffnen oder dem letzten Ordnen gezogen wurde."));
    open();
}

}  // namespace zrw
