// A clock that stands, so that a legend looks the same every time.
#pragma once

#include <string>

#include "output/Uhr.h"

namespace zrw {

class Festuhr final : public Uhr {
  public:
    std::string zeit = "21.11.2026 09:05:00";
    [[nodiscard]] std::string DatumZeit() const override { return zeit; }
};

}  // namespace zrw
