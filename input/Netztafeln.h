// Look-ups of one reading: point number -> internal number, pair of points -> line. Memory is what reading a
// large network waits for, so these are small, and they are told beforehand what will be asked: it comes
// while other lines are read.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "model/Figuren.h"
#include "model/GrosserSpeicher.h"
#include "model/Markentafel.h"
#include "model/Saat.h"
#include "model/Vorabruf.h"
#include "model/Werte.h"

namespace zrw {

/// The numbers of the points 1, 2, 3 ... in the order of their entering.
class Nummerntafel {
  public:
    Nummerntafel() { ErwartePunkte(64); }

    /// Makes room for so many points.
    void ErwartePunkte(std::size_t punkte) {
        tafel_.ErwarteEintraege(punkte, static_cast<std::uint32_t>(punkte),
                                [this](std::uint32_t nr) { return nummern_[nr].nummer.Streuwert(saat_); });
        if (nummern_.capacity() <= punkte) nummern_.reserve(std::max(punkte + 1, 2 * nummern_.size()));
    }
    /// Prefetches for a search. @return what the others need beside the number
    [[nodiscard]] std::uint64_t HoleNummerVor(const PunktNummernTyp& nummer) const {
        const std::uint64_t streuwert = nummer.Streuwert(saat_);
        tafel_.HoleFachVor(streuwert);
        return streuwert;
    }
    /// Prefetches what the search will look at next, a while after the first.
    void HoleEintragVor(std::uint64_t streuwert) const { HoleVor(&nummern_[tafel_.Erstes(streuwert)]); }
    /// Internal number of the point, `kKeinPunkt` if there is none.
    [[nodiscard]] PunktIndex FindePunkt(std::uint64_t streuwert, const PunktNummernTyp& nummer) const {
        return static_cast<PunktIndex>(
            tafel_.FindeNummer(streuwert, [&](std::uint32_t nr) { return nummern_[nr].nummer == nummer; }));
    }
    /// Enters a number that is not yet there. @return its internal number
    PunktIndex NimmAuf(std::uint64_t streuwert, const PunktNummernTyp& nummer) {
        ErwartePunkte(nummern_.size());
        tafel_.TrageEin(streuwert, static_cast<std::uint32_t>(nummern_.size()));
        nummern_.push_back({nummer});
        return static_cast<PunktIndex>(nummern_.size() - 1);
    }

  private:
    struct alignas(16) Eintrag {  // none lies across two lines of the cache
        PunktNummernTyp nummer;
    };
    std::uint64_t saat_ = NeueSaat();
    Markentafel tafel_;
    std::vector<Eintrag, Grossverteiler<Eintrag>> nummern_{Eintrag{}};  // there is no point 0
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
    Kantentafel() { ErwarteKanten(64); }

    /// Makes room for so many lines.
    void ErwarteKanten(std::size_t kanten) {
        tafel_.ErwarteEintraege(kanten, static_cast<std::uint32_t>(kanten), [this](std::uint32_t nr) {
            return Streuwert(kanten_[nr].anfang, kanten_[nr].ende);
        });
        if (kanten_.capacity() <= kanten) kanten_.reserve(std::max(kanten + 1, 2 * kanten_.size()));
    }
    /// Prefetches for a search. @return what the others need beside the points
    [[nodiscard]] std::uint64_t HoleKanteVor(PunktIndex a, PunktIndex b) const {
        const std::uint64_t streuwert = Streuwert(a, b);
        tafel_.HoleFachVor(streuwert);
        return streuwert;
    }
    /// Prefetches what the search will look at next, a while after the first.
    void HoleEintragVor(std::uint64_t streuwert) const { HoleVor(&kanten_[tafel_.Erstes(streuwert)]); }
    /// The line between the two points of `neu`, in either orientation; where there is none, `neu` enters.
    /// @return null then
    [[nodiscard]] Kantenstand* FindeOderNimm(std::uint64_t streuwert, const Kantenstand& neu) {
        ErwarteKanten(kanten_.size());
        const auto naechste = static_cast<std::uint32_t>(kanten_.size());
        const std::uint32_t nr = tafel_.SetzeEintrag(streuwert, naechste, false, [&](std::uint32_t i) {
            const Kantenstand& k = kanten_[i];
            return (k.anfang == neu.anfang && k.ende == neu.ende) ||
                   (k.anfang == neu.ende && k.ende == neu.anfang);
        });
        if (nr != Markentafel::kKeins) return &kanten_[nr];
        kanten_.push_back(neu);
        return nullptr;
    }
    [[nodiscard]] std::span<const Kantenstand> Alle() const { return std::span(kanten_).subspan(1); }

  private:
    [[nodiscard]] std::uint64_t Streuwert(PunktIndex a, PunktIndex b) const {
        return MischeBits((std::uint64_t{std::min(a, b)} << 16U | std::max(a, b)) ^ saat_);
    }
    std::uint64_t saat_ = NeueSaat();
    Markentafel tafel_;
    std::vector<Kantenstand, Grossverteiler<Kantenstand>> kanten_{Kantenstand{}};  // counted from 1, too
};

}  // namespace zrw
