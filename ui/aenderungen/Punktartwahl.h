// Changes the kind and place of a picked point, and inserts new points, as the window "TFormPunktart" says.
#pragma once

#include "model/FigListe.h"
#include "ui/Dialogdienst.h"
#include "ui/werkzeuge/Werkzeug.h"

class QWidget;

namespace zrw {

struct Punkteingabe;
class TFormPunktart;

class Punktartwahl {
  public:
    /// @param umgebung, dialoge must outlive it
    /// @param eltern owns the window
    Punktartwahl(Werkzeugumgebung& umgebung, Dialogdienst& dialoge, QWidget* eltern);
    ~Punktartwahl();
    Punktartwahl(const Punktartwahl&) = delete;
    Punktartwahl& operator=(const Punktartwahl&) = delete;

    [[nodiscard]] TFormPunktart& Fenster() { return *fenster_; }
    void WaehlePunkt(PunktKnoten& punkt);
    [[nodiscard]] const PunktKnoten* Gewaehlt() const { return gewaehlt_; }
    /// Nothing is picked any more.
    void LoesePunkt() { gewaehlt_ = nullptr; }
    /// The picked point may have moved or gone.
    void NetzGeaendert();

  private:
    /// What the window shows of the picked point.
    struct Stand {
        double rechts = 0;
        double hoch = 0;
        PunktTyp symbol = PunktTyp::Pkt;
        Farbe farbe;
        bool operator==(const Stand&) const = default;
    };
    [[nodiscard]] static Stand StandVon(const PunktKnoten& p) {
        return {p.XWPu, p.YWPu, p.Item->PktTyp, p.Item->Farbe};
    }
    void ZeichnePunkt();
    void FuegeEin(const Punkteingabe& eingabe, Welt ort);

    Werkzeugumgebung& umgebung_;
    Dialogdienst& dialoge_;
    TFormPunktart* fenster_;
    Stand gezeigt_;
    PunktKnoten* gewaehlt_ = nullptr;
};

}  // namespace zrw
