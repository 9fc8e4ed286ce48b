#include "model/ergebnisse/Klassen.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "model/Zahlentext.h"

namespace zrw {
namespace {

constexpr unsigned kByte = 8;
constexpr std::uint32_t kKanal = 0xFF;
constexpr std::int32_t kGroessteBreite = 3;

/// To three digits.
double Gerundet(double wert) {
    char text[32];
    std::snprintf(text, sizeof text, "%.2e", wert);
    return LiesReal(text).value_or(wert);
}

/// The colour at a place between the first and the last one. @param stelle 0 to 1
Farbe Verlaufsfarbe(const Farbverlauf& verlauf, double stelle) {
    const double ort = stelle * static_cast<double>(verlauf.rgb.size() - 1);
    const std::size_t i = std::min(static_cast<std::size_t>(ort), verlauf.rgb.size() - 2);
    const double teil = ort - static_cast<double>(i);
    std::uint32_t bgr = 0;
    for (unsigned kanal = 0; kanal < 3; ++kanal) {
        const auto wert = [&](std::uint32_t rgb) {
            return static_cast<double>((rgb >> (kByte * (2 - kanal))) & kKanal);
        };
        const double gemischt = wert(verlauf.rgb[i]) * (1.0 - teil) + wert(verlauf.rgb[i + 1]) * teil;
        bgr |= static_cast<std::uint32_t>(std::lround(gemischt)) << (kByte * kanal);
    }
    return {bgr};
}

}  // namespace

std::vector<double> Klassengrenzen(const Klassenwahl& wahl, std::span<const double> werte) {
    if (wahl.art == Klassenart::VonHand) return wahl.grenzen;
    std::vector<double> grenzen;
    if (werte.empty()) return grenzen;
    const std::size_t anzahl = std::clamp(wahl.anzahl, kWenigsteKlassen, kMeisteKlassen);
    std::vector<double> geordnet(werte.begin(), werte.end());
    std::sort(geordnet.begin(), geordnet.end());
    for (std::size_t i = 1; i < anzahl; ++i) {
        const double teil = static_cast<double>(i) / static_cast<double>(anzahl);
        const double grenze = wahl.art == Klassenart::Gleich
                                  ? geordnet.front() * (1.0 - teil) + geordnet.back() * teil
                                  : geordnet[geordnet.size() * i / anzahl];
        const double gerundet = Gerundet(grenze);
        // A class that nothing can fall into is none.
        if (gerundet > geordnet.front() && gerundet <= geordnet.back() &&
            (grenzen.empty() || gerundet > grenzen.back()))
            grenzen.push_back(gerundet);
    }
    return grenzen;
}

std::size_t KlasseVon(std::span<const double> grenzen, double wert) {
    return static_cast<std::size_t>(std::upper_bound(grenzen.begin(), grenzen.end(), wert) - grenzen.begin());
}

std::string Klassentext(std::span<const double> grenzen, std::size_t klasse) {
    if (grenzen.empty()) return "alle";
    if (klasse == 0) return "unter " + SchreibeReal(grenzen[0]);
    if (klasse >= grenzen.size()) return "ab " + SchreibeReal(grenzen.back());
    return SchreibeReal(grenzen[klasse - 1]) + " bis " + SchreibeReal(grenzen[klasse]);
}

Figurstil KlassenstilVon(Klassenfarben farben, std::size_t klasse, std::size_t anzahl) {
    const double stelle = anzahl > 1 ? static_cast<double>(klasse) / static_cast<double>(anzahl - 1) : 1.0;
    return {.farbe = Verlaufsfarbe(kFarbverlaeufe[static_cast<std::size_t>(farben)], stelle),
            .breite = 1 + static_cast<std::int32_t>(stelle * (kGroessteBreite - 1))};
}

}  // namespace zrw
