// What the program keeps for itself: read and written like Qt's INI files, but never at the mercy of the
// file.
#include "ui/ablage/Inidatei.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <fstream>

#include "tests/hilfe/Antwortdienst.h"
#include "ui/Umwandlung.h"
#include "ui/ablage/Einstellungsablage.h"
#include "ui/ablage/Sitzung.h"
#include "ui/dialoge/TZRWParameter.h"

namespace zrw {
namespace {

class InidateiTest : public testing::Test {
  protected:
    void LegeDateiAn(const std::string& inhalt) const {
        std::ofstream(name.toStdString(), std::ios::binary) << inhalt;
    }
    [[nodiscard]] std::string Inhalt() const {
        std::ifstream strom(name.toStdString(), std::ios::binary);
        return {std::istreambuf_iterator<char>(strom), {}};
    }

    QTemporaryDir ordner;
    QString name = ordner.filePath("x.ini");
};

TEST_F(InidateiTest, LiestUndSchreibtWieQt) {
    const QList<QStringList> faelle{
        {"1"},
        {"a,b"},
        {" vorn und hinten "},
        {"\"quer\" und C:\\neu\\x41"},
        {"ü;ß=€ \U0001F5FA"},
        {"@daten"},
        {"@@Variant(x)"},
        {"@Variant(x)"},
        {"a\nb\tc\rd\x01"
         "e\x1b[f"},
        {"a", "", "b, c", "@d)"},
    };
    QSettings fremde(name, QSettings::IniFormat);
    for (const QStringList& texte : faelle) {
        fremde.setValue("S/x", texte.size() == 1 ? QVariant(texte[0]) : QVariant(texte));
        fremde.sync();
        Inidatei eigene(name, "S");
        EXPECT_EQ(eigene.LiesTexte("x"), texte) << Inhalt();
        eigene.SetzeTexte("x", texte);
        EXPECT_EQ(eigene.LiesTexte("x"), texte);
        eigene.SichereDatei();
        fremde.sync();
        EXPECT_EQ(fremde.value("S/x").toStringList(), texte) << Inhalt();
    }
}

TEST_F(InidateiTest, FremdeWerteWerdenNieEntschluesselt) {
    // A hash of 2^31 entries, once more with its sign in disguise, and kinds without a text.
    for (const char* wert :
         {"@Variant(\\0\\0\\0\\b\\x7f\\xff\\xff\\xff)", "\\x40Variant(\\0\\0\\0\\b\\x7f\\xff\\xff\\xff)",
          "\"@Varia\"nt(x)", "@Size(1 1)", "@ByteArray(\\x1)", "@Invalid()"}) {
        LegeDateiAn(std::string("[S]\nx=") + wert + "\ny=7\n");
        EXPECT_EQ(Inidatei(name, "S").LiesTexte("x"), QStringList()) << wert;
        EXPECT_EQ(Inidatei(name, "S").LiesTexte("y"), QStringList("7")) << wert;
    }
}

TEST_F(InidateiTest, WasAnderenGehoertBleibt) {
    LegeDateiAn("; von Hand\n\n[A]\nx=1\r\nunlesbar\n[B]\nx = 2\n\n[C]\nx=3");
    Inidatei eine(name, "B");
    Inidatei andere(name, "B");
    eine.SetzeTexte("x", {"20"});
    eine.SichereDatei();
    andere.SetzeTexte("neu", {"30"});
    andere.SichereDatei();
    EXPECT_EQ(Inhalt(), "; von Hand\n\n[A]\nx=1\nunlesbar\n[B]\nx=20\nneu=30\n\n[C]\nx=3\n");
    Inidatei(name, "D").SichereDatei();  // nothing set, nothing written
    EXPECT_FALSE(QString::fromStdString(Inhalt()).contains("[D]"));
}

TEST_F(InidateiTest, UnlesbaresHaeltNichtAufUndBleibt) {
    const auto rohr = [&] { return ::mkfifo(name.toUtf8(), 0600) == 0; };
    const auto einOrdner = [&] { return ::mkdir(name.toUtf8(), 0700) == 0; };
    const auto geraet = [&] { return QFile::link("/dev/zero", name); };
    const auto kreis = [&] { return QFile::link("x.ini", name); };
    for (const std::function<bool()>& lege : {std::function<bool()>(rohr), {einOrdner}, {geraet}, {kreis}}) {
        ASSERT_TRUE(lege());
        struct stat vorher {};
        ASSERT_EQ(::lstat(name.toUtf8(), &vorher), 0);
        {
            Sitzung sitzung(name);
            EXPECT_TRUE(sitzung.Lesefehler() && sitzung.LetzteDateien().isEmpty());
            sitzung.MerkeOrdner("weg");
        }
        Einstellungsablage ablage(name);
        EXPECT_TRUE(ablage.Lesefehler() && !ablage.LiesWert("Fang"));
        // The dialog that saves tells it, and what was chosen stays.
        Einstellungen e;
        e.Fang = 9;
        Vorlieben vorlieben;
        Antwortdienst dialoge;
        auto* form = new TZRWParameter(e, vorlieben, ablage, dialoge, nullptr);
        form->show();
        form->close();
        ASSERT_EQ(dialoge.meldungen.size(), 1);
        EXPECT_TRUE(dialoge.meldungen[0].contains("nicht gespeichert")) << dialoge.meldungen[0].toStdString();
        EXPECT_EQ(e.Fang, 9);
        EXPECT_EQ(ablage.LiesWert("Fang"), "9");
        struct stat nachher {};
        ASSERT_EQ(::lstat(name.toUtf8(), &nachher), 0);
        EXPECT_EQ(vorher.st_ino, nachher.st_ino);
        ASSERT_EQ(std::remove(name.toUtf8()), 0);
        // As soon as it can be saved, it is.
        SaveSettings(e, ablage);
        ablage.SichereWerte();
        EXPECT_EQ(Einstellungsablage(name).LiesWert("Fang"), "9");
        ASSERT_EQ(std::remove(name.toUtf8()), 0);
    }
}

TEST_F(InidateiTest, ZuGrossesErsetztNurWerSpeichert) {
    LegeDateiAn("[ZRWPAR]\nFang=9\n" + std::string(2 << 20, ';'));
    Sitzung(name).MerkeOrdner("weg");
    Einstellungsablage ablage(name);
    ASSERT_TRUE(ablage.Lesefehler());
    EXPECT_TRUE(ablage.Lesefehler()->Text().find("zu groß") != std::string::npos);
    EXPECT_FALSE(ablage.LiesWert("Fang"));
    ablage.SchreibeWert("Fang", "7");
    EXPECT_GT(QFile(name).size(), 2 << 20);
    ablage.SichereWerte();
    EXPECT_EQ(Inhalt(), "[ZRWPAR]\nFang=7\n");
}

TEST_F(InidateiTest, SitzungSchreibtBald) {
    const QByteArray stand("\0\x01\xFF\nx", 5);
    Sitzung sitzung(name);
    for (const char* datei : {"/a/b.EIN", "/a, b/ü.EIN", "/a/b.EIN"})
        sitzung.NimmDatei(datei);
    sitzung.MerkeStand("Ergebnisse/Fenster", stand);
    QCoreApplication::processEvents();
    const Sitzung andere(name);
    EXPECT_EQ(andere.LetzteDateien(), QStringList({"/a/b.EIN", "/a, b/ü.EIN"}));
    EXPECT_EQ(andere.Stand("Ergebnisse/Fenster"), stand);
}

}  // namespace
}  // namespace zrw
