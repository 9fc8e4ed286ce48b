// The nodes of the three lists of a network. A node ties a figure to world coordinates or to the internal
// numbers of its points; node and figure live in the arena of their `Netz`. `Folge` counts the nodes of one
// list in the order of adding: every list runs from the highest to the lowest.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

#include "model/Figuren.h"
#include "model/Werte.h"

namespace zrw {

/// Node of a point.
struct PunktKnoten {
    // `Netz::VersetzePunkt` changes the two.
    double XWPu = 0.0;  ///< easting [m], maps to the picture's horizontal axis
    double YWPu = 0.0;  ///< northing [m], grows upwards
    PunktIndex PNr = kKeinPunkt;
    std::uint32_t Folge = 0;
    Punkt* Item = nullptr;
    PunktKnoten* Next = nullptr;
};
using PPunktKnoten = PunktKnoten*;

/// Node of an observation line.
struct PunktKante {
    PunktIndex ANr = kKeinPunkt;  ///< start point
    PunktIndex ENr = kKeinPunkt;  ///< end point
    std::uint32_t Folge = 0;
    Kante* Item = nullptr;
    PunktKante* Next = nullptr;
};
using PPunktKante = PunktKante*;

/// Node of a point-number label.
struct PunktString {
    PunktIndex TNr = kKeinPunkt;
    std::uint32_t Folge = 0;
    PktText* Item = nullptr;
    PunktString* Next = nullptr;
};
using PPunktString = PunktString*;

// A node and its figure as they stand in the arena, at the place that `Folge` names.
struct PunktPlatz {
    PunktKnoten knoten;
    Punkt figur;
};
struct KantePlatz {
    PunktKante knoten;
    Kante figur;
};
struct TextPlatz {
    PunktString knoten;
    PktText figur;
};

using Textmenge = std::unordered_set<const PunktString*>;

/// Figures of one list.
struct Figurenmenge {
    std::vector<PunktKnoten*> punkte;
    std::vector<PunktKante*> kanten;
    std::vector<PunktString*> texte;

    [[nodiscard]] std::size_t Anzahl() const { return punkte.size() + kanten.size() + texte.size(); }
    void NimmFiguren(const Figurenmenge& m) {
        punkte.insert(punkte.end(), m.punkte.begin(), m.punkte.end());
        kanten.insert(kanten.end(), m.kanten.begin(), m.kanten.end());
        texte.insert(texte.end(), m.texte.begin(), m.texte.end());
    }
};

/// A figure that was taken out of its list. Its `Folge` tells where it belongs.
template <class Knoten>
struct Platz {
    Knoten* knoten = nullptr;
    bool sichtbar = false;
};

/// Figures that were taken out together.
struct Herausnahme {
    Platz<PunktKnoten> punkt;
    Platz<PunktString> text;
    std::vector<Platz<PunktKante>> kanten;  ///< newest first
};

}  // namespace zrw
