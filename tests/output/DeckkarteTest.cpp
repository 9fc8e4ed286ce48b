#include "output/Deckkarte.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "output/Deckung.h"

namespace zrw {
namespace {

/// Squares of any picture, asked for one by one and in rectangles, against its pixels.
TEST(Deckkarte, TellsWhatIsCoveredWithItsSurroundings) {
    constexpr int kKartenweite = 300;
    constexpr int kKartenhoehe = 101;
    constexpr Rechteck kTeil{3, 9, 270, 98};
    std::minstd_rand zufall(5);
    const auto wuerfle = [&](int bis) {
        return static_cast<std::int32_t>(zufall() % static_cast<unsigned>(bis));
    };
    Deckkarte karte;
    EXPECT_FALSE(karte.Verdeckt({0, 0, 1, 1}));
    EXPECT_FALSE(karte.Umgeben(0, 0));
    Deckung deckung;
    deckung.BeginneDeckung(kKartenweite, kKartenhoehe, kTeil);
    int umgeben = 0;
    for (int runde = 0; runde < 40; ++runde) {
        // Rows of figures as they come, some of them over the picture's left side.
        for (int n = 0; n < 40; ++n) {
            const Rechteck r = Geschnitten(
                {wuerfle(kKartenweite), wuerfle(kKartenhoehe), kKartenweite, kKartenhoehe}, kTeil);
            if (Leer(r)) continue;
            std::vector<std::uint64_t> zeilen(
                static_cast<std::size_t>(1 + wuerfle(std::min(r.unten - r.oben + 1, 40))),
                Darin(r.links - 5, r));
            std::vector<std::uint64_t> frei(zeilen.size());
            std::vector<std::uint64_t> erwartet;
            for (std::size_t i = 0; i < zeilen.size(); ++i) {
                std::uint64_t w = 0;
                for (int b = 0; b < 64; ++b) {
                    const int x = r.links - 5 + b;
                    const bool neu = (zeilen[i] >> b & 1U) != 0 &&
                                     !deckung.GenauVerdeckt(
                                         {x, r.oben + static_cast<int>(i), x, r.oben + static_cast<int>(i)});
                    w |= std::uint64_t{neu} << b;
                }
                erwartet.push_back(w);
            }
            deckung.DeckeZeilen(r.links - 5, static_cast<std::size_t>(r.oben), zeilen, frei.data());
            ASSERT_EQ(frei, erwartet);
        }
        for (std::int32_t y = 0; y < kKartenhoehe; y += 8) {
            for (std::int32_t x = 0; x < kKartenweite; x += 64) {
                const Rechteck block = Geschnitten({x, y, x + 63, y + 7}, kTeil);
                ASSERT_EQ(deckung.Verdeckt(block), deckung.GenauVerdeckt(block)) << x << " " << y;
            }
        }
        karte.BeginneKarte(kKartenweite, kKartenhoehe);
        karte.NimmTeil(deckung, 0, 0);
        const std::int32_t rand = 1 + wuerfle(40);
        karte.BeginneUmgebungen(rand);
        const auto verdeckt = [&](const Rechteck& r) {
            const Rechteck sicht = Geschnitten(r, {0, 0, kKartenweite - 1, kKartenhoehe - 1});
            const Rechteck quadrate{sicht.links & ~7, sicht.oben & ~7,
                                    std::min(sicht.rechts | 7, kKartenweite - 1),
                                    std::min(sicht.unten | 7, kKartenhoehe - 1)};
            return Leer(sicht) || deckung.GenauVerdeckt(quadrate);
        };
        for (int n = 0; n < 200; ++n) {
            const Rechteck r{wuerfle(400) - 50, wuerfle(200) - 50, wuerfle(400), wuerfle(200)};
            if (Leer(r)) continue;
            ASSERT_EQ(karte.Verdeckt(r), verdeckt(r))
                << r.links << " " << r.oben << " " << r.rechts << " " << r.unten;
            const int weit = (rand + 7) & ~7;
            const Rechteck nahe{r.links - weit, r.oben - weit, r.links + weit, r.oben + weit};
            const bool dort = r.links >= 0 && r.oben >= 0 && r.links < kKartenweite && r.oben < kKartenhoehe;
            ASSERT_EQ(karte.Umgeben(r.links, r.oben), dort && verdeckt(nahe)) << runde << " " << rand;
            umgeben += karte.Umgeben(r.links, r.oben) ? 1 : 0;
        }
    }
    EXPECT_GT(umgeben, 100);
    karte.BeginneKarte(kKartenweite, kKartenhoehe);
    karte.BeginneUmgebungen(Deckkarte::kWeiteste);
    EXPECT_TRUE(karte.Umgeben(150, 50)) << "all is covered until parts are taken";
    karte.BeginneKarte(kKartenweite, kKartenhoehe);
    karte.BeginneUmgebungen(Deckkarte::kWeiteste + 1);
    EXPECT_FALSE(karte.Umgeben(150, 50));
}

}  // namespace
}  // namespace zrw
