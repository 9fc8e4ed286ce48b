// One field of a file of separated values: RFC 4180, but with semicolons.
#pragma once

#include <string>
#include <string_view>

namespace zrw {

inline constexpr char kFeldtrenner = ';';

/// In quotes where it would be taken for more than one field.
[[nodiscard]] inline std::string Trennfeld(std::string_view text) {
    if (text.find_first_of(";\"\r\n") == std::string_view::npos) return std::string(text);
    std::string feld = "\"";
    for (const char c : text) {
        feld += c;
        if (c == '"') feld += c;
    }
    return feld + '"';
}

}  // namespace zrw
