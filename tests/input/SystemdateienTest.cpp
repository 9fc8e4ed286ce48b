// Real files: what is read is bounded, what is written is whole or not there.
#include "input/Systemdateien.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "model/Fehler.h"

namespace zrw {
namespace {

namespace fs = std::filesystem;

class Systemdatei : public testing::Test {
  protected:
    Systemdatei() {
        ordner = fs::temp_directory_path() / ("zrw-" + std::to_string(::getpid()));
        fs::remove_all(ordner);
        fs::create_directories(ordner / "Unter\xC3\x84" / "Tief");
    }
    ~Systemdatei() override { fs::remove_all(ordner); }

    void LegeDateiAn(const fs::path& name, const std::string& inhalt) const {
        std::ofstream(ordner / name, std::ios::binary) << inhalt;
    }
    [[nodiscard]] std::string Inhalt(const fs::path& name) const {
        std::ifstream s(ordner / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(s), {}};
    }
    [[nodiscard]] std::string FehlerBei(const fs::path& name, std::size_t grenze = 1000) const {
        try {
            (void)dateien.LiesDatei(ordner / name, grenze);
        } catch (const Fehler& f) {
            return f.Text();
        }
        return "kein Fehler";
    }

    fs::path ordner;
    Systemdateien dateien;
};

TEST_F(Systemdatei, LiestNurWasEineDateiIst) {
    LegeDateiAn("a", std::string("x\0y", 3));
    EXPECT_EQ(dateien.LiesDatei(ordner / "a", 3), std::string("x\0y", 3));
    EXPECT_EQ(FehlerBei("a", 2), "Die Datei ist mit 3 Bytes zu groß (höchstens 2).");
    EXPECT_EQ(FehlerBei("fehlt"), "Kann Datei nicht öffnen (nicht vorhanden).");
    EXPECT_EQ(FehlerBei("."), "Kann Datei nicht öffnen (keine gewöhnliche Datei).");
    EXPECT_EQ(FehlerBei("/dev/zero"), "Kann Datei nicht öffnen (keine gewöhnliche Datei).");
    ASSERT_EQ(::mkfifo((ordner / "rohr").c_str(), 0600), 0);
    EXPECT_EQ(FehlerBei("rohr"), "Kann Datei nicht öffnen (keine gewöhnliche Datei).");
    EXPECT_EQ(FehlerBei(std::string(5000, 'n')), "Kann Datei nicht öffnen (Name zu lang).");
    fs::create_symlink("kreis", ordner / "kreis");
    EXPECT_EQ(FehlerBei("kreis"), "Kann Datei nicht öffnen (Verweise im Kreis).");
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
    fs::permissions(ordner / "alt", fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    fs::create_symlink("alt", ordner / "verweis");
    dateien.ErsetzeDatei(ordner / "verweis", "nachher");
    EXPECT_EQ(Inhalt("alt"), "nachher");
    EXPECT_TRUE(fs::is_symlink(ordner / "verweis"));
    EXPECT_EQ(fs::status(ordner / "alt").permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    dateien.ErsetzeDatei(ordner / "neu", "");
    EXPECT_TRUE(fs::exists(ordner / "neu"));
    const std::string lang(255, 'n');
    dateien.ErsetzeDatei(ordner / lang, "nachher");
    EXPECT_EQ(Inhalt(lang), "nachher");
    // A link whose file is missing leads to its place, over another link and another folder.
    fs::create_symlink("Unter\xC3\x84/zweiter", ordner / "erster");
    fs::create_symlink("Tief/da", ordner / "Unter\xC3\x84" / "zweiter");
    dateien.ErsetzeDatei(ordner / "erster", "nachher");
    EXPECT_EQ(Inhalt("Unter\xC3\x84/Tief/da"), "nachher");
    EXPECT_TRUE(fs::is_symlink(ordner / "erster") && fs::is_symlink(ordner / "Unter\xC3\x84" / "zweiter"));
}

TEST_F(Systemdatei, FehlerLassenAllesWieEsWar) {
    LegeDateiAn("alt", "vorher");
    for (const fs::path& ziel : {ordner / "Unter\xC3\x84", ordner / "fehlt" / "x", ordner / "alt" / "x"}) {
        EXPECT_THROW(dateien.ErsetzeDatei(ziel, "neu"), Fehler) << ziel;
    }
    // A file that somebody has protected; root may write it all the same.
    if (::geteuid() != 0) {
        fs::permissions(ordner / "alt", fs::perms::owner_read);
        EXPECT_THROW(dateien.ErsetzeDatei(ordner / "alt", "neu"), Fehler);
    }
    // A pipe stays a pipe, by its own name and by a link to it.
    ASSERT_EQ(::mkfifo((ordner / "rohr").c_str(), 0600), 0);
    fs::create_symlink("rohr", ordner / "verweis");
    for (const char* ziel : {"rohr", "verweis"}) {
        EXPECT_THROW(dateien.ErsetzeDatei(ordner / ziel, "neu"), Fehler) << ziel;
        EXPECT_TRUE(fs::is_fifo(ordner / ziel)) << ziel;
    }
    fs::create_symlink("kreis", ordner / "kreis");
    EXPECT_THROW(dateien.ErsetzeDatei(ordner / "kreis", "neu"), Fehler);
    EXPECT_TRUE(fs::is_symlink(ordner / "kreis"));
    EXPECT_EQ(Inhalt("alt"), "vorher");
    // Nothing is left beside.
    EXPECT_EQ(std::distance(fs::directory_iterator(ordner), fs::directory_iterator()), 5);
}

TEST_F(Systemdatei, FindetInJederSchreibweise) {
    LegeDateiAn("Unter\xC3\x84/Tief/Daten.SF", "");
    LegeDateiAn("GENAU", "");
    LegeDateiAn("genau", "");
    LegeDateiAn("\xC3\x9E\xC3\x97", "");
    struct Fall {
        const char* name;
        const char* fund;
    };
    for (const Fall& f : {Fall{"UNTER\xC3\xA4/tief/DATEN.sf", "Unter\xC3\x84/Tief/Daten.SF"},
                          Fall{"genau", "genau"}, Fall{"GENAU", "GENAU"}, Fall{"Genau", "GENAU"},
                          Fall{"Unter\xC3\x84", nullptr}, Fall{"\xC3\xBE\xC3\x97", "\xC3\x9E\xC3\x97"},
                          Fall{"\xC3\x9E\xC3\xB7", nullptr}, Fall{"nichts", nullptr}, Fall{"", nullptr}}) {
        const auto fund = dateien.FindeDatei(ordner, f.name);
        if (f.fund == nullptr) {
            EXPECT_FALSE(fund) << f.name;
        } else {
            ASSERT_TRUE(fund) << f.name;
            EXPECT_EQ(fund->lexically_relative(ordner), fs::path(f.fund));
        }
    }
}

}  // namespace
}  // namespace zrw
