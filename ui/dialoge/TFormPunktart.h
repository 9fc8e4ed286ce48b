// The kind of a point: shows that of a picked one, and takes what a new one needs.
#pragma once

#include <QDialog>
#include <functional>

#include "model/Figuren.h"

class QCheckBox;
class QGroupBox;
class QLineEdit;

namespace zrw {

class Auswahlgruppe;

struct Punkteingabe {
    QString nummer;
    PunktArt art = PunktArt::NP;
    PunktTyp symbol = PunktTyp::Pkt;
    QString rechts;  ///< as typed
    QString hoch;
    bool neu = false;  ///< to be inserted at these coordinates
};

/// The kind whose colour setting the point has, the first of several; a new point for any other colour.
[[nodiscard]] PunktArt ArtNachFarbe(Farbe farbe, const Einstellungen& e);

class TFormPunktart final : public QDialog {
  public:
    explicit TFormPunktart(QWidget* eltern);

    void ZeigeEingabe(const Punkteingabe& eingabe);
    /// A symbol that has no button here stays what it was shown as until the user chooses another.
    [[nodiscard]] Punkteingabe Eingabe() const;

    std::function<void()> zeichnen;

  private:
    QGroupBox* BaueKoordinaten();

    QLineEdit* PktNummer_;
    Auswahlgruppe* RadioGroupPktArt_;
    Auswahlgruppe* RadioGroupSymb_;
    QLineEdit* PktY_;
    QLineEdit* PktX_;
    QCheckBox* CheckBoxNeuPkt_;
    Punkteingabe gezeigt_;
};

}  // namespace zrw
