// GNU Gama's local networks: the input of the adjustment and what it writes, both XML. Facts about the format
// and how it is taken over: hilfe/47_gama.md.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "input/import/Fremdnetz.h"
#include "input/import/Importbericht.h"
#include "input/import/Xmldatei.h"

namespace zrw::fremd {

void LiesGamaNetz(const Xmldatei& xml, Fremdnetz& netz, Importbericht& bericht);
void LiesGamaErgebnisse(const Xmldatei& xml, Fremdnetz& netz, Importbericht& bericht);

/// Where the axes x and y of a file lead and how its angles turn.
struct Gamaachsen {
    bool xNachRechts = false;  ///< x is the easting, y the northing
    double vorzeichenX = 1.0;  ///< -1 where x grows to the south or the west
    double vorzeichenY = 1.0;
    bool rechtsdrehend = true;  ///< angles are clockwise

    /// Easting and northing of two values along x and y.
    [[nodiscard]] Dreier Gedreht(double x, double y, double z) const {
        const double a = vorzeichenX * x, b = vorzeichenY * y;
        return xNachRechts ? Dreier{a, b, z} : Dreier{b, a, z};
    }
    /// A direction as it would be clockwise [gon].
    [[nodiscard]] double Richtung(double gon) const { return Vollkreis(rechtsdrehend ? gon : -gon); }
};

/// From the attributes `axes-xy` and `angles`, each may be missing. Nothing for axes that do not exist.
[[nodiscard]] std::optional<Gamaachsen> LiesAchsen(std::string_view achsen, std::string_view winkel);

/// Where the text of an attribute or element goes.
template <class Texte>
struct Textfeld {
    std::string_view name;
    std::string_view Texte::*ziel;
};
/// @return whether one of the fields has this name
template <class Texte, std::size_t N>
bool NimmText(Texte& texte, const std::array<Textfeld<Texte>, N>& felder, std::string_view name,
              std::string_view text) {
    for (const Textfeld<Texte>& f : felder) {
        if (f.name != name) continue;
        texte.*(f.ziel) = text;
        return true;
    }
    return false;
}

/// An angle [gon], from gon or from degrees as "ddd-mm-ss.s". `grad` tells which.
struct Gamawinkel {
    double gon = kUnbekannt;
    bool grad = false;
};
[[nodiscard]] std::optional<Gamawinkel> LiesGamaWinkel(std::string_view text);

inline constexpr double kMgonJeCc = 0.1;
inline constexpr double kMgonJeSekunde = 1.0 / 3.24;
inline constexpr double kGonJeGrad = 10.0 / 9.0;

/// Coordinates and lengths beyond are no lengths on this earth [m].
inline constexpr double kGroessteLaenge = 1e9;
inline constexpr double kGroessteVarianz = 1e24;  ///< [mm²] or [cc²]
/// A number of at most `grenze`, or nothing.
[[nodiscard]] std::optional<double> LiesZahl(std::string_view text, double grenze = kGroessteLaenge);

}  // namespace zrw::fremd
