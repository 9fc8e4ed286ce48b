// The look of the legend: a frame with title, description, scale and a key of the four point kinds. On screen
// and paper only, never in an export.
#pragma once

#include <cstdint>

#include "model/Einstellungen.h"
#include "model/Figuren.h"
#include "model/Zeichner.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

class Legendenbild {
  public:
    /// @param geraetefaktor device dots per screen pixel [-], for the fixed measures of the frame
    Legendenbild(Zeichenflaeche& flaeche, const Einstellungen& einstellungen, double geraetefaktor = 1.0)
        : flaeche_(flaeche), einstellungen_(einstellungen), geraetefaktor_(geraetefaktor) {}

    /// Draws the legend, or wipes it with the same shapes in white. Its position is within the drawable
    /// range.
    void ZeichneLegende(const Legende& legende, Gang gang) const;

    /// Width of the frame beside the legend's position [dots].
    [[nodiscard]] std::int32_t Breite(const Legende& legende) const;

  private:
    [[nodiscard]] std::int32_t Dots(double pixel) const;

    Zeichenflaeche& flaeche_;
    const Einstellungen& einstellungen_;
    double geraetefaktor_;
};

}  // namespace zrw
