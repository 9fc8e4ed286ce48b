#include "ui/ergebnisse/TFormData.h"

#include <QLabel>
#include <QVBoxLayout>

#include "ui/ergebnisse/Ergebnisgitter.h"

namespace zrw {
namespace {

const QString kFenster = QStringLiteral("Ergebnisse/Fensterort");

}  // namespace

TFormData::TFormData(Sitzung& sitzung, QWidget* eltern)
    : QDialog(eltern),
      sitzung_(sitzung),
      angaben_(new QLabel(QStringLiteral("Punkt oder Linie im Bild anklicken."), this)),
      gitter_(new Ergebnisgitter(sitzung, this)) {
    setObjectName(QStringLiteral("TFormData"));
    setWindowTitle(QStringLiteral("Abriss nach der Ausgleichung"));
    // Whoever types point numbers goes on typing.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips);
    angaben_->setObjectName(QStringLiteral("AngabenZeile"));
    angaben_->setWordWrap(true);
    angaben_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    gitter_->SetzeNamen(QStringLiteral("DBGrid1"), QStringLiteral("TabControl1"));
    auto* spalte = new QVBoxLayout(this);
    spalte->setContentsMargins(6, 6, 6, 6);
    spalte->setSpacing(0);
    spalte->addWidget(angaben_);
    spalte->addSpacing(4);
    spalte->addWidget(gitter_, 1);
    if (!restoreGeometry(sitzung_.Stand(kFenster))) resize(1120, 320);
}

TFormData::~TFormData() {
    // Before it is shown it stands nowhere.
    if (gezeigt_) sitzung_.MerkeStand(kFenster, saveGeometry());
}

void TFormData::showEvent(QShowEvent* ereignis) {
    gezeigt_ = true;
    QDialog::showEvent(ereignis);
}

void TFormData::SetzeTitel(const QString& titel, const QString& angaben) {
    setWindowTitle(titel);
    angaben_->setText(angaben);
}

void TFormData::ZeigeFenster() {
    show();
    raise();
}

}  // namespace zrw
