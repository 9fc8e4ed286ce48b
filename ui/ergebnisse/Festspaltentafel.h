// A table whose first columns stay while it is scrolled sideways: a second view of the same rows and the same
// selection lies over them. The keyboard, the menu and the widths of columns are those of the table.
#pragma once

#include <QTableView>

namespace zrw {

class Festspaltentafel final : public QTableView {
  public:
    explicit Festspaltentafel(QWidget* eltern);

    /// What stays has the looks and the actions that the table has now.
    void setModel(QAbstractItemModel* modell) override;
    /// So many columns stay; fewer where they would take most of the room.
    void SetzeFeste(int anzahl);
    void scrollTo(const QModelIndex& stelle, ScrollHint wie = EnsureVisible) override;

  protected:
    void updateGeometries() override;

  private:
    void VerbindeKoepfe();
    void LegeDarueber();
    /// How many columns find room, and how wide they are together [px].
    [[nodiscard]] std::pair<int, int> Platz() const;

    QTableView* feste_;
    int anzahl_ = 0;
};

}  // namespace zrw
