// The page "Eigenschaften" of the side bar: what is known about the selected figures, and the results of the
// adjustment where tables lie beside the network. It stays while the mouse moves.
#pragma once

#include <QWidget>
#include <functional>

#include "ui/Plan.h"
#include "ui/Programm.h"
#include "ui/ergebnisse/Ergebnisliste.h"
#include "ui/werkzeuge/Auswahl.h"

class QTextBrowser;

namespace zrw {

class Ergebnisanzeige;
class Ergebnisgitter;

class Eigenschaftsseite final : public QWidget {
  public:
    /// What it needs of its window. All must outlive it.
    struct Umfeld {
        const Programm& programm;
        const Vorlieben& vorlieben;
        Plan& plan;
        Auswahl& auswahl;
        Ergebnisanzeige& ergebnisse;
        /// A point is to be shown in the plot: by its internal number, or by what it is called.
        std::function<void(PunktIndex)> waehlePunkt;
        std::function<void(const QString&)> zeigePunkt;
        /// So many rows of the results lie on the clipboard now.
        std::function<void(qsizetype)> kopiert;
    };
    Eigenschaftsseite(Umfeld umfeld, QWidget* eltern);

    /// What is selected now, as it is now.
    void ZeigeAuswahl();

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    [[nodiscard]] QString Auswahltext();
    void ListeErgebnisse();

    Umfeld u_;
    QTextBrowser* text_;
    Ergebnisgitter* gitter_;
    Ergebnisliste liste_;
    QString gezeigt_;
};

}  // namespace zrw
