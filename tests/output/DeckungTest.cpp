#include "output/Deckung.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace zrw {
namespace {

/// What is covered, pixel by pixel and tile by tile, without counts.
struct Vergleich {
    Vergleich(int w, int h, const Rechteck& a)
        : weite(w), ausschnitt(a), belegt(static_cast<std::size_t>(w) * static_cast<std::size_t>(h)) {}
    [[nodiscard]] std::size_t Ort(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(weite) + static_cast<std::size_t>(x);
    }
    [[nodiscard]] bool Ganz(const Rechteck& r) const {
        const Rechteck s = Geschnitten(r, ausschnitt);
        for (int y = s.oben; y <= s.unten; ++y) {
            for (int x = s.links; x <= s.rechts; ++x) {
                if (!belegt[Ort(x, y)]) return false;
            }
        }
        return true;
    }
    /// All tiles of 64 x 8 pixels that the rectangle touches.
    [[nodiscard]] bool GanzeKacheln(const Rechteck& r) const {
        const Rechteck s = Geschnitten(r, ausschnitt);
        return Leer(s) ||
               Ganz({s.links / 64 * 64, s.oben / 8 * 8, s.rechts / 64 * 64 + 63, s.unten / 8 * 8 + 7});
    }
    int weite;
    Rechteck ausschnitt;
    std::vector<bool> belegt;
};

TEST(Deckung, WeissNachJedemPixelWasVerdecktIst) {
    std::mt19937 zufall(11);
    const auto wuerfle = [&](int von, int bis) { return std::uniform_int_distribution(von, bis)(zufall); };
    int verdeckte = 0;
    Deckung d;  // one for all rounds: nothing of the last picture may be left
    for (int runde = 0; runde < 60; ++runde) {
        const int w = wuerfle(1, 300);
        const int h = wuerfle(1, 60);
        const auto rechteck = [&](int rand) {
            const int x = wuerfle(-rand, w - 1 + rand);
            const int y = wuerfle(-rand, h - 1 + rand);
            return Rechteck{x, y, wuerfle(x, w - 1 + rand), wuerfle(y, h - 1 + rand)};
        };
        const Rechteck ausschnitt = runde % 2 == 0 ? Rechteck{0, 0, w - 1, h - 1} : rechteck(0);
        Vergleich v(w, h, ausschnitt);
        d.Beginne(w, h, ausschnitt);
        for (int i = 0; i < 40; ++i) {
            const Rechteck r = Geschnitten(rechteck(0), ausschnitt);
            for (int y = r.oben; y <= r.unten; ++y) {
                if (i % 2 == 0) {
                    for (int x = r.links; x <= r.rechts; ++x) {
                        ASSERT_EQ(d.Nimm(static_cast<std::size_t>(x), static_cast<std::size_t>(y)),
                                  !v.belegt[v.Ort(x, y)]);
                        v.belegt[v.Ort(x, y)] = true;
                    }
                    continue;
                }
                for (int s = r.links / 64; s <= r.rechts / 64; ++s) {
                    std::uint64_t maske = 0;
                    std::uint64_t frei = 0;
                    for (int x = std::max(r.links, s * 64); x <= std::min(r.rechts, s * 64 + 63); ++x) {
                        maske |= std::uint64_t{1} << static_cast<unsigned>(x % 64);
                        if (!v.belegt[v.Ort(x, y)]) frei |= std::uint64_t{1} << static_cast<unsigned>(x % 64);
                        v.belegt[v.Ort(x, y)] = true;
                    }
                    ASSERT_EQ(d.Nimm(static_cast<std::size_t>(s), static_cast<std::size_t>(y), maske), frei);
                }
            }
            for (int frage = 0; frage < 20; ++frage) {
                const Rechteck q = rechteck(40);
                const bool verdeckt = d.Verdeckt(q);
                verdeckte += verdeckt ? 1 : 0;
                ASSERT_TRUE(!verdeckt || v.Ganz(q)) << "a free pixel would stay unseen";
                ASSERT_TRUE(verdeckt || !v.GanzeKacheln(q)) << "nothing of it would be seen";
            }
        }
    }
    EXPECT_GT(verdeckte, 1000);
}

}  // namespace
}  // namespace zrw
