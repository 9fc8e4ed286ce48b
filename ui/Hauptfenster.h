// The main window: tool panel, picture and status line. Owns the current network and forwards: building of
// the window in Hauptfenster.cpp, files in HauptfensterDateien.cpp, view and mouse in
// HauptfensterAnsicht.cpp, legend and export in HauptfensterAusgabe.cpp.
#pragma once

#include <QMainWindow>
#include <QStatusBar>
#include <QToolButton>
#include <filesystem>
#include <memory>
#include <vector>

#include "input/Oeffnen.h"
#include "model/Dateien.h"
#include "model/Einstellungen.h"
#include "model/FigListe.h"
#include "model/Netzangaben.h"
#include "output/Figurenzeichner.h"
#include "output/Zeichenzustand.h"
#include "ui/Bildflaeche.h"
#include "ui/Dialogdienst.h"
#include "ui/Druckauskunft.h"
#include "ui/ImageZarwik.h"
#include "ui/Massstabfeld.h"
#include "ui/Schalter.h"
#include "ui/dialoge/TZRWLBLForm.h"
#include "ui/werkzeuge/Werkzeug.h"

class QBoxLayout;
class QCheckBox;

namespace zrw {

/// What the program makes once and the window works with. All of it outlives the window.
struct Programm {
    Einstellungen& einstellungen;
    EinstellungsSpeicher& ablage;
    Netzangaben& netz;
    Zeichenzustand& zustand;
    Dateien& dateien;
    const Uhr& uhr;
    const Druckauskunft& drucker;
    Dialogdienst& dialoge;
    QString version;
};

class TZrwMainDlg final : public QMainWindow, private Bildempfaenger, private Werkzeugumgebung {
  public:
    explicit TZrwMainDlg(const Programm& programm);
    ~TZrwMainDlg() override;

    /// Opens a control file or, by its extension, a picture file. Messages go to the dialog service; the
    /// previous network stays where the new one cannot be read.
    void Oeffne(const std::filesystem::path& datei);
    /// The current network, or null before one is opened.
    [[nodiscard]] const Liste* Netz() const { return liste_.get(); }
    [[nodiscard]] const QImage& Bild() const { return flaeche_.Bild(); }

    // Click handlers, by component.
    void SpeedButton1Click();   ///< open a control file
    void SpeedButton2Click();   ///< "Zarwik lesen"
    void SpeedButton9Click();   ///< "Zarwik speichern"
    void SpeedButton7Click();   ///< "Zarwik beenden"
    void SpeedButton3Click();   ///< "Alles darstellen"
    void SpeedButton12Click();  ///< "Legendentexte"
    void SpeedButton16Click();  ///< "DXF und HPGL Format ausgeben"
    void ButtonGroesserClick();
    void ButtonKleinerClick();

  protected:
    void keyPressEvent(QKeyEvent* ereignis) override;

  private:
    // Hauptfenster.cpp
    void BaueFenster();
    void BaueBefehle(QBoxLayout& reihe);
    void BaueWerkzeuge(QBoxLayout& reihe);
    void BaueSchalter(QBoxLayout& reihe);
    void BaueMassstab(QBoxLayout& reihe);
    void WerkzeugGewaehlt(std::size_t nummer, bool unten);
    void SchalterGewaehlt(const Schalter& schalter, bool ein);
    void LoeseWerkzeuge();

    // HauptfensterDateien.cpp
    void BereiteLesenVor();
    void Uebernimm(Lesung&& lesung, const std::filesystem::path& datei);
    [[nodiscard]] bool Speichere();
    void BeendeProgramm();

    // HauptfensterAnsicht.cpp
    void ZeichneNeu();
    void Zoome(double x, double y, bool groesser);
    void ZeigeStatus(Bildpunkt ort);
    void ZeigeZeiger(Bildpunkt ort);
    [[nodiscard]] Werkzeug* Aktiv() const;
    void ImageZarwikMouseDown(Bildpunkt ort, Qt::MouseButton taste) override;
    void ImageZarwikMouseMove(Bildpunkt ort) override;
    void ImageZarwikMouseUp(Bildpunkt ort, Qt::MouseButton taste) override;
    void ImageZarwikWheel(Bildpunkt ort, int schritte) override;
    void ImageZarwikResize(int weite, int hoehe) override;
    [[nodiscard]] bool HatNetz() const override { return liste_ != nullptr; }
    void ZeigeVerschoben(Bildpunkt versatz) override;
    void Verschiebe(Bildpunkt versatz) override;

    // HauptfensterAusgabe.cpp
    void ZeigeFehler(const std::exception& fehler);
    [[nodiscard]] bool UeberLegendenecke(Bildpunkt ort) const;
    [[nodiscard]] Bildpunkt Legendenort() const override;
    void FasseLegende(Bildpunkt ort) override;
    void ZieheLegende(Bildpunkt ort) override;
    void LegendeLosgelassen() override;

    Programm programm_;
    std::unique_ptr<Liste> liste_;
    Bildflaeche flaeche_;
    Figurenzeichner zeichner_;
    std::vector<std::unique_ptr<Werkzeug>> werkzeuge_;  ///< in the order of `kWerkzeuge`
    std::unique_ptr<Werkzeug> mitteltaste_;             ///< panning, whatever mode is on
    std::unique_ptr<Werkzeug> legendenecke_;            ///< dragging the legend, with no mode on
    Werkzeug* gedrueckt_ = nullptr;                     ///< has the mouse button that is down
    Qt::MouseButton taste_ = Qt::NoButton;
    std::vector<QToolButton*> werkzeugknoepfe_;
    std::vector<QCheckBox*> schalterkaesten_;  ///< in the order of `kSchalter`, null for those without a box
    ImageZarwik* bild_ = nullptr;
    Massstabfeld* EditMasstab_ = nullptr;
    TZRWLBLForm* legendentexte_ = nullptr;
    QString ordner_;                     ///< of the last file
    std::filesystem::path steuerdatei_;  ///< last control file, proposes the name for saving
};

}  // namespace zrw
