// A tool mode: what press, drag and release on the picture do while its button is down. One small class per
// mode, plain positions instead of Qt's events, registered in one row of Werkzeugtafel.h.
#pragma once

#include <Qt>

#include "model/Werte.h"

namespace zrw {

/// What a tool may do to the window.
class Werkzeugumgebung {
  public:
    virtual ~Werkzeugumgebung() = default;
    [[nodiscard]] virtual bool HatNetz() const = 0;
    /// Shows the picture shifted without changing the view.
    virtual void ZeigeVerschoben(Bildpunkt versatz) = 0;
    /// Pans the view so that the network moves by this picture delta [px], and redraws.
    virtual void Verschiebe(Bildpunkt versatz) = 0;
    /// Corner of the legend. Like the next three, only while it is being dragged.
    [[nodiscard]] virtual Bildpunkt Legendenort() const = 0;
    virtual void FasseLegende(Bildpunkt ort) = 0;
    virtual void ZieheLegende(Bildpunkt ort) = 0;
    /// Redraws what the legend was dragged over.
    virtual void LegendeLosgelassen() = 0;
};

class Werkzeug {
  public:
    virtual ~Werkzeug() = default;
    virtual void Druecken(Bildpunkt ort) = 0;
    virtual void Ziehen(Bildpunkt ort) = 0;
    virtual void Loslassen(Bildpunkt ort) = 0;
    /// Ends what is under way and leaves everything as before the press.
    virtual void Abbrechen() = 0;
    [[nodiscard]] virtual Qt::CursorShape Zeiger() const = 0;
};

}  // namespace zrw
