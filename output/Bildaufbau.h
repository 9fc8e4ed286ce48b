// The quick way to a screen picture of all lines, points and labels: only what may touch the part that is
// being drawn, and in dense pictures from the front to the back, so that what is hidden anyway is never
// drawn. The picture is the one that handing over every figure in turn gives.
#pragma once

#include <cstdint>
#include <vector>

#include "model/Bildorte.h"
#include "model/Bildvorlage.h"
#include "model/Gezeigt.h"
#include "output/Deckkarte.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

class Figurenzeichner;

/// Memory of one picture, to be used again by the next.
struct Bildspeicher {
    Ortsspeicher orte;
    std::vector<std::uint32_t> kanten;
    std::vector<PPunktKnoten> punkte;
    std::vector<Bildpunkt> punktorte;
    std::vector<PPunktString> texte;
    Deckkarte karte;
};

class Bildaufbau {
  public:
    /// How far figures reach beyond their positions [px].
    struct Reichweiten {
        std::int64_t symbol = 0;
        std::int64_t kante = 0;
        std::int64_t textweite = 0;
        std::int64_t texthoehe = 0;
        std::int64_t textrand = 0;  ///< all round
    };

    /// @param speicher kept from one picture to the next
    Bildaufbau(const Bildvorlage& v, Zeichenflaeche& flaeche, Figurenzeichner& zeichner,
               const Reichweiten& reichweiten, Bildspeicher& speicher);

    void ZeichneNetz();

  private:
    void SammleFiguren();
    void SammleTexte();
    void LasseFerneKantenWeg();
    void LasseFerneTexteWeg();
    [[nodiscard]] bool Dicht() const;
    void ZeichneKante(const PunktKante& k);
    void HoleOrte(std::uint32_t folge) const;
    void ZeichneKanten();
    void ZeichneKantenVonVorn();
    void ZeichnePunkt(std::size_t i);
    void ZeichnePunkte();
    void ZeichnePunkteVonVorn();
    void ZeichneTexte(bool vonVorn);
    [[nodiscard]] bool Verdeckt(Bildpunkt a, Bildpunkt e, std::int64_t rand) const;
    [[nodiscard]] bool Unsichtbar(std::uint32_t kante, const Weltkasten& dort) const;
    [[nodiscard]] bool Unsichtbar(const PunktKante& k);
    [[nodiscard]] static bool BeruehrtBereich(Bildpunkt a, Bildpunkt b, const Bildbereich& r);
    [[nodiscard]] Bildbereich Bereich(std::int64_t rand) const;

    const Bildvorlage& v_;
    Zeichenflaeche& flaeche_;
    Figurenzeichner& zeichner_;
    Reichweiten r_;
    Gezeigt gezeigt_;
    Bildorte orte_;
    // Where positions lie whose figures may show.
    Bildbereich linien_;
    Bildbereich symbole_;
    Bildbereich nummern_;
    // What may have to be drawn, newest first.
    std::vector<std::uint32_t>& kanten_;  ///< by `Folge`
    std::vector<PPunktKnoten>& punkte_;
    std::vector<Bildpunkt>& punktorte_;  ///< of those
    std::vector<PPunktString>& texte_;
    Deckkarte& karte_;  ///< of what is covered, while drawing from the front
};

}  // namespace zrw
