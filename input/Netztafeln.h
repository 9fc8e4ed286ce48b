// Look-ups of one reading: point number -> internal number, pair of points -> line. Memory is what reading a
// large network waits for, so these are small, and they are told beforehand what will be asked: it comes
// while other lines are read.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

#include "model/Figuren.h"
#include "model/Werte.h"

namespace zrw {

/// Begins to fetch memory that will be read soon.
inline void HoleVor([[maybe_unused]] const void* platz) {
#ifdef __GNUC__
    __builtin_prefetch(platz);
#endif
}

/// A secret of its own for every reading: a file cannot be made so that all its keys meet in one place.
[[nodiscard]] inline std::uint64_t Lesesaat() {
    std::random_device zufall;
    return std::uint64_t{zufall()} << 32U | zufall();
}

/// Open addressing to things that are counted from 1 and stand in a row elsewhere. Beside the number of the
/// thing its place holds only some bits of the key: the table stays small, and a search seldom has to look at
/// another thing than the one it wants.
template <unsigned kNummernbits>
class Markentafel {
  public:
    static constexpr std::uint32_t kKeins = 0;
    static constexpr std::uint32_t kMeiste = (1U << kNummernbits) - 1;

    /// Room for `anzahl` things where there is none. @param streuwert of the thing with a number, for those
    /// that are in the table
    template <class Streuwert>
    void Erwarte(std::size_t anzahl, std::size_t vorhanden, Streuwert streuwert) {
        if (anzahl * 2 <= faecher_.size()) return;
        std::size_t groesse = std::max<std::size_t>(faecher_.size(), 64);
        while (groesse < anzahl * 2)
            groesse *= 2;
        faecher_.assign(groesse, kKeins);
        for (std::uint32_t nr = 1; nr <= vorhanden; ++nr)
            Trage(streuwert(nr), nr);
    }
    /// Announces a search.
    void Kuendige(std::uint64_t streuwert) const { HoleVor(&faecher_[streuwert & Rest()]); }
    /// What a search will probably look at, where the memory of the announcement has come meanwhile.
    [[nodiscard]] std::uint32_t Erstes(std::uint64_t streuwert) const {
        return faecher_[streuwert & Rest()] & kMeiste;
    }
    /// The number of the thing, `kKeins` if it is not there. @param gleich whether it is the one with a
    /// number
    template <class Gleich>
    [[nodiscard]] std::uint32_t Finde(std::uint64_t streuwert, Gleich gleich) const {
        for (std::size_t i = streuwert & Rest();; i = (i + 1) & Rest()) {
            const std::uint32_t fach = faecher_[i];
            if (fach == kKeins) return kKeins;
            if ((fach ^ Marke(streuwert)) <= kMeiste && gleich(fach & kMeiste)) return fach & kMeiste;
        }
    }
    /// Enters what is not yet there, with room for it.
    void Trage(std::uint64_t streuwert, std::uint32_t nr) {
        std::size_t i = streuwert & Rest();
        while (faecher_[i] != kKeins)
            i = (i + 1) & Rest();
        faecher_[i] = Marke(streuwert) | nr;
    }

  private:
    [[nodiscard]] std::size_t Rest() const { return faecher_.size() - 1; }
    [[nodiscard]] static std::uint32_t Marke(std::uint64_t streuwert) {
        return static_cast<std::uint32_t>(streuwert >> 32U) & ~kMeiste;
    }
    std::vector<std::uint32_t> faecher_;
};

/// The numbers of the points 1, 2, 3 ... in the order of their entering.
class Nummerntafel {
  public:
    Nummerntafel() { Erwarte(64); }

    /// Makes room for so many points.
    void Erwarte(std::size_t punkte) {
        tafel_.Erwarte(punkte, nummern_.size() - 1,
                       [this](std::uint32_t nr) { return nummern_[nr].nummer.Streuwert(saat_); });
        if (nummern_.capacity() <= punkte) nummern_.reserve(std::max(punkte + 1, 2 * nummern_.size()));
    }
    /// Announces a search. @return what the others need beside the number
    [[nodiscard]] std::uint64_t Kuendige(const PunktNummernTyp& nummer) const {
        const std::uint64_t streuwert = nummer.Streuwert(saat_);
        tafel_.Kuendige(streuwert);
        return streuwert;
    }
    /// The second announcement, a while after the first.
    void KuendigeWeiter(std::uint64_t streuwert) const { HoleVor(&nummern_[tafel_.Erstes(streuwert)]); }
    /// Internal number of the point, `kKeinPunkt` if there is none.
    [[nodiscard]] PunktIndex Finde(std::uint64_t streuwert, const PunktNummernTyp& nummer) const {
        return static_cast<PunktIndex>(
            tafel_.Finde(streuwert, [&](std::uint32_t nr) { return nummern_[nr].nummer == nummer; }));
    }
    /// Enters a number that is not yet there. @return its internal number
    PunktIndex NimmAuf(std::uint64_t streuwert, const PunktNummernTyp& nummer) {
        Erwarte(nummern_.size());
        tafel_.Trage(streuwert, static_cast<std::uint32_t>(nummern_.size()));
        nummern_.push_back({nummer});
        return static_cast<PunktIndex>(nummern_.size() - 1);
    }

  private:
    struct alignas(16) Eintrag {  // none lies across two lines of the cache
        PunktNummernTyp nummer;
    };
    std::uint64_t saat_ = Lesesaat();
    Markentafel<16> tafel_;
    std::vector<Eintrag> nummern_ = std::vector<Eintrag>(1);  // there is no point 0
};

/// A line while its observations come together.
struct Kantenstand {
    PunktIndex anfang = kKeinPunkt;
    PunktIndex ende = kKeinPunkt;
    Farbe farbe;
    KanteAttr kAttr;
    LinieAttr lAttr = LinieAttr::Null;
};

/// The lines in the order of their first observation, found by their points, whichever is named first.
class Kantentafel {
  public:
    static constexpr std::uint32_t kKeine = Markentafel<20>::kKeins;
    static constexpr std::size_t kMeiste = Markentafel<20>::kMeiste;

    Kantentafel() { Erwarte(64); }

    /// Makes room for so many lines.
    void Erwarte(std::size_t kanten) {
        tafel_.Erwarte(kanten, kanten_.size() - 1,
                       [this](std::uint32_t nr) { return Streuwert(kanten_[nr].anfang, kanten_[nr].ende); });
        if (kanten_.capacity() <= kanten) kanten_.reserve(std::max(kanten + 1, 2 * kanten_.size()));
    }
    /// Announces a search. @return what the others need beside the points
    [[nodiscard]] std::uint64_t Kuendige(PunktIndex a, PunktIndex b) const {
        const std::uint64_t streuwert = Streuwert(a, b);
        tafel_.Kuendige(streuwert);
        return streuwert;
    }
    /// The second announcement, a while after the first.
    void KuendigeWeiter(std::uint64_t streuwert) const { HoleVor(&kanten_[tafel_.Erstes(streuwert)]); }
    /// The line between the two points of `neu`, in either orientation; where there is none, `neu` enters.
    /// @return null then
    [[nodiscard]] Kantenstand* FindeOderNimm(std::uint64_t streuwert, const Kantenstand& neu) {
        const std::uint32_t nr = tafel_.Finde(streuwert, [&](std::uint32_t i) {
            const Kantenstand& k = kanten_[i];
            return (k.anfang == neu.anfang && k.ende == neu.ende) ||
                   (k.anfang == neu.ende && k.ende == neu.anfang);
        });
        if (nr != kKeine) return &kanten_[nr];
        Erwarte(kanten_.size());
        tafel_.Trage(streuwert, static_cast<std::uint32_t>(kanten_.size()));
        kanten_.push_back(neu);
        return nullptr;
    }
    [[nodiscard]] std::span<const Kantenstand> Alle() const { return std::span(kanten_).subspan(1); }

  private:
    [[nodiscard]] std::uint64_t Streuwert(PunktIndex a, PunktIndex b) const {
        return Mische((std::uint64_t{std::min(a, b)} << 16U | std::max(a, b)) ^ saat_);
    }
    std::uint64_t saat_ = Lesesaat();
    Markentafel<20> tafel_;
    std::vector<Kantenstand> kanten_ = std::vector<Kantenstand>(1);  // counted from 1, too
};

}  // namespace zrw
