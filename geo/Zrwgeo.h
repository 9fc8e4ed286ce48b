// Geodetic arithmetic: reference ellipsoids, transverse Mercator both ways with convergence and scale factor,
// and earth-centred Cartesian to geographic coordinates. Pure functions: no state, no datum shifts, no range
// checks (what the arithmetic yields outside the working area is returned as it is, not-a-number included).
#pragma once

#include <cstdint>
#include <string_view>

#include "geo/Winkel.h"

namespace zrw {

/// What a caller reports when `EllipsoidBekannt` says no. The spelling is the one users know.
inline constexpr std::string_view kUnbekanntesEllipsoid = "Fehler : Unbekanntes Elliposid.";

/// Form of the transverse Mercator mapping. It is a byte of the control file: every value other than 0 and 1
/// behaves as `Schlicht`.
enum class Abbildung : std::uint8_t {
    GaussKrueger = 0,  ///< scale 1 on the central meridian, 3 degree zones, zone number in the easting
    Utm = 1,           ///< scale 0.9996, 6 degree zones, zone number in the easting
    Schlicht = 2,      ///< scale 1, no zone number; the inverse always takes 9 degrees as central meridian
};

/// Reference ellipsoid with its radii of curvature at one latitude.
struct Ellipsoid {
    double a = 0.0;  ///< semi-major axis [m]
    double f = 0.0;  ///< flattening itself, not its reciprocal [-]
    double N = 0.0;  ///< radius of curvature in the prime vertical [m]
    double M = 0.0;  ///< radius of curvature in the meridian [m]
};

/// Position in the grid with the two distortions there.
struct Gitterpunkt {
    double hoch = 0.0;    ///< northing [m]
    double rechts = 0.0;  ///< easting [m], with false easting and, by mode, zone number
    Gon konvergenz;  ///< meridian convergence, positive east of the central meridian on the northern half
    double massstab = 0.0;  ///< point scale factor [-]
};

/// Geographic position of a grid point with the two distortions there.
struct Geograph {
    Grad breite;            ///< latitude, north positive
    Grad laenge;            ///< longitude, east positive
    Gon konvergenz;         ///< meridian convergence
    double massstab = 0.0;  ///< point scale factor [-]
};

/// Geographic position in space.
struct GeographHoehe {
    Grad breite;         ///< latitude, north positive
    Grad laenge;         ///< longitude, east positive, -90 to 90
    double hoehe = 0.0;  ///< height above the ellipsoid [m]
};

/// -1 below zero, 0 at zero, otherwise +1 (also for not-a-number).
[[nodiscard]] int Sign(double x);

/// |basis| to the power of `exponent`; the sign of the base is disregarded.
[[nodiscard]] double Power(double exponent, double basis);

/// Arc sine [rad] of a value in -1 to 1; not-a-number outside.
[[nodiscard]] double ArcSin(double x);

/// Tangent of an angle [rad]; 0 where the cosine is exactly 0.
[[nodiscard]] double Tan(double x);

/// Tangent from the sine and the cosine of an angle; 0 where the cosine is exactly 0. This is the rule inside
/// `Tan`, apart from it because no angle held as a double has a cosine of exactly 0.
[[nodiscard]] double TanAus(double sinus, double cosinus);

/// Whether the number names an ellipsoid: 1 Bessel 1841, 2 International (Hayford) 1924, 3 Krassowsky 1940,
/// 4 WGS 72, 5 WGS 84, 6 GRS 80.
[[nodiscard]] bool EllipsoidBekannt(int nummer);
/// What it is called, UTF-8; empty for an unknown number.
[[nodiscard]] std::string_view EllipsoidName(int nummer);

/// Ellipsoid `nummer` with its radii of curvature at latitude `breite` [deg]. An unknown number computes with
/// Bessel; telling the user (`kUnbekanntesEllipsoid`) is the caller's business.
[[nodiscard]] Ellipsoid EllipsoidRadii(int nummer, Grad breite);

/// Grid point of a geographic position.
///
/// Closed transverse Mercator of the sphere with radius N plus series in the longitude difference for the
/// ellipsoid. The expanded series are the classic ones, see J. P. Snyder, Map Projections - A Working Manual,
/// USGS Professional Paper 1395 (1987), section 8, and W. Grossmann, Geodätische Rechnungen und Abbildungen.
/// Agrees with an exact transverse Mercator to 0.15 mm within 2 degrees of the central meridian.
/// @param hauptmeridian central meridian [whole degrees]
/// @param laenge, breite longitude and latitude [deg], |breite| < 90 and within 90 degrees of the central
///        meridian; not checked
/// @param f, a flattening [-] and semi-major axis [m], from `EllipsoidRadii`
/// @return northing and easting [m], convergence [gon], scale factor [-].
///         500 000 m are added to the easting in every mode.
[[nodiscard]] Gitterpunkt GeoToGrid(Abbildung modus, int hauptmeridian, Grad laenge, Grad breite, double f,
                                    double a);

/// Geographic position of a grid point, from the footpoint latitude with the same kind of series (sources at
/// `GeoToGrid`).
/// @param modus decides the scale and the central meridian: from the zone number in the easting, or 9 degrees
///        in the plain mode
/// @param hoch northing [m]
/// @param rechts easting [m]. The plain mode takes it as the distance from the central meridian: unlike
///        `GeoToGrid` it knows no false easting.
/// @param f, a flattening [-] and semi-major axis [m], from `EllipsoidRadii`
/// @return agrees with an exact transverse Mercator to 0.2 mm within 2 degrees of the central meridian
[[nodiscard]] Geograph GridToGeo(Abbildung modus, double hoch, double rechts, double f, double a);

/// Geographic position of an earth-centred Cartesian position [m] on ellipsoid `ellipsoid` (numbers as in
/// `EllipsoidBekannt`, unknown ones as Bessel), by iteration of the latitude (B. Hofmann-Wellenhof et al.,
/// GPS Theory and Practice, section 10.2).
/// Needs x > 0 (longitude within 90 degrees of Greenwich) and z != 0; not checked. Always ends.
[[nodiscard]] GeographHoehe CartesianToGeo(int ellipsoid, double x, double y, double z);

}  // namespace zrw
