// The adjustment's results over the network: residuals as lines, accuracies as ellipses and bars, those of
// one point against another at the middle of their line, and the bar that tells how long a residual is drawn.
// On screen and paper only, never in an export. Pens have the widths 1 and 2 on every surface: printers widen
// all pens of the plot alike.
#pragma once

#include <cstdint>
#include <optional>
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
    /// @param art  dashes are left out sides: a pen would begin anew at each of them
    void DrawEllipse(Gon phi, double a, double b, double x0, double y0,
                     Strichart art = Strichart::Voll) const;

    /// Fills an ellipse with what lies below shining through.
    void FuelleEllipse(Gon phi, double a, double b, double x0, double y0, Farbe farbe) const;
    /// Draws a residual, with a head where that was chosen. @param art of its shaft
    void ZeichneVektor(Bildpunkt von, Bildpunkt nach, Farbe farbe, Strichart art = Strichart::Voll) const;

    /// Draws the scale bar into the bottom-left corner if an overlay is on. It stands for five times 1, 2 or
    /// 5 * 10^n cm of residual, long enough to measure with. None where the magnification is no positive
    /// number and in pictures that are too low. Where something is drawn in another than the usual way it
    /// says what it is for, and ellipses with a magnification of their own have a bar of their own above it.
    void DrawResMasstab() const;

  private:
    static constexpr int kTeile = 5;  ///< of the scale bar

    /// An ellipse that can be drawn.
    struct Ellipsenform;

    void Strich(Bildpunkt von, Bildpunkt nach) const;
    void SetzeStift(Farbe farbe, std::int32_t breite) const;
    [[nodiscard]] std::optional<Ellipsenform> Form(Gon phi, double a, double b, double x0, double y0) const;
    void FuelleEllipsen(const Punktergebnisse& ergebnisse) const;
    void ZeichneRelative(const Punktergebnisse& ergebnisse, bool gefuellt) const;
    void Punktbild(Bildpunkt ort, const Punktergebnis& e) const;
    void Fehlerellipse(Bildpunkt ort, const Punktergebnis& e) const;
    void Vergleichsvektor(Bildpunkt ort, const Punktergebnis& e, const Vergleichslage& lage) const;
    void ZeichneBalken(const std::string& titel, double vergroesserung, std::int64_t hoeher) const;
    void Hoehengenauigkeit(Bildpunkt ort, double mH) const;

    Zeichenflaeche& flaeche_;
    const Einstellungen& einstellungen_;
    const Bildvorlage& v_;
    double geraetefaktor_;  ///< dots per screen pixel [-]
    double f_;              ///< dots per unit of the results [1/mm]
    double ellipsen_;       ///< the same of the axes of ellipses
};

}  // namespace zrw
