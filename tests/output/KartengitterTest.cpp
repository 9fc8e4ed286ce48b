#include "output/Kartengitter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "geo/Zrwgeo.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

constexpr Farbe kBlau{0xFF0000};

class Gitter : public testing::Test {
  protected:
    /// A picture of 800 x 600 pixels with its top-left corner at a world position.
    void SetzeAusschnitt(Welt ecke, double faktor) {
        l.Weite = 800;
        l.Hoehe = 600;
        l.MinXW = ecke.rechts;
        l.MaxYW = ecke.hoch;
        l.Faktor = faktor;
    }
    /// World position of a geographic one, for networks on Bessel's ellipsoid in the zone of 9 degrees.
    static Welt Ort(double breite, double laenge) {
        const Ellipsoid b = EllipsoidRadii(1, Grad{50});
        const Gitterpunkt g = GeoToGrid(Abbildung::GaussKrueger, 9, Grad{laenge}, Grad{breite}, b.f, b.a);
        return {g.rechts, g.hoch};
    }
    Zeilen Blaetter() {
        Kartengitter({&flaeche, nullptr, kBlau}, l).Kartenblaetter(netz);
        return flaeche.NimmZeilen();
    }
    Zeilen Quadrate() {
        Kartengitter({&flaeche, nullptr, kBlau}, l).Kilometerquadrate();
        return flaeche.NimmZeilen();
    }
    /// Numbers among drawn lines.
    static std::multiset<std::string> Nummern(const Zeilen& zeilen) {
        std::multiset<std::string> nummern;
        for (const std::string& z : zeilen) {
            if (z.starts_with("Text")) nummern.insert(z.substr(z.rfind(' ') + 1));
        }
        return nummern;
    }

    Einstellungen e;
    Liste l{e};
    Netzangaben netz;
    MerkFlaeche flaeche;
};

// Sheets that everybody can look up: 5521 Gedern, 5421 Ulrichstein, 5422 Herbstein, 5522 Freiensteinau.
TEST_F(Gitter, BlattnummernStehenInIhremBlatt) {
    // Ulrichstein reaches from 9°10' to 9°20' E and from 50°36' to 50°30' N.
    SetzeAusschnitt(Ort(50.62, 9.1), 40);
    const Zeilen zeilen = Blaetter();
    EXPECT_EQ(zeilen[0], "Stift 0xFF0000 1");
    const auto nummern = Nummern(zeilen);
    EXPECT_TRUE(nummern.contains("5421") && nummern.contains("5422") && nummern.contains("5521"))
        << nummern.size();
    const Bildpunkt ecke = l.Bildort(Ort(50.5, 9 + 1.0 / 3));  // south-west corner of Herbstein
    EXPECT_NE(std::find(zeilen.begin(), zeilen.end(),
                        "Text 0xFF0000 " + std::to_string(ecke.x + 16) + " " + std::to_string(ecke.y - 22) +
                            " 5422"),
              zeilen.end());
    // The meridian between the two sheets passes through that corner.
    EXPECT_TRUE(std::any_of(zeilen.begin(), zeilen.end(), [&](const std::string& z) {
        return z.starts_with("Linie") &&
               z.ends_with(" " + std::to_string(ecke.x) + " " + std::to_string(ecke.y));
    }));
}

TEST_F(Gitter, BeginntMitDemBlattDerEcke) {
    struct Fall {
        double breite, laenge;
        const char* erste;
    };
    // Just inside a sheet; north of 56 degrees and west of 5°40' the arithmetic goes on with negative
    // numbers.
    for (const Fall& f :
         {Fall{50.5999, 9.1667, "5421"}, Fall{50.6001, 9.1667, "5321"}, Fall{50.5999, 9.1666, "5420"},
          Fall{56.25, 9.1667, "-179"}, Fall{50.5999, 5.4, "5399"}}) {
        SetzeAusschnitt(Ort(f.breite, f.laenge), 20);
        Speicherdateien d;
        DXFUnit dxf(d);
        dxf.DxfFileName = "a";
        dxf.DxfOpen();
        Kartengitter({nullptr, &dxf, kBlau}, l).Kartenblaetter(netz);
        dxf.DxfClose();
        dxf.ErsetzeZiel();
        const std::string& text = d.dateien["a"];
        const std::size_t erster = text.find("  1\r\n");
        ASSERT_NE(erster, std::string::npos) << f.erste;
        EXPECT_EQ(text.substr(erster + 5, text.find('\r', erster + 5) - erster - 5), f.erste) << f.breite;
    }
}

TEST_F(Gitter, KilometerquadrateMitNummern) {
    SetzeAusschnitt({3512400, 5679800}, 5);  // 4 km by 3 km
    const Zeilen zeilen = Quadrate();
    // Numbers begin at the first whole kilometre below the top, lines at the top.
    EXPECT_EQ(zeilen[0], "Text 0xFF0000 -64 338 35561278");
    EXPECT_TRUE(std::find(zeilen.begin(), zeilen.end(), "Linie 120 160 120 360") != zeilen.end());
    EXPECT_EQ(Nummern(zeilen),
              (std::multiset<std::string>{"35561276", "35561277", "35561278", "35561376", "35561377",
                                          "35561378", "35561476", "35561477", "35561478", "35561576",
                                          "35561577", "35561578", "35561676", "35561677", "35561678"}));
    EXPECT_TRUE(std::find(zeilen.begin(), zeilen.end(), "Linie -80 160 120 160") != zeilen.end());
    EXPECT_EQ(std::count(zeilen.begin(), zeilen.end(), "Linie 120 -40 120 160"), 1);
    SetzeAusschnitt({-1500, 1500}, 5);
    const Zeilen westlich = Quadrate();
    EXPECT_EQ(std::count(westlich.begin(), westlich.end(), "Linie -100 100 100 100"), 1);
    // Fewer digits give what there is.
    SetzeAusschnitt({-500, 1500}, 5);
    EXPECT_TRUE(Nummern(Quadrate()).contains("00") && Nummern(Quadrate()).contains("10"));
    // Too narrow for their numbers: 48 dots a number, 40 a square.
    SetzeAusschnitt({3512400, 5679800}, 25);
    const Zeilen eng = Quadrate();
    EXPECT_TRUE(Nummern(eng).empty());
    EXPECT_GT(eng.size(), 300U);
}

}  // namespace
}  // namespace zrw
