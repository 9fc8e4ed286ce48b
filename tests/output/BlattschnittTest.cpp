#include "output/Blattschnitt.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/Fehler.h"
#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

using Lagen = std::vector<std::pair<int, int>>;

/// Sheets of 1000 by 500 m from (0, 0) on, as (row, column).
Lagen Schneide(const Liste& liste) {
    Lagen lagen;
    for (const Blatt& b : Blattschnitt(liste, 10000, {2540, 1270, 645.16}, {0, 0})) {
        EXPECT_NEAR(b.ecke.rechts, b.spalte * 1000.0, 1e-6);
        EXPECT_NEAR(b.ecke.hoch, b.zeile * -500.0, 1e-6);
        lagen.emplace_back(b.zeile, b.spalte);
    }
    return lagen;
}

TEST(Blattschnitt, BlaetterMitPunktenUndGequertenLinien) {
    Probenetz n;
    EXPECT_EQ(Schneide(n.l), Lagen{});
    n.P(1, 10, -10);
    n.P(2, 990, -490);
    EXPECT_EQ(Schneide(n.l), (Lagen{{0, 0}}));
    n.P(3, -10, 10);
    EXPECT_EQ(Schneide(n.l), (Lagen{{-1, -1}, {0, 0}}));
    n.P(4, 3500, -1900);
    EXPECT_EQ(Schneide(n.l), (Lagen{{-1, -1}, {0, 0}, {3, 3}}));
    // From (10, -10) to (3500, -1900) the line passes y = -500 at x = 915, -546 at 1000, -1000 at 1838 ...
    n.K(4, 1);
    const Lagen mitLinie{{-1, -1}, {0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 2}, {3, 2}, {3, 3}};
    EXPECT_EQ(Schneide(n.l), mitLinie);
    n.l.ShowBeob = false;
    EXPECT_EQ(Schneide(n.l), (Lagen{{-1, -1}, {0, 0}, {3, 3}}));
    n.l.ShowBeob = true;
    n.l.SuchPkt(4)->Item->Visible = false;
    n.l.KanteKnoten->Item->Visible = false;
    EXPECT_EQ(Schneide(n.l), (Lagen{{-1, -1}, {0, 0}}));
    // Straight up, through three sheets.
    n.P(5, 500, 900);
    n.K(1, 5);
    EXPECT_EQ(Schneide(n.l), (Lagen{{-2, 0}, {-1, -1}, {-1, 0}, {0, 0}}));
}

TEST(Blattschnitt, LehntUnsinnigVieleAb) {
    for (const double nirgends :
         {std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        Probenetz n;
        n.P(1, 10, -10);
        n.P(2, nirgends, 0);
        n.K(1, 2);
        EXPECT_EQ(Schneide(n.l), (Lagen{{0, 0}})) << nirgends;
    }
    for (const double fern : {1e9, -1e300}) {
        Probenetz n;
        n.P(1, 0, 0);
        n.P(2, fern, 0);
        EXPECT_THROW(static_cast<void>(Schneide(n.l)), Fehler) << fern;
    }
    Probenetz n;
    n.P(1, 0, 0);
    n.P(2, 401e3, 0);
    n.K(1, 2);
    EXPECT_THROW(static_cast<void>(Schneide(n.l)), Fehler);
}

}  // namespace
}  // namespace zrw
