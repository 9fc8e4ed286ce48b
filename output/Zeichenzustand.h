// What drawing depends on beside the figures: the current surface and its mode. Made by `main`, handed on by
// reference; printing and export switch it for their duration.
#pragma once

#include <cstdint>

namespace zrw {

class Zeichenflaeche;

enum class Zeichenmodus : std::uint8_t { Bildschirm = 0, Drucker = 1 };

struct Zeichenzustand {
    Zeichenflaeche* flaeche = nullptr;  ///< null: nothing is drawn
    Zeichenmodus modus = Zeichenmodus::Bildschirm;
    double Geraetefaktor = 1.0;  ///< device dots per screen pixel [-]
    bool ExportActive = false;   ///< the drawing routines write to the export files, too
    bool KurzeNummern = false;   ///< labels without their first four characters
};

}  // namespace zrw
