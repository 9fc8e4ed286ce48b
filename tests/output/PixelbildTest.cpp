// Strokes and masks on bare pixels: where they lie, that no clip changes them, and that drawing from the
// front to the back keeps what was there first.
#include "output/Pixelbild.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <random>
#include <set>
#include <utility>

namespace zrw {
namespace {

struct Blatt {
    Blatt(int w, int h)
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
        Blatt ganz(97, 61);
        ganz.bild.Linie(a, b, 1, art);
        Blatt teile(97, 61);
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
        Blatt blatt(200, 160);
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

TEST(Strichelung, ZaehltVomAnfang) {
    for (const bool rueckwaerts : {false, true}) {
        Blatt blatt(20, 1);
        const Flaechenpunkt links{1, 0};
        const Flaechenpunkt rechts{14, 0};
        blatt.bild.Linie(rueckwaerts ? rechts : links, rueckwaerts ? links : rechts, 1,
                         Strichart::Gestrichelt);
        std::string bild;
        for (const std::uint32_t p : blatt.pixel)
            bild += p == 1 ? '#' : '.';
        EXPECT_EQ(bild, rueckwaerts ? ".##..####..####....." : ".####..####..##.....");
    }
}

TEST(VonVorn, BehaeltWasZuerstDaWar) {
    std::mt19937 zufall(5);
    const auto w = [&](int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall); };
    for (int versuch = 0; versuch < 60; ++versuch) {
        const Rechteck ausschnitt{w(0, 60), w(0, 20), w(61, 199), w(21, 99)};
        Blatt hinten(200, 100);  // painted over, last first
        Blatt vorn(200, 100);
        std::vector<std::pair<Pixelmaske, Flaechenpunkt>> masken;
        for (int i = 0; i < 120; ++i) {
            Pixelmaske m(0, 0, w(1, 90), w(1, 40));
            for (int y = 0; y < m.hoehe; ++y) {
                for (int x = 0; x < m.weite; ++x) {
                    if (w(0, 3) != 0) m.Setze(x, y);
                }
            }
            masken.emplace_back(m, Flaechenpunkt{w(-60, 220), w(-30, 110)});
        }
        const auto zeichne = [&](Pixelbild& bild, std::size_t i) {
            bild.Maske(masken[i].first, masken[i].second.x, masken[i].second.y,
                       static_cast<std::uint32_t>(i + 1));
            bild.Linie(masken[i].second, masken[(i + 1) % masken.size()].second,
                       static_cast<std::uint32_t>(i + 1), Strichart::Voll);
        };
        hinten.bild.SetzeAusschnitt(ausschnitt);
        vorn.bild.SetzeAusschnitt(ausschnitt);
        for (std::size_t i = masken.size(); i-- > 0;)
            zeichne(hinten.bild, i);
        vorn.bild.BeginneVonVorn();
        for (std::size_t i = 0; i < masken.size(); ++i) {
            const Rechteck r{w(-20, 199), w(-20, 99), w(0, 230), w(0, 130)};
            bool verdeckt = true;
            for (int y = std::max(r.oben, ausschnitt.oben); y <= std::min(r.unten, ausschnitt.unten); ++y) {
                for (int x = std::max(r.links, ausschnitt.links); x <= std::min(r.rechts, ausschnitt.rechts);
                     ++x)
                    verdeckt = verdeckt && vorn.pixel[static_cast<std::size_t>(y * 200 + x)] != 0;
            }
            ASSERT_TRUE(verdeckt || !vorn.bild.Verdeckt(r)) << "something could still be seen there";
            zeichne(vorn.bild, i);
        }
        ASSERT_TRUE(vorn.bild.Verdeckt({0, 0, 199, 99}) ==
                    (vorn.Gesetzt(0).size() ==
                     20000U - static_cast<std::size_t>((ausschnitt.rechts - ausschnitt.links + 1) *
                                                       (ausschnitt.unten - ausschnitt.oben + 1))));
        vorn.bild.BeendeVonVorn();
        ASSERT_FALSE(vorn.bild.Verdeckt({0, 0, 199, 99}));
        ASSERT_TRUE(vorn.pixel == hinten.pixel);
    }
}

TEST(Pixelbild, VerschobenesLiegtWoEsHingehoert) {
    for (const auto& [dx, dy] : {std::pair{3, 2}, {-3, 2}, {3, -2}, {-3, -2}, {0, 5}, {7, 0}, {0, 0}}) {
        Blatt blatt(11, 9);
        for (std::size_t i = 0; i < blatt.pixel.size(); ++i)
            blatt.pixel[i] = static_cast<std::uint32_t>(i);
        const std::vector<std::uint32_t> vorher = blatt.pixel;
        blatt.bild.Verschiebe(dx, dy);
        for (int y = 0; y < 9; ++y) {
            for (int x = 0; x < 11; ++x) {
                if (x - dx < 0 || x - dx >= 11 || y - dy < 0 || y - dy >= 9) continue;
                ASSERT_EQ(blatt.pixel[static_cast<std::size_t>(y * 11 + x)],
                          vorher[static_cast<std::size_t>((y - dy) * 11 + x - dx)])
                    << dx << "," << dy;
            }
        }
    }
}

}  // namespace
}  // namespace zrw
