// The sheets as they will come out of the printer, beside an overview of how they are cut from the plot;
// there they are moved and turned off. Scale and paper can be changed above.
#pragma once

#include <QDialog>
#include <functional>

#include "ui/druck/Drucker.h"

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPrinter;
class QPrintPreviewWidget;

namespace zrw {

class Blattbild;

class Druckvorschau final : public QDialog {
  public:
    Druckvorschau(QPrinter& drucker, Vorschauplan& plan, QWidget* eltern);

    /// Draws all sheets.
    std::function<void(QPrinter&)> male;

  private:
    [[nodiscard]] QBoxLayout* BaueKnopfreihe();
    [[nodiscard]] QBoxLayout* BaueBlattreihe();
    void ZeigeBlatt(int schritt);
    void NenneBlatt();
    void WechslePapier();
    void ZeigePlan();

    QPrinter& drucker_;
    Vorschauplan& plan_;
    QPrintPreviewWidget* blaetter_;
    QLabel* blatt_;
    Blattbild* uebersicht_;
    QLineEdit* massstab_;
    QComboBox* papier_;
    QCheckBox* quer_;
};

}  // namespace zrw
