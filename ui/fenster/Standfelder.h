// The fields at the right end of the status bar: true scale on this screen, numbers of points and lines,
// hidden points.
#pragma once

#include <QWidget>
#include <cstddef>

#include "model/FigListe.h"
#include "model/Netzangaben.h"

class QLabel;

namespace zrw {

/// What a length on the screen is in the world. @param faktor [m/px] @param punkteJeZoll logical pixels per
/// inch of the screen's real size @return N of 1:N, with three digits that count; 0 where there is none
[[nodiscard]] double WahrerMassstab(double faktor, double punkteJeZoll);

class Standfelder final : public QWidget {
  public:
    explicit Standfelder(QWidget* eltern);

    /// The view is another.
    void ZeigeMassstab(const Ansicht& ansicht, const Netzangaben& netz);
    /// Figures have come or gone, or are hidden or shown.
    void ZeigeZahlen(const Liste& liste);

  private:
    QLabel* massstab_;
    QLabel* zahlen_;
    QLabel* versteckte_;
};

}  // namespace zrw
