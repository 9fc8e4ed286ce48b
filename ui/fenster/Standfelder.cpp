#include "ui/fenster/Standfelder.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <cmath>

#include "model/Netzarten.h"
#include "output/Druck.h"
#include "ui/Umwandlung.h"
#include "ui/fenster/Schalter.h"

namespace zrw {

double WahrerMassstab(double faktor, double punkteJeZoll) {
    const double genau = faktor * punkteJeZoll * 1000 / kMillimeterJeZoll;
    if (!(genau > 0.0) || !std::isfinite(genau)) return 0.0;
    constexpr int kZiffern = 3;
    const double stelle = std::pow(10.0, std::floor(std::log10(genau)) + 1 - kZiffern);
    return std::round(genau / stelle) * stelle;
}

Standfelder::Standfelder(QWidget* eltern)
    : QWidget(eltern), massstab_(new QLabel(this)), zahlen_(new QLabel(this)), versteckte_(new QLabel(this)) {
    setObjectName(QStringLiteral("Standfelder"));
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(0, 0, 6, 0);
    zeile->setSpacing(12);
    massstab_->setObjectName(QStringLiteral("StandMassstab"));
    zahlen_->setObjectName(QStringLiteral("StandZahlen"));
    versteckte_->setObjectName(QStringLiteral("StandVersteckte"));
    zahlen_->setToolTip(QStringLiteral("Punkte und Linien im Netz"));
    versteckte_->setToolTip(
        QStringLiteral("Punkte, die versteckt sind: „Versteckte Punkte“ zeigt sie wieder"));
    for (QLabel* feld : {massstab_, zahlen_, versteckte_})
        zeile->addWidget(feld);
    hide();
}

void Standfelder::ZeigeMassstab(const Ansicht& ansicht, const Netzangaben& netz) {
    // In narrow windows the messages need the room.
    constexpr int kGenug = 700;
    setVisible(window()->width() >= kGenug);
    if (!InMetern(netz.Netztyp)) {
        massstab_->setText(QStringLiteral("ohne Maßstab"));
        massstab_->setToolTip(AusUtf8(kKeineMeter));
        return;
    }
    const double n = WahrerMassstab(ansicht.Faktor, screen()->physicalDotsPerInch());
    massstab_->setText(n > 0.0 ? QStringLiteral("1:") + QString::number(n, 'g', 12) : QString());
    massstab_->setToolTip(QStringLiteral("Maßstab auf diesem Bildschirm, aus seiner Größe und Auflösung"));
}

void Standfelder::ZeigeZahlen(const Liste& liste) {
    std::size_t versteckt = 0;
    liste.FuerAllePunkte([&](const PunktKnoten& p) { versteckt += p.Item->Visible ? 0U : 1U; });
    zahlen_->setText(QStringLiteral("%1 Punkte, %2 Linien").arg(liste.MaxPkte).arg(liste.MaxKant));
    versteckte_->setText(QStringLiteral("%1 versteckt").arg(versteckt));
    versteckte_->setVisible(versteckt > 0);
}

}  // namespace zrw
