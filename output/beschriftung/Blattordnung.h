// Point numbers in order for sheets of paper. Where sheets are cut hangs on where numbers lie, and the other
// way round: so a plan is cut anew once its numbers are in order, and those that lie across an edge then go
// elsewhere once more.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "model/Netz.h"
#include "output/beschriftung/Planbeschriftung.h"

namespace zrw {

/// Numbers elsewhere, for as long as this lives. Nobody draws the plan meanwhile who should not see it.
class Probelage {
  public:
    /// @param netz outlives it
    Probelage(Netz& netz, std::vector<Planbeschriftung::Nummernlage> lagen);
    ~Probelage() { Tausche(); }
    Probelage(const Probelage&) = delete;
    Probelage& operator=(const Probelage&) = delete;

  private:
    void Tausche();

    Netz& netz_;
    std::vector<Planbeschriftung::Nummernlage> lagen_;  ///< where they are not now
};

/// The sheets of the plan with its numbers as they lie; none: it has no bounds.
using Blattschneider = std::function<std::vector<Blatt>()>;

/// @param plan for the print of this network, whose numbers stay where they are
/// @return nothing where it was stopped
[[nodiscard]] std::optional<Planbeschriftung::Ordnung> OrdneAufBlaetter(Planbeschriftung& plan, Netz& netz,
                                                                        const Blattschneider& schneide,
                                                                        const Fortschritt& fortschritt = {});

}  // namespace zrw
