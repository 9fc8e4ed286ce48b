// Writes the plot as exchange drawing (DXF) and plotter file (HPGL/2). There is no walk of its own: the plan
// is drawn once, in a view at the scale of the print, and the drawing routines write.
#pragma once

#include <cassert>
#include <filesystem>
#include <optional>
#include <string_view>

#include "model/Bildvorlage.h"
#include "model/Dateien.h"
#include "output/Zeichenmittel.h"

namespace zrw {

inline constexpr const char* kPlotname = "ZRW.PLT";
inline constexpr const char* kDxfname = "ZRW.DXF";
inline constexpr const char* kUeblicherMassstab = "25000";
inline constexpr int kUeblicheAufloesung = 600;  ///< [dots per inch], of printers that do not say

struct Exportauftrag {
    double faktor = 1.0;                        ///< [m/dot], from `Druckfaktor`
    std::optional<std::filesystem::path> plot;  ///< plotter file to write
    std::optional<std::filesystem::path> dxf;   ///< drawing to write
};

/// Metres of ground that one dot covers at 1:`massstab` and `aufloesung` dots per inch.
[[nodiscard]] constexpr double Druckfaktor(double massstab, double aufloesung) {
    assert(massstab > 0.0 && aufloesung > 0.0);
    return massstab / 1000 * 25.4 / aufloesung;
}

/// The scale denominator of a text: a positive number, small and large enough to draw with. Else nothing.
[[nodiscard]] std::optional<double> LiesMassstab(std::string_view text);

/// Writes the files of the order; each replaces the one of its name as a whole, and only when all are
/// written.
/// @throws Fehler where a file cannot be written
void ExportierePlan(const Bildvorlage& v, const Zeichenmittel& mittel, Dateien& dateien,
                    const Exportauftrag& auftrag);

}  // namespace zrw
