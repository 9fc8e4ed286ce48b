// Which rows of the list of observations are shown, and in which order.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "model/Aufzaehltafel.h"
#include "model/ergebnisse/Beobachtungsliste.h"

namespace zrw {

/// Columns of the list, and of the file that is written of it.
enum class Listenspalte : std::uint8_t {
    Tabelle,
    ID,
    Von,
    Nach,
    Wert,
    V,
    TG,
    EV,
    GF,
    GRZW,
    EP,
    NMF,
    FF,
    NK,
    RelA,
    RelB,
    RelPhi,
    Anzahl
};

struct Spaltenbeschreibung {
    Listenspalte spalte;
    std::string_view name;           ///< first line of the file
    std::optional<Messwert> wert{};  ///< of columns of numbers
};

inline constexpr auto kListenspalten = std::to_array<Spaltenbeschreibung>({
    {Listenspalte::Tabelle, "Tabelle"},
    {Listenspalte::ID, "ID"},
    {Listenspalte::Von, "Von"},
    {Listenspalte::Nach, "Nach"},
    {Listenspalte::Wert, "Wert", Messwert::Wert},
    {Listenspalte::V, "V", Messwert::V},
    {Listenspalte::TG, "TG", Messwert::TG},
    {Listenspalte::EV, "EV", Messwert::EV},
    {Listenspalte::GF, "GF", Messwert::GF},
    {Listenspalte::GRZW, "GRZW", Messwert::GRZW},
    {Listenspalte::EP, "EP", Messwert::EP},
    {Listenspalte::NMF, "NMF", Messwert::NMF},
    {Listenspalte::FF, "FF"},
    {Listenspalte::NK, "NK"},
    {Listenspalte::RelA, "relA", Messwert::RelA},
    {Listenspalte::RelB, "relB", Messwert::RelB},
    {Listenspalte::RelPhi, "relPhi", Messwert::RelPhi},
});
static_assert(InReihe(kListenspalten, &Spaltenbeschreibung::spalte));

/// Those of a list: relative ellipses only where there are any.
using Spalten = std::span<const Spaltenbeschreibung>;
inline constexpr Spalten kUeblicheSpalten =
    Spalten(kListenspalten).first(static_cast<std::size_t>(Listenspalte::NK) + 1);
[[nodiscard]] inline Spalten SpaltenVon(const Beobachtungsliste& liste) {
    return liste.hatRelative ? Spalten(kListenspalten) : kUeblicheSpalten;
}

struct Listenfilter {
    std::array<bool, kGattungen> gattungen = [] {
        std::array<bool, kGattungen> alle{};
        alle.fill(true);
        return alle;
    }();
    bool nurMarkierte = false;        ///< FF is set
    bool nurUnkontrollierte = false;  ///< NK is set
    std::optional<double> ueberTG{};  ///< |TG| is larger
    PunktNummernTyp punkt{};          ///< empty, or an end of the row
    /// Of a column the values from the first number up to, but without, the second; of the last class with
    /// it.
    struct Bereich {
        Messwert wert = Messwert::TG;
        double von = 0.0;
        double bis = 0.0;
        bool mitEnde = false;
        bool betrag = false;  ///< of the amounts
    };
    std::optional<Bereich> bereich{};
    std::function<bool(const Beobachtung&)> suche{};  ///< empty, or what else a row has to be
};

[[nodiscard]] bool Passt(const Beobachtung& b, const Listenfilter& f);

struct Listenordnung {
    Listenspalte spalte = Listenspalte::TG;
    bool fallend = true;
    bool betrag = true;  ///< numbers by their amounts
};

/// Places in the list of the rows that pass, in order. Missing values come last either way; equal rows as the
/// list has them: by table, then ID.
[[nodiscard]] std::vector<std::uint32_t> OrdneZeilen(const Beobachtungsliste& liste, const Listenfilter& f,
                                                     const Listenordnung& o);

}  // namespace zrw
