// The way through the window without a mouse: from point to point, a click there, out again.
#include "tests/ui/Netzprobe.h"
#include "ui/fenster/Bildtasten.h"

namespace zrw {
namespace {

class Tastenwege : public Netzprobe {
  protected:
    /// @return the number of the point that has the focus then
    QString Gehe(Qt::Key pfeil) const {
        QTest::keyClick(bild, pfeil, Qt::ControlModifier);
        return Status().section(u',', 0, 0).section(u' ', 1);
    }
    [[nodiscard]] QImage Gezeigt() const { return bild->grab().toImage(); }
};

TEST_F(Tastenwege, VonPunktZuPunkt) {
    const QImage ohne = Gezeigt();
    // The middle of the picture is (400, 265): B is the nearest to it.
    EXPECT_EQ(Gehe(Qt::Key_Up), "B");
    EXPECT_EQ(Status(), "Punkt B, Festpunkt, Rechtswert 3000.00, Hochwert 1000.00");
    EXPECT_NE(Gezeigt(), ohne);
    EXPECT_EQ(Gehe(Qt::Key_Left), "D") << "nearer than A, and in the quarter's edge";
    EXPECT_EQ(Gehe(Qt::Key_Right), "E");
    EXPECT_EQ(Gehe(Qt::Key_Right), "dieser Richtung liegt kein sichtbarer Punkt mehr.");
    EXPECT_EQ(Gehe(Qt::Key_Down), "B");
    // The view follows a point that is outside.
    for (int i = 0; i < 3; ++i)
        Taste(Qt::Key_Right);
    ASSERT_FALSE(bild->rect().contains(Ort("A")));
    EXPECT_EQ(Gehe(Qt::Key_Left), "D");
    EXPECT_EQ(Gehe(Qt::Key_Left), "A");
    EXPECT_EQ(Ort("A"), QPoint(400, 265));
    Taste(Qt::Key_Escape);
    Knopf("SpeedButton3").click();
    EXPECT_EQ(Gezeigt(), ohne) << "the ring is no part of the picture, and goes";
    // Ctrl and an arrow go nowhere else.
    fenster.setFocus();
    EXPECT_EQ(QTest::qWaitForWindowActive(&fenster), true);
    bild->setFocus();
    QTest::keyClick(bild, Qt::Key_Tab);
    EXPECT_NE(fenster.focusWidget(), bild);
}

TEST_F(Tastenwege, EingabeKlicktAufDenPunkt) {
    const QStringList vorher = Figuren();
    Taste(Qt::Key_Return);
    EXPECT_EQ(Figuren(), vorher);
    Modus("DelPunktButton");
    ASSERT_EQ(Gehe(Qt::Key_Up), "B");
    Taste(Qt::Key_Return);
    EXPECT_EQ(Punkt("B"), nullptr);
    EXPECT_EQ(Status(), "Der Punkt ist nicht mehr zu sehen.");
    Taste(Qt::Key_Return);
    EXPECT_EQ(fenster.Netz()->MaxPkte, 4) << "none has the focus now";
    EXPECT_EQ(Gehe(Qt::Key_Up), "E") << "from where it was";
    Kasten("CheckBoxNP").setChecked(false);
    Taste(Qt::Key_Enter);
    EXPECT_EQ(fenster.Netz()->MaxPkte, 4) << "it is not shown";
    Kasten("CheckBoxNP").setChecked(true);
    // Two clicks, and the mouse takes the focus away.
    Modus("ZentrierButton");
    ASSERT_EQ(Gehe(Qt::Key_Left), "D");
    Taste(Qt::Key_Return);
    ASSERT_EQ(Gehe(Qt::Key_Right), "E");
    Taste(Qt::Key_Return);
    EXPECT_EQ(Status(), "D auf E zentriert");
    BewegeMaus({700, 500});
    const QImage mitRing = Gezeigt();
    Klick({700, 500});
    EXPECT_NE(Gezeigt(), mitRing);
    fenster.OeffneDatei(ordner.filePath("a.EIN").toStdString());
    EXPECT_EQ(Gehe(Qt::Key_Left).size(), 1) << "nothing is left of the old network";
}

TEST_F(Tastenwege, ZiehtMitPfeilen) {
    const Stand vorher = Jetzt();
    const QPoint ort = Ort("B");
    Modus("MovePktButton");
    ASSERT_EQ(Gehe(Qt::Key_Up), "B");
    Taste(Qt::Key_Return);
    EXPECT_TRUE(Status().startsWith("In der Hand"));
    Taste(Qt::Key_Left);
    QTest::keyClick(bild, Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_EQ(Ort("B"), ort) << "still in the hand";
    Taste(Qt::Key_Return);
    EXPECT_EQ(Ort("B"), ort + QPoint(-1, -10));
    // Escape leaves it where it was, and arrows move the picture again.
    Gehe(Qt::Key_Up);
    Gehe(Qt::Key_Down);
    Taste(Qt::Key_Return);
    Taste(Qt::Key_Right);
    Taste(Qt::Key_Escape);
    EXPECT_EQ(Ort("B"), ort + QPoint(-1, -10));
    fenster.Rueckgaengig();
    EXPECT_EQ(Gespeichert(), vorher.bytes);
    Modus("MoveTextButton");
    const QPoint text = Textort("B");
    ASSERT_EQ(Gehe(Qt::Key_Up), "B");
    Taste(Qt::Key_Return);
    Taste(Qt::Key_Down);
    Taste(Qt::Key_Return);
    EXPECT_EQ(Textort("B"), text + QPoint(0, 1));
    Taste(Qt::Key_Right);
    EXPECT_EQ(Ort("B"), ort - QPoint(80, 0));
}

TEST_F(Tastenwege, KontextmenueMeldetDenOrt) {
    auto& tasten = dynamic_cast<Bildtasten&>(*bild->findChild<QObject*>("BildTasten"));
    std::optional<Bildpunkt> ort;
    int anzahl = 0;
    tasten.kontextmenue = [&](const std::optional<Bildpunkt>& o) {
        ort = o;
        ++anzahl;
    };
    QTest::keyClick(bild, Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_TRUE(anzahl == 1 && !ort);
    Gehe(Qt::Key_Up);
    QContextMenuEvent taste(QContextMenuEvent::Keyboard, {1, 1}, {1, 1});
    QCoreApplication::sendEvent(bild, &taste);
    ASSERT_TRUE(anzahl == 2 && ort);
    EXPECT_EQ(QPoint(static_cast<int>(ort->x), static_cast<int>(ort->y)), Ort("B"));
}

}  // namespace
}  // namespace zrw
