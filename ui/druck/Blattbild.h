// The overview of the sheets: tells where it is clicked, and how far it is dragged.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <functional>

namespace zrw {

class Blattbild final : public QLabel {
  public:
    using QLabel::QLabel;
    std::function<void(QPoint ort)> geklickt;
    std::function<void(QPoint weg)> gezogen;

  protected:
    void mousePressEvent(QMouseEvent* e) override { anfang_ = e->position().toPoint(); }
    void mouseReleaseEvent(QMouseEvent* e) override {
        const QPoint weg = e->position().toPoint() - anfang_;
        if (weg.manhattanLength() < QApplication::startDragDistance()) {
            if (geklickt) geklickt(anfang_);
        } else if (gezogen) {
            gezogen(weg);
        }
    }

  private:
    QPoint anfang_;
};

}  // namespace zrw
