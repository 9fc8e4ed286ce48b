// The main window, driven by its buttons, the mouse and the keyboard.
#include <QDialog>
#include <QDir>
#include <QPushButton>
#include <QTimer>

#include "tests/ui/Fenster.h"

namespace zrw {
namespace {

class Hauptfenster : public Fensterprobe {
  protected:
    /// Picture position of the first point.
    QPoint Punkt() const { return Pixel(*fenster.Netz(), *fenster.Netz()->PunktKnoten); }
};

TEST_F(Hauptfenster, OhneNetzTutKeinHandlerEtwas) {
    EXPECT_EQ(fenster.windowTitle(), "Zarwik Ver. 1.2");
    for (QToolButton* knopf : fenster.findChildren<QToolButton*>())
        knopf->click();
    for (QCheckBox* kasten : fenster.findChildren<QCheckBox*>())
        kasten->toggle();
    Rad({100, 100}, 3);
    for (const auto taste : {Qt::LeftButton, Qt::MiddleButton, Qt::RightButton}) {
        DrueckeTaste({10, 10}, taste);
        BewegeMaus({20, 20});
        LassTasteLos({20, 20}, taste);
    }
    fenster.resize(300, 300);
    EXPECT_EQ(fenster.Netz(), nullptr);
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
}

TEST_F(Hauptfenster, OeffnetDasBeispielEingepasst) {
    fenster.OeffneDatei(kBeispiel);
    ASSERT_NE(fenster.Netz(), nullptr);
    EXPECT_TRUE(fenster.windowTitle().startsWith("Zarwik ") && fenster.windowTitle().endsWith("NETZ.EIN"));
    EXPECT_TRUE(Status().contains("165 Punkte")) << Status().toStdString();
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
    const Liste& l = *fenster.Netz();
    EXPECT_DOUBLE_EQ(l.Faktor, (l.MaxXW - l.MinXW) / (bild->height() - 30));
    EXPECT_TRUE(l.ShowFL) << "the window switches all kinds on";
    EXPECT_EQ(fenster.Bild().pixel(Punkt()), qRgb(255, 0, 0)) << "the newest point is a new point, filled";
}

TEST_F(Hauptfenster, FehlerLassenDasNetzStehen) {
    fenster.OeffneDatei(kBeispiel);
    const Liste* netzVorher = fenster.Netz();
    const QImage bildVorher = fenster.Bild().copy();
    const QString titel = fenster.windowTitle();

    OeffneDatei("fehlt.EIN");
    EXPECT_TRUE(dialoge.meldungen.isEmpty()) << "a control file that cannot be opened shows no box";
    EXPECT_TRUE(Status().contains("fehlt.EIN")) << Status().toStdString();
    LegeDateiAn("kaputt.EIN", "$NT 1\n$EL x\n");
    OeffneDatei("kaputt.EIN");
    ASSERT_EQ(dialoge.meldungen.size(), 1);
    EXPECT_TRUE(dialoge.meldungen[0].contains("kaputt.EIN, Zeile 2"));
    LegeDateiAn("kurz.zrw", std::string(90, '\1'));
    OeffneDatei("kurz.zrw");
    OeffneDatei("fehlt.zrw");
    LegeDateiAn("leer.EIN", "$NT 3\n");
    OeffneDatei("leer.EIN");
    EXPECT_EQ(dialoge.meldungen.size(), 4);
    EXPECT_FALSE(sitzung.LetzteDateien().front().endsWith("leer.EIN"));

    EXPECT_EQ(fenster.Netz(), netzVorher);
    EXPECT_EQ(fenster.Bild(), bildVorher);
    EXPECT_EQ(fenster.windowTitle(), titel);
    EXPECT_EQ(netz.Netztyp, 3);
}

TEST_F(Hauptfenster, OhneSpeicherBleibtAllesWieEsWar) {
    Speicherdateien enge;
    enge.dateien = {{"/n.EIN", "$NT 3\n$FP A              1 1 1\n"}, {"/klein.ZRW", ""}};
    TZrwMainDlg zweites(
        {einstellungen, ablage, netz, zustand, enge, uhr, daten, drucker, dialoge, sitzung, "1.2"});
    zweites.OeffneDatei("/n.EIN");
    const Liste* vorher = zweites.Netz();
    ASSERT_NE(vorher, nullptr);
    const QString titel = zweites.windowTitle();
    ablage.werte["Fang"] = "7";
    einstellungen.Fang = 9;
    enge.eng = true;
    for (const char* name : {"/n.EIN", "/klein.ZRW"}) {
        dialoge.meldungen.clear();
        zweites.OeffneDatei(name);
        ASSERT_EQ(dialoge.meldungen.size(), 1);
        EXPECT_TRUE(dialoge.meldungen[0].startsWith("Der Speicher reicht nicht.")) << name;
        EXPECT_EQ(zweites.Netz(), vorher);
        EXPECT_EQ(zweites.windowTitle(), titel);
        EXPECT_EQ(einstellungen.Fang, 9);
    }
}

TEST_F(Hauptfenster, VieleMeldungenInEinemFenster) {
    std::string inhalt = "$NT 1\n$FP";
    for (int i = 0; i < 25; ++i)
        inhalt += "    P" + std::to_string(i) + "            x\n";
    LegeDateiAn("n.EIN", inhalt);
    OeffneDatei("n.EIN");
    ASSERT_EQ(dialoge.meldungen.size(), 1);
    const QString& text = dialoge.meldungen[0];
    EXPECT_TRUE(text.contains("Lesefehler bei PunktP0\nn.EIN, Zeile 2: Punktcode \"x\" ist keine ganze Zahl"))
        << text.toStdString();
    EXPECT_TRUE(text.contains("PunktP11") && !text.contains("PunktP12")) << text.toStdString();
    EXPECT_TRUE(text.contains("insgesamt 26")) << text.toStdString();  // and one that there are no points
}

TEST_F(Hauptfenster, FehlendeKoordinatendateiBeendetDasProgrammNachDerFrage) {
    fenster.OeffneDatei(kBeispiel);
    LegeDateiAn("k.EIN", "$NT 1\n$FP A              1 1 1\n$KF fehlt.KF\n");
    OeffneDatei("k.EIN");
    EXPECT_EQ(dialoge.meldungen,
              QStringList{"Kann Datei fehlt.KF nicht öffnen!\nk.EIN, Zeile 3: nicht vorhanden"});
    EXPECT_EQ(dialoge.fragen, QStringList{"Zarwik speichern"});
    EXPECT_FALSE(fenster.isVisible());
}

TEST_F(Hauptfenster, RadHaeltDenPunktUnterDemZeiger) {
    fenster.OeffneDatei(kBeispiel);
    const QPoint ort = Punkt();
    const double faktor = fenster.Netz()->Faktor;
    Rad(ort, -3);
    EXPECT_NEAR(fenster.Netz()->Faktor, faktor * 8 / 27, faktor * 1e-9) << "down enlarges";
    EXPECT_LE((Punkt() - ort).manhattanLength(), 4);
    Rad(ort, 3);
    EXPECT_NEAR(fenster.Netz()->Faktor, faktor, faktor * 1e-9);
    Rad(ort, -100000);
    for (int i = 0; i < 20; ++i)
        Rad(ort, -10);
    EXPECT_GT(fenster.Netz()->Faktor, 9e-6) << "zooming ends before positions lose their digits";
    for (int i = 0; i < 20; ++i)
        Rad(ort, 10);
    EXPECT_GT(fenster.Netz()->Faktor, 1e5);
    EXPECT_LE(fenster.Netz()->Faktor, 1e6);
}

TEST_F(Hauptfenster, BildVerschieben) {
    for (const auto& [werkzeug, taste, weg] : {std::tuple(true, Qt::LeftButton, QPoint(60, -25)),
                                               {false, Qt::MiddleButton, {60, -25}},
                                               {false, Qt::LeftButton, {0, 0}}}) {
        fenster.OeffneDatei(kBeispiel);
        Knopf("PanButton").setChecked(werkzeug);
        const QPoint vorher = Punkt();
        DrueckeTaste({200, 200}, taste);
        BewegeMaus({230, 190});
        LassTasteLos({260, 175}, taste);
        EXPECT_EQ(Punkt() - vorher, weg) << werkzeug << " " << taste;
    }
}

TEST_F(Hauptfenster, StatuszeileZeigtWeltUndMassstab) {
    LegeDateiAn("n.EIN", "$NT 1\n$PF 1\n$FP A              1 5600000 3500000\n");
    OeffneDatei("n.EIN");
    BewegeMaus({100, 60});
    const Liste& l = *fenster.Netz();
    const double faktor = l.Faktor;
    EXPECT_EQ(Status(), QString("%1 %2  M=1:%3")
                            .arg(l.MinXW + 100 * faktor, 12, 'f', 2)
                            .arg(l.MaxYW - 60 * faktor, 12, 'f', 2)
                            .arg(faktor * 1000, 5, 'f', 0));
}

TEST_F(Hauptfenster, KaestenSchaltenDieDarstellung) {
    fenster.OeffneDatei(kBeispiel);
    const QImage alles = fenster.Bild().copy();
    for (const char* name : {"CheckBoxPktNr", "CheckBoxBeob", "CheckBoxFP", "CheckBoxFL", "CheckBoxFH",
                             "CheckBoxNP", "CheckBoxHilfspunkte", "CheckBoxALKKurz"}) {
        Kasten(name).toggle();
        EXPECT_NE(fenster.Bild(), alles) << name;
        Kasten(name).toggle();
        EXPECT_EQ(fenster.Bild(), alles) << name;
    }
}

TEST_F(Hauptfenster, SpeichernUndWiederLesen) {
    fenster.OeffneDatei(kBeispiel);
    const double faktor = fenster.Netz()->Faktor;
    SpeichereDatei("bild.ZRW");
    EXPECT_EQ(dialoge.wahlen.back().vorschlag, "NETZ");
    Kasten("CheckBoxBeob").setChecked(false);
    Knopf("SpeedButton2").click();
    EXPECT_EQ(dialoge.wahlen.back().titel, "Zarwikdatei lesen");
    EXPECT_EQ(fenster.Netz()->MaxKant, 417);
    EXPECT_EQ(fenster.Netz()->Faktor, faktor);
    EXPECT_TRUE(fenster.Netz()->ShowBeob) << "reading a picture file switches the observations on";
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
    SpeichereDatei("fehlt/bild.ZRW");
    EXPECT_EQ(dialoge.meldungen.size(), 1);
}

TEST_F(Hauptfenster, BeendenFragtUndHaeltWasSichNichtSpeichernLiess) {
    fenster.OeffneDatei(kBeispiel);
    dialoge.ja = true;
    dialoge.datei = ordner.filePath("fehlt/bild.ZRW");
    Knopf("SpeedButton7").click();
    EXPECT_TRUE(fenster.isVisible());
    dialoge.datei.reset();
    Knopf("SpeedButton7").click();
    EXPECT_FALSE(fenster.isVisible()) << "a cancelled save dialog ends the program all the same";
    EXPECT_EQ(dialoge.fragen, (QStringList{"Zarwik speichern", "Zarwik speichern"}));
}

TEST_F(Hauptfenster, GroesseAendernPasstDieListeAn) {
    fenster.OeffneDatei(kBeispiel);
    fenster.resize(800, 500);
    QCoreApplication::processEvents();
    EXPECT_EQ(fenster.Netz()->Weite, bild->width());
    EXPECT_EQ(fenster.Netz()->Hoehe, bild->height());
    EXPECT_EQ(fenster.Bild().size(), bild->size());
}

/// Runs the window in a folder of its own: the export writes where the program stands.
class Exportfenster : public Hauptfenster {
  protected:
    Exportfenster() { QDir::setCurrent(ordner.path()); }
    ~Exportfenster() override { QDir::setCurrent(vorher_); }

    QLineEdit& Feld() const { return Kind<QLineEdit>("EditMasstab"); }
    void TippeText(const char* text) const {
        Feld().selectAll();
        QTest::keyClicks(&Feld(), text);
    }
    [[nodiscard]] QByteArray Inhalt(const QString& name) const {
        QFile f(ordner.filePath(name));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("fehlt");
    }

  private:
    QString vorher_ = QDir::currentPath();
};

TEST_F(Exportfenster, SchreibtBeideDateienUndAendertNichts) {
    fenster.OeffneDatei(kBeispiel);
    const Stand vorher = Jetzt();
    Knopf("SpeedButton16").click();
    EXPECT_EQ(dialoge.gesagt,
              QStringList{"Dateien ZRW.DXF (DXF-Format) und ZRP.PLT (HPGL/2-Format) erzeugt."});
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
    const QByteArray plot = Inhalt("ZRW.PLT");
    EXPECT_EQ(plot.count("CI 4"), Inhalt("ZRW.DXF").count("CIRCLE"));
    EXPECT_EQ(plot.count("LB "), 165);
    EXPECT_TRUE(Jetzt() == vorher);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    // Another scale, another plot; the same drawing but for rounding.
    Feld().setText("50000");
    Knopf("SpeedButton16").click();
    EXPECT_NE(Inhalt("ZRW.PLT"), plot);
    QFile::remove(ordner.filePath("ZRW.DXF"));
    QDir(ordner.path()).mkdir("ZRW.DXF");  // a folder in the way
    Knopf("SpeedButton16").click();
    ASSERT_EQ(dialoge.meldungen.size(), 1);
    EXPECT_TRUE(dialoge.meldungen[0].startsWith("ZRW.DXF: Kann Datei nicht schreiben"));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(zustand.ExportActive);
}

TEST_F(Exportfenster, MassstabfeldNimmtNurPositiveZahlen) {
    fenster.OeffneDatei(kBeispiel);
    EXPECT_EQ(Feld().text(), "25000");
    TippeText("-a1,e5.0 0:0");
    EXPECT_EQ(Feld().text(), "15.000");
    TippeText("0");
    Knopf("SpeedButton16").click();
    EXPECT_EQ(dialoge.meldungen, QStringList{"Der Druckmaßstab muss eine Zahl größer als 0 sein."});
    EXPECT_EQ(Inhalt("ZRW.PLT"), "fehlt");
    QTest::keyClick(&Feld(), Qt::Key_Return);
    EXPECT_EQ(Feld().text(), "25000") << "what is no scale does not stay in the field";
    TippeText("500\r");
    Feld().clear();
    QTest::keyClick(&Feld(), Qt::Key_Return);
    EXPECT_EQ(Feld().text(), "500");
}

TEST_F(Exportfenster, LegendeMitTextenUndMassstab) {
    fenster.OeffneDatei(kBeispiel);
    const QImage ohne = fenster.Bild().copy();
    auto& dialog = Kind<QDialog>("TZRWLBLForm");
    auto& kasten = *dialog.findChild<QCheckBox*>("CheckBox1");
    const auto bearbeite = [&](const auto& tun) {
        QTimer::singleShot(0, &dialog, [&] {
            tun();
            dialog.findChild<QPushButton*>("Button1")->click();
        });
        Knopf("SpeedButton12").click();
    };
    bearbeite([&] {
        EXPECT_FALSE(kasten.isChecked());
        kasten.setChecked(true);
        auto& erste = *dialog.findChild<QLineEdit*>("Edit1");
        EXPECT_EQ(erste.text(), "Netz Vogelsberg (frei erfunden)");
        erste.setText("Straße \u4e2d");
        dialog.findChild<QLineEdit*>("Edit2")->setText("Los 2");
    });
    const Legende& l = *fenster.Netz()->Legend;
    EXPECT_EQ(QString::fromLatin1(l.Bez1), "Straße ?");
    EXPECT_EQ(l.Bez2, "Los 2");
    EXPECT_EQ(l.Masstab, "25000");
    EXPECT_TRUE(fenster.Netz()->ShowLegende && l.Visible);
    EXPECT_EQ(l.Zeit, "21.11.2026 09:05:00");
    EXPECT_NE(fenster.Bild(), ohne);

    // Dragged by its corner while no tool is down; Escape puts it back.
    const QImage mit = fenster.Bild().copy();
    const double links = fenster.Netz()->XOffset;
    BewegeMaus({4, 5});
    EXPECT_EQ(bild->cursor().shape(), Qt::SizeAllCursor);
    DrueckeTaste({4, 5});
    EXPECT_TRUE(l.Move);
    BewegeMaus({104, 205});
    EXPECT_EQ(fenster.Bild(), ohne) << "no traces of the legend on its way";
    EXPECT_EQ(bild->grab().toImage().pixelColor(130, 200), QColor(Qt::black)) << "its frame, as a preview";
    Taste(Qt::Key_Escape);
    EXPECT_EQ(l.Position(), (Bildpunkt{2, 2}));
    EXPECT_EQ(fenster.Bild(), mit);
    LassTasteLos({104, 205});
    DrueckeTaste({4, 5});
    LassTasteLos({104, 205});
    EXPECT_EQ(l.Position(), (Bildpunkt{102, 202}));
    EXPECT_FALSE(l.Move);
    Knopf("PanButton").setChecked(true);
    DrueckeTaste({102, 202});
    EXPECT_FALSE(l.Move) << "the tool has the mouse";
    LassTasteLos({102, 202});
    EXPECT_EQ(fenster.Netz()->XOffset, links) << "the view has not moved";

    // The export names the scale of the print in the next picture, and is not in the files.
    Feld().setText("5000");
    Knopf("SpeedButton16").click();
    EXPECT_EQ(l.Masstab, "5000");
    EXPECT_FALSE(Inhalt("ZRW.PLT").contains("Los 2") || Inhalt("ZRW.DXF").contains("Los 2"));
    bearbeite([&] { kasten.setChecked(false); });
    EXPECT_EQ(fenster.Bild(), ohne);
}

TEST_F(Hauptfenster, KartengitterNurFuerNetzeInDerKartenprojektion) {
    QCheckBox& tk25 = Kasten("CheckBoxGitter");
    tk25.click();
    EXPECT_FALSE(tk25.isChecked()) << "without a network";
    fenster.OeffneDatei(kBeispiel);
    const QImage ohne = fenster.Bild().copy();
    for (const char* name : {"CheckBoxGitter", "CheckBoxKMQ"}) {
        Kasten(name).click();
        EXPECT_NE(fenster.Bild(), ohne) << name;
        Kasten(name).click();
        EXPECT_EQ(fenster.Bild(), ohne) << name;
    }
    tk25.click();
    LegeDateiAn("n.EIN", "$NT 1\n$FP A              1 5600000 3500000\n");
    OeffneDatei("n.EIN");
    EXPECT_TRUE(tk25.isChecked()) << "the box stays";
    EXPECT_FALSE(fenster.Netz()->ShowGitter);
    Kasten("CheckBoxKMQ").click();
    EXPECT_FALSE(fenster.Netz()->ShowKMQ);
    EXPECT_TRUE(Status().contains("kein Kartengitter"));
    fenster.OeffneDatei(kBeispiel);
    EXPECT_TRUE(fenster.Netz()->ShowGitter);
    EXPECT_TRUE(Kasten("CheckBoxBlattschnitt").isHidden());
    LegeDateiAn("g.EIN",
                "$NT 7\n$EL 5\n$KS 9 1\n$FP A              1 3951726.0582 650661.4740 4947789.9729\n"
                "    B              1 3972637.1050 629203.9045 4933700.0494\n");
    OeffneDatei("g.EIN");
    EXPECT_TRUE(Status().contains("Blattschnitt in der Abbildung der Punkte")) << Status().toStdString();
    ASSERT_FALSE(Kasten("CheckBoxBlattschnitt").isHidden());
    const QImage daneben = fenster.Bild().copy();
    tk25.click();
    EXPECT_EQ(fenster.Bild(), daneben) << "no sheet lies under the network";
    tk25.click();
    Kasten("CheckBoxBlattschnitt").click();
    EXPECT_NE(fenster.Bild(), daneben);
}

}  // namespace
}  // namespace zrw
