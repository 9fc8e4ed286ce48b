// What the golden folders cannot hold: messages with their places, endings, limits and hostile files.
#include "input/Steuerdatei.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <chrono>

#include "input/Oeffnen.h"
#include "model/Fehler.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

class Steuerdatei : public testing::Test {
  protected:
    Lesung Lies(const std::string& inhalt) {
        dateien.dateien["netz/NETZ.EIN"] = inhalt;
        meldungen.clear();
        return LeseSteuerdatei("netz/NETZ.EIN", dateien, einstellungen, [this](const Meldung& m) {
            meldungen.push_back(Fehler::Meldung(m.text, m.datei, m.zeile));
        });
    }
    std::string FehlerBei(const std::string& inhalt) {
        try {
            (void)Lies(inhalt);
        } catch (const Fehler& f) {
            return f.what();
        }
        return "kein Fehler";
    }

    Einstellungen einstellungen;
    Speicherdateien dateien;
    std::vector<std::string> meldungen;
};

TEST_F(Steuerdatei, UnlesbareZahlNenntDateiUndZeile) {
    struct Fall {
        const char* inhalt;
        const char* anfang;
    };
    for (const Fall& f :
         {Fall{"$CC\n$NT drei\n", "NETZ.EIN, Zeile 2: Zahl fehlt oder ist nicht lesbar in \"$NT drei\""},
          Fall{"$NT\n", "NETZ.EIN, Zeile 1: "}, Fall{"$EL 1.5\n", "NETZ.EIN, Zeile 1: "},
          Fall{"$XO nan\n", "NETZ.EIN, Zeile 1: "}, Fall{"$YO 0x10\n", "NETZ.EIN, Zeile 1: "},
          Fall{"$PF 99999999999\n", "NETZ.EIN, Zeile 1: "}, Fall{"$KS 9 256\n", "NETZ.EIN, Zeile 1: "},
          Fall{"$NT 3\n$SH 1 x\n", "NETZ.EIN, Zeile 2: "},
          Fall{"$NT 3\n$SH 1 2\n$CC\n$SV 1 z A\n", "NETZ.EIN, Zeile 4: "},
          Fall{"$NT 1\n   2\n   zwei\n", "NETZ.EIN, Zeile 3: "}}) {
        EXPECT_TRUE(FehlerBei(f.inhalt).starts_with(f.anfang)) << FehlerBei(f.inhalt);
    }
    dateien.dateien["netz/ricHT.sf"] = "$CC\r\n$XO k\xFCrzer\r\n";
    EXPECT_TRUE(FehlerBei("$SF RICHT.SF\n").starts_with("ricHT.sf, Zeile 2: "))
        << FehlerBei("$SF RICHT.SF\n");
    EXPECT_NE(FehlerBei("$SF RICHT.SF\n").find("kürzer"), std::string::npos) << "quoted in UTF-8";
}

TEST_F(Steuerdatei, UnlesbarePunktzeileWirdGemeldetUndUebergangen) {
    const Lesung l = Lies(
        "$NT 1\n$FP 12345678901234 1 x 2\n    A\xDC            1 1\n    B             1 1 2\n    B  1 y 2\n");
    EXPECT_EQ(l.liste->MaxPkte, 1);
    EXPECT_EQ(meldungen, (std::vector<std::string>{"NETZ.EIN, Zeile 2: Lesefehler bei Punkt12345678901234",
                                                   "NETZ.EIN, Zeile 3: Lesefehler bei PunktAÜ",
                                                   "NETZ.EIN, Zeile 5: Lesefehler bei PunktB  1 y 2"}));
}

TEST_F(Steuerdatei, FehlendeEinfuegungLaesstDasGelesene) {
    const std::string anfang = "$NT 1\n$FP A              1 1 2\n";
    struct Fall {
        std::string inhalt;
        Leseende ende;
        const char* text;
    };
    for (const Fall& f :
         {Fall{anfang + "$RS A\n$SF D:\\W\xE4lder.SF \n$FP B 1 1 1\n", Leseende::Abgebrochen,
               "Kann Datei D:\\Wälder.SF nicht öffenen!"},
          Fall{anfang + "$RS A\n$KF K.KF\n", Leseende::Abgebrochen, "Kann Datei K.KF nicht öffenen!"},
          Fall{anfang + "$CC\n$KF K.KF\n", Leseende::Programmende, "Kann Datei K.KF nicht öffnen!"}}) {
        const Lesung l = Lies(f.inhalt);
        EXPECT_EQ(l.ende, f.ende);
        EXPECT_EQ(l.endetext, f.text);
        EXPECT_EQ(l.liste->MaxPkte, 1);
    }
}

TEST_F(Steuerdatei, EinfuegungenSchachtelnNicht) {
    dateien.dateien["netz/A.SF"] = "$FP A              1 1 2\n$RF A.SF\n$FP B              1 5 2\n";
    const Lesung l = Lies("$NT 1\n$SF A.SF\n$ST A B\n");
    EXPECT_EQ(l.liste->MaxPkte, 2);
    EXPECT_EQ(l.liste->MaxKant, 1);
    ASSERT_EQ(meldungen.size(), 1U);
    EXPECT_TRUE(meldungen[0].starts_with("A.SF, Zeile 2: "));
}

TEST_F(Steuerdatei, TitelStehtInDerLegende) {
    const Lesung l = Lies("$AU Netz H\xF6he 2024  \n   \n$EL 9\n");
    EXPECT_EQ(l.liste->Legend->Bez1, "Netz H\xF6he 2024") << "a blank line behind it does not take it away";
    EXPECT_EQ(meldungen, std::vector<std::string>{"NETZ.EIN, Zeile 3: Fehler : Unbekanntes Elliposid."});
}

TEST_F(Steuerdatei, HoechstensSovielePunkteWieNummern) {
    std::string inhalt = "$NT 1\n$FP";
    for (int i = 0; i < 65535; ++i)
        inhalt += "    " + std::to_string(100000 + i) + "         0 " + std::to_string(i) + " 1\n";
    EXPECT_EQ(Lies(inhalt).liste->MaxPkte, 65535);
    EXPECT_EQ(Lies(inhalt + "    100000         0 5 5\n").liste->MaxPkte, 65535)
        << "a repeated number is no new point";
    EXPECT_NE(FehlerBei(inhalt + "    X              0 5 5\n").find("mehr als 65535 Punkte"),
              std::string::npos);
}

TEST_F(Steuerdatei, FeindlicheInhalteEndenZuegig) {
    std::string binaer = "$NT 6\n$FP";
    for (unsigned i = 0; i < 1'000'000; ++i)
        binaer += static_cast<char>((i * 2654435761U) >> 24U);
    const std::string lang(10'000'000, '7');
    dateien.dateien["netz/S.SF"] = std::string(1'000'000, '\n');
    std::string endlos = "$SF S.SF\n";
    for (int i = 0; i < 100'000; ++i)
        endlos += "$SF S.SF\n";
    const auto anfang = std::chrono::steady_clock::now();
    (void)Lies(binaer);
    (void)Lies("$NT 3\n$FP " + lang + "\n$RZ" + lang + "\n$AU" + lang + "\n$ST " + lang + " " + lang);
    (void)Lies("$NT 3\n$SH 1 2147483647\n$SV 1 1\n" + std::string(1'000'000, '\n'));
    (void)Lies("$NT 7\n$FP A              1 0 0 0\n    B              1 1e308 -1e308 1e308\n");
    EXPECT_NE(FehlerBei(endlos).find("zusammen zu groß"), std::string::npos);
    EXPECT_LT(std::chrono::steady_clock::now() - anfang, std::chrono::seconds(20));
}

TEST_F(Steuerdatei, OeffnenPasstEinUndSagtWasFehlt) {
    const auto oeffne = [&](const char* name) {
        meldungen.clear();
        return OeffneNetz(name, dateien, einstellungen, {.Netztyp = 9, .Hauptmeridian = 12}, {1000, 530},
                          [this](const Meldung& m) {
                              meldungen.push_back(m.text);
                              EXPECT_EQ(m.zeile, 0) << "about the whole file";
                          });
    };
    dateien.dateien["N.EIN"] =
        "$NT 1\n$FP A              1 3412345 5601000\n    B              1 3418765 5602000\n";
    EXPECT_DOUBLE_EQ(oeffne("N.EIN").liste->Faktor, 8000.0 / 500);
    dateien.dateien["L.EIN"] = "$CC nichts\n";
    dateien.dateien["B.EIN"] = "\xEF\xBB\xBF" + dateien.dateien["N.EIN"];
    EXPECT_EQ(oeffne("B.EIN").liste->MaxPkte, 2) << "a byte order mark does not hide the first key";
    EXPECT_EQ(oeffne("L.EIN").liste->Faktor, 1.0);
    EXPECT_EQ(meldungen.size(), 1U) << "an empty network is told";
    // A picture file changes the network type only; a view that shows nothing is fitted anew.
    std::string bild(84, '\0');
    bild[80] = 51;
    dateien.dateien["b.zrw"] = bild;
    const Lesung l = oeffne("b.zrw");
    EXPECT_EQ(l.netz.Netztyp, 51);
    EXPECT_EQ(l.netz.Hauptmeridian, 12);
    EXPECT_EQ(l.liste->Weite, 1000);
    EXPECT_EQ(meldungen.size(), 1U);
}

TEST(GradDezimalTest, WandeltGradMinutenSekunden) {
    EXPECT_DOUBLE_EQ(GradDezimal(9.5), 9 + 50.0 / 60);
    EXPECT_DOUBLE_EQ(GradDezimal(-9.5), -(9 + 50.0 / 60));
    EXPECT_NEAR(GradDezimal(51.123456), 51 + 12.0 / 60 + 34.56 / 3600, 1e-9);
    EXPECT_EQ(GradDezimal(0.0), 0.0);
}

TEST(Lesefortschritt, SteigtUndBrichtAb) {
    const Einstellungen e;
    Speicherdateien d;
    d.dateien["N.EIN"] = "$NT 3\n$FP A              1 1 1\n";
    for (int i = 0; i < 40000; ++i)
        d.dateien["N.EIN"] += "$ST A B\n";
    std::vector<double> anteile;
    const Lesung ganz = LeseSteuerdatei("N.EIN", d, e, {}, [&](double anteil) {
        anteile.push_back(anteil);
        return true;
    });
    EXPECT_EQ(ganz.liste->MaxPkte, 1);
    ASSERT_GE(anteile.size(), 3U);
    EXPECT_TRUE(std::is_sorted(anteile.begin(), anteile.end()) && anteile.front() > 0 && anteile.back() <= 1);
    EXPECT_THROW((void)LeseSteuerdatei("N.EIN", d, e, {}, [](double) { return false; }), Leseabbruch);
}

}  // namespace
}  // namespace zrw
