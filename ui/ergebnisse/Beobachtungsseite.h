// The list of observations with its filters, in the side bar and in a window of its own. What a row is in the
// picture, and what is selected there, others know.
#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <vector>

#include "ui/Programm.h"
#include "ui/ergebnisse/Beobachtungsmodell.h"
#include "ui/ergebnisse/Ergebnisstand.h"

class QLabel;
class QTableView;

namespace zrw {

class Beobachtungsfilter;

class Beobachtungsseite final : public QWidget {
  public:
    /// What it needs of its window. All must outlive it.
    struct Umfeld {
        const Programm& programm;
        Ergebnisstand& stand;
        /// The user has chosen this row.
        std::function<void(const Beobachtung&)> zeige;
        /// Another list is shown: what is selected in the picture is to be selected in it.
        std::function<void(Beobachtungsseite&)> folge;
        /// Something was done that does not change the network.
        std::function<void(const QString&)> melde;
        /// A vector that leads against its line in the network.
        std::function<bool(const Beobachtung&)> gegenrichtung;
        /// Of the open file, to propose another beside it.
        std::function<QString()> datei;
    };
    Beobachtungsseite(Umfeld umfeld, QWidget* eltern);

    /// Shows the rows of this part of a column, of these kinds, and nothing else.
    void SchraenkeEin(const Listenfilter& filter);
    /// Selects the rows that are meant and brings the first into sight; rows that are not shown stay out.
    void WaehleZeilen(const std::function<bool(const Beobachtung&)>& gemeint);

  protected:
    void showEvent(QShowEvent* ereignis) override;
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  private:
    void BaueTabelle();
    void BaueMenue();
    void SetzeBreiten(int von, int bis);
    void ZeigeListe();
    void ZeigeAnzahl();
    void ZeigeGewaehlte();
    void WaehleStellen(const std::vector<bool>& stellen);
    [[nodiscard]] std::vector<bool> GewaehlteStellen() const;
    void KopiereZeilen(bool alles);
    void SpeichereListe();

    Umfeld u_;
    Beobachtungsmodell modell_;
    Beobachtungsfilter* filter_;
    QTableView* tabelle_;
    QLabel* anzahl_;
    std::vector<bool> gemerkt_;  ///< what was selected before the rows got another order
    bool folgt_ = false;         ///< rows are selected, but not by the user
};

}  // namespace zrw
