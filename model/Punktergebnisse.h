// What the adjustment found for single points and for pairs of them, as the drawing of residuals and
// accuracies needs it.
#pragma once

#include <limits>
#include <string_view>

namespace zrw {

/// Fields of the coordinate table, in the units of the adjustment (lengths [mm]); not a number where a field
/// is null, but for `mL`, which then is 0 and not known.
struct Punktergebnis {
    double dY = 0.0;   ///< residual of the easting
    double dX = 0.0;   ///< residual of the northing
    double dH = 0.0;   ///< residual of the height
    double A = 0.0;    ///< semi-major axis of the error ellipse
    double B = 0.0;    ///< semi-minor axis
    double Phi = 0.0;  ///< direction of the ellipse [gon]
    double mH = 0.0;   ///< standard deviation of the height
    double mL = 0.0;   ///< standard deviation of the position
    bool mLBekannt = true;
    double dP = std::numeric_limits<double>::quiet_NaN();  ///< residual of the position
    // Adjusted coordinates [m], not a number where they are null.
    double X = std::numeric_limits<double>::quiet_NaN();  ///< northing
    double Y = std::numeric_limits<double>::quiet_NaN();  ///< easting
    double H = std::numeric_limits<double>::quiet_NaN();
};

/// A point in the second list of coordinates [m], not a number where they are null.
struct Vergleichslage {
    double Y = std::numeric_limits<double>::quiet_NaN();  ///< easting
    double X = std::numeric_limits<double>::quiet_NaN();  ///< northing
};

/// The error ellipse of one point against another; not a number where a field is null.
struct Relativellipse {
    double A = std::numeric_limits<double>::quiet_NaN();    ///< semi-major axis [mm]
    double B = std::numeric_limits<double>::quiet_NaN();    ///< semi-minor axis [mm]
    double Phi = std::numeric_limits<double>::quiet_NaN();  ///< direction of A from north [gon]
    double mS = std::numeric_limits<double>::quiet_NaN();   ///< standard deviation of their distance [mm]
    double mQ = std::numeric_limits<double>::quiet_NaN();   ///< across their line [mm]
};

class Punktergebnisse {
  public:
    virtual ~Punktergebnisse() = default;
    /// Called once before a picture: makes the answers those of the table as it now is.
    virtual void ErneuereErgebnisse() = 0;
    /// The results of the point of this number (code page 1252), null without any. Holds until
    /// `ErneuereErgebnisse`.
    [[nodiscard]] virtual const Punktergebnis* ErgebnisZu(std::string_view nummer) const = 0;
    // The same for the second list of coordinates, where somebody needs it.
    virtual void ErneuereVergleich() {}
    [[nodiscard]] virtual const Vergleichslage* VergleichZu(std::string_view /*nummer*/) const {
        return nullptr;
    }
    // And for pairs of points, whichever of them comes first.
    virtual void ErneuereRelative() {}
    [[nodiscard]] virtual bool HatRelative() const { return false; }
    [[nodiscard]] virtual const Relativellipse* RelativeZu(std::string_view /*a*/,
                                                           std::string_view /*b*/) const {
        return nullptr;
    }
};

}  // namespace zrw
