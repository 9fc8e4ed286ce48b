// What the program needs to know of the printer, behind an interface so that tests have a known one.
#pragma once

namespace zrw {

class Druckauskunft {
  public:
    virtual ~Druckauskunft() = default;
    /// Horizontal resolution [dots per inch], positive.
    [[nodiscard]] virtual int Aufloesung() const = 0;
};

/// The system's default printer; 600 dots per inch where there is none.
class Systemdrucker final : public Druckauskunft {
  public:
    [[nodiscard]] int Aufloesung() const override;
};

}  // namespace zrw
