// The figures alone: what creating sets, and what every operation draws and leaves visible.
#include "model/Figuren.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "model/Einstellungen.h"
#include "tests/hilfe/MerkZeichner.h"

namespace zrw {
namespace {

TEST(Figuren, NeueFigurenHabenIhreAnfangswerte) {
    EXPECT_EQ(Punkt::Create(PunktTyp::Rau, kWeiss, PunktAttr::Fu).PktArt, PunktArt::FP);
    Einstellungen e;
    e.PXOff = -100;
    PktText t = PktText::Create("12345678901234567890", kSchwarz, e);
    EXPECT_EQ(t.Aus.Text(), "12345678901234");
    EXPECT_EQ(t.Textort(), (Bildpunkt{-100, -5}));
    t.XO = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(t.Textort().x, t.XO);
    EXPECT_EQ(Legende::Create().Position(), (Bildpunkt{2, 2}));
    EXPECT_FALSE(Legende::Create().Visible);
}

TEST(Figuren, JedeOperationZeichnetUndZeigtWasSieSagt) {
    MerkZeichner z;
    Punkt p = Punkt::Create(PunktTyp::Krei, kSchwarz, PunktAttr::Fu);
    PktText t = PktText::Create("9", Farbe{0xFF}, Einstellungen{});
    Kante k = Kante::Create(Farbe{0x800080}, KanteAttr::GPS, LinieAttr::ARI2);
    k.Visible = false;
    Legende l = Legende::Create();
    constexpr std::int64_t kWeit = 2147483646;  // points and legends further out are not drawn, lines are
    const struct {
        std::function<void()> tu;
        Zeilen gezeichnet;
        const bool& sichtbar;
        bool danach;
    } faelle[] = {
        // The list shows a moved point again itself and counts on finding it hidden.
        {[&] { p.MoveTo(30, 40, z); }, {"Punkt wischen Krei Fu 0 0"}, p.Visible, false},
        {[&] { t.MoveTo(30, 40, z); }, {"Text wischen 9 10 -5"}, t.Visible, false},
        {[&] { p.Show(z), t.Show(z); }, {}, p.Visible, false},
        {[&] { p.Visible = true, p.XO = kWeit, p.Show(z); },
         {"Punkt zeigen 0x000000 Krei Fu 2147483646 40"},
         p.Visible,
         true},
        {[&] { p.XO = kWeit + 1, p.Show(z); }, {}, p.Visible, true},
        {[&] { p.YO = -kWeit - 1, p.XO = 0, p.Hide(z); }, {}, p.Visible, false},
        {[&] { t.Visible = true, (void)t.Drag(z); }, {"Text zeigen 0x0000FF 9 40 35"}, t.Visible, true},
        {[&] { t.Done(z); }, {"Text wischen 9 40 35"}, t.Visible, false},
        {[&] { k.MoveTo(7, 8, z); },
         {"Kante wischen ARI2 GPS 0 0 0 0", "Kante zeigen 0x800080 ARI2 GPS 0 0 7 8"},
         k.Visible,
         true},
        {[&] { k.Visible = false, k.Show(z); }, {}, k.Visible, false},
        {[&] { k.XO = -kWeit * 2, k.ChangeLAttr(LinieAttr::AST, z); },
         {"Kante wischen ARI2 GPS -4294967292 0 7 8", "Kante zeigen 0x800080 AST GPS -4294967292 0 7 8"},
         k.Visible,
         true},
        {[&] { k.Done(z); }, {"Kante wischen AST GPS -4294967292 0 7 8"}, k.Visible, false},
        {[&] { l.Drag(-3, 5, z); }, {"Legende wischen 2 2", "Legende zeigen -3 5"}, l.Visible, true},
        {[&] { l.Drag(-3, 2147483647, z); }, {"Legende wischen -3 5"}, l.Visible, true}};
    for (const auto& f : faelle) {
        f.tu();
        EXPECT_EQ(z.NimmZeilen(), f.gezeichnet) << &f - faelle;
        EXPECT_EQ(f.sichtbar, f.danach) << &f - faelle;
    }
}

}  // namespace
}  // namespace zrw
