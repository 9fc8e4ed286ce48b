// Kilometre lines and those of map sheets as paper has them: thin, light, from edge to edge, numbered at each
// edge, and only every so many where they would stand close together.
#pragma once

#include <string>
#include <string_view>

#include "model/Ansicht.h"
#include "model/Netzangaben.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

inline constexpr double kGitterstrich = 0.1;    ///< width of grid lines on paper [mm]
inline constexpr double kLinienabstand = 55.0;  ///< of grid lines on paper, at least [px of the screen]

/// A colour as thin lines behind a plan have it.
[[nodiscard]] constexpr Farbe Aufgehellt(Farbe f) {
    std::uint32_t hell = 0;
    for (const unsigned schub : {0U, 8U, 16U})
        hell |= (255U + (f.wert >> schub & 0xFFU)) / 2U << schub;
    return Farbe{hell};
}

/// The numbers at the edges of what can be seen of a surface.
class Randzahlen {
  public:
    /// @param zeilen of numbers along the upper and the lower edge: none at the sides runs into them
    Randzahlen(Zeichenflaeche& flaeche, Farbe farbe, std::int32_t zeilen)
        : flaeche_(flaeche), farbe_(farbe), kante_(flaeche.Sichtbar()), zeilen_(zeilen) {}

    [[nodiscard]] const Rechteck& Kante() const { return kante_; }
    /// What the numbers leave. @param einzug of those at the sides, with their own width [dots]
    [[nodiscard]] Rechteck Innen(std::int32_t einzug) const;
    /// Beside a line that meets the upper or lower edge at `x`. @param zeile counted inwards, from 0 on
    void SchreibeOben(std::int32_t x, std::string_view text, std::int32_t zeile) const;
    void SchreibeUnten(std::int32_t x, std::string_view text, std::int32_t zeile) const;
    /// Above a line that meets the left or right edge at `y`. @param einzug from the edge [dots]
    void SchreibeLinks(std::int32_t y, std::string_view text, std::int32_t einzug) const;
    void SchreibeRechts(std::int32_t y, std::string_view text, std::int32_t einzug) const;
    /// Whole numbers only: one that would reach out of the rectangle is left out.
    void SchreibeGanz(Flaechenpunkt ort, std::string_view text, const Rechteck& r) const;

  private:
    [[nodiscard]] std::int32_t Luft() const { return flaeche_.Texthoehe() / 4; }

    Zeichenflaeche& flaeche_;
    Farbe farbe_;
    Rechteck kante_;
    std::int32_t zeilen_;
};

/// Draws them onto what can be seen of the surface. @param dichte its dots per pixel of the screen
void ZeichneKilometerlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, Farbe farbe, double dichte);

struct Blattliniengitter {
    Netzangaben netz;  ///< ellipsoid, mapping and central meridian
    Farbe farbe;
    double dichte = 1.0;           ///< dots per pixel of the screen
    bool nebenKilometern = false;  ///< the numbers leave room for those of kilometre lines
};
/// Edges of the sheets 1:25000, each with its degrees and minutes; the sheets' numbers where no line is left
/// out. Nothing where the picture leaves the projection.
void ZeichneKartenblattlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht,
                              const Blattliniengitter& gitter);

/// Code page 1252: 9°20', or 9° where it is whole. @param minuten [arc minutes], negative in the west or
/// south
[[nodiscard]] std::string Gradzahl(int minuten);

}  // namespace zrw
