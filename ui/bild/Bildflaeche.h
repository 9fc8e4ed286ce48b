// The screen picture as a drawing surface: a kept image that the window copies and the batch mode writes.
#pragma once

#include <QImage>

#include "ui/bild/Pixelflaeche.h"

namespace zrw {

class Bildflaeche final : public Pixelflaeche {
  public:
    Bildflaeche(int weite, int hoehe);

    /// The picture as it stands.
    [[nodiscard]] const QImage& Bild() const { return bild_; }
    /// Moves what is drawn; the border that it comes from keeps its old pixels.
    void VerschiebeBild(int dx, int dy) { Pixel().VerschiebeBild(dx, dy); }
    /// A new white picture.
    void SetzeGroesse(int weite, int hoehe);

  private:
    QImage bild_;
    QPainter maler_;
};

}  // namespace zrw
