// A painter of Qt as a drawing surface: what picture, preview and every device that Qt paints on share.
// Without antialiasing, for text too, so that drawing in white wipes exactly what was drawn; smooth where
// nothing is wiped.
#pragma once

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <optional>

#include "output/Zeichenflaeche.h"

namespace zrw {

/// The drawing font: "Arial" or its metric twin, with the settings that keep its pixels reproducible.
[[nodiscard]] QFont Zeichenschrift();
/// A drawing font in the size that it has on a screen of so many dots per pixel. @param glatt with smooth
/// edges
[[nodiscard]] QFont Bildschrift(const QFont& schrift, double dichte, bool glatt);

/// Where the middle of a smooth stroke lies in its pixel: between two for an even width. @param breite [px]
[[nodiscard]] double Stiftmitte(double breite);

class Malerflaeche : public Zeichenflaeche {
  public:
    /// @param maler must be active and outlive the surface @param sichtbar what can be seen of its device
    Malerflaeche(QPainter& maler, const Rechteck& sichtbar, const QFont& schrift = Zeichenschrift());

    virtual void SetzeSchrift(const QFont& schrift);
    /// With smooth edges, from now on.
    void SetzeGlatt(bool glatt);
    /// For devices whose dots are finer than pixels.
    /// @param dots width of a pen of width 1 @param pixel a pixel of the screen [dots]
    void SetzeStrichbreite(double dots, double pixel) {
        strichbreite_ = dots;
        ueblicherStrich_ = dots;
        pixel_ = pixel;
        stift_.reset();
    }
    [[nodiscard]] const QFont& Schrift() const { return schrift_; }

    void BeginneFenster(const Rechteck& r) override;
    void BeendeFenster() override;
    void SetzeStrichmass(double mm) override;
    void SetzeSchriftmass(std::int32_t dots) override;

    [[nodiscard]] Rechteck Sichtbar() const override { return sichtbar_; }
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override;
    void ZeichneRechteck(const Rechteck& r) override;
    void Ellipse(const Rechteck& umschrieben) override;
    void Vieleck(std::span<const Flaechenpunkt> ecken) override;
    void FuelleRechteck(const Rechteck& r, Farbe farbe) override;
    void FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) override;
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override;
    void TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                     std::int32_t rand) override;
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override;
    [[nodiscard]] std::int32_t Texthoehe() const override { return texthoehe_; }
    [[nodiscard]] std::int32_t Schriftgrad() const override;
    [[nodiscard]] std::int32_t Schrifthoehe() const override;

  protected:
    /// The painter is about to draw.
    virtual void VorDemMalen() {}
    /// For surfaces that own their painter and begin it later.
    Malerflaeche();
    /// Restricts what the painter draws to a rectangle.
    void SetzeMalerausschnitt(const Rechteck& r);
    /// Takes a painter that has just begun.
    void BindeAn(QPainter& maler, const Rechteck& sichtbar);

  private:
    void WendeStiftAn(const Stift& stift);
    void WendePinselAn(const Pinsel& pinsel);
    /// Where pixels have their middles for the current pen.
    [[nodiscard]] QPointF Mitte() const {
        const double m = Stiftmitte(AktuellerStift().breite * strichbreite_);
        return {m, m};
    }
    QPainter* maler_ = nullptr;
    Rechteck sichtbar_;
    QFont schrift_;
    QFontMetrics masse_;
    std::int32_t texthoehe_;         ///< asked for with every label; the font locks itself for each answer
    std::optional<QFont> uebliche_;  ///< while texts have another size
    double strichbreite_ = 1.0;
    double ueblicherStrich_ = 1.0;
    double pixel_ = 1.0;
    bool glatt_ = false;
    // What the painter holds now; none after it began.
    std::optional<Stift> stift_;
    std::optional<Pinsel> pinsel_;
};

}  // namespace zrw
