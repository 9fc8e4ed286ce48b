// Strokes on bare pixels: where they lie, and that no clip changes them.
#include "output/Pixelbild.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <set>
#include <utility>

namespace zrw {
namespace {

struct Pixelblatt {
    Pixelblatt(int w, int h)
        : weite(w),
          pixel(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)),
          bild(pixel.data(), w, h, static_cast<std::size_t>(w)) {}
    [[nodiscard]] std::set<std::pair<int, int>> Gesetzt(std::uint32_t farbe) const {
        std::set<std::pair<int, int>> s;
        for (std::size_t i = 0; i < pixel.size(); ++i) {
            if (pixel[i] == farbe) s.emplace(static_cast<int>(i) % weite, static_cast<int>(i) / weite);
        }
        return s;
    }
    int weite;
    std::vector<std::uint32_t> pixel;
    Pixelbild bild;
};

class Striche : public testing::Test {
  protected:
    int W(int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall_); }

  private:
    std::mt19937 zufall_{3};
};

TEST_F(Striche, KeinAusschnittAendertIhrePixel) {
    for (int i = 0; i < 4000; ++i) {
        const int weit = std::array{12, 300, 40000, 500000000}[static_cast<std::size_t>(i) % 4];
        const Flaechenpunkt a{W(-weit, weit), W(-weit, weit)};
        const Flaechenpunkt b{W(-weit, weit), W(-weit, weit)};
        const Strichart art = i % 3 == 0 ? Strichart::Gestrichelt : Strichart::Voll;
        Pixelblatt ganz(97, 61);
        ganz.bild.Linie(a, b, 1, art);
        Pixelblatt teile(97, 61);
        const int x = W(0, 96);
        const int y = W(0, 60);
        for (const Rechteck& r : {Rechteck{0, 0, x, y}, Rechteck{x + 1, 0, 96, y}, Rechteck{0, y + 1, x, 60},
                                  Rechteck{x + 1, y + 1, 96, 60}}) {
            teile.bild.SetzeAusschnitt(r);
            teile.bild.Linie(a, b, 1, art);
        }
        ASSERT_TRUE(ganz.pixel == teile.pixel) << a.x << "," << a.y << " " << b.x << "," << b.y;
    }
}

TEST_F(Striche, LaufenUeberallAnDerWahrenLinieEntlang) {
    int gesehen = 0;
    for (int i = 0; i < 3000; ++i) {
        const int weit = std::array{100, 30000, 40000, 500000000}[static_cast<std::size_t>(i) % 4];
        Flaechenpunkt a{W(-weit, weit), W(-weit, weit)};
        Flaechenpunkt b{-a.x + W(-50, 50), -a.y + W(-50, 50)};  // past the middle of the picture
        Pixelblatt blatt(200, 160);
        const Flaechenpunkt mitte{100, 80};
        a = {a.x + mitte.x, a.y + mitte.y};
        b = {b.x + mitte.x, b.y + mitte.y};
        blatt.bild.Linie(a, b, 1, Strichart::Voll);
        const double dx = static_cast<double>(b.x) - a.x;
        const double dy = static_cast<double>(b.y) - a.y;
        const bool flach = std::abs(dx) >= std::abs(dy);
        std::set<int> laengs;
        for (const auto& [x, y] : blatt.Gesetzt(1)) {
            const double soll = flach ? a.y + (x - static_cast<double>(a.x)) * dy / dx
                                      : a.x + (y - static_cast<double>(a.y)) * dx / dy;
            // Short steps lose up to half a pixel over their length, and count from the middle of a pixel.
            ASSERT_NEAR(flach ? y : x, soll, 1.6) << a.x << "," << a.y << " " << b.x << "," << b.y;
            ASSERT_TRUE(laengs.insert(flach ? x : y).second) << "one pixel a step";
            ++gesehen;
        }
    }
    EXPECT_GT(gesehen, 100000);
}

}  // namespace
}  // namespace zrw
