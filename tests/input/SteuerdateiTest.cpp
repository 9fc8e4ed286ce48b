// What the golden folders cannot hold: messages with their places, endings, limits and hostile files.
#include "input/Steuerdatei.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "input/Oeffnen.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

class Steuerdatei : public testing::Test {
  protected:
    Lesung LiesText(const std::string& inhalt) {
        dateien.dateien["netz/NETZ.EIN"] = inhalt;
        meldungen.clear();
        return LeseSteuerdatei("netz/NETZ.EIN", dateien, einstellungen,
                               [this](const Meldung& m) { meldungen.push_back(m.Zeile()); });
    }
    std::string FehlerBei(const std::string& inhalt) {
        try {
            (void)LiesText(inhalt);
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

TEST_F(Steuerdatei, MeldungenNennenOrtUndGrund) {
    dateien.dateien["netz/OHNE.SF"] = "   A B\n   B A\n$RF OHNE.SF\n";
    dateien.dateien["netz/k.KF"] = "\xEF\xBB\xBF$FP \xC3\x84\xCE\xB1             1 1 2\r\xCE\xB1";
    struct Fall {
        std::string inhalt;
        std::vector<std::string> meldungen;
    };
    for (
        const Fall& f :
        {Fall{"$NT 1\n$FP 12345678901234 1 x 2\n    A\xDC             1 1\n    B  1 y 2\n    C              "
              "1.5 1 2\n    D              1 1,5 2\n$PF 1\n$FP E              1 1\n",
              {"NETZ.EIN, Zeile 2: Lesefehler bei Punkt12345678901234: Rechtswert \"x\" ist keine Zahl",
               "NETZ.EIN, Zeile 3: Lesefehler bei PunktAÜ: Hochwert fehlt",
               "NETZ.EIN, Zeile 4: Lesefehler bei PunktB  1 y 2: Punktcode fehlt",
               "NETZ.EIN, Zeile 5: Lesefehler bei PunktC: Punktcode \"1.5\" ist keine ganze Zahl",
               "NETZ.EIN, Zeile 6: Lesefehler bei PunktD: Rechtswert \"1,5\": Komma statt Dezimalpunkt",
               "NETZ.EIN, Zeile 8: Lesefehler bei PunktE: Rechtswert fehlt"}},
         {"$NT 1\n$FP 123456789012345 1 2 3\n",
          {"NETZ.EIN, Zeile 2: Hinter den 14 Stellen der Punktnummer folgt ohne Leerzeichen Text, Nummer und "
           "Koordinaten können verschoben sein: Punkt 12345678901234"}},
         {"$NT 1\n$FX 1\n$ZZ 1\n$EL 1\n$KS 9 0\n$KX 6 0\n$YO 5\n$YY 7\n   8\n",
          {"NETZ.EIN, Zeile 6: \"$KX 6 0\" ändert: Hauptmeridian (unbekannter Schlüssel, gelesen als "
           "Fortsetzung von $KS)",
           "NETZ.EIN, Zeile 8: \"$YY 7\" ändert: Zuschlag zum Rechtswert (unbekannter Schlüssel, gelesen "
           "als "
           "Fortsetzung von $YO)"}},
         {"$NT 3\n$SH 1 3\n$SV 1 1 A              B\n$ST A B\n",
          {"NETZ.EIN, Zeile 2: Der GPS-Block kündigt 3 Vektoren ($SV) an, gefunden: 1. Alles Weitere bis zum "
           "Ende der Datei gilt als Teil des Blocks."}},
         {"$SF OHNE.SF\n",
          {"OHNE.SF, Zeile 1: Die eingefügte Datei beginnt ohne Schlüssel: Ihre Zeilen werden bis zum ersten "
           "Schlüssel übergangen. Bitte den Schlüssel der ersten Zeile ergänzen, zum Beispiel $ST.",
           "OHNE.SF, Zeile 3: Eine eingefügte Datei kann keine weitere einfügen; die Zeile wurde "
           "übergangen."}},
         {"$KF D:\\alt\\K.KF\n",
          {"NETZ.EIN, Zeile 1: Statt D:\\alt\\K.KF wurde k.KF aus dem Ordner der Steuerdatei gelesen.",
           "k.KF, Zeile 1: Zeichen, die es in der Codepage 1252 nicht gibt, gelten als \"?\": 2, das erste "
           "in "
           "dieser Zeile."}}}) {
        (void)LiesText(f.inhalt);
        EXPECT_EQ(meldungen, f.meldungen);
    }
}

TEST_F(Steuerdatei, ZeichensaetzeUndZeilenendenSindGleich) {
    const std::string cp1252 =
        "$NT 1\n$FP A\xC4\xD6\xDC           1 1 2\n$FP B              1 5 2\n$SF H\xF6.SF\n";
    const std::string utf8 = Cp1252NachUtf8(cp1252);
    std::string cr = utf8;
    std::replace(cr.begin(), cr.end(), '\n', '\r');
    const std::string marke = "\xEF\xBB\xBF";
    for (const std::string& haupt : {cp1252, utf8, marke + utf8, cr}) {
        for (const std::string& einfuegung : {std::string("$ST A\xC4\xD6\xDC B"), marke + "$ST AÄÖÜ B\r"}) {
            dateien.dateien["netz/hö.sf"] = einfuegung;
            const Lesung l = LiesText(haupt);
            EXPECT_NE(l.liste->FindPunkt("A\xC4\xD6\xDC"), nullptr) << haupt;
            EXPECT_EQ(l.liste->MaxKant, 1) << haupt << einfuegung;
            EXPECT_TRUE(meldungen.empty());
        }
    }
    for (const std::string& utf16 : {std::string("\xFF\xFE$\0N\0", 6), std::string("\0$\0N", 4)}) {
        EXPECT_NE(FehlerBei(utf16).find("UTF-16"), std::string::npos);
        dateien.dateien["netz/hö.sf"] = utf16;
        EXPECT_NE(LiesText(utf8).endegrund.find("Zeile 4: Die Datei ist in UTF-16"), std::string::npos);
    }
}

TEST_F(Steuerdatei, FehlendeEinfuegungLaesstDasGelesene) {
    const std::string anfang = "$NT 1\n$FP A              1 1 2\n";
    struct Fall {
        std::string inhalt;
        Leseende ende;
        const char* text;
        const char* grund;
    };
    for (const Fall& f :
         {Fall{anfang + "$RS A\n$SF D:\\W\xE4lder.SF \n$FP B 1 1 1\n", Leseende::Abgebrochen,
               "Kann Datei D:\\Wälder.SF nicht öffenen!", "NETZ.EIN, Zeile 4: nicht vorhanden"},
          Fall{anfang + "$SF A.SF\n$XX B.SF\n", Leseende::Abgebrochen, "Kann Datei B.SF nicht öffenen!",
               "NETZ.EIN, Zeile 4: nicht vorhanden; erwartet: Dateiname (unbekannter Schlüssel, gelesen als "
               "Fortsetzung von $SF)"},
          Fall{anfang + "$RS A\n$KF K.KF\n", Leseende::Abgebrochen, "Kann Datei K.KF nicht öffenen!",
               "NETZ.EIN, Zeile 4: nicht vorhanden"},
          Fall{anfang + "$CC\n$KF K.KF\n", Leseende::Programmende, "Kann Datei K.KF nicht öffnen!",
               "NETZ.EIN, Zeile 4: nicht vorhanden"}}) {
        dateien.dateien["netz/A.SF"] = "\n";
        const Lesung l = LiesText(f.inhalt);
        EXPECT_EQ(l.ende, f.ende);
        EXPECT_EQ(l.endetext, f.text);
        EXPECT_EQ(l.endegrund, f.grund);
        EXPECT_EQ(l.liste->MaxPkte, 1);
    }
}

TEST_F(Steuerdatei, EinfuegungenSchachtelnNicht) {
    dateien.dateien["netz/A.SF"] = "$FP A              1 1 2\n$RF A.SF\n$FP B              1 5 2\n";
    const Lesung l = LiesText("$NT 1\n$SF A.SF\n$ST A B\n");
    EXPECT_EQ(l.liste->MaxPkte, 2);
    EXPECT_EQ(l.liste->MaxKant, 1);
    // All that they bring together is bounded.
    dateien.dateien["netz/A.SF"] = std::string(1U << 20U, 'x');
    std::string viele;
    for (int i = 0; i < 200; ++i)
        viele += "$SF A.SF\n";
    EXPECT_NE(FehlerBei(viele).find("zusammen zu groß"), std::string::npos);
}

TEST_F(Steuerdatei, BerichtZaehltWasOhneWirkungBleibt) {
    dateien.dateien["netz/A.SF"] = "$RS A\n$RZ\n$RZ X\n";
    const Lesung l = LiesText(
        "$NT 3\n$FP A              1 1 1\n    A              1 2 2\n$SF A.SF\n$ST A A\n$DH Y Z\n"
        "$SH 1 1\n$SV 1 1 A              W\n$RS V\n$RZ A\n$ST\n$ST\n$ST Q\n");
    EXPECT_EQ(Statustext(l.bericht),
              "5 Beobachtungen nennen unbekannte Punkte (zuerst A.SF, Zeile 3); 1 Punktnummer kommt noch "
              "einmal vor "
              "(zuerst NETZ.EIN, Zeile 3)");
    EXPECT_EQ(Statustext(LiesText("$NT 3\n$FP A              1 1 1\n").bericht), "");
}

TEST_F(Steuerdatei, TitelStehtInDerLegende) {
    const Lesung l = LiesText("$AU Netz H\xF6he 2024  \n   \n$EL 9\n");
    EXPECT_EQ(l.liste->Legend->Bez1, "Netz H\xF6he 2024") << "a blank line behind it does not take it away";
    EXPECT_EQ(meldungen, std::vector<std::string>{"NETZ.EIN, Zeile 3: Fehler : Unbekanntes Elliposid."});
}

TEST_F(Steuerdatei, HoechstensSovielePunkteWieNummern) {
    std::string inhalt = "$NT 1\n$FP";
    for (int i = 0; i < 65535; ++i)
        inhalt += "    " + std::to_string(100000 + i) + "         0 " + std::to_string(i) + " 1\n";
    EXPECT_EQ(LiesText(inhalt).liste->MaxPkte, 65535);
    EXPECT_EQ(LiesText(inhalt + "    100000         0 5 5\n").liste->MaxPkte, 65535)
        << "a repeated number is no new point";
    EXPECT_NE(FehlerBei(inhalt + "    X              0 5 5\n").find("mehr als 65535 Punkte"),
              std::string::npos);
}

TEST_F(Steuerdatei, OeffnenPasstEinUndSagtWasFehlt) {
    const auto oeffne = [&](const char* name) {
        meldungen.clear();
        return OeffneNetz(name, dateien, einstellungen, {.Netztyp = 9, .Hauptmeridian = 12}, {1000, 530},
                          [this](const Meldung& m) { meldungen.push_back(m.text); });
    };
    dateien.dateien["N.EIN"] =
        "$NT 1\n$FP A              1 3412345 5601000\n    B              1 3418765 5602000\n";
    EXPECT_DOUBLE_EQ(oeffne("N.EIN").liste->Faktor, 8000.0 / 500);
    const std::string punkt = "$FP A              1 1 1\n";
    for (const auto& [inhalt, text] : std::initializer_list<std::pair<std::string, const char*>>{
             {"$CC nichts\n", "Es gibt keine Punktzeilen"},
             {punkt, "Es fehlt der Netztyp"},
             {"$NT 9\n" + punkt, "Den Netztyp 9 gibt es nicht"},
             {punkt + "$NT 3\n", "stehen vor dem Netztyp"},
             {"$NT 6\n" + punkt, "In keiner Punktzeile"}}) {
        dateien.dateien["L.EIN"] = inhalt;
        EXPECT_EQ(oeffne("L.EIN").liste->Faktor, 1.0);
        EXPECT_NE(meldungen.back().find(text), std::string::npos) << meldungen.back();
    }
    dateien.dateien["L.EIN"] = "Ein Brief.\n";
    EXPECT_THROW((void)oeffne("L.EIN"), Fehler);
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
