// Point numbers put in order before something is written, as the window does it.
#pragma once

#include <optional>
#include <vector>

#include "ui/ausgabe/Ausgabelauf.h"

namespace zrw {

/// What is ordered for the print is written at its scale: where the plan decides on it, that is found now,
/// before numbers move, and stands in order and legend from then on. Does nothing otherwise.
void LegeMassstabFest(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag);

/// Where numbers go; nowhere where the order does not ask for it. Tells how many overlap in the end.
/// @param netz that of the source; stays as it is @return nothing where it was stopped
[[nodiscard]] std::optional<std::vector<Planbeschriftung::Nummernlage>> SucheNummernlagen(
    const Ausgabequelle& quelle, const Ausgabeauftrag& auftrag, Netz& netz,
    const Planbeschriftung::Beweglich& beweglich, const Sprecher& sage, const Fortschritt& fortschritt = {});

/// Both for the batch mode, and numbers go there. Those of a picture file that have not the offset of the
/// settings stay: somebody has placed them.
void OrdneNummern(const Ausgabequelle& quelle, Ausgabeauftrag& auftrag, Netz& netz, const Sprecher& sage);

}  // namespace zrw
