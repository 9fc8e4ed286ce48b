// Builds the network while a control file is read: points with labels, and one line per pair of points that
// gathers all observations between them.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/FigListe.h"

namespace zrw {

class Netzbauer {
  public:
    Netzbauer(Liste& liste, const Einstellungen& einstellungen)
        : liste_(liste), einstellungen_(einstellungen) {}

    /// Adds a point with its label, unless its number is in the network already. A positive code makes it a
    /// circle, zero or less a dot, both filled.
    /// @throws Fehler (without place) where the network is full
    void Punkt(PunktArt art, std::string_view nummer, std::int64_t code, Welt ort);

    /// Index of the point with that number (cut to 14 bytes, compared exactly), 0 if there is none.
    [[nodiscard]] PunktIndex PunktIndexVon(std::string_view nummer) const;

    // One observation from p1 to p2. Unknown points and a point with itself are dropped.
    void Richtung(PunktIndex p1, PunktIndex p2, Farbe farbe);
    void Strecke(PunktIndex p1, PunktIndex p2);
    void Hoehenunterschied(PunktIndex p1, PunktIndex p2);
    void GPSVektor(PunktIndex p1, PunktIndex p2);

  private:
    /// The line of the pair if there is one, else a new one p1 -> p2 with these attributes and nothing.
    PPunktKante Zusammenfuehren(PunktIndex p1, PunktIndex p2, Farbe farbe, KanteAttr kAttr, LinieAttr lAttr);
    void Orientiere(PunktKante& k, PunktIndex anfang);

    Liste& liste_;
    const Einstellungen& einstellungen_;
};

}  // namespace zrw
