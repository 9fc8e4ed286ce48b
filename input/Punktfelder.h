// What the fields of a point line are called, for messages.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "model/Netzarten.h"

namespace zrw {

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
