// The tools of the window and the mouse over its picture: which tool is on, whose a press is, what is under
// way.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "ui/werkzeuge/Auswahl.h"
#include "ui/werkzeuge/KastenVerschieben.h"
#include "ui/werkzeuge/RahmenVerschieben.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class Werkzeugkasten {
  public:
    /// Both must outlive it.
    Werkzeugkasten(Werkzeugumgebung& umgebung, Druckrahmen& rahmen);

    /// In the order of `kWerkzeuge`.
    [[nodiscard]] Werkzeug& NachNummer(std::size_t nummer) const { return *werkzeuge_[nummer]; }
    /// The tool whose mode is on, null without one.
    [[nodiscard]] Werkzeug* Aktiv() const { return aktiv_; }
    [[nodiscard]] bool BrauchtTasten() const { return aktiv_ != nullptr && aktiv_->BrauchtTasten(); }
    /// What is selected while no tool is on.
    [[nodiscard]] Auswahl& Ausgewaehlt() { return *auswahl_; }
    /// The right button where no tool is on.
    std::function<void(Bildpunkt)> rechteTaste;
    /// Its mode goes on or off. What is under way ends.
    void SetzeAktiv(std::size_t nummer, bool ein);

    /// Ends the drag that is under way: its positions would mean something else afterwards.
    void BrichAb();
    [[nodiscard]] bool Zieht() const { return gedrueckt_ != nullptr; }
    /// The network is about to be replaced.
    void VergissNetz();
    void NetzGeaendert();

    /// Where the mouse is while it is over the picture [px].
    [[nodiscard]] const std::optional<Bildpunkt>& Maus() const { return maus_; }
    void MerkeMaus(Bildpunkt ort) { maus_ = ort; }
    /// @return false: not while something is dragged, which goes on outside
    [[nodiscard]] bool VergissMaus();
    /// Shows what lies under the mouse now, with no button down.
    void Schwebe();
    // The rest needs a network.
    void DrueckeTaste(Bildpunkt ort, Qt::MouseButton taste);
    /// The second press of two quick ones.
    void DrueckeZweimal(Bildpunkt ort, Qt::MouseButton taste);
    void LassTasteLos(Bildpunkt ort, Qt::MouseButton taste);
    void FolgeMaus(Bildpunkt ort);
    /// What a press here would do.
    [[nodiscard]] Qt::CursorShape ZeigerBei(Bildpunkt ort) const;

  private:
    [[nodiscard]] Werkzeug* Zustaendig(Bildpunkt ort) const;

    std::vector<std::unique_ptr<Werkzeug>> werkzeuge_;
    std::unique_ptr<Werkzeug> mitteltaste_;  ///< panning, whatever mode is on
    std::unique_ptr<Auswahl> auswahl_;
    std::vector<std::unique_ptr<KastenVerschieben>> kaesten_;  ///< that stand over the plan, uppermost first
    std::unique_ptr<RahmenVerschieben> rahmenrand_;
    Werkzeug* aktiv_ = nullptr;
    Werkzeug* gedrueckt_ = nullptr;  ///< has the mouse button that is down
    Qt::MouseButton taste_ = Qt::NoButton;
    std::optional<Bildpunkt> maus_;
};

}  // namespace zrw
