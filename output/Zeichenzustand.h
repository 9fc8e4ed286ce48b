// Onto what is drawn, and how: the current surface and its mode, and the files that an export writes. That of
// the screen is made by `main` and handed on by reference; printing and export draw with one of their own.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "model/Figuren.h"

namespace zrw {

struct Ansicht;
class DXFUnit;
class Plotdatei;
class Punktergebnisse;
class Zeichenflaeche;

enum class Zeichenmodus : std::uint8_t { Bildschirm = 0, Drucker = 1 };

struct Zeichenzustand {
    Zeichenflaeche* flaeche = nullptr;  ///< null: no device, only the export files are drawn to
    Zeichenmodus modus = Zeichenmodus::Bildschirm;
    double Geraetefaktor = 1.0;             ///< printer's dots per screen pixel [-]
    double Pixeldichte = 1.0;               ///< the same of a screen finer than the plan's sizes [-]
    bool KurzeNummern = false;              ///< labels without their first four characters
    bool Halo = false;                      ///< labels with a white rim
    bool BlattschnittWiePunkte = false;     ///< map sheets in the projection of the points, not that of "$KS"
    bool Blattrahmen = false;               ///< sheets of paper have a frame with a title block
    bool GitterSchlicht = false;            ///< grids on paper are thin and numbered at its edges
    bool OhneStehendes = false;             ///< without what stands still while the picture is dragged
    bool Abkuerzungen = true;               ///< quick ways to the same picture; off for comparing with them
    Punktergebnisse* Ergebnisse = nullptr;  ///< null: no results are known

    // Export: the drawing routines write to these files, too. Set by `ExportierePlan` only.
    bool ExportActive = false;
    Plotdatei* PlotFile = nullptr;           ///< null: no plotter file is asked for
    DXFUnit* Dxf = nullptr;                  ///< null: no drawing is asked for
    const Ansicht* Exportansicht = nullptr;  ///< turns picture positions into world positions

    /// Device dots per screen pixel. Printing leaves a factor behind that means nothing on the screen.
    [[nodiscard]] double Dichte() const {
        return modus == Zeichenmodus::Drucker ? Geraetefaktor : Pixeldichte;
    }
    /// What a label shows.
    [[nodiscard]] std::string_view Gezeigt(const PktText& text) const {
        constexpr std::size_t kKurzeStelle = 4;
        std::string_view zeichen = text.Aus.Text();
        if (KurzeNummern) zeichen.remove_prefix(std::min(zeichen.size(), kKurzeStelle));
        return zeichen;
    }
};

}  // namespace zrw
