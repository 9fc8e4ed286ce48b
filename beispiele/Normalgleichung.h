// Dense normal equations of a least-squares adjustment, solved by Cholesky. Every sum runs in a fixed order,
// so the result is the same at every run.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace zrw::beispiel {

/// Derivative of an observation by one unknown.
struct Koeffizient {
    std::size_t unbekannte = 0;
    double wert = 0.0;
};

class Normalgleichung {
  public:
    explicit Normalgleichung(std::size_t unbekannte);

    /// Takes in one observation. @param v computed minus observed value @param sigma of the observation, > 0
    void AddiereGleichung(std::span<const Koeffizient> a, double v, double sigma);
    /// To be called once, after the last `AddiereGleichung`. @throws Fehler where the datum is incomplete
    void ZerlegeMatrix();
    /// Corrections of the unknowns that make the weighted sum of squares smallest.
    [[nodiscard]] std::vector<double> LoeseSystem() const;
    /// Solution of L y = a with the triangle L of the normal matrix: the cofactor of two functions of the
    /// unknowns is the product of their vectors.
    [[nodiscard]] std::vector<double> Vorwaerts(std::span<const Koeffizient> a) const;

  private:
    [[nodiscard]] double& Element(std::size_t i, std::size_t j) { return dreieck_[i * (i + 1) / 2 + j]; }
    [[nodiscard]] double Element(std::size_t i, std::size_t j) const { return dreieck_[i * (i + 1) / 2 + j]; }

    std::vector<double> dreieck_;  ///< lower triangle by rows
    std::vector<double> rechts_;
};

/// Sum of the products of the elements.
[[nodiscard]] double Produkt(const std::vector<double>& a, const std::vector<double>& b);

}  // namespace zrw::beispiel
