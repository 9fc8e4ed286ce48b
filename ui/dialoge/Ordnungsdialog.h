// Asks for what point numbers are to be put in order: picture or print, and whether those that were dragged
// go along. One instance for the whole run; it keeps what was chosen.
#pragma once

#include <QDialog>
#include <functional>

class QCheckBox;
class QLabel;
class QRadioButton;

namespace zrw {

class Ordnungsdialog final : public QDialog {
  public:
    struct Wahl {
        bool fuerDruck = false;
        bool auchVerschobene = false;
    };

    explicit Ordnungsdialog(QWidget* eltern);

    /// Called with what was chosen when it is accepted.
    std::function<void(const Wahl& wahl)> ordne;

    /// @param was "165 Punktnummern", say @param ausBild the plan comes from a picture file
    void Oeffne(const QString& was, bool ausBild);

  private:
    QLabel* was_;
    QRadioButton* bild_;
    QRadioButton* druck_;
    QCheckBox* verschobene_;
    QLabel* verschobenHinweis_;
};

}  // namespace zrw
