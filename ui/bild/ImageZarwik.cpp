#include "ui/bild/ImageZarwik.h"

#include <QAccessible>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <utility>

#include "ui/bild/Bildzugang.h"

namespace zrw {
namespace {

/// One step of a mouse wheel in the units that Qt reports.
constexpr int kRadschritt = 120;

Bildpunkt Mausort(const QSinglePointEvent& e) {
    const QPoint p = e.position().toPoint();
    return {p.x(), p.y()};
}

}  // namespace

ImageZarwik::ImageZarwik(Bildflaeche& flaeche, Bildempfaenger& empfaenger, QWidget* eltern)
    : QWidget(eltern), flaeche_(flaeche), empfaenger_(empfaenger) {
    Bildzugang::MeldeAn();
    setObjectName(QStringLiteral("ImageZarwik"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    // Smaller pictures leave no room beside the margin that fitting keeps.
    setMinimumSize(200, 150);
    setAccessibleName(QStringLiteral("Netzbild"));
}

void ImageZarwik::SetzeVorschau(std::function<void(Zeichenflaeche&)> vorschau) {
    if (!vorschau_ && !vorschau) return;
    vorschau_ = std::move(vorschau);
    update();
}

void ImageZarwik::SetzeGlatt(bool glatt) {
    glatt_ = glatt;
    update();
}

void ImageZarwik::SetzeVerschiebung(Bildpunkt versatz) {
    versatz_ = QPoint(static_cast<int>(versatz.x), static_cast<int>(versatz.y));
    update();
}

void ImageZarwik::SetzeFigurtext(const QString& text) {
    if (std::exchange(figurtext_, text) == text) return;
    QAccessibleValueChangeEvent wert(this, text);
    QAccessible::updateAccessibility(&wert);
    QAccessibleEvent beschreibung(this, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&beschreibung);
}

void ImageZarwik::paintEvent(QPaintEvent* /*ereignis*/) {
    QPainter maler(this);
    if (!versatz_.isNull()) maler.fillRect(rect(), Qt::white);
    // The same rows in a picture that knows its density: setting that in the kept one would copy it.
    const QImage& bild = flaeche_.Bild();
    QImage dort(const_cast<uchar*>(bild.constBits()),  // NOLINT: read only
                bild.width(), bild.height(), bild.bytesPerLine(), bild.format());
    dort.setDevicePixelRatio(flaeche_.Dichte());
    maler.drawImage(versatz_, dort);
    if (flaeche_.Dichte() != devicePixelRatioF()) {
        // The window has come to another screen.
        QTimer::singleShot(0, this, [this] { MeldeGroesse(); });
    }
    if (hof_ && versatz_.isNull()) hof_(maler);
    Malerflaeche flaeche(maler, {0, 0, width() - 1, height() - 1},
                         Bildschrift(flaeche_.Planschrift(), 1.0, glatt_));
    flaeche.SetzeGlatt(glatt_);
    if (ueberlagerung_) ueberlagerung_(flaeche);
    if (vorschau_ && versatz_.isNull()) vorschau_(flaeche);
}

void ImageZarwik::resizeEvent(QResizeEvent* /*ereignis*/) {
    MeldeGroesse();
}

void ImageZarwik::MeldeGroesse() {
    empfaenger_.ImageZarwikResize(width(), height(), devicePixelRatioF());
}

void ImageZarwik::mousePressEvent(QMouseEvent* ereignis) {
    empfaenger_.ImageZarwikMouseDown(Mausort(*ereignis), ereignis->button());
}

void ImageZarwik::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    empfaenger_.ImageZarwikDoubleClick(Mausort(*ereignis), ereignis->button());
}

void ImageZarwik::leaveEvent(QEvent* ereignis) {
    empfaenger_.ImageZarwikMouseLeave();
    QWidget::leaveEvent(ereignis);
}

void ImageZarwik::mouseMoveEvent(QMouseEvent* ereignis) {
    empfaenger_.ImageZarwikMouseMove(Mausort(*ereignis));
}

void ImageZarwik::mouseReleaseEvent(QMouseEvent* ereignis) {
    empfaenger_.ImageZarwikMouseUp(Mausort(*ereignis), ereignis->button());
}

void ImageZarwik::wheelEvent(QWheelEvent* ereignis) {
    radrest_ += ereignis->angleDelta().y();
    const int schritte = radrest_ / kRadschritt;
    radrest_ -= schritte * kRadschritt;
    if (schritte != 0) empfaenger_.ImageZarwikWheel(Mausort(*ereignis), schritte);
    ereignis->accept();
}

}  // namespace zrw
