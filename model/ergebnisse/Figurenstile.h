// How figures are drawn for the moment, whatever their own colour: in classes of a result, or not at all. The
// network keeps what it has; files of the plan are written without.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "model/Knoten.h"
#include "model/Werte.h"

namespace zrw {

struct Figurstil {
    Farbe farbe = kSchwarz;
    std::int32_t breite = 1;  ///< of the pen, as `Stift`
    bool gestrichelt = false;
    friend bool operator==(const Figurstil&, const Figurstil&) = default;
};

/// A class in the legend.
struct Stilzeile {
    Figurstil stil;
    std::string text;  ///< UTF-8
    std::size_t anzahl = 0;
};

struct Figurenstile {
    // What is entered for a figure: a class from 0 on, or one of these.
    static constexpr std::uint8_t kEigener = 255;  ///< as the figure is
    static constexpr std::uint8_t kWeggelassen = 254;

    std::string titel;              ///< of the legend, UTF-8
    std::vector<Stilzeile> zeilen;  ///< the classes; empty where nothing is coloured
    bool punkte = false;            ///< points are coloured, not lines
    // By `Folge`; figures beyond the end came later and are as they are.
    std::vector<std::uint8_t> kanten;
    std::vector<std::uint8_t> knoten;

    /// How much larger than usual figures are drawn at most [px].
    [[nodiscard]] std::int32_t Zuwachs() const {
        std::int32_t breite = 1;
        for (const Stilzeile& z : zeilen)
            breite = std::max(breite, z.stil.breite);
        return breite - 1;
    }
    /// Some figure has a value, if only one that nothing controls: all rows but the last say so.
    [[nodiscard]] bool HatWerte() const {
        return std::any_of(zeilen.begin(), zeilen.end() - (zeilen.empty() ? 0 : 1),
                           [](const Stilzeile& z) { return z.anzahl > 0; });
    }
    /// Null: as it is.
    [[nodiscard]] const Figurstil* StilVon(const PunktKante& k) const { return Stil(kanten, k.Folge); }
    [[nodiscard]] const Figurstil* StilVon(const PunktKnoten& p) const { return Stil(knoten, p.Folge); }
    [[nodiscard]] bool Weggelassen(const PunktKante& k) const {
        return k.Folge < kanten.size() && kanten[k.Folge] == kWeggelassen;
    }

  private:
    [[nodiscard]] const Figurstil* Stil(const std::vector<std::uint8_t>& klassen, std::uint32_t folge) const {
        const std::uint8_t klasse = folge < klassen.size() ? klassen[folge] : kEigener;
        return klasse < zeilen.size() ? &zeilen[klasse].stil : nullptr;
    }
};

}  // namespace zrw
