// Networks and adjustments in the XML of GNU Gama, as examples for the import.
#pragma once

#include <string>

#include "beispiele/Ausgleichung.h"
#include "beispiele/Netz.h"

namespace zrw::beispiel {

/// The network as input of the adjustment, x to the north and y to the east.
[[nodiscard]] std::string Gamanetz(const Netz& netz);
/// What the adjustment says, with all covariances.
[[nodiscard]] std::string Gamaergebnisse(const Netz& netz, const Ausgleichung& a);

}  // namespace zrw::beispiel
