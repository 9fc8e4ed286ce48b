// Where the figures of a network lie in a view. Positions are worked out when somebody asks, each point once:
// lines ask for their points in any order, and would wait for the memory of each.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <vector>

#include "model/Ansicht.h"
#include "model/Knoten.h"
#include "model/Netz.h"
#include "model/Vorabruf.h"
#include "model/Werte.h"

namespace zrw {

// --- One by one
[[nodiscard]] inline Bildpunkt BildortVon(const PunktKnoten& p, const Ansicht& a) {
    return a.Bildort({p.XWPu, p.YWPu});
}
/// Of the newest point of a number; `sonst` where there is none.
[[nodiscard]] inline Bildpunkt BildortVon(const Netz& netz, const Ansicht& a, PunktIndex nr,
                                          Bildpunkt sonst) {
    const auto w = netz.Weltort(nr);
    return w ? a.Bildort(*w) : sonst;
}
// Lines and labels follow their points. Where one is missing they stay where they were stored.
[[nodiscard]] inline Bildpunkt AnfangVon(const PunktKante& k, const Netz& netz, const Ansicht& a) {
    return BildortVon(netz, a, k.ANr, k.Item->Position());
}
[[nodiscard]] inline Bildpunkt EndeVon(const PunktKante& k, const Netz& netz, const Ansicht& a) {
    return BildortVon(netz, a, k.ENr, k.Item->Ende());
}
/// The position that the label's offset counts from.
[[nodiscard]] inline Bildpunkt BildortVon(const PunktString& t, const Netz& netz, const Ansicht& a) {
    return BildortVon(netz, a, t.TNr, t.Item->Position());
}

// --- Many of them
/// The points of a network by internal number. Both arguments stay as they are while it is in use.
class Bildorte {
  public:
    /// @param anzahl how many questions will come, about. A few are answered one by one: fresh memory for the
    /// table would take longer.
    Bildorte(const Netz& netz, const Ansicht& ansicht, std::size_t anzahl = kMaxPunkte)
        : netz_(netz), ansicht_(ansicht) {
        Erwarte(anzahl);
    }
    void Erwarte(std::size_t anzahl) {
        constexpr std::size_t kWenige = 2048;
        if (orte_ != nullptr || anzahl <= kWenige) return;
        orte_ = std::make_unique_for_overwrite<Platz[]>(kMaxPunkte + 1);
        bekannt_.resize(kMaxPunkte + 1);
    }

    /// What is known already, of the newest point of the number.
    void Nimm(PunktIndex nr, Bildpunkt ort) {
        if (orte_ == nullptr) return;
        bekannt_[nr] = true;
        const bool nah = Nah(ort.x) && Nah(ort.y);
        orte_[nr] =
            nah ? Platz{static_cast<std::int32_t>(ort.x), static_cast<std::int32_t>(ort.y)} : Platz{kFern, 0};
    }
    /// Asks for the memory of a number ahead of time.
    void Hole(PunktIndex nr) const {
        if (orte_ != nullptr) HoleVor(&orte_[nr]);
    }
    /// Positions are remembered: a table is worth its memory.
    [[nodiscard]] bool Merkt() const { return orte_ != nullptr; }
    /// Of the newest point of the number, nothing where there is none.
    [[nodiscard]] std::optional<Bildpunkt> Finde(PunktIndex nr) {
        if (orte_ == nullptr) {
            const auto w = netz_.Weltort(nr);
            return w ? std::optional(ansicht_.Bildort(*w)) : std::nullopt;
        }
        if (!bekannt_[nr]) Suche(nr);
        const Platz ort = orte_[nr];
        if (ort.x > kFern) return Bildpunkt{ort.x, ort.y};
        if (ort.x == kKeiner) return std::nullopt;
        return ansicht_.Bildort(*netz_.Weltort(nr));
    }
    [[nodiscard]] Bildpunkt Anfang(const PunktKante& k) { return Finde(k.ANr).value_or(k.Item->Position()); }
    [[nodiscard]] Bildpunkt Ende(const PunktKante& k) { return Finde(k.ENr).value_or(k.Item->Ende()); }
    [[nodiscard]] Bildpunkt Text(const PunktString& t) { return Finde(t.TNr).value_or(t.Item->Position()); }

  private:
    /// Half the memory of a `Bildpunkt`; without initial values: what is not known is not read.
    struct Platz {
        std::int32_t x;
        std::int32_t y;
    };
    // In place of a position: there is no such point; it lies beyond 32 bits.
    static constexpr std::int32_t kKeiner = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int32_t kFern = kKeiner + 1;

    [[nodiscard]] static bool Nah(std::int64_t v) {
        return v > kFern && v <= std::numeric_limits<std::int32_t>::max();
    }
    void Suche(PunktIndex nr) {
        if (const auto w = netz_.Weltort(nr)) {
            Nimm(nr, ansicht_.Bildort(*w));
        } else {
            bekannt_[nr] = true;
            orte_[nr] = {kKeiner, 0};
        }
    }

    const Netz& netz_;
    const Ansicht& ansicht_;
    std::unique_ptr<Platz[]> orte_;  ///< null: nothing is remembered
    std::vector<bool> bekannt_;
};

/// Whether everything in the network lies `weg` [px] farther in the view `nachher` than in `vorher`, so that
/// a picture of it can be moved as it is.
[[nodiscard]] bool BewegtSichGleich(const Netz& netz, const Ansicht& vorher, const Ansicht& nachher,
                                    Bildpunkt weg);

}  // namespace zrw
