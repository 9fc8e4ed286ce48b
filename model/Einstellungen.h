// Display settings: colours, sizes, offsets, catch radius, zoom step, residual scale. One block, made by
// `main` and handed on by reference. Where the persistent ones are kept is the business of
// `EinstellungsSpeicher`.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "model/Werte.h"

namespace zrw {

struct Einstellungen {
    // Kept between runs, in the order in which they are stored.
    Farbe TXCol{0x000000};     ///< point numbers (offered in the dialog, no drawing reads it)
    Farbe FPCol{0x000000};     ///< control points
    Farbe FLCol{0x808080};     ///< horizontal control points
    Farbe FHCol{0x008000};     ///< height control points
    Farbe NPCol{0x0000FF};     ///< new points
    Farbe RICol{0x0000FF};     ///< directions
    Farbe AZCol{0x800080};     ///< bearings
    Farbe GPSCol{0xFF00FF};    ///< GPS vectors and lines inserted with the mouse
    Farbe TKCol{0xFF0000};     ///< map sheets and kilometre squares
    Farbe PPCol{0x0000FF};     ///< frame of the output area
    std::uint16_t PTSize = 4;  ///< symbol radius of points with a positive code [px]
    std::uint16_t HPSize = 2;  ///< symbol radius of the others [px]
    std::uint16_t Fang = 5;    ///< catch radius of the mouse [px]
    std::int32_t PXOff = 10;   ///< offset of a new label from its point, to the right [px]
    std::int32_t PYOff = -5;   ///< the same downwards [px]
    Farbe LGRCol{0x0000FF};    ///< horizontal residuals
    Farbe LGGCol{0x0000FF};    ///< error ellipses
    Farbe HRCol{0xFF0000};     ///< height residuals
    Farbe HGCol{0xFF0000};     ///< height accuracy
    Farbe GFCol{0x000080};     ///< observations flagged as gross errors
    double ResMF = 1.0;        ///< residual scale [-]

    // In memory only: they begin anew with every start.
    double Zoomschritt = 0.6666666666666666;  ///< view scale after one step in / before it [-]
    std::uint16_t Kreuzgroesse = 4;           ///< half size of the cross [px]
    std::uint16_t Quadratgroesse = 4;         ///< half side of the square [px]
    std::uint16_t RauteQuer = 4;              ///< half diagonal of the rhombus, across [px]
    std::uint16_t RauteLaengs = 4;            ///< the same upright [px]
    std::uint16_t Dreieckgroesse = 4;         ///< size of the triangle [px]
    std::uint16_t Querstrich = 4;             ///< half length of the tick across a line [px]
    std::uint16_t GPSGroesse = 4;             ///< half diagonal of the GPS marker [px]
    std::uint16_t Umweggroesse = 4;           ///< height of the detour of indirect lines [px]

    /// Multiplies the ten sizes by the device factor and rounds them, halves to even, in place: printing
    /// scales forth and back, and sizes may come back one pixel off. Values beyond 16 bits stop at 65535.
    void ScaleSizes(double geraetefaktor);
};

/// Named text values of one user: the registry on Windows, an INI file elsewhere, a map in tests.
class EinstellungsSpeicher {
  public:
    virtual ~EinstellungsSpeicher() = default;
    [[nodiscard]] virtual std::optional<std::string> LiesWert(std::string_view schluessel) const = 0;
    virtual void SchreibeWert(std::string_view schluessel, const std::string& text) = 0;
    /// Puts what is written where it outlives the program, for stores that can.
    /// @throws Fehler where that cannot be done; the store keeps the values in memory
    virtual void SichereWerte() {}
};

/// Reads the persistent settings. A missing or malformed integer keeps the value that the block has; the
/// 16-bit sizes keep the low 16 bits of what is read; a malformed "ResMF" becomes 1.0.
void LoadSettings(Einstellungen& e, const EinstellungsSpeicher& speicher);

/// Writes all persistent settings as text.
void SaveSettings(const Einstellungen& e, EinstellungsSpeicher& speicher);

}  // namespace zrw
