// Dragging the legend by its corner. Not a mode with a button: the corner is caught with no mode on and while
// point numbers are moved.
#pragma once

#include <optional>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class LegendeVerschieben final : public Werkzeug {
  public:
    explicit LegendeVerschieben(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    /// Whether a press here would take hold of the legend; `Druecken` needs that.
    [[nodiscard]] bool UeberEcke(Bildpunkt ort) const;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::SizeAllCursor; }
    [[nodiscard]] QString Anleitung() const override { return {}; }

  private:
    /// Where the legend would come to lie.
    [[nodiscard]] Bildpunkt Ziel(Bildpunkt ort) const;

    Werkzeugumgebung& umgebung_;
    std::optional<Bildpunkt> anfang_;  ///< where the mouse went down
};

}  // namespace zrw
