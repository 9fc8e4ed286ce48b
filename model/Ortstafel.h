// Picture positions by internal number, all in one place: lines ask for them in any order, and would wait for
// the memory of each point.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "model/Werte.h"

namespace zrw {

class Ortstafel {
  public:
    void Nimm(PunktIndex nr, Bildpunkt ort) {
        if (bekannt_[nr]) return;  // the newest of a number counts
        bekannt_[nr] = true;
        orte_[nr] = {ort.x, ort.y};
    }
    /// Asks for the memory of a number ahead of time.
    void Hole(PunktIndex nr) const { __builtin_prefetch(&orte_[nr]); }
    /// Nothing where there is no such point.
    [[nodiscard]] std::optional<Bildpunkt> Finde(PunktIndex nr) const {
        if (!bekannt_[nr]) return std::nullopt;
        return Bildpunkt{orte_[nr].x, orte_[nr].y};
    }

  private:
    /// Without initial values: what is not known is not read.
    struct Platz {
        std::int64_t x;
        std::int64_t y;
    };
    std::unique_ptr<Platz[]> orte_ = std::make_unique_for_overwrite<Platz[]>(kMaxPunkte + 1);
    std::vector<bool> bekannt_ = std::vector<bool>(kMaxPunkte + 1);
};

}  // namespace zrw
