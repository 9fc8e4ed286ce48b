// The map grids under the network: sheet lines of the topographic map 1:25000 and kilometre squares, each
// with its number, for what the picture shows. On the surface, numbers that would run into each other are
// left out. Views in which the lines would only blacken the picture, and views that leave the projection, get
// no grid.
#pragma once

#include <cstdint>
#include <string_view>

#include "model/Ansicht.h"
#include "model/Netzangaben.h"
#include "output/DXFUnit.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

/// Where a grid is drawn to: what is null is left out.
struct Gitterziel {
    Zeichenflaeche* flaeche = nullptr;
    DXFUnit* dxf = nullptr;
    Farbe farbe;
};

class Kartengitter {
  public:
    /// Most sheets or squares of one picture: about ten pixels each on a screen.
    static constexpr double kHoechstensFelder = 20000;

    Kartengitter(const Gitterziel& ziel, const Ansicht& ansicht) : ziel_(ziel), ansicht_(ansicht) {}

    /// Sheets of 10' of longitude by 6' of latitude, rows counted southwards from 56° N, columns eastwards
    /// from 5°40' E; number: row * 100 + column. @param netz ellipsoid, mapping and central meridian
    void Kartenblaetter(const Netzangaben& netz);
    /// Squares of whole kilometres of the world coordinates; number: kilometres of the south-west corner, the
    /// digits 1-2 and 3-4 of easting and northing in turn.
    void Kilometerquadrate();

  private:
    void Bildstrich(Bildpunkt von, Bildpunkt nach) const;
    void Strich(Bildpunkt von, Bildpunkt nach) const;
    void Nummer(Bildpunkt ort, std::string_view text, std::int64_t feldbreite) const;
    [[nodiscard]] Welt Ecke(bool rechtsUnten) const;

    Gitterziel ziel_;
    const Ansicht& ansicht_;
};

}  // namespace zrw
