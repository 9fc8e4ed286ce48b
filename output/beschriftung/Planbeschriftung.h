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
#include "output/Druck.h"
#include "output/Zeichenmittel.h"
#include "output/beschriftung/Beschriftung.h"

namespace zrw {

class Planbeschriftung {
  public:
    /// May this number go elsewhere? The others stay, and are in the way.
    using Beweglich = std::function<bool(const PunktString& text)>;

    /// For the picture as it stands: numbers whose points lie in it, in the font of a surface that has one
    /// dot for each pixel.
    static Planbeschriftung FuerBild(const Bildvorlage& v, const Zeichenmittel& mittel,
                                     const Zeichenflaeche& schrift, const Beweglich& beweglich);
    /// For paper: all numbers, at a scale and in the dots and the font of a device.
    static Planbeschriftung FuerDruck(const Bildvorlage& v, const Zeichenmittel& mittel,
                                      const Zeichenflaeche& schrift, double massstab, double aufloesung,
                                      const Beweglich& beweglich);

    [[nodiscard]] std::size_t Bewegliche() const;
    [[nodiscard]] const Beschriftungsaufgabe& Aufgabe() const { return aufgabe_; }

    struct Nummernlage {
        PPunktString text;
        Bildpunkt abstand;  ///< new offset [px]
    };
    struct Ordnung {
        std::vector<Nummernlage> versetzt;  ///< those that go elsewhere
        Beschriftungsguete vorher, nachher;
    };
    /// Nothing where it was stopped.
    [[nodiscard]] std::optional<Ordnung> OrdneNummern(const Fortschritt& fortschritt = {}) const;

  private:
    struct Blick;
    Planbeschriftung() = default;
    void NimmPlan(const Blick& b, const Beweglich& beweglich);
    void NimmTexte(const Blick& b, const std::vector<std::int32_t>& radius, const Beweglich& beweglich);

    Beschriftungsaufgabe aufgabe_;
    std::vector<PPunktString> texte_;   ///< of the labels
    std::vector<Flaechenpunkt> innen_;  ///< where the text begins in its box
};

}  // namespace zrw
