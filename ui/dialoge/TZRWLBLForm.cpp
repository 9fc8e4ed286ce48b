#include "ui/dialoge/TZRWLBLForm.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <tuple>

#include "model/FigListe.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr int kTextlaenge = 255;

}  // namespace

TZRWLBLForm::TZRWLBLForm(QWidget* eltern)
    : QDialog(eltern),
      Edit1_(new QLineEdit(this)),
      Edit2_(new QLineEdit(this)),
      CheckBox1_(new QCheckBox(QStringLiteral("Legende zeichnen"), this)) {
    setObjectName(QStringLiteral("TZRWLBLForm"));
    setWindowTitle(QStringLiteral("Legendentext"));
    Edit1_->setObjectName(QStringLiteral("Edit1"));
    Edit2_->setObjectName(QStringLiteral("Edit2"));
    CheckBox1_->setObjectName(QStringLiteral("CheckBox1"));
    Edit1_->setToolTip(QStringLiteral("Projektbezeichnung"));
    Edit2_->setToolTip(QStringLiteral("Zweite Zeile der Legende"));
    Edit2_->setAccessibleName(Edit2_->toolTip());
    CheckBox1_->setToolTip(QStringLiteral("Legende links oben im Bild einblenden"));
    for (QLineEdit* feld : {Edit1_, Edit2_}) {
        feld->setMaxLength(kTextlaenge);
        feld->setMinimumWidth(320);
    }
    auto* schliessen = new QPushButton(QStringLiteral("Schließen"), this);
    schliessen->setObjectName(QStringLiteral("Button1"));
    connect(schliessen, &QPushButton::clicked, this, &QDialog::accept);

    auto* felder = new QFormLayout(this);
    felder->addRow(QStringLiteral("Projektbezeichnung"), Edit1_);
    felder->addRow(QString(), Edit2_);
    felder->addRow(QString(), CheckBox1_);
    auto* knoepfe = new QHBoxLayout;
    knoepfe->addStretch();
    knoepfe->addWidget(schliessen);
    felder->addRow(knoepfe);
}

bool TZRWLBLForm::BearbeiteLegende(Liste& liste) {
    const auto stand = [&] { return std::tuple(liste.Legend->Bez1, liste.Legend->Bez2, liste.ShowLegende); };
    const auto vorher = stand();
    // Only ever switched on here: a user who is filling in texts for one plot after the other wants them all.
    if (liste.ShowLegende) CheckBox1_->setChecked(true);
    Edit1_->setText(AusNetz(liste.Legend->Bez1));
    Edit2_->setText(AusNetz(liste.Legend->Bez2));
    Edit1_->setFocus();
    Edit1_->selectAll();
    exec();
    liste.Legend->Bez1 = Utf8NachCp1252(NachUtf8(Edit1_->text()));
    liste.Legend->Bez2 = Utf8NachCp1252(NachUtf8(Edit2_->text()));
    liste.ShowLegende = CheckBox1_->isChecked();
    return stand() != vorher;
}

}  // namespace zrw
