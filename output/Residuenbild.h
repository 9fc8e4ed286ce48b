// The adjustment's results over the network: residuals as lines, accuracies as ellipses and bars, and the bar
// that tells how long a residual is drawn. On screen and paper only, never in an export. Pens have the widths
// 1 and 2 on every surface: printers widen all pens of the plot alike.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "geo/Winkel.h"
#include "model/Bildvorlage.h"
#include "model/Einstellungen.h"
#include "model/Punktergebnisse.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeichenzustand.h"

namespace zrw {

/// What the user should know of a residual scale, UTF-8; empty for a usual one.
[[nodiscard]] std::string Massstabhinweis(double resMF);

class Residuenbild {
  public:
    /// @param zustand its surface must be there
    Residuenbild(const Zeichenzustand& zustand, const Einstellungen& einstellungen, const Bildvorlage& v);

    /// Draws the overlays that are switched on for every point that is shown and has results. Figures with a
    /// value that is no finite number are left out. Asks nothing as long as all overlays are off.
    void ZeichnePunktRes(Punktergebnisse& ergebnisse) const;

    /// Draws an ellipse as a polygon with the current pen; the last of its lines may pass the full turn.
    /// @param phi  rotation of the first axis from the right, counter-clockwise [gon]
    /// @param a,b  semi-axes [dots], any number
    /// @param x0,y0  centre [dots]
    void DrawEllipse(Gon phi, double a, double b, double x0, double y0) const;

    /// Draws the scale bar into the bottom-left corner if an overlay is on. It stands for five times 1, 2 or
    /// 5 * 10^n cm of residual, long enough to measure with. None where the magnification is no positive
    /// number and in pictures that are too low.
    void DrawResMasstab() const;

  private:
    static constexpr int kTeile = 5;  ///< of the scale bar

    void Strich(Bildpunkt von, Bildpunkt nach) const;
    void Punktbild(Bildpunkt ort, const Punktergebnis& e) const;
    void Hoehengenauigkeit(Bildpunkt ort, double mH) const;

    Zeichenflaeche& flaeche_;
    const Einstellungen& einstellungen_;
    const Bildvorlage& v_;
    double geraetefaktor_;  ///< dots per screen pixel [-]
    double f_;              ///< dots per unit of the results [1/mm]
};

}  // namespace zrw
