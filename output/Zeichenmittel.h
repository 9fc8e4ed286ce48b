// What a drawing is made with, beside the plan that it shows (model/Bildvorlage.h).
#pragma once

#include "model/Einstellungen.h"
#include "model/Netzangaben.h"
#include "output/Uhr.h"
#include "output/Zeichenzustand.h"

namespace zrw {

/// All of it outlives the drawing.
struct Zeichenmittel {
    const Zeichenzustand& zustand;  ///< of the screen: other devices take their switches from it
    const Einstellungen& einstellungen;
    const Netzangaben& netz;  ///< for the map sheets
    const Uhr& uhr;           ///< for the legend
};

}  // namespace zrw
