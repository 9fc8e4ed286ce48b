// The page "Statistik" of the side bar: what the observations say together, with the most conspicuous ones to
// go to, histograms, and the same as a sheet of paper.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "model/ergebnisse/Listenordnung.h"
#include "ui/Plan.h"
#include "ui/Programm.h"

class QComboBox;
class QDoubleSpinBox;
class QTextBrowser;

namespace zrw {

class Ergebnisstand;
class Histogrammfeld;
struct Statistikbild;

class Statistikseite final : public QWidget {
  public:
    /// What it needs of its window. All must outlive it.
    struct Umfeld {
        const Programm& programm;
        const Plan& plan;
        Ergebnisstand& stand;
        std::function<void(const Beobachtung&)> zeigeBeobachtung;
        std::function<void(const Listenfilter&)> filtereListe;
        std::function<void(PunktIndex)> waehlePunkt;
        std::function<void(const QString&)> melde;  ///< in the status line
    };
    Statistikseite(Umfeld umfeld, QWidget* eltern);

    /// The network or the tables have changed.
    void ErneuereStatistik();

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    void BaueFelder();
    void ZeigeBilder();
    void FolgeVerweis(const QString& art, const QString& ziel);
    void FiltereKlasse(const Statistikbild& bild, std::size_t klasse) const;
    void SpeichereBlatt();
    [[nodiscard]] const Punktergebnisse* Ergebnisse() const;

    Umfeld u_;
    std::shared_ptr<const Beobachtungsliste> liste_;
    QComboBox* gattung_ = nullptr;
    QDoubleSpinBox* grenze_ = nullptr;
    QTextBrowser* text_ = nullptr;
    Histogrammfeld* testgroessen_ = nullptr;
    Histogrammfeld* redundanz_ = nullptr;
};

}  // namespace zrw
