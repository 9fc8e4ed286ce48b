// The list: what is shown and in which order it is drawn. Looking up, hiding and deleting are compared with
// plain walks in FigurenindexTest.
#include "model/FigListe.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

// A new list does not show points of kind FL, nor lines that end at one.
TEST(FigListe, JedeArtHatIhrenSchalter) {
    EXPECT_FALSE(Probenetz().l.ShowFL);
    for (const auto& [art, schalter] : {std::pair{PunktArt::FP, &Liste::ShowFP},
                                        {PunktArt::FL, &Liste::ShowFL},
                                        {PunktArt::FH, &Liste::ShowFH},
                                        {PunktArt::NP, &Liste::ShowNP}}) {
        Probenetz n;
        n.P(1, 0, 0, art == PunktArt::FP ? PunktArt::NP : PunktArt::FP);
        n.P(2, 0, 0, art);
        n.T(2, "2");
        n.K(1, 2);
        n.K(2, 1);
        n.l.ShowFL = true;
        n.l.*schalter = false;
        n.l.ShowPicture(n.z);
        EXPECT_EQ(n.z.NimmZeilen().size(), 4U);  // the other point between background and results
        n.l.*schalter = true;
        n.l.ShowPicture(n.z);
        EXPECT_EQ(n.z.NimmZeilen().size(), 8U);
    }
}

TEST(FigListe, HilfspunkteEndenAufWKH) {
    for (const std::string nummer : {"12W", "3K", "7H", "H", "W12", "12w", "7", ""}) {
        const bool hilfspunkt = !nummer.empty() && nummer.find_last_of("WKH") + 1 == nummer.size();
        Probenetz n;
        const PunktKnoten& p = n.P(1);
        const PunktString& t = n.T(1, nummer);
        const PunktString& verwaist = n.T(9, "9H");
        n.l.DisplayHilfp(false);
        EXPECT_EQ(p.Item->Visible, !hilfspunkt) << nummer;
        EXPECT_EQ(t.Item->Visible, !hilfspunkt) << nummer;
        EXPECT_FALSE(verwaist.Item->Visible);
        n.l.DisplayHilfp(true);
        EXPECT_TRUE(p.Item->Visible && t.Item->Visible && verwaist.Item->Visible) << nummer;
        n.l.ShowHilfP = false;  // hides every label, not only those of auxiliary points
        n.l.DisplayPktText(n.z);
        EXPECT_EQ(n.z.NimmZeilen(), Zeilen{});
    }
}

TEST(FigListe, DasBildEntstehtInFesterReihenfolgeUndEndetGewischt) {
    Probenetz n;
    n.l.Weite = 100;
    n.l.Hoehe = 80;
    n.P(1);
    n.P(2).Item->PktTyp = PunktTyp::Drei;
    n.T(7, "verwaist");
    n.T(1, "1");
    n.K(1, 7);  // a line without a second point stays away
    n.K(1, 2, LinieAttr::AR1);
    n.l.ChKante(LinieAttr::ASTI, n.z);
    EXPECT_EQ(n.z.NimmZeilen().size(), 4U);
    n.l.ShowGitter = n.l.ShowKMQ = n.l.ShowLegende = true;
    const Zeilen alles{"Leeren 100 80",
                       "Gitter",
                       "KMQ",
                       "Kante zeigen 0x000000 ASTI ST 0 0 0 0",
                       "Punkt zeigen 0x000000 Drei Em 0 0",
                       "Punkt zeigen 0x000000 Krei Em 0 0",
                       "Text zeigen 0x000000 1 10 -5",
                       "Legende zeigen 2 2",
                       "Residuen",
                       "Residuenmassstab"};
    n.l.Legend.reset();  // comes back when it is needed
    n.l.ShowPicture(n.z);
    EXPECT_EQ(n.z.NimmZeilen(), alles);
    n.l.ShowGitter = n.l.ShowLegende = n.l.ShowBeob = n.l.ShowPktText = false;
    n.l.ShowPicture(n.z);
    EXPECT_EQ(n.z.NimmZeilen(), (Zeilen{alles[0], alles[2], alles[4], alles[5], alles[8], alles[9]}));
    n.l.SuchPkt(1)->Item->Visible = false;
    n.l.ShowPunkt(*n.l.SuchPkt(1), n.z);
    EXPECT_EQ(n.z.NimmZeilen(),
              (Zeilen{alles[3], "Kante zeigen 0x000000 ASTI ST 0 0 0 0", alles[6], alles[5]}));

    n.l.Done(n.z);
    EXPECT_EQ(n.z.NimmZeilen(), (Zeilen{"Text wischen 1 10 -5", "Text wischen verwaist 10 -5",
                                        "Kante wischen ASTI ST 0 0 0 0", "Kante wischen ASTI ST 0 0 0 0",
                                        "Punkt wischen Drei Em 0 0", "Punkt wischen Krei Em 0 0"}));
    EXPECT_EQ(n.l.MaxPkte, 2);
    EXPECT_EQ(n.l.MaxKant, 2);
    EXPECT_TRUE(n.l.Legend.has_value());
    EXPECT_EQ(n.l.FindPktText(1), nullptr);
    n.P(1);
    EXPECT_EQ(n.l.FindPunkt("1"), nullptr);
    EXPECT_EQ(n.l.SuchPkt(2), nullptr);
    EXPECT_EQ(n.l.FindKante(1, 2), nullptr);
}

}  // namespace
}  // namespace zrw
