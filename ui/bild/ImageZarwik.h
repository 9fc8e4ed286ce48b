// The picture in the window. Copies the kept picture onto the screen and passes mouse events on; it draws
// nothing of its own and knows no network.
#pragma once

#include <QWidget>
#include <functional>

#include "ui/bild/Bildflaeche.h"

namespace zrw {

/// What the picture tells its window. Positions in picture coordinates [px].
class Bildempfaenger {
  public:
    virtual ~Bildempfaenger() = default;
    virtual void ImageZarwikMouseDown(Bildpunkt ort, Qt::MouseButton taste) = 0;
    /// The second press of two quick ones, in place of `ImageZarwikMouseDown`.
    virtual void ImageZarwikDoubleClick(Bildpunkt ort, Qt::MouseButton taste) = 0;
    /// The mouse is no longer over the picture.
    virtual void ImageZarwikMouseLeave() = 0;
    virtual void ImageZarwikMouseMove(Bildpunkt ort) = 0;
    virtual void ImageZarwikMouseUp(Bildpunkt ort, Qt::MouseButton taste) = 0;
    /// @param schritte wheel steps, positive away from the user
    virtual void ImageZarwikWheel(Bildpunkt ort, int schritte) = 0;
    /// @param dichte pixels of the screen for each pixel of the picture
    virtual void ImageZarwikResize(int weite, int hoehe, double dichte) = 0;
};

class ImageZarwik final : public QWidget {
  public:
    ImageZarwik(Bildflaeche& flaeche, Bildempfaenger& empfaenger, QWidget* eltern);

    /// Draws over the picture until the next call; an empty one draws nothing. Left out while the picture is
    /// shifted.
    void SetzeVorschau(std::function<void(Zeichenflaeche&)> vorschau);
    /// Draws what always lies over the picture, below the preview.
    void SetzeUeberlagerung(std::function<void(Zeichenflaeche&)> ueberlagerung) {
        ueberlagerung_ = std::move(ueberlagerung);
    }
    /// Paints softly right over the picture, below all else; left out while the picture is shifted.
    void SetzeHof(std::function<void(QPainter&)> hof) { hof_ = std::move(hof); }
    /// Preview and what lies over the picture have smooth edges.
    void SetzeGlatt(bool glatt);
    /// Shows the picture shifted, while it is being dragged.
    void SetzeVerschiebung(Bildpunkt versatz);
    /// What the figure is that has the focus, for those who do not see it; empty: none has. A change is
    /// announced.
    void SetzeFigurtext(const QString& text);
    [[nodiscard]] const QString& Figurtext() const { return figurtext_; }
    [[nodiscard]] QSize sizeHint() const override { return {900, 600}; }

  protected:
    void paintEvent(QPaintEvent* ereignis) override;
    void resizeEvent(QResizeEvent* ereignis) override;
    void mousePressEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void mouseMoveEvent(QMouseEvent* ereignis) override;
    void leaveEvent(QEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void wheelEvent(QWheelEvent* ereignis) override;

  private:
    void MeldeGroesse();

    Bildflaeche& flaeche_;
    Bildempfaenger& empfaenger_;
    QPoint versatz_;
    bool glatt_ = false;
    std::function<void(Zeichenflaeche&)> vorschau_;
    std::function<void(Zeichenflaeche&)> ueberlagerung_;
    std::function<void(QPainter&)> hof_;
    QString figurtext_;
    int radrest_ = 0;  ///< fine wheels report parts of a step
};

}  // namespace zrw
