// Random numbers that are the same with every compiler and library: the standard generator is fixed to the
// bit, the standard distributions are not, so these are our own.
#pragma once

#include <cstdint>
#include <random>

namespace zrw::beispiel {

class Zufall {
  public:
    explicit Zufall(std::uint32_t saat) : quelle_(saat) {}

    /// Evenly spread over [von, bis).
    [[nodiscard]] double Gleich(double von, double bis) {
        return von + (bis - von) * (static_cast<double>(quelle_() & 0xFFFFFFFFU) / 4294967296.0);
    }

    /// Normal to a good approximation (sum of twelve even ones), never beyond 6 sigma.
    [[nodiscard]] double Normal(double sigma) {
        double summe = -6.0;
        for (int i = 0; i < 12; ++i)
            summe += Gleich(0.0, 1.0);
        return summe * sigma;
    }

    /// True in `anteil` of the cases.
    [[nodiscard]] bool TrifftZu(double anteil) { return Gleich(0.0, 1.0) < anteil; }

  private:
    std::mt19937 quelle_;
};

}  // namespace zrw::beispiel
