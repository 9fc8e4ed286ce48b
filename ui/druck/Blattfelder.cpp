#include "ui/druck/Blattfelder.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <algorithm>

#include "ui/Umwandlung.h"

namespace zrw {
namespace {

constexpr int kFeldlaenge = 255;

}  // namespace

Blattfelder::Blattfelder(const Blattgestaltung& anfang, QWidget* eltern)
    : QWidget(eltern),
      firma_(NeueZeile("BlattFirma", "Steht im Schriftfeld des Blattrahmens", anfang.texte.firma)),
      projekt_(
          NeueZeile("BlattProjekt", "Nummer oder Name des Auftrags im Schriftfeld", anfang.texte.projekt)),
      bearbeiter_(NeueZeile("BlattBearbeiter", "Wer den Plan bearbeitet hat, im Schriftfeld",
                            anfang.texte.bearbeiter)),
      ueberlappung_(new QSpinBox(this)),
      stift_(new QComboBox(this)),
      schwarzweiss_(new QCheckBox(QStringLiteral("schwarz-weiß"), this)) {
    ueberlappung_->setObjectName(QStringLiteral("BlattUeberlappung"));
    ueberlappung_->setToolTip(QStringLiteral("So viel vom Plan zeigen Nachbarblätter doppelt, 0 bis 20 mm"));
    ueberlappung_->setRange(0, kGroessteUeberlappung);
    ueberlappung_->setSuffix(QStringLiteral(" mm"));
    ueberlappung_->setValue(anfang.ueberlappung);
    connect(ueberlappung_, &QSpinBox::valueChanged, this, [this] { MeldeAenderung(); });
    ueberlappung_->setAccessibleName(QStringLiteral("Überlappung"));
    stift_->setAccessibleName(QStringLiteral("Stift des Plans"));
    stift_->setObjectName(QStringLiteral("BlattStift"));
    stift_->setToolTip(QStringLiteral("Strichbreite des Plans auf dem Papier"));
    for (const double stift : kPlanstifte)
        stift_->addItem(stift > 0.0 ? QLocale(QLocale::German).toString(stift) + QStringLiteral(" mm")
                                    : QStringLiteral("wie üblich"));
    const auto* vorher = std::find(kPlanstifte.begin(), kPlanstifte.end(), anfang.stift);
    stift_->setCurrentIndex(vorher == kPlanstifte.end() ? 0 : static_cast<int>(vorher - kPlanstifte.begin()));
    connect(stift_, &QComboBox::currentIndexChanged, this, [this] { MeldeAenderung(); });
    schwarzweiss_->setObjectName(QStringLiteral("BlattSchwarzweiss"));
    schwarzweiss_->setToolTip(QStringLiteral("Auf dem Papier ist alles schwarz, was eine Farbe hat"));
    schwarzweiss_->setChecked(anfang.schwarzweiss);
    connect(schwarzweiss_, &QCheckBox::toggled, this, [this] { MeldeAenderung(); });

    auto* form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->addRow(QStringLiteral("Firma"), firma_);
    form->addRow(QStringLiteral("Projekt"), projekt_);
    form->addRow(QStringLiteral("Bearbeitet von"), bearbeiter_);
    // One row: the window for outputs is high enough without them.
    auto* masse = new QHBoxLayout;
    masse->addWidget(ueberlappung_);
    auto* schild = new QLabel(QStringLiteral("Stift"), this);
    schild->setBuddy(stift_);
    masse->addWidget(schild);
    masse->addWidget(stift_);
    masse->addWidget(schwarzweiss_);
    masse->addStretch();
    auto* davor = new QLabel(QStringLiteral("Überlappung"), this);
    davor->setBuddy(ueberlappung_);
    form->addRow(davor, masse);
}

QLineEdit* Blattfelder::NeueZeile(const char* name, const char* hinweis, const std::string& text) {
    auto* zeile = new QLineEdit(AusNetz(text), this);
    zeile->setObjectName(QString::fromLatin1(name));
    zeile->setToolTip(QString::fromUtf8(hinweis));
    zeile->setMaxLength(kFeldlaenge);
    connect(zeile, &QLineEdit::textChanged, this, [this] { MeldeAenderung(); });
    return zeile;
}

Blattgestaltung Blattfelder::Gestaltung() const {
    const auto text = [](const QLineEdit* zeile) { return Utf8NachCp1252(NachUtf8(zeile->text())); };
    Blattgestaltung g;
    g.texte = {text(projekt_), text(bearbeiter_), text(firma_)};
    g.ueberlappung = ueberlappung_->value();
    g.stift = kPlanstifte[static_cast<std::size_t>(std::max(stift_->currentIndex(), 0))];
    g.schwarzweiss = schwarzweiss_->isChecked();
    return g;
}

}  // namespace zrw
