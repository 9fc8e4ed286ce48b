// The overview of the sheets: tells where it is clicked and how far it is dragged, by mouse or keyboard, and
// which sheet has the keyboard.
#pragma once

#include <QLabel>
#include <functional>
#include <vector>

#include "ui/druck/Drucker.h"

namespace zrw {

class Blattbild final : public QLabel {
  public:
    explicit Blattbild(QWidget* eltern);
    std::function<void(QPoint ort)> geklickt;
    std::function<void(QPoint weg)> gezogen;

    /// @param blaetter where they lie in the picture; of those before the same one keeps the keyboard
    void ZeigeUebersicht(const QImage& bild, std::vector<Vorschaublatt> blaetter);

  protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;
    void paintEvent(QPaintEvent* e) override;
    void focusInEvent(QFocusEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

  private:
    void WaehleBlatt(std::size_t stelle);
    /// The next sheet of the print order, round and round.
    void GeheWeiter(int schritt);
    /// The sheet of the next row that lies nearest, round and round.
    void GeheUmZeile(int schritt);
    void VerschiebeUmZehntel(QPoint richtung);
    void NenneBlatt();

    QPoint anfang_;
    std::vector<Vorschaublatt> blaetter_;
    std::size_t aktuell_ = 0;
};

}  // namespace zrw
