// Character sets of XML files: whatever the head of the file names becomes UTF-8.
#pragma once

#include <string>

namespace zrw::fremd {

/// Turns the text into UTF-8 without a byte order mark: from UTF-16 by that mark, else from what its XML head
/// names. Nothing to do is the rule and costs next to nothing.
/// @return why that is not possible, German; empty: done
[[nodiscard]] std::string WandleInUtf8(std::string& text);

}  // namespace zrw::fremd
