// Panning: the picture follows the mouse, the release moves the view.
#pragma once

#include <optional>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class BildVerschieben final : public Werkzeug {
  public:
    explicit BildVerschieben(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::OpenHandCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    Werkzeugumgebung& umgebung_;
    std::optional<Bildpunkt> anfang_;
};

}  // namespace zrw
