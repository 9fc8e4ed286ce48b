// The output area: the sheet of the print as a frame in the picture. It begins in the picture's top-left
// corner and stays at its place in the world once it has been dragged.
#pragma once

#include <optional>

#include "model/FigListe.h"
#include "output/Druck.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

class Druckrahmen {
  public:
    /// Scale and sheet that it stands for, and whether it is shown; none: it is not.
    struct Stand {
        double massstab = 0;
        Druckseite seite;
    };

    void SetzeStand(const std::optional<Stand>& stand) { stand_ = stand; }
    /// World position of the sheet's corner; none: that of the picture.
    [[nodiscard]] const std::optional<Welt>& Ecke() const { return ecke_; }
    void VerlegeEcke(Welt ecke) { ecke_ = ecke; }
    void LoeseEcke() { ecke_.reset(); }

    [[nodiscard]] Welt Ecke(const Liste& liste) const { return ecke_ ? *ecke_ : liste.BildinWelt({}); }
    /// Whether the mouse catches one of its edges.
    [[nodiscard]] bool Gefangen(const Liste& liste, Bildpunkt ort) const;
    void ZeichneRahmen(const Liste& liste, Zeichenflaeche& flaeche, Farbe farbe) const;

  private:
    /// Top-left and bottom-right corner in the picture.
    [[nodiscard]] std::pair<Bildpunkt, Bildpunkt> Ecken(const Liste& liste) const;

    std::optional<Stand> stand_;
    std::optional<Welt> ecke_;
};

}  // namespace zrw
