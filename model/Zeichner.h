// WHAT is drawn: one operation per figure family and per overlay. The model draws through this and nothing
// else, so it links and is tested without any device. ONTO WHAT is drawn: output/Zeichenflaeche.h.
#pragma once

#include <cstdint>

#include "model/Figuren.h"
#include "model/Werte.h"

namespace zrw {

struct Bildvorlage;
struct Figurstil;

/// A figure is drawn in its own colour, or wiped by drawing the same shape in white.
enum class Gang : std::uint8_t { Zeigen, Wischen };

class Zeichner {
  public:
    virtual ~Zeichner() = default;

    /// Fills (0, 0) to (weite, hoehe) [px] with white.
    virtual void ClearPicture(std::int32_t weite, std::int32_t hoehe) = 0;
    // Figures at their places in the picture [px]; where they were drawn last does not count.
    /// How the next lines and points are drawn, whatever their own colour; null: as they are. Files do not
    /// heed it.
    virtual void SetzeStil(const Figurstil* /*stil*/) {}
    virtual void ZeichnePunkt(const Punkt& punkt, Bildpunkt ort, Gang gang) = 0;
    virtual void ZeichneKante(const Kante& kante, Bildpunkt anfang, Bildpunkt ende, Gang gang) = 0;
    /// @param ort position that the label's offset counts from
    virtual void ZeichneText(const PktText& text, Bildpunkt ort, Gang gang) = 0;

    /// Draws all lines, points and labels, where the drawer has a quicker way to the same picture than being
    /// handed them one by one. @return false: it has none, nothing is drawn
    virtual bool ZeichneNetz(const Bildvorlage& /*v*/) { return false; }

    // Overlays. A drawer that does not know one leaves it out of its picture.
    virtual void ZeichneLegende(Legende& /*legende*/, Gang /*gang*/) {}
    virtual void GitterShow(const Bildvorlage& /*v*/) {}
    virtual void KMGitterShow(const Bildvorlage& /*v*/) {}
    virtual void ZeichnePunktRes(const Bildvorlage& /*v*/) {}
    virtual void DrawResMasstab(const Bildvorlage& /*v*/) {}
    /// What lines, symbols and colours mean.
    virtual void ZeichneErklaerung(const Bildvorlage& /*v*/) {}
    /// How long metres are in the picture.
    virtual void ZeichneMassbalken(const Bildvorlage& /*v*/) {}
};

}  // namespace zrw
