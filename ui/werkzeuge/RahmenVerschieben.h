// Dragging the output area by its edge. Not a mode with a button: the edge is caught with no mode on.
#pragma once

#include <optional>

#include "ui/druck/Druckrahmen.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class RahmenVerschieben final : public Werkzeug {
  public:
    RahmenVerschieben(Werkzeugumgebung& umgebung, Druckrahmen& rahmen)
        : umgebung_(umgebung), rahmen_(rahmen) {}

    /// Whether a press here would take hold of the frame; `Druecken` needs that.
    [[nodiscard]] bool UeberRand(Bildpunkt ort) const;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::SizeAllCursor; }
    [[nodiscard]] QString Anleitung() const override { return {}; }

  private:
    Werkzeugumgebung& umgebung_;
    Druckrahmen& rahmen_;
    std::optional<Welt> anfang_;  ///< where the mouse went down
    std::optional<Welt> vorher_;  ///< where the frame was fixed
    Welt ecke_;                   ///< where its corner was
};

}  // namespace zrw
