// The search itself: labels choose among places that each have a cost of their own, so that few of them
// overlap. Annealing over neighbouring labels in turn, then every label its best place until none moves.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "output/beschriftung/Beschriftung.h"
#include "output/beschriftung/Schildkasten.h"

namespace zrw {

struct Schildplatz {
    Flaechenpunkt lage;
    std::int32_t kosten = 0;  ///< for what does not move
};

/// Labels in an order in which neighbours are near each other, and the places of those that may move.
/// Most places that a label chooses from near its point; more would not fit into fast memory.
inline constexpr std::size_t kNahePlaetze = 64;

class Platzsuche {
  public:
    /// @param schilder all of them @param lagen where they are; holds the answer in the end
    Platzsuche(const std::vector<Schild>& schilder, std::vector<Flaechenpunkt>& lagen, std::uint64_t saat);

    /// Gives a label places to choose from, cheapest first; without any it stays. In the order of the labels.
    void NimmPlaetze(std::size_t schild, const std::vector<Schildplatz>& plaetze);
    /// @return false where it was stopped
    [[nodiscard]] bool SuchePlaetze(int durchgaenge, const Fortschritt& fortschritt);
    /// From where they are, each only to what is better. Among the places of each is the one where it is.
    void RueckePlaetze();
    /// Overlaps of a label among those looked at.
    [[nodiscard]] bool ImKonflikt(std::size_t schild) const { return konflikte_[schild] != 0; }
    /// Calls `tun(label)` for the labels that may come near.
    template <class Tun>
    void FuerNachbarn(std::size_t schild, Tun tun) const {
        for (std::size_t i = nachbarAnfang_[schild]; i < nachbarAnfang_[schild + 1]; ++i)
            tun(nachbarn_[i]);
    }

  private:
    // Labels with more neighbours find no free place near their points anyway.
    static constexpr std::size_t kMeisteNachbarn = 96;
    // Labels that are annealed together: so many stay in the fast memory.
    static constexpr std::size_t kBlock = 1024;

    void LegeKaesten();
    void FindeNachbarn();
    void ZaehleKonflikte();
    void BeginneGierig();
    [[nodiscard]] std::int32_t Aenderung(std::size_t i, const Kasten& neu, std::int32_t unfrei,
                                         std::int64_t grenze) const;
    [[nodiscard]] std::int32_t MindestensUnfrei(std::size_t i) const;
    [[nodiscard]] std::int32_t Entlastung(std::size_t i) const;
    void SetzeKasten(std::size_t i, const Kasten& neu);
    void NimmPlatz(std::size_t i, std::uint32_t platz);
    /// @param neu it has none yet @return whether it moved
    bool NimmBestenPlatz(std::size_t i, bool neu);
    void Waerme(std::size_t von, std::size_t bis, std::int64_t waerme);
    [[nodiscard]] std::int64_t Duldung(std::int64_t waerme);
    void VerbessereAlle(std::size_t von, std::size_t bis);
    [[nodiscard]] std::uint64_t Zufallszahl();
    [[nodiscard]] std::size_t Platzzahl(std::size_t i) const { return platzAnfang_[i + 1] - platzAnfang_[i]; }

    const std::vector<Schild>& schilder_;
    std::vector<Flaechenpunkt>& lagen_;
    std::uint64_t zufall_;
    std::vector<Schildplatz> plaetze_;
    std::vector<std::size_t> platzAnfang_{0};
    std::vector<std::uint32_t> gewaehlt_;
    std::vector<bool> ruht_;  ///< stays at its first place
    std::vector<Kasten> kaesten_;
    std::vector<std::uint32_t> konflikte_;  ///< how many neighbours each overlaps
    std::vector<std::size_t> nachbarAnfang_;
    std::vector<std::uint32_t> nachbarn_;
};

}  // namespace zrw
