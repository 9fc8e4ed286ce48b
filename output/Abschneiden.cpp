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

struct Ecke {
    double x, y;
};

/// The part of a convex polygon on one side of a straight line (Sutherland and Hodgman, 1974).
/// @param seite 1: what is larger than `grenze`, -1: what is smaller
std::vector<Ecke> Halbraum(const std::vector<Ecke>& ecken, double Ecke::*richtung, double grenze,
                           double seite) {
    std::vector<Ecke> teil;
    for (std::size_t i = 0; i < ecken.size(); ++i) {
        const Ecke& a = ecken[i];
        const Ecke& b = ecken[(i + 1) % ecken.size()];
        const double da = (a.*richtung - grenze) * seite;
        const double db = (b.*richtung - grenze) * seite;
        if (da >= 0.0) teil.push_back(a);
        if ((da >= 0.0) == (db >= 0.0)) continue;
        const double t = da / (da - db);
        teil.push_back({a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)});
    }
    return teil;
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

std::vector<Flaechenpunkt> SchneideVieleckAb(std::span<const Bildpunkt> ecken, const Rechteck& s) {
    const bool nah = std::all_of(ecken.begin(), ecken.end(),
                                 [&](Bildpunkt e) { return InReichweite(e, kGrosszuegig, s); });
    std::vector<Flaechenpunkt> teil;
    if (nah) {
        for (const Bildpunkt e : ecken)
            teil.push_back(Aufflaeche(e));
        return teil;
    }
    std::vector<Ecke> rest;
    for (const Bildpunkt e : ecken)
        rest.push_back({static_cast<double>(e.x), static_cast<double>(e.y)});
    rest = Halbraum(rest, &Ecke::x, s.links - kSchnittrand, 1.0);
    rest = Halbraum(rest, &Ecke::x, s.rechts + kSchnittrand, -1.0);
    rest = Halbraum(rest, &Ecke::y, s.oben - kSchnittrand, 1.0);
    rest = Halbraum(rest, &Ecke::y, s.unten + kSchnittrand, -1.0);
    for (const Ecke& e : rest)
        teil.push_back({static_cast<std::int32_t>(
                            RundeZuInt64(std::clamp(e.x, s.links - kSchnittrand, s.rechts + kSchnittrand))),
                        static_cast<std::int32_t>(
                            RundeZuInt64(std::clamp(e.y, s.oben - kSchnittrand, s.unten + kSchnittrand)))});
    return teil;
}

}  // namespace zrw
