// A button that is painted in the colour it stands for.
#pragma once

#include <QAbstractButton>

#include "model/Werte.h"

namespace zrw {

class Farbfeld final : public QAbstractButton {
  public:
    explicit Farbfeld(QWidget* eltern);

    void SetzeFarbe(Farbe farbe);
    [[nodiscard]] Farbe Wert() const { return farbe_; }
    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* ereignis) override;

  private:
    Farbe farbe_;
};

}  // namespace zrw
