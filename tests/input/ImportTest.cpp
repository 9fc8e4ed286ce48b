// Foreign networks become control files and tables: the examples against the adjustment that made them,
// single rules as tables of inputs, and damage that leaves nothing behind.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "beispiele/Gamadatei.h"
#include "beispiele/Kleinnetze.h"
#include "beispiele/Tabellen.h"
#include "geo/Fehlerellipse.h"
#include "input/Systemdateien.h"
#include "input/import/Ergebnisschreiber.h"
#include "input/import/Gama.h"
#include "input/import/Namensgeber.h"
#include "input/import/Netzimport.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Zahlentext.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

constexpr const char* kKopf = "<gama-local><network><points-observations>";
constexpr const char* kFuss = "</points-observations></network></gama-local>";
constexpr const char* kZweiPunkte = "<point id='A' x='1' y='2' fix='xy'/>\n<point id='B' x='3' y='5'/>";

std::string Netz(const std::string& inhalt) {
    return std::string(kKopf) + inhalt + kFuss;
}

Importergebnis Importiere(Speicherdateien& dateien, bool mitErgebnissen = false) {
    return ImportiereNetz({.netz = "a/N.gkf", .ergebnisse = mitErgebnissen ? "a/N.xml" : "", .ziel = "b"},
                          dateien, 0);
}

/// The lines of the control file, without the first comment.
std::string Steuerdatei(const std::string& xml, std::vector<std::string>* hinweise = nullptr) {
    Speicherdateien dateien;
    dateien.dateien["a/N.gkf"] = xml;
    const Importergebnis e = Importiere(dateien);
    if (hinweise != nullptr) *hinweise = e.hinweise;
    std::string text = dateien.dateien["b/N.EIN"];
    text.erase(0, text.find("$NT"));
    std::erase(text, '\r');
    return text;
}

TEST(Import, AchsenUndWinkel) {
    struct Achsen {
        const char* achsen;
        double rechts, hoch;  // of x = 1, y = 2
    };
    for (const auto& [achsen, rechts, hoch] : {Achsen{"", 2, 1},
                                               {"ne", 2, 1},
                                               {"sw", -2, -1},
                                               {"es", 1, -2},
                                               {"wn", -1, 2},
                                               {"en", 1, 2},
                                               {"nw", -2, 1},
                                               {"se", 2, -1},
                                               {"ws", -1, -2}}) {
        const auto a = fremd::LiesAchsen(achsen, "");
        ASSERT_TRUE(a) << achsen;
        EXPECT_EQ(a->Gedreht(1, 2, 3).rechts, rechts) << achsen;
        EXPECT_EQ(a->Gedreht(1, 2, 3).hoch, hoch) << achsen;
    }
    EXPECT_FALSE(fremd::LiesAchsen("nn", ""));
    EXPECT_FALSE(fremd::LiesAchsen("ne", "linkisch"));
    EXPECT_DOUBLE_EQ(fremd::LiesAchsen("ne", "right-handed")->Richtung(100.0), 300.0);

    struct Winkel {
        const char* text;
        double gon;
        bool grad;
    };
    for (const auto& [text, gon, grad] : {Winkel{"12.5", 12.5, false},
                                          {"-1e-3", -0.001, false},
                                          {"90-00-00", 100.0, true},
                                          {"-0-54-00.0", -1.0, true},
                                          {"359-59-60", 400.0, true}}) {
        const auto w = fremd::LiesGamaWinkel(text);
        ASSERT_TRUE(w) << text;
        EXPECT_NEAR(w->gon, gon, 1e-12) << text;
        EXPECT_EQ(w->grad, grad) << text;
    }
    for (const char* text :
         {"", "-", "1-2", "1-2-", "1-61-0", "1-2-3-4", "x", "1-2-x", "nan", "1e9", "--1-2-3"})
        EXPECT_FALSE(fremd::LiesGamaWinkel(text)) << text;
}

TEST(Import, Steuerdatei) {
    std::vector<std::string> hinweise;
    const std::string text = Steuerdatei(
        "<?xml version='1.0' encoding='iso-8859-2'?><g:gama-local xmlns:g='u'><network axes-xy='en' "
        "angles='right-handed'>"
        "<parameters sigma-apr='5'/><neu/><points-observations direction-stdev='10' distance-stdev='3 2 1'>"
        "<point id='A' x='100.5' y='200' z='7' fix='xyz'/><point id='B' x='130' y='240' adj='XY'/>"
        "<point id='C' y='1e3'/><point id='C' x='-2' fix='Z'/><point id='D' z='3'/><point id='B' z='9'/>"
        "<obs from='A' from_dh='1.5'><direction to='B' val='90-00-00' extern='7'/><distance to='C' "
        "val='1000'/>"
        "<z-angle to='B' val='98.5' stdev='12'/><angle from='B' bs='A' fs='C' val='300' stdev='14'/>"
        "<azimuth to='C' val='10'/></obs><obs><s-distance from='C' to='B' val='5'/><direction from='A' "
        "to='D' val='1'/>"
        "<direction from='A' to='A' val='1'/><direction from='A' val='1'/></obs>"
        "<height-differences><dh from='A' to='B' val='-2.5' dist='4'/><cov-mat dim='1' "
        "band='0'>9</cov-mat></height-differences>"
        "<vectors><vec from='A' to='B' dx='1' dy='2' dz='3'/><cov-mat dim='3' band='2'>1 0 0 4 0 "
        "4</cov-mat></vectors>"
        "<coordinates><point id='P\xF3l' x='1' y='2' "
        "z='3'/></coordinates></points-observations></network></g:gama-local>",
        &hinweise);
    EXPECT_EQ(text,
              "$NT 3\n$PF 0\n"
              "$FP A              0 100.5 200 7\n"
              "$NP B              0 130 240 9\n"
              "$FH C              0 -2 1000\n"
              "$NP P\xF3l            0 1 2 3\n"
              "$RS A              1\n$RZ B              300 0.00308642\n"
              "$ST A              C              1000 0.005\n"
              "$ZD A              B              98.5 0.0012\n"
              "$RS B              0\n$RZ A              0 0.00098995\n$RZ C              100 0.00098995\n"
              "$RS A              1\n$AZ C              390\n"
              "$ST C              B              5 0.00301\n"
              "$DH A              B              -2.5 0.01\n"
              "$SH 1 1\n$SV 1 1 A              B              2 1 3 0.00173205\n$$$\n");
    const std::vector<std::string> soll{
        "1 Punkt des freien Datums ist ein Neupunkt (N.gkf, Zeile 1).",
        "1 Punkt hat keine Koordinaten x und y und wird nicht gezeichnet (N.gkf, Zeile 1).",
        "1 Beobachtung an einem Punkt ohne Koordinaten x und y fehlt im Plan (N.gkf, Zeile 1).",
        "1 Beobachtung eines Punktes zu sich selbst ist weggelassen (N.gkf, Zeile 1).",
        "1 Beobachtung ohne lesbare Punkte oder Werte ist weggelassen (N.gkf, Zeile 1).",
        "1 Winkel steht als zwei Richtungen in der Steuerdatei.",
        "1 beobachteter Punkt (Koordinaten) hat in der Steuerdatei keinen Platz (N.gkf, Zeile 1).",
        "1 Kovarianzmatrix von Beobachtungen ist bis auf ihre Diagonale weggelassen (N.gkf, Zeile 1).",
        "1 Beobachtung mit Instrumenten- oder Zielhöhe hat diese verloren (N.gkf, Zeile 1).",
        "1 Beobachtung mit eigener Kennung (extern) hat diese verloren (N.gkf, Zeile 1).",
        "1 unbekanntes Element ist übergangen (N.gkf, Zeile 1)."};
    EXPECT_EQ(hinweise, soll);
}

TEST(Import, Namen) {
    const std::vector<std::string> namen{
        "A",          "lang lang lang lang", "lang lang lang lang 2", "A~2", "Ω1", "?1", "", " ",
        "Köln\u00A0", "12345678901234",      "123456789012345"};
    const std::vector<std::string> soll{
        "A",   "lang_lang_lang", "lang_lang_la~2", "A~2",           "?1~2", "?1", "_",
        "_~2", "K\xF6ln_",       "12345678901234", "123456789012~2"};
    EXPECT_EQ(fremd::GibNummern(namen), soll);
    std::vector<std::string> viele;
    viele.reserve(70000);
    for (int i = 0; i < 70000; ++i)
        viele.push_back("gleicher Anfang " + std::to_string(i));
    auto nummern = fremd::GibNummern(viele);
    std::sort(nummern.begin(), nummern.end());
    EXPECT_EQ(std::adjacent_find(nummern.begin(), nummern.end()), nummern.end());
    EXPECT_TRUE(std::all_of(nummern.begin(), nummern.end(), [](const auto& n) { return n.size() <= 14; }));
}

/// What two tables hold in the fields that both ways fill.
void VergleicheTabelle(TDM& a, TDM& b, Tabelle tabelle, const std::vector<std::string_view>& felder,
                       std::string_view gegensinn) {
    std::vector<std::vector<Zelle>> zeilen;
    const auto lies = [&](TDM& daten) {
        zeilen.clear();
        (void)daten.LiesZeilen(tabelle, felder,
                               [&](std::span<const Zelle> z) { zeilen.emplace_back(z.begin(), z.end()); });
        return zeilen;
    };
    const auto ist = lies(a), soll = lies(b);
    ASSERT_EQ(ist.size(), soll.size()) << Beschreibung(tabelle).name;
    for (std::size_t i = 0; i < ist.size(); ++i) {
        for (std::size_t k = 0; k < felder.size(); ++k) {
            const std::string wo = std::string(Beschreibung(tabelle).name) + " " + std::string(felder[k]) +
                                   " " + std::to_string(i);
            ASSERT_EQ(ist[i][k].index(), soll[i][k].index()) << wo;
            const auto* x = std::get_if<double>(&ist[i][k]);
            if (x == nullptr) {
                EXPECT_EQ(ist[i][k], soll[i][k]) << wo;
                continue;
            }
            const double y = std::get<double>(soll[i][k]) * (felder[k].starts_with(gegensinn) ? -1.0 : 1.0);
            // The direct way keeps one decimal of a millimetre, of dP that of its parts.
            EXPECT_NEAR(*x, y, felder[k] == "dP" ? 0.0758 : 0.0506) << wo;
        }
    }
}

TEST(Import, BeispieleWieUnmittelbar) {
    const std::filesystem::path quelle = std::filesystem::path(ZRW_QUELLE) / "beispiele/gama";
    for (const beispiel::Kleinnetz& k : beispiel::Kleinnetze()) {
        SCOPED_TRACE(k.name);
        Systemdateien system;
        Speicherdateien dateien;
        dateien.dateien["a/N.gkf"] = system.LiesDatei(quelle / (k.name + ".gkf"), 1 << 20);
        dateien.dateien["a/N.xml"] = system.LiesDatei(quelle / (k.name + ".xml"), 1 << 20);
        const beispiel::Ausgleichung a = GleicheAus(k.netz, beispiel::Fehlersuche::Behalten);
        EXPECT_EQ(dateien.dateien["a/N.gkf"], Gamanetz(k.netz));
        EXPECT_EQ(dateien.dateien["a/N.xml"], Gamaergebnisse(k.netz, a));
        const Importergebnis e = Importiere(dateien, true);
        EXPECT_EQ(e.hinweise, std::vector<std::string>());
        EXPECT_EQ(e.punkte, k.netz.punkte.size());
        const beispiel::Auswertung auswertung(k.netz, a);
        SchreibeTabellen(auswertung, dateien, "c");
        TDM ist(dateien), soll(dateien);
        ist.SetzeOrdner("b");
        soll.SetzeOrdner("c");
        VergleicheTabelle(ist, soll, Tabelle::Richtungen,
                          {"PS", "PZ", "RI", "VR", "TG", "EV", "GF", "QA", "NMF", "ST", "NK"}, "GF");
        VergleicheTabelle(ist, soll, Tabelle::Strecken,
                          {"P1", "P2", "ST", "VS", "TG", "EV", "GF", "NMF", "RI", "NK"}, "GF");
        VergleicheTabelle(ist, soll, Tabelle::Hoehenunterschiede,
                          {"P1", "P2", "DH", "VH", "TG", "EV", "GF", "NMF", "ST", "NK"}, "GF");
        VergleicheTabelle(
            ist, soll, Tabelle::Gps,
            {"P1",  "P2",  "DX",  "DY",   "DZ",   "VX",   "VY",  "VZ",  "VL",  "VQ",   "VH",   "TG",
             "EVX", "EVY", "EVZ", "NMFX", "NMFY", "NMFZ", "GFL", "GFQ", "GFH", "NKDX", "NKDY", "NKDZ"},
            "GF");
        if (k.name != "HOEHEN")  // there the points have no coordinates in the results
            VergleicheTabelle(ist, soll, Tabelle::Koordinaten,
                              {"dY", "dX", "dP", "mY", "mX", "mL", "A", "B", "Phi", "ST"}, "-");
        if (k.name != "LAGE")
            VergleicheTabelle(ist, soll, Tabelle::Koordinaten, {"PKT", "H", "dH", "mH"}, "-");
    }
}

/// Results of two points with a full matrix of covariances.
std::string Ergebnisdatei(const std::vector<double>& obere, const std::string& rest = {}) {
    std::string xml =
        "<gama-local-adjustment><network-general-parameters axes-xy='sw'/><coordinates><adjusted>"
        "<point><id>A</id><x>1</x><Y>2</Y></point><point><id>B</id><X>301</X><y>402</y></point></adjusted>"
        "<cov-mat><dim>4</dim><band>3</band>";
    for (const double w : obere)
        xml += "<flt>" + SchreibeReal(w) + "</flt>";
    return xml + "</cov-mat></coordinates><observations>" + rest + "</observations></gama-local-adjustment>";
}

TEST(Import, RelativeEllipsenWieVolleFortpflanzung) {
    std::mt19937 zufall(2);
    std::uniform_real_distribution<double> wert(-9.0, 9.0);
    for (int lauf = 0; lauf < 100; ++lauf) {
        double l[4][4], q[4][4]{};
        for (auto& zeile : l)
            for (double& w : zeile)
                w = wert(zufall);
        std::vector<double> obere;
        for (int i = 0; i < 4; ++i)
            for (int k = 0; k < 4; ++k) {
                for (int m = 0; m < 4; ++m)
                    q[i][k] += l[i][m] * l[k][m];
                if (k >= i) obere.push_back(q[i][k]);
            }
        Speicherdateien dateien;
        dateien.dateien["a/N.gkf"] =
            "<gama-local><network axes-xy='sw'><points-observations><point id='A' x='1' y='2'/>"
            "<point id='B' x='301' y='402'/><obs><distance from='B' to='A' val='500'/></obs>"
            "</points-observations></network></gama-local>";
        dateien.dateien["a/N.xml"] = Ergebnisdatei(obere);
        EXPECT_EQ(Importiere(dateien, true).hinweise, std::vector<std::string>());
        TDM daten(dateien);
        daten.SetzeOrdner("b");
        daten.ErneuereRelative();
        const Relativellipse* e = daten.RelativeZu("B", "A");
        ASSERT_NE(e, nullptr);
        // Differences of easting (-y) and northing (-x) by the whole matrix.
        const double f[2][4]{{0, 1, 0, -1}, {1, 0, -1, 0}};
        double d[2][2]{};
        for (int i = 0; i < 2; ++i)
            for (int k = 0; k < 2; ++k)
                for (int m = 0; m < 4; ++m)
                    for (int n = 0; n < 4; ++n)
                        d[i][k] += f[i][m] * q[m][n] * f[k][n];
        const double s = std::sin(e->Phi * std::numbers::pi / 200.0),
                     c = std::cos(e->Phi * std::numbers::pi / 200.0);
        const double aa = e->A * e->A, bb = e->B * e->B;
        EXPECT_NEAR(aa * s * s + bb * c * c, d[0][0], 1e-3) << lauf;
        EXPECT_NEAR(aa * c * c + bb * s * s, d[1][1], 1e-3) << lauf;
        EXPECT_NEAR((aa - bb) * s * c, d[0][1], 1e-3) << lauf;
        // Along the line from (2, 1) to (402, 301), which points to the south west.
        EXPECT_NEAR(e->mS * e->mS, 0.64 * d[0][0] + 0.36 * d[1][1] + 0.96 * d[0][1], 1e-3) << lauf;
    }
}

TEST(Import, WohinErgebnisseKommen) {
    const auto wert = [](const std::string& element, const std::string& punkte, const char* obs,
                         const char* adj) {
        return "<" + element + ">" + punkte + "<obs>" + obs + "</obs><adj>" + adj +
               "</adj><stdev>20</stdev><f>50</f><std-residual>-4</std-residual><err-obs>8</err-obs></" +
               element + ">";
    };
    const std::string a = "<id>A</id>", b = "<id>B</id>", ab = "<from>A</from><to>B</to>";
    Speicherdateien dateien;
    dateien.dateien["a/N.gkf"] =
        "<gama-local><network axes-xy='sw'><points-observations>" + std::string(kZweiPunkte) + kFuss;
    dateien.dateien["a/N.xml"] =
        Ergebnisdatei({1, 0, 0, 0, 1, 0, 0, 1, 0, 1},
                      wert("coordinate-x", a, "1", "1.001") + wert("coordinate-y", a, "2", "2.002") +
                          wert("coordinate-z", a, "3", "3.003") + wert("coordinate-x", b, "4", "4.001") +
                          wert("coordinate-y", b, "5", "5.001") + wert("coordinate-z", b, "6", "6") +
                          wert("coordinate-z", b, "6", "6") + wert("azimuth", ab, "399.9999", "0.0001") +
                          wert("zenith-angle", ab, "1", "1") + wert("slope-distance", ab, "7", "7.01") +
                          wert("coordinate-x", b, "4", "4.001") + wert("coordinate-y", b, "5", "5.001"));
    const Importergebnis e = Importiere(dateien, true);
    EXPECT_EQ(e.hinweise.size(), 1U);
    EXPECT_TRUE(e.hinweise.back().starts_with("2 Ergebnisse (Winkel")) << "a zenith angle and a height alone";
    TDM daten(dateien);
    daten.SetzeOrdner("b");
    const auto zeilen = [&](Tabelle tabelle, const std::vector<std::string_view>& felder) {
        std::vector<std::vector<double>> alle;
        (void)daten.LiesZeilen(tabelle, felder, [&](std::span<const Zelle> z) {
            alle.emplace_back();
            for (const Zelle& zelle : z) {
                const auto* real = std::get_if<double>(&zelle);
                alle.back().push_back(real != nullptr ? *real
                                                      : static_cast<double>(std::get<std::int64_t>(zelle)));
            }
        });
        return alle;
    };
    using Zeilen = std::vector<std::vector<double>>;
    EXPECT_EQ(
        zeilen(Tabelle::GpsPunkte3D, {"Y", "X", "H", "vY", "vX", "vH", "GFY", "TGX", "EVZ", "NMFH", "FF"}),
        (Zeilen{{-2.002, -1.001, 3.003, -2, -1, 3, -8, 4, 0.75, 20, 1},
                {-5.001, -4.001, 6, -1, -1, 0, -8, 4, 0.75, 20, 1}}));
    EXPECT_EQ(zeilen(Tabelle::GpsPunkte2D, {"Y", "X", "vY", "vX", "GFX", "TGY", "EVX", "FF"}),
              (Zeilen{{-5.001, -4.001, -1, -1, -8, 4, 0.75, 1}}));
    EXPECT_EQ(zeilen(Tabelle::Richtungen, {"Satz", "RI", "VR", "GF", "NMF"}),
              (Zeilen{{0, 399.9999, 0.2, 0.8, 2}}));
    EXPECT_EQ(zeilen(Tabelle::Strecken, {"ST", "VS", "GF", "NMF"}), (Zeilen{{7, 10, 8, 20}}));
}

TEST(Import, BeschaedigtesLaesstNichtsZurueck) {
    struct Fall {
        std::string netz, ergebnisse, meldung;
    };
    const std::string gut = Netz(kZweiPunkte);
    const std::vector<double> einheit{1, 0, 0, 0, 1, 0, 0, 1, 0, 1};
    const std::string tief = [] {
        std::string t;
        for (int i = 0; i < 300; ++i)
            t += "<a>\n";
        for (int i = 0; i < 300; ++i)
            t += "</a>";
        return t;
    }();
    const Fall faelle[]{
        {"", "", "N.gkf, Zeile 1: Die Datei enthält kein XML-Element."},
        {"$FP 1 2 3", "", "N.gkf, Zeile 1: Die Datei enthält kein XML-Element."},
        {"<gama-local>\n<network>\n", "", "N.gkf, Zeile 2: Ein Element ist nicht oder falsch geschlossen."},
        {"\n<svg/>", "",
         "N.gkf, Zeile 2: Das ist kein Netz, das Zarwik importieren kann: Das Wurzelelement ist <svg> statt "
         "<gama-local>."},
        {"<gama-local/>", "", "N.gkf, Zeile 1: Das Element <network> fehlt"},
        {"<gama-local>\n<network axes-xy='up'/></gama-local>", "", "N.gkf, Zeile 2: Die Achsen (axes-xy)"},
        {"<!DOCTYPE a [\n<!ENTITY b 'c'>]><gama-local/>", "",
         "N.gkf, Zeile 2: Die Datei legt eigene XML-Entitäten fest"},
        {"<?xml version='1.0' encoding='koi8-r'?><gama-local>\xE4</gama-local>", "",
         "N.gkf: Den Zeichensatz „koi8-r“ kennt Zarwik nicht."},
        {Netz(""), "", "N.gkf, Zeile 1: Das Netz hat keinen Punkt."},
        {Netz("<point id='A' z='1'/>"), "", "N.gkf, Zeile 1: Kein Punkt des Netzes hat Koordinaten x und y"},
        {Netz(tief), "", "N.gkf, Zeile 257: Die Elemente sind tiefer ineinander geschachtelt"},
        {Netz(std::string(kZweiPunkte) +
              "<obs from='A'><direction to='B' val='1'/>\n<cov-mat dim='2' band='0'>1</cov-mat></obs>"),
         "", "N.gkf, Zeile 3: Die Kovarianzmatrix (cov-mat) passt nicht zu den Beobachtungen"},
        {Netz(std::string(kZweiPunkte) +
              "<obs from='A'><direction to='B' val='1'/>\n<cov-mat dim='1' band='9'> </cov-mat></obs>"),
         "", "N.gkf, Zeile 3: Die Kovarianzmatrix (cov-mat) hat zu wenige Werte."},
        {gut, gut, "N.xml, Zeile 1: Das sind keine Ergebnisse"},
        {gut, "<gama-local-adjustment/>", "N.xml, Zeile 1: Das Element <coordinates> der Ergebnisse fehlt."},
        {gut,
         "<gama-local-adjustment><coordinates><fixed><point>\n<x>1</x></point></fixed></coordinates></"
         "gama-local-adjustment>",
         "N.xml, Zeile 1: Ein Punkt der Ergebnisse hat keinen Namen (id)."},
        {gut,
         "<gama-local-adjustment><coordinates><fixed><point><id>A</id>\n<x>eins</x></point></fixed></"
         "coordinates></gama-local-adjustment>",
         "N.xml, Zeile 2: Eine Koordinate der Ergebnisse ist nicht lesbar."},
        {gut,
         "<gama-local-adjustment>\n<coordinates><fixed><point><id>X</id><x>1</x></point></fixed></"
         "coordinates></gama-local-adjustment>",
         "N.xml, Zeile 2: Kein Punkt der Ergebnisse kommt im Netz vor"},
        {gut, Ergebnisdatei({1, 2, 3}),
         "N.xml, Zeile 1: Die Kovarianzmatrix (cov-mat) hat 3 Werte statt 10."},
        {gut,
         "<gama-local-adjustment><coordinates><cov-mat><dim>999999999999</dim><band>0</band></cov-mat></"
         "coordinates></gama-local-adjustment>",
         "passt nicht zu den ausgeglichenen Koordinaten"},
    };
    for (const Fall& f : faelle) {
        Speicherdateien dateien;
        dateien.dateien["a/N.gkf"] = f.netz;
        dateien.dateien["a/N.xml"] = f.ergebnisse;
        try {
            Importiere(dateien, !f.ergebnisse.empty());
            ADD_FAILURE() << f.meldung;
        } catch (const Fehler& fehler) {
            EXPECT_NE(std::string(fehler.what()).find(f.meldung), std::string::npos)
                << fehler.what() << "\nstatt " << f.meldung;
        }
        EXPECT_EQ(dateien.dateien.size(), 2U) << f.meldung;
    }
    // A full disk and files that are there: nothing new, nothing lost.
    Speicherdateien dateien;
    dateien.dateien = {{"a/N.gkf", gut}, {"a/N.xml", Ergebnisdatei(einheit)}, {"b/gpstable.DB", "alt"}};
    const auto vorher = dateien.dateien;
    EXPECT_THROW(Importiere(dateien, true), Fehler);
    dateien.platz = 3000;
    EXPECT_THROW((void)ImportiereNetz(
                     {.netz = "a/N.gkf", .ergebnisse = "a/N.xml", .ziel = "b", .ersetzen = true}, dateien, 0),
                 Fehler);
    EXPECT_EQ(dateien.dateien, vorher);
    dateien.platz = SIZE_MAX;
    (void)ImportiereNetz({.netz = "a/N.gkf", .ergebnisse = {}, .ziel = "b", .ersetzen = true}, dateien, 0);
    EXPECT_FALSE(dateien.dateien.contains("b/gpstable.DB")) << "results of another network";
}

TEST(Import, ZweitausendMutationen) {
    const auto lies = [](const char* name) {
        return Systemdateien().LiesDatei(std::filesystem::path(ZRW_QUELLE) / "beispiele/gama" / name,
                                         1 << 20);
    };
    std::mt19937 zufall(3);
    std::size_t gelungen = 0;
    for (int i = 0; i < 2000; ++i) {
        std::string netz = lies(i % 2 == 0 ? "LAGE.gkf" : "VEKTOREN.gkf"),
                    erg = lies(i % 2 == 0 ? "LAGE.xml" : "VEKTOREN.xml");
        std::string& ziel = i % 3 == 0 ? netz : erg;
        for (int k = 0; k < 1 + i % 4; ++k) {
            const std::size_t stelle = zufall() % ziel.size();
            if (zufall() % 3 == 0)
                ziel.erase(stelle, zufall() % 40);
            else if (zufall() % 2 == 0)
                ziel[stelle] = static_cast<char>(zufall());
            else
                ziel.insert(stelle, ziel.substr(zufall() % ziel.size(), zufall() % 60));
        }
        Speicherdateien dateien;
        dateien.dateien = {{"a/N.gkf", netz}, {"a/N.xml", erg}};
        try {
            (void)Importiere(dateien, true);
            ++gelungen;
            EXPECT_GE(dateien.dateien.size(), 23U);
        } catch (const Fehler& f) {
            EXPECT_FALSE(f.Datei().empty()) << f.what();
            EXPECT_EQ(dateien.dateien.size(), 2U) << f.what();
        }
    }
    EXPECT_GT(gelungen, 100U);
    EXPECT_LT(gelungen, 1900U);
}

}  // namespace
}  // namespace zrw
