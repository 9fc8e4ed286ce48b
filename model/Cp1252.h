// Code page 1252 to and from UTF-8. Texts of the network are code page 1252 bytes; messages and file names
// UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zrw {

/// The character of a byte. Those five without one have the control character of the same number.
[[nodiscard]] char32_t Cp1252Zeichen(char byte);

/// All of them.
[[nodiscard]] std::string Cp1252NachUtf8(std::string_view bytes);

/// Characters outside the code page and damaged UTF-8 become "?".
[[nodiscard]] std::string Utf8NachCp1252(std::string_view text);

/// Whether a text has bytes above 127 and is UTF-8 from end to end.
[[nodiscard]] bool IstUtf8(std::string_view text);

/// Wide characters, where those are 16 bits wide also in pairs. Halves of pairs that stand alone, as names of
/// files may have them, become U+FFFD.
[[nodiscard]] std::string BreitNachUtf8(std::wstring_view text);

/// What a conversion could not keep.
struct Zeichenverlust {
    std::size_t anzahl = 0;  ///< characters that became "?"
    std::size_t erstes = 0;  ///< place of the first of them in the new text [bytes]
};
/// `Utf8NachCp1252` in place, for large texts; from `ab` on, what stands before goes.
Zeichenverlust WandleInCp1252(std::string& text, std::size_t ab = 0);

}  // namespace zrw
