#include "ui/dialoge/Palettenkasten.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>

#include "model/Farbpaletten.h"
#include "ui/Umwandlung.h"

namespace zrw {

Palettenkasten::Palettenkasten(Einstellungen& einstellungen, QWidget* eltern)
    : QWidget(eltern), e_(einstellungen), wahl_(new QComboBox(this)) {
    wahl_->setObjectName(QStringLiteral("FarbPalette"));
    wahl_->setToolTip(QStringLiteral("Setzt alle Farben auf einmal"));
    wahl_->setAccessibleName(QStringLiteral("Farbpalette"));
    for (const Farbpalette& p : kFarbpaletten) {
        wahl_->addItem(AusUtf8(p.name));
        wahl_->setItemData(wahl_->count() - 1, AusUtf8(p.hinweis), Qt::ToolTipRole);
    }
    // Says what is there, and cannot be chosen.
    wahl_->addItem(QStringLiteral("Eigene"));
    static_cast<QStandardItemModel*>(wahl_->model())->item(wahl_->count() - 1)->setEnabled(false);
    connect(wahl_, &QComboBox::activated, this, [this](int nummer) {
        const auto i = static_cast<std::size_t>(nummer);
        if (i >= kFarbpaletten.size()) return;
        SetzeFarben(e_, kFarbpaletten[i].farben);
        if (gewaehlt) gewaehlt();
    });
    auto* knopf = new QPushButton(QStringLiteral("Auf das offene Netz anwenden"), this);
    knopf->setObjectName(QStringLiteral("FarbenAnwenden"));
    knopf->setToolTip(
        QStringLiteral("Punkte und Linien mit einer der bisherigen Farben bekommen die neue; Strg+Z nimmt es "
                       "zurück"));
    knopf->setAutoDefault(false);  // Enter ends the input in a field
    connect(knopf, &QPushButton::clicked, this, [this] {
        if (anwenden) anwenden();
    });
    auto* schild = new QLabel(QStringLiteral("Farbpalette"), this);
    schild->setBuddy(wahl_);
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(0, 0, 0, 0);
    zeile->addWidget(schild);
    zeile->addWidget(wahl_);
    zeile->addWidget(knopf);
    zeile->addStretch();
}

void Palettenkasten::ZeigePalette() {
    const Farbpalette* p = FindePalette(FarbenAus(e_));
    wahl_->setCurrentIndex(p != nullptr ? static_cast<int>(p - kFarbpaletten.data())
                                        : static_cast<int>(kFarbpaletten.size()));
}

}  // namespace zrw
