// How a plan is to be written, whatever the format: the options of the command line, and what the window's
// dialog holds.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "input/Oeffnen.h"
#include "model/ergebnisse/Einfaerbung.h"
#include "output/Export.h"
#include "output/Papier.h"
#include "output/blatt/Blattgestaltung.h"

namespace zrw {

inline constexpr std::int32_t kKleinstesBild = 100;    ///< [px]
inline constexpr std::int32_t kGroesstesBild = 16384;  ///< [px]
inline constexpr int kFeinsteAufloesung = 100000;      ///< [dots per inch]
/// Square: fitting divides the height of a network by the picture's width and its width by the height.
inline constexpr Bildgroesse kUeblicheGroesse{1200, 1200};

/// A width or height that a picture may have [px]. Smaller ones leave no room beside the margin that fitting
/// keeps, larger ones no memory.
[[nodiscard]] constexpr bool BrauchbareGroesse(std::int64_t v) {
    return v >= kKleinstesBild && v <= kGroesstesBild;
}

/// What point numbers are put in order for before anything is written.
enum class Nummernziel : std::uint8_t { Bild, Druck };

struct Nummernzielzeile {
    Nummernziel ziel;
    std::string_view name;         ///< on the command line
    std::string_view bezeichnung;  ///< in the window, UTF-8
};
inline constexpr auto kNummernziele = std::to_array<Nummernzielzeile>({
    {Nummernziel::Bild, "bild", "für das Bild"},
    {Nummernziel::Druck, "druck", "für den Druck"},
});

struct Ausgabeauftrag {
    std::optional<Bildgroesse> groesse;
    std::string massstab = kUeblicherMassstab;  ///< denominator, readable by `LiesMassstab`
    bool passend = true;   ///< none was given: documents take the one at which the plan fits their sheet
    bool gesucht = false;  ///< that one was asked for: drawings and plotter files take it, too
    int blaetter = 1;      ///< how many sheets it may take
    Blattgestaltung gestaltung;                  ///< of sheets
    int dpi = kUeblicheAufloesung;               ///< resolution of the print [dots per inch]
    Papier papier = kPapierformate[0].hochkant;  ///< upright
    bool quer = false;                           ///< the paper lies on its long side
    bool alleBlaetter = false;                   ///< print over as many sheets as it takes
    bool kantig = false;                         ///< pictures without smooth edges
    std::optional<Nummernziel> ordnen{};         ///< none: they stay
    Planfaerbung faerbung{};                     ///< lines or points in classes, and which lines
    std::vector<std::string> ein;                ///< switches by name
    std::vector<std::string> aus;
    double ellipsenmassstab = 0.0;  ///< magnification of error ellipses; 0: that of residuals
};

}  // namespace zrw
