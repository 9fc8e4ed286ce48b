// All that drawing needs round a surface.
#pragma once

#include "model/Netzangaben.h"
#include "output/Figurenzeichner.h"
#include "tests/hilfe/Festuhr.h"

namespace zrw {

template <class Flaeche>
struct Zeichentafel {
    Zeichentafel(int weite, int hoehe, const Einstellungen& e, bool abkuerzungen = true)
        : flaeche(weite, hoehe), zeichner(zustand, e, netz, uhr) {
        zustand.flaeche = &flaeche;
        zustand.Abkuerzungen = abkuerzungen;
    }
    explicit Zeichentafel(const Einstellungen& e) : zeichner(zustand, e, netz, uhr) {
        zustand.flaeche = &flaeche;
    }
    Flaeche flaeche;
    Netzangaben netz;
    Zeichenzustand zustand;
    Festuhr uhr;
    Figurenzeichner zeichner;
};

}  // namespace zrw
