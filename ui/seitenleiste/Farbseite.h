// The page "Einfärben" of the side bar: by which result lines or points are coloured, in which classes, and
// which lines are drawn.
#pragma once

#include <QWidget>
#include <array>

#include "ui/ergebnisse/Planfaerber.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace zrw {

class Farbseite final : public QWidget {
  public:
    /// Both must outlive it.
    Farbseite(Planfaerber& faerber, const Plan& plan, QWidget* eltern);

    /// Shows what is chosen now.
    void ZeigeWahl();

  private:
    void BaueEinfaerbung(QFormLayout& form);
    void BaueFilter(QFormLayout& form);
    template <class Feld>
    Feld& NeuesFeld(const char* name, const char* zugang, const char* hinweis, Feld* feld);
    void GroesseGewaehlt();
    void NimmWahl();
    [[nodiscard]] Planfaerbung Gelesen();
    [[nodiscard]] std::optional<Einfaerbung> GeleseneEinfaerbung();
    void ZeigeKlassen(const Planfaerbung& wahl);
    void StelleFelder();

    Planfaerber& faerber_;
    const Plan& plan_;
    bool stellt_ = false;  ///< fields change, but not by the user
    QComboBox* groesse_ = nullptr;
    QComboBox* gattung_ = nullptr;
    QComboBox* art_ = nullptr;
    QSpinBox* anzahl_ = nullptr;
    QLineEdit* grenzen_ = nullptr;
    QComboBox* farben_ = nullptr;
    std::array<QCheckBox*, kLinienkategorien.size()> kategorien_{};
    QLineEdit* station_ = nullptr;
    QComboBox* klasse_ = nullptr;
    QLabel* hinweis_ = nullptr;
    QString mangel_;  ///< what of the fields cannot be read
};

}  // namespace zrw
