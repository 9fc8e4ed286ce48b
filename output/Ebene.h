// The layers of a plot by what stands on them, and the one table of their names in files.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zrw {

/// `Grund` is what lies beneath all layers and belongs to none.
enum class Ebene : std::uint8_t {
    Grund,
    Punkte,
    Punktnummern,
    Beobachtungen,
    Gitter,
    Legende,
    Ergebnisse,
};

/// In the order of `Ebene`. Letters and digits only: they are names in drawings, identifiers in vector files.
inline constexpr std::array<std::string_view, 7> kEbenennamen{"",       "PUNKTE",  "PUNKTNR",   "BEOB",
                                                              "GITTER", "LEGENDE", "ERGEBNISSE"};

[[nodiscard]] constexpr std::string_view Ebenenname(Ebene ebene) {
    return kEbenennamen[static_cast<std::size_t>(ebene)];
}

}  // namespace zrw
