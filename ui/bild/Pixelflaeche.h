// The painter's surface with the common small figures set pixel by pixel: thin lines, symbols and texts.
// Shapes and glyphs are drawn once by the painter and kept as masks, so that both give the same picture;
// everything else still goes to the painter. With smooth edges the same figures are drawn by how much of each
// pixel they cover (output/Glattbild.h).
#pragma once

#include <QImage>
#include <deque>
#include <optional>
#include <vector>

#include "output/Glattbild.h"
#include "output/Pixelbild.h"
#include "ui/bild/Glattstempel.h"
#include "ui/bild/Malerflaeche.h"

namespace zrw {

class Pixelflaeche : public Malerflaeche {
  public:
    /// Leaves everything to the painter, for comparison.
    void SetzeSchnell(bool schnell) { schnell_ = schnell; }
    /// How many threads draw beside the caller; the pixels are the same.
    void SetzeHelfer(unsigned helfer) { helfer_ = helfer; }
    /// Restricts drawing to a part of the picture.
    void SetzeAusschnitt(const Rechteck& r);
    [[nodiscard]] Rechteck Ausschnitt() const override { return pixel_.Ausschnitt(); }
    void BeginneFenster(const Rechteck& r) override { SetzeAusschnitt(Geschnitten(r, Sichtbar())); }
    void BeendeFenster() override { SetzeAusschnitt(Sichtbar()); }
    /// Thin lines are clipped pixel by pixel, so that they look the same whatever part of them is seen.
    [[nodiscard]] Rechteck Grenzen() const override;
    bool BeginneVonVorn() override;
    void BeendeVonVorn() override;
    void KartiereVerdecktes(Deckkarte& karte) override {
        Glaettet() ? glattbild_.KartiereVerdecktes(karte) : pixel_.KartiereVerdecktes(karte);
    }
    [[nodiscard]] bool VonVorn() const override {
        return Glaettet() ? glattbild_.VonVorn() : pixel_.VonVorn();
    }

    void FuelleRechteck(const Rechteck& r, Farbe farbe) override;
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override;
    void Linien(std::span<const Linienstueck> stuecke, Farbe farbe, std::int32_t breite) override;
    void ZeichneRechteck(const Rechteck& r) override;
    void Ellipse(const Rechteck& umschrieben) override;
    void Vieleck(std::span<const Flaechenpunkt> ecken) override;
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override;
    void TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                     std::int32_t rand) override;
    void SetzeSchrift(const QFont& schrift) override {
        SetzeSchriften(schrift, Bildschrift(schrift, 1.0, true));
    }

  protected:
    void VorDemMalen() override;
    /// Takes a painter that has just begun on the picture. @param dichte its pixels for each pixel of the
    /// plan's sizes
    void BindeAnBild(QPainter& maler, QImage& bild, double dichte);
    [[nodiscard]] Pixelbild& Pixel() { return pixel_; }
    /// @param eckige, glatte the same font for both kinds of edges, in pixels of the picture
    void SetzeSchriften(const QFont& eckige, const QFont& glatte);
    void SetzeKanten(bool glatt);
    [[nodiscard]] bool Glatt() const { return glatt_; }
    /// Everything that was drawn is in the picture.
    void SchliesseAb() {
        pixel_.SchliesseAb();
        glattbild_.SchliesseAb();
    }

  private:
    using Form = Stempelform;
    /// A shape at the place of its first corner.
    struct Stempel {
        Form form;
        bool leer;
        std::vector<Flaechenpunkt> ecken;  ///< from the first one
        Pixelmaske rand;
        Pixelmaske fuellung;
    };

    [[nodiscard]] bool Glaettet() const { return glatt_ && schnell_; }
    bool StempeleGlatt(Form form, std::span<const Flaechenpunkt> ecken);
    void GlatterText(Flaechenpunkt ort, std::string_view text, Farbe farbe);
    void BreiteLinie(Flaechenpunkt von, Flaechenpunkt nach, int breite, Farbe farbe, bool gestrichelt);
    void MaleLinie(Flaechenpunkt von, Flaechenpunkt nach);
    [[nodiscard]] const Pixelmaske* BreiterStrich(Flaechenpunkt von, Flaechenpunkt nach);
    bool StempeleForm(Form form, std::span<const Flaechenpunkt> ecken);
    [[nodiscard]] const Stempel& SucheStempel(Form form, std::span<const Flaechenpunkt> ecken);
    [[nodiscard]] Stempel PraegeStempel(Form form, std::span<const Flaechenpunkt> ecken) const;
    /// Whether characters are masks that are set here, not by the painter.
    [[nodiscard]] bool SetztZeichen() const;
    void SetzeZeile(Flaechenpunkt ort, std::string_view text, Farbe farbe, Zeichenform form);
    template <class Masken>
    void SetzeGlatteZeile(Flaechenpunkt ort, std::string_view text, Farbe farbe, Masken maske);
    void PraegeZeichen(char c, Zeichenform form);

    bool schnell_ = true;
    bool glatt_ = false;
    double dichte_ = 1.0;
    unsigned helfer_ = Zeilenhelfer::HelferHier();
    bool zeichenweise_ = true;  ///< characters of the font stand whole pixels apart, whatever is beside them
    QFont eckigeSchrift_;
    QFont glatteSchrift_;
    int schrifthoehe_ = 0;  ///< [px]
    Bildgrund grund_;
    Pixelbild pixel_;
    Glattbild glattbild_;
    Glattstempel glattstempel_{[this] { glattbild_.SchliesseAb(); }};
    std::deque<Stempel> stempel_;                    ///< what waits to be drawn stays where it is
    std::vector<std::optional<Pixelmaske>> breite_;  ///< short strokes of double width, by their direction
    int halorand_ = 0;                               ///< of characters with a rim [px]
};

}  // namespace zrw
