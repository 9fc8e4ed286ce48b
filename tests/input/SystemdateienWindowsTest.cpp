// Real files as only Windows has them: long names, drives, files that another program has open.
#include <windows.h>

#include "tests/hilfe/Dateiprobe.h"

namespace zrw {
namespace {

namespace fs = std::filesystem;

class Fremdgriff {
  public:
    Fremdgriff(const fs::path& p, DWORD rechte, DWORD geteilt)
        : griff_(CreateFileW(p.c_str(), rechte, geteilt, nullptr, OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(griff_, INVALID_HANDLE_VALUE);
    }
    ~Fremdgriff() { CloseHandle(griff_); }
    Fremdgriff(const Fremdgriff&) = delete;
    Fremdgriff& operator=(const Fremdgriff&) = delete;

  private:
    HANDLE griff_;
};

TEST_F(Systemdatei, NamenVonMehrAls260Zeichen) {
    fs::path tief = ordner;
    for (int i = 0; i < 4; ++i)
        tief /= TextPfad(std::string(80, 'n') + "Ä");
    dateien.ErstelleOrdner(tief);
    dateien.ErsetzeDatei(tief / "Netz.EIN", "vorher");
    dateien.ErsetzeDatei(tief / "Netz.EIN", "nachher");
    EXPECT_EQ(dateien.LiesDatei(tief / "NETZ.ein", 100), "nachher");
    EXPECT_EQ(dateien.FindeDatei(tief / "..", TextPfad("fehlt").string()), std::nullopt);
    EXPECT_TRUE(dateien.FindeDatei(tief, "NETZ.EIN"));
    EXPECT_TRUE(dateien.Stand(tief / "Netz.EIN"));
    EXPECT_TRUE(DieselbeDatei(tief / "Netz.EIN", tief / "." / "NETZ.EIN"));
    dateien.EntferneDatei(tief / "Netz.EIN");
    EXPECT_FALSE(dateien.Stand(tief / "Netz.EIN"));
    for (; tief != ordner; tief = tief.parent_path())  // the standard library cannot
        EXPECT_TRUE(RemoveDirectoryW((LR"(\\?\)" + VollerName(tief).native()).c_str()));
}

TEST_F(Systemdatei, LiestWasAndereOffenHaben) {
    LegeDateiAn("a", "inhalt");
    {
        const Fremdgriff ausgleichung(ordner / "a", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ);
        EXPECT_EQ(dateien.LiesDatei(ordner / "a", 100), "inhalt");
        try {
            dateien.ErsetzeDatei(ordner / "a", "neu");
            ADD_FAILURE() << "replaced";
        } catch (const Fehler& f) {
            EXPECT_EQ(f.Text(), "Kann Datei nicht schreiben (von einem anderen Programm benutzt).");
        }
    }
    {
        const Fremdgriff gesperrt(ordner / "a", GENERIC_READ, 0);
        EXPECT_EQ(FehlerBei("a"), "Kann Datei nicht öffnen (von einem anderen Programm benutzt).");
    }
    EXPECT_EQ(Inhalt("a"), "inhalt");
    EXPECT_EQ(std::distance(fs::directory_iterator(ordner), fs::directory_iterator()), 2);
}

TEST_F(Systemdatei, GeraeteUndUnzulaessigeNamen) {
    for (const char* name : {"NUL", "CON"})
        EXPECT_NE(FehlerBei(name), "kein Fehler") << name;
    EXPECT_EQ(FehlerBei("fra?ge"), "Kann Datei nicht öffnen (unzulässiger Name).");
    EXPECT_THROW(dateien.ErsetzeDatei(ordner / "stern*", "neu"), Fehler);
    EXPECT_THROW(dateien.ErsetzeDatei("NUL", "neu"), Fehler);
}

TEST_F(Systemdatei, SchreibgeschuetztesBleibt) {
    LegeDateiAn("a", "vorher");
    SetFileAttributesW((ordner / "a").c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_THROW(dateien.ErsetzeDatei(ordner / "a", "neu"), Fehler);
    SetFileAttributesW((ordner / "a").c_str(), FILE_ATTRIBUTE_HIDDEN);
    dateien.ErsetzeDatei(ordner / "a", "neu");
    EXPECT_EQ(dateien.LiesDatei(ordner / "a", 100), "neu");
    EXPECT_NE(GetFileAttributesW((ordner / "a").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST_F(Systemdatei, HalbeZeichenImOrdner) {
    std::ofstream(ordner / std::wstring{L'x', 0xD800});
    LegeDateiAn("Daten.SF", "");
    EXPECT_TRUE(dateien.FindeDatei(ordner, "daten.sf"));
    EXPECT_FALSE(dateien.FindeDatei(ordner, "fehlt"));
}

TEST_F(Systemdatei, NamenMitLaufwerkUndNetzordner) {
    LegeDateiAn("UnterÄ/a", "inhalt");
    const std::string voll = PfadText(VollerName(ordner / TextPfad("UnterÄ") / "a"));
    ASSERT_EQ(voll.substr(1, 2), ":\\");
    std::string schraeg = voll;
    for (char& c : schraeg)
        c = c == '\\' ? '/' : c;
    for (const std::string& name : {voll, schraeg})
        EXPECT_TRUE(dateien.FindeDatei("Z:/anderswo", name)) << name;
    EXPECT_EQ(VollerName("//rechner/netze/x/../N.EIN"), fs::path(LR"(\\rechner\netze\N.EIN)"));
}

}  // namespace
}  // namespace zrw
