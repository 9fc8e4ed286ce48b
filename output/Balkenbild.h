// A scale bar in a lower corner of the picture: steps of a round length with their numbers.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "output/Zeichenflaeche.h"

namespace zrw {

/// A round step: ziffer * 10^exponent.
struct Teilung {
    int ziffer = 1;  ///< 1, 2 or 5
    int exponent = 0;

    /// So many steps, as the decimal number that it is; nothing beyond the numbers there are.
    [[nodiscard]] std::optional<double> Mal(int schritte) const;
};

/// The smallest round step that is at least `mindestens` dots long. @param dots of a step of 1, positive
[[nodiscard]] Teilung KleinsteTeilung(double dots, double mindestens);

struct Balken {
    std::string titel;               ///< code page 1252, like all texts; empty: none
    std::string einheit;             ///< behind the last number
    std::vector<std::string> werte;  ///< at the beginning and after each step, at least two
    double laenge = 0.0;             ///< of all steps together [dots]
    bool rechts = false;             ///< in the right corner, else in the left one
};

/// For a picture of this scale [m/dot]: four steps, long enough to measure with, in metres or kilometres;
/// none where there is no such length.
[[nodiscard]] std::optional<Balken> MetrischerBalken(double faktor, double dichte = 1.0);

/// Clears its place and draws it, black. Nothing where the picture is too small.
/// @param hoeher how far above the corner [dots]
void ZeichneBalken(Zeichenflaeche& f, const Balken& balken, std::int64_t hoeher = 0);

}  // namespace zrw
