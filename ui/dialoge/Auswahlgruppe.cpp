#include "ui/dialoge/Auswahlgruppe.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QRadioButton>
#include <QSignalBlocker>

namespace zrw {

Auswahlgruppe::Auswahlgruppe(const QString& name, const QString& beschriftung, const QStringList& texte,
                             int spalten, QWidget* eltern)
    : QGroupBox(beschriftung, eltern), gruppe_(new QButtonGroup(this)) {
    setObjectName(name);
    auto* gitter = new QGridLayout(this);
    for (int i = 0; i < texte.size(); ++i) {
        auto* knopf = new QRadioButton(texte[i], this);
        knopf->setObjectName(name + QString::number(i));
        gruppe_->addButton(knopf, i);
        gitter->addWidget(knopf, i / spalten, i % spalten);
    }
    connect(gruppe_, &QButtonGroup::idToggled, this, [this](int /*nummer*/, bool ein) {
        if (ein && geaendert) geaendert();
    });
}

int Auswahlgruppe::Gewaehlt() const {
    return gruppe_->checkedId();
}

void Auswahlgruppe::WaehleNummer(int nummer) {
    const QSignalBlocker still(gruppe_);
    gruppe_->setExclusive(false);  // an exclusive group does not let go of its last button
    for (QAbstractButton* knopf : gruppe_->buttons())
        knopf->setChecked(gruppe_->id(knopf) == nummer);
    gruppe_->setExclusive(true);
}

}  // namespace zrw
