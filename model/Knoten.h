// The nodes of the three lists of a network. A node ties a figure to world coordinates or to the internal
// numbers of its points; node and figure live in the arena of their `Liste`.
#pragma once

#include <vector>

#include "model/Figuren.h"
#include "model/Werte.h"

namespace zrw {

/// Node of a point.
struct PunktKnoten {
    double XWPu = 0.0;  ///< easting [m], maps to the picture's horizontal axis
    double YWPu = 0.0;  ///< northing [m], grows upwards
    PunktIndex PNr = kKeinPunkt;
    Punkt* Item = nullptr;
    PunktKnoten* Next = nullptr;
};
using PPunktKnoten = PunktKnoten*;

/// Node of an observation line.
class PunktKante {
  public:
    PunktIndex ANr = kKeinPunkt;  ///< start point
    PunktIndex ENr = kKeinPunkt;  ///< end point
    Kante* Item = nullptr;
    PunktKante* Next = nullptr;

  private:
    friend class Figurenindex;
    PunktKante* naechsteAmStart_ = nullptr;
    PunktKante* naechsteAmEnde_ = nullptr;
};
using PPunktKante = PunktKante*;

/// Node of a point-number label.
struct PunktString {
    PunktIndex TNr = kKeinPunkt;
    PktText* Item = nullptr;
    PunktString* Next = nullptr;
};
using PPunktString = PunktString*;

/// Where a figure stood that was taken out of its list.
template <class Knoten>
struct Platz {
    Knoten* knoten = nullptr;
    Knoten* davor = nullptr;  ///< null: it was the head
    bool sichtbar = false;
};

/// Figures that were taken out together, with their places.
struct Herausnahme {
    Platz<PunktKnoten> punkt;
    Platz<PunktString> text;
    std::vector<Platz<PunktKante>> kanten;  ///< in the order of leaving
};

}  // namespace zrw
