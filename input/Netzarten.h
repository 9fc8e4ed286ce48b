// The network types: how each gives its coordinates, and what the fields of its point lines are called.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace zrw {

/// Layout of the coordinates in a point line.
enum class Koordinaten : std::uint8_t { Keine, Gitter, Winkel, Kartesisch };

/// How a network type gives its coordinates, and whether its GPS vectors belong to the plot.
struct Netzart {
    std::int32_t typ;
    Koordinaten koordinaten;
    bool mitGPS;
};
inline constexpr std::array<Netzart, 8> kNetzarten{{{1, Koordinaten::Gitter, false},
                                                    {2, Koordinaten::Gitter, false},
                                                    {3, Koordinaten::Gitter, true},
                                                    {4, Koordinaten::Winkel, false},
                                                    {6, Koordinaten::Kartesisch, true},
                                                    {7, Koordinaten::Kartesisch, true},
                                                    {50, Koordinaten::Winkel, true},
                                                    {51, Koordinaten::Gitter, true}}};
inline constexpr Netzart kUnbekannteNetzart{0, Koordinaten::Keine, false};

[[nodiscard]] inline const Netzart& ZumTyp(std::int32_t typ) {
    const auto* art =
        std::find_if(kNetzarten.begin(), kNetzarten.end(), [&](const Netzart& n) { return n.typ == typ; });
    return art != kNetzarten.end() ? *art : kUnbekannteNetzart;
}

/// Fields behind the number of a point line in their order, for messages. UTF-8.
/// @param punktformat 0: easting before northing
[[nodiscard]] inline std::span<const char* const> Punktfelder(Koordinaten art, std::int32_t punktformat) {
    static constexpr std::array kYX{"Punktcode", "Rechtswert", "Hochwert"};
    static constexpr std::array kXY{"Punktcode", "Hochwert", "Rechtswert"};
    static constexpr std::array kWinkel{"Punktcode",
                                        "Grad des ersten Winkels",
                                        "Minuten des ersten Winkels",
                                        "Sekunden des ersten Winkels",
                                        "Grad des zweiten Winkels",
                                        "Minuten des zweiten Winkels",
                                        "Sekunden des zweiten Winkels"};
    static constexpr std::array kXYZ{"Punktcode", "X", "Y", "Z"};
    if (art == Koordinaten::Winkel) return kWinkel;
    if (art == Koordinaten::Kartesisch) return kXYZ;
    if (art == Koordinaten::Keine) return {};
    return punktformat == 0 ? std::span<const char* const>(kYX) : kXY;
}

}  // namespace zrw
