// The side bar: what is selected, which lines and symbols there are.
#include <QDockWidget>
#include <QTabBar>
#include <QTextBrowser>
#include <QTreeWidget>

#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

class Seitenleistenprobe : public Netzprobe {
  protected:
    [[nodiscard]] QDockWidget& Leiste() const { return Kind<QDockWidget>("SeitenLeiste"); }
    [[nodiscard]] QString Eigenschaften() const {
        return Kind<QTextBrowser>("EigenschaftsText").toPlainText();
    }
    void Oeffne(int seite) const {
        Kind<QAction>("AktionSeitenLeiste").trigger();
        Leiste().findChild<QTabBar*>()->setCurrentIndex(seite);
    }
    /// "text: count" of all rows.
    [[nodiscard]] QStringList Zeilen() const {
        QStringList zeilen;
        const auto& baum = Kind<QTreeWidget>("ZeichenListe");
        for (int g = 0; g < baum.topLevelItemCount(); ++g) {
            const QTreeWidgetItem& gruppe = *baum.topLevelItem(g);
            for (int i = 0; i < gruppe.childCount(); ++i)
                zeilen << gruppe.text(0) + ": " + gruppe.child(i)->text(0) + " " + gruppe.child(i)->text(1);
        }
        return zeilen;
    }
};

TEST_F(Seitenleistenprobe, AmAnfangZuUndDannGemerkt) {
    EXPECT_TRUE(Leiste().isHidden());
    const Stand vorher = Jetzt();
    Oeffne(1);
    EXPECT_TRUE(Leiste().isVisible());
    EXPECT_LT(bild->width(), 800);
    Leiste().close();
    EXPECT_FALSE(Kind<QAction>("AktionSeitenLeiste").isChecked()) << "by its own button, too";
    QCoreApplication::processEvents();
    EXPECT_EQ(Jetzt(), vorher) << "the picture has its place back";
    Oeffne(1);
    fenster.close();
    const TZrwMainDlg spaeter(
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"});
    const auto* leiste = spaeter.findChild<QDockWidget*>("SeitenLeiste");
    EXPECT_FALSE(leiste->isHidden());
    EXPECT_EQ(leiste->findChild<QTabBar*>()->currentIndex(), 1);
}

TEST_F(Seitenleistenprobe, EigenschaftenFolgenDerAuswahl) {
    Oeffne(0);
    EXPECT_TRUE(Eigenschaften().startsWith("Punkt oder Linie im Bild anklicken"));
    Klick(B);
    EXPECT_TRUE(Eigenschaften().contains("Punkt B, Festpunkt")) << Eigenschaften().toStdString();
    EXPECT_TRUE(Eigenschaften().contains("2 Linien zu D, A"));
    BewegeMaus(E);
    EXPECT_TRUE(Eigenschaften().contains("Punkt B")) << "stays while the mouse moves";
    Klick((A + B) / 2);
    EXPECT_TRUE(Eigenschaften().contains("von A nach B")) << Eigenschaften().toStdString();
    auto& text = Kind<QTextBrowser>("EigenschaftsText");
    emit text.anchorClicked(QUrl(QString::number(Punkt("A")->PNr)));
    EXPECT_TRUE(Eigenschaften().contains("Punkt A, Festpunkt"));
    emit text.anchorClicked(QUrl("9999"));
    ZieheMaus({50, 200}, {450, 300});
    EXPECT_TRUE(Eigenschaften().contains("2 Punkte")) << Eigenschaften().toStdString();
    EXPECT_TRUE(Eigenschaften().contains("2000.000 m"));
    OeffneDatei("a.EIN");
    EXPECT_TRUE(Eigenschaften().startsWith("Punkt oder Linie im Bild anklicken"));
}

TEST_F(Seitenleistenprobe, ZaehltLinienUndSymbole) {
    Oeffne(1);
    const QStringList vorher = Zeilen();
    EXPECT_EQ(vorher, QStringList({"Linienarten: Richtung einseitig 3", "Linienarten: ohne Richtung 1",
                                   "Beobachtungen an den Linien: Strecke 1", "Punktsymbole: Kreis, gefüllt 5",
                                   "Farben der Punkte: NP: Neupunkt 3", "Farben der Punkte: FP: Festpunkt 2",
                                   "Farben der Linien: Richtung 4"}))
        << vorher.join('\n').toStdString();
    Modus("DelBeobButton");
    Klick((C + E) / 2);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Zeilen().size() == vorher.size() - 2; }))
        << Zeilen().join('\n').toStdString();
    // Samples are drawn as in the plan: in its colours.
    const QTreeWidgetItem* punkte = Kind<QTreeWidget>("ZeichenListe").topLevelItem(1)->child(0);
    EXPECT_EQ(punkte->icon(0).pixmap(64, 26).toImage().pixelColor(32, 13), QColor(Qt::red));
}

}  // namespace
}  // namespace zrw
