// Three small invented networks for the import of other programs' files: one in the plane, one of heights,
// one of satellite vectors. Each has one observation that is grossly wrong.
#pragma once

#include <string>
#include <vector>

#include "beispiele/Netz.h"

namespace zrw::beispiel {

struct Kleinnetz {
    std::string name;  ///< of its files
    Netz netz;
};

/// LAGE, HOEHEN and VEKTOREN, always the same.
[[nodiscard]] std::vector<Kleinnetz> Kleinnetze();

}  // namespace zrw::beispiel
