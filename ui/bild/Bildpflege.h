// Keeps the picture in the window what a plain redraw would draw, with as little drawing as that takes:
// panning moves the picture and draws the strips that come in, a change draws its neighbourhood. The quick
// ways in here and in Bildaufbau.h are all there are; `Zeichenzustand::Abkuerzungen` switches them off
// together.
#pragma once

#include "model/Bildvorlage.h"
#include "output/Figurenzeichner.h"
#include "output/Zeichenzustand.h"
#include "ui/bild/Bildflaeche.h"

namespace zrw {

class Bildpflege {
  public:
    /// All must outlive it.
    Bildpflege(const Zeichenzustand& zustand, Bildflaeche& flaeche, Figurenzeichner& zeichner)
        : zustand_(zustand), flaeche_(flaeche), zeichner_(zeichner) {}

    /// The plain way: the whole picture.
    void ZeichneNeu(const Bildvorlage& v);
    /// Something was drawn over the picture that is not in the plan.
    void VerwirfBild() { gueltig_ = false; }

    /// Whether panning can move the picture: nothing in it stands still or follows rules of its own.
    [[nodiscard]] bool Verschiebbar(const Bildvorlage& v) const;
    /// The view has new pan offsets. @param weg how far the network moves by that [px]
    void VerschiebeBild(const Bildvorlage& v, Bildpunkt weg);

    // A change of some figures, or of what is left out: before it, and after it. The picture is then as if
    // drawn anew.
    void Vorher(const Bildvorlage& v, const Figurenmenge& figuren);
    void Nachher(const Bildvorlage& v, const Figurenmenge& figuren);

  private:
    void ZeichneAusschnitt(const Bildvorlage& v, const Rechteck& r);
    [[nodiscard]] Rechteck Umfang(const Bildvorlage& v, const Figurenmenge& figuren) const;
    [[nodiscard]] bool Oertlich(const Bildvorlage& v) const;

    const Zeichenzustand& zustand_;
    Bildflaeche& flaeche_;
    Figurenzeichner& zeichner_;
    Ansicht gezeichnet_;    ///< the view of the picture
    bool gueltig_ = false;  ///< the picture is what a plain redraw draws
    bool oertlich_ = false;
    Rechteck vorher_;
};

}  // namespace zrw
