// Finds places for labels round their points: off each other, off symbols, clear of lines, near the point
// that they name. Knows no network and no surface: whole numbers in, whole numbers out, so that the same task
// has the same answer on every machine. How it goes: docs/architektur.md.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

#include "output/Rechteck.h"
#include "output/Zeichenflaeche.h"

namespace zrw {

// Lengths and positions of a task are in units of its own, a fraction of a pixel.

/// A label: a box whose top-left corner lies beside its point.
struct Schild {
    Flaechenpunkt punkt;
    Flaechenpunkt lage;  ///< where the box lies now, from the point
    std::int32_t weite = 0;
    std::int32_t hoehe = 0;
    std::int32_t radius = 0;  ///< of the point's own symbol
    bool fest = false;        ///< stays, and is in the way of the others
};

/// A symbol of a point, or any other box to keep off.
struct Symbolkasten {
    Flaechenpunkt mitte;
    std::int32_t quer = 0;    ///< half of its width
    std::int32_t laengs = 0;  ///< half of its height
};

struct Sperrstrich {
    Flaechenpunkt von;
    Flaechenpunkt nach;
    std::int32_t halb = 0;  ///< half of its width
};

struct Beschriftungsaufgabe {
    std::vector<Schild> schilder;
    std::vector<Symbolkasten> symbole;
    std::vector<Sperrstrich> striche;
    /// The picture, or sheets of paper: a label should lie wholly on one that shows its point, and off all of
    /// them where none does. Empty: no bounds.
    std::vector<Rechteck> blaetter;
    std::int32_t blattrand = 0;  ///< that labels keep off their edges
};

struct Beschriftungswahl {
    std::int32_t raster = 8;      ///< places are whole multiples of so many units from the point
    int plaetze = 32;             ///< round a point at one distance: 32, 8 or 4
    bool anliegend = false;       ///< only touching the point, as in tests of other methods
    std::int32_t weitester = 80;  ///< farthest place where nothing nearer is free [heights / 10]
    bool gleiten = true;          ///< moves labels by single steps in the end
    int durchgaenge = 300;        ///< of the search, fewer where labels are very many; never a time
    std::uint64_t saat = 1;
};

/// Gets how much is done [0 to 1000]. @return false: stop
using Fortschritt = std::function<bool(int promille)>;

/// Where the boxes should lie, from their points, in the order of the task; nothing where it was stopped.
[[nodiscard]] std::optional<std::vector<Flaechenpunkt>> OrdneSchilder(const Beschriftungsaufgabe& aufgabe,
                                                                      const Beschriftungswahl& wahl,
                                                                      const Fortschritt& fortschritt = {});

/// The simple way, to compare with: each label in turn takes the first place that is free, else the first.
[[nodiscard]] std::vector<Flaechenpunkt> OrdneGierig(const Beschriftungsaufgabe& aufgabe,
                                                     const Beschriftungswahl& wahl);

/// Up to so many labels are measured against symbols and lines.
inline constexpr std::size_t kMeisteGenau = 4096;

/// How good places are. Counts labels, not pairs.
struct Beschriftungsguete {
    std::size_t schilder = 0;
    std::size_t ueberlappt = 0;       ///< overlap another one
    std::size_t aufSymbol = 0;        ///< lie on the symbol of another point
    std::size_t gekreuzt = 0;         ///< are crossed by a line
    std::size_t naeherAmFremden = 0;  ///< lie nearer to another point than to their own
    double mittlererAbstand = 0.0;    ///< from the point to the box [units]
    double groessterAbstand = 0.0;
};
[[nodiscard]] Beschriftungsguete BewerteSchilder(const Beschriftungsaufgabe& aufgabe,
                                                 const std::vector<Flaechenpunkt>& lagen);

}  // namespace zrw
