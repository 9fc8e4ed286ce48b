// Keeps what is to be drawn into a picture in the order of drawing and hands it over tile by tile, so that
// each tile's pixels lie in the cache of the core that draws it. Helpers draw while the caller goes on
// gathering. Nothing that is drawn depends on the tiles or on who draws them: each tile gets its orders in
// turn.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

#include "output/Bildgrund.h"
#include "output/Rechteck.h"
#include "output/Zeichenflaeche.h"
#include "output/Zeilenhelfer.h"
#include "output/Zielbild.h"

namespace zrw {

/// Size of a tile [px]: whole words of a coverage mask.
inline constexpr std::int32_t kKachelweite = 1024;
inline constexpr std::int32_t kKachelhoehe = 128;

/// The rectangle round strokes.
[[nodiscard]] inline Rechteck RahmenUm(std::span<const Linienstueck> stuecke) {
    using VierGanze = std::int32_t __attribute__((vector_size(16)));
    VierGanze klein = VierGanze{} + std::numeric_limits<std::int32_t>::max();
    VierGanze gross = VierGanze{} + std::numeric_limits<std::int32_t>::min();
    for (const Linienstueck& s : stuecke) {
        const VierGanze v{s.von.x, s.von.y, s.nach.x, s.nach.y};
        klein = v < klein ? v : klein;
        gross = v > gross ? v : gross;
    }
    return {std::min(klein[0], klein[2]), std::min(klein[1], klein[3]), std::max(gross[0], gross[2]),
            std::max(gross[1], gross[3])};
}

/// Whether what lies in a rectangle touches few tiles, wherever it is.
[[nodiscard]] inline bool Beisammen(const Rechteck& r) {
    return std::int64_t{r.rechts} - r.links <= kKachelweite || std::int64_t{r.unten} - r.oben <= kKachelhoehe;
}

/// @tparam Wort orders consist of whole ones
template <class Wort>
class Kachelwerk {
  public:
    /// Draws orders into the part of a tile that is drawn. Must not throw.
    using Zeichner = std::function<void(std::size_t kachel, std::span<const Wort>)>;

    explicit Kachelwerk(Zeichner zeichner) : zeichner_(std::move(zeichner)) {}
    /// Nothing may wait.
    void TeileInKacheln(const Zielbild& bild);
    [[nodiscard]] Bildgrund& Grund() const { return *grund_; }

    /// What is outside keeps its pixels. Lies in the picture.
    void SetzeAusschnitt(const Rechteck& r) {
        SchliesseAb();
        ausschnitt_ = r;
    }
    [[nodiscard]] const Rechteck& Ausschnitt() const { return ausschnitt_; }

    [[nodiscard]] std::size_t Anzahl() const { return kacheln_.size(); }
    /// The part of a tile that is drawn.
    [[nodiscard]] Rechteck Bereich(std::size_t kachel) const {
        return Geschnitten(GanzeKachel(kachel), ausschnitt_);
    }
    /// May reach beyond the picture.
    [[nodiscard]] Rechteck GanzeKachel(std::size_t kachel) const {
        const auto x = static_cast<std::int32_t>(kachel % spalten_) * kKachelweite;
        const auto y = static_cast<std::int32_t>(kachel / spalten_) * kKachelhoehe;
        return {x, y, x + kKachelweite - 1, y + kKachelhoehe - 1};
    }
    /// Calls `tun(tile)` for those that are drawn and touch a rectangle.
    template <class Tun>
    void FuerKacheln(const Rechteck& r, Tun tun) const;
    /// For all that are drawn, at the same time; returns when all are done.
    template <class Tun>
    void FuerAlleZugleich(Tun tun) const;

    /// The tiles that touch a rectangle get the order. @param worte that it has
    /// @param umfang what it draws lies in it
    /// @param schreibe called with where to write them
    template <class Schreibe>
    void VerteileAuftrag(std::size_t worte, const Rechteck& umfang, Schreibe schreibe);
    /// Fills with a colour what does not have it anyway.
    /// @param schreibe called with where to write the order and with what it is to fill
    template <class Schreibe>
    void VerteileFuellung(std::size_t worte, const Rechteck& r, std::uint32_t farbe, Schreibe schreibe);
    /// Calls `tun(rectangle)` for those that cover all tiles that a stroke runs through: not many more.
    /// @param rand how far it reaches to each side [px]
    template <class Tun>
    void FuerStrich(Flaechenpunkt von, Flaechenpunkt nach, std::int32_t rand, Tun tun) const;
    /// Everything so far is drawn.
    void SchliesseAb();

  private:
    /// So many words are handed over at once: few enough to lie beside the tile in the cache.
    static constexpr std::size_t kBuendel = 16384 / sizeof(Wort);
    /// When more wait, the caller draws, too.
    static constexpr std::size_t kMeisteWartende = 64 * kBuendel;

    /// Room once made stays.
    struct Stapel {
        std::vector<Wort> platz;
        std::size_t anzahl = 0;  ///< in use
        /// @return where to write more of them
        [[nodiscard]] Wort* HaengeAn(std::size_t worte) {
            if (platz.size() < anzahl + worte) platz.resize(2 * (anzahl + worte));
            anzahl += worte;
            return platz.data() + anzahl - worte;
        }
        [[nodiscard]] std::span<const Wort> Worte() const { return {platz.data(), anzahl}; }
    };
    struct Kachel {
        Stapel gesammelt;  ///< by the caller
        Stapel inArbeit;   ///< of whoever draws
        std::mutex mutex;
        // Under the lock.
        Stapel uebergeben;
        bool gemeldet = false;  ///< waits to be drawn, or is being drawn
    };
    template <class Schreibe>
    void HaengeAn(std::size_t kachel, std::size_t worte, Schreibe schreibe);
    void Uebergib(std::size_t kachel);
    void ZeichneKachel(std::size_t kachel);

    Bildgrund* grund_ = nullptr;
    Rechteck ganz_;
    Rechteck ausschnitt_;
    std::size_t spalten_ = 0;  ///< tiles in a row
    Zeichner zeichner_;
    std::vector<Kachel> kacheln_;  ///< row by row
    std::atomic<std::size_t> wartende_ = 0;
    Zeilenhelfer::Arbeit arbeit_ = [this](std::size_t kachel) { ZeichneKachel(kachel); };
    std::unique_ptr<Zeilenhelfer> helfer_;  ///< goes first: nobody draws then
};

template <class Wort>
void Kachelwerk<Wort>::TeileInKacheln(const Zielbild& bild) {
    const auto anzahl = [](int laenge, int kachel) {
        return static_cast<std::size_t>((laenge + kachel - 1) / kachel);
    };
    spalten_ = anzahl(bild.weite, kKachelweite);
    kacheln_ = std::vector<Kachel>(spalten_ * anzahl(bild.hoehe, kKachelhoehe));
    grund_ = bild.grund;
    grund_->TeileEin(kacheln_.size());
    ganz_ = {0, 0, bild.weite - 1, bild.hoehe - 1};
    ausschnitt_ = ganz_;
    if (helfer_ == nullptr || helfer_->Helfer() != bild.helfer)
        helfer_ = std::make_unique<Zeilenhelfer>(bild.helfer);
}

template <class Wort>
template <class Tun>
inline void Kachelwerk<Wort>::FuerKacheln(const Rechteck& r, Tun tun) const {
    const Rechteck teil = Geschnitten(r, ausschnitt_);
    if (Leer(teil)) return;
    const auto spalte = [](std::int32_t x) { return static_cast<std::uint32_t>(x) / kKachelweite; };
    const auto reihe = [](std::int32_t y) { return static_cast<std::uint32_t>(y) / kKachelhoehe; };
    const std::size_t links = spalte(teil.links);
    const std::size_t rechts = spalte(teil.rechts);
    for (std::size_t y = reihe(teil.oben); y <= reihe(teil.unten); ++y) {
        for (std::size_t x = links; x <= rechts; ++x)
            tun(y * spalten_ + x);
    }
}

template <class Wort>
template <class Tun>
void Kachelwerk<Wort>::FuerAlleZugleich(Tun tun) const {
    std::vector<std::size_t> nummern;
    FuerKacheln(ausschnitt_, [&](std::size_t kachel) { nummern.push_back(kachel); });
    helfer_->TueTeile(nummern.size(), [&](std::size_t i) { tun(nummern[i]); });
}

template <class Wort>
template <class Tun>
inline void Kachelwerk<Wort>::FuerStrich(Flaechenpunkt von, Flaechenpunkt nach, std::int32_t rand,
                                         Tun tun) const {
    const Rechteck umfang{std::min(von.x, nach.x) - rand, std::min(von.y, nach.y) - rand,
                          std::max(von.x, nach.x) + rand, std::max(von.y, nach.y) + rand};
    if (Beisammen(umfang)) return tun(umfang);
    // A long one: its place in each row of tiles, from a little above to a little below.
    const double steigung = (static_cast<double>(nach.x) - von.x) / (static_cast<double>(nach.y) - von.y);
    const std::int32_t weit = rand + 2;
    const Rechteck sicht = Geschnitten(umfang, ausschnitt_);
    if (Leer(sicht)) return;
    for (std::int32_t y = sicht.oben - sicht.oben % kKachelhoehe; y <= sicht.unten; y += kKachelhoehe) {
        const auto stelle = [&](std::int32_t zeile) {
            const std::int32_t dort = std::clamp(zeile, umfang.oben, umfang.unten);
            return von.x + steigung * (static_cast<double>(dort) - von.y);
        };
        const auto [links, rechts] = std::minmax({stelle(y - weit), stelle(y + kKachelhoehe + weit)});
        if (links - weit > sicht.rechts || rechts + weit < sicht.links) continue;
        const auto spalte = [&](double x) {
            return static_cast<std::int32_t>(std::clamp<double>(x, sicht.links, sicht.rechts));
        };
        tun(Rechteck{spalte(links - weit), std::max(y, sicht.oben), spalte(rechts + weit),
                     std::min(y + kKachelhoehe - 1, sicht.unten)});
    }
}

template <class Wort>
template <class Schreibe>
inline void Kachelwerk<Wort>::HaengeAn(std::size_t kachel, std::size_t worte, Schreibe schreibe) {
    Kachel& k = kacheln_[kachel];
    schreibe(k.gesammelt.HaengeAn(worte));
    if (k.gesammelt.anzahl < kBuendel) return;
    Uebergib(kachel);
    while (wartende_.load(std::memory_order_relaxed) > kMeisteWartende)
        helfer_->TueEinen();
}

template <class Wort>
template <class Schreibe>
inline void Kachelwerk<Wort>::VerteileAuftrag(std::size_t worte, const Rechteck& umfang, Schreibe schreibe) {
    FuerKacheln(umfang, [&](std::size_t kachel) {
        grund_->Bemale(kachel, umfang);
        HaengeAn(kachel, worte, schreibe);
    });
}

template <class Wort>
template <class Schreibe>
void Kachelwerk<Wort>::VerteileFuellung(std::size_t worte, const Rechteck& r, std::uint32_t farbe,
                                        Schreibe schreibe) {
    FuerKacheln(r, [&](std::size_t kachel) {
        const Rechteck teil = grund_->Fuelle(kachel, Geschnitten(GanzeKachel(kachel), ganz_),
                                             Geschnitten(r, Bereich(kachel)), farbe);
        if (!Leer(teil)) HaengeAn(kachel, worte, [&](Wort* ziel) { schreibe(ziel, teil); });
    });
}

template <class Wort>
void Kachelwerk<Wort>::Uebergib(std::size_t kachel) {
    Kachel& k = kacheln_[kachel];
    bool melden = false;
    {
        const std::scoped_lock schloss(k.mutex);
        wartende_.fetch_add(k.gesammelt.anzahl, std::memory_order_relaxed);
        if (k.uebergeben.anzahl == 0) {
            std::swap(k.gesammelt, k.uebergeben);
        } else {
            std::ranges::copy(k.gesammelt.Worte(), k.uebergeben.HaengeAn(k.gesammelt.anzahl));
        }
        melden = !std::exchange(k.gemeldet, true);
    }
    k.gesammelt.anzahl = 0;
    if (melden) helfer_->GibTeil(kachel, arbeit_);
}

/// One core at a time: only who was told of the tile, and only once until it is done.
template <class Wort>
void Kachelwerk<Wort>::ZeichneKachel(std::size_t kachel) {
    Kachel& k = kacheln_[kachel];
    for (;;) {
        {
            const std::scoped_lock schloss(k.mutex);
            if (k.uebergeben.anzahl == 0) {
                k.gemeldet = false;
                return;
            }
            std::swap(k.inArbeit, k.uebergeben);
        }
        zeichner_(kachel, k.inArbeit.Worte());
        wartende_.fetch_sub(k.inArbeit.anzahl, std::memory_order_release);
        k.inArbeit.anzahl = 0;
    }
}

template <class Wort>
void Kachelwerk<Wort>::SchliesseAb() {
    Kachel* einzige = nullptr;
    for (Kachel& k : kacheln_) {
        if (k.gesammelt.anzahl == 0) continue;
        if (einzige != nullptr) Uebergib(static_cast<std::size_t>(einzige - kacheln_.data()));
        einzige = &k;
    }
    // Small changes lie in one tile: nobody needs to be woken for it.
    if (einzige != nullptr && wartende_.load(std::memory_order_acquire) == 0) {
        zeichner_(static_cast<std::size_t>(einzige - kacheln_.data()), einzige->gesammelt.Worte());
        einzige->gesammelt.anzahl = 0;
    } else if (einzige != nullptr) {
        Uebergib(static_cast<std::size_t>(einzige - kacheln_.data()));
    }
    if (helfer_ != nullptr) helfer_->TueAlle();
}

}  // namespace zrw
