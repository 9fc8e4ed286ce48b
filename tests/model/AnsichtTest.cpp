// The view: rounding to pixels, zooming, panning and moving points.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

constexpr auto kOben = std::numeric_limits<std::int64_t>::max();
constexpr auto kUnten = std::numeric_limits<std::int64_t>::min();
constexpr double kInf = std::numeric_limits<double>::infinity();

/// Two points, a label and a line, fitted at 10 m a pixel: (120, 60) and (390, 190).
struct Ansichtsnetz : Probenetz {
    Ansichtsnetz() {
        l.Weite = 600;
        l.Hoehe = 430;
        P(1, 1200, 3400);
        P(2, 3900, 2100);
        T(1, "1").Item->XBiO = 33;
        K(1, 2);
        l.FindWorldMinMax();
        l.Alles(z);
    }
};

TEST(Ansicht, RundenGehtBeiHaelftenZumGeradenNachbarnUndLaeuftNieUeber) {
    for (const double v :
         {0.5, 1.5, 2.5, -0.5, -1.5, -2.5, 0.49999999999999994, 2251799813685247.5, 2251799813685248.5,
          2251799813685249.5, -2251799813685248.5, 4503599627370495.0, 4503599627370497.0}) {
        EXPECT_EQ(RundeZuInt64(v), static_cast<std::int64_t>(std::nearbyint(v))) << v;
    }
    for (const double v : {9223372036854775808.0, 1e300, kInf}) {
        EXPECT_EQ(RundeZuInt64(v), kOben) << v;
        EXPECT_EQ(RundeZuInt64(-v), kUnten) << v;
    }
    EXPECT_EQ(RundeZuInt64(9223372036854774784.0), 9223372036854774784);
    EXPECT_EQ(RundeZuInt64(std::nan("")), kUnten);
}

// Zooming out draws onto the old picture; whoever calls it has cleared before.
TEST(Ansicht, VergroessernLeertUndVerkleinernNicht) {
    Ansichtsnetz n;
    const Zeilen bild{"Leeren 600 430",
                      "Kante zeigen 0x000000 Null ST 120 60 390 190",
                      "Punkt zeigen 0x000000 Krei Em 390 190",
                      "Punkt zeigen 0x000000 Krei Em 120 60",
                      "Text zeigen 0x000000 1 153 55",
                      "Residuen",
                      "Residuenmassstab"};
    Zeilen zweimal{bild[0]};
    zweimal.insert(zweimal.end(), bild.begin(), bild.end());
    EXPECT_EQ(n.z.NimmZeilen(), zweimal);
    n.l.ZoomUp(n.z);
    EXPECT_EQ(n.z.NimmZeilen(),
              (Zeilen{bild[0], "Kante zeigen 0x000000 Null ST 180 90 585 285",
                      "Punkt zeigen 0x000000 Krei Em 585 285", "Punkt zeigen 0x000000 Krei Em 180 90",
                      "Text zeigen 0x000000 1 213 85", bild[5], bild[6]}));
    n.l.ZoomDown(n.z);
    EXPECT_EQ(n.z.NimmZeilen(), Zeilen(bild.begin() + 1, bild.end()));
    EXPECT_DOUBLE_EQ(n.l.Faktor, 10);
}

TEST(Ansicht, SchiebenVersetzenEinpassen) {
    Ansichtsnetz n;
    PunktKnoten& p = *n.l.SuchPkt(1);
    n.K(2, 9).Item->XBiE = 77;  // without a second point: stays
    n.T(9, "9").Item->XO = 78;
    n.z.zeilen.clear();
    n.l.MoveMe(20, 30);  // network to the left and down
    EXPECT_EQ(p.Item->Position(), (Bildpunkt{100, 90}));
    EXPECT_EQ(n.l.XOffset, 200);
    EXPECT_EQ(n.l.YOffset, 300);
    n.l.PasseEin();
    EXPECT_EQ(p.Item->Position(), (Bildpunkt{120, 60}));
    EXPECT_EQ(n.l.FindKante(2, 9)->Item->Ende(), (Bildpunkt{77, 0}));
    EXPECT_EQ(n.l.FindPktText(9)->XO, 78);
    n.l.MovePunkt(p, 5, 7);  // follows the mouse
    EXPECT_EQ(p.Item->Position(), (Bildpunkt{125, 67}));
    EXPECT_EQ(n.l.FindKante(1, 2)->Item->Position(), (Bildpunkt{125, 67}));
    EXPECT_TRUE(p.XWPu == 1250 && p.YWPu == 3330) << p.XWPu << " " << p.YWPu;
    EXPECT_EQ(n.z.NimmZeilen(), Zeilen{});
    n.l.ZentrierPunkt(p, *n.l.SuchPkt(2), n.z);
    EXPECT_EQ(n.z.NimmZeilen(), Zeilen{"Text wischen 1 158 62"});
    EXPECT_EQ(p.Item->Position(), (Bildpunkt{390, 190}));
    EXPECT_TRUE(p.XWPu == 3900 && p.YWPu == 2100) << p.XWPu << " " << p.YWPu;
    n.l.DragPktText(*n.l.PktTextKnoten, n.z);
    EXPECT_EQ(n.l.FindPktText(9)->Textort(), (Bildpunkt{88, -5}));
}

// From the size of atoms to that of the sun's system: as long as doubles can tell pixels apart, every pixel
// comes back, zooming in and out again leads where it began, and the top-left corner stays in place.
TEST(Ansicht, EinBildGleitetNurAlsGanzes) {
    Probenetz n;
    n.P(1, 100, 100);
    n.P(2, 300, 200);
    Ansicht vorher;
    vorher.Faktor = 2.0;
    Ansicht nachher = vorher;
    nachher.SetzeVersatz(vorher.Versatz(), {30, -10});
    EXPECT_TRUE(BewegtSichGleich(n.l, vorher, nachher, {30, -10}));
    EXPECT_FALSE(BewegtSichGleich(n.l, vorher, nachher, {30, -11}));
    nachher.Faktor = 2.1;
    const Bildpunkt a = vorher.Bildort({100, 100});
    const Bildpunkt e = nachher.Bildort({100, 100});
    EXPECT_FALSE(BewegtSichGleich(n.l, vorher, nachher, {e.x - a.x, e.y - a.y})) << "as one point does";
}

TEST(Ansicht, JederMassstabFindetSeinePixelWieder) {
    std::mt19937 zufall(11);
    const auto pixel = [&] { return static_cast<std::int64_t>(zufall() % 20001) - 10000; };
    for (int zehner = -12; zehner <= 12; ++zehner) {
        Ansichtsnetz n;
        n.l.Faktor = std::pow(10.0, zehner) * (1.0 + static_cast<double>(zufall() % 1000) / 999);
        // A place a milliard pixels away has seven digits left below the pixel.
        n.l.XOffset = n.l.Faktor * 1e9 - n.l.MinXW;
        n.l.YOffset = n.l.Faktor * -1e9 - n.l.MaxYW;
        for (int i = 0; i < 40; ++i) {
            SCOPED_TRACE(std::to_string(zehner) + "/" + std::to_string(i));
            const Bildpunkt b{pixel(), pixel()};
            const Welt w = n.l.BildinWelt(b);
            n.l.VersetzePunkt(*n.l.PunktKnoten, w);
            n.l.WeltinBild();
            ASSERT_EQ(n.l.PunktKnoten->Item->Position(), b);
            const Welt ecke = n.l.BildinWelt({});
            const double vorher = n.l.Faktor;
            n.l.ZoomUp(n.z);
            ASSERT_EQ(n.l.BildinWelt({}).rechts, ecke.rechts);
            n.l.ZoomDown(n.z);
            ASSERT_EQ(n.l.PunktKnoten->Item->Position(), b);
            ASSERT_NEAR(n.l.Faktor / vorher, 1.0, 1e-15);
            n.l.Faktor = vorher;
        }
    }
}

}  // namespace
}  // namespace zrw
