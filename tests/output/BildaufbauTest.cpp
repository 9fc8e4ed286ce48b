// The quick way to a picture of all figures against the plain one: on random networks, views and switches
// every pixel must be the same, also where only parts are drawn. The hit-tests by trees must find what a walk
// through the lists finds.
#include "output/Bildaufbau.h"

#include <gtest/gtest.h>

#include "output/Figurenzeichner.h"
#include "tests/hilfe/Rasterflaeche.h"
#include "tests/hilfe/Zeichentafel.h"
#include "tests/hilfe/Zufallsnetz.h"

namespace zrw {
namespace {

constexpr int kWeite = 400;
constexpr int kHoehe = 300;

struct Tafel : Zeichentafel<Rasterflaeche> {
    explicit Tafel(const Einstellungen& e, bool abkuerzungen = true)
        : Zeichentafel(kWeite, kHoehe, e, abkuerzungen) {}
};

void PruefeTreffer(Zufallsnetz& n) {
    const Bildpunkt maus{n.W(-20, kWeite + 20), n.W(-20, kHoehe + 20)};
    const Liste& l = n.liste;
    const auto erster = [&](auto* kopf, auto passt) {
        while (kopf != nullptr && !passt(*kopf))
            kopf = kopf->Next;
        return kopf;
    };
    EXPECT_EQ(l.ClickPunkt(maus),
              erster(l.PunktKnoten, [&](auto& p) { return l.Gefangen(maus, p.Item->Position()); }));
    EXPECT_EQ(l.MausPktText(maus),
              erster(l.PktTextKnoten, [&](auto& t) { return l.Gefangen(maus, t.Item->Textort()); }));
    // A list that was never told where its figures are asks all of them.
    Liste kopie(n.e);
    std::vector<PPunktKante> kanten;
    for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next)
        kanten.push_back(k);
    for (std::size_t i = kanten.size(); i-- > 0;)
        kopie.AddKante(*kanten[i]->Item, kanten[i]->ANr, kanten[i]->ENr);
    const PunktKante* gefunden = kopie.PickKante(maus);
    EXPECT_EQ(l.PickKante(maus), gefunden != nullptr ? kanten[kanten.size() - 1 - gefunden->Folge] : nullptr);
}

TEST(Bildaufbau, ZeigtDasBildDesEinfachenWegs) {
    int vonVorn = 0;
    int striche = 0;
    int alleStriche = 0;
    for (unsigned saat = 1; saat <= 24; ++saat) {
        Zufallsnetz n(saat, kWeite, kHoehe);
        Tafel schnell(n.e);
        Tafel einfach(n.e, false);
        schnell.flaeche.SetzeHelfer(saat % 8 == 3 ? 0 : 1);
        for (int ansicht = 0; ansicht < 10; ++ansicht) {
            SCOPED_TRACE(std::to_string(saat) + "/" + std::to_string(ansicht));
            if (ansicht > 0) n.WuerfleAnsicht();
            n.WuerfleSchalter();
            // Some figures leave the places that they were found by.
            for (int i = 0; i < 3; ++i)
                n.liste.VersetzePunkt(n.Punkt1(), n.liste.BildinWelt({n.W(0, kWeite), n.W(0, kHoehe)}));
            n.liste.VersetzeText(*n.liste.PktTextKnoten, {n.W(-40, 40), n.W(-40, 40)});
            schnell.zustand.KurzeNummern = einfach.zustand.KurzeNummern = n.W(0, 3) == 0;
            schnell.zustand.Halo = einfach.zustand.Halo = ansicht % 3 == 0;
            n.liste.WeltinBild();
            const int vonVornBisher = schnell.flaeche.vonVorn;
            einfach.flaeche.striche = schnell.flaeche.striche = 0;
            n.liste.ShowPicture(einfach.zeichner);
            n.liste.ShowPicture(schnell.zeichner);
            ASSERT_TRUE(einfach.flaeche.Pixel() == schnell.flaeche.Pixel());
            if (schnell.flaeche.vonVorn > vonVornBisher) {
                striche += schnell.flaeche.striche;
                alleStriche += einfach.flaeche.striche;
            }
            // Any part of it drawn alone is that part.
            schnell.flaeche.FuelleRechteck({0, 0, kWeite, kHoehe}, kSchwarz);
            for (const Rechteck& teil : {Rechteck{0, 0, 130, kHoehe}, Rechteck{131, 0, kWeite, 77},
                                         Rechteck{131, 78, 132, kHoehe}, Rechteck{133, 78, kWeite, kHoehe}}) {
                schnell.flaeche.SetzeAusschnitt(teil);
                n.liste.ShowPicture(schnell.zeichner);
            }
            schnell.flaeche.SetzeAusschnitt(schnell.flaeche.Sichtbar());
            ASSERT_TRUE(einfach.flaeche.Pixel() == schnell.flaeche.Pixel()) << "in parts";
            PruefeTreffer(n);
        }
        vonVorn += schnell.flaeche.vonVorn;
    }
    EXPECT_GT(vonVorn, 10) << "too few dense pictures to say anything";
    EXPECT_LT(striche, alleStriche * 9 / 10) << "what is covered must be known, else the quick way is none";
}

}  // namespace
}  // namespace zrw
