// Traps of the daily work: shortcuts in the middle of a drag, dialogs that outlive what they show, clicks
// that change nothing.
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

#include "tests/hilfe/Probenetz.h"
#include "tests/ui/Fenster.h"
#include "ui/dialoge/TFormHiddenPkt.h"

namespace zrw {
namespace {

class Bedienfallen : public Netzprobe {
  protected:
    /// Networks that no control file gives: picture files may hold them.
    void OeffneAlsBilddatei(Liste& l) {
        l.FindWorldMinMax();
        l.Weite = 800;
        l.Hoehe = 530;
        l.PasseEin();
        ByteSchreiber f;
        Netzangaben a;
        a.Netztyp = 3;
        l.Store(f, a);
        Lege("o.ZRW", std::string(f.Inhalt()));
        Oeffne("o.ZRW");
    }
};

TEST_F(Bedienfallen, SpeichernMittenImZiehen) {
    Modus("MovePktButton");
    const QStringList vorher = Figuren();
    dialoge.datei = ordner.filePath("x.ZRW");
    Druecke(A);
    QTest::mouseMove(bild, {200, 300});
    Knopf("SpeedButton9").click();  // Strg+S
    Lass({200, 300});
    dialoge.antwort = false;
    Oeffne("x.ZRW");
    EXPECT_EQ(Figuren().filter(QRegularExpression(" -$")), QStringList()) << "saved hidden for good";
}

TEST_F(Bedienfallen, WiederholenMittenImZiehen) {
    Modus("HidePktButton");
    Klick(B);
    const QStringList verborgen = Figuren();
    fenster.Rueckgaengig();
    Modus("MovePktButton");
    Druecke(A);
    QTest::mouseMove(bild, {200, 300});
    fenster.Wiederhole();
    QTest::keyClick(bild, Qt::Key_Escape);
    EXPECT_EQ(Aenderung(verborgen), QStringList());
}

TEST_F(Bedienfallen, LoeschenWiederholtMittenImZiehen) {
    const QStringList vorher = Figuren();
    Modus("DelPunktButton");
    Klick(A);
    fenster.Rueckgaengig();
    Modus("MovePktButton");
    Druecke(A);
    fenster.Wiederhole();
    Lass({200, 300});
    NimmAllesZurueck();
    EXPECT_EQ(Aenderung(vorher), QStringList());
}

TEST_F(Bedienfallen, EinfuegenZurueckMittenImZiehen) {
    Modus("PunktartButton");
    Finde("TFormPunktart", "CheckBoxNeuPkt").setChecked(true);
    Finde<QLineEdit>("TFormPunktart", "PktNummer").setText("Q");
    Finde<QLineEdit>("TFormPunktart", "PktY").setText("4000");
    Finde<QLineEdit>("TFormPunktart", "PktX").setText("1500");
    Finde("TFormPunktart", "DrawButton").click();
    ASSERT_NE(Punkt("Q"), nullptr);
    const QStringList mit = Figuren();
    Modus("MovePktButton");
    const QPoint q = Ort("Q");
    Druecke(q);
    fenster.Rueckgaengig();
    Lass(q + QPoint(30, 30));
    fenster.Wiederhole();
    EXPECT_EQ(Aenderung(mit), QStringList());
}

TEST_F(Bedienfallen, ExportMittenImZiehen) {
    Modus("MoveTextButton");
    const QString hier = QDir::currentPath();
    QDir::setCurrent(ordner.path());
    Knopf("SpeedButton16").click();
    QFile f(ordner.filePath("ZRW.PLT"));
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    const auto voll = f.readAll().count("LB ");
    f.close();
    Druecke(Textort("A"));
    QTest::mouseMove(bild, {200, 300});
    Knopf("SpeedButton16").click();
    Lass({200, 300});
    EXPECT_TRUE(f.open(QIODevice::ReadOnly));
    EXPECT_EQ(f.readAll().count("LB "), voll);
    QDir::setCurrent(hier);
}

TEST_F(Bedienfallen, LangeNummerWirdGekuerztStattAbgelehnt) {
    Modus("PunktartButton");
    Finde("TFormPunktart", "CheckBoxNeuPkt").setChecked(true);
    auto& nr = Finde<QLineEdit>("TFormPunktart", "PktNummer");
    QTest::keyClicks(&nr, "123456789012345");
    Finde<QLineEdit>("TFormPunktart", "PktY").setText("2500");
    Finde<QLineEdit>("TFormPunktart", "PktX").setText("1500");
    const QStringList vorher = Figuren();
    Finde("TFormPunktart", "DrawButton").click();
    EXPECT_EQ(dialoge.meldungen.size(), 1);
    EXPECT_EQ(Aenderung(vorher), QStringList());
}

TEST_F(Bedienfallen, ErsterPunktImLeerenNetz) {
    Lege("leer.EIN", "$NT 3\n");
    Oeffne("leer.EIN");
    dialoge.meldungen.clear();
    Modus("PunktartButton");
    Finde("TFormPunktart", "CheckBoxNeuPkt").setChecked(true);
    Finde<QLineEdit>("TFormPunktart", "PktNummer").setText("Q");
    Finde<QLineEdit>("TFormPunktart", "PktY").setText("3500000");
    Finde<QLineEdit>("TFormPunktart", "PktX").setText("5600000");
    Finde("TFormPunktart", "DrawButton").click();
    ASSERT_NE(Punkt("Q"), nullptr);
    QTest::keyClick(bild, Qt::Key_Home);
    QTest::qWait(200);
    EXPECT_GT(fenster.Netz()->Faktor, 0);
    EXPECT_TRUE(bild->rect().contains(Ort("Q"))) << Ort("Q").x() << " " << Ort("Q").y();
}

TEST_F(Bedienfallen, AllesZeigtVersetztenPunkt) {
    Modus("PunktartButton");
    Finde("TFormPunktart", "CheckBoxNeuPkt").setChecked(true);
    Finde<QLineEdit>("TFormPunktart", "PktNummer").setText("Q");
    Finde<QLineEdit>("TFormPunktart", "PktY").setText("50000");
    Finde<QLineEdit>("TFormPunktart", "PktX").setText("1500");
    Finde("TFormPunktart", "DrawButton").click();
    Knopf("SpeedButton3").click();
    EXPECT_TRUE(bild->rect().contains(Ort("Q"))) << Ort("Q").x() << " " << Ort("Q").y();
}

TEST_F(Bedienfallen, RueckgaengigMitVeraltetemDialog) {
    Modus("MovePktButton");
    Ziehe(A, A + QPoint(40, 0));
    Modus("PunktartButton");
    Klick(A + QPoint(40, 0));
    fenster.Rueckgaengig();
    EXPECT_EQ(Ort("A"), A);
    Finde("TFormPunktart", "RadioGroupPktArt1").click();
    Finde("TFormPunktart", "DrawButton").click();
    EXPECT_EQ(Ort("A"), A) << "only the kind was changed";
}

TEST_F(Bedienfallen, AnsichtZurueckAmAnschlag) {
    Modus("ZoomInButton");
    for (int i = 0; i < 60; ++i)
        Klick({400, 265});
    const double fein = fenster.Netz()->Faktor;
    ASSERT_TRUE(Status().contains("Weiter"));
    Klick({400, 265}, Qt::RightButton);
    EXPECT_GT(fenster.Netz()->Faktor, fein * 1.2);
}

TEST_F(Bedienfallen, HervorhebungFolgtDerAnsicht) {
    for (const char* wie : {"plus", "links", "mitte", "zurueck"}) {
        Oeffne("n.EIN");
        Modus("MovePktButton");
        Ziehe(A, A + QPoint(40, 0));
        QTest::mouseMove(bild, {400, 400});
        QTest::mouseMove(bild, A + QPoint(40, 0));
        if (wie == std::string("plus")) Knopf("ButtonGroesser").click();
        if (wie == std::string("links")) QTest::keyClick(bild, Qt::Key_Left);
        if (wie == std::string("zurueck")) fenster.Rueckgaengig();
        if (wie == std::string("mitte")) {
            Druecke({300, 300}, Qt::MiddleButton);
            Lass({350, 350}, Qt::MiddleButton);
        }
        const QImage gezeigt = bild->grab().toImage();
        QTest::mouseMove(bild, {795, 5});
        const QImage ohne = bild->grab().toImage();
        EXPECT_TRUE(gezeigt == ohne) << wie;
        dialoge.antwort = false;
    }
}

TEST_F(Bedienfallen, ZentrierteBleibenAusDenListen) {
    Modus("SpeedButton13");
    Waehle("GroupBox1", "ExzListBox", {"A"});
    Waehle("GroupBox1", "PZListBox", {"B"});
    Finde("GroupBox1", "OkButton").click();
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), (QStringList{"B", "C", "D", "E"}));
    Modus("DelPunktButton");
    Klick(E);
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), (QStringList{"B", "C", "D"}));
    fenster.Rueckgaengig();
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), (QStringList{"B", "C", "D", "E"}));
}

TEST_F(Bedienfallen, OffenerVersteckdialogFolgtDemNetz) {
    Knopf("SpeedButton14").click();
    Modus("DelPunktButton");
    Klick(A);
    EXPECT_FALSE(Eintraege("TFormHidePunkte", "ListBoxPkt").contains("A"));
    dialoge.antwort = false;
    Oeffne("a.EIN");
    EXPECT_EQ(Eintraege("TFormHidePunkte", "ListBoxPkt"), (QStringList{"A", "Z"}));
}

TEST_F(Bedienfallen, DoppeltVerborgenUndZurueck) {
    auto& v = *fenster.findChild<QDialog*>("TFormHiddenPkt");
    auto& vv = static_cast<TFormHiddenPkt&>(v);
    Knopf("SpeedButton14").click();
    for (int i = 0; i < 2; ++i) {
        Waehle("TFormHidePunkte", "ListBoxPkt", {"A"});
        Finde("TFormHidePunkte", "Button1").click();
    }
    EXPECT_EQ(vv.Nummern(), (QStringList{"A", "A"}));
    for (int i = 0; i < 2; ++i) {
        auto& l = Finde<QListView>("TFormHiddenPkt", "ListBox1");
        l.setCurrentIndex(l.model()->index(0, 0));
        Finde("TFormHiddenPkt", "UnhiddenButton").click();
    }
    EXPECT_TRUE(Punkt("A")->Item->Visible);
    fenster.Rueckgaengig();
    fenster.Rueckgaengig();
    EXPECT_EQ(vv.Nummern().count("A"), Punkt("A")->Item->Visible ? 0 : 1);
}

TEST_F(Bedienfallen, NeueBeobachtungGegenDieRichtungDerLinie) {
    Modus("EditBeobButton");
    Finde("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
    Finde("TFormBeobTyp", "RadioGroupRichtg1").click();
    const QStringList vorher = Figuren();
    Klick(B);
    Klick(A);
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ L B-A AR1 0", "- L A-B AR1 0"}));
}

TEST_F(Bedienfallen, NichtsGeaendertIstKeineAenderung) {
    Modus("PunktartButton");
    Klick(A);
    Finde("TFormPunktart", "RadioGroupPktArt0").click();
    Finde("TFormPunktart", "DrawButton").click();
    EXPECT_FALSE(fenster.Ungesichert()) << "Punktart";
    dialoge.antwort = false;
    Oeffne("n.EIN");
    Modus("EditBeobButton");
    Finde("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
    Finde("TFormBeobTyp", "RadioGroupRichtg1").click();
    Klick(A);
    Klick(B);
    EXPECT_FALSE(fenster.Ungesichert()) << "Beobachtung";
    Oeffne("n.EIN");
    Knopf("SpeedButton14").click();
    Waehle("TFormHidePunkte", "ListBoxPkt", {"A"});
    Finde("TFormHidePunkte", "Button1").click();
    dialoge.datei = ordner.filePath("x.ZRW");
    Knopf("SpeedButton9").click();
    EXPECT_FALSE(fenster.Ungesichert());
    Finde("TFormHidePunkte", "Button1").click();
    EXPECT_FALSE(fenster.Ungesichert()) << "Verstecken, was versteckt ist";
}

TEST_F(Bedienfallen, PunktOhneNummerLaesstSichVerstecken) {
    Probenetz n;
    n.P(1, 1000, 1000);
    n.P(2, 3000, 2000);
    n.T(8, "X");
    n.T(9, "Y");  // labels of points that do not exist
    n.K(1, 2);
    OeffneAlsBilddatei(n.l);
    ASSERT_EQ(dialoge.meldungen, QStringList());
    const zrw::Punkt& p = *fenster.Netz()->SuchPkt(1)->Item;
    Modus("HidePktButton");
    Klick({static_cast<int>(p.XO), static_cast<int>(p.YO)});
    EXPECT_FALSE(p.Visible);
}

TEST_F(Bedienfallen, ZweiPunkteEinerNummer) {
    Probenetz n;
    n.P(1, 1000, 1000);
    n.P(2, 3000, 2000);
    n.T(1, "X");
    n.T(2, "X");
    OeffneAlsBilddatei(n.l);
    for (const PunktIndex nr : {PunktIndex{1}, PunktIndex{2}}) {
        const zrw::Punkt& p = *fenster.Netz()->SuchPkt(nr)->Item;
        Modus("HidePktButton");
        Klick({static_cast<int>(p.XO), static_cast<int>(p.YO)});
        EXPECT_FALSE(p.Visible) << nr;
        fenster.Rueckgaengig();
    }
}

TEST_F(Bedienfallen, TastenSchnellHintereinander) {
    const double f = fenster.Netz()->Faktor;
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(bild, '+');
    QTest::qWait(400);
    EXPECT_NEAR(fenster.Netz()->Faktor, f * 8 / 27, f * 1e-9);
}

TEST_F(Bedienfallen, DoppelklickZentriertNichtAufSichSelbst) {
    Modus("ZentrierButton");
    const QStringList vorher = Figuren();
    Klick(A);
    QTest::mouseDClick(bild, Qt::LeftButton, {}, A);
    EXPECT_EQ(Aenderung(vorher), QStringList());
}

TEST_F(Bedienfallen, NummerVersteckenOhneGezeigteNummern) {
    fenster.findChild<QCheckBox*>("CheckBoxPktNr")->setChecked(false);
    const QStringList vorher = Figuren();
    Modus("HidePktNrButton");
    Klick(A);
    EXPECT_EQ(Aenderung(vorher), QStringList());
}

TEST_F(Bedienfallen, DialogGeschlossenLoestDenKnopf) {
    for (const auto& [knopf, name] :
         {std::pair{"EditBeobButton", "TFormBeobTyp"}, {"PunktartButton", "TFormPunktart"}}) {
        Modus(knopf);
        fenster.findChild<QDialog*>(name)->reject();
        EXPECT_TRUE(fenster.findChild<QDialog*>(name)->isVisible() == Knopf(knopf).isChecked()) << name;
        Knopf(knopf).setChecked(false);
    }
}

TEST_F(Bedienfallen, WerkzeugOhneNetzDannNetz) {
    TZrwMainDlg zweites{
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"}};
    zweites.show();
    for (const auto& [knopf, name] :
         {std::pair{"EditBeobButton", "TFormBeobTyp"}, {"PunktartButton", "TFormPunktart"}}) {
        zweites.findChild<QToolButton*>(knopf)->setChecked(true);
        zweites.Oeffne(ordner.filePath("n.EIN").toStdString());
        EXPECT_TRUE(zweites.findChild<QDialog*>(name)->isVisible()) << name;
    }
}

TEST_F(Bedienfallen, StatusBeimZiehenMitErstemPunkt) {
    Modus("ZentrierButton");
    Druecke(A);
    QTest::mouseMove(bild, A + QPoint(2, 2));
    EXPECT_EQ(Status(), "Exzentrum gewählt, bitte Zentrum wählen.");
    Lass(A + QPoint(2, 2));
}

TEST_F(Bedienfallen, SchriftBleibtWennDieDateiFehlt) {
    QFont s("Sans", 30);
    dialoge.schrift = s;
    Knopf("SpeedButton8").click();
    const QImage gross = fenster.Bild().copy();
    Oeffne("fehlt.EIN");
    Knopf("SpeedButton3").click();
    EXPECT_TRUE(fenster.Bild() == gross);
}

TEST_F(Bedienfallen, SpeichernMerktDenOrdner) {
    QDir(ordner.path()).mkdir("unter");
    dialoge.datei = ordner.filePath("unter/x.ZRW");
    Knopf("SpeedButton9").click();
    EXPECT_EQ(sitzung.Ordner(), ordner.filePath("unter"));
    EXPECT_EQ(sitzung.LetzteDateien().front(), ordner.filePath("unter/x.ZRW"));
}

TEST_F(Bedienfallen, ZentrumInDerNummernliste) {
    Modus("SpeedButton13");
    auto& l = Finde<QListView>("GroupBox1", "PZListBox");
    QTest::mouseClick(l.viewport(), Qt::LeftButton, {}, l.visualRect(l.model()->index(2, 0)).center());
    auto& c = *fenster.findChild<QComboBox*>("ComboBox1");
    EXPECT_EQ(c.currentText(), "C");
    EXPECT_EQ(c.currentIndex(), 2);
}

TEST_F(Bedienfallen, UndoEinerVerborgenenNummerImZiehen) {
    Modus("HidePktNrButton");
    Klick(Textort("A"));
    const QStringList ohne = Figuren();
    fenster.Rueckgaengig();
    Modus("MoveTextButton");
    Druecke(Textort("A"));
    fenster.Wiederhole();
    QTest::keyClick(bild, Qt::Key_Escape);
    EXPECT_EQ(Aenderung(ohne), QStringList());
}

TEST_F(Bedienfallen, GewaehltesExzentrumBleibtMarkiert) {
    const auto ring = [this] { return bild->grab().toImage().pixelColor(A + QPoint(9, 0)); };
    Modus("MovePktButton");
    Ziehe(E, E + QPoint(20, 20));
    Modus("ZentrierButton");
    Klick(A);
    QTest::mouseMove(bild, {600, 400});
    ASSERT_EQ(ring(), QColor(255, 165, 0));
    fenster.Rueckgaengig();
    EXPECT_EQ(ring(), QColor(255, 165, 0)) << "still chosen";
}
}  // namespace
}  // namespace zrw
