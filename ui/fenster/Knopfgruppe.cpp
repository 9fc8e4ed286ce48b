#include "ui/fenster/Knopfgruppe.h"

#include <QAction>
#include <QMenu>
#include <QPainter>
#include <QToolButton>
#include <algorithm>

namespace zrw {
namespace {

constexpr int kKnopfabstand = 2;  ///< between buttons [px]
constexpr int kGruppenrand = 2;   ///< round all of them [px]
constexpr int kStrich = 6;        ///< place of the line behind a group without a frame [px]

}  // namespace

Knopfgruppe::Knopfgruppe(const QString& name, bool gerahmt, QWidget* eltern)
    : QFrame(eltern), mehr_(new QToolButton(this)), rest_(new QMenu(this)), gerahmt_(gerahmt) {
    if (gerahmt) setFrameShape(QFrame::StyledPanel);
    mehr_->setObjectName(QStringLiteral("MehrKnoepfe"));
    mehr_->setText(QStringLiteral("»"));
    mehr_->setAutoRaise(true);
    mehr_->setFocusPolicy(Qt::TabFocus);
    mehr_->setPopupMode(QToolButton::InstantPopup);
    mehr_->setToolTip(QStringLiteral("Weitere Knöpfe: ") + name);
    mehr_->setAccessibleName(mehr_->toolTip());
    mehr_->hide();
}

void Knopfgruppe::NimmKnopf(QToolButton* knopf) {
    knopf->setParent(this);
    setTabOrder(knopf, mehr_);
    knoepfe_.push_back(knopf);
    updateGeometry();
}

QSize Knopfgruppe::Platz(std::size_t anzahl, bool mitRest) const {
    QSize platz(0, 0);
    for (std::size_t i = 0; i < anzahl; ++i) {
        const QSize knopf = knoepfe_[i]->sizeHint();
        platz = {platz.width() + knopf.width() + kKnopfabstand, std::max(platz.height(), knopf.height())};
    }
    if (mitRest) platz.rwidth() += mehr_->sizeHint().width() + kKnopfabstand;
    return platz + QSize(2 * kGruppenrand - kKnopfabstand + (gerahmt_ ? 0 : kStrich), 2 * kGruppenrand);
}

void Knopfgruppe::resizeEvent(QResizeEvent* ereignis) {
    QFrame::resizeEvent(ereignis);
    std::size_t anzahl = knoepfe_.size();
    const auto passt = [this](const QSize& platz) { return platz.width() <= width(); };
    if (!passt(Platz(anzahl, false))) {
        while (anzahl > 1 && !passt(Platz(anzahl, true)))
            --anzahl;
    }
    int x = kGruppenrand;
    rest_->clear();
    for (std::size_t i = 0; i < knoepfe_.size(); ++i) {
        QToolButton& knopf = *knoepfe_[i];
        knopf.setVisible(i < anzahl);
        if (i < anzahl) {
            const QSize groesse = knopf.sizeHint();
            knopf.setGeometry({{x, (height() - groesse.height()) / 2}, groesse});
            x += groesse.width() + kKnopfabstand;
        } else {
            rest_->addAction(knopf.defaultAction());
        }
    }
    mehr_->setMenu(rest_->isEmpty() ? nullptr : rest_);
    mehr_->setVisible(!rest_->isEmpty());
    mehr_->setGeometry(x, kGruppenrand, mehr_->sizeHint().width(), height() - 2 * kGruppenrand);
}

void Knopfgruppe::paintEvent(QPaintEvent* ereignis) {
    QFrame::paintEvent(ereignis);
    if (gerahmt_) return;
    QPainter maler(this);
    maler.setPen(palette().color(QPalette::Mid));
    const int x = width() - kStrich / 2;
    maler.drawLine(x, 2 * kGruppenrand, x, height() - 2 * kGruppenrand);
}

}  // namespace zrw
