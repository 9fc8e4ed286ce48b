// Batch mode: read one file, write the asked formats, without a window.
#pragma once

#include <string>

#include "app/Aufruf.h"

namespace zrw {

/// One line on standard error. Names of files and words of the call may hold what would steer a terminal or
/// turn the text around: blanks take its place.
void DruckeZeile(const std::string& text);

/// @return exit status: 0, or 1 with a German line on standard error and nothing half written
[[nodiscard]] int FuehreStapelAus(const Aufruf& aufruf);

}  // namespace zrw
