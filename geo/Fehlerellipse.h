// Helmert's error ellipse of a point in the plane.
#pragma once

#include <optional>

namespace zrw {

/// Covariance matrix of an easting and a northing, in the square of the unit of lengths.
struct Lagekovarianz {
    double rechts = 0.0;  ///< variance of the easting
    double hoch = 0.0;    ///< variance of the northing
    double beide = 0.0;   ///< covariance of the two

    /// Variance of the component in a direction [gon, from north clockwise].
    [[nodiscard]] double InRichtung(double gon) const;
};

struct Fehlerellipse {
    double a = 0.0;    ///< semi-major axis
    double b = 0.0;    ///< semi-minor axis
    double phi = 0.0;  ///< direction of the semi-major axis from north clockwise, [0, 200) [gon]
};

/// The ellipse of one standard deviation: the axes are the square roots of the eigenvalues of the matrix
/// (F. R. Helmert, Die Ausgleichungsrechnung nach der Methode der kleinsten Quadrate, 1872).
/// @return nothing where the matrix is no covariance matrix: not finite or with a negative eigenvalue beyond
/// the rounding of its elements
[[nodiscard]] std::optional<Fehlerellipse> ErmittleFehlerellipse(const Lagekovarianz& k);

}  // namespace zrw
