// The printer behind an interface, so that tests have one whose sheets they can look at.
#pragma once

#include <QFont>
#include <QImage>
#include <QPageLayout>
#include <QPoint>
#include <QRect>
#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "model/Dateien.h"
#include "output/Druck.h"
#include "output/Zeichenflaeche.h"

class QPrinter;
class QWidget;

namespace zrw {

/// What is printed.
struct Druckwerk {
    QString titel;  ///< of the job
    QFont schrift;  ///< drawing font of the screen
    int blaetter = 1;
    std::function<void(Zeichenflaeche&, int)> zeichne;  ///< draws a sheet, from 0 on
};

/// A sheet in the overview of a preview.
struct Vorschaublatt {
    QRect ort;  ///< [px of the overview]
    int zeile = 0;
    int spalte = 0;
    int nummer = 0;  ///< in the print, from 1 on; 0: left out
};

/// What a preview shows, and what users change in it.
class Vorschauplan {
  public:
    virtual ~Vorschauplan() = default;
    /// The sheets that are to be printed.
    [[nodiscard]] virtual Druckwerk Werk() = 0;
    /// How they lie in the plot. Places below are pixels of it.
    [[nodiscard]] virtual QImage Uebersicht() = 0;
    /// All of them, row by row, in that picture.
    [[nodiscard]] virtual std::vector<Vorschaublatt> Blaetter() = 0;
    /// Turns the sheet at a place off or on again. One stays on.
    virtual void SchalteBlatt(QPoint ort) = 0;
    /// Moves all of the sheets over the plot.
    virtual void VerschiebeBlaetter(QPoint weg) = 0;
    [[nodiscard]] virtual QString Massstab() const = 0;
    /// Texts that are no scale change nothing.
    virtual void SetzeMassstab(const QString& text) = 0;
    /// The paper is another one: the sheets are cut anew.
    virtual void NimmPapier() = 0;
};

class Sitzung;

/// The font of the screen on paper of so many dots per inch: as large there, and drawn as outlines.
[[nodiscard]] QFont Druckschrift(const QFont& schrift, double aufloesung);

class Drucker {
  public:
    virtual ~Drucker() = default;
    /// Horizontal resolution [dots per inch], positive.
    [[nodiscard]] virtual int Aufloesung() const = 0;
    /// What can be printed on of a sheet of the chosen paper.
    [[nodiscard]] virtual Druckseite Seite() const = 0;
    /// The print dialog of the system. @return false: cancelled
    [[nodiscard]] virtual bool WaehleDrucker(QWidget* eltern) = 0;
    /// The dialog for paper and margins. @return false: cancelled
    virtual bool RichteEin(QWidget* eltern) = 0;
    /// Prints the sheets of a job. @throws Fehler where the printer does not take it or breaks it off
    virtual void DruckeBlaetter(const Druckwerk& werk) = 0;
    /// Shows the sheets as they would be printed. @return whether they are to be printed
    [[nodiscard]] virtual bool ZeigeVorschau(QWidget* eltern, Vorschauplan& plan) = 0;
};

/// The system's printers. Before one is chosen: the default one, or a file where there is none.
class Systemdrucker final : public Drucker {
  public:
    /// @param dateien puts printed files in place
    /// @param sitzung knows the paper of the last run, may be null
    explicit Systemdrucker(Dateien& dateien, Sitzung* sitzung = nullptr);
    ~Systemdrucker() override;
    [[nodiscard]] int Aufloesung() const override;
    [[nodiscard]] Druckseite Seite() const override;
    bool WaehleDrucker(QWidget* eltern) override;
    bool RichteEin(QWidget* eltern) override;
    void DruckeBlaetter(const Druckwerk& werk) override;
    bool ZeigeVorschau(QWidget* eltern, Vorschauplan& plan) override;

    /// Makes a PDF file of what is printed, on this paper.
    void DruckeInDatei(const QString& datei, const QPageLayout& seite);

  private:
    [[nodiscard]] QPrinter& Geraet() const;
    void NimmPapier(QPrinter& geraet) const;
    void MerkePapier() const;
    void MaleBlaetter(QPrinter& geraet, const Druckwerk& werk) const;

    Dateien& dateien_;
    Sitzung* sitzung_;
    mutable QString stand_;                     ///< printer and file that the resolution was chosen for
    mutable std::unique_ptr<QPrinter> geraet_;  ///< made when first needed: looking for printers takes time
};

}  // namespace zrw
