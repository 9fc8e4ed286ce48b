// Kilometre lines as paper has them: thin, light, from edge to edge, numbered at each edge, and only every so
// many kilometres where they would stand close together.
#pragma once

#include "model/Ansicht.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

inline constexpr double kGitterstrich = 0.1;  ///< width of grid lines on paper [mm]

/// A colour as thin lines behind a plan have it.
[[nodiscard]] constexpr Farbe Aufgehellt(Farbe f) {
    std::uint32_t hell = 0;
    for (const unsigned schub : {0U, 8U, 16U})
        hell |= (255U + (f.wert >> schub & 0xFFU)) / 2U << schub;
    return Farbe{hell};
}

/// Draws them onto what can be seen of the surface. @param dichte its dots per pixel of the screen
void ZeichneKilometerlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, Farbe farbe, double dichte);

}  // namespace zrw
