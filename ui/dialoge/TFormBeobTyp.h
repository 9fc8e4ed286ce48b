// The observation type: shows that of a picked line, and chooses that of a new one.
#pragma once

#include <QDialog>
#include <functional>

#include "ui/Dialogdienst.h"
#include "ui/dialoge/Beobachtungstyp.h"

class QCheckBox;

namespace zrw {

class Auswahlgruppe;
class Kurzzeile;

class TFormBeobTyp final : public QDialog {
  public:
    explicit TFormBeobTyp(Dialogdienst& dialoge, QWidget* eltern);

    /// Which observation is being edited, or what is missing until one is.
    void NenneBeobachtung(const QString& text);
    /// Shows a type without calling back.
    void ZeigeWahl(const Beobachtungswahl& wahl);
    [[nodiscard]] Beobachtungswahl Wahl() const;
    /// Whether lines are to be inserted.
    [[nodiscard]] bool NeueBeobachtung() const;

    std::function<void()> geaendert;        ///< the user has chosen another type
    std::function<void()> neuUmgeschaltet;  ///< the user has switched inserting on or off

  private:
    void IndirektGeschaltet(bool ein);
    void GpsGeschaltet(bool ein);

    Dialogdienst& dialoge_;
    Kurzzeile* beobachtung_;
    Auswahlgruppe* RadioGroupRichtg_;
    QCheckBox* CheckBoxStrecke_;
    QCheckBox* CheckBoxGps_;
    Auswahlgruppe* RadioGroupZenit_;
    QCheckBox* CheckBoxInd_;
    QCheckBox* CheckBoxNeuBeob_;
};

}  // namespace zrw
