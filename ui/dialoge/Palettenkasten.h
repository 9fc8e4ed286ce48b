// Chooses one of the named palettes for all display colours, and hands the colours on to the open network.
#pragma once

#include <QWidget>
#include <functional>

#include "model/Einstellungen.h"

class QComboBox;

namespace zrw {

class Palettenkasten final : public QWidget {
  public:
    /// @param einstellungen must outlive it
    Palettenkasten(Einstellungen& einstellungen, QWidget* eltern);

    /// Names the palette that the settings have now.
    void ZeigePalette();
    std::function<void()> gewaehlt;  ///< the colours are those of a palette now
    std::function<void()> anwenden;  ///< on the open network

  private:
    Einstellungen& e_;
    QComboBox* wahl_;
};

}  // namespace zrw
