// What the lines, marks, symbols and colours of a network mean, in words: one row each, with an example.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/Einstellungen.h"
#include "model/Zeichenbestand.h"

namespace zrw {

struct Zeichenzeile {
    std::string_view gruppe;  ///< heading, UTF-8; rows of one stand together
    std::string text;         ///< UTF-8
    std::size_t anzahl = 0;
    std::variant<std::monostate, Punkt, Kante> muster = {};  ///< looks like those; its place means nothing
};

/// Heading of the rows of line colours.
inline constexpr std::string_view kLinienfarben = "Farben der Linien";

/// Line styles, marks, symbols, and the colours of points and lines, each with how often.
[[nodiscard]] std::vector<Zeichenzeile> BaueZeichenzeilen(const Zeichenbestand& bestand,
                                                          const Einstellungen& einstellungen);

/// The key of a plan: a row for each look of points, line style and mark, and the colours of the lines where
/// they have several. What is drawn white is left out. @param meiste rows; the least frequent points and
/// colours give way
[[nodiscard]] std::vector<Zeichenzeile> BaueErklaerung(const Zeichenbestand& bestand,
                                                       const Einstellungen& einstellungen,
                                                       std::size_t meiste);

}  // namespace zrw
