// Buttons of the tool panel that stay together: they go into the next row as one. Where even a row of their
// own is too short, those that do not fit wait in the menu of a button "»" at its end.
#pragma once

#include <QFrame>
#include <vector>

class QMenu;
class QToolButton;

namespace zrw {

class Knopfgruppe final : public QFrame {
  public:
    /// @param name of the group, UTF-8: what the button "»" is called by
    /// @param gerahmt with a frame round it; else a line behind it
    Knopfgruppe(const QString& name, bool gerahmt, QWidget* eltern);

    /// The button must have an action.
    void NimmKnopf(QToolButton* knopf);

    [[nodiscard]] QSize sizeHint() const override { return Platz(knoepfe_.size(), false); }
    /// One button and "»".
    [[nodiscard]] QSize minimumSizeHint() const override { return Platz(1, true); }

  protected:
    void resizeEvent(QResizeEvent* ereignis) override;
    void paintEvent(QPaintEvent* ereignis) override;

  private:
    [[nodiscard]] QSize Platz(std::size_t anzahl, bool mitRest) const;

    std::vector<QToolButton*> knoepfe_;
    QToolButton* mehr_;
    QMenu* rest_;
    bool gerahmt_;
};

}  // namespace zrw
