// Measuring with the mouse: what it says, how it ends, and that the network does not notice.
#include <QClipboard>
#include <QGuiApplication>

#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

class MessenMitMaus : public Netzprobe {
  protected:
    static constexpr QPoint kFrei{625, 125};
    MessenMitMaus() {
        QGuiApplication::clipboard()->clear();
        Modus("MessenButton");
    }
    [[nodiscard]] QString Kopiert() const {
        QTest::keyClick(bild, Qt::Key_C, Qt::ControlModifier);
        return QGuiApplication::clipboard()->text();
    }
};

TEST_F(MessenMitMaus, EckenZurueckUndEnde) {
    const Stand vorher = Jetzt();
    const QImage leer = bild->grab().toImage();
    EXPECT_EQ(Kopiert(), QString()) << "nothing measured";
    Klick(A + QPoint(4, -4));
    BewegeMaus(C);
    EXPECT_EQ(Status(), "Strecke 1414.214 m   Richtungswinkel 50.0000 gon   dY 1000.000   dX 1000.000");
    ZieheMaus(C, E);
    BewegeMaus(kFrei);
    EXPECT_EQ(
        Status(),
        "Strecke 2000.000 m   Richtungswinkel 100.0000 gon   dY 2000.000   dX 0.000   Summe 4414.214 m");
    EXPECT_NE(bild->grab().toImage(), leer);
    Klick(kFrei, Qt::RightButton);
    EXPECT_EQ(
        Status(),
        "Strecke 3000.000 m   Richtungswinkel 100.0000 gon   dY 3000.000   dX 0.000   Summe 4414.214 m");
    Taste(Qt::Key_Backspace);
    Klick(C);
    Klick(B);
    QTest::mouseDClick(bild, Qt::LeftButton, {}, B);
    LassTasteLos(B);
    BewegeMaus(A);
    EXPECT_EQ(Kopiert().section('\n', 1, 3),  // D lies over C
              "A\tD\t1000.000\t1000.000\t1414.214\t50.0000\n"
              "D\tB\t1000.000\t-1000.000\t1414.214\t150.0000\n"
              "Summe\t\t\t\t2828.427\t");
    Klick(E);
    BewegeMaus(C);
    EXPECT_EQ(Status(), "Strecke 1000.000 m   Richtungswinkel 300.0000 gon   dY -1000.000   dX 0.000")
        << "anew";
    Taste(Qt::Key_Escape);
    BewegeMaus(kFrei);
    EXPECT_EQ(bild->grab().toImage(), leer);
    EXPECT_TRUE(Jetzt() == vorher);
    EXPECT_FALSE(fenster.Ungesichert());
}

TEST_F(MessenMitMaus, NichtInWinkeln) {
    netz.Netztyp = 50;
    Klick(A);
    BewegeMaus(B);
    EXPECT_TRUE(Status().isEmpty() || !Status().startsWith("Strecke"));
    DrueckeTaste(B);
    EXPECT_EQ(Status(), "Die Koordinaten dieses Netzes sind Winkel: Es gibt keinen Maßstab in Metern.");
}

}  // namespace
}  // namespace zrw
