// Date and time for the legend, behind an interface so that tests and golden pictures have a fixed one.
#pragma once

#include <string>

namespace zrw {

class Uhr {
  public:
    virtual ~Uhr() = default;
    /// Date and time as they are written in German: "21.11.2026 09:05:00".
    [[nodiscard]] virtual std::string DatumZeit() const = 0;
};

/// Local time of the system.
class Systemuhr final : public Uhr {
  public:
    [[nodiscard]] std::string DatumZeit() const override;
};

}  // namespace zrw
