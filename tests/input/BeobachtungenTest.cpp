// The observations of all tables as one list: what counts of several components, what is shown of a table
// that changes, order and filters. What the columns are read from is checked by tests/fremd/beobachtungen.sh.
#include <gtest/gtest.h>

#include <cmath>

#include "input/tabellen/Beobachtungsleser.h"
#include "model/ergebnisse/Listenordnung.h"
#include "model/ergebnisse/Statistik.h"
#include "output/ergebnisse/Beobachtungsdatei.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

using paradox::Wert;
using Tab = Beobachtungstabelle;

class Beobachtungen : public testing::Test {
  protected:
    Beobachtungen() { daten.SetzeOrdner("netz"); }

    /// Rows with the given values and null elsewhere, IDs falling from `id`.
    void LegeTabelleAn(Tabelle t, std::int64_t id,
                       const std::vector<std::vector<std::pair<std::string_view, Wert>>>& zeilen) {
        std::vector<std::vector<Wert>> alle;
        const auto felder = Beschreibung(t).felder;
        for (const auto& zeile : zeilen) {
            std::vector<Wert> werte(felder.size());
            werte[0] = id + static_cast<std::int64_t>(alle.size());
            for (std::size_t i = 0; i < felder.size(); ++i) {
                for (const auto& [feld, wert] : zeile) {
                    if (felder[i].name == feld) werte[i] = wert;
                }
            }
            alle.push_back(werte);
        }
        ErzeugeTabelle(dateien, "netz", t, alle, 0);
    }
    std::vector<std::string> Zeilen(const Listenfilter& f, const Listenordnung& o) {
        const Beobachtungsliste liste = LiesBeobachtungen(daten);
        std::vector<std::string> texte;
        for (const std::uint32_t i : OrdneZeilen(liste, f, o))
            texte.push_back(Beobachtungszeile(liste.zeilen[i]));
        return texte;
    }

    Speicherdateien dateien;
    TDM daten{dateien};
};

TEST_F(Beobachtungen, ReihenfolgeUndFilter) {
    LegeTabelleAn(Tabelle::Richtungen, 3,
                  {{{"PS", "A;\"1\""}, {"PZ", "B"}, {"TG", -4.0}, {"EV", 0.25}, {"FF", true}},
                   {{"PS", "B"}, {"PZ", "C"}, {"TG", 2.0}, {"NK", true}},
                   {{"PS", "Ü"}, {"PZ", "C"}}});
    LegeTabelleAn(Tabelle::Strecken, 7,
                  {{{"P1", "C"}, {"P2", "A"}, {"TG", 4.0}, {"EV", 101.5}, {"ST", 100.125}},
                   {{"P1", "C"}, {"P2", "B"}, {"EV", 1.0}}});
    LegeTabelleAn(Tabelle::GpsPunkte3D, 1,
                  {{{"PKT", "C"}, {"TGX", 1.0}, {"TGZ", -3.5}, {"EVY", 0.75}, {"EVZ", 0.5}, {"GFX", 2.0}}});
    const std::string rtg3 = "RTGTABLE;3;\"A;\"\"1\"\"\";B;;;-4;0.25;;;;;1;0";
    const std::string rtg4 = "RTGTABLE;4;B;C;;;2;;;;;;0;1";
    const std::string rtg5 = "RTGTABLE;5;Ü;C;;;;;;;;;0;0";
    const std::string str7 = "STRTABLE;7;C;A;100.125;;4;1.015;;;;;0;0";
    const std::string str8 = "STRTABLE;8;C;B;;;;0.01;;;;;0;0";
    const std::string wgs1 = "WGSTABLE;1;C;;;;-3.5;0.5;2;;;;0;0";
    using Texte = std::vector<std::string>;
    EXPECT_EQ(Zeilen({}, {}), (Texte{str7, rtg3, wgs1, rtg4, str8, rtg5}));
    const Listenordnung steigend{Listenspalte::TG, false, false};
    EXPECT_EQ(Zeilen({}, steigend), (Texte{rtg3, wgs1, rtg4, str7, str8, rtg5})) << "missing ones come last";
    EXPECT_EQ(Zeilen({}, {Listenspalte::Von, true, true}), (Texte{rtg5, str7, str8, wgs1, rtg4, rtg3}));
    EXPECT_EQ(Zeilen({}, {Listenspalte::ID, false, true}), (Texte{wgs1, rtg3, rtg4, rtg5, str7, str8}));

    Listenfilter f;
    f.nurMarkierte = true;
    EXPECT_EQ(Zeilen(f, {}), Texte{rtg3});
    f = {};
    f.nurUnkontrollierte = true;
    EXPECT_EQ(Zeilen(f, {}), Texte{rtg4});
    f = {};
    f.ueberTG = 3.29;
    f.punkt = PunktNummernTyp("C");
    EXPECT_EQ(Zeilen(f, {}), (Texte{str7, wgs1}));
    f = {};
    f.bereich = {Messwert::TG, 2.0, 3.5, true, true};
    EXPECT_EQ(Zeilen(f, {}), (Texte{wgs1, rtg4}));
    f.bereich->mitEnde = false;
    EXPECT_EQ(Zeilen(f, {}), Texte{rtg4});
    f = {};
    f.gattungen[static_cast<std::size_t>(Tab::Richtungen)] = false;
    f.suche = [](const Beobachtung& b) { return !b.nach.Leer(); };
    EXPECT_EQ(Zeilen(f, {}), (Texte{str7, str8}));
}

TEST_F(Beobachtungen, NurWasJetztInDenDateienSteht) {
    LegeTabelleAn(Tabelle::Strecken, 1, {{{"P1", "A"}}, {{"P1", "B"}}});
    LegeTabelleAn(Tabelle::Linien, 1, {{{"PA", "A"}, {"GF", true}}});
    const Beobachtungsstand vorher = StandDerBeobachtungen(daten);
    EXPECT_EQ(LiesBeobachtungen(daten).zeilen.size(), 3U);
    EXPECT_EQ(LiesBeobachtungen(daten).Zeilen(Tab::Linien)[0].ff, true);
    EXPECT_EQ(LiesBeobachtungen(daten).Lage(Tab::Gps).zustand, Lesezustand::Fehlt);

    std::string& strecken = dateien.dateien["netz/STRTABLE.DB"];
    const std::string heil = strecken;
    strecken.resize(strecken.size() / 2);
    EXPECT_NE(StandDerBeobachtungen(daten), vorher);
    for (int mal = 0; mal < 2; ++mal) {
        const Beobachtungsliste liste = LiesBeobachtungen(daten);
        EXPECT_EQ(liste.zeilen.size(), 1U) << "no row of a state that is gone";
        EXPECT_EQ(liste.Lage(Tab::Strecken).zustand, Lesezustand::Unlesbar);
        EXPECT_NE(liste.Lage(Tab::Strecken).grund.find("STRTABLE.DB"), std::string::npos);
    }
    strecken = heil;
    EXPECT_EQ(LiesBeobachtungen(daten).zeilen.size(), 3U);
    dateien.dateien.erase("netz/STRTABLE.DB");
    EXPECT_EQ(LiesBeobachtungen(daten).Lage(Tab::Strecken).zustand, Lesezustand::Fehlt);
}

TEST_F(Beobachtungen, RelativeEllipsenSindWeitereSpalten) {
    LegeTabelleAn(Tabelle::Strecken, 1, {{{"P1", "A"}, {"P2", "B"}}, {{"P1", "A"}, {"P2", "C"}}});
    const auto datei = [this] {
        SchreibeBeobachtungen(LiesBeobachtungen(daten), dateien.BeginneDatei("liste"));
        return dateien.dateien["liste"];
    };
    EXPECT_EQ(datei().find("rel"), std::string::npos);
    const Beobachtungsstand vorher = StandDerBeobachtungen(daten);
    LegeTabelleAn(Tabelle::RelativeEllipsen, 1, {{{"P1", "B"}, {"P2", "A"}, {"A", 3.5}, {"Phi", 7.0}}});
    EXPECT_NE(StandDerBeobachtungen(daten), vorher);
    EXPECT_EQ(datei(), Spaltenzeile() +
                           ";relA;relB;relPhi\nSTRTABLE;1;A;B;;;;;;;;;0;0;3.5;;7\n"
                           "STRTABLE;2;A;C;;;;;;;;;0;0;;;\n");
}

TEST_F(Beobachtungen, StatistikUndHistogramm) {
    std::vector<std::vector<std::pair<std::string_view, Wert>>> zeilen;
    for (const double tg : {0.5, -0.75, 1.0, 1.5, -2.0, 3.29, 3.5, -30.0})
        zeilen.push_back({{"TG", tg}, {"EV", std::fabs(tg) / 40.0}, {"VS", -tg}});
    zeilen.push_back({{"NK", true}});
    LegeTabelleAn(Tabelle::Strecken, 1, zeilen);
    const Beobachtungsliste liste = LiesBeobachtungen(daten);
    const Gattungsstatistik s = Zaehle(liste, Tab::Strecken, kUeblicheTestgrenze);
    EXPECT_EQ((std::array{s.anzahl, s.unkontrolliert, s.mitTG, s.tgUnter1, s.tgUnter2, s.tgUnterGrenze}),
              (std::array<std::size_t, 6>{9, 1, 8, 2, 4, 5}));
    EXPECT_EQ(s.groessteTG, 30.0);
    EXPECT_EQ(s.kleinsterEV, 0.0125);
    EXPECT_NEAR(s.mittlererEV.value(), 42.54 / 40.0 / 8.0, 1e-12);
    EXPECT_EQ(s.groessteV, 30.0);
    EXPECT_EQ(s.auffaelligste, (std::vector<std::uint32_t>{7, 6, 5, 4, 3}));
    const Histogramm h = ZaehleKlassen(liste, Messwert::TG, std::nullopt, 4.0, 4);
    EXPECT_EQ(h.anzahlen, (std::vector<std::size_t>{2, 2, 1, 2}));
    EXPECT_EQ(h.darueber, 1U);
    EXPECT_NEAR(NormalerAnteil(1.0), 0.6826894921, 1e-9);
}

}  // namespace
}  // namespace zrw
