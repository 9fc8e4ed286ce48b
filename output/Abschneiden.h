// From 64-bit picture positions to a 32-bit surface: what cannot be seen is left out, and lines whose ends
// lie far outside are cut so that they still cross the picture in the right place.
#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "output/Zeichenflaeche.h"

namespace zrw {

/// Whether a shape from one position to another, `rand` dots wide to all sides, can touch the visible
/// rectangle.
[[nodiscard]] inline bool InReichweite(Bildpunkt a, Bildpunkt b, std::int64_t rand, const Rechteck& s) {
    return std::max(a.x, b.x) >= s.links - rand && std::min(a.x, b.x) <= s.rechts + rand &&
           std::max(a.y, b.y) >= s.oben - rand && std::min(a.y, b.y) <= s.unten + rand;
}

/// The same for a shape round one position.
[[nodiscard]] inline bool InReichweite(Bildpunkt ort, std::int64_t rand, const Rechteck& s) {
    return InReichweite(ort, ort, rand, s);
}

/// Only for positions that are `InReichweite` or cut.
[[nodiscard]] inline Flaechenpunkt Aufflaeche(Bildpunkt b) {
    return Flaechenort(static_cast<std::int32_t>(b.x), static_cast<std::int32_t>(b.y));
}

/// The rectangle that shapes between two positions and `rand` dots round them touch. Positions far outside
/// come nearer, and stay outside.
[[nodiscard]] inline Rechteck Umgebung(Bildpunkt a, Bildpunkt b, std::int64_t rand) {
    constexpr std::int64_t kWeit = 1 << 30;
    const auto begrenzt = [=](std::int64_t v) { return std::clamp(v, -kWeit, kWeit); };
    const auto dot = [](std::int64_t v) { return static_cast<std::int32_t>(v); };
    return {dot(begrenzt(std::min(a.x, b.x)) - rand), dot(begrenzt(std::min(a.y, b.y)) - rand),
            dot(begrenzt(std::max(a.x, b.x)) + rand), dot(begrenzt(std::max(a.y, b.y)) + rand)};
}

/// Distance from the visible rectangle within which devices compute exactly.
inline constexpr std::int64_t kGrosszuegig = 8192;

/// The piece of a line with ends farther away.
[[nodiscard]] std::optional<std::pair<Flaechenpunkt, Flaechenpunkt>> AbschneidenLang(
    Bildpunkt a, Bildpunkt b, const Rechteck& sichtbar);

/// The piece of a line that may touch the visible rectangle. A line with both ends within a generous distance
/// comes back as it is: the surface then sets the same dots whatever part of it is visible.
[[nodiscard]] inline std::optional<std::pair<Flaechenpunkt, Flaechenpunkt>> SchneideLinieAb(
    Bildpunkt a, Bildpunkt b, const Rechteck& s) {
    constexpr std::int64_t kPinselrand = 4;  // wide pens reach a little further than their line
    if (!InReichweite(a, b, kPinselrand, s)) return std::nullopt;
    if (InReichweite(a, kGrosszuegig, s) && InReichweite(b, kGrosszuegig, s))
        return std::pair{Aufflaeche(a), Aufflaeche(b)};
    return AbschneidenLang(a, b, s);
}

/// The part of a convex polygon that can touch the visible rectangle; one that lies within a generous
/// distance comes back as it is. Empty where nothing is left.
[[nodiscard]] std::vector<Flaechenpunkt> SchneideVieleckAb(std::span<const Bildpunkt> ecken,
                                                           const Rechteck& sichtbar);

}  // namespace zrw
