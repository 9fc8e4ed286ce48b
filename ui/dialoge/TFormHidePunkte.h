// Chooses points by their numbers and hides them.
#pragma once

#include <QDialog>
#include <QStringList>
#include <functional>

class QLineEdit;
class QListView;
class QStringListModel;

namespace zrw {

class TFormHidePunkte final : public QDialog {
  public:
    explicit TFormHidePunkte(QWidget* eltern);

    /// Replaces the entries; all of them are shown then.
    void FuelleListe(const QStringList& nummern);

    /// "Verstecken" with at least one entry in the list, even if none is selected.
    std::function<void(const QStringList& gewaehlte)> verstecken;

  private:
    void FiltereNummern(const QString& teil);
    void VersteckeGewaehlte();
    /// Selected and not filtered away, in the order of the list.
    [[nodiscard]] QStringList Gewaehlte() const;

    QLineEdit* FilterPkt_;
    QListView* ListBoxPkt_;
    QStringListModel* nummern_;
};

}  // namespace zrw
