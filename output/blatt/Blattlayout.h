// Where everything lies on a sheet with a frame: measures of paper, as dots of a surface. Draws nothing.
#pragma once

#include <cstdint>

#include "output/Druck.h"
#include "output/Rechteck.h"

namespace zrw {

/// Lengths on paper in tenths of a millimetre.
class Papiermass {
  public:
    explicit Papiermass(double aufloesung) : jeZehntel_(aufloesung / kMillimeterJeZoll / 10) {}
    [[nodiscard]] std::int32_t Dots(int zehntel) const;
    [[nodiscard]] int Zehntel(std::int32_t dots) const { return static_cast<int>(dots / jeZehntel_); }

  private:
    double jeZehntel_;
};

/// All within the printable area, from its top-left corner [dots].
struct Blattlayout {
    Rechteck rand;         ///< border round everything
    Rechteck planflaeche;  ///< within the neat line
    Rechteck uebersicht;   ///< of all sheets
    Rechteck zeichenfeld;  ///< north arrow and scale bar
    Rechteck schriftfeld;  ///< title block

    /// @param seite printable area; on one too small for a frame the rectangles keep at least a dot
    [[nodiscard]] static Blattlayout FuerSeite(const Druckseite& seite);
};

}  // namespace zrw
