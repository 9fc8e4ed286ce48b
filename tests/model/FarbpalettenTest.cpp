// What the palettes promise: enough contrast on white, and kinds that users with a red-green blindness tell
// apart.
#include "model/Farbpaletten.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zrw {
namespace {

using Licht = std::array<double, 3>;  // linear red, green, blue

Licht AlsLicht(Farbe f) {
    Licht l{};
    for (unsigned i = 0; i < 3; ++i) {
        const double c = ((f.wert >> (8 * i)) & 0xFFU) / 255.0;
        l[i] = c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    }
    return l;
}
Licht Mal(const std::array<Licht, 3>& m, const Licht& l) {
    Licht aus{};
    for (unsigned i = 0; i < 3; ++i)
        aus[i] = m[i][0] * l[0] + m[i][1] * l[1] + m[i][2] * l[2];
    return aus;
}
/// Contrast with white after WCAG 2.1, 1 to 21.
double Kontrast(Farbe f) {
    const Licht l = AlsLicht(f);
    return 1.05 / (0.2126 * l[0] + 0.7152 * l[1] + 0.0722 * l[2] + 0.05);
}
/// Distance in CIELAB (CIE 1976), white D65.
double Abstand(const Licht& a, const Licht& b) {
    const auto lab = [](const Licht& l) {
        Licht xyz = Mal({{{0.4124, 0.3576, 0.1805}, {0.2126, 0.7152, 0.0722}, {0.0193, 0.1192, 0.9505}}}, l);
        const Licht weiss{0.9505, 1, 1.089};
        for (unsigned i = 0; i < 3; ++i)
            xyz[i] = std::cbrt(std::max(xyz[i] / weiss[i], 0.0));
        return Licht{116 * xyz[1], 500 * (xyz[0] - xyz[1]), 200 * (xyz[1] - xyz[2])};
    };
    const Licht x = lab(a);
    const Licht y = lab(b);
    return std::hypot(x[0] - y[0], x[1] - y[1], x[2] - y[2]);
}

TEST(Farbpaletten, KontrastAufWeiss) {
    constexpr double kMindestens[] = {3, 7, 2.2, 3};  // sky blue is for map sheets only
    for (std::size_t i = 0; i < kFarbpaletten.size(); ++i) {
        for (const Farbe f : kFarbpaletten[i].farben)
            EXPECT_GE(Kontrast(f), kMindestens[i]) << kFarbpaletten[i].name << std::hex << f.wert;
    }
}

// Vision without the red or the green cones after Machado, Oliveira and Fernandes 2009.
TEST(Farbpaletten, MitFarbfehlsichtZuUnterscheiden) {
    Einstellungen e;
    SetzeFarben(e, kFarbpaletten[2].farben);
    const Figurenfarben figuren = FigurenfarbenAus(e);
    for (const std::array<Licht, 3>& auge : {std::array<Licht, 3>{{{0.152286, 1.052583, -0.204868},
                                                                   {0.114503, 0.786281, 0.099216},
                                                                   {-0.003882, -0.048116, 1.051998}}},
                                             std::array<Licht, 3>{{{0.367322, 0.860646, -0.227968},
                                                                   {0.280085, 0.672501, 0.047413},
                                                                   {-0.011820, 0.042940, 0.968881}}}}) {
        for (const auto& farben : {figuren.punkte, figuren.linien}) {
            for (std::size_t i = 0; i < farben.size(); ++i) {
                for (std::size_t k = 0; k < i; ++k)
                    EXPECT_GT(Abstand(Mal(auge, AlsLicht(farben[i])), Mal(auge, AlsLicht(farben[k]))), 20);
            }
        }
    }
}

}  // namespace
}  // namespace zrw
