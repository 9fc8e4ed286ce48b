// Traps of the daily work: shortcuts in the middle of a drag, dialogs that outlive what they show, clicks
// that change nothing.
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QRadioButton>
#include <QTimer>

#include "input/tabellen/Ergebnisabfragen.h"
#include "tests/hilfe/Probenetz.h"
#include "tests/ui/Netzprobe.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/ergebnisse/Spaltenhinweise.h"

namespace zrw {
namespace {

class Bedienfallen : public Netzprobe {
  protected:
    /// The modes that open a dialog.
    static constexpr std::pair<const char*, const char*> kDialoge[] = {{"EditBeobButton", "TFormBeobTyp"},
                                                                       {"PunktartButton", "TFormPunktart"}};

    void VersteckePunkt(const char* nummer) const {
        WaehleTexte("TFormHidePunkte", "ListBoxPkt", {nummer});
        FindeTeil("TFormHidePunkte", "Button1").click();
    }
    void NeueBeobachtung(QPoint von, QPoint nach) const {
        Modus("EditBeobButton");
        FindeTeil("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
        FindeTeil("TFormBeobTyp", "RadioGroupRichtg1").click();
        Klick(von);
        Klick(nach);
    }
};

// Its window gets the release of the button.
TEST_F(Bedienfallen, EinDialogBeendetDasZiehen) {
    Modus("MovePktButton");
    const QStringList vorher = Figuren();
    const QImage bildVorher = fenster.Bild().copy();
    DrueckeTaste(A);
    BewegeMaus(A + QPoint(40, 20));
    QDialog dialog(&fenster);
    dialog.setModal(true);
    dialog.show();
    EXPECT_EQ(fenster.Bild(), bildVorher) << "the point is back";
    dialog.close();
    LassTasteLos(A + QPoint(60, 30));
    EXPECT_EQ(Aenderung(vorher), QStringList());
}

TEST_F(Bedienfallen, WiederholenMittenImZiehen) {
    const struct {
        const char* modus;  // whose click is undone, and done again while something else is dragged
        QPoint klick;
        const char* zug;
        QPoint druck;
    } faelle[] = {{"HidePktButton", B, "MovePktButton", A},
                  {"DelPunktButton", A, "MovePktButton", A},
                  {"HidePktNrButton", Textort("A"), "MoveTextButton", Textort("A")}};
    for (const auto& f : faelle) {
        for (const bool abbrechen : {true, false}) {
            SCOPED_TRACE(testing::Message() << f.modus << " " << abbrechen);
            Neu();
            const QStringList vorher = Figuren();
            Modus(f.modus);
            Klick(f.klick);
            const QStringList nachher = Figuren();
            fenster.Rueckgaengig();
            Modus(f.zug);
            DrueckeTaste(f.druck);
            BewegeMaus({200, 300});
            fenster.WiederholeSchritt();
            if (abbrechen) Taste(Qt::Key_Escape);
            LassTasteLos({200, 300});
            EXPECT_EQ(Aenderung(nachher), QStringList());
            NimmAllesZurueck();
            EXPECT_EQ(Aenderung(vorher), QStringList());
        }
    }
}

TEST_F(Bedienfallen, EinfuegenZurueckMittenImZiehen) {
    NeuerPunkt("Q", "4000", "1500");
    ASSERT_NE(Punkt("Q"), nullptr);
    const QStringList mit = Figuren();
    Modus("MovePktButton");
    const QPoint q = Ort("Q");
    DrueckeTaste(q);
    fenster.Rueckgaengig();
    LassTasteLos(q + QPoint(30, 30));
    fenster.WiederholeSchritt();
    EXPECT_EQ(Aenderung(mit), QStringList());
}

TEST_F(Bedienfallen, SpeichernMittenImZiehen) {
    Modus("MovePktButton");
    DrueckeTaste(A);
    BewegeMaus({200, 300});
    SpeichereDatei("x.ZRW");  // by its shortcut
    LassTasteLos({200, 300});
    dialoge.antwort = false;
    OeffneDatei("x.ZRW");
    for (const QString& figur : Figuren())
        EXPECT_FALSE(figur.endsWith(" -")) << figur.toStdString() << " is saved hidden for good";
}

TEST_F(Bedienfallen, ExportMittenImZiehen) {
    const QString hier = QDir::currentPath();
    QDir::setCurrent(ordner.path());
    const auto nummern = [this] {
        Knopf("SpeedButton16").click();
        QFile f("ZRW.PLT");
        return f.open(QIODevice::ReadOnly) ? f.readAll().count("LB ") : -1;
    };
    EXPECT_EQ(nummern(), 5);
    Modus("MoveTextButton");
    DrueckeTaste(Textort("A"));
    BewegeMaus({200, 300});
    EXPECT_EQ(nummern(), 5);
    QDir::setCurrent(hier);
}

TEST_F(Bedienfallen, NeuerPunktWeitWegIstZuZeigen) {
    LegeDateiAn("leer.ZRW", std::string(84, '\0'));
    for (const auto& [datei, rechts, hoch] :
         {std::tuple{"leer.ZRW", "3500000", "5600000"}, {"n.EIN", "50000", "1500"}}) {
        SCOPED_TRACE(datei);
        dialoge.antwort = false;
        OeffneDatei(datei);
        NeuerPunkt("Q", rechts, hoch);
        ASSERT_NE(Punkt("Q"), nullptr);
        Knopf("SpeedButton3").click();
        EXPECT_GT(fenster.Netz()->Faktor, 0);
        EXPECT_TRUE(bild->rect().contains(Ort("Q")));
    }
}

TEST_F(Bedienfallen, RueckgaengigMitVeraltetemDialog) {
    Modus("MovePktButton");
    ZieheMaus(A, A + QPoint(40, 0));
    Modus("PunktartButton");
    Klick(A + QPoint(40, 0));
    fenster.Rueckgaengig();
    EXPECT_EQ(Ort("A"), A);
    FindeTeil("TFormPunktart", "RadioGroupPktArt1").click();
    FindeTeil("TFormPunktart", "DrawButton").click();
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
    const std::function<void()> wege[] = {[this] { Knopf("ButtonGroesser").click(); },
                                          [this] { Taste(Qt::Key_Left); },
                                          [this] {
                                              DrueckeTaste({300, 300}, Qt::MiddleButton);
                                              LassTasteLos({350, 350}, Qt::MiddleButton);
                                          },
                                          [this] { fenster.Rueckgaengig(); }};
    for (std::size_t i = 0; i < std::size(wege); ++i) {
        Neu();
        Modus("MovePktButton");
        ZieheMaus(A, A + QPoint(40, 0));
        BewegeMaus({400, 400});
        BewegeMaus(A + QPoint(40, 0));
        wege[i]();
        const QImage gezeigt = bild->grab().toImage();
        BewegeMaus({795, 5});
        EXPECT_TRUE(gezeigt == bild->grab().toImage()) << i;
    }
}

TEST_F(Bedienfallen, ZentrierteBleibenAusDenListen) {
    Modus("SpeedButton13");
    WaehleTexte("GroupBox1", "ExzListBox", {"A"});
    WaehleTexte("GroupBox1", "PZListBox", {"B"});
    FindeTeil("GroupBox1", "OkButton").click();
    const QStringList ohneA{"B", "C", "D", "E"};
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), ohneA);
    Modus("DelPunktButton");
    Klick(E);
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), ohneA.first(3));
    fenster.Rueckgaengig();
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), ohneA);
}

TEST_F(Bedienfallen, OffenerVersteckdialogFolgtDemNetz) {
    Knopf("SpeedButton14").click();
    Modus("DelPunktButton");
    Klick(A);
    EXPECT_FALSE(Eintraege("TFormHidePunkte", "ListBoxPkt").contains("A"));
    dialoge.antwort = false;
    OeffneDatei("a.EIN");
    EXPECT_EQ(Eintraege("TFormHidePunkte", "ListBoxPkt"), (QStringList{"A", "Z"}));
}

TEST_F(Bedienfallen, DoppeltVerborgenUndZurueck) {
    const auto& verborgene = static_cast<TFormHiddenPkt&>(Kind<QDialog>("TFormHiddenPkt"));
    Knopf("SpeedButton14").click();
    VersteckePunkt("A");
    VersteckePunkt("A");
    EXPECT_EQ(verborgene.Nummern(), (QStringList{"A", "A"}));
    auto& liste = FindeTeil<QListView>("TFormHiddenPkt", "ListBox1");
    for (int i = 0; i < 2; ++i) {
        liste.setCurrentIndex(liste.model()->index(0, 0));
        FindeTeil("TFormHiddenPkt", "UnhiddenButton").click();
    }
    EXPECT_TRUE(Punkt("A")->Item->Visible);
    fenster.Rueckgaengig();
    fenster.Rueckgaengig();
    EXPECT_EQ(verborgene.Nummern().count("A"), Punkt("A")->Item->Visible ? 0 : 1);
}

TEST_F(Bedienfallen, NeueBeobachtungGegenDieRichtungDerLinie) {
    const QStringList vorher = Figuren();
    NeueBeobachtung(B, A);
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ L B-A AR1 0", "- L A-B AR1 0"}));
}

TEST_F(Bedienfallen, NichtsGeaendertIstKeineAenderung) {
    Modus("PunktartButton");
    Klick(A);
    FindeTeil("TFormPunktart", "RadioGroupPktArt0").click();
    FindeTeil("TFormPunktart", "DrawButton").click();
    EXPECT_FALSE(fenster.Ungesichert()) << "the same kind";
    NeueBeobachtung(A, B);
    EXPECT_FALSE(fenster.Ungesichert()) << "an observation that is there";
    Knopf("SpeedButton14").click();
    VersteckePunkt("A");
    SpeichereDatei("x.ZRW");
    VersteckePunkt("A");
    EXPECT_FALSE(fenster.Ungesichert()) << "hiding what is hidden";
}

TEST_F(Bedienfallen, PunkteOhneUndMitGleicherNummerLassenSichVerstecken) {
    // Labels of points that do not exist, and one label for two points.
    for (const auto& [nummern, text] : {std::pair{std::array<PunktIndex, 2>{8, 9}, "Y"}, {{1, 2}, "X"}}) {
        SCOPED_TRACE(text);
        Probenetz n;
        n.P(1, 1000, 1000);
        n.P(2, 3000, 2000);
        n.T(nummern[0], "X");
        n.T(nummern[1], text);
        n.K(1, 2);
        OeffneAlsBilddatei(n.l);
        ASSERT_EQ(dialoge.meldungen, QStringList());
        Modus("HidePktButton");
        for (const PunktIndex nr : {PunktIndex{1}, PunktIndex{2}}) {
            const PunktKnoten& p = *fenster.Netz()->SuchPkt(nr);
            Klick(Pixel(*fenster.Netz(), p));
            EXPECT_FALSE(p.Item->Visible) << nr;
            fenster.Rueckgaengig();
        }
    }
}

TEST_F(Bedienfallen, TastenSchnellHintereinander) {
    const double f = fenster.Netz()->Faktor;
    for (int i = 0; i < 3; ++i)
        Taste(Qt::Key_Plus);
    QTest::qWait(400);
    EXPECT_NEAR(fenster.Netz()->Faktor, f * 8 / 27, f * 1e-9);
}

TEST_F(Bedienfallen, KlicksDieNichtsTunDuerfen) {
    const QStringList vorher = Figuren();
    Modus("ZentrierButton");
    Klick(A);
    QTest::mouseDClick(bild, Qt::LeftButton, {}, A);
    EXPECT_EQ(Aenderung(vorher), QStringList()) << "centred on itself";
    Kasten("CheckBoxPktNr").setChecked(false);
    Modus("HidePktNrButton");
    Klick(A);
    EXPECT_EQ(Aenderung(vorher), QStringList()) << "hid a number while none is shown";
}

TEST_F(Bedienfallen, DialogGeschlossenLoestDenKnopf) {
    for (const auto& [knopf, name] : kDialoge) {
        Modus(knopf);
        auto& dialog = Kind<QDialog>(name);
        dialog.reject();
        EXPECT_EQ(dialog.isVisible(), Knopf(knopf).isChecked()) << name;
        Knopf(knopf).setChecked(false);
    }
}

TEST_F(Bedienfallen, WerkzeugOhneNetzDannNetz) {
    TZrwMainDlg zweites{
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"}};
    zweites.show();
    for (const auto& [knopf, name] : kDialoge) {
        zweites.findChild<QToolButton*>(knopf)->setChecked(true);
        zweites.OeffneDatei(ordner.filePath("n.EIN").toStdString());
        EXPECT_TRUE(zweites.findChild<QDialog*>(name)->isVisible()) << name;
    }
}

TEST_F(Bedienfallen, StatusBeimZiehenMitErstemPunkt) {
    Modus("ZentrierButton");
    DrueckeTaste(A);
    BewegeMaus(A + QPoint(2, 2));
    EXPECT_EQ(Status(), "Exzentrum gewählt, bitte Zentrum wählen.");
    LassTasteLos(A + QPoint(2, 2));
}

TEST_F(Bedienfallen, SchriftBleibtWennDieDateiFehlt) {
    dialoge.schrift = QFont("Sans", 30);
    Knopf("SpeedButton8").click();
    const QImage gross = fenster.Bild().copy();
    OeffneDatei("fehlt.EIN");
    Knopf("SpeedButton3").click();
    EXPECT_TRUE(fenster.Bild() == gross);
}

TEST_F(Bedienfallen, SpeichernMerktDenOrdner) {
    QDir(ordner.path()).mkdir("unter");
    SpeichereDatei("unter/x.ZRW");
    EXPECT_EQ(sitzung.Ordner(), ordner.filePath("unter"));
    EXPECT_EQ(sitzung.LetzteDateien().front(), ordner.filePath("unter/x.ZRW"));
}

TEST_F(Bedienfallen, GewaehltesExzentrumBleibtMarkiert) {
    const auto ring = [this] { return bild->grab().toImage().pixelColor(A + QPoint(9, 0)); };
    Modus("MovePktButton");
    ZieheMaus(E, E + QPoint(20, 20));
    Modus("ZentrierButton");
    Klick(A);
    BewegeMaus({600, 400});
    ASSERT_EQ(ring(), QColor(255, 165, 0));
    fenster.Rueckgaengig();
    EXPECT_EQ(ring(), QColor(255, 165, 0)) << "still chosen";
}

TEST_F(Bedienfallen, ZarwikdateiBringtIhreVerstecktenMit) {
    const auto versteckte = [this] { return Eintraege("TFormHiddenPkt", "ListBox1"); };
    SpeichereDatei("alle.ZRW");
    Modus("HidePktButton");
    Klick(E);
    Klick(A);
    SpeichereDatei("ohne.ZRW");
    OeffneDatei("alle.ZRW");
    EXPECT_EQ(versteckte(), QStringList());
    OeffneDatei("ohne.ZRW");
    EXPECT_EQ(versteckte(), (QStringList{"A", "E"}));
    const auto& nummern = Kind<QComboBox>("ComboBox1");
    for (int i = 1; i < nummern.count(); ++i)
        EXPECT_LT(nummern.itemText(i - 1), nummern.itemText(i));
}

TEST_F(Bedienfallen, KnopfOhneNetzSagtWasFehlt) {
    TZrwMainDlg leer{
        {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1.2"}};
    for (const char* name : {"SpeedButton9", "ButtonGroesser", "ButtonKleiner", "SpeedButton3",
                             "EinpassenButton", "NummernZeigenButton", "SpeedButton12", "SpeedButton5",
                             "VorschauButton", "SpeedButtonClipbrd", "SpeedButton16", "DelPunktButton"}) {
        leer.statusBar()->clearMessage();
        leer.findChild<QToolButton*>(name)->click();
        EXPECT_TRUE(leer.statusBar()->currentMessage().contains("Netz")) << name;
    }
}

TEST_F(Bedienfallen, TastenAusFeldernUndFenstern) {
    for (const char* name : {"ComboBox1", "EditMasstab"}) {
        auto& feld = Kind<QWidget>(name);
        feld.setFocus();
        QTest::keyClick(&feld, Qt::Key_Escape);
        EXPECT_EQ(fenster.focusWidget(), bild) << name;
    }
    const QStringList vorher = Figuren();
    Modus("PunktartButton");
    Klick(A);
    FindeTeil("TFormPunktart", "RadioGroupPktArt2").click();
    FindeTeil("TFormPunktart", "DrawButton").click();
    ASSERT_NE(Aenderung(vorher), QStringList());
    auto& dialog = Kind<QDialog>("TFormPunktart");
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    QTest::keyClick(&FindeTeil("TFormPunktart", "DrawButton"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Aenderung(vorher), QStringList());
    FindeTeil<QLineEdit>("TFormPunktart", "PktNummer").setText("A2");
    FindeTeil("TFormPunktart", "DrawButton").click();
    EXPECT_EQ(dialoge.meldungen.size(), 1) << "the number is not changed without a word";
}

TEST_F(Bedienfallen, PapierBleibtBisZumNaechstenStart) {
    Systemdrucker erster(dateien, &sitzung);
    const Druckseite hoch = erster.Seite();
    QTimer::singleShot(0, [] {
        auto* einrichten = static_cast<QDialog*>(QApplication::activeModalWidget());
        einrichten->findChild<QRadioButton*>("landscape")->click();
        einrichten->accept();
    });
    ASSERT_TRUE(erster.RichteEin(&fenster));
    for (const auto& [stand, weite] :
         {std::pair{sitzung.Stand("Papier"), hoch.hoehe}, {QByteArray("1 2 nichts"), hoch.weite}}) {
        sitzung.MerkeStand("Papier", stand);
        EXPECT_NEAR(Systemdrucker(dateien, &sitzung).Seite().weite, weite, 40) << stand.toStdString();
    }
}

TEST(Spaltenhinweise, JedeSpalteDesErgebnisfensters) {
    for (const Ergebnisreiter& reiter : kErgebnisreiter) {
        for (const Tabellenfeld& feld : Beschreibung(reiter.tabelle).felder)
            EXPECT_NE(Hinweistext(feld.name), "") << feld.name;
    }
    EXPECT_NE(Hinweistext("dX"), Hinweistext("DX"));
}

}  // namespace
}  // namespace zrw
