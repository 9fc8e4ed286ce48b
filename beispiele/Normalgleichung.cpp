#include "beispiele/Normalgleichung.h"

#include <algorithm>
#include <cmath>

#include "model/Fehler.h"

namespace zrw::beispiel {

Normalgleichung::Normalgleichung(std::size_t unbekannte)
    : dreieck_(unbekannte * (unbekannte + 1) / 2), rechts_(unbekannte) {}

void Normalgleichung::AddiereGleichung(std::span<const Koeffizient> a, double v, double sigma) {
    const double gewicht = 1.0 / (sigma * sigma);
    for (const Koeffizient& i : a) {
        rechts_[i.unbekannte] -= i.wert * gewicht * v;
        for (const Koeffizient& j : a) {
            if (j.unbekannte <= i.unbekannte)
                Element(i.unbekannte, j.unbekannte) += i.wert * gewicht * j.wert;
        }
    }
}

void Normalgleichung::ZerlegeMatrix() {
    for (std::size_t i = 0; i < rechts_.size(); ++i) {
        for (std::size_t j = 0; j <= i; ++j) {
            double rest = Element(i, j);
            for (std::size_t k = 0; k < j; ++k)
                rest -= Element(i, k) * Element(j, k);
            if (j < i) {
                Element(i, j) = rest / Element(j, j);
            } else if (rest > 1e-9 * Element(i, i)) {
                Element(i, i) = std::sqrt(rest);
            } else {
                throw Fehler("Das Datum des Netzes ist unvollständig: eine Unbekannte ist nicht bestimmt.");
            }
        }
    }
}

std::vector<double> Normalgleichung::LoeseSystem() const {
    std::vector<double> x = rechts_;
    for (std::size_t i = 0; i < x.size(); ++i) {
        for (std::size_t k = 0; k < i; ++k)
            x[i] -= Element(i, k) * x[k];
        x[i] /= Element(i, i);
    }
    for (std::size_t i = x.size(); i-- > 0;) {
        for (std::size_t k = i + 1; k < x.size(); ++k)
            x[i] -= Element(k, i) * x[k];
        x[i] /= Element(i, i);
    }
    return x;
}

std::vector<double> Normalgleichung::Vorwaerts(std::span<const Koeffizient> a) const {
    std::vector<double> y(rechts_.size());
    std::size_t erste = y.size();
    for (const Koeffizient& k : a) {
        y[k.unbekannte] += k.wert;
        erste = std::min(erste, k.unbekannte);
    }
    for (std::size_t i = erste; i < y.size(); ++i) {
        for (std::size_t k = erste; k < i; ++k)
            y[i] -= Element(i, k) * y[k];
        y[i] /= Element(i, i);
    }
    return y;
}

double Produkt(const std::vector<double>& a, const std::vector<double>& b) {
    double summe = 0.0;
    for (std::size_t i = 0; i < a.size(); ++i)
        summe += a[i] * b[i];
    return summe;
}

}  // namespace zrw::beispiel
