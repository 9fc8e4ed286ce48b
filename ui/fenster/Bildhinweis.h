// A quiet bar at the top of the picture: a text, a button that does something about it, and one that closes
// it. Several lie below one another.
#pragma once

#include <QFrame>
#include <QString>
#include <functional>

class QLabel;
class QToolButton;

namespace zrw {

class Bildhinweis : public QFrame {
  public:
    /// Object names of its parts.
    struct Namen {
        QString leiste;
        QString knopf;
        QString schliessen;
    };
    /// @param bild which it lies over
    Bildhinweis(QWidget* bild, const Namen& namen, const QString& knopf, const QString& knopfhinweis);

    void ZeigeText(const QString& text);
    void ZeigeKnopf(bool sichtbar);
    bool eventFilter(QObject* empfaenger, QEvent* ereignis) override;

  protected:
    /// The button was pressed.
    std::function<void()> gedrueckt_;
    void showEvent(QShowEvent* ereignis) override;
    void hideEvent(QHideEvent* ereignis) override;

  private:
    void StelleAlleAuf() const;

    QLabel* text_;
    QToolButton* knopf_;
};

}  // namespace zrw
