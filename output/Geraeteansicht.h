// The view and the drawing state of an output device, for the duration of one drawing.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "model/FigListe.h"
#include "output/Zeichenzustand.h"

namespace zrw {

/// Keeps view, picture size, picture positions and drawing state, puts the network to another scale and puts
/// everything back at the end of its scope. Positions are kept, not computed anew: those from a picture file
/// may be other than what its view gives.
class Geraeteansicht {
  public:
    /// @param faktor [m/dot] of the device @param ecke world position of its top-left dot; none: as in the
    /// picture
    Geraeteansicht(Liste& liste, Zeichenzustand& zustand, double faktor, std::optional<Welt> ecke = {});
    ~Geraeteansicht();
    Geraeteansicht(const Geraeteansicht&) = delete;
    Geraeteansicht& operator=(const Geraeteansicht&) = delete;

  private:
    template <class Tun>
    void FuerJedePosition(Tun tun);

    Liste& liste_;
    Zeichenzustand& zustand_;
    Zeichenzustand vorher_;
    double faktor_;
    double xOffset_;
    double yOffset_;
    std::int32_t weite_;
    std::int32_t hoehe_;
    Bildstand stand_;
    std::vector<std::int64_t> positionen_;
};

}  // namespace zrw
