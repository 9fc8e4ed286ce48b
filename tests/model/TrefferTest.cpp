// The figure under the mouse: catch box, distance from lines, overlaps and the ends of the number range.
#include <gtest/gtest.h>

#include <limits>

#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

/// World coordinate of a picture position at a metre a pixel; beyond 64 bits positions stop at the ends.
double W(std::int64_t v) {
    return v == kMax ? 1e19 : v == kMin ? -1e19 : static_cast<double>(v);
}

PunktKante& Linie(Probenetz& n, Bildpunkt s, Bildpunkt e) {
    PunktKante& k = n.K(98, 99);  // of no points: it stays where it was stored
    k.Item->XO = s.x;
    k.Item->YO = s.y;
    k.Item->XBiE = e.x;
    k.Item->YBiE = e.y;
    return k;
}

// One box for points, labels and the legend.
TEST(Treffer, DerFangkastenZaehltSeinenRandMit) {
    struct {
        std::uint16_t fang;
        Bildpunkt ort;
        std::int64_t dx, dy;
        bool trifft;
    } constexpr kFaelle[] = {{5, {100, 50}, 5, -5, true},      {5, {100, 50}, -5, 5, true},
                             {5, {100, 50}, 6, 0, false},      {5, {100, 50}, -6, 0, false},
                             {5, {100, 50}, 0, 6, false},      {5, {100, 50}, 0, -6, false},
                             {0, {100, 50}, 0, 0, true},       {0, {100, 50}, 1, 0, false},
                             {9, {kMin, kMax}, 0, 0, true},    {9, {kMax, kMin}, -9, 9, true},
                             {9, {kMax, kMin}, -10, 0, false}, {65535, {kMin, kMax}, kMax, 0, false}};
    for (const auto& f : kFaelle) {
        const Bildpunkt maus{f.ort.x + f.dx, f.ort.y + f.dy};
        Probenetz n;
        n.e.Fang = f.fang;
        n.e.PXOff = 0;
        n.e.PYOff = 0;
        PunktKnoten& p = n.P(1, W(f.ort.x), -W(f.ort.y));
        PunktString& t = n.T(1, "1");
        n.l.Legend->XO = f.ort.x;
        n.l.Legend->YO = f.ort.y;
        n.l.Legend->Move = !f.trifft;
        n.l.MausLegende(maus);
        EXPECT_EQ(n.l.ClickPunkt(maus), f.trifft ? &p : nullptr) << maus.x << " " << maus.y;
        EXPECT_EQ(n.l.MausPktText(maus), f.trifft ? &t : nullptr) << maus.x << " " << maus.y;
        EXPECT_EQ(n.l.Legend->Move, f.trifft) << maus.x << " " << maus.y;
    }
}

TEST(Treffer, DieNeuesteFigurGewinntUndDerTextLiegtNebenDemPunkt) {
    Probenetz n;
    n.l.Legend.reset();
    n.l.MausLegende({2, 2});
    for (const auto& [nr, x, y] : {std::tuple{3, 0, 0}, {4, 100, 0}, {5, 0, -5}, {6, 100, -5}})
        n.P(static_cast<PunktIndex>(nr), x, y);
    n.P(1);
    n.P(2, 4);
    n.T(1, "1");
    n.T(2, "2");
    n.K(3, 4);
    n.K(5, 6);
    EXPECT_EQ(n.l.ClickPunkt({0, 0}), n.l.PunktKnoten);
    EXPECT_EQ(n.l.MausPktText({10, -5}), n.l.PktTextKnoten);
    EXPECT_EQ(n.l.MausPktText({0, 0}), nullptr);
    EXPECT_EQ(n.l.PickKante({50, 0}), n.l.KanteKnoten);
    EXPECT_EQ(n.l.PickGezeigte({50, 0}), n.l.KanteKnoten);
    n.l.KanteKnoten->Item->Visible = false;
    EXPECT_EQ(n.l.PickGezeigte({50, 3}), n.l.KanteKnoten->Next) << "the one below is seen now";
    n.l.ShowBeob = false;
    EXPECT_EQ(n.l.PickGezeigte({50, 3}), nullptr);
    for (bool Darstellung::*schalter : {&Liste::ShowPktText, &Liste::ShowHilfP}) {
        EXPECT_EQ(n.l.ClickGezeigtenText({10, -5}), n.l.PktTextKnoten);
        n.l.*schalter = false;
        EXPECT_EQ(n.l.ClickGezeigtenText({10, -5}), nullptr);
        n.l.*schalter = true;
    }
}

// Figures that no tree can hold must not have it built anew at every question; many moved ones must.
TEST(Treffer, DieBaeumeWerdenNurFuerZuwachsNeuGebaut) {
    constexpr PunktIndex kPunkte = 1000;
    Probenetz n;
    for (PunktIndex i = 1; i <= kPunkte; ++i) {
        n.P(i, i % 40 * 100.0, i / 40 * 100.0);
        n.T(i, std::to_string(i)).Item->XBiO = i % 2 != 0 ? 5000 : 8;  // half of them far
        n.K(i, i % 3 != 0 ? i : 60000);                                // a third leads nowhere
    }
    n.T(7, "7a");
    n.l.FindWorldMinMax();
    n.l.Weite = n.l.Hoehe = 500;
    n.l.PasseEin();
    n.l.Faktor /= 20;
    n.l.WeltinBild();
    const auto frage = [&](std::int64_t i) {
        (void)n.l.ClickPunkt({i, i});
        (void)n.l.MausPktText({i, i});
        (void)n.l.PickKante({i, i});
    };
    for (std::int64_t i = 0; i < 20; ++i)
        frage(i);
    EXPECT_EQ(n.l.Suchbauten(), 1U);
    for (PunktIndex i = 1; i <= kPunkte / 2; ++i)
        n.l.VersetzePunkt(*n.l.SuchPkt(i), {50.0 * i, 0});
    n.l.WeltinBild();
    frage(1);
    frage(2);
    EXPECT_EQ(n.l.Suchbauten(), 2U);
    // Of two labels of one number both follow their point.
    n.l.VersetzePunkt(*n.l.SuchPkt(7), n.l.BildinWelt({100, 100}));
    n.l.WeltinBild();
    EXPECT_NE(n.l.MausPktText({100 + 10, 100 - 5}), nullptr);
    EXPECT_NE(n.l.MausPktText({100 + 5000, 100 - 5}), nullptr);
}

// Such a line stays where it was stored.
TEST(Treffer, EineLinieOhneEndpunktWirdGetroffen) {
    for (const bool vorn : {true, false}) {
        Probenetz n;
        n.P(1, 0, 0);
        PunktKante& k = vorn ? n.K(99, 1) : n.K(1, 99);
        (vorn ? k.Item->XO : k.Item->XBiE) = 100;
        EXPECT_EQ(n.l.PickKante({90, 0}), &k);
        EXPECT_EQ(n.l.PickKante({90, 7}), nullptr);
    }
}

TEST(Treffer, MausPunktVerstecktWasAmOrtLiegtUndBehaeltDenKnotenBeiFehlgriff) {
    Probenetz n;
    PunktKnoten& p = n.P(1, 12);
    n.T(7, "fremd").Item->XO = 12;  // by position, not by number
    n.P(2);
    n.T(2, "2");
    Linie(n, {12, 0}, {50, 50});
    Linie(n, {60, 60}, {12, 0});
    Linie(n, {11, 0}, {50, 50});
    PPunktKnoten u = nullptr;
    EXPECT_TRUE(n.l.MausPunkt({14, -2}, u, n.z));
    EXPECT_FALSE(n.l.MausPunkt({500, 500}, u, n.z));
    EXPECT_EQ(u, &p);
    EXPECT_EQ(n.z.NimmZeilen(), (Zeilen{"Kante wischen Null ST 60 60 12 0",
                                        "Kante wischen Null ST 12 0 50 50", "Text wischen fremd 22 -5"}));
}

TEST(Treffer, LinienZaehlenGanzePixel) {
    constexpr std::int64_t kWeit = 4000000000000;
    struct {
        Bildpunkt s, e, maus;
        bool trifft;
    } constexpr kFaelle[] = {
        {{0, 0}, {2000, 2100}, {709, 753}, true},   // 5.90 px
        {{0, 0}, {2000, 2100}, {707, 751}, true},   // 5.97 px
        {{0, 0}, {2000, 2100}, {706, 750}, false},  // 6.00 px
        {{0, 0}, {100, 0}, {100, 5}, true},         // foot at the end
        {{0, 0}, {100, 0}, {101, 0}, false},        // and beyond
        {{0, 0}, {100, 0}, {-1, 0}, false},
        {{40, 40}, {40, 40}, {40, 40}, false},  // no length
        {{kMin, kMin}, {kMin, kMin}, {kMin, kMin}, false},
        {{40, 40}, {41, 40}, {41, 38}, true},              // hardly any
        {{-kWeit, -kWeit}, {kWeit, kWeit}, {3, 0}, true},  // deep zoom: both ends far outside
        {{-kWeit, -kWeit}, {kWeit, kWeit}, {20, 0}, false},
        {{kMin, 300}, {kMax, 300}, {0, 0}, false},
        {{kMin, 3}, {kMax, 3}, {0, 0}, true},
        {{kMin, 0}, {kMax, 0}, {kMax, kMin}, false}};
    for (const auto& f : kFaelle) {
        Probenetz n;
        PunktKante* soll = f.trifft ? &Linie(n, f.s, f.e) : (Linie(n, f.s, f.e), nullptr);
        EXPECT_EQ(n.l.PickKante(f.maus), soll) << f.e.x << " " << f.maus.x << " " << f.maus.y;
        EXPECT_EQ(Probenetz().l.PickKante(f.maus), nullptr);
    }
}

}  // namespace
}  // namespace zrw
