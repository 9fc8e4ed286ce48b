// What the observations of a network say together: counts, shares of the test values, extremes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "model/ergebnisse/Beobachtungsliste.h"

namespace zrw {

struct Gattungsstatistik {
    Beobachtungstabelle tabelle = Beobachtungstabelle::Strecken;
    std::size_t anzahl = 0;
    std::size_t markiert = 0;        ///< FF
    std::size_t unkontrolliert = 0;  ///< NK
    std::size_t mitTG = 0;           ///< rows that have a test value
    std::size_t tgUnter1 = 0;        ///< |TG| below
    std::size_t tgUnter2 = 0;
    std::size_t tgUnterGrenze = 0;
    std::optional<double> groessteTG{};  ///< |TG|
    std::optional<double> kleinsterEV{};
    std::optional<double> mittlererEV{};
    std::optional<double> groessteV{};         ///< |V|
    std::vector<std::uint32_t> auffaelligste;  ///< places in the list, |TG| falling, at most five
};

inline constexpr std::size_t kAuffaelligste = 5;

/// @param grenze of the test values
[[nodiscard]] Gattungsstatistik Zaehle(const Beobachtungsliste& liste, Beobachtungstabelle t, double grenze);

/// Share of the standard normal distribution within +-grenze, 0 to 1.
[[nodiscard]] double NormalerAnteil(double grenze);

/// Counts of values in classes of equal width.
struct Histogramm {
    double von = 0.0;
    double breite = 1.0;
    std::vector<std::size_t> anzahlen;  ///< the last class takes its upper end, too
    std::size_t darueber = 0;           ///< beyond the last class
    std::size_t gesamt = 0;

    [[nodiscard]] double Anfang(std::size_t klasse) const {
        return von + breite * static_cast<double>(klasse);
    }
};

/// Of the values, or their amounts, from 0 on. @param ende of the last class @param klassen at least 1
/// @param tabelle none: of all
[[nodiscard]] Histogramm ZaehleKlassen(const Beobachtungsliste& liste, Messwert wert,
                                       std::optional<Beobachtungstabelle> tabelle, double ende,
                                       std::size_t klassen);

}  // namespace zrw
