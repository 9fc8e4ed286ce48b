// Angle units as types of their own, so that degrees and gon cannot be mixed up.
#pragma once

#include <numbers>

namespace zrw {

/// Decimal degrees, 360 per full turn [deg].
struct Grad {
    double wert = 0.0;
};

/// Gon, 400 per full turn [gon].
struct Gon {
    double wert = 0.0;
};

/// [gon/rad]
inline constexpr double kGonJeRadiant = 200.0 / std::numbers::pi;

}  // namespace zrw
