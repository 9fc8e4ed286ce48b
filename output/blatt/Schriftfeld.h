// The title block of a sheet: what stands in it, and how it is drawn.
#pragma once

#include <string>

#include "output/Zeichenflaeche.h"
#include "output/blatt/Blattlayout.h"

namespace zrw {

/// Code page 1252; empty ones leave their field blank, to be filled in by hand.
struct Schriftfeldtexte {
    std::string firma;
    std::string projekt;
    std::string titel;  ///< the two lines of the legend
    std::string untertitel;
    std::string massstab;
    std::string koordinatensystem;
    std::string datum;
    std::string bearbeiter;
    std::string datei;
    std::string blatt;
    std::string unterschrift;  ///< always blank
};

/// Text in one line, with its end left out where it does not fit. @param breite [dots]
[[nodiscard]] std::string Gekuerzt(const Zeichenflaeche& flaeche, const std::string& text,
                                   std::int32_t breite);

/// Black, with pens of their own.
void ZeichneSchriftfeld(Zeichenflaeche& flaeche, const Rechteck& feld, const Papiermass& mass,
                        const Schriftfeldtexte& texte);

}  // namespace zrw
