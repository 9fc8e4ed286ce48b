#include "output/beschriftung/Platzmuster.h"

#include <algorithm>
#include <cassert>

namespace zrw {
namespace {

/// To the nearest step.
std::int32_t Schritt(std::int64_t v, std::int32_t raster) {
    const std::int64_t halb = raster / 2;
    const std::int64_t schritte = v >= 0 ? (v + halb) / raster : -((-v + halb) / raster);
    return static_cast<std::int32_t>(schritte * raster);
}

}  // namespace

void NimmRing(const Schild& s, const Beschriftungswahl& wahl, std::int32_t abstand,
              std::vector<Flaechenpunkt>& aus) {
    assert(wahl.raster > 0);
    const std::int64_t w = s.weite;
    const std::int64_t h = s.hoehe;
    const std::int64_t d = wahl.anliegend ? 0 : h * abstand / 10 + s.radius;
    const std::int64_t ecke = d * 7 / 10;  // as far from the point as the sides are
    const auto nimm = [&](std::int64_t x, std::int64_t y) {
        aus.push_back({Schritt(x, wahl.raster), Schritt(y, wahl.raster)});
    };
    // Above and below from corner to corner, then what is left beside it.
    const int oben = wahl.plaetze >= 32 ? 11 : wahl.plaetze >= 8 ? 3 : 2;
    const int neben = (wahl.plaetze - 2 * oben) / 2;
    for (int i = oben - 1; i >= 0; --i) {
        const bool rand = i == 0 || i == oben - 1;
        const std::int64_t x = -w - ecke + (w + 2 * ecke) * i / (oben - 1);
        nimm(x, -h - (rand ? ecke : d));
        nimm(x, rand ? ecke : d);
    }
    for (int i = 1; i <= neben; ++i) {
        const std::int64_t y = -h - ecke + (h + 2 * ecke) * i / (neben + 1);
        nimm(d, y);
        nimm(-w - d, y);
    }
}

}  // namespace zrw
