// Measuring along a polyline of points and free places, with no effect on the network.
#pragma once

#include <optional>

#include "model/Messzug.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class Messen final : public Werkzeug {
  public:
    explicit Messen(Werkzeugumgebung& umgebung) : umgebung_(umgebung) {}

    /// A corner; once more at the last one: the end.
    void Druecken(Bildpunkt ort) override;
    void Ziehen(Bildpunkt ort) override { Schweben(ort); }
    /// Elsewhere than pressed: another corner.
    void Loslassen(Bildpunkt ort) override;
    void Schweben(Bildpunkt ort) override;
    void RechteTaste() override { EntferneLetzte(); }
    [[nodiscard]] bool BrauchtTasten() const override { return true; }
    void DrueckeTaste(Werkzeugtaste taste) override;
    /// The corner that is being pressed; else all.
    void Abbrechen() override;
    void NetzGeaendert() override;
    [[nodiscard]] Qt::CursorShape Zeiger() const override { return Qt::CrossCursor; }
    [[nodiscard]] QString Anleitung() const override;

  private:
    [[nodiscard]] bool Moeglich() const;
    [[nodiscard]] Messzug::Ecke FangeEcke(const Liste& netz, Bildpunkt ort) const;
    [[nodiscard]] bool AnLetzter(const Liste& netz, const Messzug::Ecke& ecke, Bildpunkt ort) const;
    [[nodiscard]] bool HatStrecke() const { return zug_.Ecken().size() > 1; }
    void EntferneLetzte();
    void KopiereZug();
    void LeereZug();
    void ZeigeZug();

    Werkzeugumgebung& umgebung_;
    Messzug zug_;
    bool fertig_ = false;             ///< the next corner begins anew
    std::optional<Bildpunkt> druck_;  ///< where the button went down
    std::optional<Welt> bis_;         ///< where the leg ends that follows the mouse
    std::optional<Bildpunkt> maus_;   ///< over the picture
};

}  // namespace zrw
