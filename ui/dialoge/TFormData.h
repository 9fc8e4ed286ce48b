// What is known about a point or a line that was clicked.
#pragma once

#include <QDialog>

#include "model/FigListe.h"

class QPlainTextEdit;

namespace zrw {

class TFormData final : public QDialog {
  public:
    explicit TFormData(QWidget* eltern);

    void Zeige(Liste& netz, const PunktKnoten& punkt);
    void Zeige(Liste& netz, const PunktKante& kante);

  private:
    void ZeigeText(const QString& titel, const QString& text);

    QPlainTextEdit* text_;
};

}  // namespace zrw
