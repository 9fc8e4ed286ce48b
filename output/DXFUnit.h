// Writes the exchange drawing: one text file of DXF entities. Does no geometry: callers hand over finished
// positions and the names of layer and line type.
//
// The file is a sequence of pairs of lines, each line ended by CR LF:
//   group code   integer, right-aligned in 3 characters: "  0", " 10"
//   value        text as it stands, or a real in 23 characters: sign or blank, one digit, point, 14 digits,
//                "E", sign, 4 digits of the exponent: " 1.25000000000000E+0003". Only the angle of a text is
//                fixed-point, right-aligned in 10 characters: "    0.0000"
// It holds the section ENTITIES and nothing else. Layers and line types are named, never declared; texts are
// code page 1252. Group codes as in the DXF reference (AutoCAD R12): 0 entity, 1 text, 2 name, 6 line type,
// 8 layer, 10/20/30 and 11/21/31 positions, 40 height or radius, 50 angle.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "model/Dateien.h"
#include "model/Werte.h"
#include "output/Ebene.h"
#include "output/Textausgabe.h"

namespace zrw {

/// Layers and line types that the drawing names.
namespace dxf {
inline constexpr std::string_view kPunkte = Ebenenname(Ebene::Punkte);
inline constexpr std::string_view kPunktnummern = Ebenenname(Ebene::Punktnummern);
inline constexpr std::string_view kBeobachtungen = Ebenenname(Ebene::Beobachtungen);
inline constexpr std::string_view kGitter = Ebenenname(Ebene::Gitter);
inline constexpr std::string_view kDurchgezogen = "CONTINUOUS";
inline constexpr std::string_view kGestrichelt = "ACAD_ISO03W100";
}  // namespace dxf

/// Position in the drawing. World coordinates [m] for figures; z is 0 throughout.
struct Dxfpunkt {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

/// Where an entity belongs.
struct Dxfart {
    std::string_view layer;
    std::string_view linientyp = dxf::kDurchgezogen;
};

class DXFUnit {
  public:
    std::filesystem::path DxfFileName;  ///< the file that `DxfOpen` creates

    explicit DXFUnit(Dateien& dateien) : dateien_(dateien) {}

    /// True between `DxfOpen` and `DxfClose`. The entity operations need it.
    [[nodiscard]] bool DxfIsOpen() const { return datei_.has_value(); }

    // All of these throw a Fehler where the file cannot be written.
    void DxfOpen();
    void DxfLine(const Dxfart& art, Dxfpunkt von, Dxfpunkt nach);
    void DxfPoint(const Dxfart& art, Dxfpunkt ort);
    /// @param winkel [deg] @param hoehe of the characters, in the unit of the position
    void DxfText(std::string_view text, const Dxfart& art, Dxfpunkt ort, double winkel, double hoehe);
    void DxfCircle(const Dxfart& art, Dxfpunkt mitte, double radius);
    /// Ends the drawing and brings it onto the disk, beside the file of its name. Nothing where none is open.
    void DxfClose();
    /// Puts the closed drawing in the place of its name. Nothing where none was closed.
    void ErsetzeZiel();

  private:
    void Paar(std::string_view code, std::string_view wert);
    void Paar(std::string_view code, double wert);
    void Kopf(std::string_view name, const Dxfart& art);
    void Ort(Dxfpunkt p);

    Dateien& dateien_;
    std::optional<Textausgabe> datei_;
    std::optional<Textausgabe> fertig_;
};

}  // namespace zrw
