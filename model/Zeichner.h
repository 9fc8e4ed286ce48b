// WHAT is drawn: one operation per figure family and per overlay. The model draws through this and nothing
// else, so it links and is tested without any device. ONTO WHAT is drawn: output/Zeichenflaeche.h.
#pragma once

#include <cstdint>

#include "model/Figuren.h"
#include "model/Werte.h"

namespace zrw {

class Liste;

/// A figure is drawn in its own colour, or wiped by drawing the same shape in white.
enum class Gang : std::uint8_t { Zeigen, Wischen };

class Zeichner {
  public:
    virtual ~Zeichner() = default;

    /// Fills (0, 0) to (weite, hoehe) [px] with white.
    virtual void ClearPicture(std::int32_t weite, std::int32_t hoehe) = 0;
    virtual void ZeichnePunkt(const Punkt& punkt, Gang gang) = 0;
    virtual void ZeichneKante(const Kante& kante, Gang gang) = 0;
    virtual void ZeichneText(const PktText& text, Gang gang) = 0;

    /// Draws all lines, points and labels, where the drawer has a quicker way to the same picture than being
    /// handed them one by one. @return false: it has none, nothing is drawn
    virtual bool ZeichneNetz(const Liste& /*liste*/) { return false; }

    // Overlays. A drawer that does not know one leaves it out of its picture.
    virtual void ZeichneLegende(Legende& /*legende*/, Gang /*gang*/) {}
    virtual void GitterShow(const Liste& /*liste*/) {}
    virtual void KMGitterShow(const Liste& /*liste*/) {}
    virtual void ZeichnePunktRes(const Liste& /*liste*/) {}
    virtual void DrawResMasstab(const Liste& /*liste*/) {}
};

}  // namespace zrw
