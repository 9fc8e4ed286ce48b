// The numbers of all points hidden since the program was started; chosen ones are shown again.
#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>

class QListView;

namespace zrw {

class TFormHiddenPkt final : public QDialog {
  public:
    explicit TFormHiddenPkt(QWidget* eltern);

    /// Adds a number at its sorted place, also one that stands there already.
    void NimmNummer(const QString& nummer);
    /// Many at once, in the time of one. Deselects.
    void NimmNummern(const QStringList& nummern);
    /// These in place of all that stand there.
    void SetzeNummern(const QStringList& nummern);
    /// Removes one entry of this text, if there is one.
    void EntferneNummer(const QString& nummer);
    [[nodiscard]] QStringList Nummern() const;
    /// Why "Anzeigen" would change nothing for a number: it then is greyed, with this as its hint. Empty: it
    /// would.
    std::function<QString(const QString& nummer)> hindernis;
    /// Points have come, gone, or been shown elsewhere.
    void NetzGeaendert();

    /// "Anzeigen", unless the list is empty: once for each selected entry in the order of the list. The
    /// entries are gone by then.
    std::function<void(const QString& nummer)> zeige;
    std::function<void()> fertig;  ///< once afterwards, even if none was selected

  private:
    class Nummernmodell;
    void ZeigeGewaehlte();

    QListView* ListBox1_;
    Nummernmodell* nummern_;
};

}  // namespace zrw
