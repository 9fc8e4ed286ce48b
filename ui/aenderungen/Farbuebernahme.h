// Gives the open network the colours that the settings have now. Figures know no kind, only their colour:
// whatever has the colour that a setting had gets the one that it has.
#pragma once

#include <vector>

#include "model/Farbpaletten.h"
#include "ui/aenderungen/Aenderungen.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

/// Points, labels and lines in other colours, all in one step.
class FarbenGeaendert final : public Netzaenderung {
  public:
    /// Figures of other colours than `von` are left out.
    FarbenGeaendert(const Liste& liste, const Figurenfarben& von, const Figurenfarben& nach);
    [[nodiscard]] Figurenmenge Betroffene() const override { return figuren_; }
    [[nodiscard]] std::size_t Anzahl() const { return andere_.size(); }
    void redo() override;
    void undo() override { redo(); }

  private:
    Figurenmenge figuren_;
    std::vector<Farbe> andere_;  ///< of points, lines, labels, one after the other
};

class Farbuebernahme {
  public:
    /// @param umgebung must outlive it
    explicit Farbuebernahme(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    /// A network was opened: if it was read with the settings, these were they.
    void BeginneNetz();
    /// Says in the status line where there was nothing to do.
    void FaerbeNetz();

  private:
    [[nodiscard]] Figurenfarben Bisherige(const Liste& netz) const;
    void MerkeFarben(const Figurenfarben& farben);

    Werkzeugumgebung& umgebung_;
    std::vector<Figurenfarben> fruehere_;  ///< that this network had or may have had, the last one first
};

}  // namespace zrw
