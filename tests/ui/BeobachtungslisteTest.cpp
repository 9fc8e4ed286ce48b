// The list of observations beside the open network: its state, and what the window shows of it.
#include <QCheckBox>
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QDockWidget>
#include <QFile>
#include <QFrame>
#include <QLabel>
#include <QTabBar>
#include <QTableView>
#include <cmath>

#include "model/ergebnisse/Listenordnung.h"
#include "tests/ui/Netzprobe.h"
#include "ui/ergebnisse/Ergebnisstand.h"

namespace zrw {
namespace {

/// The sample network with its tables in a folder of its own.
void LegeBeispielAn(const QString& ordner) {
    for (const auto& datei : std::filesystem::directory_iterator(ZRW_QUELLE "/beispiele")) {
        const auto endung = datei.path().extension();
        if (endung == ".DB" || endung == ".EIN" || endung == ".KF" || endung == ".SF")
            std::filesystem::copy(datei.path(), ordner.toStdString());
    }
}

TEST(Ergebnisstand, LiestNeuWasSichAendertUndVergisstFremdes) {
    const QTemporaryDir ordner;
    LegeBeispielAn(ordner.path());
    const Systemdateien dateien;
    TDM daten(dateien);
    daten.SetzeOrdner(ordner.path().toStdString());
    Ergebnisstand stand(daten);
    EXPECT_TRUE(stand.Liste()->zeilen.empty()) << "without a network";
    int gemeldet = 0;
    stand.BeiAenderung(stand, [&] { ++gemeldet; });
    stand.OrdnerGewaehlt();
    const auto liste = stand.Liste();
    EXPECT_EQ(liste->zeilen.size(), 937U);
    EXPECT_EQ(stand.Liste(), liste) << "read once";
    ASSERT_TRUE(QTest::qWaitFor([&] { return gemeldet == 1; }));

    std::ofstream(ordner.filePath("STRTABLE.DB").toStdString()) << "halb";
    ASSERT_TRUE(QTest::qWaitFor([&] { return gemeldet == 2; })) << "somebody writes the file";
    const auto spaeter = stand.Liste();
    EXPECT_EQ(spaeter->Lage(Beobachtungstabelle::Strecken).zustand, Lesezustand::Unlesbar);
    EXPECT_EQ(spaeter->zeilen.size() + liste->Lage(Beobachtungstabelle::Strecken).Anzahl(), 937U);

    stand.VergissNetz();
    EXPECT_TRUE(stand.Liste()->zeilen.empty());
    daten.SetzeOrdner("");
    stand.OrdnerGewaehlt();
    EXPECT_TRUE(stand.Liste()->zeilen.empty()) << "no tables there";
}

class Beobachtungsprobe : public Fensterprobe {
  protected:
    Beobachtungsprobe() {
        LegeBeispielAn(ordner.path());
        OeffneDatei("NETZ.EIN");
        QCoreApplication::processEvents();
    }
    void OeffneListe() const {
        Kind<QAction>("AktionSeitenLeiste").trigger();
        Kind<QDockWidget>("SeitenLeiste").findChild<QTabBar*>()->setCurrentIndex(2);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] QTableView& Liste() const { return Kind<QTableView>("BeobachtungsTabelle"); }
    [[nodiscard]] QString Anzahl() const { return Kind<QLabel>("BeobachtungsAnzahl").text(); }
    [[nodiscard]] QString Zelle(int zeile, Listenspalte spalte) const {
        return Liste().model()->index(zeile, static_cast<int>(spalte)).data().toString();
    }
    [[nodiscard]] QString Enden(int zeile) const {
        return Zelle(zeile, Listenspalte::Von) + " → " + Zelle(zeile, Listenspalte::Nach);
    }
    [[nodiscard]] QStringList Gewaehlte() const {
        QStringList zeilen;
        for (const QModelIndex& z : Liste().selectionModel()->selectedRows())
            zeilen << Enden(z.row());
        return zeilen;
    }
    [[nodiscard]] QPoint Ort(int zeile, Listenspalte spalte) const {
        const std::string nummer = Zelle(zeile, spalte).toStdString();
        return Pixel(*fenster.Netz(), *fenster.Netz()->FindPunkt(nummer));
    }
};

TEST_F(Beobachtungsprobe, SagtBeimOeffnenWieVieleEsSind) {
    EXPECT_TRUE(Status().startsWith("11 grobe Fehler markiert (F4 zeigt den ersten); NETZ.EIN: "))
        << Status().toStdString();
    auto& hinweis = Kind<QFrame>("FehlerHinweis");
    EXPECT_TRUE(hinweis.isVisible());
    EXPECT_EQ(hinweis.findChild<QLabel*>()->text(), Status()) << "stays until it is closed";
    Kind<QToolButton>("FehlerSchliessen").click();
    EXPECT_FALSE(hinweis.isVisible());
    LegeDateiAn("a.EIN", "$NT 3\n$FP A              1         1000         1000\n$$$\n");
    for (const char* tafel : {"STRTABLE.DB", "RTGTABLE.DB", "GPSTABLE.DB", "WGSTABLE.DB", "WGSYXTABLE.DB",
                              "MLTABLE.DB", "STRKTRTable.DB"})
        QFile::remove(ordner.filePath(tafel));
    LegeDateiAn("DHTABLE.DB", "halb");
    OeffneDatei("a.EIN");
    EXPECT_TRUE(Status().startsWith("nicht lesbar: DHTABLE.DB; a.EIN: ")) << Status().toStdString();
    QFile::remove(ordner.filePath("DHTABLE.DB"));
    OeffneDatei("a.EIN");
    EXPECT_TRUE(Status().startsWith("a.EIN: 1 Punkte")) << "as ever without tables";
    EXPECT_FALSE(hinweis.isVisible());
}

TEST_F(Beobachtungsprobe, SpaltenRelativerEllipsenKommenMitIhrerTabelle) {
    OeffneListe();
    EXPECT_EQ(Liste().model()->columnCount(), 14);
    ASSERT_EQ(Enden(0), "NB22 → NB01");
    const std::vector<std::vector<paradox::Wert>> zeilen{
        {std::int64_t{1}, "NB01", "NB22", 12.5, 4.0, 30.0, {}, {}}};
    ErzeugeTabelle(dateien, ordner.path().toStdString(), Tabelle::RelativeEllipsen, zeilen, 0);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Liste().model()->columnCount() == 17; }));
    EXPECT_EQ(Zelle(0, Listenspalte::RelA), "12.5");
    EXPECT_EQ(Liste().columnWidth(15), Liste().columnWidth(14)) << "as wide as their numbers";
}

TEST_F(Beobachtungsprobe, ListetOrdnetUndFiltert) {
    OeffneListe();
    EXPECT_EQ(Anzahl(), "937 von 937 Beobachtungen");
    const double groesste = std::fabs(Zelle(0, Listenspalte::TG).toDouble());
    EXPECT_GT(groesste, std::fabs(Zelle(1, Listenspalte::TG).toDouble()));
    Kind<QCheckBox>("NurMarkierte").click();
    EXPECT_EQ(Anzahl(), "11 von 937 Beobachtungen");
    for (int i = 0; i < 11; ++i)
        EXPECT_EQ(Zelle(i, Listenspalte::FF), "● FF");
    Kind<QCheckBox>("NurMarkierte").click();
    int gegen = 0;
    for (int i = 0; i < Liste().model()->rowCount(); ++i)
        gegen += Zelle(i, Listenspalte::Tabelle) == "GPS-Vektor ⇄" ? 1 : 0;
    EXPECT_EQ(gegen, 7) << "vectors against the direction of their lines";
    Kind<QCheckBox>("NurMarkierte").click();
    const QString punkt = Zelle(0, Listenspalte::Von);
    const QString enden = Enden(0);
    Kind<QCheckBox>("NurMarkierte").click();
    Kind<QCheckBox>("UeberGrenze").click();
    ASSERT_TRUE(Liste().model()->rowCount() > 0 && Liste().model()->rowCount() < 937);
    EXPECT_GT(std::fabs(Zelle(Liste().model()->rowCount() - 1, Listenspalte::TG).toDouble()), 3.28);
    Kind<QCheckBox>("UeberGrenze").click();
    Kind<QLineEdit>("FilterSuche").setText(punkt.left(3).toLower() + "*");
    ASSERT_TRUE(QTest::qWaitFor([&] { return Liste().model()->rowCount() < 937; }));
    EXPECT_EQ(Enden(0), enden) << "in any case of letters";
    Kind<QLineEdit>("FilterPunkt").setText("gibt es nicht");
    ASSERT_TRUE(QTest::qWaitFor([&] { return Anzahl() == "0 von 937 Beobachtungen"; }));
    Kind<QLineEdit>("FilterPunkt").clear();
    Kind<QLineEdit>("FilterSuche").clear();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Anzahl() == "937 von 937 Beobachtungen"; }));
    Liste().sortByColumn(static_cast<int>(Listenspalte::TG), Qt::AscendingOrder);
    EXPECT_LT(Zelle(0, Listenspalte::TG).toDouble(), groesste);
}

TEST_F(Beobachtungsprobe, BildUndListeWaehlenDasselbe) {
    OeffneListe();
    const QImage ohne = bild->grab().toImage();
    Liste().selectRow(0);
    EXPECT_EQ(Gewaehlte(), QStringList(Enden(0)));
    EXPECT_TRUE(Status().contains(Enden(0) + ", TG ")) << Status().toStdString();
    const QPoint von = Ort(0, Listenspalte::Von);
    const QPoint nach = Ort(0, Listenspalte::Nach);
    EXPECT_TRUE(bild->rect().contains(von) && bild->rect().contains(nach));
    EXPECT_GT((von - nach).manhattanLength(), bild->height() / 4) << "as large as fits";
    const QRgb hof = bild->grab().toImage().pixel((von + nach) / 2 + QPoint(5, 5));
    EXPECT_LT(qBlue(hof), 240) << "yellow beside the line";
    fenster.FruehereAnsichtClick();
    Taste(Qt::Key_Escape);
    EXPECT_TRUE(Gewaehlte().isEmpty());
    BewegeMaus({5, 5});
    EXPECT_EQ(bild->grab().toImage(), ohne) << "the halo has gone, the view is back";

    emit Liste().clicked(Liste().model()->index(0, 0));  // nothing is selected: nothing to show
    const QString punkt = Zelle(0, Listenspalte::Von);
    Klick(Ort(0, Listenspalte::Von));
    ASSERT_EQ(Status(), "Punkt " + punkt + " ausgewählt");
    EXPECT_GT(Gewaehlte().size(), 1);
    for (const QString& enden : Gewaehlte())
        EXPECT_TRUE(enden.split(" → ").contains(punkt)) << enden.toStdString();

    // Of a point that is not in the plan the status line tells.
    Modus("DelPunktButton");
    Klick(Ort(0, Listenspalte::Von));
    Liste().clearSelection();
    Liste().selectRow(0);
    EXPECT_TRUE(Status().endsWith("Punkt " + punkt + " ist nicht im Plan.")) << Status().toStdString();
}

TEST_F(Beobachtungsprobe, F4GehtVonFehlerZuFehler) {
    QStringList saetze;
    for (int i = 0; i < 11; ++i) {
        Taste(Qt::Key_F4);
        saetze << Status();
        EXPECT_TRUE(Status().startsWith(QString("%1 von 11: ").arg(i + 1))) << Status().toStdString();
    }
    const auto tg = [&](int i) {
        return std::fabs(saetze[i].section("TG ", 1).section(',', 0, 0).toDouble());
    };
    EXPECT_GE(tg(0), tg(1));
    EXPECT_GE(tg(1), tg(2));
    Taste(Qt::Key_F4);
    EXPECT_EQ(Status(), saetze.front()) << "round again";
    QTest::keyClick(bild, Qt::Key_F4, Qt::ShiftModifier);
    EXPECT_EQ(Status(), saetze.back());
    OeffneListe();
    Taste(Qt::Key_F4);
    ASSERT_EQ(Gewaehlte().size(), 1) << "the list follows";
    Liste().selectRow(Liste().selectionModel()->selectedRows().front().row() + 1);
    Taste(Qt::Key_F4);
    EXPECT_EQ(Status(), saetze[2]) << "on from the row that was chosen";
}

TEST_F(Beobachtungsprobe, FolgtDenDateien) {
    OeffneListe();
    const int vorher = Liste().model()->rowCount();
    LegeDateiAn("RTGTABLE.DB", "halb");
    ASSERT_TRUE(QTest::qWaitFor([&] { return Liste().model()->rowCount() < vorher; }));
    EXPECT_TRUE(Anzahl().contains("nicht lesbar:\nRTGTABLE.DB")) << Anzahl().toStdString();
    std::filesystem::copy(ZRW_QUELLE "/beispiele/RTGTABLE.DB", ordner.path().toStdString(),
                          std::filesystem::copy_options::overwrite_existing);
    ASSERT_TRUE(QTest::qWaitFor([&] { return Liste().model()->rowCount() == vorher; }));
    QDir(ordner.path()).mkdir("leer");
    LegeDateiAn("leer/a.EIN", "$NT 3\n$FP A              1         1000         1000\n$$$\n");
    dialoge.antwort = false;
    OeffneDatei("leer/a.EIN");
    QCoreApplication::processEvents();
    EXPECT_EQ(Liste().model()->rowCount(), 0) << "nothing of another folder";
}

TEST_F(Beobachtungsprobe, GibtZeilenWeiter) {
    Kind<QAction>("AktionBeobachtungsListe").trigger();
    auto& eigenes = Kind<QDialog>("BeobachtungsFenster");
    ASSERT_TRUE(eigenes.isVisible());
    auto& tabelle = *eigenes.findChild<QTableView*>("BeobachtungsTabelle");
    tabelle.selectRow(1);
    QTest::keyClick(&tabelle, Qt::Key_C, Qt::ControlModifier);
    const QString kopie = QGuiApplication::clipboard()->text();
    EXPECT_EQ(kopie.count('\t'), 13) << kopie.toStdString();
    EXPECT_EQ(kopie.count('\n'), 0);
    tabelle.actions()[1]->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text().count('\n'), 937);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains('\n' + kopie + '\n'));
    dialoge.datei = ordner.filePath("liste.csv");
    tabelle.findChild<QAction*>("ListeSpeichern")->trigger();
    EXPECT_EQ(dialoge.wahlen.back().vorschlag, "NETZ_beobachtungen.csv");
    QFile datei(*dialoge.datei);
    ASSERT_TRUE(datei.open(QIODevice::ReadOnly));
    EXPECT_EQ(datei.readAll().count('\n'), 938);
}

}  // namespace
}  // namespace zrw
