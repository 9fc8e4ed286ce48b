// Axes, angles and numbers of GNU Gama's files.
#include <array>
#include <cmath>

#include "input/import/Gama.h"
#include "model/Zahlentext.h"

namespace zrw::fremd {
namespace {

struct Achsenzeile {
    std::string_view name;
    bool xNachRechts;
    double vorzeichenX, vorzeichenY;
};

/// First letter: where x grows; second: y.
constexpr auto kAchsen = std::to_array<Achsenzeile>({
    {"ne", false, 1.0, 1.0},
    {"sw", false, -1.0, -1.0},
    {"nw", false, 1.0, -1.0},
    {"se", false, -1.0, 1.0},
    {"en", true, 1.0, 1.0},
    {"ws", true, -1.0, -1.0},
    {"es", true, 1.0, -1.0},
    {"wn", true, -1.0, 1.0},
});

}  // namespace

std::optional<Gamaachsen> LiesAchsen(std::string_view achsen, std::string_view winkel) {
    if (achsen.empty()) achsen = kAchsen.front().name;
    if (!winkel.empty() && winkel != "left-handed" && winkel != "right-handed") return std::nullopt;
    for (const Achsenzeile& z : kAchsen) {
        if (z.name == achsen)
            return Gamaachsen{z.xNachRechts, z.vorzeichenX, z.vorzeichenY, winkel != "right-handed"};
    }
    return std::nullopt;
}

std::optional<double> LiesZahl(std::string_view text, double grenze) {
    const auto zahl = LiesReal(text);
    if (!zahl || !(std::fabs(*zahl) <= grenze)) return std::nullopt;
    return zahl;
}

std::optional<Gamawinkel> LiesGamaWinkel(std::string_view text) {
    constexpr double kGroessterWinkel = 1e6;
    const std::size_t ab = !text.empty() && (text.front() == '-' || text.front() == '+') ? 1 : 0;
    const std::size_t minuten = text.find('-', ab);
    // A number may have a minus in its exponent.
    if (minuten == std::string_view::npos || minuten == ab || text[minuten - 1] == 'e' ||
        text[minuten - 1] == 'E') {
        const auto gon = LiesZahl(text, kGroessterWinkel);
        return gon ? std::optional(Gamawinkel{*gon, false}) : std::nullopt;
    }
    const std::size_t sekunden = text.find('-', minuten + 1);
    if (sekunden == std::string_view::npos) return std::nullopt;
    const auto g = LiesZahl(text.substr(ab, minuten - ab), kGroessterWinkel);
    const auto m = LiesZahl(text.substr(minuten + 1, sekunden - minuten - 1), 60.0);
    const auto s = LiesZahl(text.substr(sekunden + 1), 60.0);
    if (!g || !m || !s || *g < 0.0 || *m < 0.0 || *s < 0.0) return std::nullopt;
    const double grad = *g + *m / 60.0 + *s / 3600.0;
    return Gamawinkel{(text.front() == '-' ? -grad : grad) * kGonJeGrad, true};
}

}  // namespace zrw::fremd
