// Writes what is drawn as a scalable picture (SVG 1.1), piece by piece: a group for every run of figures of
// one layer, lines of one pen in a row as one path, texts as text. Dots are the user units; whole positions
// are the middles of dots, so that lines cover the dots that they cover on the screen. At the screen's
// resolution the picture has its size in pixels, at others in millimetres.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string_view>

#include "output/Vektorflaeche.h"

namespace zrw {

class Svgflaeche final : public Vektorflaeche {
  public:
    /// @param titel of the picture, code page 1252
    /// @throws Fehler where the file cannot be written, as all operations do
    Svgflaeche(std::unique_ptr<Dateischreiber> datei, const Druckseite& seite, std::string_view titel);

    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override;
    void ZeichneRechteck(const Rechteck& r) override;
    void Ellipse(const Rechteck& umschrieben) override;
    void Vieleck(std::span<const Flaechenpunkt> ecken) override;
    void FuelleRechteck(const Rechteck& r, Farbe farbe) override;
    void FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) override;
    void Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) override;
    void TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                     std::int32_t rand) override;

    /// Ends the picture and puts it in its place. Nothing is drawn afterwards.
    void BeendeDatei();

  protected:
    void EbeneGewechselt(Ebene ebene) override;

  private:
    void Kopf(std::string_view titel);
    void BeginneElement();
    void SchliessePfad();
    void BeginnePfad();
    void Attribut(std::string_view name, std::int64_t wert);
    void Attribut(std::string_view name, double wert);
    void Farbattribut(std::string_view name, Farbe farbe);
    void Eckenliste(std::span<const Flaechenpunkt> ecken);
    void Stiftattribute();
    void Formende();
    void BeginneText(Flaechenpunkt ort);
    void BeendeText(std::string_view text);
    void Zeichen(std::string_view text);

    std::array<int, kEbenennamen.size()> gruppen_{};  ///< so many of each layer
    bool offeneGruppe_ = false;
    std::optional<Stift> pfad_;  ///< pen of the path that is being written
    Flaechenpunkt pfadende_;
    int pfadlinien_ = 0;
};

}  // namespace zrw
