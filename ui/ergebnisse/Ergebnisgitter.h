// A grid of results with a tab for each table. Read only; rows can be copied, and the widths of the columns
// are remembered.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <span>

#include "input/tabellen/Ergebnisabfragen.h"
#include "input/tabellen/UnitZRWData.h"
#include "ui/ablage/Sitzung.h"
#include "ui/ergebnisse/Ergebnismodell.h"

class QLabel;
class QTabBar;

namespace zrw {

class Festspaltentafel;

class Ergebnisgitter final : public QWidget {
  public:
    /// @param sitzung remembers the widths of the columns
    Ergebnisgitter(Sitzung& sitzung, QWidget* eltern);
    /// Object names of the grid and of its tabs.
    void SetzeNamen(const QString& gitter, const QString& reiter);

    /// Another tab is to list what was listed last.
    std::function<void()> reiterGewechselt;
    /// The point of this number is to be shown in the plot.
    std::function<void(const QString&)> zeigePunkt;
    /// Rows lie on the clipboard now.
    std::function<void(qsizetype zeilen)> kopiert;

    [[nodiscard]] const Ergebnisreiter& Reiter() const;
    /// The point that is listed, of a line the first one.
    void SetzeNummer(const QString& nummer) { nummer_ = nummer; }
    /// @param zusatz told below the grid, too
    void FuelleGitter(Antwort antwort, const QString& zusatz = {});
    /// How many rows each tab has for what is listed; nothing: not known. None at all: nothing is listed.
    void ZeigeZeilenzahlen(std::span<const std::optional<TDM::Zeilenzahl>> zahlen);
    /// Goes to the tab of this number without listing anything.
    void WaehleReiter(int reiter);
    /// An empty grid. @param grund told below it
    void LeereGitter(const QString& grund);
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  private:
    void BaueGitter();
    void KopiereZeilen(bool alles) const;
    void ZeigeEndpunkt(int zeile) const;
    void StelleSpaltenEin();
    void MerkeBreite(int spalte, int weite);

    Sitzung& sitzung_;
    Ergebnismodell modell_;
    Festspaltentafel* gitter_;
    QLabel* hinweis_;
    QTabBar* reiter_;
    QString nummer_;
    bool stelltEin_ = false;  ///< columns change their width, but not by the user
};

}  // namespace zrw
