#include "ui/druck/Blattdialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace zrw {

Blattdialog::Blattdialog(const Zeichenzustand& zustand, const Blattgestaltung& gestaltung, QWidget* eltern)
    : QDialog(eltern),
      rahmen_(new QCheckBox(QStringLiteral("Blätter mit Rahmen und Schriftfeld"), this)),
      gitter_(new QCheckBox(QStringLiteral("Gitter auf Papier schlicht"), this)),
      felder_(new Blattfelder(gestaltung, this)) {
    setObjectName(QStringLiteral("BlattDialog"));
    setWindowTitle(QStringLiteral("Blattrahmen"));
    rahmen_->setObjectName(QStringLiteral("RahmenEin"));
    rahmen_->setToolTip(QStringLiteral("Gilt für Druck und Vorschau; der Plan behält seinen Maßstab"));
    rahmen_->setChecked(zustand.Blattrahmen);
    gitter_->setObjectName(QStringLiteral("GitterSchlicht"));
    gitter_->setToolTip(QStringLiteral("Dünne, helle Linien, am Rand beziffert; mit Rahmen immer so"));
    gitter_->setChecked(zustand.GitterSchlicht);
    gitter_->setDisabled(zustand.Blattrahmen);
    connect(rahmen_, &QCheckBox::toggled, gitter_, &QWidget::setDisabled);
    auto* knoepfe = new QDialogButtonBox(this);
    knoepfe->addButton(QStringLiteral("Übernehmen"), QDialogButtonBox::AcceptRole);
    knoepfe->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(knoepfe, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(knoepfe, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* alles = new QVBoxLayout(this);
    alles->addWidget(rahmen_);
    alles->addWidget(gitter_);
    alles->addWidget(felder_);
    alles->addWidget(knoepfe);
    constexpr int kWeite = 420;
    setMinimumWidth(kWeite);
}

bool Blattdialog::Blattrahmen() const {
    return rahmen_->isChecked();
}

bool Blattdialog::GitterSchlicht() const {
    return gitter_->isChecked();
}

}  // namespace zrw
