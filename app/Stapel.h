// Batch mode: read one file, write the asked formats, without a window.
#pragma once

#include "app/Aufruf.h"

namespace zrw {

/// @return exit status: 0, or 1 with a German line on standard error and nothing half written
[[nodiscard]] int FuehreStapelAus(const Aufruf& aufruf);

}  // namespace zrw
