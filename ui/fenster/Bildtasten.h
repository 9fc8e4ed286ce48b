// The keys of the picture while it has the keyboard: Ctrl and an arrow go to the next point, Enter clicks on
// it or takes it into the hand, arrows then move it. Other arrows stay with the window, Tab leaves the
// picture.
#pragma once

#include <QObject>
#include <functional>

#include "ui/werkzeuge/Punktgang.h"

class QKeyEvent;

namespace zrw {

class Bildtasten final : public QObject {
  public:
    /// Both must outlive it.
    Bildtasten(QWidget& bild, Punktgang& gang);

    /// The menu key or Shift+F10 was pressed with the focus on a point there, or without one.
    std::function<void(std::optional<Bildpunkt> ort)> kontextmenue;

    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  private:
    bool HoertTaste(const QKeyEvent& taste);
    bool OeffneKontextmenue();

    Punktgang& gang_;
};

}  // namespace zrw
