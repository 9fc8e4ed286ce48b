// The key of the plan: which rows it has for what is shown, and where its box stands.
#include "output/Erklaerungsbild.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

using Zeichentexte = std::vector<std::string>;

class Erklaerung : public testing::Test {
  protected:
    Erklaerung() {
        n.l.ShowErklaerung = true;
        for (PunktIndex nr = 1; nr <= 3; ++nr) {
            PunktKnoten& p = n.P(nr, 10.0 * nr, 20.0, nr == 1 ? PunktArt::FP : PunktArt::NP);
            p.Item->Farbe = nr == 1 ? n.e.FPCol : n.e.NPCol;
            p.Item->PktTyp = nr == 1 ? PunktTyp::Drei : PunktTyp::Krei;
        }
        n.K(1, 2, LinieAttr::AR2).Item->Farbe = n.e.RICol;
        PunktKante& gps = n.K(2, 3);
        gps.Item->KAttr = KanteAttr::GPS;
        gps.Item->Farbe = n.e.GPSCol;
    }
    [[nodiscard]] Zeichentexte Zeilen(std::size_t meiste = 20) const {
        Zeichentexte texte;
        for (const Zeichenzeile& z : BaueErklaerung(Zeichenbestand(n.l, n.l), n.e, meiste))
            texte.push_back(z.text + " " + std::to_string(z.anzahl));
        return texte;
    }
    Probenetz n;
    Zeichentafel<MerkFlaeche> tafel{n.e};
};

TEST_F(Erklaerung, NenntNurWasDerPlanZeigt) {
    EXPECT_EQ(Zeilen(), Zeichentexte({"Neupunkt 2", "Festpunkt 1", "Richtung zweiseitig 1", "Strecke 1",
                                      "GPS-Vektor 1", "Farbe: Richtung 1", "Farbe: GPS-Vektor 1"}));
    // Two looks of one kind are told apart by their symbols.
    n.l.SuchPkt(3)->Item->PktAttr = PunktAttr::Fu;
    const Zeichentexte genauer = Zeilen();
    for (const char* text : {"Festpunkt 1", "Neupunkt (Kreis) 1", "Neupunkt (Kreis, gefüllt) 1"})
        EXPECT_EQ(std::count(genauer.begin(), genauer.end(), text), 1) << text;
    EXPECT_EQ(Zeilen(4).size(), 4U) << "the least frequent give way";
    n.l.SuchPkt(2)->Item->Visible = false;
    n.l.ShowBeob = false;
    EXPECT_EQ(Zeilen(), Zeichentexte({"Festpunkt 1", "Neupunkt 1"}));
    n.l.ShowNP = false;
    EXPECT_EQ(Zeilen(), Zeichentexte({"Festpunkt 1"}));
}

TEST_F(Erklaerung, StehtRechtsObenUndInSpaltenWoEsEngIst) {
    tafel.zeichner.ZeichneErklaerung({n.l, n.l, n.l});
    const Rechteck hoch = tafel.zeichner.Erklaerungsrahmen();
    EXPECT_TRUE(hoch.rechts == 799 - 8 && hoch.oben == 8 && hoch.links > 400 && hoch.unten < 400);
    const Zeichentexte gezeichnet = tafel.flaeche.NimmZeilen();
    EXPECT_EQ(std::count_if(gezeichnet.begin(), gezeichnet.end(),
                            [](const std::string& z) { return z.starts_with("Text"); }),
              8);
    tafel.flaeche.sichtbar = {0, 0, 799, 120};
    tafel.zeichner.ZeichneErklaerung({n.l, n.l, n.l});
    const Rechteck breit = tafel.zeichner.Erklaerungsrahmen();
    EXPECT_TRUE(breit.rechts == hoch.rechts && breit.links < hoch.links && breit.unten < 120);
    // Never on files, and only where it has been put.
    n.l.Erklaerungsort = Bildpunkt{5000, 0};
    (void)tafel.flaeche.NimmZeilen();
    tafel.zeichner.ZeichneErklaerung({n.l, n.l, n.l});
    EXPECT_TRUE(tafel.flaeche.zeilen.empty() && Leer(tafel.zeichner.Erklaerungsrahmen()));
    n.l.Erklaerungsort.reset();
    tafel.zustand.ExportActive = true;
    tafel.zeichner.ZeichneErklaerung({n.l, n.l, n.l});
    EXPECT_TRUE(tafel.flaeche.zeilen.empty());
    tafel.zustand.ExportActive = false;
    // On paper it leaves the points uncovered.
    tafel.flaeche.sichtbar = {0, 0, 799, 599};
    n.l.Faktor = 0.1;
    n.l.XOffset = n.l.YOffset = 0;
    tafel.zustand.modus = Zeichenmodus::Drucker;
    for (PunktIndex nr = 1; nr <= 3; ++nr)
        n.l.VersetzePunkt(*n.l.SuchPkt(nr), n.l.BildinWelt({700, 20 + nr}));
    tafel.zeichner.ZeichneErklaerung({n.l, n.l, n.l});
    EXPECT_EQ(tafel.zeichner.Erklaerungsrahmen().unten, 599 - 8);
}

}  // namespace
}  // namespace zrw
