// Draws straight into the rows of a 32-bit picture: what a general painter spends on each small stroke is
// many times what setting its pixels takes. What is handed over is kept in the order of drawing and drawn in
// tiles (Kachelwerk.h); the pixels depend neither on the tiles nor on what part of the picture is drawn, so
// strips and edits of a picture can be drawn alone.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "output/Deckung.h"
#include "output/Kachelwerk.h"
#include "output/Pixelpinsel.h"
#include "output/Zeichenflaeche.h"
#include "output/Zielbild.h"

namespace zrw {

/// A character, or the same with what lies round it.
enum class Zeichenform : std::uint8_t { Blank, MitRand };

class Pixelbild {
  public:
    Pixelbild() = default;
    void BindeAn(const Zielbild& bild);

    [[nodiscard]] Rechteck Ganz() const { return {0, 0, bild_.weite - 1, bild_.hoehe - 1}; }
    /// Pixels outside keep their colour. Cut to the picture.
    void SetzeAusschnitt(const Rechteck& r);
    [[nodiscard]] const Rechteck& Ausschnitt() const { return kacheln_.Ausschnitt(); }
    /// Moves the picture; what comes in at the border keeps its old pixels.
    void VerschiebeBild(int dx, int dy);

    // From the front to the back: pixels that were set since the beginning keep their colour.
    void BeginneVonVorn();
    void BeendeVonVorn();
    [[nodiscard]] bool VonVorn() const { return deckung_.Aktiv(); }
    /// Nothing that is drawn into the rectangle now would be seen, as far as is known.
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const { return VonVorn() && deckung_.Verdeckt(r); }
    /// Maps it, as exactly as it is known when everything so far is drawn.
    void KartiereVerdecktes(Deckkarte& karte);

    // What is drawn (Pixelpinsel.h). It may wait until the next `SchliesseAb`.
    /// Not while drawing from the front.
    void FuelleRechteck(const Rechteck& r, std::uint32_t farbe);
    /// Ends lie within 2^30.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, bool gestrichelt);
    /// The same for many that lie beside each other.
    void Linien(std::span<const Linienstueck> stuecke, std::uint32_t farbe);
    /// @param maske outlives the next `SchliesseAb`
    void Maske(const Pixelmaske& maske, Flaechenpunkt ort, std::uint32_t farbe);
    /// An outline and what lies in it, two masks of one frame, which outlive the next `SchliesseAb`.
    void Stempel(const Pixelmaske& rand, const Pixelmaske& fuellung, Flaechenpunkt ort, std::uint32_t farbe,
                 std::uint32_t fuellfarbe);
    /// @return false: not all of its characters were taken in this form, and nothing is drawn
    bool Text(Flaechenpunkt ort, std::string_view text, std::uint32_t farbe, Zeichenform form);
    /// Everything so far is in the picture.
    void SchliesseAb() { kacheln_.SchliesseAb(); }

    // The characters of texts.
    [[nodiscard]] const Glyphensatz& Schrift(Zeichenform form) const {
        return schriften_[static_cast<std::size_t>(form)];
    }
    void NimmZeichen(Zeichenform form, char c, const Pixelmaske& maske, int vorschub);
    void VergissZeichen(Zeichenform form);

  private:
    // Orders are rows of words: a head, and what belongs to its kind.
    enum class Art : std::uint8_t {
        Rechteck,      ///< its two corners
        Striche,       ///< `anzahl` solid strokes and `dashes` others, their ends in 16 bits each
        LangerStrich,  ///< its two ends; `dashes` are 1 or 0
        Maske,         ///< its address, and its place
        Stempel,       ///< the addresses of both masks, the colour inside, and its place
        Text           ///< its place, and `anzahl` characters in whole words
    };
    using Wort = std::uint64_t;
    struct Kopf {
        std::uint32_t farbe = 0;
        Art art = Art::Rechteck;
        std::uint8_t anzahl = 0;
        std::uint8_t dashes = 0;
        Zeichenform form = Zeichenform::Blank;
    };
    static_assert(sizeof(Kopf) == sizeof(Wort) && sizeof(Flaechenpunkt) == sizeof(Wort));
    class Auftrag;
    void VerteileStriche(std::span<const Linienstueck> stuecke, std::uint32_t farbe);
    void VerteileLangen(const Linienstueck& s, std::uint32_t farbe);
    /// No helpers: orders need not wait.
    [[nodiscard]] bool Allein() const { return bild_.helfer == 0; }
    void ZeichneAllein(std::span<const Wort> auftrag);
    void Gib(std::span<const Wort> auftrag, const Rechteck& umfang);
    void ZeichneAuftraege(const Pixelpinsel& pinsel, std::span<const Wort> auftraege) const;
    [[nodiscard]] Pixelpinsel Pinsel(const Rechteck& bereich) {
        return {bild_.pixel, bild_.zeile, bereich, VonVorn() ? &deckung_ : nullptr};
    }

    Zielbild bild_;
    Deckung deckung_;
    std::array<Glyphensatz, 2> schriften_;  ///< in the order of `Zeichenform`
    Kachelwerk<Wort> kacheln_{[this](std::size_t kachel, std::span<const Wort> a) {
        ZeichneAuftraege(Pinsel(kacheln_.Bereich(kachel)), a);
    }};
};

}  // namespace zrw
