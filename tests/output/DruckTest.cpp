// Printing at scale: where things come to lie on the sheet, and that a job leaves nothing behind.
#include "output/Druck.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "model/Bytes.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

class Druck : public testing::Test {
  protected:
    Druck() {
        n.l.Weite = 800;
        n.l.Hoehe = 600;
        n.l.MaxYW = 1000;
        n.l.Faktor = 7.5;
        n.P(1, 0, 1000);
        n.P(2, 250, 1000);
        n.T(1, "A");
        n.T(2, "B");
        n.K(1, 2);
        n.l.WeltinBild();
        blatt.sichtbar = {0, 0, 4723, 3306};
    }

    [[nodiscard]] std::string Stand() const {
        ByteSchreiber f;
        n.l.Store(f, tafel.netz);
        return std::string(f.Inhalt()) + std::to_string(n.e.PTSize) + std::to_string(n.e.Querstrich);
    }
    void DruckeBlatt(double aufloesung) {
        zrw::DruckePlan(n.l.Vorlage(), mittel, Geraetegroessen(n.e, aufloesung / kBildaufloesung), blatt,
                        {25000, "25000", {4724, 3307, aufloesung}});
    }

    Probenetz n;
    Zeichentafel<MerkFlaeche> tafel{n.e};
    Zeichenzustand& zustand = tafel.zustand;
    Zeichenmittel mittel{zustand, n.e, tafel.netz, tafel.uhr};
    MerkFlaeche blatt;
};

TEST_F(Druck, MassstabSymboleUndSchriftAufDemBlatt) {
    // 250 m at 1:25000 are 10 mm: 236 dots of 600 to the inch. The circle of 4 px becomes one of 25 dots, the
    // label's offset (10, -5) px becomes (62, -31) dots, halves to even.
    const std::string vorher = Stand();
    DruckeBlatt(600);
    const auto enthaelt = [&](const char* zeile) {
        return std::find(blatt.zeilen.begin(), blatt.zeilen.end(), zeile) != blatt.zeilen.end();
    };
    EXPECT_TRUE(enthaelt("Ellipse -25 -25 25 25"));
    EXPECT_TRUE(enthaelt("Ellipse 211 -25 261 25"));
    EXPECT_TRUE(enthaelt("Text 0x000000 62 -31 A"));
    EXPECT_TRUE(enthaelt("Text 0x000000 298 -31 B"));
    EXPECT_EQ(Stand(), vorher);
    EXPECT_TRUE(tafel.flaeche.zeilen.empty());
}

TEST_F(Druck, LegendeStehtImSelbenEckUndBehaeltDenMassstab) {
    n.l.ShowLegende = true;
    n.l.Legend = Legende::Create();
    DruckeBlatt(600);
    const auto rahmen = std::find_if(blatt.zeilen.begin(), blatt.zeilen.end(),
                                     [](const std::string& z) { return z.starts_with("Rechteck"); });
    ASSERT_NE(rahmen, blatt.zeilen.end());
    // (2, 2) px are (12, 12) dots, the frame's two px 12, its least width of 150 px 938; 8 lines of 12 dots.
    EXPECT_EQ(*rahmen, "Rechteck 0 0 950 108");
    EXPECT_NE(std::find(blatt.zeilen.begin(), blatt.zeilen.end(), "Text 0x000000 12 48 Ma\xDFstab 1:25000"),
              blatt.zeilen.end());
    EXPECT_EQ(n.l.Legend->Position(), (Bildpunkt{2, 2}));
}

TEST_F(Druck, AusgabebereichInBildpunkten) {
    // A sheet of 200 by 140 mm at 1:25000 covers 5000 by 3500 m.
    const Bildpunkt ecke = Ausgabebereich(n.l, 25000, {4724, 3307, 600});
    EXPECT_EQ(ecke, (Bildpunkt{667, 467}));
}

}  // namespace
}  // namespace zrw
