// What part of the world a picture shows: a value. All conversions between world and picture, and all
// arithmetic of fitting, zooming and panning, stand here and nowhere else.
#pragma once

#include <cstdint>
#include <optional>

#include "model/Weltkasten.h"
#include "model/Werte.h"

namespace zrw {

/// Scale and place of a picture, whatever its size and the extents of its network.
struct Bildlage {
    double faktor = 1.0;  ///< [m/px]
    Welt ecke;            ///< world position of the picture's top-left corner [m]
    friend bool operator==(const Bildlage& a, const Bildlage& b) {
        return a.faktor == b.faktor && a.ecke.rechts == b.ecke.rechts && a.ecke.hoch == b.ecke.hoch;
    }
};

struct Ansicht {
    // World extents [m]; the picture's corner is measured from their upper left one.
    double MaxXW = 0.0;
    double MinXW = 0.0;
    double MaxYW = 0.0;
    double MinYW = 0.0;
    // Pan offsets [m].
    double XOffset = 0.0;
    double YOffset = 0.0;
    std::int32_t Weite = 0;  ///< picture width [px]
    std::int32_t Hoehe = 0;  ///< picture height [px]
    double Faktor = 1.0;     ///< scale [m/px]

    /// World position of the picture's top-left corner.
    [[nodiscard]] Welt Ecke() const { return {MinXW + XOffset, MaxYW + YOffset}; }
    [[nodiscard]] Bildlage Lage() const { return {Faktor, Ecke()}; }
    /// World position of a picture position.
    [[nodiscard]] Welt BildinWelt(Bildpunkt b) const;
    /// Picture position of a world position, rounded to whole pixels.
    [[nodiscard]] Bildpunkt Bildort(Welt w) const;
    /// The world position, moved by a picture delta [px].
    [[nodiscard]] Welt Versetzt(Welt w, Bildpunkt weg) const;
    /// Scale and extents show something: all finite, the scale positive. Files of unknown origin may hold
    /// others.
    [[nodiscard]] bool Brauchbar() const;

    // --- Other views, with nothing else changed
    /// At another scale, for a device. @param ecke world position of its top-left dot; none: as here
    [[nodiscard]] Ansicht FuerGeraet(double faktor, const std::optional<Welt>& ecke = {}) const;
    /// Shows exactly this part of the world, with a margin; a few hundred metres round a single place.
    [[nodiscard]] Bildlage Eingepasst(const Weltkasten& welt) const;
    /// The rectangle with these two corners [px], as large as the picture holds it.
    [[nodiscard]] Bildlage Ausschnitt(Bildpunkt a, Bildpunkt b) const;

    /// The same part of the world in a picture of so many dots per pixel.
    [[nodiscard]] Ansicht InDichte(double dichte) const;

    // --- Changing the view
    void SetzeLage(const Bildlage& lage);
    /// The world position in the middle of the picture, at the same scale.
    void SetzeMitte(Welt mitte);
    /// Takes over the extents of a network, widened to whole kilometres with one to spare.
    void SetzeAusdehnung(const Weltkasten& welt);
    /// Forgets extents, offsets and scale; the size stays.
    void VergissLage();
    /// Scale that fits the extents: horizontal extent / (`Hoehe` - 30), vertical extent / `Weite`.
    void Findfaktor();
    /// Fits the extents into the picture.
    void PasseEin();
    /// Pans by a picture delta [px]: a positive one moves the network left and down.
    void MoveMe(std::int64_t dx, std::int64_t dy);
    /// The network lies `weg` [px] from where it lay at these pan offsets.
    void SetzeVersatz(Welt anfang, Bildpunkt weg);
    [[nodiscard]] Welt Versatz() const { return {XOffset, YOffset}; }
    /// One zoom step about the picture's top-left corner, without bounds. @param schritt scale after one step
    /// in / before it [-]
    void VergroessereUmEcke(double schritt) { Faktor *= schritt; }
    void VerkleinereUmEcke(double schritt) { Faktor /= schritt; }
    /// One zoom step that keeps the world position at (x, y) [px] in place.
    /// @return false: zooming ends here, nothing has changed
    [[nodiscard]] bool ZoomeSchritt(double x, double y, bool groesser, double schritt);
};

/// False where the scale lies beyond what zooming allows.
[[nodiscard]] bool ErlaubteLage(const Bildlage& lage);

}  // namespace zrw
