// The font of the picture, names of files to save, the file of settings.
#include "ui/bild/Bildflaeche.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QTemporaryDir>
#include <fstream>

#include "ui/Dialogdienst.h"
#include "ui/ablage/Einstellungsablage.h"

namespace zrw {
namespace {

TEST(BildflaecheTest, SchriftIstMetrischArial) {
    const QString familie = QFontInfo(Zeichenschrift()).family();
    EXPECT_TRUE(familie == "Arial" || familie == "Liberation Sans") << familie.toStdString();
    const Bildflaeche flaeche(10, 10);
    // Advance widths of Arial at 11 px, rounded by the hinting: digits 6, "W" 10 or 11.
    EXPECT_EQ(flaeche.Textbreite("0123456789"), 60);
    EXPECT_EQ(flaeche.Textbreite("\xFC"), flaeche.Textbreite("u")) << "code page 1252";
}

TEST(DialogdienstTest, EndungAuchHinterAnderenPunkten) {
    for (const auto& [name, erwartet] : {std::pair{"Netz", "Netz.ZRW"},
                                         {"Netz.2024", "Netz.2024.ZRW"},
                                         {"a/b.zrw", "a/b.zrw"},
                                         {"ZRW", "ZRW.ZRW"}}) {
        EXPECT_EQ(MitEndung(name, "ZRW"), erwartet);
    }
}

TEST(EinstellungsablageTest, IniDateiMitAbschnittUndTexten) {
    const QTemporaryDir ordner;
    const QString name = ordner.filePath("ZRWINI.ini");
    {
        Einstellungsablage ablage(name);
        SaveSettings({}, ablage);
        ablage.SichereWerte();
    }
    std::ifstream strom(name.toStdString());
    std::string erste;
    EXPECT_EQ(std::getline(strom, erste) ? erste : "", "[ZRWPAR]");
    std::ofstream(name.toStdString()) << "[ZRWPAR]\nPTSize=9\nFang=f\xFCnf\nResMF=2,5\nPXOff=\"-7\"\n";
    Einstellungen e;
    LoadSettings(e, Einstellungsablage(name));
    EXPECT_EQ(e.PTSize, 9);
    EXPECT_EQ(e.Fang, 5);
    EXPECT_EQ(e.ResMF, 1.0);
    EXPECT_EQ(e.PXOff, -7);
}

}  // namespace
}  // namespace zrw
