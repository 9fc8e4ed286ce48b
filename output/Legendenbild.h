// The look of the legend: a frame with title, description, scale and a key of the four point kinds. On screen
// and paper only, never in an export.
#pragma once

#include "model/Einstellungen.h"
#include "model/Figuren.h"
#include "model/Zeichner.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

class Legendenbild {
  public:
    Legendenbild(Zeichenflaeche& flaeche, const Einstellungen& einstellungen)
        : flaeche_(flaeche), einstellungen_(einstellungen) {}

    /// Draws the legend, or wipes it with the same shapes in white. Its position is within the drawable
    /// range.
    void Zeichne(const Legende& legende, Gang gang) const;

    /// Width of the frame beside the legend's position [dots].
    [[nodiscard]] std::int32_t Breite(const Legende& legende) const;

  private:
    Zeichenflaeche& flaeche_;
    const Einstellungen& einstellungen_;
};

}  // namespace zrw
