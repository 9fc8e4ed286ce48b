// What the golden files of tests/golden_export cannot hold: odd numbers, broken exports, and that an export
// leaves nothing behind but its two files.
#include "output/Export.h"

#include <gtest/gtest.h>

#include <limits>

#include "model/Bytes.h"
#include "model/Fehler.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

constexpr double kUnendlich = std::numeric_limits<double>::infinity();

/// Lines of a text file, each of which must end in CR LF.
Zeilen Zerlegt(std::string_view datei) {
    Zeilen zeilen;
    while (!datei.empty()) {
        const std::size_t ende = datei.find("\r\n");
        EXPECT_NE(ende, std::string_view::npos);
        zeilen.emplace_back(datei.substr(0, ende));
        datei.remove_prefix(std::min(ende + 2, datei.size()));
    }
    return zeilen;
}

class Export : public testing::Test {
  protected:
    void ExportierePlan() {
        zrw::ExportierePlan(n.l.Vorlage(), {zustand, n.e, tafel.netz, tafel.uhr}, dateien,
                            {Druckfaktor(25000, 600), kPlotname, kDxfname});
    }
    std::string Gespeichert() {
        ByteSchreiber f;
        n.l.Store(f, tafel.netz);
        return std::string(f.Inhalt());
    }

    Probenetz n;
    Zeichentafel<MerkFlaeche> tafel{n.e};
    Zeichenzustand& zustand = tafel.zustand;
    Speicherdateien dateien;
};

TEST_F(Export, RealzahlenMit23Zeichen) {
    for (const auto& [wert, text] : {std::pair{0.0, " 0.00000000000000E+0000"},
                                     {-0.0, " 0.00000000000000E+0000"},
                                     {-1250.0, "-1.25000000000000E+0003"},
                                     {1e-320, " 9.99988867182683E-0321"},
                                     {123456789.123456789, " 1.23456789123457E+0008"},
                                     {9.999999999999999, " 1.00000000000000E+0001"},
                                     {-kUnendlich, "-1.00000000000000E+0300"},
                                     {std::numeric_limits<double>::quiet_NaN(), " 0.00000000000000E+0000"}}) {
        DXFUnit d(dateien);
        d.DxfFileName = "a";
        d.DxfOpen();
        d.DxfPoint({dxf::kPunkte}, {wert, 0, 0});
        d.DxfClose();
        d.ErsetzeZiel();
        EXPECT_EQ(Zerlegt(dateien.dateien.at("a")).at(11), text);
    }
}

TEST_F(Export, LaesstNetzAnsichtUndZustandWieSieWaren) {
    for (PunktIndex i = 1; i <= 400; ++i) {
        n.P(i, 13.7 * i, 7.1 * i);
        n.T(i, "P" + std::to_string(i));
        if (i > 1) n.K(i, static_cast<PunktIndex>(i - 1), static_cast<LinieAttr>(i % 7));
    }
    n.l.Faktor = 1.0 / 3;
    n.l.WeltinBild();
    // As from a picture file: a position that the view does not give.
    n.l.PunktKnoten->Item->XO = 4711;
    n.l.KanteKnoten->Item->XBiE = -4711;
    zustand.modus = Zeichenmodus::Drucker;
    const std::string vorher = Gespeichert();
    ExportierePlan();
    const std::size_t bytes = dateien.dateien[kPlotname].size() + dateien.dateien[kDxfname].size();
    ASSERT_GT(bytes, 200000U) << "several pieces";
    const auto unveraendert = [&](std::size_t platz) {
        EXPECT_EQ(Gespeichert(), vorher) << platz;
        EXPECT_EQ(zustand.flaeche, &tafel.flaeche);
        EXPECT_EQ(zustand.modus, Zeichenmodus::Drucker);
        EXPECT_FALSE(zustand.ExportActive);
        EXPECT_TRUE(zustand.PlotFile == nullptr && zustand.Dxf == nullptr &&
                    zustand.Exportansicht == nullptr);
        EXPECT_EQ(tafel.flaeche.NimmZeilen(), Zeilen{}) << "the screen has seen nothing of it";
    };
    unveraendert(SIZE_MAX);
    for (const std::size_t platz : {std::size_t{0}, std::size_t{70000}, bytes - 1}) {
        dateien.dateien = {{kPlotname, "alt"}, {kDxfname, "alt"}};
        dateien.platz = platz;
        EXPECT_THROW(ExportierePlan(), Fehler) << platz;
        EXPECT_EQ(dateien.dateien[kPlotname] + dateien.dateien[kDxfname], "altalt") << platz;
        unveraendert(platz);
    }
}

TEST(Massstab, NurPositiveZahlen) {
    for (const char* text : {"25000", " 500 ", "0.5", "2.5e4", "1E15"})
        EXPECT_TRUE(LiesMassstab(text)) << text;
    for (const char* text : {"", "0", "-1", "1:500", "abc", "nan", "inf", "1e16", "1e-320", "0.0000001"})
        EXPECT_FALSE(LiesMassstab(text)) << text;
    EXPECT_DOUBLE_EQ(Druckfaktor(25000, 600), 25000.0 / 1000 * 25.4 / 600);
}

}  // namespace
}  // namespace zrw
