// Results in the window: the browser, marked observations and the overlays.
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>

#include "input/tabellen/Paradoxschreiber.h"
#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

using paradox::Wert;

class Ergebnisfenster : public Netzprobe {
  protected:
    Ergebnisfenster() {
        const auto strecke = [](std::int64_t id, std::string_view p1, std::string_view p2, double st,
                                bool ff) {
            std::vector<Wert> z(17);
            z[0] = id;
            z[1] = p1;
            z[2] = p2;
            z[3] = st;
            z[16] = ff;
            return z;
        };
        Tabelle(zrw::Tabelle::Strecken,
                {strecke(1, "C", "E", 1000.1235, true), strecke(2, "E", "C", 0.25, false),
                 strecke(3, "A", "C", 1414.2, false)});
        std::vector<Wert> gps(41);
        gps[0] = std::int64_t{1};
        gps[1] = "C";
        gps[2] = "E";
        gps[34] = 7.0;
        gps[35] = 8.4;
        gps[38] = true;
        Tabelle(zrw::Tabelle::Gps, {gps});
        std::vector<Wert> punkt(20);
        punkt[0] = std::int64_t{1};
        punkt[1] = "E";
        punkt[7] = 40.0;
        punkt[8] = 0.0;
        Tabelle(zrw::Tabelle::Koordinaten, {punkt});
        OeffneDatei("n.EIN");
    }
    void Tabelle(zrw::Tabelle t, const std::vector<std::vector<Wert>>& zeilen) {
        ErzeugeTabelle(dateien, ordner.path().toStdString(), t, zeilen, 0);
    }
    [[nodiscard]] bool Markiert(const char* von, const char* nach) const {
        const auto* kante = fenster.Netz()->FindKante(Punkt(von)->PNr, Punkt(nach)->PNr);
        return kante->Item->Farbe == einstellungen.GFCol;
    }
    [[nodiscard]] QDialog& Fenster() const { return Kind<QDialog>("TFormData"); }
    [[nodiscard]] QTableView& Gitter() const { return *Fenster().findChild<QTableView*>("DBGrid1"); }
    void Reiter(int i) const { Fenster().findChild<QTabBar*>("TabControl1")->setCurrentIndex(i); }
    [[nodiscard]] QString Zelle(int zeile, const char* titel) const {
        const auto* m = Gitter().model();
        for (int s = 0; s < m->columnCount(); ++s) {
            if (m->headerData(s, Qt::Horizontal) == QString(titel))
                return m->index(zeile, s).data().toString();
        }
        return "keine Spalte";
    }
};

TEST_F(Ergebnisfenster, ListetPunktUndLinieAufJedemReiter) {
    Knopf("DataButton").click();
    Klick(E);
    ASSERT_TRUE(Fenster().isVisible());
    EXPECT_EQ(Fenster().windowTitle(), "Abriss nach der Ausgleichung Punkt E");
    EXPECT_EQ(Zelle(0, "dY"), "40");
    EXPECT_EQ(Zelle(0, "Höhe"), "") << "null";
    Reiter(2);
    ASSERT_EQ(Gitter().model()->rowCount(), 2);
    EXPECT_EQ(Zelle(0, "ST"), "1000.124");
    EXPECT_EQ(Zelle(1, "ST"), ".250");
    EXPECT_EQ(Zelle(0, "FF"), "ja");
    Reiter(3);
    EXPECT_EQ(Gitter().model()->rowCount(), 0) << "there is no table of height differences";
    Klick((C + E) / 2);
    EXPECT_EQ(Fenster().windowTitle(), "Abriss nach der Ausgleichung P1= C  P2= E");
    Reiter(1);
    ASSERT_EQ(Gitter().model()->rowCount(), 1);
    EXPECT_EQ(Zelle(0, "NMFX"), "7");
    EXPECT_EQ(Zelle(0, "NMFY"), "NK") << "flagged as not controlled";
    EXPECT_EQ(Zelle(0, "NKY"), "ja");
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
}

TEST_F(Ergebnisfenster, SortiertKopiertUndZeigtDenAnderenEndpunkt) {
    Knopf("DataButton").click();
    Klick(E);
    Reiter(2);
    Gitter().sortByColumn(3, Qt::AscendingOrder);
    EXPECT_EQ(Zelle(0, "ST"), ".250") << "by value, not by text";
    Gitter().selectRow(0);
    QTest::keyClick(&Gitter(), Qt::Key_C, Qt::ControlModifier);
    const QString kopie = QGuiApplication::clipboard()->text();
    EXPECT_TRUE(kopie.startsWith("2\tE\tC\t.250\t")) << kopie.toStdString();
    EXPECT_EQ(kopie.count('\n'), 0);
    emit Gitter().doubleClicked(Gitter().model()->index(0, 0));
    EXPECT_EQ(Status(), "Punkt C");
    EXPECT_EQ(Gitter().model()->rowCount(), 2) << "the listing stays";
    EXPECT_EQ(Gitter().editTriggers(), QAbstractItemView::NoEditTriggers);
    Gitter().horizontalHeader()->resizeSection(3, 222);
    Reiter(0);
    Reiter(2);
    EXPECT_EQ(Gitter().columnWidth(3), 222) << "widths are remembered";
    // By field: the heading "vX" stands over two of them.
    Tabelle(zrw::Tabelle::GpsPunkte3D, {});
    Reiter(5);
    Gitter().horizontalHeader()->resizeSection(7, 123);
    Gitter().horizontalScrollBar()->setValue(20);
    Reiter(2);
    EXPECT_EQ(Gitter().horizontalScrollBar()->value(), 0) << "a tab begins at the left";
    Reiter(5);
    EXPECT_EQ(Gitter().columnWidth(7), 123);
    EXPECT_NE(Gitter().columnWidth(34), 123);
}

TEST_F(Ergebnisfenster, ReiterZeigenWasSieHaben) {
    std::vector<Wert> pruefung(9);
    pruefung[0] = std::int64_t{1};
    pruefung[1] = "A";
    pruefung[2] = "C";
    pruefung[8] = true;
    Tabelle(zrw::Tabelle::Linien, {pruefung});
    OeffneDatei("n.EIN");
    Knopf("DataButton").click();
    auto& reiter = *Fenster().findChild<QTabBar*>("TabControl1");
    Klick((C + E) / 2);
    EXPECT_EQ(reiter.accessibleTabName(2), "Strecken, 2 Zeilen, davon 1 als grob falsch bezeichnet");
    EXPECT_FALSE(reiter.tabIcon(2).isNull());
    EXPECT_TRUE(reiter.tabIcon(1).isNull());
    EXPECT_EQ(reiter.accessibleTabName(7), "Linienprüfungen, keine Zeilen");
    EXPECT_NE(reiter.tabTextColor(7), reiter.tabTextColor(2));
    EXPECT_EQ(reiter.currentIndex(), 0) << "stays, unless somebody wants another";
    EXPECT_TRUE(Kind<QLabel>("AngabenZeile").text().endsWith("bezeichnet: Strecken"));
    Klick((A + C) / 2);
    EXPECT_TRUE(Kind<QLabel>("AngabenZeile").text().endsWith("bezeichnet: Linienprüfungen"));
    Knopf("ColorButton").click();
    Kind<QCheckBox>("CheckBoxAuffaellig").click();
    Klick((C + E) / 2);
    EXPECT_EQ(reiter.currentIndex(), 2);
    Reiter(0);
    Klick((C + E) / 2);
    EXPECT_EQ(reiter.currentIndex(), 0) << "whoever goes back stays there";
    Klick((A + C) / 2);
    EXPECT_EQ(reiter.currentIndex(), 7);
    ASSERT_EQ(Gitter().model()->rowCount(), 1);
    emit Gitter().doubleClicked(Gitter().model()->index(0, 0));
    EXPECT_EQ(Status(), "Punkt C") << "its other end";
    Klick(E);
    EXPECT_TRUE(Kind<QLabel>("AngabenZeile").text().startsWith("Neupunkt   Näherung: Rechtswert 3000.000"));
    OeffneDatei("a.EIN");
    EXPECT_EQ(reiter.accessibleTabName(2), "");
}

TEST_F(Ergebnisfenster, EinVektorInDerGegenrichtung) {
    std::vector<Wert> gps(41);
    gps[0] = std::int64_t{1};
    gps[1] = "E";
    gps[2] = "C";
    gps[5] = 12.5;
    Tabelle(zrw::Tabelle::Gps, {gps});
    Knopf("DataButton").click();
    Reiter(1);
    Klick((C + E) / 2);
    EXPECT_EQ(Gitter().model()->rowCount(), 0) << "the window lists one direction";
    EXPECT_TRUE(Fenster()
                    .findChild<QLabel*>("ErgebnisHinweis")
                    ->text()
                    .contains("von E nach C, gibt es einen Vektor"));
    Knopf("DataButton").click();
    Kind<QAction>("AktionSeitenLeiste").trigger();
    Klick((C + E) / 2);
    Kind<QTabBar>("ErgebnisReiter").setCurrentIndex(1);
    const auto& modell = *Kind<QTableView>("ErgebnisGitter").model();
    ASSERT_EQ(modell.rowCount(), 1);
    EXPECT_EQ(modell.index(0, 3).data().toString(), "Gegenrichtung");
    EXPECT_EQ(modell.index(0, 6).data().toString(), "12.500") << "the formats follow their columns";
}

TEST_F(Ergebnisfenster, ErsteSpaltenBleibenStehen) {
    Knopf("DataButton").click();
    Klick(E);
    Reiter(2);
    Fenster().resize(600, 300);
    auto& feste = *Gitter().findChild<QTableView*>("FesteSpalten");
    EXPECT_FALSE(feste.isVisible()) << "nothing is scrolled";
    Gitter().horizontalScrollBar()->setValue(150);
    ASSERT_TRUE(feste.isVisible());
    EXPECT_FALSE(feste.isColumnHidden(2));
    EXPECT_TRUE(feste.isColumnHidden(3));
    feste.horizontalHeader()->resizeSection(1, 77);
    EXPECT_EQ(Gitter().columnWidth(1), 77);
    Gitter().setColumnWidth(2, 66);
    EXPECT_EQ(feste.columnWidth(2), 66);
    EXPECT_EQ(feste.width(), Gitter().columnWidth(0) + 77 + 66);
    feste.selectRow(1);
    EXPECT_TRUE(Gitter().selectionModel()->isRowSelected(1)) << "one selection";
    emit feste.horizontalHeader()->sectionClicked(0);
    emit feste.horizontalHeader()->sectionClicked(0);
    EXPECT_EQ(Zelle(0, "ID"), "2") << "downwards";
    EXPECT_EQ(feste.horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    Gitter().setCurrentIndex(Gitter().model()->index(0, 8));
    Gitter().setCurrentIndex(Gitter().model()->index(0, 3));
    EXPECT_GE(Gitter().columnViewportPosition(3), feste.isVisible() ? feste.width() : 0) << "not beneath";
    Reiter(0);
    EXPECT_FALSE(feste.isVisible());
}

TEST_F(Ergebnisfenster, NieFremdeZeilenUnterEinemTitel) {
    Knopf("DataButton").click();
    Klick(E);
    Reiter(2);
    ASSERT_EQ(Gitter().model()->rowCount(), 2);
    // Damaged after it was read: the old rows answer, those of the right point.
    LegeDateiAn("STRTABLE.DB", "halb");
    Klick(A);
    QCoreApplication::processEvents();
    EXPECT_EQ(Fenster().windowTitle(), "Abriss nach der Ausgleichung Punkt A");
    ASSERT_EQ(Gitter().model()->rowCount(), 1);
    EXPECT_EQ(Zelle(0, "P1"), "A");
    EXPECT_EQ(dialoge.meldungen.size(), 1) << "told once";
    Klick(E);
    EXPECT_EQ(Gitter().model()->rowCount(), 2) << "the click after the message counts";
    // Damaged before it was ever read: nothing is listed.
    LegeDateiAn("DHTABLE.DB", "halb");
    Reiter(3);
    EXPECT_EQ(Gitter().model()->rowCount(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(dialoge.meldungen.size(), 1) << "told below the grid";
    // More fields than the next table of this tab has, and a sorting that is not to come back.
    Reiter(0);
    Gitter().sortByColumn(1, Qt::DescendingOrder);
    Gitter().horizontalHeader()->resizeSection(1, 333);
    const std::vector<paradox::Feld> felder{{"ID", paradox::Feldtyp::Lang, 4},
                                            {"PKT", paradox::Feldtyp::Alpha, 14}};
    const auto paar =
        paradox::SchreibeTabelle("KOO", felder, std::vector<std::vector<Wert>>{{std::int64_t{1}, "E"}}, 0);
    LegeDateiAn("KooTABLE.DB", paar.db);
    Klick(E);
    ASSERT_EQ(Gitter().model()->rowCount(), 1);
    EXPECT_EQ(Gitter().columnWidth(1), 333);
    EXPECT_EQ(Gitter().horizontalHeader()->sortIndicatorSection(), -1);
    // A number of the table that is no longer in the plot.
    Reiter(2);
    Modus("DelPunktButton");
    Klick(C);  // D lies there, too
    Klick(C);
    Knopf("DataButton").click();
    Klick(E);
    emit Gitter().doubleClicked(Gitter().model()->index(0, 0));
    EXPECT_EQ(Status(), "Punkt C ist nicht im Plan.");
}

TEST_F(Ergebnisfenster, DieWahlEinerNummerListetUndDieMausVerbirgt) {
    auto& nummern = Kind<QComboBox>("ComboBox1");
    emit nummern.textActivated("E");
    EXPECT_TRUE(Fenster().isVisible());
    BewegeMaus({30, 30});
    EXPECT_FALSE(Fenster().isVisible());
    for (const char* tafel : {"KooTABLE.DB", "STRTABLE.DB", "GPSTABLE.DB"})
        QFile::remove(ordner.filePath(tafel));
    emit nummern.textActivated("E");
    EXPECT_FALSE(Fenster().isVisible()) << "nothing to list";
}

TEST_F(Ergebnisfenster, MarkiertUndZeichnetUeberDasNetz) {
    EXPECT_TRUE(Markiert("C", "E"));
    EXPECT_FALSE(Markiert("A", "C"));
    EXPECT_FALSE(fenster.isWindowModified());
    const QImage ohne = fenster.Bild().copy();
    QCheckBox& kasten = Kasten("CheckBoxLGRes");
    kasten.click();
    EXPECT_EQ(fenster.Bild().pixelColor(E.x() + 30, E.y()), QColor(Qt::red)) << "40 mm to the right";
    zustand.Geraetefaktor = 0.16;  // as a print leaves it
    Knopf("ButtonGroesser").click();
    Knopf("ButtonKleiner").click();
    EXPECT_EQ(fenster.Bild().pixelColor(E.x() + 30, E.y()), QColor(Qt::red));
    kasten.click();
    EXPECT_EQ(fenster.Bild(), ohne);

    // The other program rewrites the table: told once, outside the drawing.
    kasten.click();
    LegeDateiAn("KooTABLE.DB", "halb");
    Knopf("SpeedButton3").click();
    Knopf("SpeedButton3").click();
    QCoreApplication::processEvents();
    ASSERT_EQ(dialoge.meldungen.size(), 1);
    EXPECT_TRUE(dialoge.meldungen[0].contains("KooTABLE.DB"));
}

TEST_F(Ergebnisfenster, WieGrossUndWieGezeichnetWird) {
    const auto feld = [this](const char* name) -> QLineEdit& {
        return FindeTeil<QLineEdit>("ResiduenDialog", name);
    };
    const auto tippe = [&](const char* name, const char* text) {
        feld(name).setText(text);
        emit feld(name).editingFinished();
    };
    const auto hinweis = [this] { return FindeTeil<QLabel>("ResiduenDialog", "GroessenHinweis").text(); };
    std::vector<Wert> punkt(20);
    punkt[0] = std::int64_t{1};
    punkt[1] = "E";
    punkt[15] = 10.0;
    punkt[16] = 8.0;
    punkt[17] = 0.0;
    Tabelle(zrw::Tabelle::Koordinaten, {punkt});
    fenster.ErgebnisMassstabClick();
    FindeTeil("ResiduenDialog", "AnpassenKnopf").click();
    EXPECT_TRUE(hinweis().startsWith("Dazu muss etwas"));
    Kasten("CheckBoxLgGen").click();
    const QPoint ort = E + QPoint(12, 5);
    const auto farbe = [&] { return fenster.Bild().pixelColor(ort); };
    EXPECT_EQ(farbe(), QColor(Qt::white));
    FindeTeil("ResiduenDialog", "AnpassenKnopf").click();
    EXPECT_EQ(feld("ResiduenFeld").text(), "5") << "50 of 800 pixels";
    EXPECT_EQ(einstellungen.ResMF, 5.0);
    Kind<QAction>("AktionCheckBoxEllipsenGefuellt").trigger();
    EXPECT_NE(farbe(), QColor(Qt::white)) << "shines through";
    EXPECT_GT(farbe().lightness(), 200);
    tippe("ResiduenFeld", "500");
    EXPECT_TRUE(hinweis().contains("zu groß"));
    tippe("ResiduenFeld", "5,5");
    EXPECT_TRUE(hinweis().contains("keine Zahl"));
    EXPECT_EQ(einstellungen.ResMF, 500.0) << "stays";
    FindeTeil<QCheckBox>("ResiduenDialog", "EllipsenEigen").click();
    tippe("ResiduenFeld", "1");
    tippe("EllipsenFeld", "0.1");
    EXPECT_EQ(fenster.Netz()->Ellipsenmassstab, 0.1);
    EXPECT_TRUE(hinweis().contains("Maßstab der Fehlerellipsen ist zu klein"));
    tippe("EllipsenFeld", "-1");
    EXPECT_EQ(fenster.Netz()->Ellipsenmassstab, 0.1);
    tippe("EllipsenFeld", "2");
    Kind<QDialog>("ResiduenDialog").close();
    OeffneDatei("a.EIN");
    EXPECT_EQ(fenster.Netz()->Ellipsenmassstab, 2.0) << "for every network";
    EXPECT_TRUE(fenster.Netz()->EllipsenGefuellt);
    const TZrwMainDlg spaeter(
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"});
    EXPECT_TRUE(spaeter.findChild<QAction*>("AktionCheckBoxEllipsenGefuellt")->isChecked()) << "remembered";
    EXPECT_EQ(ablage.werte["ResEllipsenMF"], "2");
}

TEST_F(Ergebnisfenster, RelativeEllipsenUndLangeNamen) {
    Tabelle(zrw::Tabelle::RelativeEllipsen, {{std::int64_t{1}, "E", "C", 52.5, 24.0, 30.0, Wert(), 3.0}});
    LegeDateiAn("n_namen.csv", "Neu;Alt\nE;Kirchturm Süd\nfremd;A\n");
    OeffneDatei("n.EIN");
    EXPECT_EQ(dialoge.meldungen, QStringList());
    const auto karte = [this](QPoint ort) {
        BewegeMaus({5, 5});
        BewegeMaus(ort);
        QTest::qWait(500);
        return Kind<QLabel>("SchwebeKarte").text();
    };
    const QString linie = karte((C + E) / 2);
    EXPECT_TRUE(linie.contains("relative Ellipse A") && linie.contains("52.5 mm") && !linie.contains("mS"));
    EXPECT_TRUE(karte(E).contains("Kirchturm Süd"));
    const auto suche = [this](const char* text) {
        auto& feld = Kind<QComboBox>("ComboBox1");
        feld.setEditText(text);
        QTest::keyClick(feld.lineEdit(), Qt::Key_Return);
        return feld.currentText();
    };
    EXPECT_EQ(suche("Kirchturm Süd"), "E") << "longer than a number";
    EXPECT_EQ(suche("A"), "A") << "the number comes before the name";
    const QImage vorher = fenster.Bild().copy();
    Kind<QAction>("AktionCheckBoxRelEllipsen").trigger();
    EXPECT_NE(fenster.Bild(), vorher);
    LegeDateiAn("n_namen.csv", "kaputt");
    OeffneDatei("n.EIN");
    EXPECT_TRUE(dialoge.meldungen.join(" ").contains("Die langen Punktnamen fehlen"));
    EXPECT_FALSE(karte(E).contains("Kirchturm"));
}

TEST_F(Ergebnisfenster, TabellenLiegenBeiDerDateiDieZuletztGeoeffnetOderGespeichertWurde) {
    QTemporaryDir anderswo;
    ablage.werte["TAVELIN"] = anderswo.path().toStdString();  // counts before anything is opened
    SpeichereDatei("plan.ZRW");
    EXPECT_TRUE(daten.Vorhanden("STRTable.DB"));
    EXPECT_FALSE(Status().contains("gesucht")) << "the same folder";
    OeffneDatei("plan.ZRW");
    EXPECT_TRUE(daten.Vorhanden("STRTable.DB"));
    EXPECT_TRUE(Markiert("C", "E")) << "the picture carries its marks";
    dialoge.datei = anderswo.filePath("plan.ZRW");
    Knopf("SpeedButton9").click();
    EXPECT_FALSE(daten.Vorhanden("STRTable.DB"));
    EXPECT_TRUE(Status().contains("werden jetzt dort gesucht"));
}

}  // namespace
}  // namespace zrw
