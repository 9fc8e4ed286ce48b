// A row of widgets that goes on in further rows where the width is short. Widgets of one row are centred on
// its height; hidden ones take no place.
#pragma once

#include <QLayout>
#include <memory>
#include <vector>

namespace zrw {

class Umbruchleiste final : public QLayout {
  public:
    /// @param abstand between neighbours, @param reihenabstand between rows [px]
    explicit Umbruchleiste(QWidget* eltern = nullptr, int abstand = 2, int reihenabstand = 2);

    void addItem(QLayoutItem* stueck) override;
    [[nodiscard]] int count() const override { return static_cast<int>(stuecke_.size()); }
    [[nodiscard]] QLayoutItem* itemAt(int i) const override;
    QLayoutItem* takeAt(int i) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int weite) const override;
    /// Everything in one row.
    [[nodiscard]] QSize sizeHint() const override;
    /// The widest widget alone.
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& flaeche) override;

  private:
    /// Lays the rows out in the width of the area and returns the height that they take.
    int OrdneReihen(const QRect& flaeche, bool setzen) const;
    [[nodiscard]] std::vector<std::vector<QLayoutItem*>> InReihen(int weite) const;
    [[nodiscard]] QSize MitRand(QSize innen) const;

    std::vector<std::unique_ptr<QLayoutItem>> stuecke_;
    int abstand_;
    int reihenabstand_;
};

}  // namespace zrw
