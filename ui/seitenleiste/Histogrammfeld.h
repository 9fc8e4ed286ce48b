// A histogram in the side bar. A bar that is clicked, or chosen with the arrows and Enter, is handed on.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>

#include "ui/ergebnisse/Statistikbild.h"

namespace zrw {

class Histogrammfeld final : public QWidget {
  public:
    Histogrammfeld(const char* name, const char* zugang, QWidget* eltern);

    /// A bar was chosen.
    std::function<void(const Statistikbild& bild, std::size_t klasse)> gewaehlt;

    void ZeigeBild(Statistikbild bild);
    [[nodiscard]] QSize sizeHint() const override { return {300, 170}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return {200, 140}; }

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    bool event(QEvent* ereignis) override;

  private:
    [[nodiscard]] std::optional<std::size_t> KlasseBei(QPointF ort) const;
    void WaehleKlasse(std::size_t klasse);

    Statistikbild bild_;
    std::optional<std::size_t> klasse_;
};

}  // namespace zrw
