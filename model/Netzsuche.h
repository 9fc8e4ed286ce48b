// Which figures of a network may touch a part of the picture, without a walk through all of them. The trees
// lie in the world, so that panning and zooming leave them as they are; figures that came or moved since they
// were built are kept beside them and always among the answers. An answer may hold too much, never too
// little: whoever asks looks at the figures themselves.
#pragma once

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "model/Ansicht.h"
#include "model/Raumbaum.h"
#include "model/Werte.h"

namespace zrw {

/// Rectangle in the picture [px]; its last row and column belong to it.
struct Bildbereich {
    std::int64_t links = 0;
    std::int64_t oben = 0;
    std::int64_t rechts = 0;
    std::int64_t unten = 0;
};

/// World rectangle that holds every figure at a picture position in the rectangle.
[[nodiscard]] Weltkasten WeltUnter(const Bildlage& lage, const Bildbereich& b);
/// Picture positions follow from the world as they do on a map: positive scale, all finite.
[[nodiscard]] bool Brauchbar(const Bildlage& lage);

/// What is in one list: its figures by `Folge`, and where they are.
class Suchmenge {
  public:
    void TrageFigurEin(std::uint32_t folge, bool gebaut);
    void TrageFigurAus(std::uint32_t folge);
    /// The figure has moved, or does not lie where its point does.
    void Verlegt(std::uint32_t folge) {
        assert(folge / 64 < da_.size());
        lose_.push_back(folge);
    }
    [[nodiscard]] bool HatFigur(std::uint32_t folge) const {
        return folge / 64 < da_.size() && (da_[folge / 64] >> (folge % 64) & 1U) != 0;
    }
    /// So much has come or moved since the tree was built that building it again pays. Figures that no tree
    /// can hold do not count: they would stand beside the next one, too.
    [[nodiscard]] bool Ueberholt() const { return lose_.size() - loseBeimBau_ > 256 + anzahl_ / 64; }

    /// @param eintraege those with a box, neighbours beside each other; all others are kept beside the tree
    template <class Kasten>
    void BaueBaum(std::vector<std::uint32_t> eintraege, std::vector<std::uint32_t> lose, Kasten kasten) {
        baum_.BaueBaum(std::move(eintraege), kasten);
        lose_ = std::move(lose);
        loseBeimBau_ = lose_.size();
    }
    void LeereMenge();
    /// Forgets where the figures are.
    void VergissOrte();

    /// Calls `tun(folge)` for all figures, from the newest to the oldest.
    template <class Tun>
    void FuerAlle(Tun tun) const {
        FuerJedesBit(da_, tun);
    }
    /// The same for those that may touch the rectangle.
    template <class Tun>
    void SucheFiguren(const Weltkasten& wo, Tun tun) const {
        std::vector<std::uint32_t> treffer = lose_;
        baum_.SucheEintraege(wo, [&](std::uint32_t f) { treffer.push_back(f); });
        if (treffer.size() < kWenige) {
            std::sort(treffer.rbegin(), treffer.rend());
            std::uint32_t voriger = ~0U;
            for (const std::uint32_t f : treffer) {
                if (f != voriger && HatFigur(f)) tun(f);
                voriger = f;
            }
            return;
        }
        // Many are sorted by ticking them off.
        std::vector<std::uint64_t> bits(da_.size());
        for (const std::uint32_t f : treffer) {
            if (HatFigur(f)) bits[f / 64] |= std::uint64_t{1} << (f % 64);
        }
        FuerJedesBit(bits, tun);
    }

  private:
    static constexpr std::size_t kWenige = 512;

    template <class Tun>
    static void FuerJedesBit(const std::vector<std::uint64_t>& bits, Tun tun) {
        for (std::size_t i = bits.size(); i-- > 0;) {
            for (std::uint64_t wort = bits[i]; wort != 0;) {
                const auto hoechstes = static_cast<std::uint32_t>(63 - std::countl_zero(wort));
                tun(static_cast<std::uint32_t>(i) * 64 + hoechstes);
                wort &= ~(std::uint64_t{1} << hoechstes);
            }
        }
    }

    std::vector<std::uint64_t> da_;  ///< one bit each: is in the list
    std::size_t anzahl_ = 0;
    Raumbaum baum_;
    std::vector<std::uint32_t> lose_;
    std::size_t loseBeimBau_ = 0;
};

/// Between which points a line runs, whichever is its start.
struct Punktenden {
    PunktIndex a = kKeinPunkt;
    PunktIndex e = kKeinPunkt;
};

/// The three lists together.
struct Netzsuche {
    Suchmenge punkte;
    Suchmenge kanten;
    Suchmenge texte;
    std::vector<Punktenden> enden;  ///< of the lines by `Folge`: quicker to ask than the lines
    Bildbereich abstaende;          ///< holds 0 and all offsets of labels in the tree from their points [px]
    bool gebaut = false;
    std::size_t bauten = 0;           ///< how often it was built
    std::optional<Weltkasten> alles;  ///< round all points, as far as one knows: when it was built, or before

    /// What came or moved has grown too much to be asked every time.
    [[nodiscard]] bool Ueberholt() const {
        return !gebaut || punkte.Ueberholt() || kanten.Ueberholt() || texte.Ueberholt();
    }
    void VergissBaeume();
};

}  // namespace zrw
