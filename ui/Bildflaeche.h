// The screen picture as a drawing surface: a kept image that the window copies and the batch mode writes.
// Without antialiasing, for text too, so that drawing in white wipes exactly what was drawn.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <optional>

#include "output/Zeichenflaeche.h"

namespace zrw {

class Bildflaeche final : public Zeichenflaeche {
  public:
    Bildflaeche(int weite, int hoehe);

    /// The picture as it stands.
    [[nodiscard]] const QImage& Bild() const { return bild_; }
    /// A new white picture.
    void SetzeGroesse(int weite, int hoehe);
    void SetzeSchrift(const QFont& schrift);

    [[nodiscard]] Rechteck Sichtbar() const override;
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override;
    void ZeichneRechteck(const Rechteck& r) override;
    void Ellipse(const Rechteck& umschrieben) override;
    void Vieleck(std::span<const Flaechenpunkt> ecken) override;
    void Fuelle(const Rechteck& r, Farbe farbe) override;
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override;
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override;
    [[nodiscard]] std::int32_t Texthoehe() const override;
    [[nodiscard]] std::int32_t Schriftgrad() const override;
    [[nodiscard]] std::int32_t Schrifthoehe() const override;

  private:
    void Beginne();
    void WendeStiftAn(const Stift& stift);
    void WendePinselAn(const Pinsel& pinsel);

    QImage bild_;
    QFont schrift_;
    QFontMetrics masse_;
    QPainter maler_;
    // What the painter holds now; none after a new picture.
    std::optional<Stift> stift_;
    std::optional<Pinsel> pinsel_;
};

/// The drawing font: "Arial" or its metric twin, with the settings that keep its pixels reproducible.
[[nodiscard]] QFont Zeichenschrift();

}  // namespace zrw
