// Says at the top of the picture what the tables of the open network say about gross errors, until it is
// closed, and offers to show the next one.
#pragma once

#include <functional>

#include "model/ergebnisse/Beobachtungsliste.h"
#include "ui/fenster/Bildhinweis.h"

namespace zrw {

class Fehlerhinweis final : public Bildhinweis {
  public:
    explicit Fehlerhinweis(QWidget* bild);

    /// What was read with the network, said behind it from now on.
    void SetzeLesung(const QString& text) { lesung_ = text; }
    /// Goes where there are no tables.
    void ZeigeStand(const Beobachtungsliste& liste);
    std::function<void()> zeige;

  private:
    QString lesung_;
};

}  // namespace zrw
