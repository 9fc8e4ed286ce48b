// Hands that know the widgets of the window, and nothing of what they do: dice, mouse, keys, single controls.
#pragma once

#include <QMouseEvent>
#include <QWidget>
#include <cstddef>
#include <random>

#include "ui/fenster/Hauptfenster.h"

namespace zrw {

class Bedienung {
  public:
    /// @param fenster must outlive it
    Bedienung(unsigned saat, TZrwMainDlg& fenster) : zufall_(saat), fenster_(fenster) {}

    std::size_t WuerfleZahl(std::size_t n) { return zufall_() % n; }
    /// A place in a container or file of the toolkit, whose sizes have signs.
    qsizetype Stelle(qsizetype n) { return static_cast<qsizetype>(WuerfleZahl(static_cast<std::size_t>(n))); }
    int Kleinzahl(int n) { return static_cast<int>(WuerfleZahl(static_cast<std::size_t>(n))); }

    [[nodiscard]] QWidget& Bild() { return *fenster_.findChild<QWidget*>("ImageZarwik"); }
    /// A place in the picture, half of the time one where a figure is.
    QPoint Ort();
    Qt::MouseButton Maustaste();
    void SendeMaus(QEvent::Type art, QPoint ort, Qt::MouseButton taste, Qt::MouseButtons gedrueckt);

    /// Uses one control of a window.
    void BedieneFenster(QWidget& fenster, bool schliesse);

  private:
    void BedieneFeld(QWidget* w);

    std::mt19937 zufall_;
    TZrwMainDlg& fenster_;
};

}  // namespace zrw
