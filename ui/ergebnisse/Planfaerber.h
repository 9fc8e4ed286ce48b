// Lines and points of the open plan in classes of a result, and which lines are drawn: keeps what is shown in
// step with the choice, the network and the tables. Where a table changes or is damaged, nothing of its
// earlier state stays in the picture.
#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "ui/Plan.h"
#include "ui/Programm.h"

namespace zrw {

class Ergebnisstand;

class Planfaerber final : public QObject {
  public:
    /// All must outlive it.
    Planfaerber(const Programm& programm, Plan& plan, Ergebnisstand& stand, std::function<void()> zeichneNeu);

    /// The choice has changed, or what can be chosen.
    std::function<void()> geaendert;

    [[nodiscard]] const Planfaerbung& Wahl() const { return plan_.Faerbung(); }
    void WaehleFaerbung(const Planfaerbung& wahl);
    /// The network has changed: new styles, but nothing is drawn.
    void NetzGeaendert();
    /// What the user should know of it; empty: nothing.
    [[nodiscard]] QString Hinweis() const;

  private:
    void BaueStileNeu();
    void ZeichneStile();

    const Programm& programm_;
    Plan& plan_;
    Ergebnisstand& stand_;
    std::function<void()> zeichneNeu_;
    QString unlesbar_;
};

}  // namespace zrw
