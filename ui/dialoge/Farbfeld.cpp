#include "ui/dialoge/Farbfeld.h"

#include <QPainter>

#include "ui/Umwandlung.h"

namespace zrw {

Farbfeld::Farbfeld(QWidget* eltern) : QAbstractButton(eltern) {
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    SetzeFarbe(farbe_);
}

void Farbfeld::SetzeFarbe(Farbe farbe) {
    farbe_ = farbe;
    setAccessibleDescription(AlsQColor(farbe).name());  // for whom the paint says nothing
    update();
}

QSize Farbfeld::sizeHint() const {
    const QFontMetrics m = fontMetrics();
    return {m.horizontalAdvance(QStringLiteral("00000000")), m.height() + m.height() / 3};
}

void Farbfeld::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const bool hervor = hasFocus() || isDown();
    const int rand = hervor ? 3 : 1;
    maler.fillRect(rect(), palette().color(hervor ? QPalette::Highlight : QPalette::WindowText));
    // Between frame and paint, or a frame would vanish on a paint like it.
    maler.fillRect(rect().adjusted(rand, rand, -rand, -rand), palette().color(QPalette::Base));
    const int innen = rand + 1;
    maler.fillRect(rect().adjusted(innen, innen, -innen, -innen), AlsQColor(farbe_));
}

}  // namespace zrw
