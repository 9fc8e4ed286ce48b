// The window "Blattrahmen": the switches of sheets and how they are made up.
#pragma once

#include <QDialog>

#include "output/Zeichenzustand.h"
#include "ui/druck/Blattfelder.h"

namespace zrw {

class Blattdialog final : public QDialog {
  public:
    Blattdialog(const Zeichenzustand& zustand, const Blattgestaltung& gestaltung, QWidget* eltern);

    [[nodiscard]] bool Blattrahmen() const;
    [[nodiscard]] bool GitterSchlicht() const;
    [[nodiscard]] Blattgestaltung Gestaltung() const { return felder_->Gestaltung(); }

  private:
    QCheckBox* rahmen_;
    QCheckBox* gitter_;
    Blattfelder* felder_;
};

}  // namespace zrw
