// From one flagged observation to the next, the largest test value first, and round again.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "model/ergebnisse/Beobachtungsliste.h"

namespace zrw {

class Fehlergang {
  public:
    struct Schritt {
        const Beobachtung* beobachtung = nullptr;  ///< of the list
        std::size_t nummer = 0;                    ///< from 1 on
        std::size_t anzahl = 0;
    };
    /// @param vor to the next one, else back @return nothing: none is flagged
    std::optional<Schritt> GeheWeiter(const std::shared_ptr<const Beobachtungsliste>& liste, bool vor);
    /// The way goes on from here.
    void MerkeOrt(const Beobachtung& b) { letzte_ = b; }
    void VergissOrt() { letzte_.reset(); }

  private:
    std::shared_ptr<const Beobachtungsliste> liste_;  ///< that `zeilen_` are of
    std::vector<std::uint32_t> zeilen_;
    std::optional<Beobachtung> letzte_;  ///< a copy: the list may be read anew
};

}  // namespace zrw
