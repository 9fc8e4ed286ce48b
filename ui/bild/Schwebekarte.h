// The card beside the mouse: what is known about the figure under it, once the mouse has rested there.
#pragma once

#include <QLabel>
#include <QTimer>
#include <functional>

#include "model/Werte.h"

namespace zrw {

class Schwebekarte final : public QLabel {
  public:
    /// @param bild the picture that it lies over
    explicit Schwebekarte(QWidget* bild);

    /// Text for a place of the picture, empty where there is nothing to say. Asked for when the mouse rests.
    std::function<QString(Bildpunkt)> text;
    /// The mouse is here, with no button down and no tool on.
    void FolgeMaus(Bildpunkt ort);
    /// Something else happens, or the mouse has left.
    void VerbirgKarte();

  private:
    void ZeigeKarte();

    QTimer ruhe_;
    Bildpunkt ort_;
};

}  // namespace zrw
