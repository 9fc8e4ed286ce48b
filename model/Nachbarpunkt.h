// Which point of a network comes next in a direction: for whoever goes through it without a mouse.
#pragma once

#include <cstdint>
#include <optional>

#include "model/Ansicht.h"
#include "model/Darstellung.h"
#include "model/Netz.h"

namespace zrw {

enum class Gehrichtung : std::uint8_t { Links, Rechts, Hinauf, Hinunter };

/// The shown point nearest to a place [m], in the quarter of the world round a direction (its edges belong to
/// it) but not at the place itself; without a direction the nearest of all. Of equally near ones the newest.
/// @param ansicht the search begins with what lies near in this view @return null: there is none
[[nodiscard]] const PunktKnoten* NaechsterPunkt(const Netz& netz, const Ansicht& ansicht,
                                                const Darstellung& gezeigt, Welt von,
                                                std::optional<Gehrichtung> richtung);

}  // namespace zrw
