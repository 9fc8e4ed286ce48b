// How results are drawn: keeps what was chosen, gives it to each network, and finds magnifications that suit
// one. What is shown at all are switches (ui/fenster/Schalter.h).
#pragma once

#include <QString>
#include <functional>

#include "model/Residuendarstellung.h"
#include "ui/Plan.h"
#include "ui/Programm.h"
#include "ui/dialoge/Residuendialog.h"

namespace zrw {

class Aktionen;

class Residuenwahl {
  public:
    struct Umfeld {
        const Programm& programm;
        Plan& plan;
        std::function<void()> zeichneNeu;
    };
    /// Sets the switches to what was chosen last. All must outlive it. @param fenster owns the dialog
    Residuenwahl(Umfeld umfeld, Aktionen& aktionen, QWidget* fenster);
    ~Residuenwahl() = default;
    Residuenwahl(const Residuenwahl&) = delete;
    Residuenwahl& operator=(const Residuenwahl&) = delete;

    /// A network was opened: its ellipses have the magnification that was chosen.
    void UebernimmIn(Residuendarstellung& d) const { d.Ellipsenmassstab = wahl_.Ellipsenmassstab; }
    void OeffneDialog();
    /// On magnifications that are out of proportion to the picture; empty where all is well.
    [[nodiscard]] QString Hinweis();

  private:
    void FolgeSchalter(Aktionen& aktionen);
    void ZeigeDialog();
    void StelleEin(const Residuendialog::Stand& stand);
    void PasseAn();
    void SichereWahl();

    Umfeld u_;
    Residuendarstellung wahl_;
    Residuendialog* dialog_;
};

}  // namespace zrw
