// Delaunay triangles of a handful of network points. Tries every triple, which is fine for some fifty points.
#pragma once

#include <array>
#include <set>
#include <utility>
#include <vector>

#include "beispiele/Netz.h"

namespace zrw::beispiel {

using Dreieck = std::array<Stelle, 3>;

/// Delaunay triangles of the points `auswahl`, without those that are too narrow to be observed (a corner
/// below 17 degrees), which only occur along the rim.
[[nodiscard]] std::vector<Dreieck> Dreiecke(const std::vector<NetzPunkt>& punkte,
                                            const std::vector<Stelle>& auswahl);

/// The sides of triangles, each once, smaller position first.
[[nodiscard]] std::set<std::pair<Stelle, Stelle>> Seiten(const std::vector<Dreieck>& dreiecke);

/// Whether the position lies in the triangle, its sides included.
[[nodiscard]] bool LiegtIn(const std::vector<NetzPunkt>& punkte, const Dreieck& d, double rechts,
                           double hoch);

}  // namespace zrw::beispiel
