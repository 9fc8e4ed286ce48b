// A line of text that takes the width it gets and asks for none: what does not fit is left out in the middle,
// and the hint has the whole text.
#pragma once

#include <QLabel>

namespace zrw {

class Kurzzeile final : public QLabel {
  public:
    /// @param name of the widget @param aufgabe what the line is for, also for screen readers
    Kurzzeile(const QString& name, const QString& aufgabe, QWidget* eltern);

    void ZeigeText(const QString& text);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* ereignis) override;

  private:
    QString aufgabe_;
};

}  // namespace zrw
