// Code page 1252 to and from UTF-8. Texts of the network are code page 1252 bytes; messages and file names
// UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace zrw {

/// Every byte has a character: the five without one become the control character of the same number.
[[nodiscard]] std::string Cp1252NachUtf8(std::string_view bytes);

/// Characters outside the code page and damaged UTF-8 become "?".
[[nodiscard]] std::string Utf8NachCp1252(std::string_view text);

}  // namespace zrw
