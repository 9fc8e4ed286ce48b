// Open addressing from a key to a value, the keys in the table itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "model/Saat.h"

namespace zrw {

/// Open addressing from a key to a value that is false where there is none. The keys stand in the table
/// itself, so that a search touches no node: memory is what reading a large network waits for.
template <class Schluessel, class Wert>
class Streutafel {
  public:
    [[nodiscard]] Wert FindeWert(const Schluessel& s) const {
        if (faecher_.empty()) return {};
        return faecher_[SucheFach(s)].wert;
    }
    /// Enters the value; one of the same key is displaced, as the head of a list hides what is behind it.
    void SetzeWert(const Schluessel& s, Wert wert) {
        if ((belegt_ + 1) * 5 > faecher_.size() * 4) VergroessereTafel();
        Fach& fach = faecher_[SucheFach(s)];
        if (!fach.wert) ++belegt_;
        fach = {s, wert};
    }
    /// Makes room for so many entries at once.
    void ErwarteEintraege(std::size_t anzahl) {
        while (anzahl * 5 > faecher_.size() * 4)
            VergroessereTafel();
    }

  private:
    struct Fach {
        Schluessel schluessel{};
        Wert wert{};
    };
    [[nodiscard]] std::size_t Platz(const Schluessel& s) const {
        return s.Streuwert(saat_) & (faecher_.size() - 1);
    }
    [[nodiscard]] std::size_t NaechstesFach(std::size_t i) const { return (i + 1) & (faecher_.size() - 1); }
    /// The place of the key, or the free one where it belongs.
    [[nodiscard]] std::size_t SucheFach(const Schluessel& s) const {
        std::size_t i = Platz(s);
        while (faecher_[i].wert && !(faecher_[i].schluessel == s))
            i = NaechstesFach(i);
        return i;
    }
    void VergroessereTafel() {
        std::vector<Fach> alt(faecher_.empty() ? 64 : faecher_.size() * 2);
        alt.swap(faecher_);
        for (const Fach& f : alt) {
            if (f.wert) faecher_[SucheFach(f.schluessel)] = f;
        }
    }
    std::uint64_t saat_ = NeueSaat();
    std::vector<Fach> faecher_;
    std::size_t belegt_ = 0;
};

}  // namespace zrw
