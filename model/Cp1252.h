// Code page 1252 to and from UTF-8. Texts of the network are code page 1252 bytes; messages and file names
// UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zrw {

/// The character of a byte. Those five without one have the control character of the same number.
[[nodiscard]] char32_t Cp1252Zeichen(char byte);

/// All of them.
[[nodiscard]] std::string Cp1252NachUtf8(std::string_view bytes);

/// Characters outside the code page and damaged UTF-8 become "?".
[[nodiscard]] std::string Utf8NachCp1252(std::string_view text);

}  // namespace zrw
