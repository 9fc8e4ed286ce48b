// Measures of the drawing font by the bytes of code page 1252, wherever they come from.
#pragma once

#include <array>
#include <string_view>

namespace zrw {

/// Height of the drawing font at the screen's resolution [px], as ui/bild/Malerflaeche.cpp has it: 8.25 pt.
inline constexpr double kZeichenschrift = 11.0;

/// Whether a byte of code page 1252 has no glyph: control characters and the five bytes without a character.
[[nodiscard]] constexpr bool IstSteuerzeichen(char c) {
    const auto b = static_cast<unsigned char>(c);
    return b < 0x20 || b == 0x7F || b == 0x81 || b == 0x8D || b == 0x8F || b == 0x90 || b == 0x9D;
}

struct Schriftmasse {
    std::array<double, 256> breiten{};  ///< advance widths [1/1000 em]; 0 where there is no glyph
    double anstieg = 0.0;               ///< from the base line to the top of a line of text [em]
    double abstieg = 0.0;               ///< to its bottom [em], positive

    /// Advance of a text in code page 1252 [em]. Kerning is left out, as on the screen.
    [[nodiscard]] constexpr double Breite(std::string_view text) const {
        double summe = 0.0;
        for (const char c : text)
            summe += breiten[static_cast<unsigned char>(c)];
        return summe / 1000;
    }
};

}  // namespace zrw
