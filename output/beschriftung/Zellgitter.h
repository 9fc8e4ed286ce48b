// A uniform grid without an end: which of many things may touch a part of the plane. Only cells that hold
// something take memory.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "model/Werte.h"
#include "output/beschriftung/Schildkasten.h"

namespace zrw {

class Zellgitter {
  public:
    /// Width of the cells [units], at least 1, that keeps the boxes within so many cells each on average.
    [[nodiscard]] static std::int32_t Zellweite(const std::vector<Kasten>& kaesten, std::int32_t kleinste);

    explicit Zellgitter(std::int32_t weite) : weite_(weite) {}

    /// Puts things in. `zellen(tun)` calls `tun(x, y, thing)` for every cell of every thing, twice the same.
    template <class Zellen>
    void FuelleGitter(std::size_t dinge, Zellen zellen) {
        std::vector<std::uint32_t> wo;
        wo.reserve(dinge * 2);
        LegeTafelAn(dinge * 2);
        zellen([&](std::int32_t x, std::int32_t y, std::uint32_t) {
            const std::uint32_t z = NimmZelle(x, y);
            ++anfang_[z + 1];
            wo.push_back(z);
        });
        for (std::size_t i = 1; i < anfang_.size(); ++i)
            anfang_[i] += anfang_[i - 1];
        std::vector<std::uint32_t> naechster(anfang_.begin(), anfang_.end() - 1);
        inhalt_.resize(wo.size());
        std::size_t i = 0;
        zellen([&](std::int32_t, std::int32_t, std::uint32_t ding) { inhalt_[naechster[wo[i++]]++] = ding; });
    }
    /// The same with boxes, each into all cells that it touches.
    void FuelleGitter(const std::vector<Kasten>& kaesten);
    void FuelleGitter(const std::vector<Sperrstrich>& striche, const Kasten& alles);

    /// Calls `tun(thing)` for what lies in the cells that a box touches until it answers false; things in
    /// several cells come several times.
    template <class Tun>
    void SucheDinge(const Kasten& k, Tun tun) const {
        const std::int32_t links = Zelle(k.links);
        const std::int32_t rechts = Zelle(k.rechts);
        const std::int32_t unten = Zelle(k.unten);
        for (std::int32_t y = Zelle(k.oben); y <= unten; ++y) {
            for (std::int32_t x = links; x <= rechts; ++x) {
                for (const std::uint32_t ding : Inhalt(x, y))
                    if (!tun(ding)) return;
            }
        }
    }
    /// Of one cell after the other. `tun(x, y, things)`
    template <class Tun>
    void FuerAlleZellen(Tun tun) const {
        for (const auto& [x, y] : orte_)
            tun(x, y, Inhalt(x, y));
    }
    [[nodiscard]] std::int32_t Zelle(std::int32_t v) const {
        return v >= 0 ? v / weite_ : -((-v + weite_ - 1) / weite_);
    }
    [[nodiscard]] std::span<const std::uint32_t> Inhalt(std::int32_t x, std::int32_t y) const;

  private:
    void LegeTafelAn(std::size_t zellen);
    void VergroessereTafel();
    [[nodiscard]] std::size_t Platz(std::int32_t x, std::int32_t y) const;
    std::uint32_t NimmZelle(std::int32_t x, std::int32_t y);

    std::int32_t weite_;
    std::vector<std::uint32_t> tafel_;  ///< cells by place, one more than their number; 0: free
    std::vector<std::pair<std::int32_t, std::int32_t>> orte_;
    std::vector<std::uint32_t> anfang_{0};  ///< of the contents of each cell
    std::vector<std::uint32_t> inhalt_;
};

}  // namespace zrw
