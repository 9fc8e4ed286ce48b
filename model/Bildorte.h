// Where the figures of a network lie in a view. Positions are worked out when somebody asks, each point once:
// lines ask for their points in any order, and would take a cache miss for each.
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
/// Memory for the positions of one picture, to be used again by the next: fresh pages cost more than a redraw
/// of a few figures.
struct Ortsspeicher {
    /// Half the memory of a `Bildpunkt`; without initial values: what is not known is not read.
    struct Platz {
        std::int32_t x;
        std::int32_t y;
    };
    std::unique_ptr<Platz[]> orte;
    std::vector<bool> bekannt;
};

/// The points of a network by internal number. Both arguments stay as they are while it is in use.
class Bildorte {
  public:
    /// @param speicher used while it is in use; null: memory of its own
    Bildorte(const Netz& netz, const Ansicht& ansicht, Ortsspeicher* speicher = nullptr)
        : netz_(netz), ansicht_(ansicht), s_(speicher != nullptr ? *speicher : eigener_) {
        if (s_.orte == nullptr)
            s_.orte = std::make_unique_for_overwrite<Ortsspeicher::Platz[]>(kMaxPunkte + 1);
        s_.bekannt.assign(kMaxPunkte + 1, false);
    }
    Bildorte(const Bildorte&) = delete;
    Bildorte& operator=(const Bildorte&) = delete;

    /// What is known already, of the newest point of the number.
    void NimmOrt(PunktIndex nr, Bildpunkt ort) {
        s_.bekannt[nr] = true;
        const bool nah = Nah(ort.x) && Nah(ort.y);
        s_.orte[nr] =
            nah ? Platz{static_cast<std::int32_t>(ort.x), static_cast<std::int32_t>(ort.y)} : Platz{kFern, 0};
    }
    /// Prefetches the place of a number.
    void HoleOrtVor(PunktIndex nr) const { HoleVor(&s_.orte[nr]); }
    /// Of the newest point of the number, nothing where there is none.
    [[nodiscard]] std::optional<Bildpunkt> FindeOrt(PunktIndex nr) {
        if (!s_.bekannt[nr]) SucheOrt(nr);
        const Platz ort = s_.orte[nr];
        if (ort.x > kFern) return Bildpunkt{ort.x, ort.y};
        if (ort.x == kKeiner) return std::nullopt;
        return ansicht_.Bildort(*netz_.Weltort(nr));
    }
    /// The same where it is known already and near; nothing else.
    [[nodiscard]] std::optional<Bildpunkt> Bekannt(PunktIndex nr) const {
        if (!s_.bekannt[nr] || s_.orte[nr].x <= kFern) return std::nullopt;
        return Bildpunkt{s_.orte[nr].x, s_.orte[nr].y};
    }
    [[nodiscard]] Bildpunkt Anfang(const PunktKante& k) {
        return FindeOrt(k.ANr).value_or(k.Item->Position());
    }
    [[nodiscard]] Bildpunkt Ende(const PunktKante& k) { return FindeOrt(k.ENr).value_or(k.Item->Ende()); }
    [[nodiscard]] Bildpunkt Text(const PunktString& t) {
        return FindeOrt(t.TNr).value_or(t.Item->Position());
    }

  private:
    using Platz = Ortsspeicher::Platz;
    // In place of a position: there is no such point; it lies beyond 32 bits.
    static constexpr std::int32_t kKeiner = std::numeric_limits<std::int32_t>::min();
    static constexpr std::int32_t kFern = kKeiner + 1;

    [[nodiscard]] static bool Nah(std::int64_t v) {
        return v > kFern && v <= std::numeric_limits<std::int32_t>::max();
    }
    /// Not in line: it runs once a point, and the look-up in the loops around it stays short.
    void SucheOrt(PunktIndex nr);

    const Netz& netz_;
    const Ansicht& ansicht_;
    Ortsspeicher eigener_;
    Ortsspeicher& s_;
};

/// Whether everything in the network lies `weg` [px] farther in the view `nachher` than in `vorher`, so that
/// a picture of it can be moved as it is.
[[nodiscard]] bool BewegtSichGleich(const Netz& netz, const Ansicht& vorher, const Ansicht& nachher,
                                    Bildpunkt weg);

}  // namespace zrw
