// What a control file says about its network as a whole. Outlives the figure list: the map-sheet grid still
// needs it after a picture file was opened.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>

namespace zrw {

struct Netzangaben {
    std::int32_t Netztyp = 0;          ///< network type of the adjustment; 0: not given
    std::int32_t Ellipsoid = 1;        ///< ellipsoid number, 1 to 6
    std::int32_t Hauptmeridian = 9;    ///< central meridian [whole degrees]
    std::uint8_t Abbildungsmodus = 0;  ///< 0 Gauss-Krüger, 1 UTM, others plain transverse Mercator
    double XVersatz = 0.0;             ///< offset of every northing read [m]
    double YVersatz = 0.0;             ///< offset of every easting read [m]
    bool AbbildungGenannt = false;     ///< meridian and mode stand in the file; else they are the usual ones
    bool EllipsoidGenannt = false;     ///< so does the ellipsoid
};

/// Whether the points were projected while they were read, in Gauss-Krüger whatever the mode says.
[[nodiscard]] constexpr bool PunkteInGaussKrueger(std::int32_t netztyp) {
    return netztyp == 6 || netztyp == 7;
}

/// Whether the coordinates of a network type lie in the grid of the map sheets. Networks of other types have
/// neither sheets nor kilometre squares.
[[nodiscard]] constexpr bool HatKartengitter(std::int32_t netztyp) {
    constexpr std::array<std::int32_t, 6> kMitGitter{2, 3, 4, 6, 7, 51};
    return std::find(kMitGitter.begin(), kMitGitter.end(), netztyp) != kMitGitter.end();
}

}  // namespace zrw
