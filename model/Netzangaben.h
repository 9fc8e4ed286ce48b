// What a control file says about its network as a whole. Outlives the figure list: the map-sheet grid still
// needs it after a picture file was opened.
#pragma once

#include <cstdint>

#include "model/Netzarten.h"

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

}  // namespace zrw
