// The one table of the point symbols: what they are called and what they look like. A symbol of corners is
// one row and one member of `PunktTyp`.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Einstellungen.h"
#include "model/Figuren.h"

namespace zrw {

enum class Symbolform : std::uint8_t {
    Scheibe,  ///< the files of an export mark its middle only
    Kreis,
    Kreuz,  ///< a stroke between the first two corners and one between the others
    Vieleck,
};

/// From the middle, in sizes of the symbol; `y` downwards.
struct Symbolecke {
    std::int8_t x;
    std::int8_t y;
};
inline constexpr std::size_t kMeisteEcken = 4;

inline constexpr auto kKreuzenden = std::to_array<Symbolecke>({{-1, 0}, {1, 0}, {0, -1}, {0, 1}});
inline constexpr auto kQuadratecken = std::to_array<Symbolecke>({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}});
inline constexpr auto kRautenecken = std::to_array<Symbolecke>({{0, -1}, {1, 0}, {0, 1}, {-1, 0}});
inline constexpr auto kDreiecksecken = std::to_array<Symbolecke>({{0, -1}, {1, 1}, {-1, 1}});

struct Punktsymbol {
    PunktTyp typ;
    std::string_view name;         ///< in files, UTF-8
    std::string_view bezeichnung;  ///< in dialogs, UTF-8
    Symbolform form;
    std::uint16_t Einstellungen::*quer;    ///< size across, or radius [px]
    std::uint16_t Einstellungen::*laengs;  ///< size upright [px]
    std::span<const Symbolecke> ecken;
};

inline constexpr auto kPunktsymbole = std::to_array<Punktsymbol>({
    {PunktTyp::Pkt,
     "Punkt",
     "Punkt",
     Symbolform::Scheibe,
     &Einstellungen::HPSize,
     &Einstellungen::HPSize,
     {}},
    {PunktTyp::Krei, "Kreis", "Kreis", Symbolform::Kreis, &Einstellungen::PTSize, &Einstellungen::PTSize, {}},
    {PunktTyp::Kreu, "Kreuz", "Kreuz", Symbolform::Kreuz, &Einstellungen::Kreuzgroesse,
     &Einstellungen::Kreuzgroesse, kKreuzenden},
    {PunktTyp::Qua, "Quadrat", "Quadrat", Symbolform::Vieleck, &Einstellungen::Quadratgroesse,
     &Einstellungen::Quadratgroesse, kQuadratecken},
    {PunktTyp::Rau, "Raute", "Raute", Symbolform::Vieleck, &Einstellungen::RauteQuer,
     &Einstellungen::RauteLaengs, kRautenecken},
    {PunktTyp::Drei, "Dreieck", "Dreieck", Symbolform::Vieleck, &Einstellungen::Dreieckgroesse,
     &Einstellungen::Dreieckgroesse, kDreiecksecken},
});
static_assert(InReihe(kPunktsymbole, &Punktsymbol::typ), "a row for each PunktTyp, in its order");
static_assert(std::all_of(kPunktsymbole.begin(), kPunktsymbole.end(),
                          [](const Punktsymbol& s) {
                              const bool rund = s.form == Symbolform::Scheibe || s.form == Symbolform::Kreis;
                              const bool drei = s.form == Symbolform::Vieleck && s.ecken.size() == 3;
                              return rund ? s.ecken.empty() : drei || s.ecken.size() == kMeisteEcken;
                          }),
              "a plotter file knows crosses of four ends and polygons of three or four corners");

/// Null for bytes that name no symbol: they draw nothing and have no name.
[[nodiscard]] constexpr const Punktsymbol* ZumSymbol(PunktTyp typ) {
    return FindeZeile(kPunktsymbole, typ);
}

}  // namespace zrw
