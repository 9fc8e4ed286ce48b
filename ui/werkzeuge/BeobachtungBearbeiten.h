// Editing observations with their dialog: a click picks a line, whose type the dialog then shows and changes;
// with "Neue Beobachtung" two clicks insert a line of the dialog's type, which follows the mouse in between.
#pragma once

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class BeobachtungBearbeiten final : public Werkzeug {
  public:
    explicit BeobachtungBearbeiten(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    void BeginneWerkzeug() override;
    void BeendeWerkzeug() override;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override { Schweben(ort); }
    void Loslassen(Bildpunkt /*ort*/) override {}
    void Schweben(Bildpunkt ort) override;
    void Abbrechen() override;
    void NetzGeaendert() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::PointingHandCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    void WaehleKante(PunktKante* kante);
    void TypGewaehlt();
    void VerbindePunkte(Liste& netz, PunktKnoten& zweiter);
    void ZeigeGewaehltes(const Vorschau& dazu);
    void NenneBeobachtung();
    [[nodiscard]] Kante Entwurf() const;
    void ZieheLinie(Liste& netz);

    Werkzeugumgebung& umgebung_;
    PunktKante* kante_ = nullptr;     ///< picked, the dialog changes it
    PunktKnoten* erster_ = nullptr;   ///< first point of a new line
    PunktKnoten* zweiter_ = nullptr;  ///< under the mouse, while there is a first one
    Bildpunkt maus_;
};

}  // namespace zrw
