// How the user moves the view (model/Ansicht.h): steps of the wheel, dragging, and the views to go back to.
// Changes views only; whoever calls lets the picture follow.
#pragma once

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "model/Ansicht.h"
#include "model/Darstellung.h"
#include "model/Netz.h"

namespace zrw {

class Ansichtssteuerung {
  public:
    /// Exactly what is shown; none: no point is.
    [[nodiscard]] static std::optional<Bildlage> Eingepasst(const Netz& netz, const Ansicht& ansicht,
                                                            const Darstellung& darstellung);
    /// Zoom steps of the wheel about a position: down enlarges, up shrinks. @param zoomschritt scale after
    /// one step / before it [-] @return false: zooming ends here, nothing has changed
    [[nodiscard]] static bool Rolle(Ansicht& ansicht, Bildpunkt ort, int schritte, double zoomschritt);

    /// Views belong to a network, and its extents are known when it comes.
    void NeuesNetz();
    /// Points may lie beyond the extents now.
    void NetzGeaendert() { ausdehnungAlt_ = true; }
    /// Fits the extents into the picture, new ones where those that are known do not hold all points. Leaves
    /// the view of an empty network alone.
    void PasseEin(const Netz& netz, Ansicht& ansicht);

    /// How a view was left: at once, or by one of many small moves, which together are one.
    enum class Wechsel : std::uint8_t { Sprung, Bewegung };
    /// A view to go back to. Later ones are then forgotten.
    void MerkeLage(const Bildlage& lage, Wechsel wechsel);
    /// The view before this one, or after it; none where there is none.
    [[nodiscard]] std::optional<Bildlage> NimmFruehere(const Bildlage& jetzt);
    [[nodiscard]] std::optional<Bildlage> NimmSpaetere(const Bildlage& jetzt);

    // Steps of the wheel that arrive while a picture is being drawn are drawn together with the next.
    /// The view has changed, the picture has not. @return false: nor had it before
    bool OeffneRad() { return std::exchange(radOffen_, true); }
    /// The picture is drawn, or need not be. @return whether it was outstanding
    bool SchliesseRad() { return std::exchange(radOffen_, false); }

    // Dragging.
    void BeginneZug(const Ansicht& ansicht);
    /// @param ziel where the network is to lie, from where it was at the beginning [px]
    void ZieheNach(Bildpunkt ziel) { zugziel_ = ziel; }
    /// How far the picture lies behind [px].
    [[nodiscard]] Bildpunkt Rueckstand() const { return {zugziel_.x - gezogen_.x, zugziel_.y - gezogen_.y}; }
    /// Brings the network where it is to lie. @return how far it went by that [px]; nothing: it lay there
    /// already
    [[nodiscard]] std::optional<Bildpunkt> Folge(Ansicht& ansicht);

  private:
    std::vector<Bildlage> fruehere_;  ///< the last one at the end
    std::vector<Bildlage> spaetere_;  ///< the next one at the end
    bool inBewegung_ = false;
    bool ausdehnungAlt_ = false;
    bool radOffen_ = false;
    Welt zuganfang_;     ///< pan offsets before the picture was dragged [m]
    Bildpunkt gezogen_;  ///< how far it has been dragged [px]
    Bildpunkt zugziel_;  ///< how far it is to be dragged [px]
};

}  // namespace zrw
