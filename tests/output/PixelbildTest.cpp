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
    explicit Pixelblatt(int w, int h, unsigned helfer = 0)
        : weite(w), pixel(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {
        bild.BindeAn({pixel.data(), w, h, static_cast<std::size_t>(w), &grund, helfer});
    }
    [[nodiscard]] std::set<std::pair<int, int>> Gesetzt(std::uint32_t farbe) const {
        std::set<std::pair<int, int>> s;
        for (std::size_t i = 0; i < pixel.size(); ++i) {
            if (pixel[i] == farbe) s.emplace(static_cast<int>(i) % weite, static_cast<int>(i) / weite);
        }
        return s;
    }
    int weite;
    std::vector<std::uint32_t> pixel;
    Bildgrund grund;
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
        const bool gestrichelt = i % 3 == 0;
        Pixelblatt ganz(97, 61);
        ganz.bild.Linie(a, b, 1, gestrichelt);
        Pixelblatt teile(97, 61);
        const int x = W(0, 96);
        const int y = W(0, 60);
        for (const Rechteck& r : {Rechteck{0, 0, x, y}, Rechteck{x + 1, 0, 96, y}, Rechteck{0, y + 1, x, 60},
                                  Rechteck{x + 1, y + 1, 96, 60}}) {
            teile.bild.SetzeAusschnitt(r);
            teile.bild.Linie(a, b, 1, gestrichelt);
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
        blatt.bild.Linie(a, b, 1, false);
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

Pixelmaske Kaestchen(int weite, int hoehe) {
    Pixelmaske m(-2, -3, weite, hoehe);
    for (int i = 0; i < weite * hoehe; ++i) {
        if (i * 37 % 5 < 2) m.SetzePixel(i % weite, i / weite);
    }
    return m;
}

/// Tiles and cores are nobody's business: everything that is drawn, in several tiles and across them.
TEST_F(Striche, AlleKerneUndTeileGebenDieselbenPixel) {
    constexpr int kWeite = 1100;
    constexpr int kHoehe = 300;
    const Pixelmaske breit = Kaestchen(70, 9);
    const Pixelmaske rand = Kaestchen(9, 9);
    Pixelmaske innen = rand;
    for (std::uint64_t& w : innen.worte)
        w = ~w & 0x1FFU;
    struct Figur {
        Flaechenpunkt a;
        Flaechenpunkt b;
    };
    std::vector<Figur> figuren(20000);
    for (std::size_t i = 0; i < figuren.size(); ++i) {
        const int weit = i % 200 == 0 ? 40000 : 30;
        const Flaechenpunkt a{W(-40, kWeite + 40), W(-40, kHoehe + 40)};
        figuren[i] = {a, {a.x + W(-weit, weit), a.y + W(-weit, weit)}};
    }
    const auto zeichne = [&](Pixelbild& bild, bool mitRechtecken) {
        for (const char c : {'1', 'W', ' '})
            bild.NimmZeichen(Zeichenform::Blank, c, c == ' ' ? Pixelmaske() : Kaestchen(c == 'W' ? 60 : 6, 9),
                             c == 'W' ? 58 : 7);
        for (std::size_t n = 0; n < figuren.size(); ++n) {
            const std::size_t i = bild.VonVorn() ? figuren.size() - 1 - n : n;
            const auto& [a, b] = figuren[i];
            const auto farbe = static_cast<std::uint32_t>(i + 1);
            const std::array<Linienstueck, 3> zug{{{a, b, false}, {b, {b.x + 9, b.y}, true}, {b, a, true}}};
            if (i % 5 == 0) {
                bild.Maske(breit, a, farbe);
            } else if (i % 5 == 1) {
                bild.Stempel(rand, innen, a, farbe, farbe | 0x800000U);
            } else if (i % 5 == 2) {
                EXPECT_TRUE(bild.Text(a, i % 2 == 0 ? "11 W1" : "1111111111", farbe, Zeichenform::Blank));
            } else if (i % 55 == 3 && mitRechtecken) {
                bild.FuelleRechteck({a.x, a.y, a.x + 4, a.y + 3}, farbe);
            } else {
                bild.Linien(zug, farbe);
            }
        }
    };
    Pixelblatt einer(kWeite, kHoehe);
    zeichne(einer.bild, true);
    Pixelblatt hinten(kWeite, kHoehe);
    zeichne(hinten.bild, false);
    EXPECT_FALSE(einer.bild.Text({1, 1}, "12", 1, Zeichenform::Blank)) << "a character that nobody gave";
    for (const unsigned helfer : {0U, 1U, 3U}) {
        Pixelblatt teile(kWeite, kHoehe, helfer);
        for (const Rechteck& r : {Rechteck{0, 0, 600, kHoehe - 1}, Rechteck{601, 0, kWeite - 1, 99},
                                  Rechteck{601, 100, kWeite - 1, kHoehe - 1}}) {
            teile.bild.SetzeAusschnitt(r);
            zeichne(teile.bild, true);
        }
        teile.bild.SchliesseAb();
        EXPECT_TRUE(teile.pixel == einer.pixel) << helfer;
        Pixelblatt vorn(kWeite, kHoehe, helfer);
        vorn.bild.BeginneVonVorn();
        zeichne(vorn.bild, false);
        vorn.bild.BeendeVonVorn();
        EXPECT_TRUE(vorn.pixel == hinten.pixel) << helfer;
    }
}

}  // namespace
}  // namespace zrw
