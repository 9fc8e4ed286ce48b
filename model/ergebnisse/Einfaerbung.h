// Lines by a value of their observations, points by their accuracy, and which lines are drawn at all: what
// the user chooses, and the styles that follow from it.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Netz.h"
#include "model/Punktergebnisse.h"
#include "model/ergebnisse/Beobachtungsliste.h"
#include "model/ergebnisse/Figurenstile.h"
#include "model/ergebnisse/Klassen.h"

namespace zrw {

enum class Farbgroesse : std::uint8_t { TG, EV, GF, V, NMF, GRZW, EP, Wert, mL, mH, A, dP, Anzahl };

/// What figures are coloured by: a value of lines, or one of points.
struct Farbgroessenzeile {
    Farbgroesse groesse;
    std::string_view name;         ///< on the command line
    std::string_view bezeichnung;  ///< UTF-8
    std::optional<Messwert> wert{};
    double Punktergebnis::*ergebnis = nullptr;
    bool nurJeGattung = false;  ///< of different kinds they cannot be compared
};

inline constexpr auto kFarbgroessen = std::to_array<Farbgroessenzeile>({
    {Farbgroesse::TG, "TG", "Testgröße", Messwert::TG},
    {Farbgroesse::EV, "EV", "Redundanzanteil", Messwert::EV},
    {Farbgroesse::GF, "GF", "geschätzter grober Fehler", Messwert::GF},
    {Farbgroesse::V, "V", "Verbesserung", Messwert::V, nullptr, true},
    {Farbgroesse::NMF, "NMF", "Standardabweichung, ausgeglichen", Messwert::NMF},
    {Farbgroesse::GRZW, "GRZW", "Grenzwert", Messwert::GRZW},
    {Farbgroesse::EP, "EP", "Einfluss auf den Punkt", Messwert::EP},
    {Farbgroesse::Wert, "Wert", "beobachteter Wert", Messwert::Wert, nullptr, true},
    {Farbgroesse::mL, "mL", "Punkte: Standardabweichung der Lage", {}, &Punktergebnis::mL},
    {Farbgroesse::mH, "mH", "Punkte: Standardabweichung der Höhe", {}, &Punktergebnis::mH},
    {Farbgroesse::A, "A", "Punkte: große Halbachse", {}, &Punktergebnis::A},
    {Farbgroesse::dP, "dP", "Punkte: Verbesserung der Lage", {}, &Punktergebnis::dP},
});
static_assert(InReihe(kFarbgroessen, &Farbgroessenzeile::groesse));
static_assert(Verschieden(kFarbgroessen, &Farbgroessenzeile::name));

[[nodiscard]] constexpr const Farbgroessenzeile& ZurGroesse(Farbgroesse g) {
    return kFarbgroessen[static_cast<std::size_t>(g)];
}

/// Sensible first classes of a value.
[[nodiscard]] Klassenwahl UeblicheKlassen(Farbgroesse g);

struct Einfaerbung {
    Farbgroesse groesse = Farbgroesse::TG;
    std::optional<Beobachtungstabelle> gattung{};  ///< rows of this table alone
    Klassenwahl klassen = UeblicheKlassen(Farbgroesse::TG);
    Klassenfarben farben = Klassenfarben::Magma;
    friend bool operator==(const Einfaerbung&, const Einfaerbung&) = default;
};

/// Rising finite numbers between commas; none where the text is something else.
[[nodiscard]] std::vector<double> LiesGrenzen(std::string_view text);

/// Reads "TG", "TG:1,2,3.3", "mL:quantile", "EV:gleich4". @return or what is wrong with it, German
struct Einfaerbungstext {
    std::optional<Einfaerbung> wahl{};
    std::string fehler{};
};
[[nodiscard]] Einfaerbungstext LiesEinfaerbung(std::string_view text);
/// The same text for a choice.
[[nodiscard]] std::string SchreibeEinfaerbung(const Einfaerbung& e);

/// The kinds of observations that a line may carry.
enum class Linienkategorie : std::uint8_t { Richtungen, Strecken, Hoehen, Gps, Anzahl };

struct Kategoriezeile {
    Linienkategorie kategorie;
    std::string_view name;         ///< on the command line
    std::string_view bezeichnung;  ///< UTF-8
    Beobachtungstabelle tabelle;   ///< that its observations stand in
};

inline constexpr auto kLinienkategorien = std::to_array<Kategoriezeile>({
    {Linienkategorie::Richtungen, "richtungen", "Richtungen", Beobachtungstabelle::Richtungen},
    {Linienkategorie::Strecken, "strecken", "Strecken", Beobachtungstabelle::Strecken},
    {Linienkategorie::Hoehen, "hoehen", "Höhenunterschiede", Beobachtungstabelle::Hoehenunterschiede},
    {Linienkategorie::Gps, "gps", "GPS-Vektoren", Beobachtungstabelle::Gps},
});
static_assert(InReihe(kLinienkategorien, &Kategoriezeile::kategorie));

/// Whether a line carries an observation of the kind.
[[nodiscard]] bool Traegt(const Kante& kante, Linienkategorie kategorie);

/// Which lines are drawn; as it begins, all.
struct Linienfilter {
    /// Lines that carry one of these; none set: all lines.
    std::array<bool, kLinienkategorien.size()> kategorien{};
    PunktIndex station = kKeinPunkt;      ///< lines of this point
    std::optional<std::size_t> klasse{};  ///< lines of this class of the colouring
    [[nodiscard]] bool AlleKategorien() const;
    [[nodiscard]] bool Wirkt() const { return !AlleKategorien() || station != kKeinPunkt || klasse; }
    friend bool operator==(const Linienfilter&, const Linienfilter&) = default;
};

struct Planfaerbung {
    std::optional<Einfaerbung> einfaerbung{};
    Linienfilter filter{};
    [[nodiscard]] bool Wirkt() const { return einfaerbung || filter.Wirkt(); }
};

/// The styles of a network; null where nothing is chosen. Of several rows of a line the least EV counts, of
/// every other value the largest amount; where that row is not controlled, the line has the style of those.
/// @param ergebnisse of the points, as they now are; may be null
[[nodiscard]] std::shared_ptr<const Figurenstile> BaueStile(const Netz& netz, const Planfaerbung& wahl,
                                                            const Beobachtungsliste& liste,
                                                            const Punktergebnisse* ergebnisse);

}  // namespace zrw
