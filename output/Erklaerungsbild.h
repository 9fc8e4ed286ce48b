// The key of the plan: a box with the symbols, lines, marks, colours and results that it shows, each drawn by
// the routine that draws it in the plan. On screen and paper only, never in an export.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "model/Bildvorlage.h"
#include "model/Einstellungen.h"
#include "model/Zeichenzeilen.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeichenzustand.h"

namespace zrw {

class Erklaerungsbild {
  public:
    /// More rows are no key any more.
    static constexpr std::size_t kMeisteZeilen = 24;

    /// @param zustand its surface must be there @param zeichner draws the examples of `zeilen`
    /// @param symbolhoehe of the largest example [dots]
    Erklaerungsbild(const Zeichenzustand& zustand, const Einstellungen& groessen, const Bildvorlage& v,
                    Zeichner& zeichner, std::int64_t symbolhoehe, const std::vector<Zeichenzeile>& zeilen);

    /// Where the plan has its key when it was put nowhere, from the picture's top-right corner [px].
    static constexpr Bildpunkt kUeblicherOrt{-8, 8};

    /// Where the box stands [dots]: its top-right corner as far from that of the picture as the plan says. On
    /// paper a key that was put nowhere goes to the corner where it hides the fewest points. As many columns
    /// as its rows need. Empty without any row.
    [[nodiscard]] Rechteck Umfang() const { return umfang_; }
    void ZeichneKasten() const;

  private:
    struct Zeile {
        std::string text;  ///< code page 1252
        std::function<void(Bildpunkt mitte)> male;
    };

    void NimmKlassen();
    void NimmErgebnisse();
    void NimmMassstab(const std::string& was, double vergroesserung);
    void NimmZeile(std::string_view text, std::function<void(Bildpunkt mitte)> male);
    void MissKasten();
    [[nodiscard]] Bildpunkt Ort(std::int64_t weite, std::int64_t hoehe) const;
    [[nodiscard]] std::size_t Verdeckte(const Bildbereich& r) const;
    [[nodiscard]] std::int64_t Dots(double pixel) const;
    void Strich(Farbe farbe, Bildpunkt von, Bildpunkt nach) const;
    // As they are drawn in the plan.
    void Vektor(Farbe farbe, Bildpunkt von, Bildpunkt nach, Strichart art = Strichart::Voll) const;
    void Ellipse(Bildpunkt mitte, Strichart art = Strichart::Voll) const;

    const Zeichenzustand& zustand_;
    const Einstellungen& groessen_;
    const Bildvorlage& v_;
    Zeichner& zeichner_;
    Zeichenflaeche& flaeche_;
    std::string titel_;  ///< code page 1252
    std::vector<Zeile> zeilen_;
    std::int64_t zeilenhoehe_ = 0;
    std::int64_t spaltenweite_ = 0;
    std::int64_t jeSpalte_ = 1;  ///< rows
    Rechteck umfang_ = kKeinRechteck;
};

}  // namespace zrw
