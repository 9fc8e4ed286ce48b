// A part of a sheet as a surface of its own, for the plan within the frame: what lies outside cannot be seen.
// It hands on to the sheet, in black where that is asked for.
#pragma once

#include <vector>

#include "output/Zeichenflaeche.h"

namespace zrw {

class Blattfenster final : public Zeichenflaeche {
  public:
    /// @param blatt outlives it @param sichtbar in its dots @param stift usual width of a pen of width 1
    /// [mm]; 0: that of the sheet
    Blattfenster(Zeichenflaeche& blatt, const Rechteck& sichtbar, bool schwarzweiss, double stift)
        : blatt_(blatt), sichtbar_(sichtbar), schwarzweiss_(schwarzweiss), stift_(stift) {
        blatt_.SetzeStrichmass(stift_);
    }
    ~Blattfenster() override { blatt_.SetzeStrichmass(0); }
    Blattfenster(const Blattfenster&) = delete;
    Blattfenster& operator=(const Blattfenster&) = delete;

    [[nodiscard]] Rechteck Sichtbar() const override { return sichtbar_; }
    void BeginneFenster(const Rechteck& r) override { blatt_.BeginneFenster(r); }
    void BeendeFenster() override { blatt_.BeendeFenster(); }
    void SetzeStrichmass(double mm) override { blatt_.SetzeStrichmass(mm > 0.0 ? mm : stift_); }
    void SetzeSchriftmass(std::int32_t dots) override { blatt_.SetzeSchriftmass(dots); }

    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override { Blatt().Linie(von, nach); }
    void Linien(std::span<const Linienstueck> stuecke, Farbe farbe, std::int32_t breite) override {
        Blatt().Linien(stuecke, Druckfarbe(farbe), breite);
    }
    void ZeichneRechteck(const Rechteck& r) override {
        MerkeKasten(r);
        Blatt().ZeichneRechteck(r);
    }
    void Ellipse(const Rechteck& umschrieben) override { Blatt().Ellipse(umschrieben); }
    void Vieleck(std::span<const Flaechenpunkt> ecken) override { Blatt().Vieleck(ecken); }
    void FuelleRechteck(const Rechteck& r, Farbe farbe) override {
        MerkeKasten(r);
        blatt_.FuelleRechteck(r, Druckfarbe(farbe));
    }
    void FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) override {
        blatt_.FuelleDurchscheinend(ecken, Druckfarbe(farbe), prozent);
    }
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override {
        blatt_.Text(ort, text, Druckfarbe(farbe));
    }
    void TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                     std::int32_t rand) override {
        blatt_.TextMitRand(ort, text, Druckfarbe(farbe), Druckfarbe(randfarbe), rand);
    }
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override {
        return blatt_.Textbreite(text);
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return blatt_.Texthoehe(); }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return blatt_.Schriftgrad(); }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return blatt_.Schrifthoehe(); }

    /// Legend, key and scale bars, which nothing may run through.
    [[nodiscard]] const std::vector<Rechteck>& Kaesten() const { return kaesten_; }

  protected:
    void EbeneGewechselt(Ebene ebene) override { blatt_.SetzeEbene(ebene); }

  private:
    void MerkeKasten(const Rechteck& r) {
        if (AktuelleEbene() == Ebene::Legende || AktuelleEbene() == Ebene::Ergebnisse) kaesten_.push_back(r);
    }
    [[nodiscard]] Farbe Druckfarbe(Farbe farbe) const {
        return schwarzweiss_ && farbe != kWeiss ? kSchwarz : farbe;
    }
    /// With pen and brush of this one.
    [[nodiscard]] Zeichenflaeche& Blatt() {
        Stift stift = AktuellerStift();
        stift.farbe = Druckfarbe(stift.farbe);
        Pinsel pinsel = AktuellerPinsel();
        pinsel.farbe = Druckfarbe(pinsel.farbe);
        blatt_.SetzeStift(stift);
        blatt_.SetzePinsel(pinsel);
        return blatt_;
    }

    Zeichenflaeche& blatt_;
    Rechteck sichtbar_;
    bool schwarzweiss_;
    double stift_;
    std::vector<Rechteck> kaesten_;
};

}  // namespace zrw
