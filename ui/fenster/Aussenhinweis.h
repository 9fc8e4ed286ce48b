// A quiet bar over the picture that says how many points lie outside it, and offers to fit them in.
#pragma once

#include <QFrame>
#include <functional>

#include "ui/bild/Planbild.h"

class QLabel;

namespace zrw {

class Aussenhinweis final : public QFrame {
  public:
    /// @param bild which it lies over, at the top
    explicit Aussenhinweis(QWidget* bild);

    /// Goes where all points are inside.
    void ZeigeAnzahl(const Planbild::Punktzahl& zahl);
    std::function<void()> einpassen;

    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  private:
    void StelleAuf();

    QLabel* text_;
};

}  // namespace zrw
