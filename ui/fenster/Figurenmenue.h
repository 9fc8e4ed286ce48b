// The menu of the right button where no tool is on: what can be done with the figures that are selected.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

#include "ui/werkzeuge/Auswahl.h"

class QAction;
class QMenu;
class QPoint;
class QWidget;

namespace zrw {

class Figurenmenue {
  public:
    /// What it needs of its window. All must outlive it.
    struct Umfeld {
        Werkzeugumgebung& umgebung;
        const Auswahl& auswahl;
        std::function<void(Welt)> zentriereBild;
        std::function<void(const QStringList& nummern)> verbergePunkte;
        std::function<void()> ordneNummern;        ///< of the points that are selected
        std::function<void()> zeigeEigenschaften;  ///< of what is selected, with its results
        std::vector<QAction*> ansichten;           ///< where nothing is selected
        std::vector<QAction*> werkzeuge;  ///< all of them, to be switched on, in the order of their table
        /// Switches a tool on and clicks with it [px].
        std::function<void(QAction& werkzeug, Bildpunkt ort)> klickeMit;
    };
    Figurenmenue(Umfeld umfeld, QWidget* fenster) : u_(std::move(umfeld)), fenster_(fenster) {}

    /// @param ort of the figure in the picture [px] @param stelle on the screen
    void ZeigeMenue(Bildpunkt ort, const QPoint& stelle);

  private:
    void NimmPunkte(QMenu& menue);
    void NimmEinenPunkt(QMenu& menue, PunktKnoten& punkt);
    void NimmKante(QMenu& menue, PunktKante& kante);
    void NimmWerkzeuge(QMenu& menue, unsigned beginnt, Bildpunkt ort);
    void AenderePunktart(PunktArt art);
    void KopiereText(const QString& text, const QString& was);
    [[nodiscard]] QString Gewaehlte() const;
    [[nodiscard]] QStringList Nummern() const;
    [[nodiscard]] QString Koordinaten() const;

    Umfeld u_;
    QWidget* fenster_;
};

}  // namespace zrw
