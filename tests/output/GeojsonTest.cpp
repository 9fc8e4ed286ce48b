#include "output/Geojson.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

class EinAbgleich final : public Punktergebnisse {
  public:
    void ErneuereErgebnisse() override {}
    [[nodiscard]] const Punktergebnis* ErgebnisZu(std::string_view nummer) const override {
        return nummer == "A\"\xDC" ? &ergebnis_ : nullptr;
    }

  private:
    Punktergebnis ergebnis_{.dY = 12.5, .A = 3.0, .mLBekannt = false, .X = 5600000.125};
};

TEST(Geojson, PunkteUndLinienMitAllemWasBekanntIst) {
    Probenetz n;
    n.P(1, 3500000.5, 5600000.25, PunktArt::NP).Item->PktTyp = PunktTyp::Drei;
    n.P(2, 3500100, 5600100).Item->Visible = false;
    n.T(1, "A\"\xDC");
    n.T(2, "B\x01");
    n.K(1, 2, LinieAttr::AR2).Item->Farbe = n.e.GFCol;
    Speicherdateien dateien;
    EinAbgleich ergebnis;
    SchreibeGeojson(n.l, {.Netztyp = 3, .AbbildungGenannt = true, .EllipsoidGenannt = true}, n.e, &ergebnis,
                    dateien, "aus/netz.geojson");
    EXPECT_EQ(dateien.dateien.at("aus/netz.geojson"),
              "{\"type\":\"FeatureCollection\",\"name\":\"netz\",\"crs\":{\"type\":\"name\",\"properties\":"
              "{\"name\":\"urn:ogc:def:crs:EPSG::31467\"}},\"features\":[\n"
              "{\"type\":\"Feature\",\"properties\":{\"nummer\":\"B \",\"punktart\":\"FP\",\"symbol\":"
              "\"Kreis\",\"sichtbar\":false},\"geometry\":{\"type\":\"Point\",\"coordinates\":"
              "[3500100,5600100]}},\n"
              "{\"type\":\"Feature\",\"properties\":{\"nummer\":\"A\\\"Ü\",\"punktart\":\"NP\",\"symbol\":"
              "\"Dreieck\",\"sichtbar\":true,\"x_ausgeglichen\":5600000.125,\"dY\":12.5,\"dX\":0,\"dH\":0,"
              "\"ellipse_a\":3,\"ellipse_b\":0,\"ellipse_phi\":0,\"mH\":0},\"geometry\":{\"type\":"
              "\"Point\",\"coordinates\":[3500000.5,5600000.25]}},\n"
              "{\"type\":\"Feature\",\"properties\":{\"von\":\"A\\\"Ü\",\"nach\":\"B \",\"beobachtungen\":"
              "\"AR2,ST\",\"grob\":true,\"sichtbar\":true},\"geometry\":{\"type\":\"LineString\","
              "\"coordinates\":[[3500000.5,5600000.25],[3500100,5600100]]}}\n]}\n");
}

TEST(Geojson, WerteOhneNamenUndPunkteOhneOrt) {
    // As damaged picture files bring them.
    Probenetz n;
    n.P(1, 1, 2).Item->PktTyp = static_cast<PunktTyp>(111);
    n.P(2, std::numeric_limits<double>::quiet_NaN(), 2);
    n.P(3, 5, 6);
    n.K(1, 3).Item->LAttr = static_cast<LinieAttr>(200);
    n.K(1, 2);
    Speicherdateien dateien;
    SchreibeGeojson(n.l, {}, n.e, nullptr, dateien, "n.geojson");
    const std::string& text = dateien.dateien.at("n.geojson");
    EXPECT_NE(text.find("\"symbol\":\"\""), std::string::npos) << text;
    EXPECT_NE(text.find("\"beobachtungen\":\"ST\""), std::string::npos) << text;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 5) << "two points and one line\n" << text;
}

TEST(Geojson, EpsgNurWoDasNetzEinenBestimmt) {
    struct Fall {
        Netzangaben netz;
        double rechts;
        std::optional<int> epsg;
    };
    for (const Fall& f : {
             Fall{{3, 1, 9, 0}, 3512345, 31467},
             {{3, 1, 6, 0}, 2512345, 31466},
             {{2, 1, 15, 0}, 5400000, 31469},
             {{51, 3, 12, 0}, 4500000, 2398},
             {{3, 6, 9, 1}, 500000, 25832},
             {{3, 6, 9, 1}, 32500000, 4647},
             {{3, 6, 15, 1}, 33500000, 5650},
             {{3, 5, 9, 1}, 400000, 32632},
             {{3, 2, 3, 1}, 400000, 23031},
             {{6, 1, 9, 1}, 3500000, 31467},         // cartesian: always Gauss-Krüger
             {{3, 1, 9, 0}, 4512345, std::nullopt},  // another zone than the meridian's
             {{3, 1, 9, 0}, 12345, std::nullopt},    // local eastings
             {{1, 1, 9, 0}, 3512345, std::nullopt},  // no grid
             {{3, 1, 10, 0}, 3512345, std::nullopt},
             {{3, 4, 9, 0}, 3512345, std::nullopt},
             {{3, 1, 9, 2}, 500000, std::nullopt},
             {{4, 6, 9, 1}, 9.5, std::nullopt},  // angles
         }) {
        Probenetz n;
        n.P(1, f.rechts, 5600000);
        for (const auto& [ks, el] : {std::pair{true, true}, {false, true}, {true, false}}) {
            Netzangaben netz = f.netz;
            netz.AbbildungGenannt = ks;
            netz.EllipsoidGenannt = el;
            EXPECT_EQ(EpsgCode(netz, n.l), ks && el ? f.epsg : std::nullopt)
                << f.rechts << " " << f.netz.Ellipsoid << " " << f.netz.Hauptmeridian;
        }
    }
    Probenetz leer;
    EXPECT_EQ(EpsgCode({3, 1, 9, 0, 0, 0, true, true}, leer.l), std::nullopt);
}

}  // namespace
}  // namespace zrw
