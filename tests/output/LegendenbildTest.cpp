#include "output/Legendenbild.h"

#include <gtest/gtest.h>

#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

using Legendenzeilen = std::vector<std::string>;

class Legendentest : public testing::Test {
  protected:
    Einstellungen e;
    Zeichentafel<MerkFlaeche> tafel{e};
    MerkFlaeche& flaeche = tafel.flaeche;
    Legende l = Legende::Create();
};

TEST_F(Legendentest, RahmenTexteUndSignaturen) {
    l.Bez1 = "Projekt";
    l.Bez2 = "Los 2";
    l.Masstab = "500";
    l.Show(tafel.zeichner);
    EXPECT_TRUE(l.Visible);
    const Legendenzeilen gezeigt = flaeche.NimmZeilen();
    EXPECT_EQ(gezeigt, (Legendenzeilen{"Stift 0x000000 1",
                                       "Pinsel leer",
                                       "Rechteck 0 0 152 98",
                                       "Text 0x000000 2 2 Zarwik 21.11.2026 09:05:00",
                                       "Text 0x000000 2 14 Projekt",
                                       "Text 0x000000 2 26 Los 2",
                                       "Text 0x000000 2 38 Ma\xDFstab 1:500",
                                       "Text 0x000000 14 50 Anschlu\xDFpunkt 2D,3D",
                                       "Pinsel 0x000000",
                                       "Ellipse 2 52 10 60",
                                       "Text 0x000000 14 62 Anschlu\xDFpunkt 2D",
                                       "Stift 0x808080 1",
                                       "Pinsel 0x808080",
                                       "Ellipse 2 64 10 72",
                                       "Text 0x000000 14 74 Anschlu\xDFpunkt H\xF6he",
                                       "Stift 0x008000 1",
                                       "Pinsel 0x008000",
                                       "Ellipse 2 76 10 84",
                                       "Text 0x000000 14 86 Neupunkt",
                                       "Stift 0x0000FF 1",
                                       "Pinsel 0x0000FF",
                                       "Ellipse 2 88 10 96"}));
    // Wiped where it stands, with the time that stands there.
    tafel.uhr.zeit = "später und länger";
    l.Hide(tafel.zeichner);
    EXPECT_FALSE(l.Visible);
    EXPECT_EQ(l.Zeit, "21.11.2026 09:05:00");
    Legendenzeilen weiss;
    for (const std::string& z : flaeche.NimmZeilen()) {
        EXPECT_TRUE(z.find("0x") == std::string::npos || z.find("0xFFFFFF") != std::string::npos) << z;
        if (!z.starts_with("Stift") && !z.starts_with("Pinsel")) weiss.push_back(z.substr(z.find(' ', 5)));
    }
    EXPECT_EQ(weiss.size(), 13U);
}

// A character is 6 dots wide here.
TEST_F(Legendentest, BreiteNachDenBeschreibungen) {
    const struct {
        std::size_t bez1, bez2;
        std::int32_t breite;
    } faelle[] = {{0, 0, 150},   {25, 25, 150}, {26, 0, 160}, {26, 26, 160},
                  {26, 27, 166}, {0, 26, 160},  {30, 10, 184}};
    for (const auto& f : faelle) {
        l.Bez1.assign(f.bez1, 'x');
        l.Bez2.assign(f.bez2, 'x');
        EXPECT_EQ(Legendenbild(flaeche, e).Breite(l), f.breite) << f.bez1 << " " << f.bez2;
    }
}

TEST_F(Legendentest, AusserhalbGiltSieAlsSichtbarUndZeichnetNicht) {
    for (const std::int32_t x : {2147483647, -2147483647 - 1, 2147483646, 5000, -5000}) {
        l.Drag(x, 10, tafel.zeichner);
        (void)flaeche.NimmZeilen();
        l.Show(tafel.zeichner);
        EXPECT_EQ(flaeche.NimmZeilen(), Legendenzeilen{}) << x;
        EXPECT_TRUE(l.Visible);
    }
    l.Drag(-140, 10, tafel.zeichner);
    EXPECT_FALSE(flaeche.NimmZeilen().empty()) << "partly inside";
}

}  // namespace
}  // namespace zrw
