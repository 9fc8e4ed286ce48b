// Builds the network while a control file is read: points with labels, and one line per pair of points that
// gathers all observations between them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
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

    enum class Art : std::uint8_t { Richtung, Strecke, Hoehenunterschied, GPSVektor };
    /// One observation between the points with these numbers; a direction starts at the last standpoint
    /// instead. Unknown points and a point with itself are dropped. It enters the network with `Trage`, at
    /// the latest.
    void Beobachte(Art art, std::string_view von, std::string_view nach, Farbe farbe = {});
    /// Standpoint of the directions that follow.
    void Standpunkt(std::string_view nummer);
    /// Enters what waits. To be called before a point is added, for an observation does not know later
    /// points.
    void Trage();

  private:
    /// Observations wait in a small queue: looking up many at once lets their memory accesses overlap, and
    /// those are what reading a large network spends its time on.
    struct Wartende {
        Art art = Art::Richtung;
        bool standpunkt = false;  ///< no observation: sets the standpoint
        Farbe farbe;
        PunktNummernTyp von;
        PunktNummernTyp nach;
        PunktIndex p1 = kKeinPunkt;
        PunktIndex p2 = kKeinPunkt;
        PPunktKante kante = nullptr;
        LinieAttr stil = LinieAttr::Null;
    };
    Wartende& Reihe();
    void Fasse(const Wartende& w);
    void Richtung(PunktIndex p1, PunktIndex p2, Farbe farbe);
    void Strecke(PunktIndex p1, PunktIndex p2);
    void Hoehenunterschied(PunktIndex p1, PunktIndex p2);
    void GPSVektor(PunktIndex p1, PunktIndex p2);
    /// The line of the pair if there is one, else a new one p1 -> p2 with these attributes and nothing.
    PPunktKante Zusammenfuehren(PunktIndex p1, PunktIndex p2, Farbe farbe, KanteAttr kAttr, LinieAttr lAttr);
    void Orientiere(PunktKante& k, PunktIndex anfang);

    std::array<Wartende, 64> wartende_;
    std::size_t anzahl_ = 0;
    PunktIndex standpunkt_ = kKeinPunkt;
    Liste& liste_;
    const Einstellungen& einstellungen_;
};

}  // namespace zrw
