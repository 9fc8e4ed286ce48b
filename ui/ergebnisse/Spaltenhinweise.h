// What the columns of the result tables hold, told where the mouse rests on a heading. What a quality column
// means, and in which unit, is the adjustment's own: the tables do not define it.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "model/Aufzaehltafel.h"

namespace zrw {

struct Spaltenhinweis {
    std::string_view feld;
    std::string_view text;  ///< UTF-8
};

/// Column of the vectors of a line that tells those that lead back.
inline constexpr std::string_view kGegenrichtung = "Richtung";

/// Case matters: "dX" corrects a coordinate, "DX" is part of a vector.
inline constexpr auto kSpaltenhinweise = std::to_array<Spaltenhinweis>({
    {"ID", "laufende Nummer"},
    {"PKT", "Punktnummer"},
    {"P1", "Nummer des ersten Punktes"},
    {"P2", "Nummer des zweiten Punktes"},
    {"PS", "Nummer des Standpunkts"},
    {"PZ", "Nummer des Zielpunkts"},
    {"PA", "Nummer des Anfangspunkts"},
    {"PE", "Nummer des Endpunkts"},
    {kGegenrichtung, "ob der Vektor vom zweiten Punkt der Linie zum ersten führt"},
    {"Sgem", "gemessene Strecke [m]"},
    {"Sger", "gerechnete Strecke [m]"},
    {"vS", "Abweichung der Strecken [m]"},
    {"Dzul", "zulässige Abweichung [m]"},
    {"LG", "in der Regel Lagegenauigkeit"},
    {"Satz", "Richtungssatz"},
    {"NIV", "Code des Punktes"},
    {"NIVP1", "Code des ersten Punktes"},
    {"NIVP2", "Code des zweiten Punktes"},
    {"D", "beobachteter Vektor"},
    {"DH", "beobachteter Höhenunterschied [m]"},
    {"ST", "Strecke [m]; in den Reitern der Koordinaten die Punktart"},
    {"RI", "Richtung; bei Strecken der Richtungswinkel [gon]"},
    {"V", "Verbesserung"},
    {"VS", "Verbesserung der Strecke"},
    {"VR", "Verbesserung der Richtung"},
    {"VH", "Verbesserung der Höhe"},
    {"VL", "Verbesserung längs der Linie"},
    {"VQ", "Verbesserung quer zur Linie"},
    {"QA", "in der Regel Querabweichung der Richtung"},
    {"TG", "in der Regel Testgröße: Verbesserung durch ihre Standardabweichung"},
    {"EV", "in der Regel Redundanzanteil, 0 bis 1"},
    {"VMF", "in der Regel Standardabweichung der Verbesserung"},
    {"NMF", "in der Regel Standardabweichung der ausgeglichenen Beobachtung"},
    {"GF", "in der Regel geschätzter grober Fehler; in den Prüfungen: als grob falsch bezeichnet"},
    {"GRZW", "in der Regel Grenzwert: kleinster grober Fehler, der auffällt"},
    {"EGRZW", "in der Regel Einfluss des Grenzwerts auf den Punkt"},
    {"EF", "in der Regel Einflussfaktor"},
    {"EP", "in der Regel Einfluss des groben Fehlers auf den Punkt"},
    {"EH", "in der Regel Einfluss des groben Fehlers auf die Höhe"},
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
    {"vP", "in der Regel Verbesserung der Lage"},
    {"dY", "in der Regel Verbesserung des Rechtswerts [mm]"},
    {"dX", "in der Regel Verbesserung des Hochwerts [mm]"},
    {"dH", "in der Regel Verbesserung der Höhe [mm]"},
    {"dP", "in der Regel Verbesserung der Lage [mm]"},
    {"mY", "in der Regel Standardabweichung des Rechtswerts [mm]"},
    {"mX", "in der Regel Standardabweichung des Hochwerts [mm]"},
    {"mH", "in der Regel Standardabweichung der Höhe [mm]"},
    {"mL", "in der Regel Standardabweichung der Lage [mm]"},
    {"A", "in der Regel große Halbachse der Fehlerellipse [mm]"},
    {"B", "in der Regel kleine Halbachse der Fehlerellipse [mm]"},
    {"Phi", "in der Regel Richtung der großen Halbachse [gon]"},
    {"LS", "in der Regel Lagestatus"},
    {"Zeit", "Zeit der Messung"},
});

static_assert(Verschieden(kSpaltenhinweise, &Spaltenhinweis::feld));

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
