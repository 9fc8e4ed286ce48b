// The one table of the network types: how each gives its coordinates, and what follows for drawing.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

#include "model/Aufzaehltafel.h"

namespace zrw {

/// Layout of the coordinates in a point line.
enum class Koordinaten : std::uint8_t { Keine, Gitter, Winkel, Kartesisch };

struct Netzart {
    std::int32_t typ;
    Koordinaten koordinaten;
    bool mitGPS;           ///< its GPS vectors belong to the plot
    bool gaussKrueger;     ///< points are projected while they are read, whatever the mode says
    bool mitKartengitter;  ///< has map sheets and kilometre squares: its coordinates lie in their grid
};
inline constexpr auto kNetzarten = std::to_array<Netzart>({
    {1, Koordinaten::Gitter, false, false, false},
    {2, Koordinaten::Gitter, false, false, true},
    {3, Koordinaten::Gitter, true, false, true},
    {4, Koordinaten::Winkel, false, false, true},
    {6, Koordinaten::Kartesisch, true, true, true},
    {7, Koordinaten::Kartesisch, true, true, true},
    {50, Koordinaten::Winkel, true, false, false},
    {51, Koordinaten::Gitter, true, false, true},
});
static_assert(Verschieden(kNetzarten, &Netzart::typ));
inline constexpr Netzart kUnbekannteNetzart{0, Koordinaten::Keine, false, false, false};

[[nodiscard]] constexpr const Netzart& ZumTyp(std::int32_t typ) {
    const auto* art =
        std::find_if(kNetzarten.begin(), kNetzarten.end(), [&](const Netzart& n) { return n.typ == typ; });
    return art != kNetzarten.end() ? *art : kUnbekannteNetzart;
}

/// Lengths in the plan are lengths on earth; else coordinates are angles.
[[nodiscard]] constexpr bool InMetern(std::int32_t netztyp) {
    return ZumTyp(netztyp).koordinaten != Koordinaten::Winkel;
}

[[nodiscard]] constexpr bool PunkteInGaussKrueger(std::int32_t netztyp) {
    return ZumTyp(netztyp).gaussKrueger;
}

[[nodiscard]] constexpr bool HatKartengitter(std::int32_t netztyp) {
    return ZumTyp(netztyp).mitKartengitter;
}

}  // namespace zrw
