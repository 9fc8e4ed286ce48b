// The page in the place of the picture before a network is open.
#include "ui/fenster/Startseite.h"

#include <QDir>
#include <QDropEvent>
#include <QMimeData>
#include <QWindow>

#include "tests/ui/Fenster.h"

namespace zrw {
namespace {

class Startfenster : public Fensterprobe {
  protected:
    [[nodiscard]] Startseite& Seite() const { return Kind<Startseite>("StartSeite"); }
};

TEST_F(Startfenster, WegeZumNetz) {
    EXPECT_TRUE(Seite().isVisible());
    EXPECT_EQ(Seite().size(), bild->size());
    QTest::keyClick(fenster.focusWidget(), Qt::Key_Space);
    QTest::keyClick(fenster.focusWidget(), Qt::Key_Tab);
    dialoge.datei = kBeispiel;
    QTest::keyClick(fenster.focusWidget(), Qt::Key_Space);
    ASSERT_EQ(dialoge.wahlen.size(), 2);
    EXPECT_TRUE(dialoge.wahlen[0].filter.contains("EIN") && dialoge.wahlen[1].filter.contains("ZRW"));
    EXPECT_FALSE(Seite().isVisible());
    EXPECT_EQ(fenster.focusWidget(), bild);
    EXPECT_EQ(fenster.findChild<QWidget*>("StartBeispiel"), nullptr) << "none is installed";
}

// From the system's side, so that the page could take them away.
TEST_F(Startfenster, DateiHierherZiehen) {
    QMimeData gezogen;
    gezogen.setUrls({QUrl::fromLocalFile(kBeispiel)});
    const QPoint ort = Seite().mapTo(&fenster, Seite().rect().center());
    QDragEnterEvent hinein(ort, Qt::CopyAction, &gezogen, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(fenster.windowHandle(), &hinein);
    EXPECT_TRUE(hinein.isAccepted());
    QDropEvent los(ort, Qt::CopyAction, &gezogen, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(fenster.windowHandle(), &los);
    EXPECT_FALSE(Seite().isVisible());
}

TEST_F(Startfenster, LetzteDateienMitBildern) {
    LegeDateiAn("kaputt.ZRW", "xx");
    LegeDateiAn("A&B.EIN", "$NT 3\n$NP A              1         1000         1000\n$$$\n");
    for (const char* d : {"weg.EIN", "kaputt.ZRW", "A&B.EIN"})
        sitzung.NimmDatei(ordner.filePath(d));
    TZrwMainDlg anderes{
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"}};
    anderes.resize(700, 500);
    anderes.show();
    const auto kachel = [&](int i) {
        return anderes.findChild<QToolButton*>(QStringLiteral("StartDatei%1").arg(i));
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return !kachel(2)->isEnabled(); }));
    EXPECT_EQ(kachel(0)->text(), "A&&B.EIN");
    EXPECT_TRUE(kachel(1)->accessibleName().contains("nicht lesbar") && !kachel(1)->isEnabled());
    EXPECT_TRUE(kachel(2)->accessibleName().contains("fehlt"));
    const QImage klein = kachel(0)->icon().pixmap(192, 132).toImage();
    EXPECT_FALSE(klein.allGray()) << "the point is red";
    kachel(0)->click();
    ASSERT_NE(anderes.Netz(), nullptr);
    EXPECT_EQ(anderes.Netz()->MaxPkte, 1);
}

TEST(FindeBeispiel, BeimInstalliertenProgramm) {
    const QTemporaryDir wurzel;
    const QString programme = wurzel.filePath("bin");
    EXPECT_EQ(FindeBeispiel(programme), std::nullopt);
    for (const char* ort : {"bin/beispiele", "share/doc/zarwik/beispiele"}) {
        const QString dort = wurzel.filePath(ort);
        QDir().mkpath(dort);
        QFile(dort + "/NETZ.EIN").open(QIODevice::WriteOnly);
        QDir().mkpath(programme);
        EXPECT_EQ(FindeBeispiel(programme), QFileInfo(dort + "/NETZ.EIN").canonicalFilePath());
    }
}

TEST(Dateivorschau, WirdAbgebrochen) {
    const auto vorschau = [](bool weiter) {
        return ZeichneDateivorschau(ZRW_QUELLE "/beispiele/NETZ.EIN", {}, {300, 200}, [=] { return weiter; });
    };
    EXPECT_EQ(vorschau(true).bild.size(), QSize(300, 200));
    EXPECT_TRUE(vorschau(false).bild.isNull() && vorschau(false).mangel.isEmpty());
}

}  // namespace
}  // namespace zrw
