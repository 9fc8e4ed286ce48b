// What every target does with a network once it has one: use it as a user would and check what must hold for
// every list. A broken promise ends the process, so that the fuzzer keeps the input.
#pragma once

#include <string>

#include "model/FigListe.h"
#include "model/Netzangaben.h"
#include "model/Zeichner.h"

namespace zrw::fuzz {

/// Ends the process with the text where the condition does not hold.
void VerlangeBedingung(bool bedingung, const char* was);

/// The counts are those of the lists, and every look-up answers what a walk from the head finds first.
void PruefeListe(const Liste& liste);

/// What only a network from a control file promises: every number once, every pair of points once, both ends
/// of every line there.
void PruefeNetz(const Liste& liste);

/// Bytes of the picture file.
[[nodiscard]] std::string Gespeichert(const Liste& liste, const Netzangaben& netz);

/// Loading reverses the lists, so that saving and loading twice gives the same bytes.
void PruefeSpeichern(const Liste& liste, const Netzangaben& netz);

/// View, switches and hit-tests. Adds and removes nothing.
void BedieneListe(Liste& liste, Zeichner& z);

/// Turns and deletes lines, deletes points, wipes the rest.
void BearbeiteListe(Liste& liste, Zeichner& z);

}  // namespace zrw::fuzz
