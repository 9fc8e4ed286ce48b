// The picture for those who do not see it: a drawing whose value and description are the point that has the
// focus.
#pragma once

#include <QAccessibleWidget>

namespace zrw {

class ImageZarwik;

class Bildzugang final : public QAccessibleWidget {
  public:
    explicit Bildzugang(ImageZarwik& bild);

    [[nodiscard]] QString text(QAccessible::Text art) const override;

    /// From now on every picture is described by one of these.
    static void MeldeAn();

  private:
    const ImageZarwik& bild_;
};

}  // namespace zrw
