// How the user moves the view (model/Ansicht.h): steps of the wheel, dragging, and the views to go back to.
// Where only the pan offsets change the picture follows (Bildpflege.h); after a change of scale whoever calls
// draws anew.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "model/FigListe.h"
#include "ui/Bildpflege.h"

namespace zrw {

class Ansichtssteuerung {
  public:
    /// Both must outlive it.
    Ansichtssteuerung(const Einstellungen& einstellungen, Bildpflege& pflege)
        : einstellungen_(einstellungen), pflege_(pflege) {}

    /// Exactly what is shown; none: no point is.
    [[nodiscard]] static std::optional<Bildlage> Eingepasst(const Liste& liste);
    /// Zoom steps of the wheel: down enlarges, up shrinks. @return false: zooming ends here, nothing has
    /// changed
    [[nodiscard]] bool Rolle(Ansicht& ansicht, Bildpunkt ort, int schritte) const;

    /// Views belong to a network, and its extents are known when it comes.
    void NeuesNetz();
    /// Points may lie beyond the extents now.
    void NetzGeaendert() { ausdehnungAlt_ = true; }
    /// Fits the extents into the picture and draws it.
    void ZeigeAlles(Liste& liste);

    /// A view to go back to.
    void Merke(const Bildlage& lage);
    /// The last one, which is then forgotten.
    [[nodiscard]] std::optional<Bildlage> NimmLetzte();

    // Steps of the wheel that arrive while a picture is being drawn are drawn together with the next.
    /// The view has changed, the picture has not. @return false: nor had it before
    bool OeffneRad() { return std::exchange(radOffen_, true); }
    /// The picture is drawn, or need not be. @return whether it was outstanding
    bool SchliesseRad() { return std::exchange(radOffen_, false); }

    /// Moves the network in the picture.
    void Verschiebe(Liste& liste, Bildpunkt weg);

    // Dragging.
    void BeginneZug(const Ansicht& ansicht);
    /// @param ziel where the network is to lie, from where it was at the beginning [px]
    void Ziehe(Bildpunkt ziel) { zugziel_ = ziel; }
    /// How far the picture lies behind [px].
    [[nodiscard]] Bildpunkt Rueckstand() const { return {zugziel_.x - gezogen_.x, zugziel_.y - gezogen_.y}; }
    /// Brings the network where it is to lie. @return false: it lies there already
    bool Folge(Liste& liste);

  private:
    const Einstellungen& einstellungen_;
    Bildpflege& pflege_;
    std::vector<Bildlage> ansichten_;
    bool ausdehnungAlt_ = false;
    bool radOffen_ = false;
    Welt zuganfang_;     ///< pan offsets before the picture was dragged [m]
    Bildpunkt gezogen_;  ///< how far it has been dragged [px]
    Bildpunkt zugziel_;  ///< how far it is to be dragged [px]
};

}  // namespace zrw
