// A picture of pixels without any toolkit: strokes as the screen draws them, shapes and texts as rough masks.
#pragma once

#include <algorithm>
#include <vector>

#include "output/Pixelbild.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

class Rasterflaeche final : public Zeichenflaeche {
  public:
    Rasterflaeche(int weite, int hoehe)
        : weite_(weite),
          hoehe_(hoehe),
          pixel_(static_cast<std::size_t>(weite) * static_cast<std::size_t>(hoehe), 0xFFFFFFU) {
        SetzeHelfer(1);
    }
    void SetzeHelfer(unsigned helfer) {
        bild_.BindeAn({pixel_.data(), weite_, hoehe_, static_cast<std::size_t>(weite_), &grund_, helfer});
    }

    [[nodiscard]] const std::vector<std::uint32_t>& Pixel() {
        bild_.SchliesseAb();
        return pixel_;
    }
    [[nodiscard]] Pixelbild& Bild() { return bild_; }
    void SetzeAusschnitt(const Rechteck& r) { bild_.SetzeAusschnitt(r); }

    [[nodiscard]] Rechteck Sichtbar() const override { return bild_.Ganz(); }
    [[nodiscard]] Rechteck Ausschnitt() const override { return bild_.Ausschnitt(); }
    [[nodiscard]] Rechteck Grenzen() const override { return {-kWeit, -kWeit, kWeit, kWeit}; }
    bool BeginneVonVorn() override {
        ++vonVorn;
        bild_.BeginneVonVorn();
        return true;
    }
    void BeendeVonVorn() override { bild_.BeendeVonVorn(); }
    void KartiereVerdecktes(Deckkarte& karte) override { bild_.KartiereVerdecktes(karte); }
    [[nodiscard]] bool VonVorn() const override { return bild_.VonVorn(); }

    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override {
        ++striche;
        bild_.Linie(von, nach, AktuellerStift().farbe.wert, AktuellerStift().art == Strichart::Gestrichelt);
    }
    void ZeichneRechteck(const Rechteck& r) override { Ellipse(r); }
    void Ellipse(const Rechteck& u) override {
        const std::vector<Flaechenpunkt> ecken{
            {u.links, u.oben}, {u.rechts, u.oben}, {u.rechts, u.unten}, {u.links, u.unten}};
        Vieleck(ecken);
    }
    /// The outline, and the inside of the box round it.
    void Vieleck(std::span<const Flaechenpunkt> ecken) override {
        Rechteck r{ecken[0].x, ecken[0].y, ecken[0].x, ecken[0].y};
        for (const Flaechenpunkt& p : ecken)
            r = {std::min(r.links, p.x), std::min(r.oben, p.y), std::max(r.rechts, p.x),
                 std::max(r.unten, p.y)};
        const auto rand = [&] {
            for (std::size_t i = 0; i < ecken.size(); ++i)
                Linie(ecken[i], ecken[(i + 1) % ecken.size()]);
        };
        if (bild_.VonVorn()) rand();
        Block(r, AktuellerPinsel().farbe.wert);
        if (!bild_.VonVorn()) rand();
    }
    void FuelleRechteck(const Rechteck& r, Farbe farbe) override { bild_.FuelleRechteck(r, farbe.wert); }
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override {
        for (const char c : text) {
            Pixelmaske m(0, 0, 6, kSchrift);
            for (int i = 0; i < 6 * kSchrift; ++i) {
                if ((static_cast<unsigned char>(c) * 37 + i * 11) % 5 < 2) m.SetzePixel(i % 6, i / 6);
            }
            bild_.Maske(m, ort, farbe.wert);
            bild_.SchliesseAb();
            ort.x += 6;
        }
    }
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override {
        return 6 * static_cast<std::int32_t>(text.size());
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return kSchrift; }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return 8; }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return kSchrift; }

    int vonVorn = 0;  ///< how often drawing went from the front to the back
    int striche = 0;

  private:
    static constexpr std::int32_t kWeit = 1 << 29;
    static constexpr int kSchrift = 9;

    void Block(const Rechteck& r, std::uint32_t farbe) {
        Pixelmaske m(0, 0, r.rechts - r.links + 1, r.unten - r.oben + 1);
        for (int y = 0; y < m.hoehe; ++y) {
            for (int x = 0; x < m.weite; ++x)
                m.SetzePixel(x, y);
        }
        bild_.Maske(m, {r.links, r.oben}, farbe);
        bild_.SchliesseAb();
    }

    int weite_;
    int hoehe_;
    std::vector<std::uint32_t> pixel_;
    Bildgrund grund_;
    Pixelbild bild_;
};

}  // namespace zrw
