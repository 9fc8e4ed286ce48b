#include "ui/dialoge/TFormPunktart.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "model/Punktarten.h"
#include "model/Punktsymbole.h"
#include "ui/Umwandlung.h"
#include "ui/dialoge/Auswahlgruppe.h"

namespace zrw {
namespace {

QLineEdit* NeuesFeld(const QString& name, QWidget* eltern) {
    auto* feld = new QLineEdit(eltern);
    feld->setObjectName(name);
    return feld;
}

QStringList Kuerzel() {
    QStringList texte;
    for (const Punktart& p : kPunktarten)
        texte << AusUtf8(p.kuerzel);
    return texte;
}

QStringList Symbole() {
    QStringList texte;
    for (const Punktsymbol& s : kPunktsymbole)
        texte << AusUtf8(s.bezeichnung);
    return texte;
}

}  // namespace

PunktArt ArtNachFarbe(Farbe farbe, const Einstellungen& e) {
    const auto stelle = std::find_if(kPunktarten.begin(), kPunktarten.end(),
                                     [&](const Punktart& p) { return e.*p.farbe == farbe; });
    return stelle != kPunktarten.end() ? stelle->art : PunktArt::NP;
}

TFormPunktart::TFormPunktart(QWidget* eltern)
    : QDialog(eltern),
      PktNummer_(NeuesFeld(QStringLiteral("PktNummer"), this)),
      RadioGroupPktArt_(new Auswahlgruppe(QStringLiteral("RadioGroupPktArt"), QStringLiteral("Punktart"),
                                          Kuerzel(), static_cast<int>(kPunktarten.size()), this)),
      RadioGroupSymb_(new Auswahlgruppe(QStringLiteral("RadioGroupSymb"), QStringLiteral("Punktsymbol"),
                                        Symbole(), 3, this)),
      PktY_(NeuesFeld(QStringLiteral("PktY"), this)),
      PktX_(NeuesFeld(QStringLiteral("PktX"), this)),
      CheckBoxNeuPkt_(new QCheckBox(QStringLiteral("Neupunkt"), this)) {
    setObjectName(QStringLiteral("TFormPunktart"));
    setWindowTitle(QStringLiteral("Punktart"));
    RadioGroupPktArt_->setToolTip(QStringLiteral("Punktart angeben"));
    RadioGroupSymb_->setToolTip(QStringLiteral("Zeichen des Punktes im Plan"));
    PktNummer_->setToolTip(QStringLiteral("Höchstens 14 Zeichen; nur bei einem neuen Punkt einzugeben"));
    CheckBoxNeuPkt_->setObjectName(QStringLiteral("CheckBoxNeuPkt"));
    CheckBoxNeuPkt_->setToolTip(QStringLiteral("Neupunkt einfügen"));
    auto* knopf = new QPushButton(QStringLiteral("Zeichnen"), this);
    knopf->setObjectName(QStringLiteral("DrawButton"));
    knopf->setToolTip(QStringLiteral("Punkt zeichnen"));
    knopf->setDefault(true);
    connect(knopf, &QPushButton::clicked, this, [this] {
        if (zeichnen) zeichnen();
    });

    auto* spalte = new QVBoxLayout(this);
    auto* nummer = new QFormLayout;
    nummer->addRow(QStringLiteral("Punktnummer"), PktNummer_);
    spalte->addLayout(nummer);
    spalte->addWidget(RadioGroupPktArt_);
    spalte->addWidget(RadioGroupSymb_);
    spalte->addWidget(BaueKoordinaten());
    spalte->addStretch();
    auto* unten = new QHBoxLayout;
    unten->addWidget(CheckBoxNeuPkt_);
    unten->addStretch();
    unten->addWidget(knopf);
    spalte->addLayout(unten);
}

QGroupBox* TFormPunktart::BaueKoordinaten() {
    auto* rahmen = new QGroupBox(QStringLiteral("Koordinaten"), this);
    rahmen->setToolTip(QStringLiteral("Punktkoordinaten"));
    PktY_->setToolTip(QStringLiteral("Rechtswert"));
    PktY_->setAccessibleName(QStringLiteral("Rechtswert"));
    PktX_->setToolTip(QStringLiteral("Hochwert"));
    PktX_->setAccessibleName(QStringLiteral("Hochwert"));

    PktY_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000000000.00000")));
    PktX_->setMinimumWidth(PktY_->width());
    auto* gitter = new QGridLayout(rahmen);
    auto* schild = new QLabel(QStringLiteral("Y                        X"), rahmen);
    gitter->addWidget(schild, 0, 0, 1, 2);
    gitter->addWidget(PktY_, 1, 0);
    gitter->addWidget(PktX_, 1, 1);
    gitter->setColumnStretch(1, 1);
    // One caption for both fields: its gap is stretched so that the second letter stands over the second
    // field.
    const int ort = PktY_->width() + gitter->horizontalSpacing();
    QFont schrift = schild->font();
    schrift.setWordSpacing(ort - schild->fontMetrics().horizontalAdvance(schild->text().chopped(1)));
    schild->setFont(schrift);
    return rahmen;
}

void TFormPunktart::ZeigeEingabe(const Punkteingabe& eingabe) {
    gezeigt_ = eingabe;
    PktNummer_->setText(eingabe.nummer);
    RadioGroupPktArt_->WaehleNummer(static_cast<int>(eingabe.art));
    RadioGroupSymb_->WaehleNummer(static_cast<int>(eingabe.symbol));
    PktY_->setText(eingabe.rechts);
    PktX_->setText(eingabe.hoch);
    CheckBoxNeuPkt_->setChecked(eingabe.neu);
}

Punkteingabe TFormPunktart::Eingabe() const {
    Punkteingabe e = gezeigt_;
    e.nummer = PktNummer_->text();
    if (const int art = RadioGroupPktArt_->Gewaehlt(); art >= 0) e.art = static_cast<PunktArt>(art);
    if (const int symbol = RadioGroupSymb_->Gewaehlt(); symbol >= 0) e.symbol = static_cast<PunktTyp>(symbol);
    e.rechts = PktY_->text();
    e.hoch = PktX_->text();
    e.neu = CheckBoxNeuPkt_->isChecked();
    return e;
}

}  // namespace zrw
