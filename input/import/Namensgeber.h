// Point numbers of the control file for the names of a foreign network: at most 14 bytes of code page 1252
// without a blank, no two alike.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace zrw::fremd {

/// One number for each name, in their order. Names that fit keep theirs; others lose what does not fit, and
/// where that is taken already, they end in "~2", "~3" ...
/// @param namen UTF-8, all different @return code page 1252
[[nodiscard]] std::vector<std::string> GibNummern(std::span<const std::string> namen);

}  // namespace zrw::fremd
