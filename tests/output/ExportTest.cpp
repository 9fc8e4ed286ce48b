// The two export files to the character, and that an export leaves nothing behind but them.
#include "output/Export.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "model/Bytes.h"
#include "model/Fehler.h"
#include "output/Figurenzeichner.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

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
    Export() {
        zustand.flaeche = &flaeche;
        n.l.Weite = 800;
        n.l.Hoehe = 600;
        n.l.MaxYW = 1000;
    }

    /// At one metre a dot, so that dots are read off the world coordinates: x to the right, 1000 - y upwards.
    void Exportiere(double faktor = 1.0) {
        zrw::Exportiere(n.l, zeichner, zustand, dateien, {faktor, kPlotname, kDxfname});
    }
    Zeilen Plot() { return Zerlegt(dateien.dateien.at(kPlotname)); }
    Zeilen Dxf() { return Zerlegt(dateien.dateien.at(kDxfname)); }
    std::string Gespeichert() {
        ByteSchreiber f;
        n.l.Store(f, netz);
        return std::string(f.Inhalt());
    }

    Probenetz n;
    Netzangaben netz;
    Festuhr uhr;
    Zeichenzustand zustand;
    MerkFlaeche flaeche;
    Figurenzeichner zeichner{zustand, n.e, netz, uhr};
    Speicherdateien dateien;
};

TEST_F(Export, LeeresNetz) {
    Exportiere();
    EXPECT_EQ(Plot(), Zeilen{});
    EXPECT_EQ(Dxf(), (Zeilen{"  0", "SECTION", "  2", "ENTITIES", "  0", "ENDSEC", "  0", "EOF"}));
}

// Blanks and semicolons by the letter: each kind of line is written by one line style or decoration.
TEST_F(Export, PlotzeilenDerLinien) {
    struct Fall {
        LinieAttr stil;
        KanteAttr menge;
        Zeilen erwartet;
    };
    n.P(1, 100, 950).Item->Visible = false;
    n.P(2, 200, 950).Item->Visible = false;
    Kante& k = *n.K(1, 2).Item;
    const std::string marke = " PA 154,-50; PD 150,-54; PD 146,-50; PD 150,-46; PD 154,-50; PU;";
    for (const Fall& f : {
             Fall{LinieAttr::AR2, {}, {" PA 100,-50; PD 200,-50;PU;"}},
             Fall{LinieAttr::Null, {}, {" PA 100,-50; PD 200,-50;PU;"}},  // white on the screen, but there
             Fall{LinieAttr::AST, {}, {" PA 100,-50; LT; LT-2; PD 200,-50; PU;LT;PU;"}},
             Fall{LinieAttr::AR1, {}, {"PA 100,-50; PD 150,-50; PU 150,-50; LT; LT-2; PD 200,-50;LT;PU;"}},
             Fall{LinieAttr::Null, KanteAttr::GPS, {" PA 100,-50; PD 200,-50;PU;", marke}},
             Fall{LinieAttr::AR1,
                  KanteAttr::GPS,
                  {" PA 100,-50; PD 146,-50; PU 154,-50; LT; LT-2;PD 200,-50;LT;PU;", marke}},
             Fall{LinieAttr::AR2,
                  KanteAttr::GPS,
                  {" PA 100,-50; PD 146,-50;PU 154,-50 PD 200,-50;PU;", marke}},
             Fall{LinieAttr::AST,
                  KanteAttr::GPS,
                  {" PA 100,-50; LT; LT-2; PD 146,-50; PU 154,-50 PD 200,-50;LT;PU;", marke}},
             Fall{LinieAttr::ARI1,
                  {},
                  {" PA 100,-50; PD 142,-50; PD 146,-54;PD 150,-54;LT;LT-2; PD 154,-54; PD 158,-50; PD "
                   "200,-50; "
                   "PU; LT;"}},
             Fall{LinieAttr::ARI2,
                  {},
                  {" PA 100,-50; PD 142,-50; PD 146,-54;PD 150,-54;PD 154,-54; PD 158,-50; PD 200,-50; PU;",
                   " PA 142,-50; LT; LT-2; PD 158,-50; PU;LT;PU;"}},
             Fall{LinieAttr::AR2,
                  KanteAttr::ST,
                  {" PA 100,-50; PD 200,-50;PU;", " PA 156,-54;PD 156,-46; PU;"}},
             Fall{LinieAttr::AR2,
                  KanteAttr::DH1,
                  {" PA 100,-50; PD 200,-50;PU;", " PA 108,-54; PD 112,-54; PU;"}},
         }) {
        k.LAttr = f.stil;
        k.KAttr = f.menge;
        Exportiere();
        EXPECT_EQ(Plot(), f.erwartet) << static_cast<int>(f.stil);
    }
}

TEST_F(Export, PlotzeilenDerSymboleUndTexte) {
    const Zeilen symbole{" PA 100,-50; PD;PU;",
                         " PA 100,-50;CI 4;PU;",
                         " PA 96,-50;PD 104,-50;PU 100,-46;PD100,-54;PU;",
                         " PA 96,-46;PR 8,0;PR 0,-8;PR -8,0;PR 0,8;PU;",
                         " PA 100,-46;PR 4,-4;PR -4,-4;PR -4,4;PR 4,4;PU;",
                         " PA 100,-46;PD 104,-54;PD 96,-54;PD 100,-46;PU;"};
    Punkt& p = *n.P(1, 100, 950).Item;
    PktText& t = *n.T(1, "12340056 \xC4\x03\n").Item;
    t.XBiO = 7;
    t.YBiO = 99;
    zustand.KurzeNummern = true;
    for (std::size_t typ = 0; typ < symbole.size(); ++typ) {
        p.PktTyp = static_cast<PunktTyp>(typ);
        Exportiere();
        EXPECT_EQ(Plot(), (Zeilen{symbole[typ], "PA 107,-43;PD;SI0.2,0.4;LB 12340056 \xC4  \x03;PU;"}));
    }
}

TEST_F(Export, ZeichnungMitAllenGruppen) {
    n.P(1, 1250, 990.5);
    n.T(1, "\xC4 1");
    Exportiere(0.5);
    const Zeilen ort{" 10", " 1.25000000000000E+0003", " 20", " 9.90500000000000E+0002",
                     " 30", " 0.00000000000000E+0000"};
    Zeilen erwartet{"  0", "SECTION", "  2", "ENTITIES"};
    const auto nimm = [&](const Zeilen& z) { erwartet.insert(erwartet.end(), z.begin(), z.end()); };
    nimm({"  0", "CIRCLE", "  8", "PUNKTE", "  6", "CONTINUOUS"});
    nimm(ort);
    nimm({" 40", " 2.00000000000000E+0000", "  0", "POINT", "  8", "PUNKTE", "  6", "CONTINUOUS"});
    nimm(ort);
    nimm({"  0", "TEXT", "  8", "PUNKTNR", "  6", "CONTINUOUS", " 10", " 1.25200000000000E+0003"});
    nimm(Zeilen(ort.begin() + 2, ort.end()));
    nimm({" 40", " 2.00000000000000E+0000", "  1", "\xC4 1", " 50", "    0.0000"});
    nimm({"  0", "ENDSEC", "  0", "EOF"});
    EXPECT_EQ(Dxf(), erwartet);
}

TEST_F(Export, RealzahlenMit23Zeichen) {
    for (const auto& [wert, text] : {std::pair{0.0, " 0.00000000000000E+0000"},
                                     {-0.0, " 0.00000000000000E+0000"},
                                     {-1250.0, "-1.25000000000000E+0003"},
                                     {1e-320, " 9.99988867182683E-0321"},
                                     {123456789.123456789, " 1.23456789123457E+0008"},
                                     {9.999999999999999, " 1.00000000000000E+0001"},
                                     {-kInf, "-1.00000000000000E+0300"},
                                     {std::numeric_limits<double>::quiet_NaN(), " 0.00000000000000E+0000"}}) {
        DXFUnit d(dateien);
        d.DxfFileName = "a";
        d.DxfOpen();
        d.DxfPoint({dxf::kPunkte}, {wert, 0, 0});
        d.DxfClose();
        d.Uebernimm();
        EXPECT_EQ(Zerlegt(dateien.dateien.at("a")).at(11), text);
    }
}

TEST_F(Export, ZeichnungOeffnenUndSchliessen) {
    DXFUnit d(dateien);
    d.DxfFileName = "a";
    EXPECT_FALSE(d.DxfIsOpen());
    d.DxfClose();  // nothing is open
    d.Uebernimm();
    EXPECT_TRUE(dateien.dateien.empty());
    d.DxfOpen();
    d.DxfPoint({dxf::kPunkte}, {});
    d.DxfOpen();  // begins anew
    EXPECT_TRUE(d.DxfIsOpen());
    d.DxfClose();
    d.DxfClose();
    EXPECT_FALSE(d.DxfIsOpen());
    d.Uebernimm();
    EXPECT_EQ(Zerlegt(dateien.dateien.at("a")).size(), 8U);
}

/// Two-point lines of a drawing, "layer/line type x1 y1 x2 y2" in whole metres.
Zeilen Strecken(const Zeilen& dxf) {
    Zeilen strecken;
    const auto zahl = [&](std::size_t i) {
        return " " + std::to_string(std::lround(10 * std::stod(dxf[i])));
    };
    for (std::size_t i = 0; i < dxf.size(); ++i) {
        if (dxf[i] != "LINE") continue;
        strecken.push_back(dxf[i + 2] + "/" + dxf[i + 4] + zahl(i + 6) + zahl(i + 8) + zahl(i + 12) +
                           zahl(i + 14));
    }
    return strecken;
}

// In tenths of a metre. The tick is two metres long and in the middle, whatever the scale.
TEST_F(Export, LinienDerZeichnungInWeltkoordinaten) {
    n.P(1, 100, 950).Item->PktTyp = PunktTyp::Kreu;
    n.P(2, 200, 950).Item->PktTyp = PunktTyp::Drei;
    n.K(1, 2, LinieAttr::AR1).Item->KAttr = KanteAttr::ST;
    Exportiere(0.5);
    EXPECT_EQ(Strecken(Dxf()),
              (Zeilen{"BEOB/CONTINUOUS 1000 9500 1500 9500", "BEOB/ACAD_ISO03W100 1500 9500 2000 9500",
                      "BEOB/CONTINUOUS 1500 9510 1500 9490", "PUNKTE/CONTINUOUS 2000 9520 2020 9480",
                      "PUNKTE/CONTINUOUS 2020 9480 1980 9480", "PUNKTE/CONTINUOUS 1980 9480 2000 9520",
                      "PUNKTE/CONTINUOUS 980 9500 1020 9500", "PUNKTE/CONTINUOUS 1000 9520 1000 9480"}));
    const Zeilen dxf = Dxf();
    EXPECT_EQ(std::count(dxf.begin(), dxf.end(), "POINT"), 0) << "only dots and circles write a point";
}

TEST_F(Export, VerborgenesGefiltertesUndLegendeFehlen) {
    n.P(1, 10, 10).Item->Visible = false;
    n.P(2, 20, 20, PunktArt::NP);
    n.T(1, "1").Item->Visible = false;
    n.T(2, "2");
    n.K(1, 2, LinieAttr::AR2);
    n.K(1, 1, LinieAttr::AR2);  // no length
    n.l.ShowNP = false;
    n.l.ShowLegende = n.l.ShowLgRes = n.l.ShowHRes = n.l.ShowLGGen = n.l.ShowHGen = true;
    Exportiere();
    EXPECT_EQ(Plot(), Zeilen{});
    EXPECT_EQ(Dxf().size(), 8U);
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
    Exportiere(Druckfaktor(25000, 600));
    const std::size_t bytes = dateien.dateien[kPlotname].size() + dateien.dateien[kDxfname].size();
    ASSERT_GT(bytes, 200000U) << "several pieces";
    const auto unveraendert = [&](std::size_t platz) {
        EXPECT_EQ(Gespeichert(), vorher) << platz;
        EXPECT_EQ(zustand.flaeche, &flaeche);
        EXPECT_EQ(zustand.modus, Zeichenmodus::Drucker);
        EXPECT_FALSE(zustand.ExportActive);
        EXPECT_TRUE(zustand.PlotFile == nullptr && zustand.Dxf == nullptr && zustand.Exportnetz == nullptr);
        EXPECT_EQ(flaeche.Nimm(), Zeilen{}) << "the screen has seen nothing of it";
    };
    unveraendert(SIZE_MAX);
    for (const std::size_t platz : {std::size_t{0}, std::size_t{70000}, bytes - 1}) {
        dateien.dateien = {{kPlotname, "alt"}, {kDxfname, "alt"}};
        dateien.platz = platz;
        EXPECT_THROW(Exportiere(Druckfaktor(25000, 600)), Fehler) << platz;
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
