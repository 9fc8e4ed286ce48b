// The one table of the display switches: check box of the window, name on the command line, switch of the
// network, and how it starts.
#pragma once

#include <array>
#include <string_view>

#include "model/Darstellung.h"
#include "model/Netzangaben.h"
#include "output/Zeichenzustand.h"

namespace zrw {

struct Schalter {
    std::string_view name;            ///< on the command line; empty: not there
    std::string_view komponente;      ///< object name of the check box; empty: no check box
    std::string_view beschriftung;    ///< caption, UTF-8
    std::string_view hinweis;         ///< hint, UTF-8
    bool Darstellung::*inListe;       ///< display switch of the network, or null
    bool Zeichenzustand::*imZustand;  ///< switch of the whole program, or null
    bool anfangs;
    bool imKartengitter = false;       ///< only for networks that have a map grid
    bool schliesstErgebnisse = false;  ///< the results window goes
    bool nurBeiAbweichung = false;     ///< its box shows only where the map sheets would miss the points
};

inline constexpr std::array<Schalter, 17> kSchalter{{
    {"punktnummern", "CheckBoxPktNr", "Punktnummern", "Punktnummern EIN/AUS", &Darstellung::ShowPktText,
     nullptr, true},
    {"beobachtungen", "CheckBoxBeob", "Beobachtungen", "Beobachtungen EIN/AUS", &Darstellung::ShowBeob,
     nullptr, true},
    {"tk25", "CheckBoxGitter", "TK25", "TK25 Einteilung einblenden", &Darstellung::ShowGitter, nullptr, false,
     true},
    {"kmq", "CheckBoxKMQ", "Kilometerquadrat", "Kilometerquadrate einblenden", &Darstellung::ShowKMQ, nullptr,
     false, true},
    {"", "CheckBoxPreview", "Ausgabebereich", "Ausgabebereich einblenden", nullptr, nullptr, false},
    {"legende", "", "Legende", "", &Darstellung::ShowLegende, nullptr, false},
    {"lageverb", "CheckBoxLGRes", "Lageverbesserungen", "Verbesserungen dY und dX als Striche einblenden",
     &Darstellung::ShowLgRes, nullptr, false, false, true},
    {"hoehenverb", "CheckBoxHRes", "Höhenverbesserungen",
     "Verbesserungen dH als senkrechte Striche einblenden", &Darstellung::ShowHRes, nullptr, false, false,
     true},
    {"lagegen", "CheckBoxLgGen", "Lagegenauigkeit", "Fehlerellipsen einblenden", &Darstellung::ShowLGGen,
     nullptr, false, false, true},
    {"hoehengen", "CheckBoxHGen", "Höhengenauigkeit",
     "Standardabweichungen mH als senkrechte Balken einblenden", &Darstellung::ShowHGen, nullptr, false,
     false, true},
    {"fp", "CheckBoxFP", "FP", "Festpunkte darstellen", &Darstellung::ShowFP, nullptr, true, false, true},
    {"fh", "CheckBoxFH", "FH", "Höhenanschlusspunkte darstellen", &Darstellung::ShowFH, nullptr, true, false,
     true},
    {"np", "CheckBoxNP", "NP", "Neupunkte  darstellen", &Darstellung::ShowNP, nullptr, true, false, true},
    {"fl", "CheckBoxFL", "FL", "Lageanschlußpunkte darstellen", &Darstellung::ShowFL, nullptr, true, false,
     true},
    {"hilfspunkte", "CheckBoxHilfspunkte", "Hilfspunkte", "Hilfspunkte darstellen", &Darstellung::ShowHilfP,
     nullptr, true, false, true},
    {"blattschnitt", "CheckBoxBlattschnitt", "Blattschnitt in der Abbildung der Punkte",
     "TK25 in Gauß-Krüger wie die Punkte, nicht in der Abbildung aus $KS", nullptr,
     &Zeichenzustand::BlattschnittWiePunkte, false, false, false, true},
    {"kurznr", "CheckBoxALKKurz", "Kurze ALK NR", "Punktnummern ohne ihre ersten vier Zeichen", nullptr,
     &Zeichenzustand::KurzeNummern, false},
}};

/// Whether the map sheets follow a projection that the points are not in.
[[nodiscard]] constexpr bool BlattschnittWeichtAb(const Netzangaben& netz) {
    return PunkteInGaussKrueger(netz.Netztyp) && netz.Abbildungsmodus != 0;
}

/// What is said where map sheets are switched on and lie elsewhere, UTF-8; empty where all is well.
[[nodiscard]] inline std::string_view Blattschnitthinweis(const Darstellung& darstellung,
                                                          const Netzangaben& netz,
                                                          const Zeichenzustand& zustand) {
    if (!darstellung.ShowGitter || zustand.BlattschnittWiePunkte || !BlattschnittWeichtAb(netz)) return {};
    return "TK25 folgt der Abbildung aus $KS, die Punkte liegen in Gauß-Krüger: Die Blätter erscheinen nicht "
           "beim "
           "Netz. Schalter „Blattschnitt in der Abbildung der Punkte“ legt sie darunter.";
}

/// Puts one switch into effect.
inline void Schalte(const Schalter& s, bool ein, Darstellung* darstellung, const Netzangaben& netz,
                    Zeichenzustand& zustand) {
    if (s.imKartengitter && !HatKartengitter(netz.Netztyp)) ein = false;
    if (s.inListe != nullptr && darstellung != nullptr) darstellung->*s.inListe = ein;
    if (s.imZustand != nullptr) zustand.*s.imZustand = ein;
}

}  // namespace zrw
