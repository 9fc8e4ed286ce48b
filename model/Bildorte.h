// Where the figures of a network lie in a view. Positions are worked out when somebody asks, each point once:
// lines ask for their points in any order, and would take a cache miss for each.
#pragma once

#include <cstdint>
#include <limits>
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
/// Half the memory of a `Bildpunkt`.
struct NaherOrt {
    std::int32_t x;
    std::int32_t y;
};

/// Memory for the positions of one picture, to be used again by the next: fresh pages cost more than a redraw
/// of a few figures.
using Ortsspeicher = std::vector<NaherOrt>;

/// The points of a network by internal number. Both arguments stay as they are while it is in use.
class Bildorte {
  public:
    /// @param speicher used while it is in use; null: memory of its own
    Bildorte(const Netz& netz, const Ansicht& ansicht, Ortsspeicher* speicher = nullptr)
        : netz_(netz), ansicht_(ansicht), orte_(speicher != nullptr ? *speicher : eigener_) {
        orte_.assign(kMaxPunkte + 1, {kOffen, 0});
    }
    Bildorte(const Bildorte&) = delete;
    Bildorte& operator=(const Bildorte&) = delete;

    /// What is known already, of the newest point of the number.
    void NimmOrt(PunktIndex nr, Bildpunkt ort) {
        const bool nah = Nah(ort.x) && Nah(ort.y);
        orte_[nr] = nah ? NaherOrt{static_cast<std::int32_t>(ort.x), static_cast<std::int32_t>(ort.y)}
                        : NaherOrt{kFern, 0};
    }
    /// Prefetches the place of a number.
    void HoleOrtVor(PunktIndex nr) const { HoleVor(&orte_[nr]); }
    /// Of the newest point of the number, nothing where there is none.
    [[nodiscard]] std::optional<Bildpunkt> FindeOrt(PunktIndex nr) {
        if (orte_[nr].x == kOffen) SucheOrt(nr);
        const NaherOrt ort = orte_[nr];
        if (ort.x > kFern) return Bildpunkt{ort.x, ort.y};
        if (ort.x == kKeiner) return std::nullopt;
        return ansicht_.Bildort(*netz_.Weltort(nr));
    }
    /// The same where it is known already and near, within 2^29; null for all else.
    [[nodiscard]] const NaherOrt* Bekannt(PunktIndex nr) const {
        constexpr std::uint32_t kNah = std::uint32_t{1} << 29U;
        const NaherOrt& ort = orte_[nr];
        const auto v = [](std::int32_t x) { return static_cast<std::uint32_t>(x) + kNah; };
        return (v(ort.x) | v(ort.y)) < 2 * kNah ? &ort : nullptr;
    }
    [[nodiscard]] Bildpunkt Anfang(const PunktKante& k) {
        if (const NaherOrt* ort = Bekannt(k.ANr)) return {ort->x, ort->y};
        return FindeOrt(k.ANr).value_or(k.Item->Position());
    }
    [[nodiscard]] Bildpunkt Ende(const PunktKante& k) {
        if (const NaherOrt* ort = Bekannt(k.ENr)) return {ort->x, ort->y};
        return FindeOrt(k.ENr).value_or(k.Item->Ende());
    }
    [[nodiscard]] Bildpunkt Text(const PunktString& t) {
        return FindeOrt(t.TNr).value_or(t.Item->Position());
    }

  private:
    // In place of a position: not known yet; there is no such point; it lies beyond 32 bits.
    static constexpr std::int32_t kOffen = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int32_t kKeiner = kOffen + 1;
    static constexpr std::int32_t kFern = kKeiner + 1;

    [[nodiscard]] static bool Nah(std::int64_t v) {
        return v > kFern && v <= std::numeric_limits<std::int32_t>::max();
    }
    /// Not in line: it runs once a point, and the look-up in the loops around it stays short.
    void SucheOrt(PunktIndex nr);

    const Netz& netz_;
    const Ansicht& ansicht_;
    Ortsspeicher eigener_;
    Ortsspeicher& orte_;
};

/// Whether everything in the network lies `weg` [px] farther in the view `nachher` than in `vorher`, so that
/// a picture of it can be moved as it is.
[[nodiscard]] bool BewegtSichGleich(const Netz& netz, const Ansicht& vorher, const Ansicht& nachher,
                                    Bildpunkt weg);

}  // namespace zrw
