// Sheets with a frame: what lies where, that nothing leaves the paper, and how plans are cut to them.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "beispiele/Zufall.h"
#include "geo/Zrwgeo.h"
#include "output/Papier.h"
#include "output/beschriftung/Blattordnung.h"
#include "output/blatt/Blattdruck.h"
#include "output/blatt/Blattrahmen.h"
#include "output/blatt/Schlichtgitter.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

bool Liegt(const Rechteck& innen, const Rechteck& aussen) {
    return innen.links >= aussen.links && innen.oben >= aussen.oben && innen.rechts <= aussen.rechts &&
           innen.unten <= aussen.unten;
}

TEST(Blattlayout, LiegtAufJedemPapierNebeneinander) {
    for (const Papierformat& f : kPapierformate) {
        for (const Papier& p : {f.hochkant, f.hochkant.Gedreht()}) {
            const Druckseite seite = Bedruckbar(p, 600);
            const auto l = Blattlayout::FuerSeite(seite);
            EXPECT_TRUE(Liegt(l.rand, {5, 5, seite.weite - 6, seite.hoehe - 6})) << f.name;
            for (const Rechteck& r : {l.planflaeche, l.uebersicht, l.zeichenfeld, l.schriftfeld})
                EXPECT_TRUE(Liegt(r, l.rand)) << f.name;
            EXPECT_LT(l.planflaeche.unten, l.schriftfeld.oben);
            EXPECT_GT(l.uebersicht.rechts - l.uebersicht.links, 600) << f.name;
            EXPECT_GE(l.schriftfeld.rechts - l.schriftfeld.links, 105 / kMillimeterJeZoll * 600 - 1);
        }
    }
}

class Blattdruck : public testing::Test {
  protected:
    static constexpr double kMassstab = 1000;
    const Druckseite a4 = Bedruckbar(*FindePapier("A4"), 96);
    Blattdruck() {
        n.l.ShowFL = true;
        tafel.zustand.Blattrahmen = true;
        tafel.netz.Netztyp = 2;
        tafel.flaeche.sichtbar = {0, 0, a4.weite - 1, a4.hoehe - 1};
    }
    [[nodiscard]] Druckplan Plan() {
        return {n.l.Vorlage(), {tafel.zustand, n.e, tafel.netz, tafel.uhr}, tafel.flaeche};
    }
    std::vector<std::string> Drucke(const Blattgestaltung& g, std::size_t nummer) {
        const auto blaetter =
            TeileBlaetterAuf(Plan(), kMassstab, TeileSeite(a4, tafel.zustand.Blattrahmen, g));
        DruckeBlatt(n.l.Vorlage(), Plan().mittel, n.e, tafel.flaeche,
                    {{kMassstab, "1000", a4, {}, {}}, g, blaetter, "NETZ", true}, nummer);
        return tafel.flaeche.NimmZeilen();
    }
    static bool Steht(const std::vector<std::string>& zeilen, const std::string& text) {
        return std::any_of(zeilen.begin(), zeilen.end(),
                           [&](const std::string& z) { return z.starts_with("Text") && z.ends_with(text); });
    }
    std::set<std::string> GanzeNummern(const Blattgestaltung& g, const Blattteilung& t);
    Probenetz n;
    Zeichentafel<MerkFlaeche> tafel{n.e};
};

TEST_F(Blattdruck, NichtsNebenDemPapierUndJederTextAmPlatz) {
    n.P(1, 3500000, 5600000);
    n.P(2, 3500300, 5600100);
    Blattgestaltung g;
    g.texte = {"P-7", "Fr. Beck", std::string(300, 'x')};
    const auto zeilen = Drucke(g, 0);
    for (const char* text : {" P-7", " Fr. Beck", " 1:1000", " NETZ", " 1 von 2", " N", " Blatt", " 3500000"})
        EXPECT_TRUE(Steht(zeilen, text)) << text;
    EXPECT_FALSE(Steht(zeilen, g.texte.firma)) << "too long";
    for (const std::string& z : zeilen) {
        int a = 0, b = 0, c = 0, d = 0;
        if (std::sscanf(z.c_str(), "Rechteck %d %d %d %d", &a, &b, &c, &d) == 4) {
            EXPECT_TRUE(Liegt({a, b, c, d}, tafel.flaeche.sichtbar)) << z;
        }
    }
    tafel.netz.Netztyp = 50;
    EXPECT_FALSE(Steht(Drucke(g, 0), " 3500000")) << "degrees have no place on the margin";
}

TEST_F(Blattdruck, UeberlappungUndPassenderMassstab) {
    n.P(1, 0, 0);
    n.P(2, 400, 0);
    n.K(1, 2);
    Blattgestaltung g;
    const Blattteilung ohne = TeileSeite(a4, true, g);
    g.ueberlappung = 20;
    const Blattteilung mit = TeileSeite(a4, true, g);
    const auto blaetter = TeileBlaetterAuf(Plan(), kMassstab, mit);
    ASSERT_EQ(blaetter.size(), 3U);
    EXPECT_NEAR(blaetter[1].ecke.rechts - blaetter[0].ecke.rechts,
                (ohne.plan.weite - mit.ueberlappung) * 25.4 / 96, 1e-6);
    EXPECT_NEAR(mit.ueberlappung, 20 / 25.4 * 96, 1);
    EXPECT_EQ(PassenderMassstab(Plan(), mit, 3), 1000.0);
    EXPECT_EQ(PassenderMassstab(Plan(), mit, 2), 2000.0);
    EXPECT_EQ(PassenderMassstab(Plan(), mit, 1), PassenderMassstab(Plan(), ohne.plan));
}

/// The numbers that stand whole on one of the sheets, as they are printed.
std::set<std::string> Blattdruck::GanzeNummern(const Blattgestaltung& g, const Blattteilung& t) {
    std::set<std::string> ganze;
    for (std::size_t i = 0; i < TeileBlaetterAuf(Plan(), kMassstab, t).size(); ++i) {
        for (const std::string& z : Drucke(g, i)) {
            int x = 0, y = 0, nummer = 0;
            if (std::sscanf(z.c_str(), "Text 0x%*x %d %d Nr%d", &x, &y, &nummer) != 3) continue;
            const std::string text = "Nr" + std::to_string(nummer);
            const auto links = static_cast<int>(t.ecke.x);
            const auto oben = static_cast<int>(t.ecke.y);
            if (Liegt({x, y, x + tafel.flaeche.Textbreite(text), y + tafel.flaeche.Texthoehe() - 2},
                      {links, oben, links + t.plan.weite, oben + t.plan.hoehe}))
                ganze.insert(text);
        }
    }
    return ganze;
}

TEST_F(Blattdruck, GeordneteNummernStehenGanzAufEinemBlatt) {
    constexpr PunktIndex kPunkte = 200;
    beispiel::Zufall zufall(1);
    for (PunktIndex i = 1; i <= kPunkte; ++i) {
        const double hoch = zufall.Gleich(0, 500);  // one after the other: compilers differ in arguments
        n.P(i, zufall.Gleich(0, 500), hoch);
        n.T(i, "Nr" + std::to_string(i));
    }
    for (const bool rahmen : {false, true}) {
        for (const int ueberlappung : {0, 4}) {
            tafel.zustand.Blattrahmen = rahmen;
            Blattgestaltung g;
            g.ueberlappung = ueberlappung;
            const Blattteilung t = TeileSeite(a4, rahmen, g);
            EXPECT_LT(GanzeNummern(g, t).size(), kPunkte) << "as they stand";
            auto plan = Planbeschriftung::FuerDruck(n.l.Vorlage(), Plan().mittel, tafel.flaeche, kMassstab,
                                                    t.plan, [](const PunktString&) { return true; });
            const auto schneide = [&] { return TeileBlaetterAuf(Plan(), kMassstab, t); };
            const auto ordnung = OrdneAufBlaetter(plan, n.l, schneide);
            const Probelage geordnet(n.l, ordnung.value().versetzt);
            EXPECT_EQ(GanzeNummern(g, t).size(), kPunkte) << rahmen << ueberlappung;
        }
    }
}

TEST_F(Blattdruck, SchwarzWeissLaesstWeissWeiss) {
    n.P(1, 0, 0);
    n.e.FPCol = Farbe{0x0000FF};
    Blattgestaltung g;
    g.schwarzweiss = true;
    for (const std::string& z : Drucke(g, 0)) {
        const std::size_t ort = z.find("0x");
        if (ort != std::string::npos) {
            EXPECT_TRUE(z.substr(ort, 8) == "0x000000" || z.substr(ort, 8) == "0xFFFFFF") << z;
        }
    }
}

// The sheet 5421 reaches from 9°10' to 9°20' E and from 50°30' to 50°36' N.
TEST(Schlichtgitter, KartenblaetterAnDenRaendernBeziffert) {
    const auto texte = [](double faktor, bool nebenKilometern) {
        MerkFlaeche f;
        Ansicht a;
        const Ellipsoid b = EllipsoidRadii(1, Grad{50});
        const auto g = GeoToGrid(Abbildung::GaussKrueger, 9, Grad{9.1}, Grad{50.62}, b.f, b.a);
        a.Faktor = faktor;
        a.MinXW = g.rechts;
        a.MaxYW = g.hoch;
        ZeichneKartenblattlinien(f, a, {{}, Farbe{0xFF0000}, 1.0, nebenKilometern});
        return f.zeilen;
    };
    const auto wo = [](const std::vector<std::string>& zeilen, const std::string& text) {
        std::vector<Flaechenpunkt> orte;
        for (const std::string& z : zeilen) {
            int x = 0, y = 0;
            if (z.ends_with(" " + text) && std::sscanf(z.c_str(), "Text 0x%*x %d %d", &x, &y) == 2)
                orte.push_back({x, y});
        }
        return orte;
    };
    const auto nah = texte(40, false);
    const auto laenge = wo(nah, Gradzahl(550));
    ASSERT_EQ(laenge.size(), 2U) << "at the upper and the lower edge";
    EXPECT_NEAR(laenge[1].x, 118 + 3, 1) << "four minutes from the corner";
    EXPECT_EQ(laenge[1].y, 3);
    const auto breite = wo(nah, Gradzahl(3036));
    ASSERT_EQ(breite.size(), 2U);
    EXPECT_EQ(breite[0].x, 3);
    EXPECT_EQ(wo(nah, "5421").size(), 1U);
    EXPECT_GT(wo(texte(40, true), Gradzahl(550))[1].y, 3) << "behind kilometres";
    const auto fern = texte(400, false);
    EXPECT_EQ(wo(fern, Gradzahl(560)).size(), 2U);
    EXPECT_TRUE(wo(fern, Gradzahl(550)).empty()) << "every second one";
    EXPECT_TRUE(wo(fern, "5421").empty());
    EXPECT_TRUE(texte(std::numeric_limits<double>::infinity(), false).empty());
    EXPECT_TRUE(texte(1e9, false).empty());
    EXPECT_EQ(Gradzahl(-546), std::string("-9\xB0") + "06'");
    EXPECT_EQ(Gradzahl(540), "9\xB0");
}

TEST(Schlichtgitter, VonRandZuRandUndNichtZuDicht) {
    const auto linien = [](double faktor) {
        MerkFlaeche f;
        Ansicht a;
        a.Faktor = faktor;
        a.MinXW = 3499500;
        a.MaxYW = 5600500;
        ZeichneKilometerlinien(f, a, Farbe{0xFF0000}, 1.0);
        return f.zeilen;
    };
    const auto nah = linien(5);
    EXPECT_EQ(std::count(nah.begin(), nah.end(), "Linie 100 0 100 599"), 1);
    EXPECT_EQ(std::count(nah.begin(), nah.end(), "Linie 0 100 799 100"), 1);
    EXPECT_EQ(std::count(nah.begin(), nah.end(), "Text 0xFF0000 103 3 3500"), 1);
    EXPECT_EQ(nah.front(), "Stift 0xFF7F7F 1");
    const auto zahl = [](const std::vector<std::string>& z) {
        return std::count_if(z.begin(), z.end(), [](const std::string& t) { return t.starts_with("Linie"); });
    };
    EXPECT_EQ(zahl(nah), 7);
    EXPECT_EQ(zahl(linien(50)), 14) << "every fifth kilometre";
    EXPECT_EQ(zahl(linien(std::numeric_limits<double>::infinity())), 0);
}

}  // namespace
}  // namespace zrw
