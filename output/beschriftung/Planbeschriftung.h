// The numbers of a plan as a task for `OrdneSchilder`: labels, symbols and strokes come from the routines
// that draw them, in a view at the size of the device that is to show them. Offsets are in pixels of the
// plan, as figures and picture files hold them; a device has more dots for each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "model/Bildvorlage.h"
#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/Zeichenmittel.h"
#include "output/beschriftung/Beschriftung.h"

namespace zrw {

class Planbeschriftung {
  public:
    /// May this number go elsewhere? The others stay, and are in the way.
    using Beweglich = std::function<bool(const PunktString& text)>;

    /// For the picture as it stands: numbers whose points lie in it, in the font of a surface that has so
    /// many dots for each pixel.
    static Planbeschriftung FuerBild(const Bildvorlage& v, const Zeichenmittel& mittel,
                                     const Zeichenflaeche& schrift, double dichte,
                                     const Beweglich& beweglich);
    /// For paper: all numbers, at a scale and in the dots and the font of a device. Without sheets so far.
    /// @param seite what the plan gets of each
    static Planbeschriftung FuerDruck(const Bildvorlage& v, const Zeichenmittel& mittel,
                                      const Zeichenflaeche& schrift, double massstab, const Druckseite& seite,
                                      const Beweglich& beweglich);
    /// The sheets that are printed: numbers should not lie across their edges.
    void SetzeBlaetter(const std::vector<Blatt>& blaetter);

    [[nodiscard]] std::size_t Bewegliche() const;
    [[nodiscard]] const Beschriftungsaufgabe& Aufgabe() const { return aufgabe_; }

    struct Nummernlage {
        PPunktString text;
        Bildpunkt abstand;  ///< new offset [px]
    };
    struct Ordnung {
        std::vector<Nummernlage> versetzt;  ///< those that go elsewhere
        std::vector<Flaechenpunkt> lagen;   ///< of all, as the task has them
        Beschriftungsguete vorher, nachher;
    };
    /// Nothing where it was stopped.
    [[nodiscard]] std::optional<Ordnung> OrdneNummern(const Fortschritt& fortschritt = {}) const;
    /// Those that may move and lie across edges of the sheets, as the task counts them.
    [[nodiscard]] std::vector<std::size_t> Zerschnittene(const Ordnung& ordnung) const;
    /// Those and their neighbours go elsewhere, all others stay as they were ordered.
    [[nodiscard]] std::optional<Ordnung> OrdneZerschnittene(const Ordnung& bisher,
                                                            const Fortschritt& fortschritt = {}) const;

  private:
    struct Blick;
    Planbeschriftung() = default;
    [[nodiscard]] std::optional<Ordnung> Ordne(const Beschriftungsaufgabe& aufgabe,
                                               const Fortschritt& fortschritt) const;
    void NimmPlan(const Blick& b, const Beweglich& beweglich);
    void NimmTexte(const Blick& b, const std::vector<std::int32_t>& radius, const Beweglich& beweglich);

    struct Papier {
        Ansicht ansicht;
        Druckseite seite;
    };

    Beschriftungsaufgabe aufgabe_;
    Papier papier_;                     ///< of a print
    std::vector<PPunktString> texte_;   ///< of the labels
    std::vector<Flaechenpunkt> innen_;  ///< where the text begins in its box
};

}  // namespace zrw
