#include "geo/Zrwgeo.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <string_view>

namespace zrw {
namespace {

constexpr double kRho = 57.29577951308232;     // degrees per radian
constexpr double kNullpunktRechts = 500000.0;  // false easting [m]
constexpr double kZonenschritt = 1000000.0;    // easting step from one zone number to the next [m]

struct EllipsoidZeile {
    double a;         // semi-major axis [m]
    double kehrwert;  // reciprocal flattening
    std::string_view name;
};

// Row n - 1 is ellipsoid number n. Row 0 also serves unknown numbers.
constexpr auto kEllipsoide = std::to_array<EllipsoidZeile>({
    {6377397.155, 299.15281, "Bessel"},
    {6378388.0, 297.0, "Hayford"},
    {6378245.0, 298.3, "Krassowsky"},
    {6378135.0, 298.26, "WGS 72"},
    {6378137.0, 298.257223563, "WGS 84"},
    {6378137.0, 298.257222101, "GRS 80"},
});

// Ends the iteration where it would alternate or creep for ever, which needs a position within some ten
// kilometres of the earth's centre. Near the earth's surface it comes to rest after at most ten rounds.
constexpr int kMaxRunden = 200;

struct Ableitungen {
    double e2;        // first eccentricity squared
    double eStrich2;  // second eccentricity squared
    double c;         // polar radius of curvature [m]
};

Ableitungen LeiteEllipsoidAb(double f, double a) {
    const double e2 = 2.0 * f - f * f;
    return {e2, e2 / (1.0 - e2), a / std::sqrt(1.0 - e2)};
}

double MassstabHauptmeridian(Abbildung modus) {
    return modus == Abbildung::Utm ? 0.9996 : 1.0;
}

double Hoch2(double x) {
    return x * x;
}
double Hoch3(double x) {
    return x * x * x;
}
double Hoch4(double x) {
    return Hoch2(x * x);
}
double Hoch5(double x) {
    return Hoch4(x) * x;
}

double BogenA0(double s) {
    return 1.0 + s * (-3.0 / 4 + s * (45.0 / 64 + s * (-175.0 / 256 + s * (11025.0 / 16384))));
}

// Meridian arc from the equator [m]; s is the second eccentricity squared, phi in radians.
double Meridianbogen(double phi, double s, double c) {
    const double a2 = s * (-3.0 / 8 + s * (15.0 / 32 + s * (-525.0 / 1024 + s * (2205.0 / 4096))));
    const double a4 = s * s * (15.0 / 256 + s * (-105.0 / 1024 + s * (2205.0 / 16384)));
    const double a6 = s * s * s * (-35.0 / 3072 + s * (315.0 / 12288));
    return c * (BogenA0(s) * phi + a2 * std::sin(2.0 * phi) + a4 * std::sin(4.0 * phi) +
                a6 * std::sin(6.0 * phi));
}

// Latitude [rad] whose meridian arc is as long as the northing.
double Fusspunktbreite(double hoch, double k0, double s, double c) {
    const double sigma = hoch / (BogenA0(s) * k0 * c);
    const double b2 = s * (3.0 / 8 + s * (-3.0 / 16 + s * (213.0 / 2048 + s * (-255.0 / 4096))));
    const double b4 = s * s * (21.0 / 256 + s * (-21.0 / 256 + s * (533.0 / 8192)));
    const double b6 = s * s * s * (151.0 / 6144 + s * (-453.0 / 12288));
    return sigma + b2 * std::sin(2.0 * sigma) + b4 * std::sin(4.0 * sigma) + b6 * std::sin(6.0 * sigma);
}

// What the zone number adds to the easting [m].
double Zonenanteil(Abbildung modus, int hauptmeridian) {
    const double grad = hauptmeridian;
    if (modus == Abbildung::GaussKrueger) return std::trunc(grad / 3.0) * kZonenschritt;
    if (modus == Abbildung::Utm) return std::trunc((grad + 3.0) / 6.0 + 30.0) * kZonenschritt;
    return 0.0;
}

struct Streifenlage {
    double y;              // distance from the central meridian [m], with the scale factor still in it
    double hauptmeridian;  // [deg]
};

// Zone numbers stay doubles: an easting may be huge or not-a-number, and then so may the result.
Streifenlage StreifenlageAus(Abbildung modus, double rechts) {
    if (modus != Abbildung::GaussKrueger && modus != Abbildung::Utm) {
        // Meant: the false easting is not taken off here although GeoToGrid adds it. Callers in the plain
        // mode hand over distances from the 9 degree meridian, so a round trip does not return its input.
        return {rechts, 9.0};
    }
    const double zone = std::trunc(rechts / kZonenschritt);
    const double y = rechts - (zone * kZonenschritt + kNullpunktRechts);
    return {y, modus == Abbildung::GaussKrueger ? 3.0 * zone : 6.0 * (zone - 30.0) - 3.0};
}

}  // namespace

int Sign(double x) {
    if (x < 0.0) return -1;
    return x == 0.0 ? 0 : 1;
}

double Power(double exponent, double basis) {
    return std::exp(exponent * std::log(std::abs(basis)));
}

double ArcSin(double x) {
    if (std::abs(x) == 1.0) return Sign(x) * (std::numbers::pi / 2.0);
    return std::atan(x / std::sqrt(1.0 - x * x));
}

double TanAus(double sinus, double cosinus) {
    // Meant: the guard value takes the sign of the cosine, which is 0 here, so the tangent of a right angle
    // is 0 and not a huge number of either sign. GridToGeo relies on it staying finite.
    if (cosinus == 0.0) return Sign(cosinus) * 1e29;
    return sinus / cosinus;
}

double Tan(double x) {
    return TanAus(std::sin(x), std::cos(x));
}

bool EllipsoidBekannt(int nummer) {
    return nummer >= 1 && nummer <= static_cast<int>(kEllipsoide.size());
}

std::string_view EllipsoidName(int nummer) {
    return EllipsoidBekannt(nummer) ? kEllipsoide[static_cast<std::size_t>(nummer - 1)].name : "";
}

Ellipsoid EllipsoidRadii(int nummer, Grad breite) {
    const EllipsoidZeile& zeile =
        kEllipsoide[EllipsoidBekannt(nummer) ? static_cast<std::size_t>(nummer - 1) : 0];
    const double f = 1.0 / zeile.kehrwert;
    const double w = std::sqrt(1.0 - Hoch2(std::sin(breite.wert / kRho)) * (2.0 * f - f * f));
    return {zeile.a, f, zeile.a / w, Hoch2(1.0 - f) * zeile.a / Hoch3(w)};
}

Gitterpunkt GeoToGrid(Abbildung modus, int hauptmeridian, Grad laenge, Grad breite, double f, double a) {
    const Ableitungen ell = LeiteEllipsoidAb(f, a);
    const double k0 = MassstabHauptmeridian(modus);
    const double s = ell.eStrich2;
    const double phi = breite.wert / kRho;
    const double l = (laenge.wert - hauptmeridian) / kRho;
    const double t = std::tan(phi);
    const double cosB = std::cos(phi);
    const double sinL = std::sin(l);
    const double cosL = std::cos(l);
    const double n = ell.c / std::sqrt(1.0 + s * cosB * cosB);

    Gitterpunkt g;
    // Meant: the arctangent of the quotient. Beyond 90 degrees from the central meridian it falls into the
    // wrong quadrant, but no map of the working area reaches there.
    g.hoch = k0 * n * std::atan(t / cosL) + k0 * (Meridianbogen(phi, s, ell.c) - n * phi) +
             0.375 * k0 * s * n * Hoch3(cosB * cosB) * t * Hoch4(l);
    g.rechts = k0 / 2.0 * n * std::log((1.0 + cosB * sinL) / (1.0 - cosB * sinL)) +
               k0 / 6.0 * s * n * Hoch5(cosB) * Hoch3(l) +
               k0 / 60.0 * s * n * Hoch5(cosB) * Hoch2(cosB) * (7.0 - 29.0 * t * t) * Hoch5(l) +
               kNullpunktRechts + Zonenanteil(modus, hauptmeridian);
    g.konvergenz.wert =
        (std::atan(sinL * std::sin(phi) / cosL) + s * Hoch5(cosB) * t * Hoch3(l)) * kGonJeRadiant;
    g.massstab = k0 / std::sqrt(1.0 - Hoch2(sinL * cosB)) + k0 / 2.0 * s * Hoch4(cosB) * Hoch2(l) +
                 k0 / 12.0 * s * Hoch3(cosB * cosB) * (7.0 - 14.0 * t * t) * Hoch4(l);
    return g;
}

Geograph GridToGeo(Abbildung modus, double hoch, double rechts, double f, double a) {
    const Ableitungen ell = LeiteEllipsoidAb(f, a);
    const double k0 = MassstabHauptmeridian(modus);
    const double s = ell.eStrich2;
    const Streifenlage lage = StreifenlageAus(modus, rechts);
    const double phiF = Fusspunktbreite(hoch, k0, s, ell.c);
    const double cf = std::cos(phiF);
    const double tf = Tan(phiF);
    const double nf = ell.c / std::sqrt(1.0 + s * cf * cf);
    const double q = lage.y / (k0 * nf);
    // Gudermann function of q: the angle on the sphere that belongs to the easting.
    const double psi = 2.0 * std::atan(Power(q, std::numbers::e)) - std::numbers::pi / 2.0;

    const double phi = ArcSin(std::sin(phiF) * std::cos(psi)) - s / 2.0 * cf * cf * tf * Hoch2(q) +
                       s / 4.0 * cf * cf * tf * (1.0 - tf * tf) * Hoch4(q);
    const double lambda =
        std::atan(Tan(psi) / cf) - s / 6.0 * cf * Hoch3(q) + s / 60.0 * cf * (3.0 + 4.0 * tf * tf) * Hoch5(q);
    const double gamma = std::atan(std::sin(psi) * tf) + s / 3.0 * cf * cf * tf * Hoch3(q);
    const double m =
        k0 / std::cos(psi) + s / 2.0 * cf * cf * Hoch2(q) * k0 + s * s / 4.0 * cf * cf * Hoch4(q);
    return {{phi * kRho}, {lage.hauptmeridian + lambda * kRho}, {gamma * kGonJeRadiant}, m};
}

GeographHoehe CartesianToGeo(int ellipsoid, double x, double y, double z) {
    // Meant: an arctangent of one argument, right for x > 0 only, as everywhere in the region served.
    const double lambda = std::atan(y / x);
    const double p = std::sqrt(x * x + y * y);
    const auto breiteAus = [&](const Ellipsoid& e, double h) {
        const double e2 = 2.0 * e.f - e.f * e.f;
        return std::atan((z / p) / (1.0 - e2 * e.N / (e.N + h)));
    };
    const auto hoeheAus = [&](const Ellipsoid& e, double phi) {
        return z / std::sin(phi) - Hoch2(1.0 - e.f) * e.N;
    };

    double phi = std::numbers::pi / 4.0;
    Ellipsoid e;
    double h = 0.0;
    for (int runde = 0; runde < kMaxRunden; ++runde) {
        e = EllipsoidRadii(ellipsoid, {phi * kRho});
        h = hoeheAus(e, phi);
        const double neu = breiteAus(e, h);
        // Written so that not-a-number ends the loop too.
        if (!(std::abs(phi - neu) >= 1e-16)) break;
        phi = neu;
    }
    phi = breiteAus(e, h);
    e = EllipsoidRadii(ellipsoid, {phi * kRho});
    phi = breiteAus(e, h);
    return {{phi * kRho}, {lambda * kRho}, hoeheAus(e, phi)};
}

}  // namespace zrw
