#include "output/Residuenbild.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <tuple>

#include "output/Figurenzeichner.h"
#include "output/Residuenmass.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

constexpr double kOhneEnde = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct Merkergebnisse final : Punktergebnisse {
    std::map<std::string, Punktergebnis, std::less<>> werte;
    int erneuert = 0;
    mutable Zeilen gefragt;
    std::map<std::string, Vergleichslage, std::less<>> lagen;
    std::map<std::pair<std::string, std::string>, Relativellipse> paare;

    void ErneuereErgebnisse() override { ++erneuert; }
    [[nodiscard]] const Punktergebnis* ErgebnisZu(std::string_view nummer) const override {
        gefragt.emplace_back(nummer);
        const auto i = werte.find(nummer);
        return i != werte.end() ? &i->second : nullptr;
    }
    [[nodiscard]] const Vergleichslage* VergleichZu(std::string_view nummer) const override {
        const auto i = lagen.find(nummer);
        return i != lagen.end() ? &i->second : nullptr;
    }
    [[nodiscard]] bool HatRelative() const override { return !paare.empty(); }
    [[nodiscard]] const Relativellipse* RelativeZu(std::string_view a, std::string_view b) const override {
        const auto i = paare.find({std::string(a), std::string(b)});
        return i != paare.end() ? &i->second : nullptr;
    }
};

/// One point with results in the picture at (100, 100).
class Residuen : public testing::Test {
  protected:
    Residuen() {
        zustand.flaeche = &flaeche;
        zustand.Ergebnisse = &ergebnisse;
        Punkt(1, "12", PunktArt::FP);
    }
    zrw::Punkt& Punkt(PunktIndex nr, std::string_view nummer, PunktArt art) {
        PunktKnoten& p = n.P(nr, 100, -100, art);
        n.T(nr, nummer);
        return *p.Item;
    }
    void ZeigeResiduen(bool strich, bool ellipse) {
        n.l.ShowLgRes = n.l.ShowHRes = n.l.ShowHGen = strich;
        n.l.ShowLGGen = ellipse;
    }
    Zeilen Gezeichnet() {
        zeichner.ZeichnePunktRes(n.l.Vorlage());
        return flaeche.NimmZeilen();
    }
    Zeilen Massstab() {
        zeichner.DrawResMasstab(n.l.Vorlage());
        return flaeche.NimmZeilen();
    }
    /// Ends of the lines, without pens.
    static Zeilen Linien(Zeilen alle) {
        std::erase_if(alle, [](const std::string& z) { return !z.starts_with("Linie"); });
        for (std::string& z : alle)
            z.erase(0, 6);
        return alle;
    }
    Zeilen Ellipse(double phi, double a, double b, double x = 400, double y = 300) {
        const Bildvorlage vorlage = n.l.Vorlage();
        Residuenbild(zustand, n.e, vorlage).DrawEllipse(Gon{phi}, a, b, x, y);
        return Linien(flaeche.NimmZeilen());
    }

    Probenetz n;
    Netzangaben netz;
    Festuhr uhr;
    Zeichenzustand zustand;
    MerkFlaeche flaeche;
    Merkergebnisse ergebnisse;
    Figurenzeichner zeichner{zustand, n.e, netz, uhr};
};

// East is right, north is up; residuals are cut, accuracies rounded with halves to even.
TEST_F(Residuen, StricheUndBalken) {
    const auto pruefe = [this](double f, double dY, double dX, double dH, double mH, const Zeilen& linien) {
        n.e.ResMF = f;
        ergebnisse.werte["12"] = {.dY = dY, .dX = dX, .dH = dH, .mH = mH};
        EXPECT_EQ(Linien(Gezeichnet()), linien) << f << " " << dY;
    };
    ZeigeResiduen(true, false);
    zustand.Geraetefaktor = 6.25;  // left behind by a print
    pruefe(1, 10.9, 5.9, 7.9, 5,
           {"100 100 110 95", "100 100 100 93", "100 98 100 102", "98 98 102 98", "98 102 102 102"});
    pruefe(1, -10.9, -5.9, -7.9, 7,
           {"100 100 90 105", "100 100 100 107", "100 96 100 104", "98 96 102 96", "98 104 102 104"});
    pruefe(2.75, 10.9, 5.9, 0.3, 6,
           {"100 100 129 84", "100 100 100 100", "100 92 100 108", "94 92 106 92", "94 108 106 108"});
    pruefe(1, 3, 4, kNan, kOhneEnde, {"100 100 103 96"});
    zustand.modus = Zeichenmodus::Drucker;
    pruefe(2, 10, 5, 1, 2,
           {"100 100 225 38", "100 100 100 88", "100 88 100 112", "75 88 125 88", "75 112 125 112"});
}

TEST_F(Residuen, StifteUndReihenfolge) {
    std::tie(n.e.LGRCol.wert, n.e.HRCol.wert, n.e.LGGCol.wert, n.e.HGCol.wert) = std::tuple(1, 2, 3, 4);
    ZeigeResiduen(true, true);
    for (const auto& [mL, breite] : {std::pair{0.0, "1"}, {20.0, "1"}, {20.01, "2"}, {kNan, "2"}}) {
        ergebnisse.werte["12"] = {.A = 9, .B = 5, .mL = mL};
        Zeilen stifte = Gezeichnet();
        std::erase_if(stifte, [](const std::string& z) { return z.starts_with("Linie"); });
        const std::string ellipse = std::string("Stift 0x000003 ") + breite;
        EXPECT_EQ(stifte, (Zeilen{"Stift 0x000001 1", "Stift 0x000002 1", ellipse, "Stift 0x000004 1"}));
        EXPECT_EQ(flaeche.AktuellerStift(), Stift{});
    }
}

// Corners computed with another program. The long axis points 30 gon east of north.
TEST_F(Residuen, EllipseEckeUmEcke) {
    ergebnisse.werte["12"] = {.A = 10, .B = 4, .Phi = 30};
    ZeigeResiduen(false, true);
    const Zeilen ecken{"95 109",  "95 108",  "94 107",  "94 105",  "95 102", "96 100", "97 97",  "99 95",
                       "100 93",  "102 92",  "103 91",  "104 91",  "105 92", "106 93", "106 95", "105 98",
                       "104 100", "103 103", "102 105", "100 107", "98 108", "97 109", "96 109", "95 108"};
    Zeilen linien;
    for (std::size_t i = 1; i < ecken.size(); ++i)
        linien.push_back(ecken[i - 1] + " " + ecken[i]);
    EXPECT_EQ(Linien(Gezeichnet()), linien);
}

TEST_F(Residuen, EllipsenJeGroesse) {
    struct Fall {
        double radius;
        std::size_t anzahl;
        const char *erste, *letzte;
    };
    // Steps of 25, 24 and 2 gon; the last line goes beyond the full turn.
    for (const Fall& f : {Fall{5.0, 17, "405 300 405 302", "405 300 405 302"},
                          Fall{5.2, 17, "405 300 405 302", "405 299 405 301"},
                          Fall{128, 201, "528 300 528 304", "528 300 528 304"},
                          Fall{0, 17, "400 300 400 300", "400 300 400 300"}}) {
        const Zeilen linien = Ellipse(0, f.radius, f.radius);
        ASSERT_EQ(linien.size(), f.anzahl) << f.radius;
        EXPECT_EQ(linien.front(), f.erste);
        EXPECT_EQ(linien.back(), f.letzte);
    }
    // So many turns show the last digits of the gon per radian.
    EXPECT_EQ(Ellipse(4e14, 50, 0).at(0).substr(0, 7), "446 280");
    EXPECT_EQ(Ellipse(0, 1e300, 0).size(), 2U) << "a line there and back";
    EXPECT_EQ(Ellipse(0, -9, -5).size(), 201U) << "negative magnification";
    EXPECT_FALSE(Ellipse(0, 50, 50, -30).empty());
    EXPECT_EQ(Ellipse(0, 50, 20, -70), Zeilen{});
    EXPECT_EQ(Ellipse(0, 50, 20, 400, 9e18), Zeilen{});
    EXPECT_EQ(Ellipse(kOhneEnde, 9, 5), Zeilen{});
    for (const double a : {kNan, kOhneEnde, -kOhneEnde, -9.0}) {
        EXPECT_EQ(Ellipse(0, a, 5), Zeilen{}) << a;
        EXPECT_EQ(Ellipse(0, 5, a), Zeilen{}) << a;
    }
}

TEST_F(Residuen, NurGezeigtePunkteMitNummer) {
    Punkt(2, "L", PunktArt::FL);
    Punkt(3, "H", PunktArt::FH);
    Punkt(4, "N", PunktArt::NP);
    Punkt(5, "", PunktArt::FP);
    Punkt(6, "verborgen", PunktArt::FP).Visible = false;
    n.P(7);
    n.l.ShowFL = true;
    ZeigeResiduen(true, false);
    (void)Gezeichnet();
    EXPECT_EQ(std::exchange(ergebnisse.gefragt, {}), (Zeilen{"N", "H", "L", "12"}));
    const std::array kSchalter{&Liste::ShowFP, &Liste::ShowFL, &Liste::ShowFH, &Liste::ShowNP};
    const std::array kNummern{"12", "L", "H", "N"};
    for (std::size_t i = 0; i < kSchalter.size(); ++i) {
        for (std::size_t k = 0; k < kSchalter.size(); ++k)
            n.l.*kSchalter[k] = i == k;
        (void)Gezeichnet();
        EXPECT_EQ(std::exchange(ergebnisse.gefragt, {}), Zeilen{kNummern[i]});
    }
    ergebnisse.werte["12"] = {.dH = 1};  // the others have no results
    n.l.ShowFP = n.l.ShowFL = n.l.ShowFH = n.l.ShowNP = true;
    EXPECT_EQ(Linien(Gezeichnet()).size(), 5U);
}

TEST_F(Residuen, QuelleWirdNurGefragtWennNoetig) {
    n.l.LGGenOn = true;
    n.l.ShowPicture(zeichner);
    (void)flaeche.NimmZeilen();
    ZeigeResiduen(true, true);
    zustand.ExportActive = true;
    EXPECT_EQ(Gezeichnet(), Zeilen{});
    EXPECT_EQ(Massstab(), Zeilen{});
    zustand.ExportActive = false;
    zustand.flaeche = nullptr;
    n.l.ShowPicture(zeichner);
    EXPECT_EQ(ergebnisse.erneuert, 0);
    zustand.flaeche = &flaeche;
    n.l.ShowPicture(zeichner);
    EXPECT_EQ(ergebnisse.erneuert, 1);
    zustand.Ergebnisse = nullptr;
    (void)flaeche.NimmZeilen();
    EXPECT_EQ(Gezeichnet(), Zeilen{});
}

// A character is 6 dots wide here, a line of text 12 high.
TEST_F(Residuen, Massstabsbalken) {
    n.e.ResMF = 8;
    Zeilen erwartet{"Fuelle 0xFFFFFF 9 556 439 590", "Text 0x000000 12 559 Residuenma\xDFstab",
                    "Text 0x000000 424 571 cm", "Stift 0x000000 1", "Linie 15 587 415 587"};
    for (int i = 0; i <= 5; ++i) {
        const std::string x = std::to_string(15 + 80 * i);
        erwartet.push_back("Linie " + x + " 587 " + x + " 583");
        erwartet.push_back("Text 0x000000 " + std::to_string(12 + 80 * i) + " 571 " + std::to_string(i));
    }
    EXPECT_EQ(Massstab(), Zeilen{});
    for (bool Darstellung::*an :
         {&Liste::ShowLgRes, &Liste::ShowHRes, &Liste::ShowLGGen, &Liste::LGGenOn, &Liste::ShowHGen}) {
        n.l.*an = true;
        EXPECT_EQ(Massstab(), erwartet);
        n.l.*an = false;
        std::erase(erwartet, "Stift 0x000000 1");  // known from the first time
    }
    n.l.LGGenOn = true;
    flaeche.sichtbar = {0, 0, 100, 30};
    EXPECT_EQ(Massstab(), Zeilen{}) << "no room";
}

TEST_F(Residuen, MassstabLaengeUndTeilung) {
    struct Fall {
        double f, geraet;  ///< device factor, 0: on the screen
        const char* text;  ///< length of the bar and numbers at it; empty: no bar
    };
    n.l.ShowLgRes = true;
    flaeche.sichtbar = {0, 0, 5000, 5000};
    for (const Fall& f : {Fall{1, 0, "50: 0 5"},
                          Fall{1, 6.25, "312: 0 1 2 3 4 5"},
                          Fall{1.2, 0, "60: 0 5"},
                          Fall{1.3, 0, "65: 0 1 2 3 4 5"},
                          Fall{0.8, 0, "40: 0 5"},
                          Fall{0.79, 0, "79: 0 10"},
                          Fall{0.25, 4, "250: 0 5 10 15 20 25"},
                          Fall{8.01, 0, "80: 0 1"},
                          Fall{8.01, 10, "801: 0 0.2 0.4 0.6 0.8 1"},
                          Fall{10, 0, "50: 0 0.5"},
                          Fall{1e-3, 0, "50: 0 5000"},
                          Fall{0.003, 0, "75: 0 2500"},
                          Fall{1e-6, 0, "50: 0 5000000"},
                          Fall{1e-300, 0, "50: 0 5e+300"},
                          Fall{1e7, 10, "500: 0 1e-07 2e-07 3e-07 4e-07 5e-07"},
                          Fall{5e-324, 0, ""},
                          Fall{0, 0, ""},
                          Fall{-1, 0, ""},
                          Fall{kNan, 0, ""},
                          Fall{kOhneEnde, 0, ""},
                          Fall{1, kNan, ""},
                          Fall{1, 1e300, ""},
                          Fall{1, 0.05, ""}}) {
        n.e.ResMF = f.f;
        zustand.modus = f.geraet == 0 ? Zeichenmodus::Bildschirm : Zeichenmodus::Drucker;
        zustand.Geraetefaktor = f.geraet == 0 ? 7 : f.geraet;
        const Zeilen alle = Massstab();
        EXPECT_EQ(!alle.empty() && alle[0].starts_with("Fuelle 0xFFFFFF"), *f.text != 0) << "clear ground";
        std::string text;
        if (const Zeilen linien = Linien(alle); !linien.empty()) {
            EXPECT_EQ(linien.size(), 7U);
            text = std::to_string(std::stoi(linien[0].substr(8)) - 15) + ":";
        }
        for (const std::string& z : alle) {
            const std::string wort = z.substr(z.rfind(' '));
            if (z.starts_with("Text") && wort.find_first_not_of(" 0123456789.e+-") == std::string::npos)
                text += wort;
        }
        EXPECT_EQ(text, f.text) << f.f << " " << f.geraet;
    }
}

// Heads are half as long as short vectors, and none at all where there is no room.
TEST_F(Residuen, PfeileUndKoordinatenvergleich) {
    n.l.Residuenpfeile = n.l.ShowLgRes = true;
    std::tie(n.e.LGRCol.wert, n.e.LGGCol.wert) = std::tuple(1, 3);
    ergebnisse.werte["12"] = {.dY = 40, .dX = 0, .X = 1000, .Y = 2000};
    EXPECT_EQ(Gezeichnet(), (Zeilen{"Stift 0x000001 2", "Linie 100 100 140 100", "Linie 140 100 132 104",
                                    "Linie 140 100 132 96"}));
    ergebnisse.werte["12"].dY = 2.9;
    EXPECT_EQ(Gezeichnet(), Zeilen{"Linie 100 100 102 100"});
    n.l.ShowLgRes = false;
    n.l.ShowKooVergleich = true;
    EXPECT_EQ(Gezeichnet(), Zeilen{}) << "not in the second list";
    ergebnisse.lagen["12"] = {.Y = 2000, .X = 1000.03};
    EXPECT_EQ(Gezeichnet(), (Zeilen{"Stift 0x000001 2 gestrichelt", "Linie 100 100 100 70",
                                    "Stift 0x000001 2", "Linie 100 70 104 78", "Linie 100 70 96 78"}));
    n.l.Residuenpfeile = false;
    EXPECT_EQ(Gezeichnet(), (Zeilen{"Stift 0x000001 1 gestrichelt", "Linie 100 100 100 70"}));
    for (const Vergleichslage& lage :
         {Vergleichslage{}, {.Y = kOhneEnde, .X = 1000}, {.Y = 2000, .X = kNan}}) {
        ergebnisse.lagen["12"] = lage;
        EXPECT_EQ(Gezeichnet(), Zeilen{});
    }
}

TEST_F(Residuen, EllipsenGefuelltUndInEigenerGroesse) {
    n.e.LGGCol.wert = 3;
    ergebnisse.werte["12"] = {.A = 4, .B = 4};
    ZeigeResiduen(false, true);
    n.l.EllipsenGefuellt = true;
    n.l.Ellipsenmassstab = 10;
    const Zeilen alle = Gezeichnet();
    ASSERT_TRUE(alle[0].starts_with("Durchscheinend 0x000003 12 100 140 97 140 95 140")) << alle[0];
    EXPECT_EQ(alle[1], "Stift 0x000003 1");
    EXPECT_EQ(alle[2].substr(0, 15), "Linie 100 140 9") << "40 dots, whatever residuals have";
    n.l.Ellipsen95 = true;
    EXPECT_EQ(Gezeichnet()[1].substr(0, 16), "Linie 100 198 97") << "97.9 dots";
    n.l.Ellipsenmassstab = 1e7;
    const std::string riesig = Gezeichnet().at(0);
    EXPECT_LT(riesig.size(), 100U) << "cut round the picture";
    EXPECT_NE(riesig.find(" 863 663"), std::string::npos) << riesig;
    n.l.Ellipsenmassstab = 1e300;
    ergebnisse.werte["12"] = {.A = 1e300, .B = 4};
    EXPECT_EQ(Gezeichnet(), Zeilen{}) << "no finite number";
}

TEST_F(Residuen, RelativeEllipsenMittenAufGezeigtenLinien) {
    n.e.LGGCol.wert = 3;
    n.P(2, 200, -100, PunktArt::NP);
    n.T(2, "13");
    PunktKante& linie = n.K(1, 2);
    ergebnisse.paare[{"12", "13"}] = {.A = 40, .B = 40, .Phi = 0};
    EXPECT_EQ(Gezeichnet(), Zeilen{}) << "off by default";
    n.l.ShowRelEllipsen = true;
    const Zeilen alle = Gezeichnet();
    ASSERT_EQ(alle.size(), 1U + 67U) << "two of three sides";
    EXPECT_EQ((Zeilen(alle.begin(), alle.begin() + 4)),
              (Zeilen{"Stift 0x000003 1", "Linie 150 140 147 140", "Linie 147 140 145 140",
                      "Linie 143 139 140 139"}));
    EXPECT_EQ(ergebnisse.erneuert, 0) << "nothing is asked about points";
    EXPECT_EQ(MissResiduen(n.l.Vorlage(), ergebnisse).ellipse, 40.0);
    n.l.EllipsenGefuellt = n.l.ShowErklaerung = true;
    n.l.Ellipsenmassstab = 2;
    EXPECT_TRUE(Gezeichnet()[0].starts_with("Durchscheinend 0x000003 12 150 180 147 180"));
    zeichner.ZeichneErklaerung(n.l.Vorlage());
    std::string beschriftung;
    for (const std::string& z : Massstab())
        beschriftung += z + "\n";
    for (const char* text : {" Relative Fehlerellipse\n", "12 559 Ma\xDFstab der Ellipsen\n"})
        EXPECT_NE(beschriftung.find(text), std::string::npos) << text;
    for (bool* schalter : {&n.l.ShowBeob, &n.l.ShowNP, &linie.Item->Visible, &zustand.ExportActive}) {
        *schalter = !*schalter;
        EXPECT_EQ(Gezeichnet(), Zeilen{});
        *schalter = !*schalter;
    }
    Figurenstile stile;
    stile.kanten = {Figurenstile::kWeggelassen};
    n.l.Stile = std::make_shared<Figurenstile>(stile);
    EXPECT_EQ(Gezeichnet(), Zeilen{}) << "left out by a filter";
    n.l.Stile.reset();
    EXPECT_NE(Gezeichnet(), Zeilen{});
    ergebnisse.paare[{"12", "13"}].B = kNan;
    EXPECT_EQ(Gezeichnet(), Zeilen{});
}

TEST_F(Residuen, BalkenSagenWofuerSieStehen) {
    const auto titel = [this] {
        Zeilen texte;
        for (const std::string& z : Massstab()) {
            if (z.find("stab") != std::string::npos) texte.push_back(z.substr(14));
        }
        return texte;
    };
    n.e.ResMF = 8;
    ZeigeResiduen(true, true);
    n.l.Ellipsen95 = true;
    EXPECT_EQ(titel(),
              Zeilen{"12 559 Residuenma\xDFstab: Verbesserungen, H\xF6hengenauigkeit, Ellipsen 95 %"});
    n.l.Ellipsenmassstab = 20;
    EXPECT_EQ(titel(), (Zeilen{"12 559 Residuenma\xDFstab: Verbesserungen, H\xF6hengenauigkeit",
                               "12 523 Ma\xDFstab der Ellipsen 95 %"}));
    ZeigeResiduen(false, true);
    EXPECT_EQ(titel(), Zeilen{"12 559 Ma\xDFstab der Ellipsen 95 %"});
    n.l.ShowLGGen = n.l.Ellipsen95 = false;
    n.l.ShowKooVergleich = true;
    EXPECT_EQ(titel(), Zeilen{"12 559 Residuenma\xDFstab: Koordinatenvergleich"});
}

TEST_F(Residuen, VergroesserungPasstZumBild) {
    ergebnisse.werte["12"] = {.dY = 3, .dX = 4, .dH = -7, .A = 20, .B = 2, .mH = kNan, .X = 0, .Y = 0};
    ergebnisse.lagen["12"] = {.Y = 0, .X = 0.5};
    const auto mass = [this] { return MissResiduen(n.l.Vorlage(), ergebnisse); };
    EXPECT_EQ(mass().vektor, 0.0) << "nothing is switched on";
    n.l.ShowLgRes = n.l.ShowHGen = true;
    EXPECT_EQ(mass().vektor, 5.0);
    n.l.ShowHRes = n.l.ShowLGGen = true;
    EXPECT_EQ(mass().vektor, 7.0);
    EXPECT_EQ(mass().ellipse, 20.0);
    n.l.ShowKooVergleich = true;
    EXPECT_EQ(mass().vektor, 500.0);
    n.l.ShowFP = false;
    EXPECT_EQ(mass().vektor, 0.0) << "the point is not shown";

    EXPECT_EQ(PassendeVergroesserung(10, 1500), 10.0);
    EXPECT_EQ(PassendeVergroesserung(11, 1500), 5.0);
    EXPECT_EQ(PassendeVergroesserung(1e6, 1500), 1e-4);
    for (const double mm : {0.0, -1.0, kNan, kOhneEnde, 1e-320})
        EXPECT_EQ(PassendeVergroesserung(mm, 1500), std::nullopt) << mm;
    const Residuendarstellung d{.Ellipsen95 = true};
    EXPECT_EQ(Groessenhinweis({10, 10}, d, 5, 800), "");
    EXPECT_EQ(Groessenhinweis({10, 10}, d, 0.2, 800),
              "Verbesserungen sind höchstens 2.0 Bildpunkte groß: Der Residuenmaßstab ist zu klein.");
    EXPECT_EQ(Groessenhinweis({0, 10}, d, 10, 800),
              "Fehlerellipsen sind bis zu 245 Bildpunkte groß: Der Residuenmaßstab ist zu groß.");
}

}  // namespace
}  // namespace zrw
