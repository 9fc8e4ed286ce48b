#include "ui/dialoge/Kurzzeile.h"

#include <QPainter>
#include <QStyle>
#include <QTextDocument>

namespace zrw {

Kurzzeile::Kurzzeile(const QString& name, const QString& aufgabe, QWidget* eltern)
    : QLabel(eltern), aufgabe_(aufgabe) {
    setObjectName(name);
    setTextFormat(Qt::PlainText);
    ZeigeText({});
}

void Kurzzeile::ZeigeText(const QString& text) {
    if (text == this->text() && !toolTip().isEmpty()) return;
    setText(text);
    setAccessibleName(text.isEmpty() ? aufgabe_ : aufgabe_ + QStringLiteral(": ") + text);
    const QString hinweis = text.isEmpty() ? aufgabe_ : text;
    setToolTip(Qt::mightBeRichText(hinweis) ? hinweis.toHtmlEscaped() : hinweis);
}

/// Room for a few letters: the layout gives what the widgets above and below need.
QSize Kurzzeile::sizeHint() const {
    constexpr int kZeichen = 6;
    return {fontMetrics().averageCharWidth() * kZeichen, fontMetrics().height()};
}

void Kurzzeile::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    const QRect r = contentsRect();
    style()->drawItemText(&maler, r, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), palette(),
                          isEnabled(), fontMetrics().elidedText(text(), Qt::ElideMiddle, r.width()),
                          foregroundRole());
}

}  // namespace zrw
