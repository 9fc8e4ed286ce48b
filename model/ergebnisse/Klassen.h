// Classes of a value, and the colours that stand for them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Aufzaehltafel.h"
#include "model/ergebnisse/Figurenstile.h"

namespace zrw {

enum class Klassenart : std::uint8_t { VonHand, Gleich, Quantile, Anzahl };

struct Klassenartzeile {
    Klassenart art;
    std::string_view name;         ///< on the command line; empty: its limits stand there
    std::string_view bezeichnung;  ///< UTF-8
};

inline constexpr auto kKlassenarten = std::to_array<Klassenartzeile>({
    {Klassenart::VonHand, "", "Grenzen von Hand"},
    {Klassenart::Gleich, "gleich", "gleich breit"},
    {Klassenart::Quantile, "quantile", "gleich viele (Quantile)"},
});
static_assert(InReihe(kKlassenarten, &Klassenartzeile::art));

inline constexpr std::size_t kWenigsteKlassen = 2;
inline constexpr std::size_t kMeisteKlassen = 7;

struct Klassenwahl {
    Klassenart art = Klassenart::Quantile;
    std::vector<double> grenzen{};  ///< by hand: between the classes, rising, one at least
    std::size_t anzahl = 5;         ///< of the other kinds
    friend bool operator==(const Klassenwahl&, const Klassenwahl&) = default;
};

/// The limits between the classes, rising. Those that are worked out have three digits, so that what a legend
/// says is what holds; where values do not differ enough there are fewer. @param werte finite
[[nodiscard]] std::vector<double> Klassengrenzen(const Klassenwahl& wahl, std::span<const double> werte);
/// A value on a limit belongs to the class above it.
[[nodiscard]] std::size_t KlasseVon(std::span<const double> grenzen, double wert);
/// "unter 1", "1 bis 2", "ab 3.29"; UTF-8.
[[nodiscard]] std::string Klassentext(std::span<const double> grenzen, std::size_t klasse);

/// Rows of colours whose brightness falls evenly, so that readers who take colours for each other still tell
/// the classes apart. Parts of Viridis and Magma (S. van der Walt, N. Smith: mpl colormaps, 2015) and Cividis
/// (J. Nuñez, C. Anderton, R. Renslow: Optimizing colormaps with consideration for color vision deficiency,
/// PLoS ONE 13, 2018), without their ends that do not show on white.
enum class Klassenfarben : std::uint8_t { Magma, Viridis, Cividis, Anzahl };

struct Farbverlauf {
    Klassenfarben farben;
    std::string_view name;             ///< where it is stored
    std::string_view bezeichnung;      ///< UTF-8
    std::array<std::uint32_t, 5> rgb;  ///< 0xRRGGBB, from the least to the most remarkable
};

inline constexpr auto kFarbverlaeufe = std::to_array<Farbverlauf>({
    {Klassenfarben::Magma, "magma", "Orange bis Violett", {0xFE9F6D, 0xF1605D, 0xB73779, 0x721F81, 0x231151}},
    {Klassenfarben::Viridis,
     "viridis",
     "Grün bis Violett",
     {0x7AD151, 0x22A884, 0x2A788E, 0x414487, 0x440154}},
    {Klassenfarben::Cividis, "cividis", "Ocker bis Blau", {0xCBBA69, 0xA69D75, 0x7C7B78, 0x4F576C, 0x00224E}},
});
static_assert(InReihe(kFarbverlaeufe, &Farbverlauf::farben));

/// How a class is drawn, the most remarkable darkest and widest. @param anzahl of the classes, at least 1
[[nodiscard]] Figurstil KlassenstilVon(Klassenfarben farben, std::size_t klasse, std::size_t anzahl);

}  // namespace zrw
