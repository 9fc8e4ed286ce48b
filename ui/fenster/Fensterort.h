// Puts a window that stays open beside the picture's middle, where it would hide what is worked on: at the
// right edge of its owner, when it is first shown. Later it is where the user left it.
#pragma once

#include <QEvent>
#include <QObject>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace zrw {

enum class Rand : std::uint8_t { RechtsOben, RechtsUnten };

class Fensterort final : public QObject {
  public:
    Fensterort(QWidget& fenster, Rand rand) : QObject(&fenster), rand_(rand) {
        fenster.installEventFilter(this);
    }

    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override {
        if (ereignis->type() != QEvent::Show || ereignis->spontaneous()) return false;
        auto* fenster = static_cast<QWidget*>(empfaenger);
        fenster->removeEventFilter(this);
        if (fenster->testAttribute(Qt::WA_Moved) || fenster->parentWidget() == nullptr) return false;
        constexpr int kAbstand = 24;
        constexpr int kTitelleiste = 32;
        const QRect schirm = fenster->parentWidget()->screen()->availableGeometry();
        const QSize groesse = fenster->size().boundedTo(schirm.size() - QSize(kAbstand, 2 * kTitelleiste));
        // Below the tool panel, which is about a sixth of a small window.
        const QRect eltern = fenster->parentWidget()->window()->geometry();
        const int y = rand_ == Rand::RechtsOben ? eltern.top() + eltern.height() / 6 + kTitelleiste
                                                : eltern.bottom() - groesse.height() - kAbstand;
        const QPoint ort(std::min(eltern.right(), schirm.right()) - groesse.width() - kAbstand,
                         std::min(y, schirm.bottom() - groesse.height() - kTitelleiste));
        fenster->resize(groesse);
        fenster->move(std::max(ort.x(), schirm.left()), std::max(ort.y(), schirm.top() + kTitelleiste));
        return false;
    }

  private:
    Rand rand_;
};

}  // namespace zrw
