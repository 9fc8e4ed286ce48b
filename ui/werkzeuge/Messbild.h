// How a measured polyline looks over the picture: its corners and legs, the leg to the mouse, and what was
// measured beside them.
#pragma once

#include <optional>
#include <string>

#include "model/Ansicht.h"
#include "model/Messzug.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

/// @param bis where the mouse is, none where no leg follows it
void ZeichneMesszug(const Messzug& zug, const std::optional<Welt>& bis, const Ansicht& ansicht,
                    Zeichenflaeche& flaeche);

/// The last leg, to the mouse where that is, and the sum: in one line, UTF-8. Needs a leg.
[[nodiscard]] std::string Messzeile(const Messzug& zug, const std::optional<Welt>& bis);

}  // namespace zrw
