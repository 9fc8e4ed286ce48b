// A polyline that is measured: lengths and bearings in the plane of the coordinates, without reductions. It
// belongs to no network.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "geo/Winkel.h"
#include "model/Werte.h"

namespace zrw {

class Netz;

struct Messstrecke {
    double dY = 0.0;      ///< easting difference [m]
    double dX = 0.0;      ///< northing difference [m]
    double laenge = 0.0;  ///< [m]
    Gon richtung;         ///< grid bearing, clockwise from north, 0 to below 400; 0 where there is no length
};

[[nodiscard]] Messstrecke MissStrecke(Welt von, Welt nach);
// With the decimals that are shown: millimetres, tenths of a milligon. UTF-8.
[[nodiscard]] std::string Metertext(double meter);
[[nodiscard]] std::string Richtungstext(Gon richtung);

class Messzug {
  public:
    struct Ecke {
        Welt ort;
        std::string nummer;  ///< of the point that is there, code page 1252; empty: a free place
    };

    [[nodiscard]] const std::vector<Ecke>& Ecken() const { return ecken_; }
    void NimmEcke(Ecke ecke) { ecken_.push_back(std::move(ecke)); }
    void EntferneLetzte() {
        if (!ecken_.empty()) ecken_.pop_back();
    }
    void LeereZug() { ecken_.clear(); }
    /// The number goes where its point is no longer; the place stays.
    void PruefeNummern(const Netz& netz);

    /// Of all that is measured [m].
    [[nodiscard]] double Summe() const;
    /// A line for each leg and one for the sum, separated by tabs, with a heading. UTF-8.
    [[nodiscard]] std::string Tabelle() const;

  private:
    std::vector<Ecke> ecken_;
};

}  // namespace zrw
