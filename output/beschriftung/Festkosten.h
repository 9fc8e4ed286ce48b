// What a place for a label costs for what does not move: symbols, lines, the border, the distance from its
// point. Other labels are the business of the search.
#pragma once

#include <cstdint>
#include <vector>

#include "output/beschriftung/Beschriftung.h"
#include "output/beschriftung/Schildkasten.h"
#include "output/beschriftung/Zellgitter.h"

namespace zrw {

// Costs. One label in conflict is worth more than any number of lines, but a far place is dearer than a line.
inline constexpr std::int32_t kKostenUeberlappt = 10000;  ///< of each label that overlaps others
inline constexpr std::int32_t kKostenJePaar = 400;        ///< beside that, for each of those others
inline constexpr std::int32_t kKostenSymbol = 6000;
inline constexpr std::int32_t kKostenRand = 8000;
inline constexpr std::int32_t kKostenLinie = 350;        ///< the first one
inline constexpr std::int32_t kKostenJeLinie = 30;       ///< and each
inline constexpr std::int32_t kKostenFremd = 150;        ///< nearer to another point
inline constexpr std::int32_t kKostenJeHoehe = 100;      ///< of distance
inline constexpr std::int32_t kKostenHoechsteLage = 24;  ///< at the lower left, where one reads last

/// The surroundings of one label at a time: gathered once, asked for each of its places.
class Festkosten {
  public:
    Festkosten(const Beschriftungsaufgabe& aufgabe, std::int32_t zelle, const Kasten& alles);

    /// @param reich where its places lie
    void SammleUmgebung(const Schild& s, const Kasten& reich);
    /// Of a place within it. From `grenze` on lines count no more: nobody goes there.
    [[nodiscard]] std::int32_t KostenBei(const Schild& s, Flaechenpunkt lage,
                                         std::int32_t grenze = 1 << 30) const;

  private:
    struct NaherPunkt {
        Kasten kasten;
        Flaechenpunkt mitte;
        bool fremd;
    };
    // More than so many mean a place where nothing is free anyway.
    static constexpr std::size_t kMeistePunkte = 64;
    static constexpr std::size_t kMeisteStriche = 256;

    const Beschriftungsaufgabe& aufgabe_;
    std::vector<Kasten> symbole_;
    Zellgitter symbolgitter_;
    Zellgitter strichgitter_;
    std::vector<std::uint32_t> gesehen_;  ///< strokes, by the label that came across them
    std::uint32_t runde_ = 0;
    std::vector<NaherPunkt> punkte_;
    std::vector<Sperrstrich> striche_;
    std::vector<Rechteck> blaetter_;
};

}  // namespace zrw
