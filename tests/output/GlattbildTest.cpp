// Smooth edges: sharp where a stroke runs along the rows, and the same pixels whatever number of cores and
// whatever part of the picture draws them.
#include "output/Glattbild.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <random>
#include <vector>

#include "output/Pixelbild.h"

namespace zrw {
namespace {

constexpr int kBlattweite = 1200;  ///< some tiles
constexpr int kBlatthoehe = 300;
constexpr std::uint32_t kLeer = 0xFFFFFFFF;
constexpr std::uint32_t kTinte = 0xFF000000;

struct Blatt {
    std::vector<std::uint32_t> pixel =
        std::vector<std::uint32_t>(std::size_t{kBlattweite} * kBlatthoehe, kLeer);
    Bildgrund grund;
    Glattbild bild;

    explicit Blatt(double dichte = 1.0, unsigned helfer = 0) {
        bild.BindeAn({pixel.data(), kBlattweite, kBlatthoehe, kBlattweite, &grund, helfer}, dichte);
    }
    [[nodiscard]] std::uint32_t Pixel(int x, int y) const {
        return pixel[static_cast<std::size_t>(y) * kBlattweite + static_cast<std::size_t>(x)];
    }
    [[nodiscard]] int Grau(int x, int y) const { return static_cast<int>(Pixel(x, y) & 0xFFU); }
};

Deckmaske Probemaske(int weite = 9) {
    constexpr int kHoch = 7;
    std::vector<std::uint8_t> werte(static_cast<std::size_t>(weite) * kHoch);
    for (std::size_t i = 0; i < werte.size(); ++i)
        werte[i] = static_cast<std::uint8_t>(i * 37 % 256);
    return {-3, -2, weite, kHoch, werte};
}

/// Strokes, dashes, masks and rectangles all over the picture and beside it, the same for each number.
void ZeichneZufall(Glattbild& b, const Deckmaske& maske, unsigned saat, bool mitRechtecken) {
    std::minstd_rand zufall(saat);
    const auto zahl = [&](int von, int bis) {
        return von + static_cast<int>(zufall() % static_cast<unsigned>(bis - von + 1));
    };
    for (int i = 0; i < 8000; ++i) {
        const int weit = i % 50 == 0 ? 100000000 : 60;
        const int x = zahl(-40, kBlattweite + 40);
        const int y = zahl(-40, kBlatthoehe + 40);
        const Flaechenpunkt nach{x + zahl(-weit, weit), y + zahl(-weit, weit)};
        const auto farbe = kTinte | static_cast<std::uint32_t>(zahl(0, 0xFFFFFF));
        if (i % 7 == 0) {
            b.Maske(maske, {x, y}, farbe);
        } else if (i % 31 == 0 && mitRechtecken) {
            b.FuelleRechteck({x, y, x + 12, y + 9}, farbe);
        } else {
            b.Linie({x, y}, nach, farbe, 1 + i % 2, i % 3 == 0);
        }
    }
}

TEST(Glattbild, StrokesAlongTheRowsAreSharp) {
    struct Fall {
        double dichte;
        int erste;  ///< row that is drawn, from that of the stroke
        int letzte;
    };
    for (const Fall& f : {Fall{1.0, 0, 0}, {1.25, 0, 0}, {1.5, -1, 0}, {2.0, -1, 0}, {3.0, -1, 1}}) {
        Blatt b(f.dichte);
        b.bild.Linie({20, 50}, {60, 50}, kTinte, 1, false);
        b.bild.Linie({100, 40}, {100, 10}, kTinte, 1, false);
        b.bild.SchliesseAb();
        for (int y = 45; y < 55; ++y)
            EXPECT_EQ(b.Pixel(40, y), y >= 50 + f.erste && y <= 50 + f.letzte ? kTinte : kLeer)
                << f.dichte << " " << y;
        for (int x = 95; x < 105; ++x)
            EXPECT_EQ(b.Pixel(x, 25), x >= 100 + f.erste && x <= 100 + f.letzte ? kTinte : kLeer)
                << f.dichte << " " << x;
        EXPECT_EQ(b.Pixel(20, 50), kTinte);
        EXPECT_EQ(b.Pixel(19, 50), kLeer);
        EXPECT_EQ(b.Pixel(61, 50), kLeer);
    }
}

/// What a stroke covers is its length times its width; dashes leave a third of it.
TEST(Glattbild, StrokesCoverTheirWidth) {
    for (const Flaechenpunkt nach : {Flaechenpunkt{130, 30}, {130, 77}, {130, 130}, {40, 150}, {11, 160}}) {
        for (const double breite : {1.0, 1.5, 2.0}) {
            for (const bool gestrichelt : {false, true}) {
                Blatt b(breite);
                b.bild.Linie({10, 10}, nach, kTinte, 1, gestrichelt);
                b.bild.SchliesseAb();
                double bedeckt = 0;
                for (const std::uint32_t p : b.pixel)
                    bedeckt += (255 - static_cast<int>(p & 0xFFU)) / 255.0;
                const double laenge = std::hypot(nach.x - 10, nach.y - 10);
                const double anteil = gestrichelt ? kStrichlaenge / (kStrichlaenge + kStrichluecke) : 1.0;
                EXPECT_NEAR(bedeckt, laenge * breite * anteil, 0.05 * laenge * breite + 3 * breite)
                    << nach.x << " " << nach.y << " " << breite << " " << gestrichelt;
            }
        }
    }
}

TEST(Glattbild, SamePixelsFromAnyCoresAndParts) {
    const Deckmaske maske = Probemaske();
    for (unsigned saat = 1; saat <= 4; ++saat) {
        const double dichte = saat % 2 == 0 ? 1.5 : 1.0;
        Blatt einer(dichte);
        ZeichneZufall(einer.bild, maske, saat, true);
        einer.bild.SchliesseAb();
        Blatt mehrere(dichte, 3);
        ZeichneZufall(mehrere.bild, maske, saat, true);
        mehrere.bild.SchliesseAb();
        EXPECT_EQ(mehrere.pixel, einer.pixel);
        Blatt stueckweise(dichte);
        for (const Rechteck r : {Rechteck{0, 0, 1030, 70},
                                 {1031, 0, kBlattweite - 1, 70},
                                 {0, 71, kBlattweite - 1, 73},
                                 {0, 74, kBlattweite - 1, kBlatthoehe - 1}}) {
            stueckweise.bild.SetzeAusschnitt(r);
            ZeichneZufall(stueckweise.bild, maske, saat, true);
        }
        stueckweise.bild.SchliesseAb();
        EXPECT_EQ(stueckweise.pixel, einer.pixel);
    }
}

/// Short strokes come ready made where a part has room for all of theirs; in narrow ones they are worked out.
TEST(Glattbild, ShortStrokesAreTheSameInNarrowParts) {
    constexpr int kSchmal = 7;
    for (const double dichte : {1.0, 1.5, 8.0}) {
        const bool vonVorn = dichte == 1.5;
        Blatt frei(dichte);
        Blatt eng(dichte);
        const auto zeichne = [&](Glattbild& bild) {
            ASSERT_TRUE(!vonVorn || bild.BeginneVonVorn());
            for (int i = 0; i < 25 * 25 * 2; ++i) {
                const int dx = i / 2 % 25 - 12;
                const int dy = i / 50 - 12;
                bild.Linie({60 + i % 7, 50}, {60 + i % 7 + dx, 50 + dy},
                           kTinte | static_cast<std::uint32_t>(i * 1234567), 1, i % 2 == 0);
                const Flaechenpunkt ort{100 + (dx + 12) * 30, 20 + (dy + 12) * 4};
                bild.Linie(ort, {ort.x + dx, ort.y + dy}, kTinte, 1, i % 2 == 0);
            }
            vonVorn ? bild.BeendeVonVorn() : bild.SchliesseAb();
        };
        zeichne(frei.bild);
        for (int x = 0; x < kBlattweite; x += kSchmal) {
            eng.bild.SetzeAusschnitt({x, 0, std::min(x + kSchmal, kBlattweite) - 1, kBlatthoehe - 1});
            zeichne(eng.bild);
        }
        EXPECT_TRUE(frei.pixel == eng.pixel) << dichte;
    }
}

/// With room to their right, masks are drawn in longer steps than in a part that ends where they do.
TEST(Glattbild, MasksAreTheSameInLongSteps) {
    for (const int weite : {1, 4, 8, 9, 17, 64, 70, 130}) {
        const Deckmaske maske = Probemaske(weite);
        const Rechteck umfang = maske.Umfang({100, 50});
        for (const bool vonVorn : {false, true}) {
            Blatt frei;
            Blatt eng;
            eng.bild.SetzeAusschnitt(umfang);
            for (Blatt* b : {&frei, &eng}) {
                ASSERT_TRUE(!vonVorn || b->bild.BeginneVonVorn());
                for (int i = 0; i < 12; ++i)
                    b->bild.Maske(maske, {100 + i % 3, 50 - i % 2},
                                  kTinte | static_cast<std::uint32_t>(i * 1234567));
                vonVorn ? b->bild.BeendeVonVorn() : b->bild.SchliesseAb();
            }
            for (int y = umfang.oben; y <= umfang.unten; ++y) {
                for (int x = umfang.links; x <= umfang.rechts; ++x)
                    ASSERT_EQ(frei.Pixel(x, y), eng.Pixel(x, y)) << weite << " " << vonVorn;
            }
        }
    }
}

/// Characters beside each other, of several heights, apart or with pixels in common.
TEST(Glattbild, TextsAreTheSameAsTheirCharacters) {
    std::minstd_rand zufall(11);
    const auto zahl = [&](int von, int bis) {
        return von + static_cast<int>(zufall() % static_cast<unsigned>(bis - von + 1));
    };
    const std::array masken{Probemaske(6),
                            Probemaske(3),
                            Probemaske(9),
                            Probemaske(1),
                            Deckmaske(),
                            Deckmaske(0, -6, 7, 4, std::vector<std::uint8_t>(28, 200)),
                            Deckmaske(0, -3, 4, 5, std::vector<std::uint8_t>(20, 30)),
                            Deckmaske(1, 3, 12, 2, std::vector<std::uint8_t>(24, 90))};
    for (const bool vonVorn : {false, true}) {
        Blatt zusammen;
        Blatt einzeln;
        for (Blatt* b : {&zusammen, &einzeln})
            ASSERT_TRUE(!vonVorn || b->bild.BeginneVonVorn());
        for (int i = 0; i < 3000; ++i) {
            std::vector<Maskenort> text(static_cast<std::size_t>(zahl(1, 40)));
            Flaechenpunkt ort{zahl(-60, kBlattweite), zahl(-8, kBlatthoehe)};
            for (Maskenort& m : text) {
                m = {&masken[static_cast<std::size_t>(zahl(0, 7))], ort};
                ort.x += i % 3 == 0 ? zahl(1, 8) : 13;
            }
            const auto farbe = kTinte | static_cast<std::uint32_t>(zahl(0, 0xFFFFFF));
            zusammen.bild.Masken(text, farbe);
            for (const Maskenort& m : text)
                einzeln.bild.Maske(*m.maske, m.ort, farbe);
        }
        for (Blatt* b : {&zusammen, &einzeln})
            vonVorn ? b->bild.BeendeVonVorn() : b->bild.SchliesseAb();
        EXPECT_TRUE(zusammen.pixel == einzeln.pixel) << vonVorn;
    }
}

/// What is left of the background is not filled anew, whoever drew the frame before.
TEST(Glattbild, FramesDoNotShowThoseBefore) {
    const Deckmaske maske = Probemaske();
    std::minstd_rand zufall(5);
    const auto zahl = [&](int bis) { return static_cast<int>(zufall() % static_cast<unsigned>(bis)); };
    Blatt gespart;
    Blatt gefuellt;
    std::array<Pixelbild, 2> eckig;
    eckig[0].BindeAn({gespart.pixel.data(), kBlattweite, kBlatthoehe, kBlattweite, &gespart.grund, 1});
    eckig[1].BindeAn({gefuellt.pixel.data(), kBlattweite, kBlatthoehe, kBlattweite, &gefuellt.grund, 0});
    for (int bild = 0; bild < 60; ++bild) {
        const Rechteck teil = bild % 5 == 4 ? Rechteck{zahl(600), zahl(150), 600 + zahl(600), 150 + zahl(150)}
                                            : Rechteck{0, 0, kBlattweite - 1, kBlatthoehe - 1};
        const std::uint32_t grund = bild % 11 == 10 ? 0xFFEEDDCC : kLeer;
        const Flaechenpunkt ort{zahl(kBlattweite), zahl(kBlatthoehe)};
        const int art = bild % 4;
        gefuellt.grund.VergissAlles();
        for (std::size_t i = 0; i < 2; ++i) {
            Blatt& b = i == 0 ? gespart : gefuellt;
            const auto strich = [&](int n) { return Flaechenpunkt{ort.x + n * 7 % 83, ort.y - n * 5 % 61}; };
            if (art < 2) {
                b.bild.SetzeAusschnitt(teil);
                b.bild.FuelleRechteck(teil, grund);
                ASSERT_TRUE(art == 0 || b.bild.BeginneVonVorn());
                for (int n = 0; n < 40; ++n) {
                    b.bild.Linie(strich(n), strich(n + 9), kTinte, 1, false);
                    b.bild.Maske(maske, strich(n + 3), 0xFF00AA00);
                }
                art == 0 ? b.bild.SchliesseAb() : b.bild.BeendeVonVorn();
            } else {
                eckig[i].SetzeAusschnitt(teil);
                eckig[i].FuelleRechteck(teil, grund);
                if (art == 3) eckig[i].BeginneVonVorn();
                for (int n = 0; n < 40; ++n)
                    eckig[i].Linie(strich(n), strich(n * 3), kTinte, false);
                if (art == 3) eckig[i].BeendeVonVorn();
                eckig[i].SchliesseAb();
                if (bild % 8 == 6) eckig[i].VerschiebeBild(5, -3);
            }
        }
        ASSERT_TRUE(gespart.pixel == gefuellt.pixel) << bild;
    }
}

/// Drawn in turn from the front, the picture is the same but for rounding, and what is said to be hidden is.
TEST(Glattbild, FromTheFrontGivesTheSamePicture) {
    for (const unsigned helfer : {0U, 2U}) {
        std::minstd_rand zufall(7);
        std::vector<std::array<int, 4>> striche(8000);
        for (auto& s : striche) {
            for (int& v : s)
                v = static_cast<int>(zufall() % 280U) - 60;
        }
        const auto farbe = [](std::size_t i) { return kTinte | static_cast<std::uint32_t>(i * 4057); };
        Blatt hinten(1.0, helfer);
        for (std::size_t i = 0; i < striche.size(); ++i)
            hinten.bild.Linie({striche[i][0], striche[i][1]}, {striche[i][2], striche[i][3]}, farbe(i), 1,
                              false);
        hinten.bild.SchliesseAb();
        Blatt vorn(1.0, helfer);
        ASSERT_TRUE(vorn.bild.BeginneVonVorn());
        const Rechteck kern{70, 90, 110, 110};
        EXPECT_FALSE(vorn.bild.Verdeckt(kern));
        for (std::size_t i = striche.size(); i-- > 0;) {
            vorn.bild.Linie({striche[i][0], striche[i][1]}, {striche[i][2], striche[i][3]}, farbe(i), 1,
                            false);
        }
        vorn.bild.SchliesseAb();
        EXPECT_TRUE(vorn.bild.Verdeckt(kern));
        vorn.bild.Linie({70, 95}, {110, 95}, kTinte, 1, false);
        vorn.bild.BeendeVonVorn();
        int groesster = 0;
        for (int y = 0; y < kBlatthoehe; ++y) {
            for (int x = 0; x < kBlattweite; ++x)
                groesster = std::max(groesster, std::abs(vorn.Grau(x, y) - hinten.Grau(x, y)));
        }
        EXPECT_LE(groesster, 12);
    }
}

}  // namespace
}  // namespace zrw
