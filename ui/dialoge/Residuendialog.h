// The window "Maßstäbe der Ergebnisse": how large residuals and ellipses are drawn. What is typed holds at
// once. One instance for the whole run.
#pragma once

#include <QDialog>
#include <functional>

class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace zrw {

class Residuendialog final : public QDialog {
  public:
    struct Stand {
        double residuen = 1.0;  ///< magnification
        double ellipsen = 0.0;  ///< their own, 0: none
        friend bool operator==(const Stand&, const Stand&) = default;
    };

    explicit Residuendialog(QWidget* eltern);

    /// Another magnification was chosen.
    std::function<void(const Stand&)> geaendert;
    /// They are to suit the network.
    std::function<void()> passeAn;

    /// @param hinweis on magnifications out of proportion, may be empty
    void ZeigeStand(const Stand& stand, const QString& hinweis);

  private:
    QLineEdit* BaueFeld(const QString& name, const QString& hinweis);
    void BaueFelder(QFormLayout& form);
    void UebernimmFelder();

    QLineEdit* residuen_;
    QCheckBox* eigener_;
    QLineEdit* ellipsen_;
    QLabel* hinweis_;
    Stand stand_;
};

}  // namespace zrw
