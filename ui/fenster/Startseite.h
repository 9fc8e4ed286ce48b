// What stands in the place of the picture before a network is open: the ways to open one, and the last files
// with small pictures of them.
#pragma once

#include <QScrollArea>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "model/Einstellungen.h"
#include "ui/bild/Dateivorschau.h"

class QBoxLayout;
class QToolButton;

namespace zrw {

/// The sample network that was installed with the program, none where there is none.
/// @param programmordner where the program itself lies
[[nodiscard]] std::optional<QString> FindeBeispiel(const QString& programmordner);

class Startseite final : public QScrollArea {
  public:
    struct Wege {
        std::function<void()> steuerdatei;
        std::function<void()> bilddatei;
        std::function<void()> importiere;
        std::function<void(const QString&)> datei;
    };
    /// @param bild which it covers @param letzte files, the newest first
    /// @param beispiel sample network; none: it is not offered
    Startseite(QWidget* bild, Wege wege, const QStringList& letzte, const std::optional<QString>& beispiel,
               const Einstellungen& einstellungen);

    /// A network is open: the page goes, for good.
    void BeendeSeite();

    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  protected:
    void showEvent(QShowEvent* ereignis) override;

  private:
    void BaueWege(QBoxLayout& spalte, const std::optional<QString>& beispiel);
    void BaueDateien(QBoxLayout& spalte);
    void BeginneBilder();
    void ZeigeVorschau(int nummer, const Dateivorschau& vorschau);

    Wege wege_;
    QStringList letzte_;
    const Einstellungen& einstellungen_;
    std::vector<QToolButton*> kacheln_;  ///< one for each file
    bool ausstehend_ = true;             ///< the pictures are still to be begun
    Vorschaureihe reihe_;                ///< goes first: it answers to this
};

}  // namespace zrw
