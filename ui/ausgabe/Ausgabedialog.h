// The window "Ausgeben": one for all formats, with a preview and the command line that does the same.
#pragma once

#include <QDialog>
#include <QString>
#include <QTimer>
#include <functional>

#include "ui/ausgabe/Ausgabefelder.h"

class QBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zrw {

class Ausgabedialog final : public QDialog {
  public:
    /// Called with what the status line is to say, after a file was written.
    std::function<void(const QString& text)> geschrieben;

    /// @param ordner where files go at first @param beweglich numbers that may go elsewhere
    Ausgabedialog(const Programm& programm, Plan& plan, const Ausgabeanfang& anfang, const QString& ordner,
                  Planbeschriftung::Beweglich beweglich, QWidget* eltern);

    /// The preview is up to date from here on; while somebody types it waits for a pause.
    void ZeichneVorschau();

  private:
    [[nodiscard]] QWidget* BaueZiel(const QString& ordner);
    [[nodiscard]] QWidget* BaueVorschau();
    [[nodiscard]] QWidget* BaueBefehl();
    [[nodiscard]] QBoxLayout* BaueKnoepfe();
    void FormatGeaendert();
    void WaehleOrdner();
    void ZeigeBefehl();
    void SchreibeDatei();
    [[nodiscard]] QString Ordner() const;
    [[nodiscard]] QString Dateiname() const;
    [[nodiscard]] QString Mangel() const;

    Dialogdienst& dialoge_;
    Planausgabe plan_;
    const Format* format_ = nullptr;  ///< that the name is for
    QString stamm_;                   ///< of the name, without the extension
    QString befehl_;
    QTimer pause_;
    Ausgabefelder* felder_ = nullptr;
    QLineEdit* ordner_ = nullptr;
    QLineEdit* name_ = nullptr;
    QLabel* namenshinweis_ = nullptr;
    QLabel* bild_ = nullptr;
    QLabel* bildtext_ = nullptr;
    QLineEdit* befehlsfeld_ = nullptr;
    QPushButton* kopieren_ = nullptr;
    QLabel* abweichungen_ = nullptr;
};

}  // namespace zrw
