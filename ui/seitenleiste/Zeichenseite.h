// The page "Linien und Symbole" of the side bar: which line styles, marks, symbols and colours the open
// network has, each drawn as in the plan, and how often.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

#include "ui/Plan.h"
#include "ui/Programm.h"
#include "ui/seitenleiste/Bildzeilen.h"

class QTreeWidget;

namespace zrw {

class Zeichenseite final : public QWidget {
  public:
    /// Both must outlive it. @param glatt whether the plan is drawn with smooth edges
    Zeichenseite(const Programm& programm, const Plan& plan, std::function<bool()> glatt, QWidget* eltern);

    /// The network or what it is drawn with may have changed. Counted when nothing has happened for a while.
    void NetzGezeichnet();

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    void ZaehleNeu();
    void ZeigeZeilen();

    const Programm& programm_;
    const Plan& plan_;
    std::function<bool()> glatt_;
    QTreeWidget* baum_;
    QTimer ruhe_;
    std::vector<Bildzeile> zeilen_;  ///< that are shown
};

}  // namespace zrw
