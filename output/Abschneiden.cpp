#include "output/Abschneiden.h"

#include <algorithm>
#include <cmath>

#include "model/Ganzzahl.h"

namespace zrw {
namespace {

/// Where longer lines are cut: near enough for every device, far enough that the cut end is never seen.
constexpr double kSchnittrand = 64.0;

struct Bereich {
    double links, oben, rechts, unten;
};

/// Parameters of the part of a line inside a rectangle (Liang and Barsky, 1984).
bool Teil(double p, double q, double& t0, double& t1) {
    if (p == 0.0) return q >= 0.0;
    const double t = q / p;
    if (p < 0.0) {
        t0 = std::max(t0, t);
    } else {
        t1 = std::min(t1, t);
    }
    return t0 <= t1;
}

}  // namespace

std::optional<std::pair<Flaechenpunkt, Flaechenpunkt>> AbschneidenLang(Bildpunkt a, Bildpunkt b,
                                                                       const Rechteck& s) {
    const Bereich rand{s.links - kSchnittrand, s.oben - kSchnittrand, s.rechts + kSchnittrand,
                       s.unten + kSchnittrand};
    const double ax = static_cast<double>(a.x);
    const double ay = static_cast<double>(a.y);
    const double dx = static_cast<double>(b.x) - ax;
    const double dy = static_cast<double>(b.y) - ay;
    double t0 = 0.0;
    double t1 = 1.0;
    if (!Teil(-dx, ax - rand.links, t0, t1) || !Teil(dx, rand.rechts - ax, t0, t1) ||
        !Teil(-dy, ay - rand.oben, t0, t1) || !Teil(dy, rand.unten - ay, t0, t1)) {
        return std::nullopt;
    }
    // The products of extreme ends may miss the rectangle by rounding; they must not leave 32 bits.
    const auto punkt = [&](double t) {
        return Flaechenpunkt{
            static_cast<std::int32_t>(RundeZuInt64(std::clamp(ax + t * dx, rand.links, rand.rechts))),
            static_cast<std::int32_t>(RundeZuInt64(std::clamp(ay + t * dy, rand.oben, rand.unten)))};
    };
    return std::pair{punkt(t0), punkt(t1)};
}

}  // namespace zrw
