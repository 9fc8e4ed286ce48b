// The texts of the legend, and whether it is drawn. One instance for the whole run of the program.
#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;

namespace zrw {

class Liste;

class TZRWLBLForm final : public QDialog {
  public:
    explicit TZRWLBLForm(QWidget* eltern);

    /// Shows the dialog until it is closed; then the legend of the list has its texts and its switch.
    /// @return whether that is something else than before
    bool BearbeiteLegende(Liste& liste);

  private:
    QLineEdit* Edit1_;
    QLineEdit* Edit2_;
    QCheckBox* CheckBox1_;
};

}  // namespace zrw
