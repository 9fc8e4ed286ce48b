// Error ellipses against a search over all directions, which knows nothing of eigenvalues.
#include "geo/Fehlerellipse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

namespace zrw {
namespace {

constexpr long double kRho = 200.0L / std::numbers::pi_v<long double>;

/// Standard deviation in a direction, by propagation along its unit vector.
long double Sigma(const Lagekovarianz& k, long double gon) {
    const long double u = std::sin(gon / kRho), v = std::cos(gon / kRho);
    return std::sqrt(std::max(0.0L, u * (u * k.rechts + v * k.beide) + v * (u * k.beide + v * k.hoch)));
}

/// Direction of the largest standard deviation: the best of 400, then golden section.
long double Groesste(const Lagekovarianz& k) {
    long double beste = 0.0L;
    for (int i = 1; i < 400; ++i) {
        if (Sigma(k, 0.5L * i) > Sigma(k, beste)) beste = 0.5L * i;
    }
    long double a = beste - 0.5L, b = beste + 0.5L;
    for (int i = 0; i < 120; ++i) {
        const long double c = b - (b - a) * 0.618L, d = a + (b - a) * 0.618L;
        if (Sigma(k, c) > Sigma(k, d))
            b = d;
        else
            a = c;
    }
    return (a + b) / 2.0L;
}

TEST(Fehlerellipse, HundertZufaellige) {
    std::mt19937 zufall(1);
    std::uniform_real_distribution<double> wert(-30.0, 30.0);
    for (int i = 0; i < 100; ++i) {
        // The product of a matrix with itself turned over is a covariance matrix; every tenth is narrow.
        const double a = wert(zufall), b = wert(zufall), c = wert(zufall);
        const double d = i % 10 == 0 ? c * b / a * 1.0001 : wert(zufall);
        const Lagekovarianz k{a * a + b * b, c * c + d * d, a * c + b * d};
        const auto e = ErmittleFehlerellipse(k);
        ASSERT_TRUE(e) << i;
        const long double phi = Groesste(k);
        EXPECT_NEAR(e->a, static_cast<double>(Sigma(k, phi)), 1e-9 * e->a) << i;
        EXPECT_NEAR(e->b, static_cast<double>(Sigma(k, phi + 100.0L)), 1e-6 * e->a) << i;
        const long double um = std::remainder(static_cast<long double>(e->phi) - phi, 200.0L);
        EXPECT_LT(std::fabs(um) * (e->a - e->b), 1e-6L * e->a) << i;
        EXPECT_NEAR(k.InRichtung(37.0), static_cast<double>(Sigma(k, 37.0L) * Sigma(k, 37.0L)),
                    1e-9 * e->a * e->a);
        // The matrix again from the three numbers.
        const double s = std::sin(e->phi * std::numbers::pi / 200.0),
                     t = std::cos(e->phi * std::numbers::pi / 200.0);
        const double aa = e->a * e->a, bb = e->b * e->b;
        EXPECT_NEAR(aa * s * s + bb * t * t, k.rechts, 1e-9 * aa) << i;
        EXPECT_NEAR(aa * t * t + bb * s * s, k.hoch, 1e-9 * aa) << i;
        EXPECT_NEAR((aa - bb) * s * t, k.beide, 1e-9 * aa) << i;
    }
}

TEST(Fehlerellipse, Grenzfaelle) {
    struct Fall {
        Lagekovarianz k;
        bool da;
        Fehlerellipse soll;
    };
    const double inf = std::numeric_limits<double>::infinity(), nan = std::nan("");
    const Fall faelle[]{
        {{0.0, 0.0, 0.0}, true, {0.0, 0.0, 0.0}},
        {{4.0, 9.0, 0.0}, true, {3.0, 2.0, 0.0}},
        {{9.0, 4.0, 0.0}, true, {3.0, 2.0, 100.0}},
        {{4.0, 4.0, 4.0}, true, {std::sqrt(8.0), 0.0, 50.0}},
        {{4.0, 4.0, -4.0}, true, {std::sqrt(8.0), 0.0, 150.0}},
        {{4.0, 4.0, 4.00001}, true, {std::sqrt(8.00001), 0.0, 50.0}},
        {{4.0, 4.0, 5.0}, false, {}},
        {{-1.0, 4.0, 0.0}, false, {}},
        {{nan, 1.0, 0.0}, false, {}},
        {{inf, 1.0, 0.0}, false, {}},
    };
    for (const Fall& f : faelle) {
        const auto e = ErmittleFehlerellipse(f.k);
        ASSERT_EQ(e.has_value(), f.da) << f.k.rechts << ' ' << f.k.hoch << ' ' << f.k.beide;
        if (!e) continue;
        EXPECT_NEAR(e->a, f.soll.a, 1e-12);
        EXPECT_NEAR(e->b, f.soll.b, 1e-12);
        EXPECT_NEAR(e->phi, f.soll.phi, 1e-9);
    }
}

}  // namespace
}  // namespace zrw
