// What the columns of the result tables hold, told where the mouse rests on a heading.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zrw {

struct Spaltenhinweis {
    std::string_view feld;
    std::string_view text;  ///< UTF-8
};

/// Case matters: "dX" corrects a coordinate, "DX" is part of a vector.
inline constexpr std::array<Spaltenhinweis, 59> kSpaltenhinweise{{
    {"ID", "laufende Nummer"},
    {"PKT", "Punktnummer"},
    {"P1", "Nummer des ersten Punktes"},
    {"P2", "Nummer des zweiten Punktes"},
    {"PS", "Nummer des Standpunkts"},
    {"PZ", "Nummer des Zielpunkts"},
    {"Satz", "Richtungssatz"},
    {"NIV", "Code des Punktes"},
    {"NIVP1", "Code des ersten Punktes"},
    {"NIVP2", "Code des zweiten Punktes"},
    {"D", "beobachteter Vektor"},
    {"DH", "beobachteter Höhenunterschied [m]"},
    {"ST", "Strecke [m]; im Reiter Koordinaten die Punktart"},
    {"RI", "Richtung; bei Strecken der Richtungswinkel [gon]"},
    {"V", "Verbesserung"},
    {"VS", "Verbesserung der Strecke"},
    {"VR", "Verbesserung der Richtung"},
    {"VH", "Verbesserung der Höhe"},
    {"VL", "Verbesserung längs der Linie"},
    {"VQ", "Verbesserung quer zur Linie"},
    {"QA", "Querabweichung der Richtung"},
    {"TG", "Testgröße: Verbesserung durch ihre Standardabweichung"},
    {"EV", "Redundanzanteil, 0 bis 1"},
    {"VMF", "Standardabweichung der Verbesserung"},
    {"NMF", "Standardabweichung der ausgeglichenen Beobachtung"},
    {"GF", "geschätzter grober Fehler"},
    {"GRZW", "Grenzwert: kleinster grober Fehler, der auffällt"},
    {"EGRZW", "Einfluss des Grenzwerts auf den Punkt"},
    {"EF", "Einflussfaktor"},
    {"EP", "Einfluss des groben Fehlers auf den Punkt"},
    {"EH", "Einfluss des groben Fehlers auf die Höhe"},
    {"NK", "nicht kontrolliert"},
    {"NKD", "nicht kontrolliert"},
    {"FF", "als grob falsch bezeichnet"},
    {"X", "Hochwert [m]"},
    {"Y", "Rechtswert [m]"},
    {"H", "Höhe [m]"},
    {"UND", "Undulation [m]"},
    {"X(GPS)", "geozentrische Koordinate X aus GPS [m]"},
    {"Y(GPS)", "geozentrische Koordinate Y aus GPS [m]"},
    {"Z(GPS)", "geozentrische Koordinate Z aus GPS [m]"},
    {"vX(GPS)", "Verbesserung der geozentrischen Koordinate X"},
    {"vY(GPS)", "Verbesserung der geozentrischen Koordinate Y"},
    {"vZ(GPS)", "Verbesserung der geozentrischen Koordinate Z"},
    {"v", "Verbesserung"},
    {"vP", "Verbesserung der Lage"},
    {"dY", "Verbesserung des Rechtswerts [mm]"},
    {"dX", "Verbesserung des Hochwerts [mm]"},
    {"dH", "Verbesserung der Höhe [mm]"},
    {"dP", "Verbesserung der Lage [mm]"},
    {"mY", "Standardabweichung des Rechtswerts [mm]"},
    {"mX", "Standardabweichung des Hochwerts [mm]"},
    {"mH", "Standardabweichung der Höhe [mm]"},
    {"mL", "Standardabweichung der Lage [mm]"},
    {"A", "große Halbachse der Fehlerellipse [mm]"},
    {"B", "kleine Halbachse der Fehlerellipse [mm]"},
    {"Phi", "Richtung der großen Halbachse [gon]"},
    {"LS", "Lagestatus"},
    {"Zeit", "Zeit der Messung"},
}};

/// The row of the field or, where it has none, that of the part that it is: "VMFX" is "VMF" along X.
/// @return empty for fields that nobody knows
[[nodiscard]] inline std::string Hinweistext(std::string_view feld) {
    const auto suche = [](std::string_view name) {
        for (const Spaltenhinweis& h : kSpaltenhinweise) {
            if (h.feld == name) return std::string(h.text);
        }
        return std::string();
    };
    std::string text = suche(feld);
    if (!text.empty() || feld.size() < 2) return text;
    text = suche(feld.substr(0, feld.size() - 1));
    return text.empty() ? text : text + ", Anteil " + std::string(feld.substr(feld.size() - 1));
}

}  // namespace zrw
