// Real files where the system has links, pipes and rights in the manner of POSIX.
#include <sys/stat.h>
#include <unistd.h>

#include "tests/hilfe/Dateiprobe.h"

namespace zrw {
namespace {

namespace fs = std::filesystem;

TEST_F(Systemdatei, LiestKeineGeraete) {
    EXPECT_EQ(FehlerBei("/dev/zero"), "Kann Datei nicht öffnen (keine gewöhnliche Datei).");
    ASSERT_EQ(::mkfifo((ordner / "rohr").c_str(), 0600), 0);
    EXPECT_EQ(FehlerBei("rohr"), "Kann Datei nicht öffnen (keine gewöhnliche Datei).");
    EXPECT_EQ(FehlerBei(std::string(5000, 'n')), "Kann Datei nicht öffnen (Name zu lang).");
    fs::create_symlink("kreis", ordner / "kreis");
    EXPECT_EQ(FehlerBei("kreis"), "Kann Datei nicht öffnen (Verweise im Kreis).");
}

TEST_F(Systemdatei, ErsetztHinterVerweisen) {
    LegeDateiAn("alt", "vorher");
    fs::permissions(ordner / "alt", fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    fs::create_symlink("alt", ordner / "verweis");
    dateien.ErsetzeDatei(ordner / "verweis", "nachher");
    EXPECT_EQ(Inhalt("alt"), "nachher");
    EXPECT_TRUE(fs::is_symlink(ordner / "verweis"));
    EXPECT_EQ(fs::status(ordner / "alt").permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    // A link whose file is missing leads to its place, over another link and another folder.
    fs::create_symlink("Unter\xC3\x84/zweiter", ordner / "erster");
    fs::create_symlink("Tief/da", ordner / "Unter\xC3\x84" / "zweiter");
    dateien.ErsetzeDatei(ordner / "erster", "nachher");
    EXPECT_EQ(Inhalt("Unter\xC3\x84/Tief/da"), "nachher");
    EXPECT_TRUE(fs::is_symlink(ordner / "erster") && fs::is_symlink(ordner / "Unter\xC3\x84" / "zweiter"));
}

TEST_F(Systemdatei, GeschuetztesUndRohreBleiben) {
    LegeDateiAn("alt", "vorher");
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

TEST_F(Systemdatei, FindetGenauesVorAehnlichem) {
    LegeDateiAn("GENAU", "");
    LegeDateiAn("genau", "");
    EXPECT_EQ(dateien.FindeDatei(ordner, "genau"), ordner / "genau");
    EXPECT_EQ(dateien.FindeDatei(ordner, "GENAU"), ordner / "GENAU");
    EXPECT_EQ(dateien.FindeDatei(ordner, "Genau"), ordner / "GENAU");
}

TEST_F(Systemdatei, VollerNameFuehrtZurSelbenDatei) {
    LegeDateiAn("Unter\xC3\x84/Tief/a", "");
    LegeDateiAn("Unter\xC3\x84/a", "");
    fs::create_directory_symlink("Unter\xC3\x84/Tief", ordner / "verweis");
    EXPECT_EQ(VollerName(ordner / "Unter\xC3\x84" / ".." / "b"), ordner / "b");
    EXPECT_TRUE(DieselbeDatei(VollerName(ordner / "verweis" / ".." / "a"), ordner / "Unter\xC3\x84" / "a"));
}

}  // namespace
}  // namespace zrw
