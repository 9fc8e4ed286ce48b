// Shows an observation in the picture: selects its line or point, zooms to it and lays a soft halo under it.
// In the window only; nothing of the network changes.
#pragma once

#include <QString>
#include <functional>
#include <optional>

#include "model/ergebnisse/Beobachtungsliste.h"
#include "ui/Plan.h"
#include "ui/bild/Planbild.h"
#include "ui/werkzeuge/Auswahl.h"

class QPainter;

namespace zrw {

class Beobachtungszeiger {
  public:
    /// All must outlive it.
    struct Umfeld {
        Plan& plan;
        Planbild& bild;
        Auswahl& auswahl;
        std::function<void()> loeseWerkzeuge;
    };
    explicit Beobachtungszeiger(Umfeld umfeld) : u_(std::move(umfeld)) {}

    /// @return what of it is not in the plan, or not to be seen there; empty: all is
    QString ZeigeImBild(const Beobachtung& b);
    /// The halo goes unless what it belongs to is still selected.
    void AuswahlGewechselt();
    void VergissHof() { hof_.reset(); }
    void ZeichneHof(QPainter& maler);

  private:
    /// One end of two for points.
    struct Hof {
        PunktIndex von = kKeinPunkt;
        PunktIndex nach = kKeinPunkt;
    };
    void ZeigeLinie(PunktKnoten& von, PunktKnoten& nach, QString& mangel);

    Umfeld u_;
    std::optional<Hof> hof_;
};

}  // namespace zrw
