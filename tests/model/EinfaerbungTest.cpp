// Figures in classes of a result: which value counts, which class it falls into, which lines are left out.
#include <gtest/gtest.h>

#include <map>

#include "model/ergebnisse/Einfaerbung.h"
#include "tests/hilfe/Probenetz.h"

namespace zrw {
namespace {

using T = Beobachtungstabelle;

/// A row between two points with the given values, missing ones not a number.
Beobachtung Zeile(T t, std::string_view von, std::string_view nach, double tg, double ev, bool nk = false) {
    Beobachtung b{.von = PunktNummernTyp(von), .nach = PunktNummernTyp(nach), .tabelle = t, .nk = nk};
    b.werte.fill(kKeinWert);
    b.werte[static_cast<std::size_t>(Messwert::TG)] = tg;
    b.werte[static_cast<std::size_t>(Messwert::EV)] = ev;
    return b;
}

class Punktquelle final : public Punktergebnisse {
  public:
    std::map<std::string, Punktergebnis, std::less<>> werte;
    void ErneuereErgebnisse() override {}
    [[nodiscard]] const Punktergebnis* ErgebnisZu(std::string_view nummer) const override {
        const auto stelle = werte.find(nummer);
        return stelle != werte.end() ? &stelle->second : nullptr;
    }
};

TEST(Einfaerbung, TexteUndIhreFehler) {
    const std::vector<double> vonHand{1, 2, 3.3};
    for (const auto& [text, groesse, art, anzahl, grenzen] :
         std::vector<std::tuple<const char*, Farbgroesse, Klassenart, std::size_t, std::vector<double>>>{
             {"TG", Farbgroesse::TG, Klassenart::VonHand, 4, {1, 2, kUeblicheTestgrenze}},
             {"tg:1,2,3.3", Farbgroesse::TG, Klassenart::VonHand, 5, vonHand},
             {"NMF:gleich3", Farbgroesse::NMF, Klassenart::Gleich, 3, {}},
             {"mL:quantile", Farbgroesse::mL, Klassenart::Quantile, 5, {}},
         }) {
        const Einfaerbungstext gelesen = LiesEinfaerbung(text);
        ASSERT_TRUE(gelesen.wahl) << text << gelesen.fehler;
        EXPECT_EQ(gelesen.wahl->groesse, groesse) << text;
        EXPECT_EQ(gelesen.wahl->klassen, (Klassenwahl{art, grenzen, anzahl})) << text;
        EXPECT_EQ(LiesEinfaerbung(SchreibeEinfaerbung(*gelesen.wahl)).wahl, gelesen.wahl) << text;
    }
    for (const char* text : {"", "XY", "TG:", "TG:2,1", "TG:1,1", "TG:1,,2", "TG:1,2,3,4,5,6,7", "TG:gleich1",
                             "TG:quantile8", "TG:gleichviel", "TG:nan"}) {
        EXPECT_FALSE(LiesEinfaerbung(text).wahl) << text;
        EXPECT_FALSE(LiesEinfaerbung(text).fehler.empty()) << text;
    }
}

TEST(Einfaerbung, GrenzenUndKlassen) {
    const std::vector<double> werte{4, 1, 2, 3, 100, 5};
    EXPECT_EQ(Klassengrenzen({Klassenart::Gleich, {}, 4}, werte), (std::vector<double>{25.8, 50.5, 75.2}));
    EXPECT_EQ(Klassengrenzen({Klassenart::Quantile, {}, 3}, werte), (std::vector<double>{3, 5}));
    EXPECT_EQ(Klassengrenzen({Klassenart::Quantile, {}, 5}, std::vector<double>{7, 7, 7}),
              std::vector<double>());
    EXPECT_EQ(Klassengrenzen({Klassenart::Gleich, {}, 2}, std::vector<double>{-1e308, 1e308}),
              std::vector<double>{0});
    const std::vector<double> grenzen{1, 2};
    EXPECT_EQ(KlasseVon(grenzen, 0.99), 0U);
    EXPECT_EQ(KlasseVon(grenzen, 1), 1U) << "a limit belongs to the class above it";
    EXPECT_EQ(KlasseVon(grenzen, 2), 2U);
    EXPECT_EQ(Klassentext(grenzen, 1), "1 bis 2");
    for (const Farbverlauf& v : kFarbverlaeufe) {
        // Falling brightness is what readers who take colours for each other see.
        double zuvor = 256;
        for (std::size_t k = 0; k < kMeisteKlassen; ++k) {
            const std::uint32_t bgr = KlassenstilVon(v.farben, k, kMeisteKlassen).farbe.wert;
            const double hell = 0.299 * (bgr & 0xFFU) + 0.587 * ((bgr >> 8U) & 0xFFU) + 0.114 * (bgr >> 16U);
            EXPECT_LT(hell, zuvor - 8) << v.name << ' ' << k;
            zuvor = hell;
        }
    }
}

class Planfarben : public testing::Test {
  protected:
    Planfarben() {
        for (const auto& [nr, name] : {std::pair<PunktIndex, const char*>{1, "A"}, {2, "B"}, {3, "C"}}) {
            n.P(nr, nr * 100.0, 0);
            n.T(nr, name);
        }
        ab.Item->LAttr = LinieAttr::AR1;
        bc.Item->KAttr = KanteAttr::GPS;
        liste.zeilen = {Zeile(T::Strecken, "A", "B", -2.5, 0.8), Zeile(T::Richtungen, "B", "A", 1.5, 0.2),
                        Zeile(T::Gps, "C", "B", 0.5, 0.0, true), Zeile(T::GpsPunkte3D, "A", "", 9, 0.5),
                        Zeile(T::Strecken, "A", "X", 9, 0.5)};
    }
    /// Classes of the three lines.
    std::array<int, 3> Klassen(const Planfaerbung& wahl) {
        const auto stile = BaueStile(n.l, wahl, liste, &punkte);
        const auto klasse = [&](const PunktKante& k) {
            return stile->Weggelassen(k) ? -1 : static_cast<int>(stile->kanten.at(k.Folge));
        };
        return {klasse(ab), klasse(bc), klasse(ac)};
    }
    Probenetz n;
    PunktKante& ab = n.K(1, 2);
    PunktKante& bc = n.K(2, 3);
    PunktKante& ac = n.K(1, 3);
    Beobachtungsliste liste;
    Punktquelle punkte;
};

TEST_F(Planfarben, WelcherWertZaehlt) {
    // Four classes, then without control and without a value.
    EXPECT_EQ(Klassen({Einfaerbung{}}), (std::array{2, 4, 5})) << "the largest amount";
    EXPECT_EQ(Klassen({Einfaerbung{.groesse = Farbgroesse::EV, .klassen = UeblicheKlassen(Farbgroesse::EV)}}),
              (std::array{1, 4, 5}))
        << "the least";
    EXPECT_EQ(Klassen({Einfaerbung{.gattung = T::Richtungen}}), (std::array{1, 5, 5}));
    liste.zeilen.push_back(Zeile(T::Strecken, "B", "C", 0.75, 0.5));
    EXPECT_EQ(Klassen({Einfaerbung{}})[1], 0) << "a larger value that is controlled";

    punkte.werte["A"].mL = 3.0;
    punkte.werte["B"].mL = 8.0;
    punkte.werte["C"].mLBekannt = false;
    const auto stile =
        BaueStile(n.l, {Einfaerbung{.groesse = Farbgroesse::mL, .klassen = {Klassenart::VonHand, {5.0}}}},
                  liste, &punkte);
    EXPECT_EQ(stile->knoten, (std::vector<std::uint8_t>{0, 1, 3}));
    EXPECT_TRUE(stile->kanten.empty());
    EXPECT_EQ(BaueStile(n.l, {}, liste, &punkte), nullptr);
}

TEST_F(Planfarben, NurEinTeilDerLinien) {
    const auto nur = [&](Linienkategorie k, PunktIndex station) {
        Planfaerbung wahl;
        wahl.filter.kategorien[static_cast<std::size_t>(k)] = true;
        wahl.filter.station = station;
        return Klassen(wahl);
    };
    constexpr int kDa = Figurenstile::kEigener;
    EXPECT_EQ(nur(Linienkategorie::Richtungen, 0), (std::array{kDa, -1, -1}));
    EXPECT_EQ(nur(Linienkategorie::Gps, 0), (std::array{-1, kDa, -1}));
    EXPECT_EQ(nur(Linienkategorie::Strecken, 0), (std::array{kDa, -1, kDa}));
    EXPECT_EQ(nur(Linienkategorie::Strecken, 3), (std::array{-1, -1, kDa}));
    Planfaerbung wahl{.einfaerbung = Einfaerbung{}};
    wahl.filter.klasse = 2;
    EXPECT_EQ(Klassen(wahl), (std::array{2, -1, -1}));
    n.l.Stile = BaueStile(n.l, wahl, liste, &punkte);
    EXPECT_EQ(n.l.Stile->zeilen[5].anzahl, 0U) << "what is left out is not counted";
    n.l.ShowPicture(n.z);
    EXPECT_EQ(n.l.Vorlage().Gezeichnet(ab), true);
    EXPECT_EQ(n.l.Vorlage().Gezeichnet(ac), false);
    // Lines that come later are as they are.
    EXPECT_TRUE(n.l.Vorlage().Gezeichnet(n.K(2, 3)));
}

}  // namespace
}  // namespace zrw
