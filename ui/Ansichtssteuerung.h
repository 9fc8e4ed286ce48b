// What part of the world the picture shows: the arithmetic of zooming, fitting and dragging, and the views to
// go back to. Sets the view of the network and, where only the pan offsets change, lets the picture follow
// (Bildpflege.h); after a change of scale whoever calls draws anew.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "model/FigListe.h"
#include "ui/Bildpflege.h"

namespace zrw {

struct Ansicht {
    double faktor = 1;  ///< [m/px]
    Welt linksOben;     ///< world position of the picture's top-left corner
};

class Ansichtssteuerung {
  public:
    /// Both must outlive it.
    Ansichtssteuerung(const Einstellungen& einstellungen, Bildpflege& pflege)
        : einstellungen_(einstellungen), pflege_(pflege) {}

    [[nodiscard]] static Ansicht Jetzt(const Liste& liste) { return {liste.Faktor, liste.BildinWelt({})}; }
    /// Exactly what is shown; none: no point is.
    [[nodiscard]] static std::optional<Ansicht> Eingepasst(const Liste& liste);
    /// The rectangle with these two corners, as large as the picture holds it.
    [[nodiscard]] static Ansicht Ausschnitt(const Liste& liste, Bildpunkt a, Bildpunkt b);
    /// False where the scale lies beyond what zooming allows.
    [[nodiscard]] static bool Erlaubt(const Ansicht& ansicht);
    static void Setze(Liste& liste, const Ansicht& ansicht);
    /// The world position in the middle of the picture, at the same scale.
    static void SetzeMitte(Liste& liste, Welt mitte);
    /// One zoom step that keeps the world position at (x, y) [px] in place.
    /// @return false: zooming ends here, nothing has changed
    [[nodiscard]] bool Zoome(Liste& liste, double x, double y, bool groesser) const;

    /// The same for many steps of the wheel: down enlarges, up shrinks.
    [[nodiscard]] bool Rolle(Liste& liste, Bildpunkt ort, int schritte) const;

    /// Views belong to a network, and its extents are known when it comes.
    void NeuesNetz();
    /// Points may lie beyond the extents now.
    void NetzGeaendert() { ausdehnungAlt_ = true; }
    /// Fits the extents into the picture and draws it.
    void ZeigeAlles(Liste& liste);

    /// A view to go back to.
    void Merke(const Ansicht& ansicht);
    /// The last one, which is then forgotten.
    [[nodiscard]] std::optional<Ansicht> NimmLetzte();

    // Steps of the wheel that arrive while a picture is being drawn are drawn together with the next.
    /// The view has changed, the picture has not. @return false: nor had it before
    bool OeffneRad() { return std::exchange(radOffen_, true); }
    /// The picture is drawn, or need not be. @return whether it was outstanding
    bool SchliesseRad() { return std::exchange(radOffen_, false); }

    /// Moves the network in the picture.
    void Verschiebe(Liste& liste, Bildpunkt weg);

    // Dragging.
    void BeginneZug(const Liste& liste);
    /// @param ziel where the network is to lie, from where it was at the beginning [px]
    void Ziehe(Bildpunkt ziel) { zugziel_ = ziel; }
    /// How far the picture lies behind [px].
    [[nodiscard]] Bildpunkt Rueckstand() const { return {zugziel_.x - gezogen_.x, zugziel_.y - gezogen_.y}; }
    /// Brings the network where it is to lie. @return false: it lies there already
    bool Folge(Liste& liste);

  private:
    const Einstellungen& einstellungen_;
    Bildpflege& pflege_;
    std::vector<Ansicht> ansichten_;
    bool ausdehnungAlt_ = false;
    bool radOffen_ = false;
    Welt zuganfang_;     ///< pan offsets before the picture was dragged [m]
    Bildpunkt gezogen_;  ///< how far it has been dragged [px]
    Bildpunkt zugziel_;  ///< how far it is to be dragged [px]
};

}  // namespace zrw
