// Keeps the picture in the window what a plain redraw would draw, with as little drawing as that takes:
// panning moves the picture and draws the strips that come in, a change draws its neighbourhood. The quick
// ways in here and in Bildaufbau.h are all there are; `Zeichenzustand::Abkuerzungen` switches them off
// together.
//
// Smooth edges take longer than plain ones. What would keep the user waiting is drawn plain first and made
// smooth later, a part of a few rows at a time, whenever the caller has nothing else to do.
#pragma once

#include <optional>

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

    /// Whether edges shall be smooth. From the next drawing on.
    void SetzeGlatt(bool glatt) { glaetten_ = glatt; }
    /// A smooth drawing may take so long under the hand [ms]; longer ones become smooth afterwards. One frame
    /// of a screen, unless it is set.
    void SetzeBildzeit(double ms) { bildzeit_ = ms; }
    /// Another network: nothing is known of how long it takes to draw.
    void VergissZeiten() { glattzeit_.reset(); }
    /// A part of the picture has still to be made smooth.
    [[nodiscard]] bool Rau() const { return !Leer(rau_); }
    /// Makes a part of a few rows smooth, in a few milliseconds.
    void GlaetteZeilen(const Bildvorlage& v);

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
    double ZeichneBereich(const Bildvorlage& v, const Rechteck& r, bool glatt);
    void MerkeGlattzeit(double zeit, double anteil);
    void MerkeTeilzeit(double zeit, double inhalt);
    [[nodiscard]] bool SchnellGlatt(const Rechteck& r) const;
    [[nodiscard]] double Anteil(const Rechteck& r) const;
    [[nodiscard]] Rechteck Umfang(const Bildvorlage& v, const Figurenmenge& figuren) const;
    [[nodiscard]] bool Oertlich(const Bildvorlage& v) const;

    const Zeichenzustand& zustand_;
    Bildflaeche& flaeche_;
    Figurenzeichner& zeichner_;
    Ansicht gezeichnet_;    ///< the view of the picture
    bool gueltig_ = false;  ///< the picture is what a plain redraw draws
    bool oertlich_ = false;
    Rechteck vorher_;
    bool glaetten_ = false;
    double bildzeit_ = 16.0;
    Rechteck rau_ = kKeinRechteck;     ///< what was drawn plain and shall become smooth
    Rechteck band_ = kKeinRechteck;    ///< what is not yet smooth of the rows that are being made so
    double pixel_ = 0;                 ///< that are made smooth at a time
    double jePixel_ = 0;               ///< what one of them takes at most [ms]
    std::optional<double> glattzeit_;  ///< that a whole smooth picture takes [ms]
    // Of smooth drawings since it was worked out last.
    double zeitsumme_ = 0;
    double anteilsumme_ = 0;
};

}  // namespace zrw
