// Without a tool: selecting figures, the card beside the mouse, the menu of the right button. Nothing of the
// network changes by selecting.
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>

#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

class Auswahlprobe : public Netzprobe {
  protected:
    void KlickeMit(Qt::KeyboardModifiers tasten, QPoint ort) const {
        QTest::mouseClick(bild, Qt::LeftButton, tasten, ort);
    }
    /// The menu at a place; its entry with that text, without the letter that chooses it.
    QAction* Eintrag(QPoint ort, const QString& text) {
        QTest::mouseClick(bild, Qt::RightButton, {}, ort);
        for (QMenu* menue : fenster.findChildren<QMenu*>("FigurenMenue")) {
            for (QAction* a : menue->findChildren<QAction*>()) {
                if (a->text().remove('&') == text) return a;
            }
        }
        return nullptr;
    }
    void WaehleEintrag(QPoint ort, const QString& text) {
        QAction* a = Eintrag(ort, text);
        ASSERT_TRUE(a != nullptr) << text.toStdString();
        a->trigger();
        for (QMenu* menue : fenster.findChildren<QMenu*>("FigurenMenue"))
            delete menue;
    }
};

TEST_F(Auswahlprobe, WaehltOhneEtwasZuAendern) {
    const Stand vorher = Jetzt();
    const QImage ohne = bild->grab().toImage();
    Klick(A);
    EXPECT_EQ(Status(), "Punkt A ausgewählt");
    EXPECT_NE(bild->grab().toImage(), ohne);
    KlickeMit(Qt::ShiftModifier, B);
    EXPECT_EQ(Status(), "2 Punkte ausgewählt");
    KlickeMit(Qt::ShiftModifier, A);
    EXPECT_EQ(Status(), "Punkt B ausgewählt") << "once more takes it away";
    Klick((C + E) / 2);
    EXPECT_EQ(Status(), "Linie C – E ausgewählt");
    ZieheMaus({50, 200}, {450, 300});
    EXPECT_EQ(Status(), "2 Punkte ausgewählt");
    Taste(Qt::Key_Escape);
    BewegeMaus({600, 450});
    EXPECT_EQ(bild->grab().toImage(), ohne);
    EXPECT_EQ(Jetzt(), vorher);
}

TEST_F(Auswahlprobe, MenueFuerVieleIstEinSchritt) {
    const Stand vorher = Jetzt();
    ZieheMaus({50, 200}, {450, 300});
    QAction* np = nullptr;
    QTest::mouseClick(bild, Qt::RightButton, {}, A);
    for (QAction* a : fenster.findChild<QMenu*>("FigurenMenue")->findChildren<QAction*>())
        if (a->text().startsWith("NP")) np = a;
    ASSERT_TRUE(np != nullptr);
    np->trigger();
    EXPECT_EQ(Status(), "2 Punkte in Art NP geändert");
    delete fenster.findChild<QMenu*>("FigurenMenue");
    EXPECT_TRUE(Punkt("A")->Item->PktArt == PunktArt::NP && Punkt("B")->Item->PktArt == PunktArt::NP);
    fenster.Rueckgaengig();
    EXPECT_EQ(Jetzt(), vorher);

    WaehleEintrag(A, "Punkte verstecken");
    EXPECT_FALSE(Punkt("A")->Item->Visible || Punkt("B")->Item->Visible);
    fenster.Rueckgaengig();
    EXPECT_EQ(Jetzt(), vorher);

    WaehleEintrag(E, "Koordinaten kopieren");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "E\t3000.0000\t2000.0000\n");
    EXPECT_EQ(Status(), "Punkt E: Koordinaten kopiert");
    WaehleEintrag(E, "Strecken messen");
    EXPECT_TRUE(Knopf("MessenButton").isChecked());
    Klick(C);
    EXPECT_TRUE(Status().contains("1000")) << "from E on: " << Status().toStdString();
    fenster.LoeseWerkzeuge();
    WaehleEintrag(E, "Punkt löschen");
    EXPECT_EQ(Punkt("E"), nullptr);
    EXPECT_EQ(Eintrag(E, "Punkt löschen"), nullptr) << "nothing is selected where nothing lies";
}

TEST_F(Auswahlprobe, KarteNachKurzerRuhe) {
    auto& karte = Kind<QLabel>("SchwebeKarte");
    BewegeMaus(A);
    EXPECT_FALSE(karte.isVisible());
    QTest::qWait(500);
    ASSERT_TRUE(karte.isVisible());
    EXPECT_TRUE(karte.text().contains("Punkt A, Festpunkt") && karte.text().contains("1000.000 m"));
    EXPECT_TRUE(bild->rect().contains(karte.geometry()));
    BewegeMaus((C + E) / 2);
    EXPECT_FALSE(karte.isVisible());
    QTest::qWait(500);
    EXPECT_TRUE(karte.text().contains("C – E") && karte.text().contains("Strecke") &&
                karte.text().contains("100.0000 gon"))
        << karte.text().toStdString();
    Modus("MovePktButton");
    BewegeMaus(A);
    QTest::qWait(500);
    EXPECT_FALSE(karte.isVisible()) << "a tool shows what it would hit";
}

}  // namespace
}  // namespace zrw
