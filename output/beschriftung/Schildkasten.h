// Boxes of labels, and what is asked of them. Coordinates are held so near that no sum or product overflows.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "output/Zeichenflaeche.h"
#include "output/beschriftung/Beschriftung.h"

namespace zrw {

inline constexpr std::int32_t kFernsterOrt = 1 << 27;
inline constexpr std::int32_t kGroesstesSchild = 1 << 15;

[[nodiscard]] inline Flaechenpunkt Begrenzt(Flaechenpunkt p) {
    return {std::clamp(p.x, -kFernsterOrt, kFernsterOrt), std::clamp(p.y, -kFernsterOrt, kFernsterOrt)};
}

/// What stands in the way, held near.
inline void BegrenzeHindernisse(Beschriftungsaufgabe& aufgabe) {
    for (Symbolkasten& s : aufgabe.symbole) {
        s.mitte = Begrenzt(s.mitte);
        s.quer = std::clamp(s.quer, 0, kGroesstesSchild);
        s.laengs = std::clamp(s.laengs, 0, kGroesstesSchild);
    }
    for (Sperrstrich& s : aufgabe.striche) {
        s.von = Begrenzt(s.von);
        s.nach = Begrenzt(s.nach);
        s.halb = std::clamp(s.halb, 0, kGroesstesSchild);
    }
    aufgabe.blattrand = std::clamp(aufgabe.blattrand, 0, kGroesstesSchild);
    for (Rechteck& b : aufgabe.blaetter) {
        for (std::int32_t* seite : {&b.links, &b.oben, &b.rechts, &b.unten})
            *seite = std::clamp(*seite, -kFernsterOrt, kFernsterOrt);
    }
}

/// From its first row and column up to those behind its last.
struct Kasten {
    std::int32_t links = 0;
    std::int32_t oben = 0;
    std::int32_t rechts = 0;
    std::int32_t unten = 0;

    [[nodiscard]] bool Ueberlappt(const Kasten& k) const {
        return (links < k.rechts) & (k.links < rechts) & (oben < k.unten) & (k.oben < unten);
    }
    void NimmKasten(const Kasten& k) {
        links = std::min(links, k.links);
        oben = std::min(oben, k.oben);
        rechts = std::max(rechts, k.rechts);
        unten = std::max(unten, k.unten);
    }
    /// @param rand added on all sides
    [[nodiscard]] Kasten Erweitert(std::int32_t rand) const {
        return {links - rand, oben - rand, rechts + rand, unten + rand};
    }
};

[[nodiscard]] inline Kasten KastenVon(const Schild& s, Flaechenpunkt lage) {
    const std::int32_t links = s.punkt.x + lage.x;
    const std::int32_t oben = s.punkt.y + lage.y;
    return {links, oben, links + s.weite, oben + s.hoehe};
}
/// The same wherever it lies and however large it is.
[[nodiscard]] inline Kasten Begrenzterkasten(Schild s, Flaechenpunkt lage) {
    s.punkt = Begrenzt(s.punkt);
    s.weite = std::clamp(s.weite, 0, kGroesstesSchild);
    s.hoehe = std::clamp(s.hoehe, 0, kGroesstesSchild);
    return KastenVon(s, Begrenzt(lage));
}
[[nodiscard]] inline Kasten KastenVon(const Symbolkasten& s) {
    // One more: the row and column of its middle.
    return {s.mitte.x - s.quer, s.mitte.y - s.laengs, s.mitte.x + s.quer + 1, s.mitte.y + s.laengs + 1};
}

/// Square of the distance of a place from a box; 0 inside.
[[nodiscard]] inline std::int64_t Abstandsquadrat(const Kasten& k, Flaechenpunkt p) {
    const std::int64_t dx = std::max({k.links - p.x, p.x - k.rechts, 0});
    const std::int64_t dy = std::max({k.oben - p.y, p.y - k.unten, 0});
    return dx * dx + dy * dy;
}

[[nodiscard]] inline bool LiegtAuf(const Rechteck& blatt, Flaechenpunkt p) {
    return p.x >= blatt.links && p.x <= blatt.rechts && p.y >= blatt.oben && p.y <= blatt.unten;
}
[[nodiscard]] inline bool Trifft(const Rechteck& blatt, const Kasten& k) {
    return k.links <= blatt.rechts && k.rechts > blatt.links && k.oben <= blatt.unten && k.unten > blatt.oben;
}
/// The label of a point would be cut by an edge, or shown without its point.
[[nodiscard]] inline bool Zerschnitten(const std::vector<Rechteck>& blaetter, std::int32_t blattrand,
                                       const Kasten& k, Flaechenpunkt punkt) {
    const Kasten mitRand = k.Erweitert(blattrand);
    bool irgendwo = false;
    for (const Rechteck& b : blaetter) {
        const bool hier = LiegtAuf(b, punkt);
        if (hier && mitRand.links >= b.links && mitRand.oben >= b.oben && mitRand.rechts <= b.rechts + 1 &&
            mitRand.unten <= b.unten + 1)
            return false;
        irgendwo = irgendwo || hier || Trifft(b, k);
    }
    return irgendwo;
}

/// A stroke runs through the box.
[[nodiscard]] inline bool Kreuzt(const Sperrstrich& s, const Kasten& k) {
    if (std::max(s.von.x, s.nach.x) + s.halb <= k.links || std::min(s.von.x, s.nach.x) - s.halb >= k.rechts ||
        std::max(s.von.y, s.nach.y) + s.halb <= k.oben || std::min(s.von.y, s.nach.y) - s.halb >= k.unten)
        return false;
    // The corners lie on both sides of it.
    const std::int64_t dx = s.nach.x - s.von.x;
    const std::int64_t dy = s.nach.y - s.von.y;
    const std::int64_t mitte = dx * (std::int64_t{k.oben} + k.unten - 2 * std::int64_t{s.von.y}) -
                               dy * (std::int64_t{k.links} + k.rechts - 2 * std::int64_t{s.von.x});
    const std::int64_t weite = k.rechts - k.links + 2 * std::int64_t{s.halb};
    const std::int64_t hoehe = k.unten - k.oben + 2 * std::int64_t{s.halb};
    return std::abs(mitte) < std::abs(dx) * hoehe + std::abs(dy) * weite;
}

}  // namespace zrw
