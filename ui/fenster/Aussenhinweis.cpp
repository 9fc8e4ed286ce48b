#include "ui/fenster/Aussenhinweis.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <algorithm>

namespace zrw {

Aussenhinweis::Aussenhinweis(QWidget* bild) : QFrame(bild), text_(new QLabel(this)) {
    setObjectName(QStringLiteral("AussenHinweis"));
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    auto* knopf = new QToolButton(this);
    knopf->setObjectName(QStringLiteral("AussenhinweisEinpassen"));
    knopf->setText(QStringLiteral("Einpassen (F)"));
    knopf->setToolTip(QStringLiteral("Sichtbare Punkte einpassen"));
    auto* weg = new QToolButton(this);
    weg->setObjectName(QStringLiteral("AussenhinweisSchliessen"));
    weg->setText(QStringLiteral("×"));
    weg->setAutoRaise(true);
    weg->setToolTip(QStringLiteral("Hinweis schließen"));
    weg->setAccessibleName(weg->toolTip());
    auto* zeile = new QHBoxLayout(this);
    zeile->setContentsMargins(8, 2, 2, 2);
    zeile->addWidget(text_);
    zeile->addWidget(knopf);
    zeile->addWidget(weg);
    for (QToolButton* k : {knopf, weg})
        k->setFocusPolicy(Qt::TabFocus);
    connect(knopf, &QToolButton::clicked, this, [this] {
        if (einpassen) einpassen();
    });
    connect(weg, &QToolButton::clicked, this, &QWidget::hide);
    setCursor(Qt::ArrowCursor);
    bild->installEventFilter(this);
    hide();
}

void Aussenhinweis::ZeigeAnzahl(const Planbild::Punktzahl& zahl) {
    if (zahl.draussen == 0) return hide();
    text_->setText(zahl.gezeigt == 1
                       ? QStringLiteral("Der einzige Punkt liegt außerhalb des Bildes.")
                       : QStringLiteral("%1 von %2 Punkten %3 außerhalb des Bildes.")
                             .arg(zahl.draussen)
                             .arg(zahl.gezeigt)
                             .arg(zahl.draussen == 1 ? QStringLiteral("liegt") : QStringLiteral("liegen")));
    StelleAuf();
    show();
}

/// In the middle, a little below the edge.
void Aussenhinweis::StelleAuf() {
    constexpr int kAbstand = 6;
    const QWidget& bild = *parentWidget();
    resize(std::min(sizeHint().width(), bild.width()), sizeHint().height());
    move((bild.width() - width()) / 2, kAbstand);
}

bool Aussenhinweis::eventFilter(QObject* empfaenger, QEvent* ereignis) {
    if (ereignis->type() == QEvent::Resize && isVisible()) StelleAuf();
    return QFrame::eventFilter(empfaenger, ereignis);
}

}  // namespace zrw
