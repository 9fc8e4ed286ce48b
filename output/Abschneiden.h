// From 64-bit picture positions to a 32-bit surface: what cannot be seen is left out, and lines whose ends
// lie far outside are cut so that they still cross the picture in the right place.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>

#include "output/Zeichenflaeche.h"

namespace zrw {

/// The piece of a line that may touch the visible rectangle. A line with both ends within a generous distance
/// comes back as it is: the surface then sets the same dots whatever part of it is visible.
[[nodiscard]] std::optional<std::pair<Flaechenpunkt, Flaechenpunkt>> Abschneiden(Bildpunkt a, Bildpunkt b,
                                                                                 const Rechteck& sichtbar);

/// Whether a shape reaching `rand` dots round a position can touch the visible rectangle.
[[nodiscard]] bool InReichweite(Bildpunkt ort, std::int64_t rand, const Rechteck& sichtbar);

/// Only for positions that are `InReichweite` or cut.
[[nodiscard]] inline Flaechenpunkt Aufflaeche(Bildpunkt b) {
    return {static_cast<std::int32_t>(b.x), static_cast<std::int32_t>(b.y)};
}

}  // namespace zrw
