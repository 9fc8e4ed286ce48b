// Draws with smooth edges into the rows of a 32-bit picture: strokes and masks by how much of each pixel they
// cover. What is handed over is kept in the order of drawing and drawn in tiles, each by one core and small
// enough for its cache; the pixels depend neither on the tiles nor on what part of the picture is drawn.
//
// Positions are the middles of pixels. A stroke of the surface covers its pen's width across and both end
// pixels along its longer axis.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "model/GrosserSpeicher.h"
#include "output/Deckung.h"
#include "output/Glattpinsel.h"
#include "output/Kachelwerk.h"
#include "output/Strichstempel.h"
#include "output/Zeichenflaeche.h"
#include "output/Zielbild.h"

namespace zrw {

class Glattbild {
  public:
    Glattbild() = default;
    /// @param dichte width of a pen of width 1, and of a pixel of its dashes [px]
    void BindeAn(const Zielbild& bild, double dichte);

    /// Pixels outside keep their colour. Lies in the picture.
    void SetzeAusschnitt(const Rechteck& r) { kacheln_.SetzeAusschnitt(r); }

    // What is drawn. It may wait until the next `SchliesseAb`.
    void FuelleRechteck(const Rechteck& r, std::uint32_t farbe);
    /// Ends lie within 2^30.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, std::int32_t breite,
               bool gestrichelt);
    /// The same for many that lie beside each other.
    void Linien(std::span<const Linienstueck> stuecke, std::uint32_t farbe, std::int32_t breite);
    /// @param maske outlives the next `SchliesseAb`
    void Maske(const Deckmaske& maske, Flaechenpunkt ort, std::uint32_t farbe);
    /// The same for many that lie beside each other.
    void Masken(std::span<const Maskenort> masken, std::uint32_t farbe);
    /// More are drawn in several steps.
    static constexpr std::size_t kMeisteMasken = 16;
    /// Everything so far is in the picture.
    void SchliesseAb() { kacheln_.SchliesseAb(); }

    // From the front to the back: what is drawn goes behind what was drawn since the beginning.
    /// @return false: the picture is too large to be kept twice
    [[nodiscard]] bool BeginneVonVorn();
    void BeendeVonVorn();
    [[nodiscard]] bool VonVorn() const { return vonVorn_; }
    /// Nothing that is drawn into the rectangle now would be seen, as far as is known.
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const;
    /// Maps it, as exactly as it is known when everything so far is drawn.
    void KartiereVerdecktes(Deckkarte& karte);

  private:
    struct Speichergabe {
        void operator()(std::uint32_t* p) const { GibSpeicher(p); }
    };
    enum class Art : std::uint8_t { Rechteck, Strich, Gestrichelt, Maske };
    /// One thing to be drawn.
    struct Auftrag {
        Flaechenpunkt von;
        union {
            Flaechenpunkt nach = {};
            const Deckmaske* maske;
        };
        std::uint32_t farbe;
        Art art;
        std::uint8_t breite;  ///< of the pen; how many masks belong together, of the first of them
    };
    static constexpr std::size_t kKachelpixel = std::size_t{kKachelweite} * kKachelhoehe;
    /// While drawing from the front, from the corner of the tile: what is covered, and colours times their
    /// share, which stands in the highest byte, in rows of `kKachelweite`.
    struct Vorderseite {
        Deckung deckung;
        std::uint32_t* pixel = nullptr;
        Rechteck benutzt{0, 0, kKachelweite - 1, kKachelhoehe - 1};  ///< outside of it are zeros
        Rechteck davor = kKeinRechteck;  ///< where the picture was painted when it began
    };

    void ZeichneKachel(std::size_t kachel, std::span<const Auftrag> auftraege);
    template <class Ziel>
    void ZeichneAuftraege(std::span<const Auftrag> auftraege, Flaechenpunkt ecke, const Ziel& ziel) const;
    template <class Ziel>
    [[nodiscard]] bool Stempele(const Auftrag& a, Flaechenpunkt von, Flaechenpunkt nach,
                                const Ziel& ziel) const;
    template <class Ziel>
    static void ZeichneMasken(std::span<const Auftrag> auftraege, Flaechenpunkt ecke, const Ziel& ziel);
    static void SchreibeStrich(Auftrag& a, const Linienstueck& s, std::uint32_t farbe, std::uint8_t breite);
    [[nodiscard]] static std::uint8_t Stiftbreite(std::int32_t breite);
    /// How far a stroke reaches to each side [px].
    [[nodiscard]] std::int32_t Strichrand(int breite) const {
        return static_cast<std::int32_t>(dichte_ * breite) + 2;
    }
    [[nodiscard]] Rechteck Strichumfang(Flaechenpunkt von, Flaechenpunkt nach, int breite) const;

    Zielbild bild_;
    double dichte_ = 1.0;
    Strichstempel stempel_;
    bool vonVorn_ = false;
    std::unique_ptr<std::uint32_t, Speichergabe> vorn_;  ///< of all tiles
    std::vector<Vorderseite> vorderseiten_;              ///< of each tile
    Kachelwerk<Auftrag> kacheln_{
        [this](std::size_t kachel, std::span<const Auftrag> a) { ZeichneKachel(kachel, a); }};
};

}  // namespace zrw
