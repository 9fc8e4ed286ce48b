// The one table of the display switches: check box of the window, name on the command line, switch of the
// network, and how it starts.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "model/Darstellung.h"
#include "model/Netzangaben.h"
#include "output/Zeichenzustand.h"

namespace zrw {

// What a switch is besides.
inline constexpr unsigned kImKartengitter = 1;       ///< only for networks that have a map grid
inline constexpr unsigned kSchliesstErgebnisse = 2;  ///< the results window goes
inline constexpr unsigned kNurBeiAbweichung =
    4;  ///< its box shows only where the map sheets would miss the points
inline constexpr unsigned kAusErgebnissen = 8;  ///< shows what the adjustment's tables hold
inline constexpr unsigned kBewegtSichNicht =
    16;  ///< while the picture is panned it stands still or is drawn anew

inline constexpr unsigned kInMetern = 32;        ///< nothing where coordinates are angles
inline constexpr unsigned kNurImMenue = 64;      ///< no check box in the panel
inline constexpr unsigned kBeiDerAusgabe = 128;  ///< in the menu of what goes onto paper
inline constexpr unsigned kAufPapier = 256;      ///< shows on sheets of paper only; the print dialogs have it

struct Schalter {
    std::string_view name;             ///< on the command line; empty: not there
    std::string_view komponente;       ///< object name of the check box; empty: no check box
    std::string_view beschriftung;     ///< caption, UTF-8
    std::string_view hinweis;          ///< hint, UTF-8
    bool Darstellung::*inDarstellung;  ///< switch of the plan, or null
    bool Zeichenzustand::*imZustand;   ///< switch of the whole program, or null
    bool anfangs;
    unsigned merkmale = 0;
    std::string_view satz = {};  ///< second line of the hint: what it does, UTF-8

    [[nodiscard]] constexpr bool HatMerkmal(unsigned merkmal) const { return (merkmale & merkmal) != 0; }
};

inline constexpr auto kSchalter = std::to_array<Schalter>({
    {"punktnummern", "CheckBoxPktNr", "Punktnummern", "Punktnummern EIN/AUS", &Darstellung::ShowPktText,
     nullptr, true, 0, "Zeichnet die Nummern aller Punkte."},
    {"beobachtungen", "CheckBoxBeob", "Beobachtungen", "Beobachtungen EIN/AUS", &Darstellung::ShowBeob,
     nullptr, true, 0, "Zeichnet die Linien aller Beobachtungen."},
    {"tk25", "CheckBoxGitter", "TK25", "TK25 Einteilung einblenden", &Darstellung::ShowGitter, nullptr, false,
     kImKartengitter | kBewegtSichNicht, "Zeichnet die Blätter der Karte 1:25 000 unter das Netz."},
    {"kmq", "CheckBoxKMQ", "Kilometerquadrat", "Kilometerquadrate einblenden", &Darstellung::ShowKMQ, nullptr,
     false, kImKartengitter | kBewegtSichNicht, "Zeichnet das Gitter der vollen Kilometer unter das Netz."},
    {"", "CheckBoxPreview", "Ausgabebereich", "Ausgabebereich einblenden", nullptr, nullptr, false, 0,
     "Zeigt, was im Druckmaßstab auf das Blatt passt."},
    {"legende", "", "Legende", "", &Darstellung::ShowLegende, nullptr, false, kBewegtSichNicht},
    {"lageverb", "CheckBoxLGRes", "Lageverbesserungen", "Verbesserungen dY und dX als Striche einblenden",
     &Darstellung::ShowLgRes, nullptr, false, kSchliesstErgebnisse | kAusErgebnissen | kBewegtSichNicht,
     "Wie lang sie gezeichnet werden, bestimmt der Residuenmaßstab."},
    {"hoehenverb", "CheckBoxHRes", "Höhenverbesserungen",
     "Verbesserungen dH als senkrechte Striche einblenden", &Darstellung::ShowHRes, nullptr, false,
     kSchliesstErgebnisse | kAusErgebnissen | kBewegtSichNicht,
     "Wie lang sie gezeichnet werden, bestimmt der Residuenmaßstab."},
    {"lagegen", "CheckBoxLgGen", "Lagegenauigkeit", "Fehlerellipsen einblenden", &Darstellung::ShowLGGen,
     nullptr, false, kSchliesstErgebnisse | kAusErgebnissen | kBewegtSichNicht,
     "Wie groß sie gezeichnet werden, bestimmt der Residuenmaßstab."},
    {"hoehengen", "CheckBoxHGen", "Höhengenauigkeit",
     "Standardabweichungen mH als senkrechte Balken einblenden", &Darstellung::ShowHGen, nullptr, false,
     kSchliesstErgebnisse | kAusErgebnissen | kBewegtSichNicht,
     "Wie lang sie gezeichnet werden, bestimmt der Residuenmaßstab."},
    {"koordinatenvergleich", "CheckBoxKooVergleich", "Koordinaten 2 minus Koordinaten",
     "Unterschied der zweiten Koordinaten zu den ausgeglichenen als Vektor einblenden",
     &Darstellung::ShowKooVergleich, nullptr, false, kAusErgebnissen | kNurImMenue | kBewegtSichNicht,
     "Wie lang er gezeichnet wird, bestimmt der Residuenmaßstab."},
    {"relative-ellipsen", "CheckBoxRelEllipsen", "Relative Ellipsen",
     "Fehlerellipsen zwischen den Punkten einer Linie einblenden", &Darstellung::ShowRelEllipsen, nullptr,
     false, kAusErgebnissen | kNurImMenue | kBewegtSichNicht,
     "Wie groß sie gezeichnet werden, bestimmt der Maßstab der Fehlerellipsen."},
    {"residuenpfeile", "CheckBoxResiduenPfeile", "Verbesserungen als Pfeile",
     "Verbesserungen mit Spitze und dickem Strich zeichnen", &Darstellung::Residuenpfeile, nullptr, false,
     kAusErgebnissen | kNurImMenue, "Sonst sind sie dünne Striche ohne Spitze."},
    {"ellipsen-gefuellt", "CheckBoxEllipsenGefuellt", "Fehlerellipsen gefüllt",
     "Fehlerellipsen durchscheinend füllen", &Darstellung::EllipsenGefuellt, nullptr, false,
     kAusErgebnissen | kNurImMenue, "Was darunter liegt, bleibt zu sehen."},
    {"ellipsen-95", "CheckBoxEllipsenSicher", "Fehlerellipsen für 95 %",
     "Ellipsen, in denen der Punkt mit 95 % liegt", &Darstellung::Ellipsen95, nullptr, false,
     kAusErgebnissen | kNurImMenue, "Ihre Halbachsen sind 2,448-mal so lang wie A und B."},
    {"fp", "CheckBoxFP", "FP", "Festpunkte darstellen", &Darstellung::ShowFP, nullptr, true,
     kSchliesstErgebnisse, "Zeichnet die Festpunkte mit ihren Nummern und Linien."},
    {"fh", "CheckBoxFH", "FH", "Höhenanschlusspunkte darstellen", &Darstellung::ShowFH, nullptr, true,
     kSchliesstErgebnisse, "Zeichnet die Höhenfestpunkte mit ihren Nummern und Linien."},
    {"np", "CheckBoxNP", "NP", "Neupunkte  darstellen", &Darstellung::ShowNP, nullptr, true,
     kSchliesstErgebnisse, "Zeichnet die Neupunkte mit ihren Nummern und Linien."},
    {"fl", "CheckBoxFL", "FL", "Lageanschlußpunkte darstellen", &Darstellung::ShowFL, nullptr, true,
     kSchliesstErgebnisse, "Zeichnet die Lagefestpunkte mit ihren Nummern und Linien."},
    {"hilfspunkte", "CheckBoxHilfspunkte", "Hilfspunkte", "Hilfspunkte darstellen", &Darstellung::ShowHilfP,
     nullptr, true, kSchliesstErgebnisse, "Ausgeschaltet fehlen alle Punktnummern."},
    {"massbalken", "CheckBoxMassbalken", "Maßstabsbalken",
     "Balken runder Länge in Metern unten rechts im Bild", &Darstellung::ShowMassbalken, nullptr, false,
     kInMetern | kBewegtSichNicht, "Fehlt bei Netzen, deren Koordinaten Winkel sind."},
    {"blattschnitt", "CheckBoxBlattschnitt", "Blattschnitt in der Abbildung der Punkte",
     "TK25 in Gauß-Krüger wie die Punkte, nicht in der Abbildung aus $KS", nullptr,
     &Zeichenzustand::BlattschnittWiePunkte, false, kNurBeiAbweichung,
     "Legt die Blätter dorthin, wo die Punkte liegen."},
    {"zeichenerklaerung", "CheckBoxZeichenerklaerung", "Zeichenerklärung",
     "Kasten mit den Linien, Zeichen und Farben dieses Plans einblenden", &Darstellung::ShowErklaerung,
     nullptr, false, kNurImMenue | kBeiDerAusgabe | kBewegtSichNicht,
     "Steht oben rechts und lässt sich mit der Maus verschieben."},
    {"halo", "CheckBoxHalo", "Nummern mit weißem Rand", "Punktnummern von den Linien unter ihnen absetzen",
     nullptr, &Zeichenzustand::Halo, false, kNurImMenue, "DXF und Plotdatei kennen keinen Rand."},
    {"kurznr", "CheckBoxALKKurz", "Kurze ALK NR", "Punktnummern ohne ihre ersten vier Zeichen", nullptr,
     &Zeichenzustand::KurzeNummern, false, 0, "Gespeichert und ausgegeben wird immer die volle Nummer."},
    {"blattrahmen", "", "Blattrahmen", "Rahmen mit Schriftfeld um jedes Blatt", nullptr,
     &Zeichenzustand::Blattrahmen, false, kAufPapier},
    {"gitter-schlicht", "", "Gitter auf Papier schlicht",
     "Gitterlinien auf Papier dünn, hell und am Rand beziffert", nullptr, &Zeichenzustand::GitterSchlicht,
     false, kAufPapier},
});
/// For assertions: no two switches of one name, and each switches one thing at most.
[[nodiscard]] consteval bool SchalterEindeutig() {
    for (std::size_t i = 0; i < kSchalter.size(); ++i) {
        if (kSchalter[i].inDarstellung != nullptr && kSchalter[i].imZustand != nullptr) return false;
        for (std::size_t k = 0; k < i; ++k) {
            if (!kSchalter[i].name.empty() && kSchalter[i].name == kSchalter[k].name) return false;
        }
    }
    return true;
}
static_assert(SchalterEindeutig(), "a name and a switch of its own for each row");

/// Whether one of the switches with this mark is on in the plan.
[[nodiscard]] inline bool EinerAn(const Darstellung& d, unsigned merkmal) {
    return std::any_of(kSchalter.begin(), kSchalter.end(), [&](const Schalter& s) {
        return s.HatMerkmal(merkmal) && s.inDarstellung != nullptr && d.*s.inDarstellung;
    });
}

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

/// Why lengths mean nothing in a network whose coordinates are angles, UTF-8.
inline constexpr std::string_view kKeineMeter =
    "Die Koordinaten dieses Netzes sind Winkel: Es gibt keinen Maßstab in Metern.";

/// Puts one switch into effect.
inline void StelleEin(const Schalter& s, bool ein, Darstellung* darstellung, const Netzangaben& netz,
                      Zeichenzustand& zustand) {
    if (s.HatMerkmal(kImKartengitter) && !HatKartengitter(netz.Netztyp)) ein = false;
    if (s.inDarstellung != nullptr && darstellung != nullptr) darstellung->*s.inDarstellung = ein;
    if (s.imZustand != nullptr) zustand.*s.imZustand = ein;
}

}  // namespace zrw
