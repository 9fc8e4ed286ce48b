// Keeps how results are drawn beside the settings of the plan, under names of its own. Which of them are
// shown is not kept, as that of no result is.
#pragma once

#include "model/Einstellungen.h"
#include "model/Residuendarstellung.h"

namespace zrw {

/// Values that nobody could have chosen leave them as they are.
void LadeResiduendarstellung(Residuendarstellung& d, const EinstellungsSpeicher& speicher);
void SchreibeResiduendarstellung(const Residuendarstellung& d, EinstellungsSpeicher& speicher);

}  // namespace zrw
