// Dragging the legend by its corner. Not a mode with a button: the corner is caught while no mode is on.
#pragma once

#include <optional>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class LegendeVerschieben final : public Werkzeug {
  public:
    explicit LegendeVerschieben(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::SizeAllCursor; }

  private:
    void Beende(Bildpunkt legendenort);

    Werkzeugumgebung& umgebung_;
    Bildpunkt vorher_;                 ///< where the legend was
    std::optional<Bildpunkt> anfang_;  ///< where the mouse went down
};

}  // namespace zrw
