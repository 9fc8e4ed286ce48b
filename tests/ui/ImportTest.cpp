// A network of another program in the window: recognised by its content, imported, opened; questions and
// damage.
#include <QDialog>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QWindow>

#include "tests/ui/Fenster.h"

namespace zrw {
namespace {

class Import : public Fensterprobe {
  protected:
    Import() {
        for (const char* name : {"LAGE.gkf", "LAGE.xml"})
            QFile::copy(QStringLiteral(ZRW_QUELLE "/beispiele/gama/") + name, ordner.filePath(name));
    }
    [[nodiscard]] QDialog* Fenster() const {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return fenster.findChild<QDialog*>("ImportDialog");
    }
    [[nodiscard]] QString Feld(const char* name) const { return Kind<QLineEdit>(name).text(); }
    /// From the system's side, as every drag comes.
    void Ziehe(const QList<QUrl>& adressen) {
        QMimeData gezogen;
        gezogen.setUrls(adressen);
        QDragEnterEvent hinein(QPoint(50, 50), Qt::CopyAction, &gezogen, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fenster.windowHandle(), &hinein);
        QDropEvent los(QPoint(50, 50), Qt::CopyAction, &gezogen, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(fenster.windowHandle(), &los);
    }
    void Importiere() const { Kind<QPushButton>("ImportKnopf").click(); }
    [[nodiscard]] QString Datei(const char* name) const { return ordner.filePath(name); }
};

TEST_F(Import, ErkanntAmInhalt) {
    QFile::rename(Datei("LAGE.gkf"), Datei("LAGE.EIN"));
    OeffneDatei("LAGE.EIN");
    ASSERT_NE(Fenster(), nullptr);
    EXPECT_EQ(Feld("ImportNetz"), Datei("LAGE.EIN"));
    EXPECT_EQ(Feld("ImportErgebnisse"), Datei("LAGE.xml"));
    EXPECT_EQ(Feld("ImportZiel"), Datei("LAGE.zarwik"));
    Importiere();
    EXPECT_EQ(Fenster(), nullptr);
    ASSERT_NE(fenster.Netz(), nullptr);
    EXPECT_EQ(fenster.Netz()->MaxPkte, 9);
    EXPECT_TRUE(Status().startsWith("1 grober Fehler markiert")) << Status().toStdString();
    EXPECT_EQ(dialoge.gesagt, QStringList()) << "nothing was lost";

    // Once more: the folder is not empty now.
    const std::string vorher = Gespeichert();
    OeffneDatei("LAGE.EIN");
    Kind<QDoubleSpinBox>("ImportGrenze").setValue(2.5);
    Importiere();
    EXPECT_EQ(dialoge.fragen.size(), 1);
    ASSERT_NE(Fenster(), nullptr) << "no was the answer";
    dialoge.ja = true;
    Importiere();
    EXPECT_TRUE(Status().startsWith("3 grobe Fehler markiert")) << Status().toStdString();
    EXPECT_NE(Gespeichert(), vorher) << "two more lines are marked";
}

TEST_F(Import, ErgebnisseFuehrenZumNetz) {
    Ziehe({QUrl::fromLocalFile(Datei("LAGE.xml"))});
    ASSERT_NE(Fenster(), nullptr);
    EXPECT_EQ(Feld("ImportNetz"), Datei("LAGE.gkf"));
    Fenster()->close();
    QFile::rename(Datei("LAGE.gkf"), Datei("anders.gkf"));
    ASSERT_EQ(Fenster(), nullptr);
    Ziehe({QUrl::fromLocalFile(Datei("LAGE.xml")), QUrl::fromLocalFile(Datei("anders.gkf"))});
    ASSERT_NE(Fenster(), nullptr);
    EXPECT_EQ(Feld("ImportNetz"), Datei("anders.gkf"));
    EXPECT_EQ(Feld("ImportErgebnisse"), Datei("LAGE.xml"));
    EXPECT_EQ(Feld("ImportZiel"), Datei("anders.zarwik"));
}

TEST_F(Import, WasVerlorenGehtUndWasNichtGeht) {
    LegeDateiAn("kaputt.gkf", "<gama-local>\n<network>");
    LegeDateiAn("Lang.gkf",
                "<gama-local><network><points-observations><point id='ein langer Name' x='1' y='2'/>"
                "<point id='B' x='3' y='4'/><point id='C'/></points-observations></network></gama-local>");
    OeffneDatei("kaputt.gkf");
    Importiere();
    EXPECT_EQ(dialoge.meldungen,
              QStringList{"kaputt.gkf, Zeile 2: Ein Element ist nicht oder falsch geschlossen."});
    EXPECT_FALSE(QDir(Datei("kaputt.zarwik")).exists());
    dialoge.datei = Datei("Lang.gkf");
    Kind<QToolButton>("ImportNetzKnopf").click();
    EXPECT_EQ(Feld("ImportZiel"), Datei("Lang.zarwik"));
    EXPECT_EQ(Feld("ImportErgebnisse"), "");
    Importiere();
    ASSERT_EQ(dialoge.gesagt.size(), 1);
    EXPECT_TRUE(dialoge.gesagt[0].contains("1 Punkt hat keine Koordinaten x und y") &&
                dialoge.gesagt[0].contains("1 Punkt hat einen kürzeren Namen"))
        << dialoge.gesagt[0].toStdString();
    EXPECT_EQ(fenster.Netz()->MaxPkte, 2);
    EXPECT_TRUE(QFile::exists(Datei("Lang.zarwik/Lang_namen.csv")));
    EXPECT_FALSE(QFile::exists(Datei("Lang.zarwik/KooTABLE.DB")));
}

}  // namespace
}  // namespace zrw
