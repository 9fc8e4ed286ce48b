// Real files: what is read is bounded, what is written is whole or not there.
#include <atomic>
#include <thread>

#include "tests/hilfe/Dateiprobe.h"

namespace zrw {
namespace {

namespace fs = std::filesystem;

TEST_F(Systemdatei, LiestNurWasEineDateiIst) {
    LegeDateiAn("a", std::string("x\0y", 3));
    EXPECT_EQ(dateien.LiesDatei(ordner / "a", 3), std::string("x\0y", 3));
    EXPECT_EQ(FehlerBei("a", 2), "Die Datei ist mit 3 Bytes zu groß (höchstens 2).");
    EXPECT_EQ(FehlerBei("fehlt"), "Kann Datei nicht öffnen (nicht vorhanden).");
    EXPECT_EQ(FehlerBei("."), "Kann Datei nicht öffnen (keine gewöhnliche Datei).");
}

TEST_F(Systemdatei, MerktDassWaehrendDesLesensGeschriebenWird) {
    LegeDateiAn("a", std::string(std::size_t{4} << 20U, 'x'));
    std::atomic<bool> ende = false;
    std::thread schreiber([&] {
        std::ofstream s(ordner / "a", std::ios::binary | std::ios::app);
        while (!ende)
            s << 'y' << std::flush;
    });
    std::string text = "kein Fehler";
    for (int i = 0; i < 1000 && text == "kein Fehler"; ++i)
        text = FehlerBei("a", std::size_t{1} << 30U);
    ende = true;
    schreiber.join();
    EXPECT_EQ(text, "Die Datei wurde während des Lesens geändert. Bitte noch einmal öffnen.");
    EXPECT_EQ(FehlerBei("a", std::size_t{1} << 30U), "kein Fehler");
}

TEST_F(Systemdatei, ErsetztAlsGanzes) {
    LegeDateiAn("alt", "vorher");
    dateien.ErsetzeDatei(ordner / "alt", "nachher");
    EXPECT_EQ(Inhalt("alt"), "nachher");
    dateien.ErsetzeDatei(ordner / "neu", "");
    EXPECT_TRUE(fs::exists(ordner / "neu"));
    const std::string lang(255, 'n');
    dateien.ErsetzeDatei(ordner / lang, "nachher");
    EXPECT_EQ(dateien.LiesDatei(ordner / lang, 100), "nachher");
}

TEST_F(Systemdatei, FehlerLassenAllesWieEsWar) {
    LegeDateiAn("alt", "vorher");
    for (const fs::path& ziel : {ordner / TextPfad("UnterÄ"), ordner / "fehlt" / "x", ordner / "alt" / "x"}) {
        EXPECT_THROW(dateien.ErsetzeDatei(ziel, "neu"), Fehler) << ziel;
    }
    EXPECT_EQ(Inhalt("alt"), "vorher");
    // Nothing is left beside.
    EXPECT_EQ(std::distance(fs::directory_iterator(ordner), fs::directory_iterator()), 2);
}

TEST_F(Systemdatei, FindetInJederSchreibweise) {
    LegeDateiAn("UnterÄ/Tief/Daten.SF", "");
    LegeDateiAn("Þ×", "");
    struct Fall {
        const char* name;
        const char* fund;
    };
    for (const Fall& f :
         {Fall{"UNTERä/tief/DATEN.sf", "UnterÄ/Tief/Daten.SF"}, Fall{"UnterÄ", nullptr}, Fall{"þ×", "Þ×"},
          Fall{"Þ÷", nullptr}, Fall{"nichts", nullptr}, Fall{"", nullptr}}) {
        const auto fund = dateien.FindeDatei(ordner, f.name);
        ASSERT_EQ(fund.has_value(), f.fund != nullptr) << f.name;
        if (!fund) continue;
        EXPECT_TRUE(DieselbeDatei(*fund, ordner / TextPfad(f.fund))) << f.name;
    }
}

}  // namespace
}  // namespace zrw
