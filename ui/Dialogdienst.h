// Everything modal that the window asks or tells the user, behind one interface, so that tests answer for the
// user.
#pragma once

#include <QFont>
#include <QString>
#include <QStringList>
#include <optional>

#include "model/Werte.h"

class QWidget;

namespace zrw {

/// What a file dialog is opened with.
struct Dateiwahl {
    QString titel;
    QString filter;     ///< in Qt's form: "Text (*.EIN);;Alle Dateien (*.*)"
    QString ordner;     ///< empty: the system's own choice
    QString vorschlag;  ///< proposed name, for saving
    QString endung;     ///< added where the user gives none, for saving; "bmp;png": or one of several
};

/// The name with ".ENDUNG" behind it unless it ends so already, in any case. A name may have other dots:
/// "Netz.2024" becomes "Netz.2024.ZRW".
[[nodiscard]] QString MitEndung(const QString& name, const QString& endung);

class Dialogdienst {
  public:
    virtual ~Dialogdienst() = default;
    /// What went wrong.
    virtual void MeldeFehler(const QString& text) = 0;
    /// What has been done.
    virtual void SageErfolg(const QString& text) = 0;
    /// Yes or no.
    [[nodiscard]] virtual bool FrageJaNein(const QString& text) = 0;
    /// Yes or no, or none of both: cancelled.
    [[nodiscard]] virtual std::optional<bool> FrageMitAbbruch(const QString& text) = 0;
    [[nodiscard]] virtual std::optional<QString> WaehleZumOeffnen(const Dateiwahl& wahl) = 0;
    [[nodiscard]] virtual std::optional<QString> WaehleZumSpeichern(const Dateiwahl& wahl) = 0;
    [[nodiscard]] virtual std::optional<QString> WaehleOrdner(const Dateiwahl& wahl) = 0;
    /// @param anfang what the dialog begins with
    [[nodiscard]] virtual std::optional<Farbe> WaehleFarbe(Farbe anfang) = 0;
    [[nodiscard]] virtual std::optional<QFont> WaehleSchrift(const QFont& anfang) = 0;
    /// One of several texts from a menu at the mouse.
    [[nodiscard]] virtual std::optional<QString> WaehleAus(const QStringList& texte) = 0;
};

/// The real one: message boxes and file dialogs over a window.
class QtDialogdienst final : public Dialogdienst {
  public:
    /// @param eltern may be set later, may be null
    void SetzeEltern(QWidget* eltern) { eltern_ = eltern; }
    void MeldeFehler(const QString& text) override;
    void SageErfolg(const QString& text) override;
    bool FrageJaNein(const QString& text) override;
    std::optional<bool> FrageMitAbbruch(const QString& text) override;
    std::optional<QString> WaehleZumOeffnen(const Dateiwahl& wahl) override;
    std::optional<QString> WaehleZumSpeichern(const Dateiwahl& wahl) override;
    std::optional<QString> WaehleOrdner(const Dateiwahl& wahl) override;
    std::optional<Farbe> WaehleFarbe(Farbe anfang) override;
    std::optional<QFont> WaehleSchrift(const QFont& anfang) override;
    std::optional<QString> WaehleAus(const QStringList& texte) override;

  private:
    [[nodiscard]] QWidget* Eltern() const;
    void ZeigeMeldung(int symbol, const QString& text);
    /// @param escapeIstNein where "no" loses nothing
    [[nodiscard]] bool FrageJaNein(const QString& text, bool escapeIstNein);

    QWidget* eltern_ = nullptr;
};

}  // namespace zrw
