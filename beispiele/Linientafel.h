// The sheet of all line styles: every direction style with every set of other observations, in several
// directions and lengths, as a picture file that the program opens like any other.
#pragma once

#include <filesystem>

namespace zrw::beispiel {

/// Writes LINIEN.ZRW into a folder. False where that is not possible.
[[nodiscard]] bool SchreibeLinientafel(const std::filesystem::path& ordner);

}  // namespace zrw::beispiel
