// A packed tree of boxes in the world: which entries may touch a rectangle, without asking all of them. Built
// at once from entries that are sorted by where they lie, never changed.
#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "model/Weltkasten.h"

namespace zrw {

class Raumbaum {
  public:
    /// @param eintraege neighbours beside each other @param kasten box of an entry, all finite
    template <class Kasten>
    void BaueBaum(std::vector<std::uint32_t> eintraege, Kasten kasten) {
        eintraege_ = std::move(eintraege);
        ebenen_.clear();
        std::vector<Weltkasten> blaetter((eintraege_.size() + kFach - 1) / kFach);
        for (std::size_t i = 0; i < eintraege_.size(); ++i) {
            const Weltkasten k = kasten(eintraege_[i]);
            assert(!k.Leer());
            blaetter[i / kFach].NimmKasten(k);
        }
        ebenen_.push_back(std::move(blaetter));
        StapeleEbenen();
    }
    void LeereBaum() {
        eintraege_.clear();
        ebenen_.clear();
    }
    /// Calls `tun(eintrag)` at least for every entry whose box touches the rectangle.
    template <class Tun>
    void SucheEintraege(const Weltkasten& wo, Tun tun) const {
        if (!ebenen_.empty()) SucheInEbene(ebenen_.size() - 1, 0, ebenen_.back().size(), wo, tun);
    }

  private:
    static constexpr std::size_t kFach = 16;  ///< entries of a leaf, and boxes of a node

    void StapeleEbenen();
    template <class Tun>
    void SucheInEbene(std::size_t ebene, std::size_t von, std::size_t bis, const Weltkasten& wo,
                      Tun& tun) const {
        for (std::size_t i = von; i < bis; ++i) {
            if (!ebenen_[ebene][i].BeruehrtKasten(wo)) continue;
            const std::size_t anfang = i * kFach;
            if (ebene > 0) {
                SucheInEbene(ebene - 1, anfang, std::min(anfang + kFach, ebenen_[ebene - 1].size()), wo, tun);
                continue;
            }
            for (std::size_t k = anfang; k < std::min(anfang + kFach, eintraege_.size()); ++k)
                tun(eintraege_[k]);
        }
    }

    std::vector<std::uint32_t> eintraege_;
    std::vector<std::vector<Weltkasten>> ebenen_;  ///< boxes of the leaves first, the root's last
};

/// The numbers of positions, sorted so that neighbours in the plane mostly stand beside each other: along the
/// Z curve (Morton, 1966) of their ranks, which clusters and outliers do not disturb.
struct Ebenenort {
    double x = 0.0;
    double y = 0.0;
};
[[nodiscard]] std::vector<std::uint32_t> SortiereNachOrt(std::span<const Ebenenort> orte);

}  // namespace zrw
