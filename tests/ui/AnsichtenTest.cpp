// What is in view: points outside after opening, earlier and later views, scale bar and true scale.
#include <QDialog>
#include <QLabel>
#include <algorithm>

#include "model/Netzarten.h"
#include "tests/ui/Netzprobe.h"
#include "ui/ablage/Vorlieben.h"
#include "ui/fenster/Standfelder.h"

namespace zrw {
namespace {

class Ansichten : public Netzprobe {
  protected:
    /// High and narrow: fitting to whole kilometres leaves two of four points outside.
    static constexpr const char* kSchmal =
        "$NT 3\n$FP A              1         1000         1000\n    B              1         1000         "
        "9000\n"
        "    C              1         1000        17000\n    D              1         1000        "
        "25000\n$$$\n";
    QWidget& Hinweis() { return Kind<QWidget>("AussenHinweis"); }
    Bildlage Lage() { return fenster.Netz()->Lage(); }
    /// One step of a pan with the middle button.
    void Ziehe() {
        DrueckeTaste({400, 300}, Qt::MiddleButton);
        BewegeMaus({430, 310});
        LassTasteLos({430, 310}, Qt::MiddleButton);
    }
};

TEST_F(Ansichten, WasAussenLiegtWirdGesagt) {
    EXPECT_FALSE(Hinweis().isVisible());
    LegeDateiAn("s.EIN", kSchmal);
    OeffneDatei("s.EIN");
    ASSERT_TRUE(Hinweis().isVisible());
    const QString text = Hinweis().findChild<QLabel*>()->text();
    const int draussen = text.section(' ', 0, 0).toInt();
    int gezaehlt = 0;
    for (const char* nummer : {"A", "B", "C", "D"})
        gezaehlt += bild->rect().contains(Ort(nummer)) ? 0 : 1;
    EXPECT_TRUE(draussen == gezaehlt && draussen > 0 && text.contains("von 4 Punkten")) << text.toStdString();
    EXPECT_TRUE(bild->rect().contains(Hinweis().geometry()));
    Knopf("AussenhinweisEinpassen").click();
    EXPECT_FALSE(Hinweis().isVisible());
    for (const char* nummer : {"A", "B", "C", "D"})
        EXPECT_TRUE(bild->rect().contains(Ort(nummer))) << nummer;
    OeffneDatei("s.EIN");
    Knopf("AussenhinweisSchliessen").click();
    Taste(Qt::Key_Left);
    EXPECT_FALSE(Hinweis().isVisible()) << "closed for good";

    // The setting does it at once; a picture file keeps its view.
    SpeichereDatei("s.ZRW");
    const double faktor = fenster.Netz()->Faktor;
    Knopf("ColorButton").click();
    auto* kasten = fenster.findChild<QCheckBox*>("CheckBoxEinpassen");
    ASSERT_TRUE(kasten != nullptr && !kasten->isChecked());
    kasten->setChecked(true);
    kasten->window()->close();
    OeffneDatei("s.EIN");
    EXPECT_FALSE(Hinweis().isVisible());
    OeffneDatei("s.ZRW");
    EXPECT_EQ(fenster.Netz()->Faktor, faktor);
    EXPECT_TRUE(Hinweis().isVisible());
    Vorlieben v;
    LadeVorlieben(v, ablage);
    EXPECT_TRUE(v.EinpassenNachOeffnen);
    ablage.SchreibeWert("EinpassenNachOeffnen", "vielleicht");
    LadeVorlieben(v, ablage);
    EXPECT_TRUE(v.EinpassenNachOeffnen) << "nothing that can be read changes nothing";
}

TEST_F(Ansichten, FruehereUndSpaetere) {
    const auto zurueck = [this] { QTest::keyClick(bild, Qt::Key_Left, Qt::AltModifier); };
    const auto vor = [this] { QTest::keyClick(bild, Qt::Key_Right, Qt::AltModifier); };
    std::vector<Bildlage> lagen{Lage()};
    Taste(Qt::Key_F);
    lagen.push_back(Lage());
    // Small moves in a row are one step.
    Taste(Qt::Key_Left);
    Ziehe();
    Taste(Qt::Key_Plus);
    lagen.push_back(Lage());
    Taste(Qt::Key_Home);
    lagen.push_back(Lage());
    EXPECT_FALSE(lagen[0] == lagen[1] || lagen[1] == lagen[2] || lagen[2] == lagen[3]);
    for (std::size_t i = lagen.size() - 1; i-- > 0;) {
        zurueck();
        EXPECT_TRUE(Lage() == lagen[i]) << i;
    }
    zurueck();
    EXPECT_TRUE(Lage() == lagen[0] && Status() == "Eine frühere Ansicht gibt es nicht.");
    vor();
    vor();
    EXPECT_TRUE(Lage() == lagen[2]);
    Taste(Qt::Key_F);
    vor();
    EXPECT_TRUE(Lage() == lagen[1] && Status() == "Eine spätere Ansicht gibt es nicht.");
}

TEST_F(Ansichten, MassbalkenUndWahrerMassstab) {
    const QImage ohne = fenster.Bild().copy();
    Kasten("CheckBoxMassbalken").setChecked(true);
    // Eight metres a pixel: steps of 500 m, 62.5 px each; kilometres from 2 km on.
    const QRect balken(450, 480, 350, 50);
    EXPECT_FALSE(fenster.Bild().copy(balken) == ohne.copy(balken));
    int laengster = 0;  // stroke in black
    for (int y = balken.top(); y < balken.bottom(); ++y) {
        int strich = 0;
        for (int x = balken.left(); x < balken.right(); ++x) {
            strich = fenster.Bild().pixelColor(x, y) == QColor(Qt::black) ? strich + 1 : 0;
            laengster = std::max(laengster, strich);
        }
    }
    EXPECT_EQ(laengster, 251);
    EXPECT_TRUE(fenster.Bild().copy(0, 0, 450, 530) == ohne.copy(0, 0, 450, 530));
    EXPECT_EQ(Kind<QLabel>("StandZahlen").text(), "5 Punkte, 4 Linien");
    EXPECT_TRUE(Kind<QLabel>("StandVersteckte").isHidden());
    Modus("HidePktButton");
    Klick(A);
    EXPECT_EQ(Kind<QLabel>("StandVersteckte").text(), "1 versteckt");
    EXPECT_TRUE(Kind<QLabel>("StandMassstab").text().startsWith("1:"));
    Knopf("RueckgaengigButton").click();
    EXPECT_TRUE(Kind<QLabel>("StandVersteckte").isHidden());
    LegeDateiAn("w.EIN",
                "$NT 50\n$FP A                1   48 59 59.999          8 0 0\n"
                "    B                1         48 0 0      8 59 59.5\n$$$\n");
    OeffneDatei("w.EIN");
    ASSERT_TRUE(!InMetern(50) && fenster.Netz()->MaxPkte > 0);
    EXPECT_EQ(Kind<QLabel>("StandMassstab").text(), "ohne Maßstab");
    Kasten("CheckBoxMassbalken").setChecked(false);
    const QImage winkel = fenster.Bild().copy();
    Kasten("CheckBoxMassbalken").setChecked(true);
    EXPECT_TRUE(fenster.Bild() == winkel && Status().contains("Winkel"));
}

TEST(Standfelder, MassstabHatDreiGueltigeZiffern) {
    for (const auto& [faktor, dpi, n] : {std::tuple{8.0, 96.0, 30200.0},
                                         {0.5, 254.0, 5000.0},
                                         {1e-5, 96.0, 0.0378},
                                         {0.0, 96.0, 0.0},
                                         {1.0, 0.0, 0.0},
                                         {1e308, 1e9, 0.0}})
        EXPECT_NEAR(WahrerMassstab(faktor, dpi), n, n * 1e-9) << faktor;
}

/// Pixels that are neither ink nor ground.
bool HatWeicheKanten(const QImage& bild) {
    for (int y = 0; y < bild.height(); ++y) {
        for (int x = 0; x < bild.width(); ++x) {
            const QColor c = bild.pixelColor(x, y);
            if (c.red() > 140 && c.red() < 250 && c.green() == c.red() && c.blue() == c.red()) return true;
        }
    }
    return false;
}

TEST_F(Ansichten, KantenWerdenGeglaettet) {
    const auto stelle = [&](bool glatt) {
        Knopf("ColorButton").click();
        auto& dialog = Kind<QDialog>("TZRWParameter");
        dialog.findChild<QCheckBox*>("CheckBoxGlaetten")->setChecked(glatt);
        dialog.close();
        QTest::qWait(300);  // longer than the rest after which rough parts become smooth
    };
    const QImage eckig = fenster.Bild().copy();
    EXPECT_FALSE(HatWeicheKanten(eckig));
    stelle(true);
    const QImage glatt = fenster.Bild().copy();
    EXPECT_TRUE(HatWeicheKanten(glatt));
    const std::string bytes = Gespeichert();
    stelle(false);
    EXPECT_EQ(fenster.Bild(), eckig);
    EXPECT_EQ(Gespeichert(), bytes);
}

}  // namespace
}  // namespace zrw
