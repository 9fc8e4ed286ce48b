// The figures alone: what creating sets, what is drawn where, and which operations leave a figure visible.
#include "model/Figuren.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/Einstellungen.h"
#include "tests/hilfe/MerkZeichner.h"

namespace zrw {
namespace {

constexpr std::int64_t kMax = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kMin = std::numeric_limits<std::int64_t>::min();

TEST(Figuren, NeueFigurenHabenIhreAnfangswerte) {
    EXPECT_EQ(Punkt::Create(PunktTyp::Rau, kWeiss, PunktAttr::Fu).PktArt, PunktArt::FP);
    Einstellungen e;
    e.PXOff = -100;
    PktText t = PktText::Create("12345678901234567890", kSchwarz, e);
    EXPECT_EQ(t.Aus.Text(), "12345678901234");
    EXPECT_EQ(t.Textort(), (Bildpunkt{-100, -5}));
    t.XO = kMin;
    EXPECT_EQ(t.Textort().x, kMin);
    EXPECT_EQ(Legende::Create().Position(), (Bildpunkt{2, 2}));
    EXPECT_FALSE(Legende::Create().Visible);
}

TEST(Figuren, JenseitsDesZeichenbereichsWirdNichtsGezeichnetAberVersteckt) {
    const auto pruefe = [](auto figur, Bildpunkt ort, std::size_t anzahl) {
        MerkZeichner z;
        figur.XO = ort.x;
        figur.YO = ort.y;
        figur.Show(z);
        EXPECT_EQ(z.Nimm().size(), anzahl) << ort.x << " " << ort.y;
        figur.Hide(z);
        figur.Show(z);  // hidden by now
        EXPECT_EQ(z.Nimm().size(), anzahl) << ort.x << " " << ort.y;
        EXPECT_FALSE(figur.Visible);
    };
    for (const std::int64_t v : {std::int64_t{2147483646}, std::int64_t{2147483647}, kMax}) {
        const std::size_t anzahl = v == 2147483646 ? 1 : 0;
        for (const Bildpunkt ort : {Bildpunkt{v, 5}, Bildpunkt{-v, 5}, Bildpunkt{5, v}, Bildpunkt{5, -v}}) {
            pruefe(Punkt::Create(PunktTyp::Pkt, kSchwarz, PunktAttr::Em), ort, anzahl);
        }
    }
    pruefe(Punkt::Create(PunktTyp::Pkt, kSchwarz, PunktAttr::Em), {kMin, kMin}, 0);
}

// The list shows a moved point again itself and counts on finding it hidden.
TEST(Figuren, VerschobenePunkteUndTexteBleibenVersteckt) {
    MerkZeichner z;
    Punkt p = Punkt::Create(PunktTyp::Krei, kSchwarz, PunktAttr::Fu);
    PktText t = PktText::Create("9", Farbe{0xFF}, Einstellungen{});
    p.MoveTo(30, 40, z);
    t.MoveTo(30, 40, z);
    EXPECT_EQ(t.Drag(z), (Bildpunkt{0, 0}));
    EXPECT_EQ(z.Nimm(), (Zeilen{"Punkt wischen Krei Fu 0 0", "Text wischen 9 10 -5"}));
    p.Visible = t.Visible = true;
    p.Show(z);
    EXPECT_EQ(t.Drag(z), (Bildpunkt{0, 0}));
    p.Done(z);
    t.Done(z);
    EXPECT_EQ(z.Nimm(), (Zeilen{"Punkt zeigen 0x000000 Krei Fu 30 40", "Text zeigen 0x0000FF 9 40 35",
                                "Punkt wischen Krei Fu 30 40", "Text wischen 9 40 35"}));
}

// Lines have no limit of range: their ends lie far outside when only a part of them is in the picture.
TEST(Figuren, GeaenderteKantenSindImmerSichtbar) {
    MerkZeichner z;
    Kante k = Kante::Create(Farbe{0x800080}, KanteAttr::GPS, LinieAttr::ARI2);
    k.KAttr.Setze(KanteAttr::DH1);
    k.XO = kMin;
    k.Visible = false;
    k.MoveTo(7, 8, z);
    k.Visible = false;
    k.Show(z);
    k.ChangeLAttr(LinieAttr::AST, z);
    EXPECT_TRUE(k.Visible);
    k.Done(z);
    EXPECT_FALSE(k.Visible);
    const std::string ort = " GPS+DH1 -9223372036854775808 0 ";
    EXPECT_EQ(z.Nimm(),
              (Zeilen{"Kante wischen ARI2" + ort + "0 0", "Kante zeigen 0x800080 ARI2" + ort + "7 8",
                      "Kante wischen ARI2" + ort + "7 8", "Kante zeigen 0x800080 AST" + ort + "7 8",
                      "Kante wischen AST" + ort + "7 8"}));
    Legende l = Legende::Create();
    l.Drag(-3, 2147483646, z);
    EXPECT_EQ(z.Nimm(), (Zeilen{"Legende wischen 2 2", "Legende zeigen -3 2147483646"}));
    l.Drag(-3, 2147483647, z);
    EXPECT_EQ(z.Nimm(), Zeilen{"Legende wischen -3 2147483646"})
        << "beyond the range: not drawn, but visible";
    EXPECT_TRUE(l.Visible);
}

}  // namespace
}  // namespace zrw
