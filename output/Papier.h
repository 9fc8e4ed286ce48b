// Paper by name: its size, and what can be printed on of it.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "output/Druck.h"

namespace zrw {

struct Papier {
    double weite = 0.0;  ///< [mm]
    double hoehe = 0.0;  ///< [mm]

    [[nodiscard]] constexpr Papier Gedreht() const { return {hoehe, weite}; }
};

struct Papierformat {
    std::string_view name;
    Papier hochkant;
};

/// ISO 216.
inline constexpr auto kPapierformate = std::to_array<Papierformat>({
    {"A4", {210, 297}},
    {"A3", {297, 420}},
    {"A2", {420, 594}},
    {"A1", {594, 841}},
    {"A0", {841, 1189}},
});

/// Left free at every edge of the paper [mm].
inline constexpr double kPapierrand = 10.0;

/// Upright paper of a name; none for other names.
[[nodiscard]] constexpr std::optional<Papier> FindePapier(std::string_view name) {
    for (const Papierformat& f : kPapierformate) {
        if (f.name == name) return f.hochkant;
    }
    return std::nullopt;
}

/// Whole dots within the margins, at least one.
/// @param aufloesung [dots per inch], 1 to 100000
[[nodiscard]] constexpr Druckseite Bedruckbar(const Papier& papier, double aufloesung) {
    const auto dots = [aufloesung](double kante) {
        const double innen = (kante - 2 * kPapierrand) / kMillimeterJeZoll * aufloesung;
        return static_cast<std::int32_t>(std::max(innen, 1.0));
    };
    return {dots(papier.weite), dots(papier.hoehe), aufloesung};
}

}  // namespace zrw
