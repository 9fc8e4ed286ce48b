#include "geo/Fehlerellipse.h"

#include <algorithm>
#include <cmath>

#include "geo/Winkel.h"

namespace zrw {
namespace {

/// Files have six or more digits of a covariance.
constexpr double kRundung = 1e-5;

}  // namespace

double Lagekovarianz::InRichtung(double gon) const {
    const double s = std::sin(gon / kGonJeRadiant), c = std::cos(gon / kGonJeRadiant);
    return rechts * s * s + hoch * c * c + 2.0 * beide * s * c;
}

std::optional<Fehlerellipse> ErmittleFehlerellipse(const Lagekovarianz& k) {
    const double summe = k.rechts + k.hoch;
    const double w = std::hypot(k.hoch - k.rechts, 2.0 * k.beide);
    const double gross = (summe + w) / 2.0;
    if (!std::isfinite(gross) || k.rechts < 0.0 || k.hoch < 0.0) return std::nullopt;
    if (gross == 0.0) return Fehlerellipse{};
    // By the determinant: the difference of sum and root has no digits left in a narrow ellipse.
    const double klein = k.rechts / gross * k.hoch - k.beide / gross * k.beide;
    if (klein < -kRundung * gross) return std::nullopt;
    double phi = 0.5 * std::atan2(2.0 * k.beide, k.hoch - k.rechts) * kGonJeRadiant;
    if (phi < 0.0) phi += 200.0;
    if (phi >= 200.0) phi = 0.0;
    return Fehlerellipse{std::sqrt(gross), std::sqrt(std::max(0.0, klein)), phi};
}

}  // namespace zrw
