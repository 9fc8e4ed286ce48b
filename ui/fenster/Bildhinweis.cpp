#include "ui/fenster/Bildhinweis.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

namespace zrw {

Bildhinweis::Bildhinweis(QWidget* bild, const Namen& namen, const QString& knopf, const QString& knopfhinweis)
    : QFrame(bild), text_(new QLabel(this)), knopf_(new QToolButton(this)) {
    setObjectName(namen.leiste);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    text_->setTextFormat(Qt::PlainText);
    knopf_->setObjectName(namen.knopf);
    knopf_->setText(knopf);
    knopf_->setToolTip(knopfhinweis);
    auto* weg = new QToolButton(this);
    weg->setObjectName(namen.schliessen);
    weg->setText(QStringLiteral("×"));
    weg->setAutoRaise(true);
    weg->setToolTip(QStringLiteral("Hinweis schließen"));
    weg->setAccessibleName(weg->toolTip());
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(8, 2, 2, 2);
    zeile->addWidget(text_);
    zeile->addWidget(knopf_);
    zeile->addWidget(weg);
    for (QToolButton* k : {knopf_, weg})
        k->setFocusPolicy(Qt::TabFocus);
    connect(knopf_, &QToolButton::clicked, this, [this] {
        if (gedrueckt_) gedrueckt_();
    });
    connect(weg, &QToolButton::clicked, this, &QWidget::hide);
    setCursor(Qt::ArrowCursor);
    bild->installEventFilter(this);
    hide();
}

void Bildhinweis::ZeigeText(const QString& text) {
    text_->setText(text);
    show();
    StelleAlleAuf();
}

void Bildhinweis::ZeigeKnopf(bool sichtbar) {
    knopf_->setVisible(sichtbar);
}

/// In the middle, a little below the edge, each below those that came before it.
void Bildhinweis::StelleAlleAuf() const {
    constexpr int kAbstand = 6;
    const QWidget& bild = *parentWidget();
    int y = kAbstand;
    for (QObject* teil : bild.children()) {
        auto* hinweis = dynamic_cast<Bildhinweis*>(teil);
        if (hinweis == nullptr || hinweis->isHidden()) continue;
        hinweis->resize(std::min(hinweis->sizeHint().width(), bild.width()), hinweis->sizeHint().height());
        hinweis->move((bild.width() - hinweis->width()) / 2, y);
        y += hinweis->height() + kAbstand;
    }
}

void Bildhinweis::showEvent(QShowEvent* ereignis) {
    QFrame::showEvent(ereignis);
    StelleAlleAuf();
}

void Bildhinweis::hideEvent(QHideEvent* ereignis) {
    QFrame::hideEvent(ereignis);
    StelleAlleAuf();
}

bool Bildhinweis::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize && isVisible()) StelleAlleAuf();
    return QFrame::eventFilter(empfaenger, ereignis);
}

}  // namespace zrw
