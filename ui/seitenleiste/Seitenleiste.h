// The side bar beside the picture: a dock with a page for each tab. Closed until somebody opens it; where it
// stands, how wide it is and which page is up are remembered.
#pragma once

#include <QDockWidget>
#include <QHash>
#include <QMainWindow>

#include "ui/ablage/Sitzung.h"

class QTabWidget;

namespace zrw {

/// The picture with room for docks at its sides, below the tool panel.
class Bildfach final : public QMainWindow {
  public:
    explicit Bildfach(QWidget* eltern);
};

class Seitenleiste final : public QDockWidget {
  public:
    explicit Seitenleiste(Bildfach& fach);

    /// @param weite the bar gets when the page is up for the first time [px]; 0: that it has
    void NimmSeite(QWidget& seite, const QString& titel, int weite = 0);
    /// Opens the side bar at this page.
    void ZeigeSeite(QWidget& seite);
    // After all pages are in it; before the window is hidden.
    void LadeStand(const Sitzung& sitzung);
    void MerkeStand(Sitzung& sitzung) const;

  private:
    void GibWeite();

    Bildfach& fach_;
    QHash<QWidget*, int> weiten_;  ///< of pages that have not been up yet
    QTabWidget* reiter_;
};

}  // namespace zrw
