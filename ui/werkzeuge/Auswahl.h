// Without a tool: a click selects a figure, Shift adds points, a dragged rectangle selects many. The
// selection lies over the picture and changes nothing.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class Auswahl final : public Werkzeug {
  public:
    explicit Auswahl(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    /// Something else is selected now, or what is selected may have changed.
    std::function<void()> gewechselt;

    [[nodiscard]] const std::vector<PPunktKnoten>& Punkte() const { return punkte_; }
    /// Null without one; there is one only where no points are selected.
    [[nodiscard]] PPunktKante Kante() const { return kante_; }
    [[nodiscard]] bool Leer() const { return punkte_.empty() && kante_ == nullptr; }
    /// Selects what lies there, unless it is selected already. @return false: nothing does
    bool WaehleBei(Bildpunkt ort);
    /// Just this point.
    void WaehlePunkt(PunktKnoten& punkt);
    /// Just this line.
    void WaehleKante(PunktKante& kante);
    void LeereAuswahl();
    void ZeichneAuswahl(Zeichenflaeche& flaeche) const;

    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    /// Ends a drag; the selection stays.
    void Abbrechen() override;
    void NetzGeaendert() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::ArrowCursor; }
    [[nodiscard]] QString Anleitung() const override { return {}; }

  private:
    void Waehle(Bildpunkt ort, bool dazu);
    void WaehleRechteck(Bildpunkt a, Bildpunkt b, bool dazu);
    void NimmPunkt(PunktKnoten& punkt, bool wechseln);
    void MeldeAuswahl();
    void MeldeWechsel();

    Werkzeugumgebung& umgebung_;
    std::optional<Bildpunkt> anfang_;
    bool zieht_ = false;
    std::vector<PPunktKnoten> punkte_;
    PPunktKante kante_ = nullptr;
};

}  // namespace zrw
