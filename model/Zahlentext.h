// Numbers to and from text, everywhere in the program: decimal point, no thousands separator, no locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zrw {

/// Blank or tab: what separates words in control files and number fields.
[[nodiscard]] constexpr bool IstLeerzeichen(char c) {
    return c == ' ' || c == '\t';
}

/// The text without blanks and tabs at both ends.
[[nodiscard]] std::string_view OhneRand(std::string_view text);

/// Decimal real in any usual form: "1250", "+7", ".5", "5.", "1.5e3", "1.5D+03". The whole text must be the
/// number, blanks around it excepted. Nothing for anything else ("nan", "inf", hexadecimal, "2,5", "") and
/// for numbers beyond the range of double; numbers too small for it are 0.
[[nodiscard]] std::optional<double> LiesReal(std::string_view text);

/// Decimal integer with optional sign, blanks around it allowed. Nothing beyond 64 bits.
[[nodiscard]] std::optional<std::int64_t> LiesGanz(std::string_view text);

/// Shortest text that reads back as the same number: 1.0 gives "1".
[[nodiscard]] std::string SchreibeReal(double wert);

/// Fixed-point text with `stellen` decimals, right-aligned in `breite` characters (wider where needed).
[[nodiscard]] std::string Festkomma(double wert, int breite, int stellen);

}  // namespace zrw
