// What becomes of an unsaved plot when the program ends without a word: keeps the current one every minute
// and offers those that earlier runs left behind. Not in here: the files that it is kept in (Rettung.h).
#pragma once

#include <QString>
#include <QTimer>
#include <exception>
#include <filesystem>
#include <functional>
#include <optional>

#include "input/Oeffnen.h"
#include "model/FigListe.h"
#include "ui/Programm.h"

namespace zrw {

struct Rettungsstand;

class Netzbewahrung {
  public:
    /// The plot as it stands in the window.
    struct Plan {
        Liste* liste = nullptr;  ///< null before one is opened
        QString datei;           ///< that it came from
        bool ungesichert = false;
    };
    /// What it asks of the window, from the event loop and from its own calls only.
    struct Fenster {
        std::function<Plan()> plan;
        std::function<void(const QString&)> zeigeStatus;
        std::function<void(const std::exception&)> zeigeFehler;
        /// Shows a plot that was left behind, as unsaved.
        std::function<void(Lesung&&, const std::filesystem::path&)> uebernimm;
    };

    /// @param programm must outlive it
    Netzbewahrung(const Programm& programm, Fenster fenster);

    /// Keeps the plot where it is unsaved. Also for the moment before work that other programs take part in.
    void BewahrePlan();
    /// What is kept is not needed any more.
    void VergissPlan();
    /// The program ends. @param planBleibt the unsaved plot is offered at the next start
    void BeendeBewahrung(bool planBleibt);
    /// Offers plots that an earlier run could not save. @return whether one is shown now
    [[nodiscard]] bool BieteAn();

  private:
    std::optional<Rettungsstand> LiesStand(const QString& datei);
    [[nodiscard]] bool Gewollt(const QString& name, const QString& datei) const;

    const Programm& programm_;
    Fenster fenster_;
    bool gestoert_ = false;  ///< the user knows that it cannot be kept
    QTimer uhr_;
};

}  // namespace zrw
