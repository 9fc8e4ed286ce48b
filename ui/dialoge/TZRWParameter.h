// The display settings. Every control changes its setting at once; closing keeps them for the next run.
#pragma once

#include <QDialog>
#include <functional>
#include <vector>

#include "model/Einstellungen.h"
#include "ui/Dialogdienst.h"
#include "ui/ablage/Vorlieben.h"

class QBoxLayout;
class QFormLayout;
class QLineEdit;

namespace zrw {

class Palettenkasten;

class TZRWParameter final : public QDialog {
  public:
    /// Deletes itself when closed.
    TZRWParameter(Einstellungen& einstellungen, Vorlieben& vorlieben, EinstellungsSpeicher& speicher,
                  Dialogdienst& dialoge, QWidget* eltern);

    std::function<void()> geschlossen;  ///< after the settings were saved
    std::function<void()> anwenden;     ///< the colours, on the open network

    void done(int ergebnis) override;

  protected:
    bool event(QEvent* ereignis) override;

  private:
    void BaueFarben(QBoxLayout& links, QBoxLayout& mitte);
    void BaueZahlen(QBoxLayout& spalte);
    template <class Zahl>
    void BaueZahl(QFormLayout& form, const QString& name, const QString& schild, Zahl Einstellungen::*feld,
                  int von, int bis);
    void BaueVorlieben(QBoxLayout& spalte);
    void ZeigeEinstellungen();
    void SetzeVorgaben();
    void ZoomfaktorGetippt(const QString& text);
    void UebernimmResiduenmassstab();

    Einstellungen& e_;
    Vorlieben& vorlieben_;
    EinstellungsSpeicher& speicher_;
    Dialogdienst& dialoge_;
    std::vector<std::function<void()>> anzeigen_;  ///< one for each control: shows its setting
    Palettenkasten* palette_ = nullptr;
    QLineEdit* EditZoomfaktor_ = nullptr;
    QLineEdit* EditMFRes_ = nullptr;
};

}  // namespace zrw
