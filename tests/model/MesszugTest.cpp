// Lengths and bearings of measured legs, and the table of them.
#include "model/Messzug.h"

#include <gtest/gtest.h>

#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

TEST(Messzug, StreckeUndRichtungInJedemQuadranten) {
    constexpr Welt kVon{3512345.678, 5601234.567};
    const struct {
        double dY, dX;
        const char *laenge, *richtung;
    } faelle[] = {{0, 100, "100.000", "0.0000"},         {100, 100, "141.421", "50.0000"},
                  {100, 0, "100.000", "100.0000"},       {30, -40, "50.000", "159.0334"},
                  {0, -100, "100.000", "200.0000"},      {-100, 0, "100.000", "300.0000"},
                  {-1, 1, "1.414", "350.0000"},          {-1e-6, 1000, "1000.000", "0.0000"},
                  {-0.01, 1000, "1000.000", "399.9994"}, {0, 0, "0.000", "0.0000"}};
    for (const auto& f : faelle) {
        const Messstrecke s = MissStrecke(kVon, {kVon.rechts + f.dY, kVon.hoch + f.dX});
        EXPECT_EQ(Metertext(s.laenge), f.laenge) << f.dY << " " << f.dX;
        EXPECT_EQ(Richtungstext(s.richtung), f.richtung) << f.dY << " " << f.dX;
        EXPECT_TRUE(s.richtung.wert >= 0 && s.richtung.wert < 400);
    }
}

TEST(Messzug, TabelleMitNummernUndFreienStellen) {
    Probenetz n;
    n.P(1, 10, 20);
    n.T(1, "K\xDCHBG");
    Messzug z;
    z.NimmEcke({{10, 20}, "K\xDCHBG"});
    z.NimmEcke({{10, 30}, {}});
    z.NimmEcke({{13, 26}, "fehlt"});
    z.PruefeNummern(n.l);
    EXPECT_EQ(z.Tabelle(),
              "Von\tNach\tdY [m]\tdX [m]\tStrecke [m]\tRichtungswinkel [gon]\n"
              "KÜHBG\t10.00 30.00\t0.000\t10.000\t10.000\t0.0000\n"
              "10.00 30.00\t13.00 26.00\t3.000\t-4.000\t5.000\t159.0334\n"
              "Summe\t\t\t\t15.000\t\n");
    n.l.VersetzePunkt(*n.l.SuchPkt(1), {11, 20});
    z.PruefeNummern(n.l);
    EXPECT_TRUE(z.Ecken()[0].nummer.empty()) << "its point is elsewhere";
}

}  // namespace
}  // namespace zrw
