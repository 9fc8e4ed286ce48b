// A kept plot survives the end of its program, and programs leave each other's plots alone.
#include "ui/ablage/Rettung.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "input/Systemdateien.h"
#include "model/Fehler.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

TEST(Rettung, HinterlassenesWirdGefundenFremdesNicht) {
    const QTemporaryDir ordner;
    const QString pfad = ordner.filePath("rettung");
    Systemdateien dateien;
    const auto liegt = [&](const char* muster) { return QDir(pfad).entryList({muster}, QDir::Files).size(); };
    Rettung zweites(pfad, dateien);
    {
        Rettung erstes(pfad, dateien);
        EXPECT_TRUE(erstes.Hinterlassene().isEmpty());
        erstes.BewahreBytes("eins");
        zweites.BewahreBytes("zwei");
        EXPECT_EQ(liegt("*.rettung"), 2);
        EXPECT_TRUE(zweites.Hinterlassene().isEmpty()) << "the other one is still at work";
    }
    const QStringList gefunden = zweites.Hinterlassene();
    ASSERT_EQ(gefunden.size(), 1);
    EXPECT_EQ(zweites.LiesDatei(gefunden[0]), "eins");
    Rettung drittes(pfad, dateien);
    EXPECT_TRUE(drittes.Hinterlassene().isEmpty()) << "the second one is deciding about it";
    zweites.LegeAb(gefunden[0]);
    EXPECT_EQ(liegt("*.verworfen"), 1) << "kept for a change of mind";
    zweites.VergissDatei();
    EXPECT_EQ(liegt("*.rettung"), 0) << "a clean end leaves nothing";
    zweites.BewahreBytes("zwei");
    EXPECT_EQ(liegt("*.rettung"), 1) << "the same bytes again after they were forgotten";

    const QString datei = QDir(pfad).filePath(QDir(pfad).entryList({"*.rettung"}, QDir::Files)[0]);
    const QString alte = QDir(pfad).filePath("alt.rettung");
    EXPECT_TRUE(QFile::copy(datei, alte) && QFile::copy(datei + ".sperre", alte + ".sperre"));
    EXPECT_EQ(drittes.Hinterlassene(), QStringList(alte)) << "of a program that had the number of this one";
}

TEST(Rettung, OhneOrdnerOderRechteBleibtAllesWieEsIst) {
    Systemdateien dateien;
    Rettung keine(QString(), dateien);
    EXPECT_NO_THROW(keine.BewahreBytes("x"));
    EXPECT_TRUE(keine.Hinterlassene().isEmpty());
    const QTemporaryDir ordner;
    QFile datei(ordner.filePath("datei"));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    Rettung unmoeglich(ordner.filePath("datei/darin"), dateien);
    EXPECT_THROW(unmoeglich.BewahreBytes("x"), Fehler);
}

}  // namespace
}  // namespace zrw
