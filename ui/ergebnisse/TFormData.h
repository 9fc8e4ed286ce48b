// The results browser: what the adjustment found for a point or a line, one table a tab. Read only.
#pragma once

#include <QDialog>
#include <functional>

#include "input/tabellen/Ergebnisabfragen.h"
#include "ui/ablage/Sitzung.h"
#include "ui/ergebnisse/Ergebnismodell.h"

class QLabel;
class QTabBar;
class QTableView;

namespace zrw {

class TFormData final : public QDialog {
  public:
    /// @param sitzung remembers the widths of the columns and the place of the window
    TFormData(Sitzung& sitzung, QWidget* eltern);
    ~TFormData() override;

    /// Another tab is to list what was listed last.
    std::function<void()> reiterGewechselt;
    /// The point of this number is to be shown in the plot.
    std::function<void(const QString&)> zeigePunkt;

    [[nodiscard]] const Ergebnisreiter& Reiter() const;
    /// What is listed. @param angaben a line about it @param nummer its point, of a line the first one
    void SetzeTitel(const QString& titel, const QString& angaben, const QString& nummer);
    void FuelleGitter(Antwort antwort);
    /// An empty grid. @param grund told below it
    void LeereGitter(const QString& grund);
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;
    /// Shows the window without taking the keyboard.
    void ZeigeFenster();

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    void BaueGitter();
    void KopiereZeilen(bool alles) const;
    void ZeigeEndpunkt(int zeile) const;
    void StelleSpaltenEin();
    void MerkeBreite(int spalte, int weite);

    Sitzung& sitzung_;
    Ergebnismodell modell_;
    QLabel* angaben_;
    QTableView* gitter_;
    QLabel* hinweis_;
    QTabBar* reiter_;
    QString nummer_;
    bool gezeigt_ = false;
    bool stelltEin_ = false;  ///< columns change their width, but not by the user
};

}  // namespace zrw
