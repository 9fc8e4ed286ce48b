// The result tables: imported, asked, listed and marked, against rows worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "input/tabellen/Ergebnisabfragen.h"
#include "input/tabellen/MarkiereFehler.h"
#include "input/tabellen/ParadoxFormat.h"
#include "input/tabellen/Paradoxschreiber.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Fehler.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

using paradox::Feldtyp;
using paradox::Wert;
using Namen = std::vector<std::pair<std::string, std::string>>;

class Ergebnisse : public testing::Test {
  protected:
    Ergebnisse() { daten.SetzeOrdner("netz"); }

    /// A table whose rows have the given values in the named fields and null elsewhere, IDs from 1 on.
    void LegeTabelleAn(Tabelle t, const std::vector<std::vector<std::pair<std::string_view, Wert>>>& zeilen) {
        std::vector<std::vector<Wert>> alle;
        for (const auto& zeile : zeilen) {
            std::vector<Wert> werte(Beschreibung(t).felder.size());
            werte[0] = std::int64_t{1} + static_cast<std::int64_t>(alle.size());
            for (const auto& [feld, wert] : zeile)
                werte.at(Feld(t, feld)) = wert;
            alle.push_back(werte);
        }
        ErzeugeTabelle(dateien, "netz", t, alle, 0);
    }
    static std::size_t Feld(Tabelle t, std::string_view name) {
        const auto felder = Beschreibung(t).felder;
        const auto stelle =
            std::find_if(felder.begin(), felder.end(), [&](const auto& f) { return f.name == name; });
        return static_cast<std::size_t>(stelle - felder.begin());
    }
    /// IDs of the rows of a listing.
    std::vector<std::int64_t> Ids(const Ergebnisreiter& r, std::string_view a, std::string_view b = {}) {
        std::vector<std::int64_t> ids;
        for (const auto& zeile :
             daten.FrageTabelle(r.tabelle, Abfragetext(b.empty() ? r.punkt : r.kante, a, b)).zeilen)
            ids.push_back(std::get<std::int64_t>(zeile[0]));
        return ids;
    }

    std::string Meldungen() {
        std::string texte;
        for (const Tabellenmeldung& m : daten.NimmMeldungen())
            texte += (m.unlesbar ? "unlesbar " : "") + m.text + "\n";
        return texte;
    }

    Speicherdateien dateien;
    TDM daten{dateien};
};

TEST_F(Ergebnisse, ErzeugteTabellenSindLeerUndVollstaendig) {
    LegeTabelleAn(Tabelle::Strecken, {{{"P1", "A"}}});
    for (int mal = 0; mal < 2; ++mal)
        ErzeugeTabellen(dateien, "netz", 0);
    EXPECT_EQ(dateien.dateien.size(), 20U);
    for (std::size_t i = 0; i < kErgebnistabellen.size(); ++i) {
        const Antwort alles = daten.FrageTabelle(static_cast<Tabelle>(i), kErgebnistabellen[i].alles);
        EXPECT_TRUE(alles.zeilen.empty()) << kErgebnistabellen[i].name;
        EXPECT_EQ(alles.spalten.size(), kErgebnistabellen[i].felder.size());
    }
    const auto klammern = daten.FrageTabelle(Tabelle::GpsPunkte3D, "SELECT \"X(GPS)\" from WGSTABLE");
    EXPECT_TRUE(klammern.zeilen.empty());
}

TEST_F(Ergebnisse, AuflistungenAllerReiter) {
    const Namen paare{{"1", "2"},
                      {"2", "1"},
                      {"1", "3"},
                      {"3", "2"},
                      {"O'B", "1"},
                      {"KÜHBG", "12345678901234"},
                      {"12345678901234", "KÜHBG"},
                      {"", "1"},
                      {"1", "2"}};
    std::vector<std::vector<std::pair<std::string_view, Wert>>> zeilen;
    for (const Ergebnisreiter& r : kErgebnisreiter) {
        const bool paarig = Feld(r.tabelle, "PKT") == Beschreibung(r.tabelle).felder.size();
        const auto felder = Beschreibung(r.tabelle).felder;
        zeilen.clear();
        for (const auto& [a, b] : paare) {
            if (!paarig) {
                zeilen.push_back({{"PKT", std::string_view(a)}});
            } else {
                zeilen.push_back(
                    {{felder[1].name, std::string_view(a)}, {felder[2].name, std::string_view(b)}});
            }
        }
        LegeTabelleAn(r.tabelle, zeilen);
        const bool gerichtet = r.tabelle == Tabelle::Gps;
        for (const std::string n :
             {"1", "2", "3", "O'B", "KÜHBG", "12345678901234", "fehlt", "1' OR '1'='1"}) {
            std::vector<std::int64_t> erwartet;
            for (std::size_t i = 0; i < paare.size(); ++i) {
                if (paare[i].first == n || (paarig && paare[i].second == n))
                    erwartet.push_back(static_cast<std::int64_t>(i) + 1);
            }
            EXPECT_EQ(Ids(r, n), erwartet) << r.titel << " " << n;
            for (const std::string m : {"1", "2", "KÜHBG", "12345678901234", "O'B"}) {
                erwartet.clear();
                for (std::size_t i = 0; i < paare.size(); ++i) {
                    const auto& [a, b] = paare[i];
                    const bool hin = a == n && b == m;
                    const bool her = a == m && b == n;
                    if (paarig ? hin || (her && !gerichtet) : a == n || a == m)
                        erwartet.push_back(static_cast<std::int64_t>(i) + 1);
                }
                EXPECT_EQ(Ids(r, n, m), erwartet) << r.titel << " " << n << " " << m;
                EXPECT_EQ(daten.ZaehleZeilen(r.tabelle, Abfragetext(r.kante, n, m), r.flag).zeilen,
                          static_cast<std::int64_t>(erwartet.size()));
            }
        }
    }
}

TEST_F(Ergebnisse, SpaltenWerdenBeimNamenGefunden) {
    // Other order, one field less (H), one more, one in another case.
    const std::vector<paradox::Feld> felder{{"ID", Feldtyp::Lang, 4},
                                            {"x", Feldtyp::Zahl, 8},
                                            {"PKT", Feldtyp::Alpha, 14},
                                            {"NEU", Feldtyp::Alpha, 3},
                                            {"dY", Feldtyp::Zahl, 8}};
    const std::vector<std::vector<Wert>> zeilen{{std::int64_t{7}, 1.5, "P", "abc", -2.0}};
    dateien.dateien["netz/kootable.db"] = paradox::SchreibeTabelle("KOO", felder, zeilen, 0).db;
    const Antwort a = daten.FrageTabelle(Tabelle::Koordinaten, Abfragetext(kErgebnisreiter[0].punkt, "P"));
    ASSERT_EQ(a.zeilen.size(), 1U);
    EXPECT_EQ(std::get<double>(a.zeilen[0][Feld(Tabelle::Koordinaten, "X")]), 1.5);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(a.zeilen[0][Feld(Tabelle::Koordinaten, "H")]));
    EXPECT_EQ(a.spalten.back(), "NEU");
    EXPECT_EQ(std::get<std::string>(a.zeilen[0].back()), "abc");
    EXPECT_EQ(daten.FrageTabelle(Tabelle::Koordinaten, "SELECT NEU, PKT from KooTABLE").spalten.back(),
              "NEU");
    daten.ErneuereErgebnisse();
    ASSERT_NE(daten.ErgebnisZu("P"), nullptr);
    EXPECT_EQ(daten.ErgebnisZu("P")->dY, -2.0);
    EXPECT_TRUE(std::isnan(daten.ErgebnisZu("P")->dX)) << "a missing field counts as null";
    EXPECT_EQ(daten.ErgebnisZu("P")->mL, 0.0) << "and makes no ellipse wide";
    EXPECT_FALSE(daten.ErgebnisZu("P")->mLBekannt);

    // A field that the query needs.
    const std::vector<paradox::Feld> ohne{{"ID", Feldtyp::Lang, 4}, {"X", Feldtyp::Zahl, 8}};
    dateien.dateien["netz/kootable.db"] = paradox::SchreibeTabelle("KOO", ohne, {}, 0).db;
    try {
        static_cast<void>(
            daten.FrageTabelle(Tabelle::Koordinaten, Abfragetext(kErgebnisreiter[0].punkt, "P")));
        FAIL() << "the point numbers are missing";
    } catch (const Fehler& f) {
        EXPECT_NE(std::string(f.what()).find("KOOTABLE.PKT"), std::string::npos) << f.what();
    }
}

TEST_F(Ergebnisse, BeschaedigteTabelleLaesstDieAltenWerteStehen) {
    LegeTabelleAn(
        Tabelle::Koordinaten,
        {{{"PKT", "A"}, {"dY", 3.0}}, {{"PKT", "A"}, {"dY", 4.0}}, {{"PKT", "K\xC3\x9C"}, {"A", 5.0}}});
    daten.ErneuereErgebnisse();
    EXPECT_EQ(daten.ErgebnisZu("A")->dY, 3.0) << "the first row of a number";
    EXPECT_EQ(daten.ErgebnisZu("K\xDC")->A, 5.0) << "labels are code page 1252";
    EXPECT_EQ(daten.ErgebnisZu("B"), nullptr);
    EXPECT_EQ(Meldungen(), "");

    std::string& db = dateien.dateien["netz/KooTABLE.DB"];
    const std::string heil = db;
    db[paradox::kCodeseite] = '\x62';  // 866, Cyrillic
    db[paradox::kCodeseite + 1] = '\x03';
    daten.ErneuereErgebnisse();
    EXPECT_TRUE(Meldungen().starts_with("KooTABLE.DB: ")) << "a warning about the whole table";
    db = heil;
    daten.ErneuereErgebnisse();
    db.resize(2100);
    daten.ErneuereErgebnisse();
    EXPECT_EQ(daten.ErgebnisZu("A")->dY, 3.0);
    EXPECT_NE(Meldungen().find("KooTABLE.DB"), std::string::npos);
    daten.ErneuereErgebnisse();
    EXPECT_EQ(Meldungen(), "") << "told once for each state of the file";
    EXPECT_EQ(Ids(kErgebnisreiter[0], "A").size(), 2U) << "the rows that were read before";
    EXPECT_EQ(Meldungen(), "");
    TDM neu{dateien};
    neu.SetzeOrdner("netz");
    EXPECT_THROW(static_cast<void>(neu.FrageTabelle(Tabelle::Koordinaten, kErgebnistabellen[4].alles)),
                 Fehler)
        << "nothing was read before";
    neu.ErneuereErgebnisse();
    const int gelesen = dateien.gelesen;
    neu.ErneuereErgebnisse();
    EXPECT_EQ(dateien.gelesen, gelesen) << "nor is it read again at each drawing";
    const auto meldungen = neu.NimmMeldungen();
    ASSERT_EQ(meldungen.size(), 1U);
    EXPECT_TRUE(meldungen[0].unlesbar);

    LegeTabelleAn(Tabelle::Koordinaten, {{{"PKT", "A"}, {"dY", 9.0}}});
    daten.ErneuereErgebnisse();
    EXPECT_EQ(daten.ErgebnisZu("A")->dY, 9.0) << "a new calculation is seen";
    EXPECT_EQ(Ids(kErgebnisreiter[0], "A").size(), 1U);
    dateien.dateien.erase("netz/KooTABLE.DB");
    daten.ErneuereErgebnisse();
    EXPECT_EQ(daten.ErgebnisZu("A"), nullptr);
}

TEST_F(Ergebnisse, ZweiteKoordinatenZumVergleich) {
    daten.ErneuereVergleich();
    EXPECT_EQ(daten.VergleichZu("A"), nullptr) << "no table";
    LegeTabelleAn(Tabelle::WeitereKoordinaten, {{{"PKT", "A"}, {"Y", 3.5}}, {{"PKT", "A"}, {"Y", 4.5}}});
    daten.ErneuereVergleich();
    ASSERT_NE(daten.VergleichZu("A"), nullptr);
    EXPECT_EQ(daten.VergleichZu("A")->Y, 3.5) << "the first row of a number";
    EXPECT_TRUE(std::isnan(daten.VergleichZu("A")->X)) << "null";
    const std::vector<paradox::Feld> ohne{{"ID", Feldtyp::Lang, 4}, {"PKT", Feldtyp::Alpha, 14}};
    dateien.dateien["netz/PostKooTABLE.DB"] = paradox::SchreibeTabelle("P", ohne, {}, 0).db;
    daten.ErneuereVergleich();
    EXPECT_EQ(daten.VergleichZu("A"), nullptr);
    EXPECT_TRUE(Meldungen().starts_with("PostKooTABLE.DB: Der Tabelle fehlt: Y, X."));
    dateien.dateien["netz/PostKooTABLE.DB"] = "kaputt";
    daten.ErneuereVergleich();
    daten.ErneuereVergleich();
    EXPECT_NE(Meldungen(), "");
    daten.SetzeOrdner("anderswo");
    EXPECT_EQ(daten.VergleichZu("A"), nullptr);
}

TEST_F(Ergebnisse, RelativeEllipsenJePaar) {
    daten.ErneuereRelative();
    EXPECT_FALSE(daten.HatRelative());
    EXPECT_EQ(Meldungen(), "") << "no table, nothing to tell";
    LegeTabelleAn(Tabelle::RelativeEllipsen,
                  {{{"P1", "B"}, {"P2", "A"}, {"A", 3.5}, {"B", 2.0}, {"Phi", 12.5}, {"mQ", 1.25}},
                   {{"P1", "A"}, {"P2", "B"}, {"A", 9.0}},
                   {{"P1", "A"}, {"A", 1.0}}});
    daten.ErneuereRelative();
    ASSERT_NE(daten.RelativeZu("A", "B"), nullptr);
    const Relativellipse& e = *daten.RelativeZu("A", "B");
    EXPECT_EQ(daten.RelativeZu("B", "A"), &e);
    EXPECT_EQ((std::array{e.A, e.B, e.Phi, e.mQ}), (std::array{3.5, 2.0, 12.5, 1.25})) << "the first row";
    EXPECT_TRUE(std::isnan(e.mS));
    EXPECT_EQ(daten.RelativeZu("A", ""), nullptr);
    dateien.dateien["netz/RELTABLE.DB"].resize(1000);
    daten.ErneuereRelative();
    daten.ErneuereRelative();
    EXPECT_TRUE(Meldungen().starts_with("unlesbar RELTABLE.DB: "));
    EXPECT_TRUE(daten.HatRelative()) << "what was read stays";
    const std::vector<paradox::Feld> ohne{{"ID", Feldtyp::Lang, 4}, {"P1", Feldtyp::Alpha, 14}};
    dateien.dateien["netz/RELTABLE.DB"] = paradox::SchreibeTabelle("R", ohne, {}, 0).db;
    daten.ErneuereRelative();
    EXPECT_EQ(Meldungen(), "RELTABLE.DB: Der Tabelle fehlt: P2, A, B, Phi. Relative Ellipsen fehlen.\n");
    EXPECT_FALSE(daten.HatRelative());
}

TEST_F(Ergebnisse, MarkiertDieGekennzeichneten) {
    Probenetz n;
    for (const char* name : {"1", "2", "3", "4", "5", "6", "7"}) {
        const auto nr = static_cast<PunktIndex>(name[0] - '0');
        n.P(nr);
        n.T(nr, name);
    }
    n.K(2, 1);
    for (PunktIndex i = 2; i < 7; ++i)
        n.K(i, static_cast<PunktIndex>(i + 1));
    const auto marken = [&] {
        std::set<int> nummern;  // first point of each marked line, lines being one number apart
        for (const auto* k = n.l.KanteKnoten; k != nullptr; k = k->Next) {
            if (k->Item->Farbe == n.e.GFCol) nummern.insert(std::min(k->ANr, k->ENr));
        }
        return nummern;
    };
    const auto zeile = [](std::string_view p, std::string_view von, std::string_view q, std::string_view nach,
                          std::string_view flag, bool grob) {
        return std::vector<std::pair<std::string_view, Wert>>{{p, von}, {q, nach}, {flag, grob}};
    };
    LegeTabelleAn(Tabelle::Richtungen, {zeile("PS", "2", "PZ", "3", "FF", true)});
    LegeTabelleAn(Tabelle::Hoehenunterschiede, {zeile("P1", "3", "P2", "4", "FF", true)});
    LegeTabelleAn(Tabelle::Gps, {zeile("P1", "5", "P2", "4", "FF", true)});
    LegeTabelleAn(Tabelle::Streckenkontrollen, {zeile("P1", "5", "P2", "6", "GF", true)});
    LegeTabelleAn(Tabelle::Linien, {zeile("PA", "6", "PE", "7", "GF", true)});
    const auto gruende = [&](std::string_view a, std::string_view b) { return Markiergruende(daten, a, b); };
    EXPECT_EQ(gruende("7", "6"), (std::vector<std::string_view>{"Linienprüfungen"}));
    EXPECT_EQ(gruende("4", "5"), (std::vector<std::string_view>{"GPS Vektoren"})) << "in either direction";
    EXPECT_TRUE(gruende("2", "3").empty()) << "directions count beside distances";
    std::string& linien = dateien.dateien["netz/MLTABLE.DB"];
    EXPECT_TRUE(daten.RaschGefragt(Tabelle::Linien));
    linien.resize(std::size_t{2} << 20U);
    EXPECT_TRUE(gruende("7", "6").empty()) << "too large to be read beside";
    linien.resize(6144);
    EXPECT_TRUE(MarkiereFehler(n.l, daten, n.e).empty());
    EXPECT_EQ(marken(), (std::set{3, 4, 5, 6})) << "no direction without the table of distances";

    // Not flagged, unknown points, no line between them, and one in the other orientation.
    LegeTabelleAn(Tabelle::Strecken,
                  {zeile("P1", "4", "P2", "5", "FF", false), zeile("P1", "1", "P2", "99", "FF", true),
                   zeile("P1", "1", "P2", "7", "FF", true), zeile("P1", "1", "P2", "2", "FF", true)});
    EXPECT_TRUE(MarkiereFehler(n.l, daten, n.e).empty());
    EXPECT_EQ(marken(), (std::set{1, 2, 3, 4, 5, 6}));

    for (auto* k = n.l.KanteKnoten; k != nullptr; k = k->Next)
        k->Item->Farbe = kSchwarz;
    dateien.dateien["netz/DHTABLE.DB"] = "kaputt";
    dateien.dateien.erase("netz/RTGTABLE.DB");
    TDM neu{dateien};
    neu.SetzeOrdner("netz");
    const auto meldungen = MarkiereFehler(n.l, neu, n.e);
    ASSERT_EQ(meldungen.size(), 1U);
    EXPECT_TRUE(meldungen[0].text.starts_with("DHTABLE.DB: ") && meldungen[0].unlesbar);
    EXPECT_EQ(marken(), (std::set{1, 4, 5, 6})) << "the other tables mark all the same";
}

// Silence would look like a network without gross errors.
TEST_F(Ergebnisse, FelderDieFehlenOderAnderesEnthaltenWerdenGenannt) {
    const auto lege = [&](const char* name, const std::vector<paradox::Feld>& felder) {
        dateien.dateien[std::string("netz/") + name + ".DB"] =
            paradox::SchreibeTabelle(name, felder, {}, 0).db;
    };
    lege("STRTABLE", {{"ID", Feldtyp::Lang, 4}, {"P1", Feldtyp::Alpha, 14}, {"ST", Feldtyp::Zahl, 8}});
    lege("DHTABLE", {{"ID", Feldtyp::Lang, 4},
                     {"P1", Feldtyp::Zahl, 8},
                     {"P2", Feldtyp::Alpha, 9},
                     {"FF", Feldtyp::Lang, 4}});
    lege("KooTABLE", {{"ID", Feldtyp::Lang, 4},
                      {"PKT", Feldtyp::Alpha, 14},
                      {"dy", Feldtyp::Lang, 4},
                      {"dX", Feldtyp::Alpha, 8},
                      {"dH", Feldtyp::Zahl, 8},
                      {"A", Feldtyp::Zahl, 8},
                      {"B", Feldtyp::Zahl, 8},
                      {"Phi", Feldtyp::Zahl, 8},
                      {"mH", Feldtyp::Waehrung, 8}});
    Probenetz n;
    const auto meldungen = MarkiereFehler(n.l, daten, n.e);
    ASSERT_EQ(meldungen.size(), 2U);
    EXPECT_EQ(meldungen[0].text,
              "STRTABLE.DB: Der Tabelle fehlt: P2, FF. Ihre groben Fehler bleiben unmarkiert.");
    EXPECT_EQ(meldungen[1].text,
              "DHTABLE.DB: Anders als erwartet ist: P1 (Zahl statt Text), FF (Zahl statt Ja/Nein). Grobe "
              "Fehler können unmarkiert bleiben.");
    daten.ErneuereErgebnisse();
    EXPECT_EQ(Meldungen(),
              "KooTABLE.DB: Der Tabelle fehlt: mL. Anders als erwartet ist: dX (Text statt Zahl). Gezeichnet "
              "wird, was sich lesen lässt.\n");
    daten.ErneuereErgebnisse();
    EXPECT_EQ(Meldungen(), "");
}

}  // namespace
}  // namespace zrw
