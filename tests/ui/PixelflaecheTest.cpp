// The pixel surface against Qt's painter: inside the picture every stroke, shape and text is the same to the
// pixel.
#include "ui/bild/Pixelflaeche.h"

#include <gtest/gtest.h>

#include <random>

#include "ui/bild/Bildflaeche.h"

namespace zrw {
namespace {

class Pixel : public testing::Test {
  protected:
    int WuerfleZahl(int von, int bis) {
        return von + static_cast<int>(zufall_() % static_cast<unsigned>(bis - von + 1));
    }
    Farbe Farbwahl() { return Farbe{static_cast<std::uint32_t>(zufall_()) & 0xFFFFFFU}; }
    /// Whether the painter and the pixels make the same of a drawing.
    template <class Zeichne>
    bool Gleich(Zeichne zeichne) {
        maler_.SetzeSchnell(false);
        for (Bildflaeche* f : {&maler_, &schnell_}) {
            f->FuelleRechteck({0, 0, kWeite, kHoehe}, kWeiss);
            zeichne(*f);
        }
        return maler_.Bild() == schnell_.Bild();
    }
    static constexpr int kWeite = 160;
    static constexpr int kHoehe = 120;
    Bildflaeche maler_{kWeite, kHoehe};
    Bildflaeche schnell_{kWeite, kHoehe};

  private:
    std::mt19937 zufall_{4};
};

TEST_F(Pixel, StricheWieDerMaler) {
    for (int i = 0; i < 24000; ++i) {
        // Long ones, the short ones that most of a plot consists of, and wide ones inside the picture.
        const bool breit = i % 6 == 5;
        const int rand = breit ? 50 : 0;
        const int weit = i % 2 == 0 ? 1000 : breit && i % 4 == 1 ? 40 : 9;
        const Flaechenpunkt a{WuerfleZahl(rand, kWeite - 1 - rand), WuerfleZahl(rand, kHoehe - 1 - rand)};
        const Flaechenpunkt b{std::clamp(a.x + WuerfleZahl(-weit, weit), 0, kWeite - 1),
                              std::clamp(a.y + WuerfleZahl(-weit, weit), 0, kHoehe - 1)};
        const Stift stift{Farbwahl(), breit ? 2 : 1, i % 3 == 0 ? Strichart::Gestrichelt : Strichart::Voll};
        ASSERT_TRUE(Gleich([&](Zeichenflaeche& f) {
            f.SetzeStift(stift);
            f.Linie(a, b);
        })) << a.x
            << "," << a.y << " " << b.x << "," << b.y << " " << i;
    }
}

TEST_F(Pixel, FormenWieDerMalerAuchAmRand) {
    // The painter in a picture with a margin: at a border it draws shapes from other strokes than inside.
    constexpr int kRand = 40;
    Bildflaeche gross(kWeite + 2 * kRand, kHoehe + 2 * kRand);
    gross.SetzeSchnell(false);
    for (int i = 0; i < 6000; ++i) {
        const Flaechenpunkt o{WuerfleZahl(-20, kWeite + 20), WuerfleZahl(-20, kHoehe + 20)};
        const int r = WuerfleZahl(0, 12);
        const Stift stift{Farbwahl(), 1, Strichart::Voll};
        const Pinsel pinsel{Farbwahl(), i % 3 == 0};
        const auto zeichne = [&](Bildflaeche& f, int d) {
            f.FuelleRechteck({0, 0, 9999, 9999}, kWeiss);
            f.SetzeStift(stift);
            f.SetzePinsel(pinsel);
            const Flaechenpunkt m{o.x + d, o.y + d};
            const Rechteck rechteck{m.x - r, m.y - r, m.x + r, m.y + r};
            const std::array<Flaechenpunkt, 4> ecken{
                {{m.x, m.y - r}, {m.x + r, m.y}, {m.x, m.y + r}, {m.x - r, m.y}}};
            if (i % 4 == 0) f.ZeichneRechteck(rechteck);
            if (i % 4 == 1) f.Ellipse(rechteck);
            if (i % 4 == 2) f.Vieleck(ecken);
            if (i % 4 == 3) f.Vieleck({ecken.data(), 3});
        };
        zeichne(gross, kRand);
        zeichne(schnell_, 0);
        ASSERT_EQ(gross.Bild().copy(kRand, kRand, kWeite, kHoehe), schnell_.Bild())
            << i % 4 << " " << r << " at " << o.x << "," << o.y;
    }
}

TEST_F(Pixel, ZehntausendTexteWieDerMaler) {
    for (int i = 0; i < 10000; ++i) {
        std::string text;
        for (int n = WuerfleZahl(1, 14); n > 0; --n)
            text += static_cast<char>(i % 2 == 0 ? WuerfleZahl(0x20, 0x7E) : WuerfleZahl(0xA1, 0xFF));
        const Flaechenpunkt o{WuerfleZahl(-60, kWeite), WuerfleZahl(-15, kHoehe)};
        const Farbe farbe = Farbwahl();
        ASSERT_TRUE(Gleich([&](Zeichenflaeche& f) {
            f.FuelleRechteck({0, 0, kWeite, kHoehe / 2}, kSchwarz);
            if (i % 5 > 1) return f.Text(o, text, farbe);
            f.TextMitRand(o, text, farbe, kWeiss, 1 + i % 5);
        })) << text;
    }
}

}  // namespace
}  // namespace zrw
