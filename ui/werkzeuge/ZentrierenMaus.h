// Centring with two clicks: the eccentre, then the centre that it is put onto.
#pragma once

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class ZentrierenMaus final : public Werkzeug {
  public:
    explicit ZentrierenMaus(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override { Schweben(ort); }
    void Loslassen(Bildpunkt /*ort*/) override {}
    void Schweben(Bildpunkt ort) override;
    void Abbrechen() override;
    void NetzGeaendert() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::PointingHandCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    Werkzeugumgebung& umgebung_;
    PunktKnoten* exzentrum_ = nullptr;  ///< chosen, the centre is to come
};

}  // namespace zrw
