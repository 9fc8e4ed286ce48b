// The panel above the picture: the commands, the tools in a frame of their own, fields, and the check boxes
// of the display switches below. Its free area releases every tool.
#pragma once

#include <QWidget>
#include <functional>
#include <initializer_list>

#include "ui/fenster/Aktionen.h"

namespace zrw {

class Umbruchleiste;

class Werkzeugleiste final : public QWidget {
  public:
    Werkzeugleiste(const Aktionen& aktionen, QWidget* eltern);

    /// Fields that stay side by side, behind the buttons.
    void NimmFelder(std::initializer_list<QWidget*> felder);

    /// A click beside all buttons.
    std::function<void()> freieFlaeche;

  protected:
    bool event(QEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;

  private:
    void BaueBefehle(const Aktionen& aktionen);
    void BaueWerkzeuge(const Aktionen& aktionen);
    void BaueSchalter(const Aktionen& aktionen);
    void HalteHoehe();

    Umbruchleiste* knoepfe_;
    Umbruchleiste* kaesten_;
};

}  // namespace zrw
