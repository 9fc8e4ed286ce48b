// Printing from the window: sheets, the output area, and that nothing of it stays in the picture.
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTimer>

#include "model/Cp1252.h"
#include "tests/ui/Fenster.h"
#include "ui/ablage/Blattablage.h"
#include "ui/druck/Druckvorschau.h"

namespace zrw {
namespace {

class Druckfenster : public Fensterprobe {
  protected:
    void Massstab(double wert) const {
        Kind<QLineEdit>("EditMasstab").setText(QString::number(wert, 'f', 6));
    }
    /// The sheet of 1200 x 900 dots, 0.0508 M by 0.0381 M metres, is so many pixels wide.
    void Blattbreite(double pixel) const { Massstab(fenster.Netz()->Faktor * pixel / 0.0508); }
    void DruckePlan() const { Knopf("SpeedButton5").click(); }
    static bool Leer(const QImage& blatt) {
        QImage weiss(blatt.size(), blatt.format());
        weiss.fill(Qt::white);
        return blatt == weiss;
    }
};

TEST_F(Druckfenster, DrucktMitTitelUndLaesstDasBildWieEsWar) {
    fenster.OeffneDatei(kBeispiel);
    Taste(Qt::Key_Left);  // the sheet begins in the picture's corner: symbols need room there
    Taste(Qt::Key_Up);
    einstellungen.ResMF = 0.1;
    for (const char* kasten : {"CheckBoxLgGen", "CheckBoxLGRes", "CheckBoxKMQ"})
        Kasten(kasten).click();
    const Stand vorher = Jetzt();
    drucker.angenommen = false;
    DruckePlan();
    EXPECT_TRUE(drucker.titel.isEmpty()) << "cancelled";
    drucker.angenommen = true;
    Massstab(2000000);
    DruckePlan();
    ASSERT_EQ(drucker.titel, QStringList("Zarwik NETZ.EIN"));
    EXPECT_TRUE(dialoge.fragen.isEmpty()) << "it fits one sheet";
    EXPECT_FALSE(Leer(drucker.blaetter.at(0)));
    drucker.kaputt = true;
    DruckePlan();
    EXPECT_EQ(dialoge.meldungen, QStringList("Papierstau."));
    EXPECT_TRUE(Jetzt() == vorher);
    Massstab(0);
    DruckePlan();
    EXPECT_EQ(drucker.titel.size(), 2) << "no job without a scale";
}

TEST_F(Druckfenster, MehrereBlaetterNurWoEtwasLiegt) {
    fenster.OeffneDatei(kBeispiel);
    const QImage vorher = fenster.Bild().copy();
    Blattbreite(100);
    // Sheets here are pictures, and in those the font system sets large letters by what sizes it has loaded
    // before, some by a pixel, whoever asks. After a preview all that this test needs are loaded.
    Knopf("VorschauButton").click();
    DruckePlan();
    EXPECT_EQ(dialoge.fragen.size(), 1);
    EXPECT_TRUE(drucker.titel.isEmpty()) << "cancelled at the question";
    dialoge.antwort = true;
    DruckePlan();
    const auto blaetter = drucker.blaetter;
    ASSERT_GT(blaetter.size(), 20);
    ASSERT_LT(blaetter.size(), 60) << "corners of the plot hold nothing";
    for (const QImage& b : blaetter)
        EXPECT_FALSE(Leer(b));
    for (int i = 0; i < 3; ++i)
        Taste(Qt::Key_Right);
    DruckePlan();
    EXPECT_EQ(drucker.blaetter, blaetter) << "wherever the picture stands";
    for (int i = 0; i < 3; ++i)
        Taste(Qt::Key_Left);
    dialoge.antwort = false;
    DruckePlan();
    EXPECT_EQ(drucker.blaetter.size(), 1) << "the sheet of the output area";
    Knopf("VorschauButton").click();
    EXPECT_EQ(drucker.blaetter, blaetter) << "the preview shows what would be printed";
    EXPECT_EQ(drucker.uebersicht.pixelColor(0, 0), QColor(Qt::white)) << "no sheet for the empty corner";
    EXPECT_EQ(drucker.uebersicht.pixelColor(0, 100), QColor(Qt::red)) << "edge of a sheet";
    EXPECT_EQ(fenster.Bild(), vorher);
    // What is changed in the preview is what is printed from it, without a question.
    drucker.inDerVorschau = [&](Vorschauplan& plan) {
        const QImage ganz = plan.Uebersicht();
        const auto alle = plan.Werk().blaetter;
        plan.SchalteBlatt(ganz.rect().center());
        EXPECT_EQ(plan.Werk().blaetter, alle - 1);
        EXPECT_NE(plan.Uebersicht(), ganz) << "crossed out";
        plan.SchalteBlatt(ganz.rect().center());
        EXPECT_EQ(plan.Werk().blaetter, alle);
        plan.VerschiebeBlaetter({9, 9});
        EXPECT_NE(plan.Uebersicht(), ganz);
        plan.SetzeMassstab("nichts");
        plan.SetzeMassstab("2000000");
        plan.VerschiebeBlaetter({1, 1});
    };
    const auto gefragt = dialoge.fragen.size();
    Knopf("VorschauButton").click();
    drucker.inDerVorschau = {};
    EXPECT_EQ(dialoge.fragen.size(), gefragt);
    EXPECT_EQ(Kind<QLineEdit>("EditMasstab").text(), "2000000");
    EXPECT_FALSE(Leer(drucker.blaetter.at(0)));
    // One sheet holds it all, but not the one in the corner: that one is asked about, too.
    Massstab(2000000);
    for (int i = 0; i < 20; ++i)
        Taste(Qt::Key_Left);
    const auto fragen = dialoge.fragen.size();
    DruckePlan();
    EXPECT_EQ(dialoge.fragen.size(), fragen + 1);
    EXPECT_TRUE(Leer(drucker.blaetter.at(0))) << "No: the sheet in the corner";
    dialoge.antwort = true;
    DruckePlan();
    ASSERT_EQ(drucker.blaetter.size(), 1);
    EXPECT_FALSE(Leer(drucker.blaetter.at(0)));
    dialoge.antwort = false;
    // Thousands of sheets are no offer.
    Massstab(10);
    DruckePlan();
    EXPECT_EQ(drucker.blaetter.size(), 1);
}

TEST_F(Druckfenster, AusgabebereichLiegtUeberDemBildUndImBitmap) {
    fenster.OeffneDatei(kBeispiel);
    const QImage ohne = fenster.Bild().copy();
    Blattbreite(400);
    Kasten("CheckBoxPreview").click();
    EXPECT_EQ(fenster.Bild(), ohne) << "the network's picture is left alone";
    for (const char* name : {"bild.bmp", "bild.png"}) {
        dialoge.datei = ordner.filePath(name);
        Knopf("SpeedButtonClipbrd").click();
        const QImage gespeichert(*dialoge.datei);
        ASSERT_EQ(gespeichert.size(), ohne.size()) << name;
        EXPECT_EQ(gespeichert.pixelColor(400, 3), QColor(Qt::red)) << name;
        EXPECT_EQ(gespeichert.pixelColor(3, 300), QColor(Qt::red)) << name;
        EXPECT_EQ(gespeichert.pixel(450, 320), ohne.pixel(450, 320)) << name;
    }
    dialoge.datei = ordner.path();  // a folder
    Knopf("SpeedButtonClipbrd").click();
    EXPECT_EQ(dialoge.meldungen.size(), 1);
}

TEST_F(Druckfenster, RahmenWirdGezogenUndBestimmtDasBlatt) {
    fenster.OeffneDatei(kBeispiel);
    Blattbreite(200);
    QCheckBox& kasten = Kasten("CheckBoxPreview");
    kasten.click();
    const auto rot = [this](QPoint ort) { return bild->grab().toImage().pixelColor(ort) == QColor(Qt::red); };
    const QPoint leer{bild->width() - 30, 40};  // beside the network
    dialoge.antwort = false;
    DruckePlan();
    const QImage ecke = drucker.blaetter.at(0);

    BewegeMaus({200, 60});
    EXPECT_EQ(bild->cursor().shape(), Qt::SizeAllCursor);
    DrueckeTaste({200, 60});
    BewegeMaus({300, 260});
    EXPECT_TRUE(rot({300, 260}));
    Taste(Qt::Key_Escape);
    EXPECT_TRUE(rot({200, 60})) << "put back";
    LassTasteLos({300, 260});
    ZieheMaus({200, 60}, {300, 260});
    EXPECT_TRUE(rot({300, 260}));
    DruckePlan();
    EXPECT_NE(drucker.blaetter.at(0), ecke) << "another part of the plot";

    // A legend within the frame stands there on the paper: here in its very corner.
    Liste& liste = const_cast<Liste&>(*fenster.Netz());
    liste.ShowLegende = true;
    liste.Legend->XO = 112;  // 12 px right of the frame of 200 px for 1200 dots
    liste.Legend->YO = 212;
    DruckePlan();
    EXPECT_EQ(drucker.blaetter.at(0).pixelColor(72 + 300, 72 - 12), QColor(Qt::black))
        << "upper edge of its box";
    liste.ShowLegende = false;

    // It stays at its place in the world: after panning by a key, a tenth of the picture, it has moved with
    // it.
    Taste(Qt::Key_Right);
    EXPECT_TRUE(rot({300 - bild->width() / 10, 260}));
    kasten.click();
    kasten.click();
    EXPECT_TRUE(rot({200, 60})) << "switched off and on it is in the corner again";
    EXPECT_FALSE(rot(leer));
}

/// The window with the printers of the system, which print into a file here.
TEST_F(Druckfenster, PdfHatMassstabTextUndNurDasBlatt) {
    const QString pdf = ordner.filePath("plan.pdf");
    Systemdrucker echter(dateien);
    echter.DruckeInDatei(pdf, QPageLayout(QPageSize(QPageSize::A3), QPageLayout::Landscape, {10, 10, 10, 10},
                                          QPageLayout::Millimeter));
    const Druckseite seite = echter.Seite();
    EXPECT_EQ(seite.aufloesung, 600);
    EXPECT_NEAR(seite.weite * 25.4 / seite.aufloesung, 400, 0.5) << "Qt rounds papers to points";
    EXPECT_NEAR(seite.hoehe * 25.4 / seite.aufloesung, 277, 0.5);
    fenster.OeffneDatei(kBeispiel);
    Liste& liste = const_cast<Liste&>(*fenster.Netz());
    const Welt ecke = liste.BildinWelt({});
    const auto drucke = [&](double massstab) {
        echter.DruckeBlaetter({"Zarwik Probe", Zeichenschrift(), 1, [&](Zeichenflaeche& blatt, int /*nr*/) {
                                   zrw::DruckePlan(liste.Vorlage(), {zustand, einstellungen, netz, uhr},
                                                   Geraetegroessen(einstellungen, Geraetefaktor(seite)),
                                                   blatt, {massstab, "100000", seite, ecke});
                               }});
    };
    drucke(100000);
    QProcess text;
    text.start("pdftotext", {"-bbox", pdf, "-"});
    if (!text.waitForStarted()) GTEST_SKIP() << "pdftotext is not installed";
    text.waitForFinished();
    const QString woerter = QString::fromUtf8(text.readAllStandardOutput());
    // Left edge and top of a point's number [mm], less the place of the point itself on the paper.
    const auto abstand = [&](const char* nummer) {
        const QRegularExpression wort(QString("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"[^>]*>%1<").arg(nummer));
        const auto t = wort.match(woerter);
        EXPECT_TRUE(t.hasMatch()) << nummer;
        const PunktKnoten& p = *liste.FindPunkt(Utf8NachCp1252(nummer));
        constexpr double kMm = 25.4 / 72;
        return QPointF(t.captured(1).toDouble() * kMm - 10 - (p.XWPu - ecke.rechts) / 100,
                       t.captured(2).toDouble() * kMm - 10 - (ecke.hoch - p.YWPu) / 100);
    };
    const QPointF erster = abstand("REF1");
    EXPECT_NEAR(erster.x(), 10 / 96.0 * 25.4, 0.2) << "10 px beside its point";
    for (const char* nummer : {"KÜHBG", "WOLFSB", "MÜHLR", "35562804000105"}) {
        const QPointF d = abstand(nummer) - erster;
        EXPECT_NEAR(d.x(), 0, 0.1) << nummer;
        EXPECT_NEAR(d.y(), 0, 0.1) << nummer;
    }

    // A folder in the way is told, a full disk leaves no file.
    echter.DruckeInDatei(ordner.path() + "/fehlt/plan.pdf", QPageLayout());
    EXPECT_THROW(drucke(100000), Fehler);
    Speicherdateien voll;
    voll.platz = 1000;
    Systemdrucker knapp(voll);
    knapp.DruckeInDatei("voll.pdf", QPageLayout());
    const auto strich = [](Zeichenflaeche& blatt, int /*nr*/) { blatt.Linie({0, 0}, {9, 9}); };
    EXPECT_THROW(knapp.DruckeBlaetter({"voll", Zeichenschrift(), 1, strich}), Fehler);
    EXPECT_TRUE(voll.dateien.empty());
}

TEST_F(Druckfenster, StricheAufDemPapierSindGanzUndSoLangWieImBild) {
    const QString pdf = ordner.filePath("striche.pdf");
    Systemdrucker echter(dateien);
    echter.DruckeInDatei(pdf, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {10, 10, 10, 10},
                                          QPageLayout::Millimeter));
    echter.DruckeBlaetter({"Striche", Zeichenschrift(), 1, [](Zeichenflaeche& blatt, int /*nr*/) {
                               blatt.SetzePinsel({kWeiss, true});
                               blatt.ZeichneRechteck({0, 0, 1500, 400});
                               blatt.SetzeStift({kSchwarz, 1, Strichart::Gestrichelt});
                               blatt.Linie({50, 200}, {1450, 200});
                           }});
    if (QProcess::execute("pdftoppm", {"-r", "600", "-mono", "-W", "2000", "-H", "800", "-singlefile", pdf,
                                       ordner.filePath("blatt")}) != 0)
        GTEST_SKIP() << "pdftoppm is not installed";
    const QImage blatt = QImage(ordner.filePath("blatt.pbm")).convertToFormat(QImage::Format_RGB32);
    // Lengths of the black and white runs in a row of the sheet [dots].
    const auto laeufe = [&](int zeile) {
        std::vector<int> laengen{0};
        for (int x = 1; x < blatt.width(); ++x) {
            if (blatt.pixel(x, zeile) != blatt.pixel(x - 1, zeile)) laengen.push_back(0);
            ++laengen.back();
        }
        return laengen;
    };
    constexpr int kRand = 233;  // Qt rounds margins to points
    EXPECT_GE(laeufe(kRand + 100).at(1), 4) << "frame along the edge";
    const auto striche = laeufe(kRand + 200);
    ASSERT_GT(striche.size(), 60U);
    EXPECT_NEAR(striche[9], 25, 2) << "4 px";
    EXPECT_NEAR(striche[10], 12.5, 2) << "2 px";
}

TEST_F(Druckfenster, VorschauMitDerTastatur) {
    fenster.OeffneDatei(kBeispiel);
    Blattbreite(300);
    int gesehen = 0;
    drucker.inDerVorschau = [&](Vorschauplan& plan) {
        QPrinter geraet;
        Druckvorschau vorschau(geraet, plan, &fenster);
        vorschau.show();
        auto& uebersicht = *vorschau.findChild<QLabel*>("Uebersicht");
        const auto taste = [&](Qt::Key t, Qt::KeyboardModifiers m = {}) {
            QTest::keyClick(&uebersicht, t, m);
        };
        const auto name = [&] { return uebersicht.accessibleName(); };
        const auto blaetter = plan.Blaetter();
        const auto anzahl = static_cast<int>(blaetter.size());
        const QString erster = name();
        EXPECT_EQ(uebersicht.focusPolicy(), Qt::StrongFocus);
        EXPECT_TRUE(erster.endsWith(QString("wird gedruckt, Blatt 1 von %1").arg(anzahl)))
            << erster.toStdString();
        taste(Qt::Key_Left);
        EXPECT_TRUE(name().endsWith(QString("Blatt %1 von %1").arg(anzahl))) << name().toStdString();
        taste(Qt::Key_Space);
        EXPECT_TRUE(name().endsWith("weggelassen")) << name().toStdString();
        EXPECT_EQ(plan.Werk().blaetter, anzahl - 1);
        taste(Qt::Key_Space);
        taste(Qt::Key_Right);
        EXPECT_EQ(name(), erster) << "round and round";
        for (const Qt::Key t : {Qt::Key_Down, Qt::Key_Up}) {
            int zeilen = 0;
            do {
                taste(t);
                ++zeilen;
            } while (!name().contains("Zeile 1,") && zeilen < 99);
            EXPECT_EQ(zeilen, blaetter.back().zeile - blaetter.front().zeile + 1);
        }
        const QImage ganz = plan.Uebersicht();
        taste(Qt::Key_Right, Qt::ShiftModifier);
        EXPECT_NE(plan.Uebersicht(), ganz) << "moved";
        ++gesehen;
    };
    Knopf("VorschauButton").click();
    drucker.inDerVorschau = {};
    EXPECT_EQ(gesehen, 1);
}

TEST_F(Druckfenster, BlattrahmenUndEingepassterMassstab) {
    fenster.OeffneDatei(kBeispiel);
    const auto fuelleAus = [](const auto& tun) {
        QTimer::singleShot(0, [&] {
            auto* dialog = static_cast<QDialog*>(QApplication::activeModalWidget());
            tun(*dialog);
            dialog->accept();
        });
    };
    const auto blaetter = [](const QDialog& d) { d.findChild<QSpinBox*>()->setValue(4); };
    fuelleAus(blaetter);
    fenster.MassstabEinpassenClick();
    EXPECT_EQ(Kind<QLineEdit>("EditMasstab").text(), "1000000");
    dialoge.antwort = true;
    DruckePlan();
    const auto ohne = drucker.blaetter;
    EXPECT_LE(ohne.size(), 4);
    const auto rahmen = [](const QDialog& d) {
        d.findChild<QCheckBox*>("RahmenEin")->setChecked(true);
        d.findChild<QLineEdit*>("BlattProjekt")->setText("Los 7");
    };
    fuelleAus(rahmen);
    fenster.BlattrahmenClick();
    EXPECT_TRUE(zustand.Blattrahmen);
    Blattgestaltung danach;
    LadeBlattgestaltung(danach, ablage);
    EXPECT_EQ(danach.texte.projekt, "Los 7");
    DruckePlan();  // hardly anything fits on this paper beside the title block
    EXPECT_NE(drucker.blaetter, ohne);
}

}  // namespace
}  // namespace zrw
