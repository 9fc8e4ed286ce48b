// The network for geographic information systems: a GeoJSON file (RFC 7946, but in the network's own grid,
// named by the "crs" member of the format's 2008 version, which readers still honour).
#pragma once

#include <filesystem>
#include <optional>

#include "model/Dateien.h"
#include "model/Netz.h"
#include "model/Netzangaben.h"
#include "model/Punktergebnisse.h"

namespace zrw {

/// EPSG code of the grid that the coordinates of the points lie in, where mapping, ellipsoid, central
/// meridian and network type determine one and the eastings agree with it. Codes: EPSG Geodetic Parameter
/// Dataset.
[[nodiscard]] std::optional<int> EpsgCode(const Netzangaben& angaben, const Netz& netz);

/// Writes all points and lines, hidden ones too, with what is known about each. Coordinates [m], easting
/// first; residuals and accuracies in the units of the adjustment.
/// @param ergebnisse results of the points, may be null
/// @throws Fehler where the file cannot be written; the old one then is as it was
void SchreibeGeojson(const Netz& netz, const Netzangaben& angaben, const Einstellungen& einstellungen,
                     Punktergebnisse* ergebnisse, Dateien& dateien, const std::filesystem::path& datei);

}  // namespace zrw
