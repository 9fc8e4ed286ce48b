// The sheets as they will come out of the printer, beside an overview of how they are cut from the plot.
#pragma once

#include <QDialog>
#include <QImage>
#include <functional>

class QLabel;
class QPrinter;
class QPrintPreviewWidget;

namespace zrw {

class Druckvorschau final : public QDialog {
  public:
    Druckvorschau(QPrinter& drucker, const QImage& uebersicht, QWidget* eltern);

    /// Draws all sheets.
    std::function<void(QPrinter&)> male;

  private:
    void ZeigeBlatt(int schritt);
    void NenneBlatt();

    QPrintPreviewWidget* blaetter_;
    QLabel* blatt_;
};

}  // namespace zrw
