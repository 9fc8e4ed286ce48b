// The command "Punktnummern ordnen": asks, searches with progress and Escape, and hands the change to the
// plan. The search itself: output/beschriftung/.
#pragma once

#include <functional>
#include <set>

#include "ui/Programm.h"
#include "ui/ablage/Vorlieben.h"
#include "ui/aenderungen/NummernGeordnet.h"
#include "ui/bild/Bildflaeche.h"
#include "ui/dialoge/Ordnungsdialog.h"
#include "ui/druck/Plandruck.h"
#include "ui/werkzeuge/Werkzeug.h"

namespace zrw {

class Nummernordner {
  public:
    /// All must outlive it.
    struct Umfeld {
        Werkzeugumgebung& umgebung;
        const Programm& programm;
        Plandruck& druck;
        const Bildflaeche& bild;  ///< its font
        const Vorlieben& vorlieben;
    };
    /// @param fenster owns the dialog
    Nummernordner(const Umfeld& umfeld, QWidget* fenster);
    Nummernordner(const Nummernordner&) = delete;
    Nummernordner& operator=(const Nummernordner&) = delete;

    /// A network was opened. @param ausBild from a picture file
    void BeginneNetz(bool ausBild);
    /// Asks, then puts all numbers in order.
    void FrageAlle();
    /// The same for those of some points.
    void FrageNach(const std::vector<PPunktKnoten>& punkte);
    /// Somebody has dragged it: whoever orders leaves it where it is.
    [[nodiscard]] bool IstVerschoben(const PunktString& t) const;

  private:
    void OeffneDialog();
    void OrdneNummern(const Ordnungsdialog::Wahl& wahl);
    [[nodiscard]] Zeichenmittel Mittel() const {
        return {u_.programm.zustand, u_.programm.einstellungen, u_.programm.netz, u_.programm.uhr};
    }
    [[nodiscard]] Planbeschriftung FuerBild(const Planbeschriftung::Beweglich& beweglich) const;
    [[nodiscard]] Planbeschriftung FuerDruck(double massstab,
                                             const Planbeschriftung::Beweglich& beweglich) const;
    void TueOrdnung(Planbeschriftung::Ordnung&& ordnung);
    [[nodiscard]] Bildpunkt NeuerAbstand() const;

    Umfeld u_;
    QWidget* fenster_;
    Ordnungsdialog* dialog_;
    Nummernstand stand_;
    std::set<PunktIndex> nur_;  ///< empty: all
    bool ausBild_ = false;
};

}  // namespace zrw
