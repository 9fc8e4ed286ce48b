// Ways through the window that single events seldom find: menus by mouse and keyboard, selecting and what the
// menu of the selection does, measuring, the windows of output and settings, the side bar, the start page.
#pragma once

#include <QPointer>
#include <QString>

#include "fuzz/fenster/Bedienung.h"

class QDialog;
class QMenu;

namespace zrw {

class Wege {
  public:
    /// @param ordner where outputs may go
    Wege(Bedienung& hand, TZrwMainDlg& fenster, QString ordner);

    /// Goes one of them. Menus are closed afterwards, windows may stay open.
    void GeheWeg();

  private:
    void Menueleiste();
    void Tastatur();
    void Auswaehlen();
    void Figurenmenue();
    void Messen();
    void Ausgeben();
    void Seitenleiste();
    void Einstellen();
    void Starten();

    void BedieneMenue();
    void WaehleEintrag(QMenu& menue);
    QPointer<QDialog> BedieneDialog(const char* name, int mal);
    /// A press alone: its widget may be gone before the release.
    static void DrueckeTaste(QWidget* w, Qt::Key taste, Qt::KeyboardModifiers dazu = Qt::NoModifier);
    static void SchliesseMenues();

    Bedienung& hand_;
    TZrwMainDlg& fenster_;
    QString ordner_;
};

}  // namespace zrw
