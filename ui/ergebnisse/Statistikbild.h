// How often values of a size occur, as bars with the curve that normally distributed ones would give: drawn
// by one routine on the screen and on paper.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <optional>

#include "model/ergebnisse/Statistik.h"

namespace zrw {

struct Statistikbild {
    QString titel;
    Messwert wert = Messwert::TG;
    std::optional<Beobachtungstabelle> gattung{};  ///< none: all of them
    Histogramm histogramm;
    bool mitKurve = false;           ///< amounts of the standard normal distribution
    std::optional<double> grenze{};  ///< a line there

    /// Where the bar of a class stands in a picture of this place.
    [[nodiscard]] QRectF Balken(const QRectF& platz, const QFont& schrift, std::size_t klasse) const;
    /// @param gewaehlt a bar that is marked
    void Zeichne(QPainter& maler, const QRectF& platz, std::optional<std::size_t> gewaehlt) const;
    /// "|TG| von 1 bis 1.5: 23 Beobachtungen".
    [[nodiscard]] QString Klassensatz(std::size_t klasse) const;

  private:
    [[nodiscard]] double Hoechste() const;
    [[nodiscard]] double Erwartet(std::size_t klasse) const;
    [[nodiscard]] static QRectF Feld(const QRectF& platz, const QFont& schrift);
    void ZeichneKurve(QPainter& maler, const QRectF& feld) const;
};

/// Of the test values, in steps of a quarter up to 5.
[[nodiscard]] Statistikbild TestgroessenBild(const Beobachtungsliste& liste,
                                             std::optional<Beobachtungstabelle> gattung, double grenze);
/// Of the shares of redundancy, in twentieths.
[[nodiscard]] Statistikbild RedundanzBild(const Beobachtungsliste& liste,
                                          std::optional<Beobachtungstabelle> gattung);

}  // namespace zrw
