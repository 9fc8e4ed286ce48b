// The group box "Punktzentrierung": many eccentres are chosen from a list and put onto one centre. It knows
// numbers only; whoever owns it moves the points. Can be dragged about.
#pragma once

#include <QGroupBox>
#include <QSet>
#include <QStringList>
#include <functional>
#include <optional>

class QListView;
class QStringListModel;

namespace zrw {

class Kurzzeile;

class Zentrierkasten final : public QGroupBox {
  public:
    explicit Zentrierkasten(QWidget* eltern);

    /// A new network: nothing of it has been centred.
    void BeginneNetz() { zentriert_.clear(); }
    /// Points that are centred now: they do not come back into the lists.
    void MerkeZentrierte(const QStringList& exzentren);
    /// The points of the network; the list of centres is empty until the box is shown.
    void FuelleListen(const QStringList& nummern);
    /// Every eccentre may be a centre.
    void ZeigeZentren();

    /// "Zentrieren" with a centre and the selected eccentres, which leave both lists afterwards. Without a
    /// centre the first argument is empty.
    std::function<void(const std::optional<QString>& zentrum, const QStringList& exzentren)> zentriere;
    /// Asked before that where many points are to be centred. @return false: nothing is done
    std::function<bool(qsizetype anzahl, const QString& zentrum)> bestaetige;
    std::function<void(const QString& nummer)> zentrumGewaehlt;
    std::function<void()> beendet;

  protected:
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;

  private:
    [[nodiscard]] std::optional<QString> Zentrum() const;
    void NenneVorhaben();
    void ZentriereGewaehlte();

    QListView* ExzListBox_;
    QListView* PZListBox_;
    QStringListModel* exzentren_;
    QStringListModel* zentren_;
    Kurzzeile* vorhaben_;
    QSet<QString> zentriert_;
    QPoint griff_;
};

}  // namespace zrw
