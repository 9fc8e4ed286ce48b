// Lines and points of the open plan in classes of a result, and which lines are drawn: keeps what is shown in
// step with the choice, the network and the tables. Where a table changes or is damaged, nothing of its
// earlier state stays in the picture.
#pragma once

#include <QString>
#include <functional>
#include <memory>

#include "ui/Plan.h"
#include "ui/Programm.h"

namespace zrw {

class Planfaerber {
  public:
    using Listenquelle = std::function<std::shared_ptr<const Beobachtungsliste>()>;

    /// All must outlive it. @param liste the observations as the tables now are, never null
    Planfaerber(const Programm& programm, Plan& plan, Listenquelle liste, std::function<void()> zeichneNeu);

    /// The choice has changed, or what can be chosen.
    std::function<void()> geaendert;

    [[nodiscard]] const Planfaerbung& Wahl() const { return plan_.Faerbung(); }
    void WaehleFaerbung(const Planfaerbung& wahl);
    /// The network has changed: new styles, but nothing is drawn.
    void NetzGeaendert();
    /// The tables may have changed: draws anew where the plan is coloured.
    void TabellenGeaendert();
    /// What the user should know of it; empty: nothing.
    [[nodiscard]] QString Hinweis() const;

  private:
    void BaueStileNeu();

    const Programm& programm_;
    Plan& plan_;
    Listenquelle liste_;
    std::function<void()> zeichneNeu_;
    QString unlesbar_;
};

}  // namespace zrw
