// The command line, taken apart. Knows no files and no window.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "input/Oeffnen.h"
#include "output/Export.h"
#include "output/Papier.h"

namespace zrw {

/// A width or height that a picture may have [px]. Smaller ones leave no room beside the margin that fitting
/// keeps, larger ones no memory.
[[nodiscard]] constexpr bool BrauchbareGroesse(std::int64_t v) {
    return v >= 100 && v <= 16384;
}

enum class Auftrag { Fenster, Stapel, Hilfe, Version };

struct Aufruf {
    Auftrag auftrag = Auftrag::Fenster;
    std::string datei;                 ///< control or picture file, may be empty for the window
    std::vector<std::string> formate;  ///< names from the format table
    std::string ziel;                  ///< target folder; empty: the working folder
    std::optional<Bildgroesse> groesse;
    std::string massstab = kUeblicherMassstab;  ///< denominator, readable by `LiesMassstab`
    bool passend = true;  ///< none was given: documents take the one at which the plan fits their sheet
    int dpi = kUeblicheAufloesung;               ///< resolution of the print [dots per inch]
    Papier papier = kPapierformate[0].hochkant;  ///< upright
    bool quer = false;                           ///< the paper lies on its long side
    bool alleBlaetter = false;                   ///< print over as many sheets as it takes
    bool kantig = false;                         ///< pictures without smooth edges
    std::vector<std::string> ein;                ///< switches by name
    std::vector<std::string> aus;
    std::optional<std::string> einstellungen;
};

/// Usage that cannot be understood; the text is German.
struct Falschaufruf {
    std::string text;
};

/// @param worte the arguments without the program's name, UTF-8
/// @throws Falschaufruf
[[nodiscard]] Aufruf LiesAufruf(const std::vector<std::string>& worte);

/// What --help prints.
[[nodiscard]] std::string Hilfetext();

}  // namespace zrw
