// Goes from point to point of the picture without a mouse: which point has the focus, where the next one is,
// and a click of the current tool there. The ring round the point lies over the picture and is no part of it.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "model/Nachbarpunkt.h"
#include "output/Zeichenflaeche.h"
#include "ui/Plan.h"
#include "ui/bild/ImageZarwik.h"
#include "ui/bild/Planbild.h"

namespace zrw {

class Punktgang {
  public:
    /// What it does to its window. All must outlive it.
    struct Umfeld {
        Plan& plan;
        Planbild& planbild;
        Bildempfaenger& maus;  ///< hears the moves and clicks
        const Einstellungen& einstellungen;
        /// Tells of the point that has the focus, or why there is no other; empty: none has it any more.
        std::function<void(const QString&)> melde;
        /// Where the tool that is on takes hold of what belongs to a point; nothing: a click does all.
        std::function<std::optional<Bildpunkt>(const PunktKnoten&)> griff;
        std::function<bool()> zieht;  ///< a drag is under way
    };
    explicit Punktgang(Umfeld umfeld) : u_(std::move(umfeld)) {}

    /// To the next shown point; the first time to the one nearest to the middle of the picture.
    void GeheZumNaechsten(Gehrichtung richtung);
    /// Presses and releases the left button on the point, or takes what the tool drags into the hand and, the
    /// next time, lets it go. @return false: none in the picture has the focus
    bool KlickePunkt();
    /// Moves what is in the hand. @param weite [px] @return false: nothing is
    bool ZieheHand(Gehrichtung richtung, std::int64_t weite);
    /// Where the point lies in the picture; nothing without one there.
    [[nodiscard]] std::optional<Bildpunkt> Bildort() const;
    /// The focus goes, and the place from where the next step would begin.
    void VergissPunkt();
    /// After every drawing: a point that has gone or is no longer shown loses the focus, and the next step
    /// begins where it was.
    void PruefePunkt();
    /// Number, kind and coordinates of the point; empty without one.
    [[nodiscard]] QString Beschreibung() const;
    void ZeichneRing(Zeichenflaeche& flaeche) const;

  private:
    Umfeld u_;
    const PunktKnoten* punkt_ = nullptr;
    std::optional<Bildpunkt> hand_;  ///< where the button went down, or has been moved to since
    std::optional<Welt> ort_;        ///< of the last point that had the focus
};

}  // namespace zrw
