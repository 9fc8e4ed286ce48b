// The vector files: layers, lines, texts, what lies outside, and that a document's directory is exact.
#include <gtest/gtest.h>
#include <zlib.h>

#include <functional>

#include "model/Zahlentext.h"
#include "output/Pdfflaeche.h"
#include "output/Svgflaeche.h"
#include "tests/hilfe/MerkFlaeche.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/hilfe/Speicherdateien.h"
#include "tests/hilfe/Zeichentafel.h"

namespace zrw {
namespace {

using Zeichnung = std::function<void(Zeichenflaeche&)>;

std::string Svg(const Zeichnung& zeichne, double aufloesung = kBildaufloesung, std::string_view titel = "T") {
    Speicherdateien dateien;
    Svgflaeche flaeche(dateien.BeginneDatei("a"), {800, 600, aufloesung}, titel);
    zeichne(flaeche);
    EXPECT_TRUE(dateien.dateien.empty()) << "takes its place at the end";
    flaeche.BeendeDatei();
    return dateien.dateien["a"];
}

std::size_t Ganzzahl(const std::string& text) {
    return static_cast<std::size_t>(LiesGanz(text).value());
}

/// A document with its streams as they were before they were compressed.
std::string Ausgepackt(const std::string& pdf) {
    constexpr std::string_view kAnfang = ">>\nstream\n";
    std::string aus;
    std::size_t bis = 0;
    for (std::size_t i = pdf.find(kAnfang); i != std::string::npos; i = pdf.find(kAnfang, bis)) {
        const std::size_t nummer = pdf.rfind("/Length ", i) + 8;
        const std::string laenge = "\n" + pdf.substr(nummer, pdf.find(' ', nummer) - nummer) + " 0 obj\n";
        i += kAnfang.size();
        const std::size_t ort = pdf.find(laenge, i) + laenge.size();
        const std::size_t bytes = Ganzzahl(pdf.substr(ort, pdf.find('\n', ort) - ort));
        std::vector<Bytef> inhalt(std::size_t{1} << 20U);
        auto groesse = static_cast<uLongf>(inhalt.size());
        const std::vector<Bytef> gepackt(pdf.begin() + static_cast<std::ptrdiff_t>(i),
                                         pdf.begin() + static_cast<std::ptrdiff_t>(i + bytes));
        EXPECT_EQ(uncompress(inhalt.data(), &groesse, gepackt.data(), static_cast<uLong>(bytes)), Z_OK);
        aus += pdf.substr(bis, i - bis) +
               std::string(inhalt.begin(), inhalt.begin() + static_cast<std::ptrdiff_t>(groesse));
        bis = i + bytes;
        EXPECT_EQ(pdf.substr(bis, 11), "\nendstream\n");
    }
    return aus + pdf.substr(bis);
}

/// Paper of 800 by 600 dots within the margins.
std::string Roh(const Zeichnung& zeichne, const Pdfangaben& angaben = {"T", nullptr, nullptr}) {
    constexpr double kDot = kMillimeterJeZoll / 100;
    Speicherdateien dateien;
    Pdfflaeche flaeche(dateien.BeginneDatei("a"), {20.001 + 800 * kDot, 20.001 + 600 * kDot}, 100, angaben);
    zeichne(flaeche);
    flaeche.BeendeDatei();
    return dateien.dateien["a"];
}

std::string Pdf(const Zeichnung& zeichne, const Pdfangaben& angaben = {"T", nullptr, nullptr}) {
    return Ausgepackt(Roh(zeichne, angaben));
}

void ErwarteTeile(const std::string& datei, std::initializer_list<std::string> teile) {
    for (const std::string& teil : teile)
        EXPECT_NE(datei.find(teil), std::string::npos) << teil;
}

/// The texts between two others, wherever these stand.
std::vector<std::string> Alle(const std::string& datei, const std::string& vor, const std::string& nach) {
    std::vector<std::string> treffer;
    for (std::size_t i = datei.find(vor); i != std::string::npos; i = datei.find(vor, i)) {
        i += vor.size();
        const std::size_t ende = datei.find(nach, i);
        if (ende == std::string::npos) break;
        treffer.push_back(datei.substr(i, ende - i));
    }
    return treffer;
}

TEST(Vektorflaechen, JedeFigurStehtAufIhrerEbene) {
    Probenetz n;
    n.l.Weite = 800;
    n.l.Hoehe = 600;
    n.l.MaxYW = 1000;
    n.P(1, 10, 990);
    n.P(2, 250, 900);
    n.T(1, "A");
    n.K(1, 2);
    n.l.WeltinBild();
    n.l.ShowKMQ = n.l.ShowLegende = n.l.ShowLgRes = true;
    Zeichentafel<MerkFlaeche> tafel{n.e};
    const Zeichnung zeichne = [&](Zeichenflaeche& f) {
        tafel.zustand.flaeche = &f;
        n.l.ShowPicture(tafel.zeichner);
        f.SetzeEbene(Ebene::Ergebnisse);  // nothing more is drawn there
        n.l.DisplayPunkte(tafel.zeichner);
    };
    const std::vector<std::string> ebenen{"GITTER",  "BEOB",       "PUNKTE", "PUNKTNR",
                                          "LEGENDE", "ERGEBNISSE", "PUNKTE"};
    const std::string svg = Svg(zeichne);
    EXPECT_EQ(Alle(svg, "\" class=\"", "\""), ebenen);
    EXPECT_EQ(Alle(svg, "<g id", ">").size(), Alle(svg, "</g", ">").size());
    ErwarteTeile(svg, {"id=\"PUNKTE_2\""});
    const std::string pdf = Pdf(zeichne);
    EXPECT_EQ(Alle(pdf, "/OC/", " BDC\n"), ebenen);
    EXPECT_EQ(Alle(pdf, "EMC", "\n").size(), ebenen.size());
    EXPECT_EQ(Alle(pdf, "/Type/OCG/Name(", ")").size(), 6U) << "one entry a layer";
}

TEST(Vektorflaechen, TexteSindZeichenUndNichtsBrichtAus) {
    struct Fall {
        std::string text, svg, pdf;
    };
    for (const Fall& f : {Fall{"K\xDCHBG \x80", "KÜHBG €", "K\xDCHBG \x80"},
                          {"a<b>&\"c", "a&lt;b&gt;&amp;\"c", "a<b>&\"c"},
                          {"(1)\\)", "(1)\\)", "\\(1\\)\\\\\\)"},
                          {std::string("x\0\x1F\n\x7F\x81y", 7), "xy", "xy"},
                          {" 2  3 ", " 2  3 ", " 2  3 "}}) {
        const Zeichnung zeichne = [&](Zeichenflaeche& z) {
            z.SetzeEbene(Ebene::Punktnummern);
            z.Text({20, 30}, f.text, Farbe{0x0080FF});
        };
        ErwarteTeile(Svg(zeichne, kBildaufloesung, f.text),
                     {"<title>" + f.svg + "</title>",
                      "<text x=\"19.5\" y=\"39.5\" fill=\"#ff8000\">" + f.svg + "</text>"});
        ErwarteTeile(Pdf(zeichne),
                     {"1 0.502 0 rg\nBT/F 11.4583333333 Tf 1 0 0 -1 20 40 Tm(" + f.pdf + ")Tj ET"});
    }
    Festuhr uhr;
    ErwarteTeile(Pdf([](Zeichenflaeche&) {}, {"\xC4\n\x80", &uhr, nullptr}),
                 {"<</Title<FEFF00C420AC>/Creator(Zarwik)/CreationDate(D:20261121090500)>>"});
    uhr.zeit = "21.11.2026 09.05:00";
    ErwarteTeile(Pdf([](Zeichenflaeche&) {}, {"\xC4\n\x80", &uhr, nullptr}),
                 {"<</Title<FEFF00C420AC>/Creator(Zarwik)>>"});
}

TEST(Vektorflaechen, LinienEinesStiftsSindEinPfadUndGestrichelteBeginnenNeu) {
    const Zeichnung zeichne = [](Zeichenflaeche& f) {
        f.SetzeStift({kSchwarz, 2, Strichart::Voll});
        f.Linie({0, 0}, {10, 0});
        f.Linie({10, 0}, {10, 5});
        f.Linie({1, 2}, {3, 4});
        f.SetzeStift({kSchwarz, 1, Strichart::Gestrichelt});
        f.Linie({3, 4}, {9, 9});
        f.Linie({9, 9}, {8, 8});
        f.SetzeStift({kSchwarz, 1, Strichart::Voll});
        for (int i = 0; i < kLinienJePfad + 1; ++i)
            f.Linie({i, 7}, {i + 1, 7});
    };
    ErwarteTeile(Svg(zeichne), {"<path stroke=\"#000000\" stroke-width=\"2\" d=\"M0 0L10 0L10 5M1 2L3 4\"/>",
                                "<path stroke=\"#000000\" stroke-linecap=\"butt\" stroke-dasharray=\"4 2\" "
                                "d=\"M3 4L9 9M9 9L8 8\"/>",
                                "<path stroke=\"#000000\" d=\"M500 7L501 7\"/>"});
    // 0.15 mm of 100 dots to the inch are 0.591 dots.
    ErwarteTeile(Pdf(zeichne),
                 {"1.181 w\n1 J[]0 d\n0 0 m 10 0 l\n10 5 l\n1 2 m 3 4 l\nS\n",
                  "0.591 w\n0 J[4.167 2.083]0 d\n3 4 m 9 9 l\n9 9 m 8 8 l\nS\n", "S\n500 7 m 501 7 l\nS\n"});
}

TEST(Vektorflaechen, WasNebenDemBlattLiegtFehlt) {
    const Zeichnung innen = [](Zeichenflaeche& f) {
        f.Linie({-50, 100}, {50, 100});
        f.Ellipse({790, 590, 810, 610});
        f.Text({-f.Textbreite("WWW"), -5}, "WWW", kSchwarz);  // its last column may be on the sheet
        f.FuelleRechteck({-2000000000, -5, 2000000000, 10}, kSchwarz);
    };
    const Zeichnung aussen = [](Zeichenflaeche& f) {
        f.SetzeEbene(Ebene::Punkte);
        f.Linie({-50, 100}, {-10, 500});
        f.Linie({2147483647, 0}, {2147483647, 2147483647});
        f.Ellipse({810, 100, 830, 120});
        f.ZeichneRechteck({-90, -90, -10, -10});
        f.Vieleck(std::array<Flaechenpunkt, 3>{{{5, 610}, {9, 610}, {9, 620}}});
        f.Text({-60, 100}, "WWW", kSchwarz);
        f.Text({801, 100}, "WWW", kSchwarz);
        f.Text({2147483647, 2147483647}, "WWW", kSchwarz);
        f.FuelleRechteck({900, 0, 2000000000, 10}, kSchwarz);
    };
    ErwarteTeile(Svg(innen), {"M-50 100L50 100", "<ellipse cx=\"800\" cy=\"600\" rx=\"10\" ry=\"10\"",
                              ">WWW<", "<rect x=\"-0.5\" y=\"-0.5\" width=\"800\" height=\"11\" fill"});
    ErwarteTeile(Pdf(innen), {"-50 100 m 50 100 l", "810 600 m 810 605.5228 805.5228 610 800 610 c",
                              "(WWW)Tj", "0 0 800 11 re f"});
    const Zeichnung nichts = [](Zeichenflaeche&) {};
    ErwarteTeile(Pdf(nichts), {"-0.5906 -0.5906 801.1811 601.1811 re W n"});
    EXPECT_EQ(Svg(aussen), Svg(nichts));
    EXPECT_EQ(Pdf(aussen), Pdf(nichts));
}

TEST(Vektorflaechen, UmrissUndFuellung) {
    const Zeichnung zeichne = [](Zeichenflaeche& f) {
        f.SetzeStift({Farbe{0x0000FF}, 1, Strichart::Voll});
        f.SetzePinsel({Farbe{0xFF0000}, false});
        f.ZeichneRechteck({1, 2, 11, 22});
        f.SetzePinsel({kWeiss, true});
        f.Vieleck(std::array<Flaechenpunkt, 3>{{{5, 10}, {9, 10}, {9, 20}}});
        f.Ellipse({90, 190, 110, 200});
    };
    ErwarteTeile(Svg(zeichne),
                 {"<rect x=\"1\" y=\"2\" width=\"10\" height=\"20\" stroke=\"#ff0000\" fill=\"#0000ff\"/>",
                  "<polygon points=\"5,10 9,10 9,20\" stroke=\"#ff0000\"/>"});
    ErwarteTeile(Pdf(zeichne),
                 {"0 0 1 rg\n1 2 m 11 2 l 11 22 l 1 22 l b\n5 10 m 9 10 l 9 20 l s\n",
                  "110 195 m 110 197.7614 105.5228 200 100 200 c 94.4772 200 90 197.7614 90 195 c "
                  "90 192.2386 94.4772 190 100 190 c 105.5228 190 110 192.2386 110 195 c s\n"});
}

TEST(Vektorflaechen, WasDurchscheintLaesstFarbenWieSieWaren) {
    const Zeichnung zeichne = [](Zeichenflaeche& f) {
        const std::array<Flaechenpunkt, 3> dreieck{{{5, 10}, {9, 10}, {9, 20}}};
        f.FuelleRechteck({0, 0, 1, 1}, Farbe{0xFF0000});
        f.FuelleDurchscheinend(dreieck, Farbe{0x0000FF}, 12);
        f.FuelleDurchscheinend(std::array<Flaechenpunkt, 1>{{{-900, 10}}}, kSchwarz, 34);
        f.FuelleRechteck({2, 0, 3, 1}, Farbe{0xFF0000});
    };
    ErwarteTeile(Svg(zeichne),
                 {"<polygon points=\"5,10 9,10 9,20\" fill=\"#ff0000\" fill-opacity=\"0.12\"/>"});
    ErwarteTeile(Pdf(zeichne), {"q /D12 gs\n1 0 0 rg\n5 10 m 9 10 l 9 20 l f\nQ\n2 0 2 2 re f\n",
                                "/ExtGState<</D12<</ca 0.12>>>>/Properties"});
}

TEST(Vektorflaechen, DasVerzeichnisDesDokumentsIstGenau) {
    std::string pdf = Roh([](Zeichenflaeche& f) {
        f.SetzeEbene(Ebene::Punkte);
        f.Linie({1, 1}, {2, 2});
        dynamic_cast<Pdfflaeche&>(f).NeueSeite();
        f.Linie({3, 3}, {4, 4});
    });
    const std::size_t tafel = Ganzzahl(Alle(pdf, "startxref\n", "\n%%EOF\n").at(0));
    const std::size_t objekte = Alle(pdf, "endobj", "\n").size();
    const std::string kopf = "xref\n0 " + std::to_string(objekte + 1) + "\n0000000000 65535 f \n";
    EXPECT_EQ(pdf.substr(tafel, kopf.size()), kopf);
    for (std::size_t i = 0; i < objekte; ++i) {
        const std::string zeile = pdf.substr(tafel + kopf.size() + 20 * i, 20);
        EXPECT_EQ(zeile.substr(10), " 00000 n \n");
        const std::string anfang = std::to_string(i + 1) + " 0 obj\n";
        EXPECT_EQ(pdf.substr(Ganzzahl(zeile.substr(0, 10)), anfang.size()), anfang);
    }
    pdf = Ausgepackt(pdf);
    ErwarteTeile(pdf, {"/Type/Pages/Count 2/Kids["});
    // The second page sets up its own pen and layer.
    EXPECT_EQ(Alle(pdf, "/OC/PUNKTE BDC\n0 0 0 RG", "\n").size(), 2U);
    EXPECT_EQ(Alle(pdf, "/Name(PUNKTE)", "\n").size(), 1U);
}

TEST(Vektorflaechen, DasBildHatDieGroesseSeinerAufloesung) {
    const Zeichnung nichts = [](Zeichenflaeche&) {};
    ErwarteTeile(Svg(nichts, 600), {"width=\"33.867mm\" height=\"25.4mm\""});
    ErwarteTeile(Svg(nichts), {"width=\"800\" height=\"600\" viewBox=\"-0.5 -0.5 800 600\""});
}

}  // namespace
}  // namespace zrw
