// The invented example network as plain data: points, observations with their noise, and what the writers
// need to know about them. No file format in here; every writer takes a finished `Netz`.
#pragma once

#include <array>
#include <cstddef>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace zrw::beispiel {

enum class Art { FP, FL, FH, NP };

/// Position of a point in `Netz::punkte`.
using Stelle = std::size_t;

struct NetzPunkt {
    std::string nummer;  ///< at most 14 bytes of code page 1252, no blanks inside
    Art art = Art::NP;
    int niveau = 0;       ///< point code of the control file; positive for points of the upper orders
    double rechts = 0.0;  ///< Gauss-Krueger easting with zone number [m], rounded to mm
    double hoch = 0.0;    ///< northing [m], rounded to mm
    double hoehe = 0.0;   ///< [m], rounded to mm
};

/// One target of a direction set.
struct Ziel {
    Stelle punkt = 0;
    double wert = 0.0;   ///< direction or azimuth [gon], 0 to 400
    double sigma = 0.0;  ///< standard deviation [gon]
    bool azimut = false;
};

struct Richtungssatz {
    Stelle stand = 0;
    bool eigeneDatei = false;  ///< written to the include file instead of the control file
    std::vector<Ziel> ziele;
};

struct Strecke {
    Stelle von = 0, nach = 0;
    double wert = 0.0;   ///< distance reduced to the grid [m]
    double sigma = 0.0;  ///< [m]
    bool grob = false;   ///< carries a blunder that an adjustment would flag
};

struct Hoehenunterschied {
    Stelle von = 0, nach = 0;
    double wert = 0.0;   ///< height of `nach` minus height of `von` [m]
    double sigma = 0.0;  ///< [m]
    bool grob = false;
};

struct Zenitdistanz {
    Stelle von = 0, nach = 0;
    double wert = 0.0;   ///< [gon]
    double sigma = 0.0;  ///< [gon]
};

struct GpsVektor {
    Stelle von = 0, nach = 0;
    std::array<double, 3>
        d{};             ///< earth-centred components, in a plane network northing, easting, height [m]
    double sigma = 0.0;  ///< of each component [m]
    bool grob = false;
};

struct Netz {
    std::string titel;  ///< code page 1252
    bool eben = false;  ///< small enough for a plane: vectors are differences of the coordinates
    std::vector<NetzPunkt> punkte;
    std::vector<Richtungssatz> saetze;
    std::vector<Strecke> strecken;
    std::vector<Hoehenunterschied> hoehen;
    std::vector<Zenitdistanz> zenite;
    std::vector<std::vector<GpsVektor>> gps;  ///< one list per block
};

/// Which point plays which part. Needed to decide what is observed, not by the writers.
struct Rollen {
    std::vector<Stelle> ordnung1, ordnung2, ordnung3;
    std::vector<Stelle> referenz;            ///< satellite reference stations
    std::vector<Stelle> passpunkte;          ///< points with long numbers, fixed by distances and vectors
    std::vector<std::vector<Stelle>> zuege;  ///< traverses with both end points
    std::vector<Stelle> nivRing;             ///< levelling loop, first point not repeated
    std::vector<std::pair<Stelle, Stelle>> exzentren;    ///< centre, eccentre
    std::vector<std::pair<Stelle, Stelle>> hilfspunkte;  ///< traverse point, auxiliary point beside it
    std::vector<Stelle> hochziele;                       ///< spires and towers, only ever sighted
};

class Zufall;

/// All points with their parts; fills `netz.punkte`.
[[nodiscard]] Rollen LegePunkteAn(Netz& netz, Zufall& zufall);

/// Everything observed between the points of `netz`.
void BeobachteNetz(Netz& netz, const Rollen& rollen, Zufall& zufall);

/// Writes NETZ.EIN and the two files it includes, RICHT.SF and KOORD.KF, into `ordner`.
/// @return false when a file cannot be written
[[nodiscard]] bool SchreibeSteuerdatei(const Netz& netz, const std::filesystem::path& ordner);

/// Distance in the grid [m].
[[nodiscard]] double Abstand(const NetzPunkt& a, const NetzPunkt& b);

/// Earth-centred position [m]; heights count from the ellipsoid.
[[nodiscard]] std::array<double, 3> Geozentrisch(const NetzPunkt& p);
/// Position in the system of the vectors [m]: earth-centred, in a plane network northing, easting, height.
[[nodiscard]] std::array<double, 3> Vektorort(const Netz& netz, const NetzPunkt& p);

/// By how much earth curvature, less refraction, lowers a target in a distance of `strecke` metres [m].
[[nodiscard]] double ErdkruemmungUndRefraktion(double strecke);

/// Rounded to `stellen` decimals, never a negative zero.
[[nodiscard]] double RundeZahl(double wert, int stellen);

}  // namespace zrw::beispiel
