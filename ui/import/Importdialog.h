// The window "Netz importieren": a network of another program, its results, and the folder that takes what
// becomes of them.
#pragma once

#include <QDialog>
#include <QString>
#include <functional>

#include "ui/Programm.h"

class QDoubleSpinBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zrw {

class Importdialog final : public QDialog {
  public:
    /// Called after an import that went well, when the window is closed: the control file, and what could not
    /// be kept, a line each; empty where nothing was lost.
    std::function<void(const QString& steuerdatei, const QString& meldung, const QStringList& hinweise)>
        importiert;

    /// @param dateien network, results or both to begin with, may be empty
    /// @param ordner where looking for files begins
    Importdialog(const Programm& programm, const QStringList& dateien, const QString& ordner,
                 QWidget* eltern);

  private:
    [[nodiscard]] QFormLayout* BaueFelder();
    [[nodiscard]] QWidget* BaueKnoepfe();
    /// A field for a file or a folder with its button. @param waehle asks for it; nothing where cancelled
    QLineEdit* BaueFeld(QFormLayout& form, const char* name, const QString& schild, const QString& hinweis,
                        std::function<std::optional<QString>()> waehle);
    [[nodiscard]] std::optional<QString> WaehleDatei(const QString& titel) const;
    void NimmDateien(const QStringList& dateien);
    void NetzGeaendert();
    void ZeigeZiel();
    void Importiere();

    Programm programm_;
    QString ordner_;
    bool eigeneErgebnisse_ = false;  ///< chosen, not found
    bool eigenesZiel_ = false;
    QLineEdit* netz_ = nullptr;
    QLineEdit* ergebnisse_ = nullptr;
    QLineEdit* ziel_ = nullptr;
    QDoubleSpinBox* grenze_ = nullptr;
    QLabel* hinweis_ = nullptr;
    QPushButton* importieren_ = nullptr;
};

}  // namespace zrw
