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
#include "output/Zeichenflaeche.h"
#include "output/Zeilenhelfer.h"

namespace zrw {

class Glattbild {
  public:
    Glattbild() = default;
    /// @param bild first pixel of the top row @param zeile pixels from one row to the next
    /// @param dichte width of a pen of width 1, and of a pixel of its dashes [px]
    Glattbild(std::uint32_t* bild, int weite, int hoehe, std::size_t zeile, double dichte, unsigned helfer);

    /// Pixels outside keep their colour. Lies in the picture.
    void SetzeAusschnitt(const Rechteck& r);

    // What is drawn. It may wait until the next `SchliesseAb`.
    void FuelleRechteck(const Rechteck& r, std::uint32_t farbe);
    /// Ends lie within 2^30.
    void Linie(Flaechenpunkt von, Flaechenpunkt nach, std::uint32_t farbe, std::int32_t breite,
               bool gestrichelt);
    /// @param maske outlives the next `SchliesseAb`
    void Maske(const Deckmaske& maske, Flaechenpunkt ort, std::uint32_t farbe);
    /// Everything so far is in the picture.
    void SchliesseAb();

    // From the front to the back: what is drawn goes behind what was drawn since the beginning.
    /// @return false: the picture is too large to be kept twice
    [[nodiscard]] bool BeginneVonVorn();
    void BeendeVonVorn();
    [[nodiscard]] bool VonVorn() const { return vonVorn_; }
    /// Nothing that is drawn into the rectangle now would be seen, as far as is known.
    [[nodiscard]] bool Verdeckt(const Rechteck& r) const;

  private:
    struct Speichergabe {
        void operator()(std::uint32_t* p) const { GibSpeicher(p); }
    };
    enum class Art : std::uint8_t { Rechteck, Strich, Gestrichelt, Maske };
    /// One thing to be drawn.
    struct Auftrag {
        Flaechenpunkt von;
        union {
            Flaechenpunkt nach;
            const Deckmaske* maske;
        };
        std::uint32_t farbe;
        Art art;
        std::uint8_t breite;  ///< of the pen
    };
    static constexpr std::int32_t kKachelweite = 512;
    static constexpr std::int32_t kKachelhoehe = 128;
    static constexpr std::size_t kKachelpixel = std::size_t{kKachelweite} * kKachelhoehe;
    /// What one core draws at a time.
    struct Kachel {
        Rechteck bereich;
        std::vector<Auftrag> auftraege;
        // While drawing from the front, from the corner of the tile: what is covered, and colours times their
        // share, which stands in the highest byte, in rows of `kKachelweite`.
        Deckung deckung;
        std::uint32_t* vorn = nullptr;
    };

    void VerteileAuftrag(const Auftrag& a, const Rechteck& umfang);
    void VerteileLangen(const Auftrag& a, const Rechteck& umfang);
    void TeileInKacheln();
    template <class Kacheln, class Tun>
    void FuerKacheln(Kacheln& kacheln, const Rechteck& r, Tun tun) const;
    void ZeichneKachel(Kachel& k);
    template <class Ziel>
    void ZeichneAuftraege(const Kachel& k, Flaechenpunkt ecke, const Ziel& ziel) const;
    [[nodiscard]] Rechteck Strichumfang(const Auftrag& a) const;

    std::uint32_t* bild_ = nullptr;
    int weite_ = 0;
    int hoehe_ = 0;
    std::size_t zeile_ = 0;
    double dichte_ = 1.0;
    Rechteck ausschnitt_;
    std::unique_ptr<Zeilenhelfer> helfer_;
    std::vector<Kachel> kacheln_;  ///< row by row
    std::size_t spalten_ = 0;      ///< tiles in a row
    std::size_t wartende_ = 0;
    bool vonVorn_ = false;
    std::unique_ptr<std::uint32_t, Speichergabe> vorn_;  ///< of all tiles
};

}  // namespace zrw
