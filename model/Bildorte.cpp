#include "model/Bildorte.h"

namespace zrw {

void Bildorte::SucheOrt(PunktIndex nr) {
    if (const auto w = netz_.Weltort(nr)) {
        NimmOrt(nr, ansicht_.Bildort(*w));
    } else {
        orte_[nr] = {kKeiner, 0};
    }
}

bool BewegtSichGleich(const Netz& netz, const Ansicht& vorher, const Ansicht& nachher, Bildpunkt weg) {
    // What belongs to no point does not move. The detours of indirect lines are rounded with halves to the
    // even neighbour, which an odd way swaps.
    const bool ungerade = weg.x % 2 != 0 || weg.y % 2 != 0;
    if (!netz.Lueckenlos() || (ungerade && netz.MitUmwegen())) return false;
    // Far outside, sums would leave 64 bits; pictures of such views are not moved.
    constexpr std::uint64_t kWeit = 1ULL << 29U;
    const auto fern = [](std::int64_t v) { return static_cast<std::uint64_t>(v) + kWeit >= 2 * kWeit; };
    bool gleich = true;
    netz.FuerAllePunkte([&](const PunktKnoten& p) {
        const Bildpunkt a = BildortVon(p, vorher);
        const Bildpunkt n = BildortVon(p, nachher);
        gleich = gleich && !fern(a.x) && !fern(a.y) && !fern(n.x) && !fern(n.y) && n.x - a.x == weg.x &&
                 n.y - a.y == weg.y;
    });
    return gleich;
}

}  // namespace zrw
