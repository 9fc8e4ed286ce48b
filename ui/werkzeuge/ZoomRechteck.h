// Zooming to a rectangle drawn with the mouse; a click zooms one step about its point, the right button goes
// back to the view before.
#pragma once

#include <optional>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class ZoomRechteck final : public Werkzeug {
  public:
    explicit ZoomRechteck(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    [[nodiscard]] std::optional<Bildpunkt> Griff(const PunktKnoten& punkt) const override;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void RechteTaste() override { umgebung_.AnsichtZurueck(); }
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::CrossCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    Werkzeugumgebung& umgebung_;
    std::optional<Bildpunkt> anfang_;
};

}  // namespace zrw
