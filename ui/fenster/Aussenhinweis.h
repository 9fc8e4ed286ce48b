// Says how many points lie outside the picture, and offers to fit them in.
#pragma once

#include <functional>

#include "ui/bild/Planbild.h"
#include "ui/fenster/Bildhinweis.h"

namespace zrw {

class Aussenhinweis final : public Bildhinweis {
  public:
    explicit Aussenhinweis(QWidget* bild);

    /// Goes where all points are inside.
    void ZeigeAnzahl(const Planbild::Punktzahl& zahl);
    std::function<void()> einpassen;
};

}  // namespace zrw
