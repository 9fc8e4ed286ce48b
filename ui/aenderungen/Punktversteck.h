// Hiding points and showing them again, with the windows "TFormHidePunkte" and "TFormHiddenPkt". Every step
// can be undone, and the list of hidden points goes with it, there and back.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "model/FigListe.h"
#include "ui/werkzeuge/Werkzeug.h"

class QWidget;

namespace zrw {

class SichtbarkeitGeaendert;
class TFormHiddenPkt;
class TFormHidePunkte;

class Punktversteck {
  public:
    /// @param umgebung must outlive it
    /// @param eltern owns the windows
    Punktversteck(Werkzeugumgebung& umgebung, QWidget* eltern);
    ~Punktversteck();
    Punktversteck(const Punktversteck&) = delete;
    Punktversteck& operator=(const Punktversteck&) = delete;

    /// Where points are chosen that are to be hidden.
    [[nodiscard]] TFormHidePunkte& Auswahl() { return *auswahl_; }
    [[nodiscard]] TFormHiddenPkt& Versteckte() { return *versteckte_; }

    void VerbergePunkt(PunktKnoten& punkt);
    void VerbergePunkte(const QStringList& nummern);
    /// Shows all hidden numbers of points that are shown.
    void ZeigeNummern();

  private:
    void TueVerbergen(std::unique_ptr<SichtbarkeitGeaendert> aenderung, const QStringList& nummern);
    void ZeigePunkte(const QStringList& nummern);

    Werkzeugumgebung& umgebung_;
    TFormHidePunkte* auswahl_;
    TFormHiddenPkt* versteckte_;
    QStringList zuZeigen_;  ///< hidden points that are being shown again
};

}  // namespace zrw
