// Geographic positions under a picture, in the mapping of one network.
#pragma once

#include <cmath>

#include "geo/Zrwgeo.h"
#include "model/Ansicht.h"
#include "model/Netzangaben.h"

namespace zrw {

class Geonetz {
  public:
    /// @param ansicht outlives it
    Geonetz(const Netzangaben& netz, const Ansicht& ansicht)
        : ansicht_(ansicht),
          modus_(static_cast<Abbildung>(netz.Abbildungsmodus)),
          hauptmeridian_(netz.Hauptmeridian),
          ellipsoid_(EllipsoidRadii(netz.Ellipsoid, Grad{50.0})) {}

    [[nodiscard]] Geograph Geographisch(Welt w) const {
        return GridToGeo(modus_, w.hoch, w.rechts, ellipsoid_.f, ellipsoid_.a);
    }
    /// @param breite, laenge [deg]
    [[nodiscard]] Welt Weltort(double breite, double laenge) const {
        const Gitterpunkt g =
            GeoToGrid(modus_, hauptmeridian_, Grad{laenge}, Grad{breite}, ellipsoid_.f, ellipsoid_.a);
        return {g.rechts, g.hoch};
    }
    [[nodiscard]] Bildpunkt Bildort(double breite, double laenge) const {
        return ansicht_.Bildort(Weltort(breite, laenge));
    }

  private:
    const Ansicht& ansicht_;
    Abbildung modus_;
    int hauptmeridian_;
    Ellipsoid ellipsoid_;
};

/// The position is one on earth. Far from the central meridian the series yield anything.
[[nodiscard]] inline bool AufErden(const Geograph& g) {
    return std::fabs(g.breite.wert) < 89.0 && std::fabs(g.laenge.wert) <= 360.0;
}

}  // namespace zrw
