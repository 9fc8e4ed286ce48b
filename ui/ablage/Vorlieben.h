// What users set about the program itself and not about the plan. Stored beside the settings of the plan,
// under names of their own.
#pragma once

#include "model/Einstellungen.h"

namespace zrw {

struct Vorlieben {
    bool EinpassenNachOeffnen = false;   ///< fits the points of a control file instead of whole kilometres
    bool KantenGlaetten = true;          ///< lines, symbols and texts with smooth edges
    bool RadUmgekehrt = false;           ///< the wheel enlarges upwards
    bool ZumAuffaelligenReiter = false;  ///< results are listed where something is flagged
};

/// Anything but "1" and "0" leaves a setting as it is.
void LadeVorlieben(Vorlieben& v, const EinstellungsSpeicher& speicher);
void SchreibeVorlieben(const Vorlieben& v, EinstellungsSpeicher& speicher);

}  // namespace zrw
