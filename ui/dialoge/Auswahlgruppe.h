// A frame with radio buttons of which one or none is chosen.
#pragma once

#include <QGroupBox>
#include <QStringList>
#include <functional>

class QButtonGroup;

namespace zrw {

class Auswahlgruppe final : public QGroupBox {
  public:
    /// The button with number n is called like the group with n behind it. Filled row by row.
    Auswahlgruppe(const QString& name, const QString& beschriftung, const QStringList& texte, int spalten,
                  QWidget* eltern);

    /// -1 while none is chosen.
    [[nodiscard]] int Gewaehlt() const;
    /// Chooses without calling back; none for a number without a button.
    void WaehleNummer(int nummer);

    std::function<void()> geaendert;  ///< the user has chosen another one

  private:
    QButtonGroup* gruppe_;
};

}  // namespace zrw
