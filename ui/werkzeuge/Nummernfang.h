// The number under the mouse: by its beginning, which is what the catch radius is about, else by the
// rectangle that its text takes.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "model/Ganzzahl.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

[[nodiscard]] inline PPunktString NummerUnter(const Werkzeugumgebung& umgebung, const Liste& netz,
                                              Bildpunkt maus) {
    if (!netz.ShowPktText || !netz.ShowHilfP) return nullptr;
    if (PPunktString t = netz.ClickGezeigtenText(maus); t != nullptr) return t;
    // How far the beginning may lie from the mouse.
    const Bildpunkt weit = umgebung.Textgroesse(std::string(PunktNummernTyp::kLaenge, 'W'));
    std::vector<PPunktString> nahe;
    netz.SammleTexte(netz, {Differenz(maus.x, weit.x), Differenz(maus.y, weit.y), maus.x, maus.y}, nahe);
    const auto trifft = [&](const PunktString* t) {
        const PunktKnoten* p = netz.SuchPkt(t->TNr);
        if (!t->Item->Visible || p == nullptr || !netz.Dargestellt(*p->Item)) return false;
        const Bildbereich r = umgebung.Textrahmen(*t);
        return r.links <= maus.x && maus.x <= r.rechts && r.oben <= maus.y && maus.y <= r.unten;
    };
    const auto treffer = std::find_if(nahe.begin(), nahe.end(), trifft);
    return treffer != nahe.end() ? *treffer : nullptr;
}

}  // namespace zrw
