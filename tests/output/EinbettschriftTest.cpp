// Fonts that documents carry: only what is needed of them, and none that is damaged or forbidden.
#include "output/Einbettschrift.h"

#include <gtest/gtest.h>

#include "output/Pdfflaeche.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

std::string Worte(std::initializer_list<int> worte) {
    std::string t;
    for (const int w : worte)
        (t += static_cast<char>(w >> 8 & 0xFF)) += static_cast<char>(w & 0xFF);
    return t;
}

/// Six glyphs of 1000 to the em: 1 is "A", 2 is "\xC4", put together from 3 and 4 and from itself; 5 is idle.
Schriftquelle Probe() {
    Schriftquelle q;
    q.name = "Probe Schrift";
    q.glyphen['A'] = 1;
    q.glyphen[0xC4] = 2;
    std::string head(54, '\0');
    head.replace(18, 2, Worte({1000}));
    head.replace(36, 8, Worte({-10, -200, 900, 800}));
    std::string hhea(36, '\0');
    hhea.replace(4, 4, Worte({800, -200}));
    hhea.replace(34, 2, Worte({3}));
    const std::string einfach = Worte({1, 0, 0, 9, 9, 7});
    const std::string zusammen = Worte({-1, 0, 0, 9, 9, 0x21, 3, 0, 0, 0x28, 4, 0, 0x4000, 0x00, 2, 0});
    std::string glyf;
    std::string loca;
    for (const std::string& u : {einfach, einfach, zusammen, einfach, einfach, einfach, std::string()}) {
        loca += Worte({static_cast<int>(glyf.size() / 2)});
        glyf += u;
    }
    q.tabellen = {{"head", head},
                  {"hhea", hhea},
                  {"maxp", Worte({1, 0, 6})},
                  {"hmtx", Worte({500, 0, 600, 0, 700, 0, 0, 0, 0})},
                  {"loca", loca},
                  {"glyf", glyf},
                  {"OS/2", Worte({4, 0, 0, 0, 0})}};
    return q;
}

std::size_t Zahl(const std::string& t, std::size_t ort) {
    std::size_t wert = 0;
    for (std::size_t i = 0; i < 4; ++i)
        wert = wert << 8U | static_cast<unsigned char>(t.at(ort + i));
    return wert;
}

std::string Tabelle(const std::string& datei, const std::string& name) {
    const std::size_t eintrag = datei.find(name);
    return datei.substr(Zahl(datei, eintrag + 8), Zahl(datei, eintrag + 12));
}

/// Glyphs with an outline in a file of so many characters.
std::vector<std::size_t> Umrisse(const Zeichenmenge& zeichen) {
    const std::string orte = Tabelle(Einbettschrift::AusQuelle(Probe())->Datei(zeichen), "loca");
    std::vector<std::size_t> da;
    for (std::size_t i = 0; i < 6; ++i) {
        if (Zahl(orte, 4 * i) != Zahl(orte, 4 * i + 4)) da.push_back(i);
    }
    return da;
}

TEST(Einbettschrift, NurWasGebrauchtWirdMitAllenTeilen) {
    using Glyphen = std::vector<std::size_t>;
    EXPECT_EQ(Umrisse({}), (Glyphen{0}));
    EXPECT_EQ(Umrisse(Zeichenmenge().set('A')), (Glyphen{0, 1}));
    EXPECT_EQ(Umrisse(Zeichenmenge().set(0xC4)), (Glyphen{0, 2, 3, 4}));
}

TEST(Einbettschrift, BreitenDesDokumentsSindDieDerSchrift) {
    const auto schrift = Einbettschrift::AusQuelle(Probe());
    Speicherdateien dateien;
    Pdfflaeche flaeche(dateien.BeginneDatei("a"), {210, 297}, 96, {"T", nullptr, &*schrift});
    EXPECT_EQ(flaeche.Textbreite("A\xC4-\n"), 20) << "1.8 of 11 dots: 600, 700 and 500 of 1000 each";
    EXPECT_EQ(flaeche.Texthoehe(), 11);
}

TEST(Einbettschrift, LangeOrteSindDieselben) {
    Schriftquelle lang = Probe();
    const std::string kurze = lang.tabellen["loca"];
    std::string& loca = lang.tabellen["loca"];
    loca.clear();
    for (std::size_t i = 0; i < kurze.size(); i += 2)
        loca += Worte({0, 2 * static_cast<unsigned char>(kurze[i + 1])});
    lang.tabellen["head"].replace(50, 2, Worte({1}));
    const Zeichenmenge zeichen = Zeichenmenge().set(0xC4);
    EXPECT_EQ(Einbettschrift::AusQuelle(std::move(lang)).value().Datei(zeichen),
              Einbettschrift::AusQuelle(Probe()).value().Datei(zeichen));
}

TEST(Einbettschrift, BeschaedigteUndGesperrteNicht) {
    for (const auto& [name, tabelle] : Probe().tabellen) {
        for (std::size_t laenge = 0; laenge < tabelle.size(); ++laenge) {
            Schriftquelle q = Probe();
            q.tabellen[name].resize(laenge);
            const auto schrift = Einbettschrift::AusQuelle(std::move(q));
            EXPECT_EQ(schrift.has_value(), name == "OS/2") << name << " " << laenge;
        }
    }
    for (const int erlaubnis : {2, 0x100, 0x200}) {
        Schriftquelle q = Probe();
        q.tabellen["OS/2"] = Worte({4, 0, 0, 0, erlaubnis});
        EXPECT_FALSE(Einbettschrift::AusQuelle(std::move(q))) << erlaubnis;
    }
    // Parts that are cut off or do not exist are left out.
    Schriftquelle q = Probe();
    q.glyphen['B'] = 99;
    q.tabellen["glyf"].replace(24 + 12, 2, Worte({77}));
    EXPECT_FALSE(Einbettschrift::AusQuelle(std::move(q))->Datei(Zeichenmenge().set()).empty());
    EXPECT_FALSE(Einbettschrift::AusQuelle({}));
}

}  // namespace
}  // namespace zrw
