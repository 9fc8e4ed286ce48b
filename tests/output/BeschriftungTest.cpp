#include "output/beschriftung/Beschriftung.h"

#include <gtest/gtest.h>

#include "beispiele/Zufall.h"
#include "output/beschriftung/Schildkasten.h"

namespace zrw {
namespace {

/// Labels of 30 x 7 in 792 x 612, as the tests of the literature have them.
Beschriftungsaufgabe Zufallsaufgabe(std::size_t schilder) {
    Beschriftungsaufgabe a;
    beispiel::Zufall zufall(5);
    for (std::size_t i = 0; i < schilder; ++i) {
        Schild s;
        s.punkt = {static_cast<std::int32_t>(zufall.Gleich(0, 792 * 8)),
                   static_cast<std::int32_t>(zufall.Gleich(0, 612 * 8))};
        s.weite = 240;
        s.hoehe = 56;
        a.schilder.push_back(s);
        a.symbole.push_back({s.punkt, 8, 8});
        a.striche.push_back({s.punkt, {s.punkt.x + 400, s.punkt.y + 100}, 4});
    }
    a.blaetter = {{0, 0, 792 * 8, 612 * 8}};
    return a;
}

Beschriftungswahl NurVierEcken() {
    Beschriftungswahl w;
    w.plaetze = 4;
    w.anliegend = true;
    w.gleiten = false;
    w.raster = 1;
    return w;
}

TEST(Beschriftung, FindetMehrFreiePlaetzeAlsEinerNachDemAnderen) {
    Beschriftungsaufgabe a = Zufallsaufgabe(750);
    a.symbole.clear();
    a.striche.clear();
    a.blaetter = {{-9999, -9999, 9999, 9999}};
    const auto gierig = BewerteSchilder(a, OrdneGierig(a, NurVierEcken()));
    const auto gesucht = BewerteSchilder(a, OrdneSchilder(a, NurVierEcken()).value());
    EXPECT_GT(gierig.ueberlappt, 250U);
    EXPECT_LT(gesucht.ueberlappt, 75U);
}

TEST(Beschriftung, LegtNichtsUebereinanderWoPlatzIst) {
    const Beschriftungsaufgabe a = Zufallsaufgabe(300);
    const auto guete = BewerteSchilder(a, OrdneSchilder(a, {}).value());
    EXPECT_EQ(guete.ueberlappt, 0U);
    EXPECT_EQ(guete.aufSymbol, 0U);
    EXPECT_LT(guete.gekreuzt, 30U);
    EXPECT_LT(guete.mittlererAbstand, 8 * 7.0);
}

TEST(Beschriftung, LegtJedesSchildGanzAufEinBlattSeinesPunktes) {
    constexpr Rechteck kLinks{0, 0, 3167, 612 * 8};
    constexpr Rechteck kRechts{3168, 0, 792 * 8, 612 * 8};
    for (const auto& blaetter : std::vector<std::vector<Rechteck>>{
             {kLinks, kRechts}, {kLinks, {3000, 0, 792 * 8, 612 * 8}}, {kRechts}}) {
        Beschriftungsaufgabe a = Zufallsaufgabe(300);
        a.blaetter = blaetter;
        a.blattrand = 8;
        const auto lagen = OrdneSchilder(a, {}).value();
        for (std::size_t i = 0; i < lagen.size(); ++i) {
            const Kasten k = KastenVon(a.schilder[i], lagen[i]);
            const auto ganz = [&](const Rechteck& b) {
                return LiegtAuf(b, a.schilder[i].punkt) && k.links >= b.links + 8 && k.oben >= b.oben + 8 &&
                       k.rechts <= b.rechts - 7 && k.unten <= b.unten - 7;
            };
            const auto trifft = [&](const Rechteck& b) {
                return LiegtAuf(b, a.schilder[i].punkt) || Trifft(b, k);
            };
            EXPECT_EQ(std::any_of(blaetter.begin(), blaetter.end(), ganz),
                      std::any_of(blaetter.begin(), blaetter.end(), trifft))
                << i << " on " << blaetter.size();
        }
    }
}

TEST(Beschriftung, HatZurSelbenAufgabeDieselbeAntwortUndHaeltWasFestIst) {
    Beschriftungsaufgabe a = Zufallsaufgabe(400);
    a.schilder[7].fest = true;
    a.schilder[7].lage = {17, -33};
    const auto lagen = OrdneSchilder(a, {});
    EXPECT_EQ(lagen, OrdneSchilder(a, {}));
    EXPECT_EQ(lagen.value()[7], (Flaechenpunkt{17, -33}));
    // Every place is a whole number of steps away.
    EXPECT_EQ(lagen.value()[8].x % 8, 0);
}

TEST(Beschriftung, HoertAufWennManEsWill) {
    int gefragt = 0;
    EXPECT_FALSE(OrdneSchilder(Zufallsaufgabe(400), {}, [&](int) { return ++gefragt < 2; }).has_value());
    EXPECT_EQ(gefragt, 2);
}

TEST(Beschriftung, NimmtJedeGroesseUndJedenOrt) {
    constexpr std::int32_t kGroesste = 2147483647;
    for (const std::int32_t groesse : {0, 1, 90, kGroesste}) {
        for (const std::int32_t weit : {0, 1, kGroesste}) {
            Beschriftungsaufgabe a = Zufallsaufgabe(60);
            for (std::size_t i = 0; i < a.schilder.size(); ++i) {
                const std::int32_t ort = i % 2 == 0 ? weit : -weit;
                a.schilder[i].punkt = a.symbole[i].mitte = {ort, ort};
                a.striche[i].von = {-ort, ort};
                a.schilder[i].weite = a.schilder[i].hoehe = a.symbole[i].quer = groesse;
            }
            const auto lagen = OrdneSchilder(a, {});
            ASSERT_TRUE(lagen.has_value());
            EXPECT_EQ(BewerteSchilder(a, *lagen).schilder, 60U);
            EXPECT_EQ((*lagen)[0] == Flaechenpunkt{}, groesse == 0);
        }
    }
}

TEST(Beschriftung, WirdAuchMitAllenNummernAufEinemPlatzFertig) {
    Beschriftungsaufgabe a = Zufallsaufgabe(20000);
    for (std::size_t i = 0; i < a.schilder.size(); ++i)
        a.schilder[i].punkt = a.symbole[i].mitte = {100, 100};
    Beschriftungswahl kurz;
    kurz.durchgaenge = 2;
    EXPECT_EQ(OrdneSchilder(a, kurz).value().size(), a.schilder.size());
}

}  // namespace
}  // namespace zrw
