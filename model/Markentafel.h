// Open addressing to things that are counted from 1 and stand in a row elsewhere. Beside the number of the
// thing its place holds only some bits of its key: the table stays small, and a search seldom has to look at
// another thing than the one it wants.
#pragma once

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "model/GrosserSpeicher.h"
#include "model/Vorabruf.h"

namespace zrw {

/// Callers hand over the hash of the key they mean, and tell it of a thing, `streuwert(nr)`, or whether a
/// thing has that key, `gleich(nr)`. Everything but `ErwarteEintraege`, `Anzahl` and `LeereTafel` needs room.
class Markentafel {
  public:
    static constexpr std::uint32_t kKeins = 0;

    /// Room for `anzahl` things with numbers up to `hoechste`.
    template <class Streuwert>
    void ErwarteEintraege(std::size_t anzahl, std::uint32_t hoechste, Streuwert streuwert) {
        if (!faecher_.empty() && anzahl * 2 <= faecher_.size() && hoechste <= nummer_) return;
        std::size_t groesse = std::max<std::size_t>(faecher_.size(), 64);
        while (groesse < anzahl * 2)
            groesse *= 2;
        Faecher alt(groesse, kKeins);
        alt.swap(faecher_);
        const std::uint32_t alteNummer = nummer_;
        // Never fewer bits than before: a thing with a higher number may be in the table already.
        nummer_ = std::max(
            {nummer_, static_cast<std::uint32_t>(groesse - 1), ~0U >> std::countl_zero(hoechste | 1U)});
        anzahl_ = 0;
        for (const std::uint32_t fach : alt) {
            if (fach != kKeins) TrageEin(streuwert(fach & alteNummer), fach & alteNummer);
        }
    }
    [[nodiscard]] std::size_t Anzahl() const { return anzahl_; }
    void LeereTafel() { *this = {}; }

    /// Prefetches for a search.
    void HoleFachVor(std::uint64_t streuwert) const { HoleVor(&faecher_[streuwert & Rest()]); }
    /// What a search will probably look at; quick where that was prefetched.
    [[nodiscard]] std::uint32_t Erstes(std::uint64_t streuwert) const {
        return faecher_[streuwert & Rest()] & nummer_;
    }
    /// The number of the thing, `kKeins` if it is not there.
    template <class Gleich>
    [[nodiscard]] std::uint32_t FindeNummer(std::uint64_t streuwert, Gleich gleich) const {
        return faecher_[SucheFach(streuwert, gleich)] & nummer_;
    }
    /// Enters a thing whose key is not yet there.
    void TrageEin(std::uint64_t streuwert, std::uint32_t nr) {
        assert(nr != kKeins && nr <= nummer_ && anzahl_ < faecher_.size() / 2 + 1);
        std::size_t i = streuwert & Rest();
        while (faecher_[i] != kKeins)
            i = NaechstesFach(i);
        faecher_[i] = Marke(streuwert) | nr;
        ++anzahl_;
    }
    /// Enters a thing; one of the same key leaves if `verdraengt`, else the new one stays out.
    /// @return the number of the one that was there, `kKeins` if there was none
    template <class Gleich>
    std::uint32_t SetzeEintrag(std::uint64_t streuwert, std::uint32_t nr, bool verdraengt, Gleich gleich) {
        std::uint32_t& fach = faecher_[SucheFach(streuwert, gleich)];
        const std::uint32_t vorher = fach & nummer_;
        if (vorher == kKeins) ++anzahl_;
        if (vorher == kKeins || verdraengt) fach = Marke(streuwert) | nr;
        return vorher;
    }
    /// Takes a thing out that is there.
    template <class Streuwert>
    void EntferneEintrag(std::uint32_t nr, Streuwert streuwert) {
        std::size_t i = SucheFach(streuwert(nr), [nr](std::uint32_t n) { return n == nr; });
        // Close the gap, so that a search never has to step over removed entries.
        for (std::size_t j = NaechstesFach(i); faecher_[j] != kKeins; j = NaechstesFach(j)) {
            const std::size_t heim = streuwert(faecher_[j] & nummer_) & Rest();
            if (((j - heim) & Rest()) < ((j - i) & Rest())) continue;
            faecher_[i] = faecher_[j];
            i = j;
        }
        faecher_[i] = kKeins;
        --anzahl_;
    }

  private:
    using Faecher = std::vector<std::uint32_t, Grossverteiler<std::uint32_t>>;

    [[nodiscard]] std::size_t Rest() const { return faecher_.size() - 1; }
    [[nodiscard]] std::size_t NaechstesFach(std::size_t i) const { return (i + 1) & Rest(); }
    [[nodiscard]] std::uint32_t Marke(std::uint64_t streuwert) const {
        return static_cast<std::uint32_t>(streuwert >> 32U) & ~nummer_;
    }
    /// The place of the thing, or the free one where it belongs.
    template <class Gleich>
    [[nodiscard]] std::size_t SucheFach(std::uint64_t streuwert, Gleich gleich) const {
        assert(!faecher_.empty());
        for (std::size_t i = streuwert & Rest();; i = NaechstesFach(i)) {
            const std::uint32_t fach = faecher_[i];
            if (fach == kKeins) return i;
            if ((fach ^ Marke(streuwert)) <= nummer_ && gleich(fach & nummer_)) return i;
        }
    }

    Faecher faecher_;
    std::size_t anzahl_ = 0;
    std::uint32_t nummer_ = 0;  ///< the bits of a place that hold the number
};

}  // namespace zrw
