#include "output/Figurenzeichner.h"

#include <gtest/gtest.h>

#include <limits>

#include "output/Abschneiden.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

using Zeilen = std::vector<std::string>;
constexpr Farbe kRot{0x0000FF};

class Zeichnen : public testing::Test {
  protected:
    /// Strokes of a line from a to e in red, one text line a stroke: "- x y x y" solid, "~ x y x y" dashed.
    Zeilen Kantenstriche(KanteAttr kAttr, LinieAttr lAttr, Bildpunkt a, Bildpunkt e) {
        Kante k = Kante::Create(kRot, kAttr, lAttr);
        k.XO = a.x;
        k.YO = a.y;
        k.XBiE = e.x;
        k.YBiE = e.y;
        k.Show(zeichner);
        Zeilen striche;
        for (const std::string& z : flaeche.NimmZeilen()) {
            if (z.starts_with("Stift")) gestrichelt_ = z.ends_with("gestrichelt");
            if (z.starts_with("Linie")) striche.push_back((gestrichelt_ ? "~" : "-") + z.substr(5));
        }
        return striche;
    }

    Einstellungen einstellungen;
    Zeichentafel<MerkFlaeche> tafel{einstellungen};
    Zeichenzustand& zustand = tafel.zustand;
    MerkFlaeche& flaeche = tafel.flaeche;
    Figurenzeichner& zeichner = tafel.zeichner;

  private:
    bool gestrichelt_ = false;  // the pen keeps its style from one line to the next
};

TEST_F(Zeichnen, SymboleInGroesseUndFuellung) {
    struct Fall {
        PunktTyp typ;
        PunktAttr attr;
        Zeilen erwartet;
    };
    const std::string stift = "Stift 0x0000FF 1";
    for (const Fall& f : {
             Fall{PunktTyp::Pkt, PunktAttr::Fu, {stift, "Pinsel 0x0000FF", "Ellipse 98 48 102 52"}},
             Fall{PunktTyp::Krei, PunktAttr::Em, {"Pinsel 0xFFFFFF", "Ellipse 96 46 104 54"}},
             Fall{PunktTyp::Kreu, PunktAttr::Fu, {"Linie 96 50 104 50", "Linie 100 46 100 54"}},
             Fall{PunktTyp::Qua, PunktAttr::Fu, {"Pinsel 0x0000FF", "Vieleck 96 46 104 46 104 54 96 54"}},
             Fall{PunktTyp::Rau, PunktAttr::Fu, {"Vieleck 100 46 104 50 100 54 96 50"}},
             Fall{PunktTyp::Drei, PunktAttr::Fu, {"Vieleck 100 46 104 54 96 54"}},
             Fall{static_cast<PunktTyp>(77), PunktAttr::Fu, {}},
         }) {
        Punkt p = Punkt::Create(f.typ, kRot, f.attr);
        p.XO = 100;
        p.YO = 50;
        p.Show(zeichner);
        EXPECT_EQ(flaeche.NimmZeilen(), f.erwartet) << static_cast<int>(f.typ);
    }
}

TEST_F(Zeichnen, WischenIstDasselbeInWeiss) {
    Punkt p = Punkt::Create(PunktTyp::Krei, kRot, PunktAttr::Fu);
    p.Hide(zeichner);
    EXPECT_EQ(flaeche.NimmZeilen(), (Zeilen{"Stift 0xFFFFFF 1", "Pinsel 0xFFFFFF", "Ellipse -4 -4 4 4"}));
    PktText t = PktText::Create("12W", kRot, einstellungen);
    t.Show(zeichner);
    t.Hide(zeichner);
    EXPECT_EQ(flaeche.NimmZeilen(), (Zeilen{"Text 0x0000FF 10 -5 12W", "Text 0xFFFFFF 10 -5 12W"}));
}

// On the screen as in the files, where tests/golden_export holds every style with every decoration. The line
// runs to the right, so "across" is downwards in the picture.
TEST_F(Zeichnen, LinienstilAufEinenBlick) {
    const struct {
        LinieAttr stil;
        KanteAttr beobachtet;
        Zeilen erwartet;
    } faelle[] = {
        {LinieAttr::AR1, KanteAttr::ST, {"- 100 50 150 50", "~ 150 50 200 50", "- 156 54 156 46"}},
        {LinieAttr::AST,
         KanteAttr::GPS,
         {"~ 100 50 146 50", "~ 154 50 200 50", "- 154 50 150 54", "- 150 54 146 50", "- 146 50 150 46",
          "- 150 46 154 50"}},
        {LinieAttr::ASTI,
         {},
         {"~ 100 50 142 50", "- 142 50 146 54", "- 146 54 154 54", "- 154 54 158 50", "~ 158 50 172 50",
          "~ 172 50 186 50", "~ 186 50 200 50"}},
        {static_cast<LinieAttr>(99), {}, {}},
    };
    for (const auto& f : faelle) {
        EXPECT_EQ(Kantenstriche(f.beobachtet, f.stil, {100, 50}, {200, 50}), f.erwartet)
            << static_cast<int>(f.stil);
    }
}

TEST_F(Zeichnen, LinieOhneRichtungUndGPSIstWeiss) {
    Kante k = Kante::Create(kRot, KanteAttr::ST, LinieAttr::Null);
    k.XBiE = 50;
    k.Show(zeichner);
    for (const std::string& z : flaeche.NimmZeilen()) {
        if (!z.starts_with("Stift")) continue;
        EXPECT_EQ(z, "Stift 0xFFFFFF 1");
    }
    EXPECT_TRUE(Kantenstriche(KanteAttr::GPS, LinieAttr::AR2, {7, 7}, {7, 7}).empty()) << "zero length";
}

TEST_F(Zeichnen, TextNachModusUndKurzschalter) {
    PktText t = PktText::Create("12340056", kRot, einstellungen);
    zustand.KurzeNummern = true;
    t.Show(zeichner);
    EXPECT_EQ(flaeche.NimmZeilen(), Zeilen{"Text 0x0000FF 10 -5 0056"});
    t.Aus = PunktNummernTyp("1234");
    t.Show(zeichner);
    EXPECT_EQ(flaeche.NimmZeilen(), Zeilen{}) << "four characters and fewer leave nothing";
    zustand.KurzeNummern = false;
    zustand.modus = Zeichenmodus::Drucker;
    zustand.Geraetefaktor = 6.25;
    t.Show(zeichner);
    EXPECT_EQ(flaeche.NimmZeilen(), Zeilen{"Text 0x0000FF 62 -31 1234"}) << "62.5 and -31.25";
}

TEST_F(Zeichnen, FigurenWeitDraussenErreichenDieFlaecheNicht) {
    constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
    Punkt p = Punkt::Create(PunktTyp::Krei, kRot, PunktAttr::Fu);
    for (const std::int64_t x : {std::int64_t{900}, std::int64_t{-900}, std::int64_t{2147483646}}) {
        p.XO = x;
        p.Show(zeichner);
    }
    EXPECT_TRUE(Kantenstriche({}, LinieAttr::AR2, {-100, -5000}, {-5, 5000}).empty());
    EXPECT_TRUE(
        Kantenstriche(KanteAttr::AusMaske(255), LinieAttr::ARI2, {kMax, kMax}, {kMax - 5, kMax}).empty());
    EXPECT_EQ(flaeche.NimmZeilen(), Zeilen{});
}

TEST(AbschneidenTest, LangeLinienKreuzenDasBildAmRechtenOrt) {
    const Rechteck bild{0, 0, 799, 599};
    constexpr std::int64_t kWeit = 4'000'000'000'000'000;
    struct Fall {
        Bildpunkt a, b;
        bool sichtbar;
    };
    for (const Fall& f : {Fall{{-kWeit, 300}, {kWeit, 300}, true}, Fall{{400, kWeit}, {400, -kWeit}, true},
                          Fall{{-kWeit, -kWeit}, {kWeit, kWeit}, true}, Fall{{kWeit, 0}, {0, kWeit}, false},
                          Fall{{INT64_MIN, INT64_MAX}, {INT64_MAX, INT64_MIN}, true}}) {
        const auto teil = SchneideLinieAb(f.a, f.b, bild);
        ASSERT_EQ(teil.has_value(), f.sichtbar);
        if (!teil) continue;
        for (const Flaechenpunkt& p : {teil->first, teil->second}) {
            EXPECT_TRUE(p.x >= -64 && p.x <= 863 && p.y >= -64 && p.y <= 663) << p.x << " " << p.y;
        }
    }
    using Stueck = std::pair<Flaechenpunkt, Flaechenpunkt>;
    EXPECT_EQ(SchneideLinieAb({-kWeit, 300}, {kWeit, 300}, bild), (Stueck{{-64, 300}, {863, 300}}));
    EXPECT_EQ(SchneideLinieAb({400, kWeit}, {400, -kWeit}, bild), (Stueck{{400, 663}, {400, -64}}));
    const auto nah = SchneideLinieAb({-5000, 10}, {700, 20}, bild);
    EXPECT_EQ(nah->first.x, -5000) << "left whole, so that its dots do not depend on what is visible";
}

}  // namespace
}  // namespace zrw
