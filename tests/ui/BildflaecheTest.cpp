// The kept picture: what is drawn and then wiped leaves no dot behind.
#include "ui/Bildflaeche.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <QTemporaryDir>
#include <fstream>

#include "input/Oeffnen.h"
#include "input/Systemdateien.h"
#include "output/Figurenzeichner.h"
#include "ui/Dialogdienst.h"
#include "ui/Einstellungsablage.h"

namespace zrw {
namespace {

QImage Weiss(int weite, int hoehe) {
    QImage bild(weite, hoehe, QImage::Format_RGB32);
    bild.fill(Qt::white);
    return bild;
}

TEST(BildflaecheTest, ZeichnenUndWischenLaesstEinWeissesBild) {
    const Einstellungen einstellungen;
    const Systemdateien dateien;
    const Lesung lesung =
        OeffneNetz(ZRW_QUELLE "/beispiele/NETZ.EIN", dateien, einstellungen, {}, {900, 700}, {});
    Liste& l = *lesung.liste;
    l.ShowFL = true;
    const Netzangaben netz;
    const Systemuhr uhr;
    // Every line style and symbol, and ends far outside.
    int i = 0;
    for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next, ++i) {
        k->Item->LAttr = static_cast<LinieAttr>(i % 7);
        k->Item->KAttr = KanteAttr::AusMaske(static_cast<std::uint8_t>(i % 16));
    }
    for (PPunktKnoten p = l.PunktKnoten; p != nullptr; p = p->Next, ++i)
        p->Item->PktTyp = static_cast<PunktTyp>(i % 6);
    for (const double naeher : {1.0, 20.0, 1e6}) {
        l.PasseEin();
        l.Faktor /= naeher;
        l.XOffset = l.PunktKnoten->XWPu - l.MinXW - 450 * l.Faktor;
        l.YOffset = l.PunktKnoten->YWPu - l.MaxYW + 350 * l.Faktor;
        l.WeltinBild();
        Bildflaeche flaeche(900, 700);
        Zeichenzustand zustand{.flaeche = &flaeche};
        Figurenzeichner zeichner(zustand, einstellungen, netz, uhr);
        l.ShowPicture(zeichner);
        EXPECT_NE(flaeche.Bild(), Weiss(900, 700));
        for (PPunktKante k = l.KanteKnoten; k != nullptr; k = k->Next)
            zeichner.ZeichneKante(*k->Item, Gang::Wischen);
        for (PPunktKnoten p = l.PunktKnoten; p != nullptr; p = p->Next)
            zeichner.ZeichnePunkt(*p->Item, Gang::Wischen);
        for (PPunktString t = l.PktTextKnoten; t != nullptr; t = t->Next)
            zeichner.ZeichneText(*t->Item, Gang::Wischen);
        EXPECT_EQ(flaeche.Bild(), Weiss(900, 700)) << naeher;
    }
}

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
        ablage.Sichere();
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
