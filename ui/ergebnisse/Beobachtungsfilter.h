// The fields above the list of observations that say which rows are shown.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "model/ergebnisse/Listenordnung.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QPushButton;

namespace zrw {

class Beobachtungsfilter final : public QWidget {
  public:
    explicit Beobachtungsfilter(QWidget* eltern);

    [[nodiscard]] Listenfilter Filter() const;
    /// Part of a column, and kinds: what else was chosen goes.
    void SetzeAusschnitt(const Listenfilter& filter);
    /// Says another filter now; what is being typed is waited for.
    std::function<void()> geaendert;

  private:
    void BaueFelder();
    [[nodiscard]] QLineEdit* NeuesFeld(const QString& name, const QString& platzhalter,
                                       const QString& hinweis);

    std::optional<Listenfilter::Bereich> bereich_;
    QPushButton* bereichsknopf_;  ///< says which, and takes it away; hidden without one
    QCheckBox* markierte_;
    QCheckBox* unkontrollierte_;
    QCheckBox* ueberTG_;
    QDoubleSpinBox* grenze_;
    QComboBox* gattung_;
    QLineEdit* punkt_;
    QLineEdit* suche_;
    QTimer tippen_;
};

}  // namespace zrw
