// Moving a point number: the label follows the mouse, the release keeps its offset. The point stays.
#pragma once

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class NummerVerschieben final : public Werkzeug {
  public:
    explicit NummerVerschieben(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    [[nodiscard]] std::optional<Bildpunkt> Griff(const PunktKnoten& punkt) const override;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Schweben(Bildpunkt ort) override;
    [[nodiscard]] bool LaesstLegendeZu() const override { return true; }
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::CrossCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    void LasseLos();

    Werkzeugumgebung& umgebung_;
    PPunktString text_ = nullptr;  ///< under the mouse while it is dragged
    Bildpunkt anfang_;
};

}  // namespace zrw
