#include "output/Geraeteansicht.h"

namespace zrw {

template <class Tun>
void Geraeteansicht::FuerJedePosition(Tun tun) {
    for (PPunktKnoten p = liste_.PunktKnoten; p != nullptr; p = p->Next) {
        tun(p->Item->XO);
        tun(p->Item->YO);
    }
    for (PPunktKante k = liste_.KanteKnoten; k != nullptr; k = k->Next) {
        tun(k->Item->XO);
        tun(k->Item->YO);
        tun(k->Item->XBiE);
        tun(k->Item->YBiE);
    }
    for (PPunktString t = liste_.PktTextKnoten; t != nullptr; t = t->Next) {
        tun(t->Item->XO);
        tun(t->Item->YO);
    }
}

Geraeteansicht::Geraeteansicht(Liste& liste, Zeichenzustand& zustand, double faktor, std::optional<Welt> ecke)
    : liste_(liste),
      zustand_(zustand),
      vorher_(zustand),
      faktor_(liste.Faktor),
      xOffset_(liste.XOffset),
      yOffset_(liste.YOffset),
      weite_(liste.Weite),
      hoehe_(liste.Hoehe),
      stand_(liste.Positionen()) {
    std::size_t anzahl = 0;
    FuerJedePosition([&](std::int64_t& /*wert*/) { ++anzahl; });
    positionen_.reserve(anzahl);
    FuerJedePosition([this](std::int64_t& wert) { positionen_.push_back(wert); });
    liste_.Faktor = faktor;
    if (ecke) {
        liste_.XOffset = ecke->rechts - liste_.MinXW;
        liste_.YOffset = ecke->hoch - liste_.MaxYW;
    }
    liste_.WeltinBild();
}

Geraeteansicht::~Geraeteansicht() {
    liste_.Faktor = faktor_;
    liste_.XOffset = xOffset_;
    liste_.YOffset = yOffset_;
    liste_.Weite = weite_;
    liste_.Hoehe = hoehe_;
    zustand_ = vorher_;
    auto naechste = positionen_.begin();
    FuerJedePosition([&](std::int64_t& wert) { wert = *naechste++; });
    liste_.SetzePositionen(stand_);
}

}  // namespace zrw
