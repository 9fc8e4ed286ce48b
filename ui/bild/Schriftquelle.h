// The font that plans are drawn with, as the system has it: what output/Einbettschrift.h needs of it.
#pragma once

#include <QFont>

#include "output/Einbettschrift.h"

namespace zrw {

/// Whatever the font system takes for this font. Its tables may be missing or of another kind.
[[nodiscard]] Schriftquelle LiesSchriftquelle(const QFont& schrift);

}  // namespace zrw
