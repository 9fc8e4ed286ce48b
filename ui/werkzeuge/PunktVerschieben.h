// Moving a point: its symbol, its lines and its label follow the mouse, the release moves it.
#pragma once

#include <vector>

#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class PunktVerschieben final : public Werkzeug {
  public:
    explicit PunktVerschieben(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    [[nodiscard]] std::optional<Bildpunkt> Griff(const PunktKnoten& punkt) const override;
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override;
    void Loslassen(Bildpunkt ort) override;
    void Schweben(Bildpunkt ort) override;
    void Abbrechen() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::CrossCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    void FassePunkt(Liste& netz);
    void LasseLos();
    void ZeigeVerschoben(Zeichner& z, Bildpunkt versatz) const;

    Werkzeugumgebung& umgebung_;
    PunktKnoten* punkt_ = nullptr;  ///< under the mouse while it is dragged
    Bildpunkt anfang_;
    /// A line at the place of the point; its ends that belong to the point follow.
    struct Folger {
        const Kante* kante;
        Bildpunkt anfang;
        Bildpunkt ende;
        bool mitAnfang;
        bool mitEnde;
        bool gezeigt;  ///< by the switches of the network
    };
    // What was visible at the place of the point.
    std::vector<Folger> kanten_;
    std::vector<PunktString*> texte_;
    Bildpunkt ort_;  ///< that place [px]
};

}  // namespace zrw
