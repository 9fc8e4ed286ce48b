// The mappings against an independent transverse Mercator, the ellipsoid table, the limits of the arithmetic
// and the behaviours that look like mistakes but are meant.
#include "geo/Zrwgeo.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace zrw {
namespace {

constexpr Abbildung kGk = Abbildung::GaussKrueger;
constexpr Abbildung kUtm = Abbildung::Utm;
constexpr Abbildung kSchlicht = Abbildung::Schlicht;
constexpr double kGradJeRadiant = 180.0 / std::numbers::pi;

struct Referenz {
    int ellipsoid;
    Abbildung modus;
    int hauptmeridian;
    double laenge, breite;  // [deg]
    double hoch, rechts;    // [m]
    double konvergenz;      // [deg]
    double massstab;        // [-]
};

// Computed with proj (PROJ 9.1.1, exact algorithm), "laenge breite" on standard input:
//   proj -V -f %.5f +proj=tmerc +lat_0=0 +lon_0=HAUPTMERIDIAN +k_0=K0 +x_0=X0 +a=A +rf=RF
// with K0 = 1 or 0.9996 and X0 = 500000 + zone number * 1000000. Gauss-Krueger rows reach 2 degrees from the
// central meridian, UTM rows 3 degrees, which is the width of their zones. The other ellipsoids differ by
// their two constants only.
constexpr Referenz kReferenzen[] = {
    {1, kGk, 9, 11.0, 5.0, 553169.93200, 3721816.33199, 0.17438319, 1.00060895},
    {1, kGk, 9, 7.0, 20.0, 2213401.31112, 3290697.56647, -0.68429010, 1.00054138},
    {1, kGk, 9, 10.2, -33.9, -3752845.57316, 3610981.35364, -0.66936250, 1.00015181},
    {1, kGk, 9, 10.75, 47.0, 5208203.71787, 3633080.42705, 1.28005585, 1.00021763},
    {1, kGk, 9, 7.9, 50.25, 5568663.23615, 3421554.82806, -0.84576885, 1.00007556},
    {1, kGk, 9, 9.4, 53.5, 5929728.26837, 3526540.30735, 0.32154461, 1.00000864},
    {1, kGk, 9, 11.0, 56.0, 6209724.19350, 3624760.72669, 1.65828705, 1.00019088},
    {1, kGk, 9, 7.0, 65.0, 7212068.05566, 3405672.97452, -1.81274752, 1.00010892},
    {1, kUtm, 9, 12.0, 5.0, 553370.87998, 32832675.17660, 0.26170939, 1.00097045},
    {1, kUtm, 9, 6.0, 48.5, 5375673.62892, 32278423.65647, -2.24777685, 1.00020338},
    {1, kUtm, 9, 12.0, 65.0, 7211047.85823, 32641410.85598, 2.71936863, 0.99984489},
    {2, kUtm, 15, 12.0, 48.5, 5376328.50608, 33278386.21632, -2.24777690, 1.00020340},
    {3, kGk, 12, 13.2, -33.9, -3753284.22107, 4610996.43772, -0.66936250, 1.00015181},
    {4, kUtm, 3, 6.0, 65.0, 7211809.27350, 31641428.38172, 2.71936863, 0.99984489},
    {5, kGk, 9, 7.0, 20.0, 2213616.16161, 3290673.03937, -0.68429011, 1.00054139},
    {6, kGk, 3, 4.75, 47.0, 5208733.78401, 1633096.58060, 1.28005585, 1.00021764},
};

TEST(Zrwgeo, HinUndZurueckTreffenDieReferenz) {
    for (const Referenz& r : kReferenzen) {
        SCOPED_TRACE(testing::Message() << r.ellipsoid << " " << r.laenge << " " << r.breite);
        const Ellipsoid ell = EllipsoidRadii(r.ellipsoid, {r.breite});
        const Gitterpunkt hin = GeoToGrid(r.modus, r.hauptmeridian, {r.laenge}, {r.breite}, ell.f, ell.a);
        EXPECT_NEAR(hin.hoch, r.hoch, 0.0003);
        EXPECT_NEAR(hin.rechts, r.rechts, 0.0003);
        const Geograph her = GridToGeo(r.modus, r.hoch, r.rechts, ell.f, ell.a);
        // On the ground, so that the same bound holds for both directions and every latitude.
        const double nachNorden = (her.breite.wert - r.breite) / kGradJeRadiant * ell.M;
        const double nachOsten =
            (her.laenge.wert - r.laenge) / kGradJeRadiant * ell.N * std::cos(r.breite / kGradJeRadiant);
        EXPECT_NEAR(nachNorden, 0.0, 0.0003);
        EXPECT_NEAR(nachOsten, 0.0, 0.0003);
        for (const auto& [konvergenz, massstab] :
             {std::pair(hin.konvergenz.wert, hin.massstab), {her.konvergenz.wert, her.massstab}}) {
            EXPECT_NEAR(konvergenz, r.konvergenz / 0.9, 2e-7);
            EXPECT_NEAR(massstab, r.massstab, 2e-8);
        }
    }
}

TEST(Zrwgeo, AmHauptmeridianStehenNurZoneUndNullpunkt) {
    const struct {
        Abbildung modus;
        int hauptmeridian;
        double rechts, massstab;
    } faelle[] = {
        {kGk, 9, 3500000.0, 1.0},      {kGk, 12, 4500000.0, 1.0},         {kGk, -3, -500000.0, 1.0},
        {kUtm, 9, 32500000.0, 0.9996}, {kUtm, -9, 29500000.0, 0.9996},    {kUtm, -10, 28500000.0, 0.9996},
        {kSchlicht, 9, 500000.0, 1.0}, {Abbildung{7}, 12, 500000.0, 1.0},
    };
    const Ellipsoid ell = EllipsoidRadii(1, {50.0});
    for (const auto& f : faelle) {
        SCOPED_TRACE(testing::Message() << f.hauptmeridian << " " << f.rechts);
        const double laenge = f.hauptmeridian;
        const Gitterpunkt g = GeoToGrid(f.modus, f.hauptmeridian, {laenge}, {50.0}, ell.f, ell.a);
        EXPECT_EQ(g.rechts, f.rechts);
        EXPECT_EQ(g.konvergenz.wert, 0.0);
        EXPECT_EQ(g.massstab, f.massstab);
    }
}

// The plain inverse leaves the false easting in, which callers rely on: only without it the way back is
// right.
TEST(Zrwgeo, SchlichtNimmtDenNullpunktNichtAb) {
    const Ellipsoid ell = EllipsoidRadii(1, {50.0});
    const Gitterpunkt g = GeoToGrid(kSchlicht, 9, {9.5}, {50.0}, ell.f, ell.a);
    EXPECT_GT(GridToGeo(kSchlicht, g.hoch, g.rechts, ell.f, ell.a).laenge.wert, 16.0);
    EXPECT_NEAR(GridToGeo(kSchlicht, g.hoch, g.rechts - 500000.0, ell.f, ell.a).laenge.wert, 9.5, 4e-9);
}

// Beyond 90 degrees the one-argument arctangent folds a northern point to the south.
TEST(Zrwgeo, JenseitsVon90GradKipptDerHochwert) {
    const Ellipsoid ell = EllipsoidRadii(1, {50.0});
    EXPECT_GT(GeoToGrid(kGk, 9, {98.0}, {50.0}, ell.f, ell.a).hoch, 0.0);
    EXPECT_LT(GeoToGrid(kGk, 9, {100.0}, {50.0}, ell.f, ell.a).hoch, 0.0);
}

TEST(Zrwgeo, EllipsoidTabelle) {
    const struct {
        int nummer;
        double a, kehrwert;
    } faelle[] = {{1, 6377397.155, 299.15281}, {2, 6378388.0, 297.0},         {3, 6378245.0, 298.3},
                  {4, 6378135.0, 298.26},      {5, 6378137.0, 298.257223563}, {6, 6378137.0, 298.257222101}};
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.nummer);
        EXPECT_TRUE(EllipsoidBekannt(f.nummer));
        const Ellipsoid aequator = EllipsoidRadii(f.nummer, {0.0});
        EXPECT_EQ(aequator.a, f.a);
        EXPECT_EQ(aequator.f, 1.0 / f.kehrwert);
        EXPECT_EQ(aequator.N, f.a);
        EXPECT_NEAR(aequator.M, f.a * (1.0 - aequator.f) * (1.0 - aequator.f), 1e-8);
        // Both radii of curvature meet in the polar radius.
        const Ellipsoid pol = EllipsoidRadii(f.nummer, {90.0});
        EXPECT_NEAR(pol.N, f.a / (1.0 - aequator.f), 1e-8);
        EXPECT_NEAR(pol.M, pol.N, 1e-8);
    }
    for (const int nummer : {std::numeric_limits<int>::min(), 0, 7, std::numeric_limits<int>::max()}) {
        EXPECT_FALSE(EllipsoidBekannt(nummer)) << nummer;
        EXPECT_EQ(EllipsoidRadii(nummer, {50.0}).M, EllipsoidRadii(1, {50.0}).M) << "as Bessel's";
    }
}

// Computed with cs2cs (PROJ 9.1.1), "laenge breite hoehe" on standard input:
//   cs2cs -f %.6f +proj=latlong +a=A +rf=RF +to +proj=geocent +a=A +rf=RF
TEST(Zrwgeo, KartesischTrifftDieReferenz) {
    const struct {
        int ellipsoid;
        double laenge, breite, hoehe, x, y, z;
    } faelle[] = {
        {1, 9.0, 51.0, 200.0, 3972152.209360, 629127.104563, 4933197.209675},
        {2, 6.5, 5.0, 0.0, 6313432.334954, 719324.753554, 552190.022359},
        {3, 13.75, 54.25, -30.0, 3627682.504088, 887688.261280, 5153117.113503},
        {4, 85.0, 65.0, 500.0, 235596.720978, 2692882.843137, 5758161.402625},
        {5, 9.0, 51.0, 200.0, 3972637.104953, 629203.904480, 4933700.049418},
        {5, 10.98, 47.42, 2962.0, 4246243.575070, 823848.020762, 4675665.229903},
        {6, -70.0, -33.0, 8848.0, 1833876.214085, -5038533.488274, -3458777.607263},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(testing::Message() << f.ellipsoid << " " << f.laenge << " " << f.breite);
        const GeographHoehe g = CartesianToGeo(f.ellipsoid, f.x, f.y, f.z);
        EXPECT_NEAR(g.breite.wert, f.breite, 1e-10);
        EXPECT_NEAR(g.laenge.wert, f.laenge, 1e-10);
        EXPECT_NEAR(g.hoehe, f.hoehe, 1e-5);
    }
}

TEST(Zrwgeo, KartesischAnDenGrenzen) {
    // The longitude of the far half of the earth comes out as that of the opposite meridian.
    const GeographHoehe g = CartesianToGeo(5, -3972637.104953, 629203.904480, 4933700.049418);
    EXPECT_NEAR(g.laenge.wert, -9.0, 1e-10);
    EXPECT_NEAR(g.breite.wert, 51.0, 1e-10);
    // Deep inside the earth the latitude alternates for ever; on the equator it divides by zero.
    EXPECT_TRUE(std::isfinite(CartesianToGeo(5, 25000.0, 0.0, 3000.0).breite.wert));
    EXPECT_TRUE(std::isnan(CartesianToGeo(5, 6378137.0, 0.0, 0.0).hoehe));
    EXPECT_TRUE(std::isnan(CartesianToGeo(5, 0.0, 0.0, 0.0).breite.wert));
    EXPECT_TRUE(std::isnan(CartesianToGeo(5, std::nan(""), 1.0, 1.0).laenge.wert));
}

}  // namespace
}  // namespace zrw
