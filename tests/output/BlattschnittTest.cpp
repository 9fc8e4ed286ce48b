#include "output/Blattschnitt.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/Bytes.h"
#include "model/Fehler.h"
#include "model/Punktergebnisse.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

using Lagen = std::vector<std::pair<int, int>>;

/// Sheets of 1000 by 500 m, 1000 by 500 dots of the screen: symbols reach 4 m to each side.
class Blattschnitt : public testing::Test {
  protected:
    static constexpr double kMassstab = 1000 / 25.4 * 96;
    static constexpr Druckseite kSeite{1000, 500, 96};

    /// From (0, 0) on, as (row, column).
    Lagen SchneideBlaetter() {
        Lagen lagen;
        for (const Blatt& b : zrw::Blattschnitt(plan, kMassstab, kSeite, {0, 0})) {
            EXPECT_NEAR(b.ecke.rechts, b.spalte * 1000.0, 1e-6);
            EXPECT_NEAR(b.ecke.hoch, b.zeile * -500.0, 1e-6);
            lagen.emplace_back(b.zeile, b.spalte);
        }
        return lagen;
    }

    Probenetz n;
    Zeichentafel<MerkFlaeche> tafel{n.e};
    Druckplan plan{n.l.Vorlage(), {tafel.zustand, n.e, tafel.netz, tafel.uhr}, tafel.flaeche};
};

TEST_F(Blattschnitt, BlaetterMitPunktenUndGequertenLinien) {
    EXPECT_EQ(SchneideBlaetter(), Lagen{});
    n.P(1, 10, -10);
    n.P(2, 990, -490);
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}}));
    n.P(3, -10, 10);
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{-1, -1}, {0, 0}}));
    n.P(4, 3500, -1900);
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{-1, -1}, {0, 0}, {3, 3}}));
    // From (10, -10) to (3500, -1900) the line passes y = -500 at x = 915, -546 at 1000, -1000 at 1838 ...
    n.K(4, 1);
    const Lagen mitLinie{{-1, -1}, {0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 2}, {3, 2}, {3, 3}};
    EXPECT_EQ(SchneideBlaetter(), mitLinie);
    n.l.ShowBeob = false;
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{-1, -1}, {0, 0}, {3, 3}}));
    n.l.ShowBeob = true;
    n.l.SuchPkt(4)->Item->Visible = false;
    n.l.KanteKnoten->Item->Visible = false;
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{-1, -1}, {0, 0}}));
    // Straight up, through three sheets.
    n.P(5, 500, 900);
    n.K(1, 5);
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{-2, 0}, {-1, -1}, {-1, 0}, {0, 0}}));
}

class EinFehler final : public Punktergebnisse {
  public:
    void ErneuereErgebnisse() override {}
    [[nodiscard]] const Punktergebnis* ErgebnisZu(std::string_view /*nummer*/) const override {
        return &werte;
    }
    Punktergebnis werte;
};

TEST_F(Blattschnitt, WasUeberDenRandRagtBrauchtSeinBlatt) {
    n.P(1, 100, -496);
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}, {1, 0}})) << "half a symbol";
    n.l.VersetzePunkt(*n.l.SuchPkt(1), {100, -490});
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}}));
    n.T(1, "123456").Item->XBiO = 860;  // 36 dots wide
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}}));
    n.l.PktTextKnoten->Item->XBiO = 870;
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}, {0, 1}})) << "half a number";
    n.l.ShowPktText = false;
    EinFehler ergebnis;
    ergebnis.werte.A = 20;
    tafel.zustand.Ergebnisse = &ergebnis;
    n.l.ShowLGGen = true;
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}, {1, 0}})) << "an ellipse";
    ergebnis.werte = {.dY = -101};
    n.l.ShowLgRes = true;
    EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, -1}, {0, 0}})) << "a residual";
}

TEST_F(Blattschnitt, WenigsteBlaetterUndDerPlanInDerenMitte) {
    ByteSchreiber vorher;
    n.l.Store(vorher, tafel.netz);
    const auto ecken = [&] {
        std::vector<Welt> orte;
        for (const Blatt& b : Blattaufteilung(plan, kMassstab, kSeite))
            orte.push_back(b.ecke);
        EXPECT_TRUE(orte.size() != 1 || Blattaufteilung(plan, kMassstab, kSeite)[0] == Blatt{});
        return orte;
    };
    EXPECT_TRUE(ecken().empty());
    n.P(1, -300, 300);
    n.P(2, 300, 100);
    ASSERT_EQ(SchneideBlaetter().size(), 2U) << "from the corner";
    ASSERT_EQ(ecken().size(), 1U);
    EXPECT_NEAR(ecken()[0].rechts, -500, 1);
    EXPECT_NEAR(ecken()[0].hoch, 450, 1);
    // Upper left and lower right: two sheets, but only with their edge between 300 and 400.
    n.P(3, 400, -600);
    n.P(4, 1300, -650);
    EXPECT_EQ(ecken().size(), 2U);
    n.P(5, 1250, 250);
    EXPECT_EQ(ecken().size(), 3U);
    const auto alle = ecken();
    EXPECT_NEAR(alle.back().rechts, 350, 50) << "in the middle it would take four";
    EXPECT_NEAR((alle.front().hoch + alle.back().hoch - 500) / 2, (300 - 650) / 2, 1);
    EXPECT_EQ(n.e.PTSize, Einstellungen().PTSize);
    EXPECT_EQ(tafel.zustand.flaeche, &tafel.flaeche);
}

TEST_F(Blattschnitt, RunderMassstabFuerEinBlatt) {
    EXPECT_FALSE(PassenderMassstab(plan, kSeite)) << "nothing";
    n.P(1, 0, 0);
    EXPECT_FALSE(PassenderMassstab(plan, kSeite)) << "one place";
    // 1000 dots are 264.58 mm, less 8 for the symbols; 500 are 132.29, less 8.
    struct Fall {
        double x, y, massstab;
    };
    PunktKnoten& p = n.P(2);
    for (const Fall& f : {Fall{262, 0, 1000},
                          {263, 0, 2000},
                          {524, 10, 2000},
                          {5, 260.3, 2500},
                          {0, 330, 5000},
                          {0.1, 0, 1},
                          {262e3, 0, 1e6},
                          {0, -1298e3, 1e7}}) {
        n.l.VersetzePunkt(p, {f.x, f.y});
        EXPECT_EQ(PassenderMassstab(plan, kSeite), f.massstab) << f.x << " " << f.y;
    }
    n.e.PTSize = 2000;
    EXPECT_FALSE(PassenderMassstab(plan, kSeite)) << "no scale makes symbols smaller";
}

TEST_F(Blattschnitt, LehntUnsinnigVieleAb) {
    n.P(1, 10, -10);
    PunktKnoten& p = n.P(2);
    PunktKante& k = n.K(1, 2);
    for (const double nirgends :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        n.l.VersetzePunkt(p, {nirgends, p.YWPu});
        k.Item->Visible = false;
        EXPECT_EQ(SchneideBlaetter(), (Lagen{{0, 0}})) << nirgends;
    }
    k.Item->Visible = true;
    for (const double fern : {401e3, -1e9, 1e10, -1e300}) {
        n.l.VersetzePunkt(p, {fern, p.YWPu});
        EXPECT_THROW(static_cast<void>(SchneideBlaetter()), Fehler) << fern;
        EXPECT_THROW(static_cast<void>(Blattaufteilung(plan, kMassstab, kSeite)), Fehler) << fern;
    }
    // One sheet of so many is at the top and holds something.
    n.l.VersetzePunkt(p, {401e3, 1000});
    const auto erstes = ErstesBlatt(plan, kMassstab, kSeite);
    ASSERT_TRUE(erstes);
    EXPECT_NEAR(erstes->ecke.hoch, 1004, 1);
    EXPECT_NEAR(erstes->ecke.rechts, 401e3 - 401e3 * 495 / 1010, 500) << "where the line comes in";
}

}  // namespace
}  // namespace zrw
