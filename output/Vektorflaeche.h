// What surfaces that write a vector file have in common: the size of the sheet, the measures of their font,
// and what of a drawing touches the sheet at all. Knows no file format.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "output/Druck.h"
#include "output/Schriftmasse.h"
#include "output/Textausgabe.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

inline constexpr double kPunkteJeZoll = 72.0;

class Vektorflaeche : public Zeichenflaeche {
  public:
    Vektorflaeche(const Vektorflaeche&) = delete;
    Vektorflaeche& operator=(const Vektorflaeche&) = delete;

    [[nodiscard]] Rechteck Sichtbar() const override { return {0, 0, seite_.weite - 1, seite_.hoehe - 1}; }
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override;
    [[nodiscard]] std::int32_t Texthoehe() const override;
    [[nodiscard]] std::int32_t Schriftgrad() const override;
    [[nodiscard]] std::int32_t Schrifthoehe() const override;
    void SetzeStrichmass(double mm) override {
        strich_ = mm > 0.0 ? mm / kMillimeterJeZoll * seite_.aufloesung : ueblicherStrich_;
    }
    void SetzeSchriftmass(std::int32_t dots) override { schriftmass_ = dots; }

  protected:
    /// @param strich width of a pen of width 1 [dots] @param schrift outlives the surface
    Vektorflaeche(std::unique_ptr<Dateischreiber> datei, const Druckseite& seite, double strich,
                  const Schriftmasse& schrift)
        : seite_(seite),
          strich_(strich),
          ueblicherStrich_(strich),
          masse_(schrift),
          datei_(std::move(datei)) {}
    ~Vektorflaeche() override = default;

    // The file. All of these throw a Fehler where it cannot be written.
    void SchreibeText(std::string_view text) {
        if (strom_) return strom_->NimmText(text);
        geschrieben_ += text.size();
        datei_.NimmText(text);
    }
    void SchreibeZahl(std::int64_t zahl);
    /// Fixed-point, as short as `stellen` decimals allow: "0.5", "12", never with an exponent.
    /// @param wert at most 1e15 in amount @param stellen 1 to 15
    void SchreibeZahl(double wert, int stellen);
    [[nodiscard]] std::uint64_t Geschrieben() const { return geschrieben_; }
    /// What is written from now on is compressed, up to `BeendeStrom`.
    void BeginneStrom();
    void BeendeStrom();
    void UebernimmDatei() {
        datei_.SichereDatei();
        datei_.ErsetzeZiel();
    }

    // Whether a shape can be seen on the sheet. Pens reach a little further than their line.
    [[nodiscard]] bool SiehtRechteck(const Rechteck& r) const;
    [[nodiscard]] bool SiehtStrecke(Flaechenpunkt von, Flaechenpunkt nach) const;
    [[nodiscard]] bool SiehtText(Flaechenpunkt ort, std::string_view text) const;
    /// The rectangle round some corners.
    [[nodiscard]] static Rechteck Umschrieben(std::span<const Flaechenpunkt> ecken);

    /// An ellipse by its centre and half axes [dots].
    struct Ellipsenmass {
        double mx, my, a, b;
    };
    [[nodiscard]] static Ellipsenmass Mass(const Rechteck& u) {
        return {0.5 * u.links + 0.5 * u.rechts, 0.5 * u.oben + 0.5 * u.unten, 0.5 * u.rechts - 0.5 * u.links,
                0.5 * u.unten - 0.5 * u.oben};
    }

    [[nodiscard]] const Druckseite& Seite() const { return seite_; }
    [[nodiscard]] double Strich() const { return strich_; }
    /// A pixel of the screen, where pens of width 1 are one wide [dots].
    [[nodiscard]] double Pixel() const { return seite_.aufloesung / kBildaufloesung; }
    [[nodiscard]] double Schrift() const;           ///< size of the font [dots]
    [[nodiscard]] std::int32_t Grundlinie() const;  ///< below the top of a line of text [dots]

  private:
    Druckseite seite_;
    double strich_;
    double ueblicherStrich_;
    std::int32_t schriftmass_ = 0;  ///< [dots]; 0: the usual one
    const Schriftmasse& masse_;
    std::uint64_t geschrieben_ = 0;
    Textausgabe datei_;
    std::optional<Textausgabe> strom_;  ///< compresses on the way to the file
};

// Parts of a colour.
[[nodiscard]] constexpr std::uint8_t Rotanteil(Farbe f) {
    return static_cast<std::uint8_t>(f.wert & 0xFFU);
}
[[nodiscard]] constexpr std::uint8_t Gruenanteil(Farbe f) {
    return static_cast<std::uint8_t>(f.wert >> 8U & 0xFFU);
}
[[nodiscard]] constexpr std::uint8_t Blauanteil(Farbe f) {
    return static_cast<std::uint8_t>(f.wert >> 16U & 0xFFU);
}

/// Lines of one pen that are written as one path. More in a row begin another: viewers are slow with long
/// ones.
inline constexpr int kLinienJePfad = 500;

}  // namespace zrw
