// What the adjustment found for every observation of the network, from all its tables in one form. A value,
// taken from one state of the files. Not in here: the files (input/tabellen/Beobachtungsleser.h), how rows
// are sorted and filtered (Listenordnung.h).
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Aufzaehltafel.h"
#include "model/Werte.h"

namespace zrw {

/// The tables that hold observations or checks of them, in the order of lists.
enum class Beobachtungstabelle : std::uint8_t {
    Strecken,
    Richtungen,
    Hoehenunterschiede,
    Gps,
    GpsPunkte3D,
    GpsPunkte2D,
    Linien,
    Streckenkontrollen,
    Anzahl
};

struct Beobachtungsgattung {
    Beobachtungstabelle tabelle;
    std::string_view name;      ///< of the table
    std::string_view einzahl;   ///< of what it holds, UTF-8
    std::string_view mehrzahl;  ///< UTF-8
};

inline constexpr auto kBeobachtungsgattungen = std::to_array<Beobachtungsgattung>({
    {Beobachtungstabelle::Strecken, "STRTABLE", "Strecke", "Strecken"},
    {Beobachtungstabelle::Richtungen, "RTGTABLE", "Richtung", "Richtungen"},
    {Beobachtungstabelle::Hoehenunterschiede, "DHTABLE", "Höhenunterschied", "Höhenunterschiede"},
    {Beobachtungstabelle::Gps, "GPSTABLE", "GPS-Vektor", "GPS-Vektoren"},
    {Beobachtungstabelle::GpsPunkte3D, "WGSTABLE", "GPS-Punkt 3D", "GPS-Punkte 3D"},
    {Beobachtungstabelle::GpsPunkte2D, "WGSYXTABLE", "GPS-Punkt 2D", "GPS-Punkte 2D"},
    {Beobachtungstabelle::Linien, "MLTABLE", "Linienprüfung", "Linienprüfungen"},
    {Beobachtungstabelle::Streckenkontrollen, "STRKTRTable", "Streckenprüfung", "Streckenprüfungen"},
});
static_assert(InReihe(kBeobachtungsgattungen, &Beobachtungsgattung::tabelle));

inline constexpr std::size_t kGattungen = kBeobachtungsgattungen.size();

[[nodiscard]] constexpr const Beobachtungsgattung& ZurGattung(Beobachtungstabelle t) {
    return kBeobachtungsgattungen[static_cast<std::size_t>(t)];
}

/// The numbers of an observation. What they mean, and in which unit, is the adjustment's own.
/// The last three are those of the ellipse of one end against the other.
enum class Messwert : std::uint8_t { Wert, V, TG, EV, GF, GRZW, EP, NMF, RelA, RelB, RelPhi, Anzahl };

/// Of several values of a column, of components or of the observations of a line, which one counts.
enum class Auswahlregel : std::uint8_t { GroessterBetrag, Kleinster };

struct Messwertspalte {
    Messwert wert;
    std::string_view name;
    std::string_view bezeichnung;  ///< what it usually is, UTF-8
    Auswahlregel regel = Auswahlregel::GroessterBetrag;
};

inline constexpr auto kMesswerte = std::to_array<Messwertspalte>({
    {Messwert::Wert, "Wert", "beobachteter Wert"},
    {Messwert::V, "V", "Verbesserung"},
    {Messwert::TG, "TG", "Testgröße"},
    {Messwert::EV, "EV", "Redundanzanteil", Auswahlregel::Kleinster},
    {Messwert::GF, "GF", "geschätzter grober Fehler"},
    {Messwert::GRZW, "GRZW", "Grenzwert"},
    {Messwert::EP, "EP", "Einfluss auf den Punkt"},
    {Messwert::NMF, "NMF", "Standardabweichung der ausgeglichenen Beobachtung"},
    {Messwert::RelA, "relA", "große Halbachse der relativen Ellipse"},
    {Messwert::RelB, "relB", "kleine Halbachse der relativen Ellipse"},
    {Messwert::RelPhi, "relPhi", "Richtung der großen Halbachse der relativen Ellipse"},
});
static_assert(InReihe(kMesswerte, &Messwertspalte::wert));

[[nodiscard]] constexpr const Messwertspalte& ZurSpalte(Messwert w) {
    return kMesswerte[static_cast<std::size_t>(w)];
}

inline constexpr double kKeinWert = std::numeric_limits<double>::quiet_NaN();
/// Test values are judged by this where nobody chooses another limit.
inline constexpr double kUeblicheTestgrenze = 3.29;

/// The one of two values that counts, either of which may be missing (not a number).
[[nodiscard]] double WaehleWert(Auswahlregel regel, double a, double b);

/// A row of a table.
struct Beobachtung {
    std::array<double, kMesswerte.size()> werte{};  ///< not a number where it is missing; EV 0 to 1
    std::int64_t id = 0;
    PunktNummernTyp von;   ///< of points the point
    PunktNummernTyp nach;  ///< of points empty
    Beobachtungstabelle tabelle = Beobachtungstabelle::Strecken;
    bool idBekannt = false;
    bool ff = false;  ///< flagged as a gross error
    bool nk = false;  ///< not controlled by others

    [[nodiscard]] double Wert(Messwert w) const { return werte[static_cast<std::size_t>(w)]; }
};

/// What became of a table.
enum class Lesezustand : std::uint8_t {
    Fehlt,     ///< no file
    Gelesen,   ///< as it now is
    Unlesbar,  ///< there, but damaged or locked: none of its rows is in the list
};

struct Tabellenlage {
    Lesezustand zustand = Lesezustand::Fehlt;
    bool hatFF = false;  ///< the file has that field
    bool hatNK = false;
    bool prozent = false;  ///< its EV were in per cent
    std::array<bool, kMesswerte.size()> hat{};
    std::size_t anfang = 0;  ///< its rows in the list
    std::size_t ende = 0;
    std::string grund{};  ///< why it could not be read, UTF-8

    [[nodiscard]] bool HatWert(Messwert w) const { return hat[static_cast<std::size_t>(w)]; }
    [[nodiscard]] std::size_t Anzahl() const { return ende - anfang; }
};

struct Beobachtungsliste {
    std::vector<Beobachtung> zeilen;  ///< table by table in their order, each in the order of its file
    std::array<Tabellenlage, kGattungen> tabellen{};
    bool hatRelative = false;  ///< there is a table of relative ellipses

    [[nodiscard]] const Tabellenlage& Lage(Beobachtungstabelle t) const {
        return tabellen[static_cast<std::size_t>(t)];
    }
    [[nodiscard]] std::span<const Beobachtung> Zeilen(Beobachtungstabelle t) const {
        return std::span(zeilen).subspan(Lage(t).anfang, Lage(t).Anzahl());
    }
};

}  // namespace zrw
