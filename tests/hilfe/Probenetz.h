// A small network for tests, built in one line a figure, with everything it needs to live.
#pragma once

#include <string_view>

#include "model/Einstellungen.h"
#include "model/FigListe.h"
#include "tests/hilfe/MerkZeichner.h"

namespace zrw {

struct Probenetz {
    Einstellungen e;
    Liste l{e};
    MerkZeichner z;

    /// Counts as every adder does. World position [m].
    PunktKnoten& P(PunktIndex nr, double rechts = 0, double hoch = 0, PunktArt art = PunktArt::FP) {
        Punkt p = Punkt::Create(PunktTyp::Krei, kSchwarz, PunktAttr::Em);
        p.PktArt = art;
        ++l.MaxPkte;
        return l.AddPunkt(p, {rechts, hoch}, nr);
    }
    PunktString& T(PunktIndex nr, std::string_view text) {
        return l.AddPktText(PktText::Create(text, kSchwarz, e), nr);
    }
    PunktKante& K(PunktIndex a, PunktIndex e2, LinieAttr attr = LinieAttr::Null) {
        ++l.MaxKant;
        return l.AddKante(Kante::Create(kSchwarz, KanteAttr::ST, attr), a, e2);
    }
};

}  // namespace zrw
