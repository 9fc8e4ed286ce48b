// A surface that writes down what is drawn on it, one line of text an operation, with pen and brush when they
// change.
#pragma once

#include <array>
#include <cstdio>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "output/Zeichenflaeche.h"

namespace zrw {

/// "Stift 0x0000FF 1", "Stift 0x0000FF 1 gestrichelt", "Pinsel 0x0000FF", "Pinsel leer", "Linie 10 20 30 40",
/// "Rechteck ...", "Ellipse ...", "Vieleck ...", "Fuelle 0xFFFFFF ...", "Text 0x000000 10 20 Nummer". A
/// character is 6 dots wide, a line of text 12 high.
class MerkFlaeche final : public Zeichenflaeche {
  public:
    std::vector<std::string> zeilen;
    Rechteck sichtbar{0, 0, 799, 599};

    [[nodiscard]] std::vector<std::string> NimmZeilen() { return std::exchange(zeilen, {}); }

    [[nodiscard]] Rechteck Sichtbar() const override { return sichtbar; }
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override {
        MerkeStift();
        zeilen.push_back("Linie" + Zahlen({von.x, von.y, nach.x, nach.y}));
    }
    void ZeichneRechteck(const Rechteck& r) override { Form("Rechteck", r); }
    void Ellipse(const Rechteck& r) override { Form("Ellipse", r); }
    void Vieleck(std::span<const Flaechenpunkt> ecken) override {
        MerkeStift();
        MerkePinsel();
        zeilen.emplace_back("Vieleck");
        for (const Flaechenpunkt& p : ecken)
            zeilen.back() += Zahlen({p.x, p.y});
    }
    void FuelleRechteck(const Rechteck& r, Farbe farbe) override {
        zeilen.push_back("Fuelle " + Hex(farbe) + Zahlen({r.links, r.oben, r.rechts, r.unten}));
    }
    void FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) override {
        zeilen.push_back("Durchscheinend " + Hex(farbe) + Zahlen({prozent}));
        for (const Flaechenpunkt& p : ecken)
            zeilen.back() += Zahlen({p.x, p.y});
    }
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override {
        zeilen.push_back("Text " + Hex(farbe) + Zahlen({ort.x, ort.y}) + " " + std::string(text));
    }
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override {
        return 6 * static_cast<std::int32_t>(text.size());
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return 12; }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return 8; }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return 11; }

  private:
    void Form(const char* name, const Rechteck& r) {
        MerkeStift();
        MerkePinsel();
        zeilen.push_back(name + Zahlen({r.links, r.oben, r.rechts, r.unten}));
    }
    void MerkeStift() {
        if (stift_ == AktuellerStift()) return;
        stift_ = AktuellerStift();
        zeilen.push_back("Stift " + Hex(stift_->farbe) + Zahlen({stift_->breite}) +
                         (stift_->art == Strichart::Gestrichelt ? " gestrichelt" : ""));
    }
    void MerkePinsel() {
        if (pinsel_ == AktuellerPinsel()) return;
        pinsel_ = AktuellerPinsel();
        zeilen.push_back("Pinsel " + (pinsel_->leer ? "leer" : Hex(pinsel_->farbe)));
    }
    static std::string Hex(Farbe farbe) {
        std::array<char, 16> text{};
        std::snprintf(text.data(), text.size(), "0x%06X", static_cast<unsigned>(farbe.wert));
        return text.data();
    }
    static std::string Zahlen(std::initializer_list<std::int32_t> werte) {
        std::string text;
        for (const std::int32_t w : werte)
            text += " " + std::to_string(w);
        return text;
    }

    std::optional<Stift> stift_;
    std::optional<Pinsel> pinsel_;
};

}  // namespace zrw
