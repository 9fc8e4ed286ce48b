// Keeps how sheets of paper are made up, beside the settings of the plan, under names of its own.
#pragma once

#include "model/Einstellungen.h"
#include "output/blatt/Blattgestaltung.h"

namespace zrw {

/// Values that the fields could not have leave them as they are.
void LadeBlattgestaltung(Blattgestaltung& g, const EinstellungsSpeicher& speicher);
void SchreibeBlattgestaltung(const Blattgestaltung& g, EinstellungsSpeicher& speicher);

}  // namespace zrw
