// What a drawing shows, all of it as arguments: the network, the view, what of it is shown, and what is left
// out because somebody holds it in hand. Drawing changes none of them but the legend, which notes when it was
// drawn.
#pragma once

#include <unordered_set>

#include "model/Ansicht.h"
#include "model/Darstellung.h"
#include "model/Knoten.h"
#include "model/Netz.h"

namespace zrw {

class Zeichner;

/// Figures that a drawing leaves out: what a tool has in hand is drawn as its preview instead.
struct Auslassung {
    std::unordered_set<const void*> figuren;  ///< nodes
    bool legende = false;
    bool erklaerung = false;

    void SetzeFiguren(const Figurenmenge& m);

    template <class Knoten>
    [[nodiscard]] bool HatFigur(const Knoten& k) const {
        return !figuren.empty() && figuren.count(&k) != 0;
    }
};

struct Bildvorlage {
    const Netz& netz;
    const Ansicht& ansicht;
    const Darstellung& darstellung;
    Legende* legende = nullptr;        ///< null: there is none
    const Auslassung* ohne = nullptr;  ///< null: nothing is left out

    /// The same plan in another view.
    [[nodiscard]] Bildvorlage InAnsicht(const Ansicht& andere) const {
        return {netz, andere, darstellung, legende, ohne};
    }
    template <class Knoten>
    [[nodiscard]] bool Gezeichnet(const Knoten& k) const {
        return k.Item->Visible && (ohne == nullptr || !ohne->HatFigur(k));
    }
    [[nodiscard]] bool Gezeichnet(const PunktKante& k) const {
        return k.Item->Visible && darstellung.Gewaehlt(k) && (ohne == nullptr || !ohne->HatFigur(k));
    }
    /// Null: as the figure is.
    template <class Knoten>
    [[nodiscard]] const Figurstil* StilVon(const Knoten& k) const {
        return darstellung.Stile != nullptr ? darstellung.Stile->StilVon(k) : nullptr;
    }
};

/// The kinds of both points of a line are switched on.
[[nodiscard]] bool Dargestellt(const PunktKante& k, const Netz& netz, const Darstellung& d);

/// Draws the whole picture: background, grids, lines, points, labels, legend, results.
void ZeichneBild(const Bildvorlage& v, Zeichner& z);
/// The same without clearing the picture first.
void ZeichneFiguren(const Bildvorlage& v, Zeichner& z);
// Its middle: all figures that are switched on and visible, from the newest on.
void ZeichneKanten(const Bildvorlage& v, Zeichner& z);
void ZeichnePunkte(const Bildvorlage& v, Zeichner& z);
void ZeichneTexte(const Bildvorlage& v, Zeichner& z);

}  // namespace zrw
