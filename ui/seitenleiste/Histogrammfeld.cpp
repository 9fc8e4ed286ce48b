#include "ui/seitenleiste/Histogrammfeld.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QToolTip>
#include <utility>

namespace zrw {

Histogrammfeld::Histogrammfeld(const char* name, const char* zugang, QWidget* eltern) : QWidget(eltern) {
    setObjectName(QString::fromLatin1(name));
    setAccessibleName(QString::fromUtf8(zugang));
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void Histogrammfeld::ZeigeBild(Statistikbild bild) {
    bild_ = std::move(bild);
    klasse_.reset();
    update();
}

void Histogrammfeld::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    maler.fillRect(rect(), palette().base());
    maler.setPen(palette().color(QPalette::Text));
    bild_.Zeichne(maler, rect(), klasse_);
    if (!hasFocus()) return;
    QStyleOptionFocusRect rahmen;
    rahmen.initFrom(this);
    rahmen.rect = rect().adjusted(1, 1, -1, -1);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &rahmen, &maler, this);
}

/// In its whole height: some bars are low.
std::optional<std::size_t> Histogrammfeld::KlasseBei(QPointF ort) const {
    for (std::size_t k = 0; k < bild_.histogramm.anzahlen.size(); ++k) {
        const QRectF balken = bild_.Balken(rect(), font(), k);
        if (ort.x() >= balken.left() && ort.x() < balken.right()) return k;
    }
    return std::nullopt;
}

void Histogrammfeld::WaehleKlasse(std::size_t klasse) {
    klasse_ = klasse;
    setAccessibleDescription(bild_.Klassensatz(klasse));
    update();
}

void Histogrammfeld::mousePressEvent(QMouseEvent* ereignis) {
    const auto klasse = KlasseBei(ereignis->position());
    if (!klasse) return;
    WaehleKlasse(*klasse);
    if (gewaehlt) gewaehlt(bild_, *klasse);
}

void Histogrammfeld::keyPressEvent(QKeyEvent* ereignis) {
    const std::size_t anzahl = bild_.histogramm.anzahlen.size();
    if (anzahl == 0) return QWidget::keyPressEvent(ereignis);
    switch (ereignis->key()) {
        case Qt::Key_Right:
            return WaehleKlasse(klasse_ ? std::min(*klasse_ + 1, anzahl - 1) : 0);
        case Qt::Key_Left:
            return WaehleKlasse(klasse_ && *klasse_ > 0 ? *klasse_ - 1 : 0);
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            if (klasse_ && gewaehlt) gewaehlt(bild_, *klasse_);
            return;
        default:
            QWidget::keyPressEvent(ereignis);
    }
}

bool Histogrammfeld::event(QEvent* ereignis) {
    if (ereignis->type() != QEvent::ToolTip) return QWidget::event(ereignis);
    const auto* hilfe = static_cast<QHelpEvent*>(ereignis);
    const auto klasse = KlasseBei(hilfe->pos());
    QToolTip::showText(hilfe->globalPos(), klasse ? bild_.Klassensatz(*klasse) : QString(), this);
    return true;
}

}  // namespace zrw
