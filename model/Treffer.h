// What lies under the mouse. A square of half-width `fang` round it catches; on overlap the newest figure
// wins.
#pragma once

#include <cassert>
#include <cstdint>

#include "model/Ansicht.h"
#include "model/Darstellung.h"
#include "model/Netz.h"

namespace zrw {

/// Whether a position lies within the catch radius of the mouse.
[[nodiscard]] bool Gefangen(Bildpunkt maus, Bildpunkt ort, std::int64_t fang);
/// The square that it catches in.
[[nodiscard]] Bildbereich Fangbereich(Bildpunkt maus, std::int64_t fang);

/// A search in one picture. All arguments must outlive it.
class Treffersuche {
  public:
    /// @param fang catch radius [px]
    /// @param gezeigt what the picture shows; null: hidden figures and kinds that are off are found, too
    Treffersuche(const Netz& netz, const Ansicht& ansicht, std::int64_t fang, const Darstellung* gezeigt)
        : netz_(netz), ansicht_(ansicht), gezeigt_(gezeigt), fang_(fang) {
        assert(fang >= 0);
    }

    [[nodiscard]] PPunktKnoten Punkt(Bildpunkt maus) const;
    /// By the place where its text begins.
    [[nodiscard]] PPunktString Text(Bildpunkt maus) const;
    /// The line whose segment passes within the catch radius; the distance counts in whole pixels, so that
    /// 5.9 px is caught with a radius of 5.
    [[nodiscard]] PPunktKante Kante(Bildpunkt maus) const;

  private:
    [[nodiscard]] bool Gezeigt(PunktIndex nr) const;

    const Netz& netz_;
    const Ansicht& ansicht_;
    const Darstellung* gezeigt_;
    std::int64_t fang_;
};

}  // namespace zrw
