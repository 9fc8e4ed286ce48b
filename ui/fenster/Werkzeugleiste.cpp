#include "ui/fenster/Werkzeugleiste.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/Umwandlung.h"
#include "ui/fenster/Knopfgruppe.h"
#include "ui/fenster/Umbruchleiste.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {

Werkzeugleiste::Werkzeugleiste(const Aktionen& aktionen, QWidget* eltern)
    : QWidget(eltern),
      knoepfe_(new Umbruchleiste(nullptr, 2, 2)),
      kaesten_(new Umbruchleiste(nullptr, 12, 2)) {
    auto* reihen = new QVBoxLayout(this);
    reihen->setContentsMargins(6, 4, 6, 4);
    reihen->setSpacing(2);
    reihen->addLayout(knoepfe_);
    reihen->addLayout(kaesten_);
    BaueBefehle(aktionen);
    BaueWerkzeuge(aktionen);
    BaueSchalter(aktionen);
}

void Werkzeugleiste::BaueBefehle(const Aktionen& aktionen) {
    Knopfgruppe* gruppe = nullptr;
    for (std::size_t i = 0; i < kBefehle.size(); ++i) {
        const Befehl& b = kBefehle[i];
        if (b.HatMerkmal(kOhneKnopf | kBeimFeld)) continue;
        if (gruppe == nullptr) {
            gruppe = new Knopfgruppe(AusUtf8(b.hinweis) + QStringLiteral(" und mehr"), false, this);
            knoepfe_->addWidget(gruppe);
        }
        gruppe->NimmKnopf(NeuerKnopf(*aktionen.Befehle()[i], b.komponente, b.hinweis, gruppe));
        if (b.HatMerkmal(kGruppenende)) gruppe = nullptr;
    }
}

void Werkzeugleiste::BaueWerkzeuge(const Aktionen& aktionen) {
    auto* gruppe = new Knopfgruppe(QStringLiteral("Werkzeuge"), true, this);
    gruppe->setObjectName(QStringLiteral("WerkzeugRahmen"));
    for (std::size_t i = 0; i < kWerkzeuge.size(); ++i) {
        const Werkzeugzeile& w = kWerkzeuge[i];
        gruppe->NimmKnopf(NeuerKnopf(*aktionen.Werkzeuge()[i], w.komponente, w.hinweis, gruppe));
    }
    knoepfe_->addWidget(gruppe);
}

void Werkzeugleiste::NimmFelder(std::initializer_list<QWidget*> felder) {
    auto* gruppe = new QWidget(this);
    auto* zeile = new QHBoxLayout(gruppe);
    zeile->setContentsMargins(6, 0, 0, 0);
    zeile->setSpacing(2);
    for (QWidget* feld : felder)
        zeile->addWidget(feld);
    knoepfe_->addWidget(gruppe);
}

void Werkzeugleiste::BaueSchalter(const Aktionen& aktionen) {
    for (std::size_t i = 0; i < kSchalter.size(); ++i) {
        QAction* const aktion = aktionen.Schalterliste()[i];
        if (aktion != nullptr && !kSchalter[i].HatMerkmal(kNurImMenue))
            kaesten_->addWidget(NeuerSchaltkasten(*aktion, kSchalter[i], this));
    }
}

bool Werkzeugleiste::event(QEvent* ereignis) {
    const bool gehoert = QWidget::event(ereignis);
    if (ereignis->type() == QEvent::LayoutRequest) HalteHoehe();
    return gehoert;
}

void Werkzeugleiste::mousePressEvent(QMouseEvent* /*ereignis*/) {
    if (freieFlaeche) freieFlaeche();
}

void Werkzeugleiste::resizeEvent(QResizeEvent* ereignis) {
    QWidget::resizeEvent(ereignis);
    HalteHoehe();
}

/// The height that its rows take: in a narrow window they would lie on each other.
void Werkzeugleiste::HalteHoehe() {
    setMinimumHeight(layout()->totalHeightForWidth(width()));
}

}  // namespace zrw
