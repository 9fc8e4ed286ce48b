// Ways through the window on which something used to be lost, hidden or left standing in silence.
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QSpinBox>

#include "tests/ui/Netzprobe.h"
#include "ui/ablage/Rettung.h"

namespace zrw {
namespace {

class Bedienwege : public Netzprobe {
  protected:
    void Doppelklick(QPoint ort) const {
        Klick(ort);
        QMouseEvent zweiter(QEvent::MouseButtonDblClick, ort, bild->mapToGlobal(ort), Qt::LeftButton,
                            Qt::LeftButton, {});
        QCoreApplication::sendEvent(bild, &zweiter);
        LassTasteLos(ort);
    }
    [[nodiscard]] QImage Gezeigt() const { return bild->grab().toImage(); }
    void VerlasseBild() const {
        QEvent weg(QEvent::Leave);
        QCoreApplication::sendEvent(bild, &weg);
    }
    /// @return whether the files are taken
    bool LassFallen(const QList<QUrl>& adressen, Qt::DropActions erlaubt = Qt::CopyAction | Qt::MoveAction) {
        QMimeData inhalt;
        inhalt.setUrls(adressen);
        QDragEnterEvent herein({9, 9}, erlaubt, &inhalt, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&fenster, &herein);
        if (!herein.isAccepted()) return false;
        QDropEvent los({9, 9}, erlaubt, &inhalt, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&fenster, &los);
        EXPECT_EQ(los.dropAction(), Qt::CopyAction) << "after a move the other program deletes its file";
        return true;
    }
};

TEST_F(Bedienwege, EinDoppelklickIstEinKlick) {
    for (const char* knopf : {"DelPunktButton", "HidePktButton"}) {
        Modus(knopf);
        Doppelklick(C);  // D lies below
        EXPECT_TRUE(Punkt("C") != nullptr && Punkt("C")->Item->Visible) << knopf;
        EXPECT_TRUE(Punkt("D") == nullptr || !Punkt("D")->Item->Visible) << knopf;
        fenster.Rueckgaengig();
    }
    Modus("EditBeobButton");
    FindeTeil("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
    FindeTeil("TFormBeobTyp", "CheckBoxStrecke").setChecked(true);
    Doppelklick(A);
    EXPECT_EQ(Status(), "Beobachtung einfügen P1 gesetzt P2 anklicken");
    Klick(E);
    EXPECT_EQ(Status(), "Beobachtung A – E eingefügt");
    EXPECT_NE(fenster.Netz()->FindKante(Punkt("A")->PNr, Punkt("E")->PNr), nullptr);
    Klick(A);
    Klick({700, 500}, Qt::RightButton);
    EXPECT_EQ(Status(), "Beobachtung einfügen: P1 anklicken, dann P2.") << "the choice is dropped";
}

TEST_F(Bedienwege, WasDieMausZeigtGehtMitIhr) {
    Modus("PunktartButton");
    BewegeMaus({600, 400});
    const QImage ohne = Gezeigt();
    BewegeMaus(A);
    EXPECT_NE(Gezeigt(), ohne);
    VerlasseBild();
    EXPECT_EQ(Gezeigt(), ohne);
    EXPECT_TRUE(Status().startsWith(" M=1:")) << "no place any more";
    // The point that the window of kinds shows stays marked.
    Klick(A);
    VerlasseBild();
    EXPECT_NE(Gezeigt(), ohne);
    FindeTeil("TFormPunktart", "RadioGroupSymb5").click();
    FindeTeil("TFormPunktart", "DrawButton").click();
    fenster.Rueckgaengig();
    EXPECT_FALSE(FindeTeil("TFormPunktart", "RadioGroupSymb5").isChecked()) << "the window follows";
}

TEST_F(Bedienwege, ZentrierenLaesstAndereSchritteRuecknehmbar) {
    const QStringList vorher = Figuren();
    VerbirgNummer("E");
    Modus("MovePktButton");
    ZieheMaus(A, A + QPoint(40, 60));
    Modus("DelPunktButton");
    Klick(C);  // the newest of two: D
    Modus("DelBeobButton");
    Klick((C + E) / 2);
    Modus("ZentrierButton");
    Klick(Ort("A"));
    Klick(B);
    EXPECT_EQ(Status(), "A auf B zentriert");
    NimmAllesZurueck();
    PruefeNetz();
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ N A 10 -5 -", "+ P A 375 250 FP Krei", "- N A 10 -5",
                                              "- P A 125 250 FP Krei"}));
    EXPECT_TRUE(fenster.Ungesichert());
    fenster.Rueckgaengig();
    EXPECT_EQ(Status(), "Es gibt nichts zurückzunehmen.");
    for (int i = 0; i < 9; ++i)
        fenster.WiederholeSchritt();
    EXPECT_EQ(Status(), "Es gibt nichts zu wiederholen.");
    EXPECT_EQ(fenster.Netz()->MaxPkte, 4);
    PruefeNetz();
}

TEST_F(Bedienwege, VielesAufEinmalZentrierenFragtVorher) {
    std::string datei = "$NT 3\n";
    for (int i = 10; i < 22; ++i)
        datei += "$FP " + std::to_string(i) + "             1 " + std::to_string(i * 100) + " 1000\n";
    LegeDateiAn("viele.EIN", datei);
    OeffneDatei("viele.EIN");
    Modus("SpeedButton13");
    FindeTeil<QListView>("GroupBox1", "ExzListBox").selectAll();
    WaehleTexte("GroupBox1", "PZListBox", {"10"});
    const std::string bytes = Gespeichert();
    FindeTeil("GroupBox1", "OkButton").click();
    EXPECT_EQ(dialoge.fragen.size(), 1);
    EXPECT_EQ(Gespeichert(), bytes);
    EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox").size(), 12) << "nothing was done";
    dialoge.ja = true;
    FindeTeil("GroupBox1", "OkButton").click();
    EXPECT_NE(Gespeichert(), bytes);
    // Keys without Ctrl are the list's own, and moving on in it moves the proposal.
    Neu();
    auto& liste = FindeTeil<QListView>("GroupBox1", "ExzListBox");
    QKeyEvent f(QEvent::ShortcutOverride, Qt::Key_F, Qt::NoModifier, "f");
    f.ignore();
    QCoreApplication::sendEvent(&liste, &f);
    EXPECT_TRUE(f.isAccepted());
    liste.setCurrentIndex(liste.model()->index(0, 0));
    QTest::keyClick(&liste, Qt::Key_Down);
    EXPECT_EQ(FindeTeil<QListView>("GroupBox1", "PZListBox").currentIndex().row(), 1);
}

TEST_F(Bedienwege, EineNummerWirdAmGanzenTextGegriffen) {
    LegeDateiAn("lang.EIN", "$NT 3\n$FP LANGE_NUMMER   1 1000 1000\n    Z              1 3000 2000\n");
    OeffneDatei("lang.EIN");
    const QPoint amEnde = Textort("LANGE_NUMMER") + QPoint(50, 6);
    Modus("MoveTextButton");
    ZieheMaus(amEnde, amEnde + QPoint(30, 20));
    EXPECT_EQ(Textort("LANGE_NUMMER"), amEnde + QPoint(-20, 14));
    Klick(amEnde);  // there is nothing now
    Kasten("CheckBoxALKKurz").setChecked(true);
    Modus("HidePktNrButton");
    Klick(Textort("LANGE_NUMMER") + QPoint(85, 6));
    EXPECT_TRUE(fenster.Netz()->FindPktText(1)->Visible) << "as long as it is shown";
    Klick(Textort("LANGE_NUMMER") + QPoint(40, 6));
    EXPECT_FALSE(fenster.Netz()->FindPktText(1)->Visible);
}

TEST_F(Bedienwege, WasNichtZuSehenIstWirdGesagt) {
    NeuerPunkt("Fern", "90000", "90000");
    EXPECT_TRUE(Status().contains("außerhalb des Bildes"));
    NeuerPunkt(QString::fromUtf8("Ω7"), "1500", "1500");
    ASSERT_EQ(dialoge.meldungen.size(), 1);
    EXPECT_EQ(Punkt("?7"), nullptr);
    VerbirgPunkt("E");
    auto& versteckt = FindeTeil<QListView>("TFormHiddenPkt", "ListBox1");
    const auto grau = [&] { return versteckt.model()->index(0, 0).data(Qt::ForegroundRole).isValid(); };
    EXPECT_FALSE(grau());
    emit Kind<QComboBox>("ComboBox1").textActivated("E");
    EXPECT_TRUE(Status().startsWith("Punkt E ist versteckt"));
    fenster.Rueckgaengig();
    VerbirgPunkt("B");
    dialoge.antwort = false;
    OeffneDatei("a.EIN");
    EXPECT_EQ(Eintraege("TFormHiddenPkt", "ListBox1"), QStringList{"B"});
    EXPECT_TRUE(grau()) << "not in this network";
}

TEST_F(Bedienwege, DateienAufDemFenster) {
    const auto lokal = [&](const char* name) { return QUrl::fromLocalFile(ordner.filePath(name)); };
    EXPECT_FALSE(LassFallen({QUrl("https://beispiel.invalid/n.EIN")}));
    EXPECT_FALSE(LassFallen({lokal("a.EIN")}, Qt::MoveAction));
    EXPECT_TRUE(LassFallen({lokal("a.EIN"), lokal("n.EIN")}));
    EXPECT_TRUE(Status().contains("nur eine Datei"));
    EXPECT_EQ(Punkt("Z"), nullptr);
    EXPECT_TRUE(LassFallen({lokal("a.EIN")}));
    EXPECT_NE(Punkt("Z"), nullptr);
}

TEST_F(Bedienwege, DieLegendeStehtBeimZiehenStill) {
    Kasten("CheckBoxPktNr").setChecked(false);
    const_cast<Liste*>(fenster.Netz())->ShowLegende = true;
    Knopf("SpeedButton3").click();
    const QRect ecke(0, 0, 120, 40);
    const QImage vorher = Gezeigt();
    Modus("PanButton");
    DrueckeTaste({600, 400});
    BewegeMaus({500, 300});
    EXPECT_EQ(Gezeigt().copy(ecke), vorher.copy(ecke));
    EXPECT_NE(Gezeigt(), vorher);
    Taste(Qt::Key_Escape);
    EXPECT_EQ(Gezeigt(), vorher);
}

TEST_F(Bedienwege, AllesDarstellenTrautFremdenAusdehnungenNicht) {
    SpeichereDatei("p.ZRW");
    const std::string gut = [&] {
        std::ifstream datei(ordner.filePath("p.ZRW").toStdString(), std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(datei), {});
    }();
    for (const auto& [von, bytes] : {std::pair{8, 32}, {8, 8}, {24, 8}}) {  // all four; MaxXW; MaxYW
        LegeDateiAn("q.ZRW",
                    std::string(gut).replace(static_cast<std::size_t>(von), static_cast<std::size_t>(bytes),
                                             static_cast<std::size_t>(bytes), '\0'));
        OeffneDatei("q.ZRW");
        Knopf("SpeedButton3").click();
        for (const char* nummer : {"A", "B", "C", "E"})
            EXPECT_TRUE(bild->rect().contains(Ort(nummer))) << nummer << " " << von;
    }
    SpeichereDatei(std::nullopt);
    EXPECT_EQ(dialoge.wahlen.back().vorschlag, "q.ZRW") << "the name of the picture file";
}

TEST_F(Bedienwege, OffeneEinstellungenWerdenVorDemLesenGesichert) {
    Knopf("ColorButton").click();
    FindeTeil<QSpinBox>("TZRWParameter", "SpinEdit3").setValue(17);
    OeffneDatei("a.EIN");
    EXPECT_EQ(einstellungen.Fang, 17);
    EXPECT_EQ(ablage.werte["Fang"], "17");
}

TEST_F(Bedienwege, EinPlanUeberstehtDasEndeOhneSpeichern) {
    for (const bool ja : {false, true}) {
        Rettung rettung(ordner.filePath(ja ? "ja" : "nein"), dateien);
        TZrwMainDlg zweites{{einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge,
                             sitzung, "1", &rettung}};
        dialoge.fragen.clear();
        TZrwMainDlg leeres{
            {einstellungen, ablage, netz, zustand, dateien, uhr, daten, drucker, dialoge, sitzung, "1"}};
        leeres.SpeedButton7Click();
        EXPECT_TRUE(dialoge.fragen.isEmpty()) << "without a network there is nothing to ask";
        zweites.OeffneDatei(ordner.filePath("n.EIN").toStdString());
        dialoge.ja = true;
        zweites.findChild<QToolButton*>("DelPunktButton")->setChecked(true);
        QTest::mouseClick(zweites.findChild<QWidget*>("ImageZarwik"), Qt::LeftButton, {},
                          Pixel(*zweites.Netz(), *zweites.Netz()->FindPunkt("A")));
        ASSERT_TRUE(zweites.Ungesichert());
        dialoge.ja = ja;
        dialoge.datei.reset();  // cancels
        zweites.SpeedButton7Click();
        EXPECT_EQ(QDir(ordner.filePath(ja ? "ja" : "nein")).entryList({"*.rettung"}).size(), ja ? 1 : 0);
    }
}

}  // namespace
}  // namespace zrw
