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
inline constexpr auto kEbenennamen =
    std::to_array<std::string_view>({"", "PUNKTE", "PUNKTNR", "BEOB", "GITTER", "LEGENDE", "ERGEBNISSE"});

static_assert(kEbenennamen.size() == static_cast<std::size_t>(Ebene::Ergebnisse) + 1);

[[nodiscard]] constexpr std::string_view Ebenenname(Ebene ebene) {
    return kEbenennamen[static_cast<std::size_t>(ebene)];
}

}  // namespace zrw
