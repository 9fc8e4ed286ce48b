// The printer behind an interface, so that tests have one whose sheets they can look at.
#pragma once

#include <QFont>
#include <QString>
#include <functional>
#include <memory>

#include "output/Druck.h"
#include "output/Zeichenflaeche.h"

class QPrinter;
class QWidget;

namespace zrw {

class Drucker {
  public:
    virtual ~Drucker() = default;
    /// Horizontal resolution [dots per inch], positive.
    [[nodiscard]] virtual int Aufloesung() const = 0;
    /// What can be printed on of a sheet of the chosen paper.
    [[nodiscard]] virtual Druckseite Seite() const = 0;
    /// The print dialog of the system. @return false: cancelled
    [[nodiscard]] virtual bool Waehle(QWidget* eltern) = 0;
    /// The dialog for paper and margins. @return false: cancelled
    virtual bool RichteEin(QWidget* eltern) = 0;
    /// Prints one sheet. @param schrift drawing font of the screen
    /// @throws Fehler where the printer does not take the job or breaks it off
    virtual void Drucke(const QString& titel, const QFont& schrift,
                        const std::function<void(Zeichenflaeche&)>& zeichne) = 0;
};

/// The system's printers. Before one is chosen: the default one, or a file where there is none.
class Systemdrucker final : public Drucker {
  public:
    Systemdrucker();
    ~Systemdrucker() override;
    [[nodiscard]] int Aufloesung() const override;
    [[nodiscard]] Druckseite Seite() const override;
    bool Waehle(QWidget* eltern) override;
    bool RichteEin(QWidget* eltern) override;
    void Drucke(const QString& titel, const QFont& schrift,
                const std::function<void(Zeichenflaeche&)>& zeichne) override;

  private:
    [[nodiscard]] QPrinter& Geraet() const;

    mutable std::unique_ptr<QPrinter> geraet_;  ///< made when first needed: looking for printers takes time
};

}  // namespace zrw
