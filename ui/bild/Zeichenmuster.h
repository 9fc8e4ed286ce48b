// Small pictures of a point or a line as the plan shows it, drawn by the routines that draw the plan.
#pragma once

#include <QImage>
#include <QSize>

#include "model/Figuren.h"
#include "output/Figurenzeichner.h"
#include "ui/Programm.h"
#include "ui/bild/Bildflaeche.h"

namespace zrw {

class Zeichenmuster {
  public:
    /// @param groesse of the pictures [px] @param dichte pixels of the screen for each of them
    Zeichenmuster(const Programm& programm, QSize groesse, double dichte, bool glatt);

    /// The point in the middle.
    [[nodiscard]] QImage MalePunkt(const Punkt& punkt);
    /// The line from left to right.
    [[nodiscard]] QImage MaleKante(const Kante& kante);

  private:
    template <class Malen>
    QImage MaleFigur(Malen malen);
    [[nodiscard]] Bildpunkt InPunkten(double x, double y) const;

    QSize groesse_;
    double dichte_;
    Bildflaeche flaeche_{1, 1};
    Zeichenzustand zustand_;
    Einstellungen groessen_;
    Figurenzeichner zeichner_;
};

}  // namespace zrw
