#include "output/beschriftung/Zellgitter.h"

#include <algorithm>

namespace zrw {

std::int32_t Zellgitter::Zellweite(const std::vector<Kasten>& kaesten, std::int32_t kleinste) {
    constexpr std::int64_t kZellenJeKasten = 8;
    std::int32_t weite = std::max(kleinste, 1);
    for (; weite < kFernsterOrt; weite *= 2) {
        std::int64_t zellen = 0;
        for (const Kasten& k : kaesten) {
            zellen +=
                (std::int64_t{k.rechts - k.links} / weite + 1) * (std::int64_t{k.unten - k.oben} / weite + 1);
        }
        if (zellen <= kZellenJeKasten * static_cast<std::int64_t>(kaesten.size())) break;
    }
    return weite;
}

void Zellgitter::FuelleGitter(const std::vector<Kasten>& kaesten) {
    FuelleGitter(kaesten.size(), [&](auto tun) {
        for (std::size_t i = 0; i < kaesten.size(); ++i) {
            const Kasten& k = kaesten[i];
            const std::int32_t rechts = Zelle(k.rechts);
            const std::int32_t unten = Zelle(k.unten);
            for (std::int32_t y = Zelle(k.oben); y <= unten; ++y) {
                for (std::int32_t x = Zelle(k.links); x <= rechts; ++x)
                    tun(x, y, static_cast<std::uint32_t>(i));
            }
        }
    });
}

/// Row by row from its upper end to its lower one. @param alles strokes are followed in here only
void Zellgitter::FuelleGitter(const std::vector<Sperrstrich>& striche, const Kasten& alles) {
    FuelleGitter(striche.size(), [&](auto tun) {
        for (std::size_t i = 0; i < striche.size(); ++i) {
            const Sperrstrich& s = striche[i];
            const Flaechenpunkt a = s.von.y <= s.nach.y ? s.von : s.nach;
            const Flaechenpunkt e = s.von.y <= s.nach.y ? s.nach : s.von;
            const std::int32_t erste = Zelle(std::max(a.y - s.halb, alles.oben));
            const std::int32_t letzte = Zelle(std::min(e.y + s.halb, alles.unten));
            const std::int64_t dy = e.y - a.y;
            for (std::int32_t y = erste; y <= letzte; ++y) {
                // Where it enters and leaves the row.
                const auto bei = [&](std::int64_t hoehe) {
                    if (dy == 0) return e.x;
                    const std::int64_t teil = std::clamp<std::int64_t>(hoehe - a.y, 0, dy);
                    return static_cast<std::int32_t>(a.x + (std::int64_t{e.x} - a.x) * teil / dy);
                };
                const std::int64_t oben = std::int64_t{y} * weite_;
                const std::int32_t x0 = dy == 0 ? a.x : bei(oben - s.halb);
                const std::int32_t x1 = bei(oben + weite_ + s.halb);
                const std::int32_t rand = s.halb + 1;
                const std::int32_t von = Zelle(std::max(std::min(x0, x1) - rand, alles.links));
                const std::int32_t bis = Zelle(std::min(std::max(x0, x1) + rand, alles.rechts));
                for (std::int32_t x = von; x <= bis; ++x)
                    tun(x, y, static_cast<std::uint32_t>(i));
            }
        }
    });
}

std::span<const std::uint32_t> Zellgitter::Inhalt(std::int32_t x, std::int32_t y) const {
    if (tafel_.empty()) return {};
    const std::uint32_t z = tafel_[Platz(x, y)];
    if (z == 0) return {};
    return std::span(inhalt_).subspan(anfang_[z - 1], anfang_[z] - anfang_[z - 1]);
}

void Zellgitter::LegeTafelAn(std::size_t zellen) {
    tafel_.assign(std::bit_ceil(std::max<std::size_t>(64, 2 * zellen)), 0);
}

void Zellgitter::VergroessereTafel() {
    LegeTafelAn(tafel_.size());
    for (std::size_t z = 0; z < orte_.size(); ++z)
        tafel_[Platz(orte_[z].first, orte_[z].second)] = static_cast<std::uint32_t>(z + 1);
}

std::size_t Zellgitter::Platz(std::int32_t x, std::int32_t y) const {
    const std::size_t maske = tafel_.size() - 1;
    const std::uint64_t schluessel =
        std::uint64_t{static_cast<std::uint32_t>(x)} << 32U | static_cast<std::uint32_t>(y);
    std::size_t i = static_cast<std::size_t>(MischeBits(schluessel)) & maske;
    while (tafel_[i] != 0 && orte_[tafel_[i] - 1] != std::pair(x, y))
        i = (i + 1) & maske;
    return i;
}

std::uint32_t Zellgitter::NimmZelle(std::int32_t x, std::int32_t y) {
    if (2 * orte_.size() >= tafel_.size()) VergroessereTafel();
    const std::size_t i = Platz(x, y);
    if (tafel_[i] == 0) {
        orte_.emplace_back(x, y);
        anfang_.push_back(0);
        tafel_[i] = static_cast<std::uint32_t>(orte_.size());
    }
    return tafel_[i] - 1;
}

}  // namespace zrw
