// A surface without a picture, as good as endless: it only hears where something is drawn, so that a plan can
// be looked over before it is cut into sheets. Texts are as large as on the device that stands behind it.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <string_view>

#include "output/Zeichenflaeche.h"

namespace zrw {

class Messflaeche : public Zeichenflaeche {
  public:
    /// Farthest from the origin that anything is heard of [dots].
    static constexpr std::int32_t kReichweite = 1 << 30;

    [[nodiscard]] Rechteck Sichtbar() const override {
        return {-kReichweite, -kReichweite, kReichweite, kReichweite};
    }
    void ZeichneRechteck(const Rechteck& r) override { Kasten(r); }
    void Ellipse(const Rechteck& umschrieben) override { Kasten(umschrieben); }
    void Vieleck(std::span<const Flaechenpunkt> ecken) override {
        Rechteck r = kKeinRechteck;
        for (const Flaechenpunkt& e : ecken)
            r = Vereint(r, {e.x, e.y, e.x, e.y});
        if (!Leer(r)) Kasten(r);
    }
    void FuelleRechteck(const Rechteck& /*r*/, Farbe /*farbe*/) override {}
    void Text(Flaechenpunkt ort, std::string_view text, Farbe /*farbe*/) override {
        Kasten({ort.x, ort.y, ort.x + Textbreite(text), ort.y + Texthoehe()});
    }
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override {
        return geraet_.Textbreite(text);
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return geraet_.Texthoehe(); }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return geraet_.Schriftgrad(); }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return geraet_.Schrifthoehe(); }

  protected:
    explicit Messflaeche(const Zeichenflaeche& geraet) : geraet_(geraet) {}
    /// A symbol or a text within its rectangle. Lines come one by one.
    virtual void Kasten(const Rechteck& r) = 0;

  private:
    const Zeichenflaeche& geraet_;
};

/// The rectangle round all that is drawn; none as long as nothing is.
class Umfangmesser final : public Messflaeche {
  public:
    explicit Umfangmesser(const Zeichenflaeche& geraet) : Messflaeche(geraet) {}
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override {
        Kasten({std::min(von.x, nach.x), std::min(von.y, nach.y), std::max(von.x, nach.x),
                std::max(von.y, nach.y)});
    }
    [[nodiscard]] const Rechteck& Umfang() const { return umfang_; }

  protected:
    void Kasten(const Rechteck& r) override { umfang_ = Vereint(umfang_, r); }

  private:
    Rechteck umfang_ = kKeinRechteck;
};

/// Where the first of it begins from the left, of what reaches into the rows above a limit.
class Bandmesser final : public Messflaeche {
  public:
    /// @param unten first row below the band
    Bandmesser(const Zeichenflaeche& geraet, std::int32_t unten) : Messflaeche(geraet), unten_(unten) {}
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override;
    [[nodiscard]] std::int32_t Links() const { return links_; }

  protected:
    void Kasten(const Rechteck& r) override {
        if (r.oben < unten_) links_ = std::min(links_, r.links);
    }

  private:
    std::int32_t unten_;
    std::int32_t links_ = std::numeric_limits<std::int32_t>::max();
};

}  // namespace zrw
