// Draws the figures of a network onto the current surface. One routine per shape family; wiping is the same
// routine in white. Shapes that cannot touch the surface are left out.
#pragma once

#include "model/Einstellungen.h"
#include "model/Zeichner.h"
#include "output/Kantenbild.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeichenzustand.h"

namespace zrw {

class Figurenzeichner final : public Zeichner {
  public:
    /// Both must outlive the drawer.
    Figurenzeichner(Zeichenzustand& zustand, const Einstellungen& einstellungen)
        : zustand_(zustand), einstellungen_(einstellungen) {}

    void ClearPicture(std::int32_t weite, std::int32_t hoehe) override;
    void ZeichnePunkt(const Punkt& punkt, Gang gang) override;
    void ZeichneKante(const Kante& kante, Gang gang) override;
    void ZeichneText(const PktText& text, Gang gang) override;

  private:
    void Symbol(PunktTyp typ, PunktAttr attr, Farbe farbe, Bildpunkt mitte);
    void Zeichne(const Zug& zug, Farbe farbe);

    Zeichenzustand& zustand_;
    const Einstellungen& einstellungen_;
};

}  // namespace zrw
