// Points by their numbers: centring, hiding, kinds, the number box; and the keys of the view.
#include <QComboBox>
#include <QCompleter>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

class Punkte : public Netzprobe {
  protected:
    [[nodiscard]] QStringList Verborgene() const { return Eintraege("TFormHiddenPkt", "ListBox1"); }
    QLineEdit& Feld(const char* name) const { return FindeTeil<QLineEdit>("TFormPunktart", name); }
    void ZeigePunkte(const QStringList& nummern) const {
        WaehleTexte("TFormHiddenPkt", "ListBox1", nummern);
        FindeTeil("TFormHiddenPkt", "UnhiddenButton").click();
    }
    QComboBox& Nummernfeld() const { return Kind<QComboBox>("ComboBox1"); }
};

TEST_F(Punkte, ZentrierenMitDerMaus) {
    Modus("ZentrierButton");
    const QStringList vorher = Figuren();
    const QStringList erwartet{"+ N A 10 -5 -", "+ P A 375 250 FP Krei", "- N A 10 -5",
                               "- P A 125 250 FP Krei"};
    Klick({700, 500});
    Klick(A);
    EXPECT_EQ(Status(), "Zentrierung Exzentrum gewählt, bitte Zentrum anklicken.");
    BewegeMaus({600, 400});
    EXPECT_EQ(Status(), "Exzentrum gewählt, bitte Zentrum wählen.");
    Klick({700, 500}, Qt::RightButton);
    BewegeMaus({610, 400});
    EXPECT_TRUE(Status().contains("M=1:")) << "dropped";
    Klick(B);
    Taste(Qt::Key_Escape);
    Klick(E);
    Modus("PanButton");
    Modus("ZentrierButton");
    Klick(A);
    Klick({700, 500});  // finds no point and keeps the choice
    EXPECT_EQ(Aenderung(vorher), QStringList());
    Klick(B);
    EXPECT_EQ(Aenderung(vorher), erwartet);
    PruefeNetz();
    EXPECT_TRUE(fenster.Ungesichert());
    // The next click chooses a new eccentre.
    Klick(E);
    EXPECT_EQ(Aenderung(vorher), erwartet);
}

TEST_F(Punkte, ZentrierenMitDenListen) {
    const QStringList alle{"A", "B", "C", "D", "E"};
    const struct {
        const char* name;
        QStringList exzentren;
        QStringList zentrum;
        QStringList bleiben;
    } faelle[] = {
        {"drei hintereinander", {"C", "D", "E"}, {"B"}, {"A", "B"}},
        {"erste und letzte", {"A", "E"}, {"B"}, {"B", "C", "D"}},
        {"das Zentrum selbst dabei", {"A", "B", "C"}, {"B"}, {"D", "E"}},
        {"kein Exzentrum", {}, {"B"}, alle},
        {"kein Zentrum", {"A", "C"}, {}, alle},
        {"nichts", {}, {}, alle},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Knopf("SpeedButton13").setChecked(false);
        Neu();
        EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), alle);
        EXPECT_EQ(Eintraege("GroupBox1", "PZListBox"), QStringList());
        Modus("SpeedButton13");
        EXPECT_TRUE(Kind<QWidget>("GroupBox1").isVisible());
        EXPECT_EQ(Eintraege("GroupBox1", "PZListBox"), alle);
        WaehleTexte("GroupBox1", "ExzListBox", f.exzentren);
        WaehleTexte("GroupBox1", "PZListBox", f.zentrum);
        const std::string bytes = Gespeichert();
        FindeTeil("GroupBox1", "OkButton").click();
        EXPECT_EQ(Eintraege("GroupBox1", "ExzListBox"), f.bleiben);
        EXPECT_EQ(Eintraege("GroupBox1", "PZListBox"), f.bleiben);
        PruefeNetz();
        for (const QString& nummer : alle) {
            const bool beiB = nummer == "B" || !f.bleiben.contains(nummer);
            EXPECT_EQ(Ort(nummer.toStdString()) == B, beiB) << nummer.toStdString();
        }
        EXPECT_EQ(fenster.Ungesichert(), f.bleiben != alle);
        EXPECT_EQ(Gespeichert() == bytes, f.bleiben == alle);
        FindeTeil("GroupBox1", "Abbruch").click();
        EXPECT_FALSE(Kind<QWidget>("GroupBox1").isVisible());
        EXPECT_FALSE(Knopf("SpeedButton13").isChecked());
        EXPECT_TRUE(Knopf("SpeedButton13").isVisible());
    }
    // A click in the eccentres proposes the centre of the same row; one in the centres shows its number.
    Neu();
    Modus("SpeedButton13");
    auto& exzentren = FindeTeil<QListView>("GroupBox1", "ExzListBox");
    auto& zentren = FindeTeil<QListView>("GroupBox1", "PZListBox");
    const auto klick = [](QListView& l, int zeile) {
        QTest::mouseClick(l.viewport(), Qt::LeftButton, {},
                          l.visualRect(l.model()->index(zeile, 0)).center());
    };
    klick(exzentren, 2);
    EXPECT_EQ(zentren.currentIndex().data().toString(), "C");
    klick(zentren, 1);
    EXPECT_EQ(Nummernfeld().currentText(), "B");
    EXPECT_EQ(Nummernfeld().currentIndex(), 1);
    EXPECT_FALSE(fenster.Ungesichert());
}

TEST_F(Punkte, VerborgenUndWiederGezeigt) {
    const Stand vorher = Jetzt();
    VerbirgPunkt("E");
    EXPECT_EQ(Verborgene(), QStringList{"E"});
    Knopf("SpeedButton14").click();
    EXPECT_EQ(Eintraege("TFormHidePunkte", "ListBoxPkt"), (QStringList{"A", "B", "C", "D", "E"}));
    FindeTeil("TFormHidePunkte", "Button1").click();  // none selected
    EXPECT_EQ(Verborgene(), QStringList{"E"});
    WaehleTexte("TFormHidePunkte", "ListBoxPkt", {"B", "C", "D"});
    FindeTeil("TFormHidePunkte", "Button1").click();
    EXPECT_EQ(Verborgene(), (QStringList{"B", "C", "D", "E"}));
    EXPECT_EQ(Eintraege("TFormHidePunkte", "ListBoxPkt").size(), 5) << "they stay in the list";
    EXPECT_EQ(Figuren().filter("L ").size(), 4);
    for (const QString& zeile : Figuren().filter("L "))
        EXPECT_TRUE(zeile.endsWith(" -")) << zeile.toStdString() << " ends at a hidden point";
    FindeTeil("TFormHidePunkte", "Button2").click();
    EXPECT_FALSE(Knopf("SpeedButton14").isChecked());

    Knopf("SpeedButton15").click();
    ZeigePunkte({});
    EXPECT_EQ(Verborgene().size(), 4);
    ZeigePunkte({"B", "C", "D"});  // in a row
    EXPECT_EQ(Verborgene(), QStringList{"E"});
    ZeigePunkte({"E"});
    EXPECT_EQ(Verborgene(), QStringList());
    EXPECT_TRUE(Jetzt() == vorher);

    // The list goes with the changes, there and back.
    for (const QStringList& stand : {QStringList{"E"}, {"B", "C", "D", "E"}, {"E"}, {}}) {
        fenster.Rueckgaengig();
        EXPECT_EQ(Verborgene(), stand);
    }
    EXPECT_FALSE(fenster.Ungesichert());
    for (int i = 0; i < 4; ++i)
        fenster.WiederholeSchritt();
    EXPECT_TRUE(Jetzt() == vorher);
}

TEST_F(Punkte, VerborgeneEinesAnderenNetzes) {
    VerbirgPunkt("E");
    VerbirgPunkt("A");
    dialoge.antwort = false;
    OeffneDatei("a.EIN");
    EXPECT_EQ(Verborgene(), (QStringList{"A", "E"})) << "the list outlives the network";
    const std::string bytes = Gespeichert();
    ZeigePunkte({"A", "E"});
    EXPECT_EQ(Verborgene(), QStringList());
    EXPECT_TRUE(Gespeichert() == bytes);
    EXPECT_FALSE(fenster.Ungesichert());
}

TEST_F(Punkte, NummernKommenWieder) {
    const QStringList vorher = Figuren();
    for (const char* nummer : {"A", "B", "E"})
        VerbirgNummer(nummer);
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ N A 10 -5 -", "+ N B 10 -5 -", "+ N E 10 -5 -",
                                              "- N A 10 -5", "- N B 10 -5", "- N E 10 -5"}));
    EXPECT_EQ(Verborgene(), QStringList());
    VerbirgPunkt("B");
    ZeigePunkte({"B"});
    EXPECT_EQ(Aenderung(vorher),
              (QStringList{"+ N A 10 -5 -", "+ N E 10 -5 -", "- N A 10 -5", "- N E 10 -5"}))
        << "a number comes with its point";
    VerbirgPunkt("E");
    Knopf("NummernZeigenButton").click();
    EXPECT_EQ(Figuren().filter("N A"), QStringList{"N A 10 -5"});
    EXPECT_EQ(Figuren().filter("N E"), QStringList{"N E 10 -5 -"}) << "its point is hidden";
    NimmAllesZurueck();
    EXPECT_EQ(Aenderung(vorher), QStringList());
}

TEST_F(Punkte, ArtUndOrtAendern) {
    const std::string bytes = Gespeichert();
    const QStringList vorher = Figuren();
    Modus("PunktartButton");
    EXPECT_TRUE(Kind<QDialog>("TFormPunktart").isVisible());
    Klick(A);
    EXPECT_EQ(Feld("PktNummer").text(), "A");
    EXPECT_EQ(Feld("PktY").text(), "1000.0000");
    EXPECT_EQ(Feld("PktX").text(), "1000.0000");
    EXPECT_TRUE(FindeTeil("TFormPunktart", "RadioGroupPktArt0").isChecked());
    EXPECT_TRUE(FindeTeil("TFormPunktart", "RadioGroupSymb1").isChecked());
    FindeTeil("TFormPunktart", "RadioGroupPktArt2").click();
    FindeTeil("TFormPunktart", "RadioGroupSymb5").click();
    EXPECT_EQ(Aenderung(vorher), QStringList()) << "not before \"Zeichnen\"";
    FindeTeil("TFormPunktart", "DrawButton").click();
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ P A 125 250 FH Drei", "- P A 125 250 FP Krei"}));
    EXPECT_EQ(Punkt("A")->Item->Farbe, einstellungen.FHCol);
    EXPECT_EQ(fenster.Netz()->FindPktText(Punkt("A")->PNr)->Col, einstellungen.FHCol);
    ZeichnePunkt("A", "1080", " 1.16D+03 ");
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ P A 135 230 FH Drei", "- P A 125 250 FP Krei"}));
    PruefeNetz();
    NimmAllesZurueck();
    EXPECT_TRUE(Gespeichert() == bytes);
    Knopf("PunktartButton").click();
    EXPECT_FALSE(Kind<QDialog>("TFormPunktart").isVisible());
}

TEST_F(Punkte, NeuerPunkt) {
    const std::string bytes = Gespeichert();
    const QStringList vorher = Figuren();
    FindeTeil("TFormPunktart", "RadioGroupPktArt1").click();
    FindeTeil("TFormPunktart", "RadioGroupSymb3").click();
    NeuerPunkt(" Süd 1 ", "2800", "1400");
    EXPECT_EQ(Aenderung(vorher), (QStringList{"+ N Süd 1 10 -5", "+ P Süd 1 350 200 FL Qua"}));
    PruefeNetz();
    EXPECT_TRUE(dialoge.meldungen.isEmpty());
    EXPECT_EQ(Nummernfeld().findText("Süd 1"), 5);
    EXPECT_TRUE(Eintraege("GroupBox1", "ExzListBox").contains("Süd 1"));
    fenster.Rueckgaengig();
    EXPECT_TRUE(Gespeichert() == bytes);
    EXPECT_EQ(Nummernfeld().findText("Süd 1"), -1);
    fenster.WiederholeSchritt();
    // A line to it goes with it.
    FindeTeil("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
    Modus("EditBeobButton");
    Klick({350, 200});
    Klick(A);
    EXPECT_EQ(Figuren().filter("Süd 1-A").size(), 1);
    Modus("DelPunktButton");
    Klick({350, 200});
    EXPECT_EQ(Aenderung(vorher), QStringList());
    NimmAllesZurueck();
    EXPECT_TRUE(Gespeichert() == bytes);
}

TEST_F(Punkte, AbgelehnteAngaben) {
    const QString zahlen = "Die Koordinaten sind keine Zahlen (Dezimaltrenner ist der Punkt).";
    const struct {
        bool neu;
        const char* nummer;
        const char* rechts;
        const char* hoch;
        QString meldung;
    } faelle[] = {
        {true, "", "1500", "1500", "Der neue Punkt braucht eine Nummer."},
        {true, "   ", "1500", "1500", "Der neue Punkt braucht eine Nummer."},
        {true, "123456789012345", "1500", "1500", "Die Punktnummer ist zu lang (höchstens 14 Zeichen)."},
        {true, "A", "1500", "1500", "Den Punkt A gibt es schon."},
        {true, "Q", "", "1500", zahlen},
        {true, "Q", "1500", "1500,5", zahlen},
        {true, "Q", "nan", "1500", zahlen},
        {true, "Q", "1500", "1e999", zahlen},
        {false, "A", "x", "1500", zahlen},
        {false, "A", "1500", "1500", "Bitte zuerst einen Punkt im Bild anklicken."},
    };
    Modus("PunktartButton");
    const std::string bytes = Gespeichert();
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.meldung.toStdString());
        dialoge.meldungen.clear();
        FindeTeil("TFormPunktart", "CheckBoxNeuPkt").setChecked(f.neu);
        ZeichnePunkt(f.nummer, f.rechts, f.hoch);
        EXPECT_EQ(dialoge.meldungen, QStringList{f.meldung});
        EXPECT_TRUE(Gespeichert() == bytes);
        EXPECT_FALSE(fenster.Ungesichert());
    }
    // The picked point is gone: there is none to change.
    Klick(A);
    Modus("DelPunktButton");
    Klick(A);
    Modus("PunktartButton");
    dialoge.meldungen.clear();
    ZeichnePunkt("A", "1500", "1500");
    EXPECT_EQ(dialoge.meldungen, QStringList{faelle[std::size(faelle) - 1].meldung});
}

TEST_F(Punkte, VollesNetz) {
    std::string inhalt = "$NT 3\n$FP";
    for (int i = 1; i <= 65535; ++i) {
        const std::string nummer = std::to_string(i);
        inhalt += (i == 1 ? " " : "    ") + nummer + std::string(15 - nummer.size(), ' ') + "1 " +
                  std::to_string(1000 + i % 256) + " " + std::to_string(1000 + i / 256) + "\n";
    }
    LegeDateiAn("voll.EIN", inhalt + "$$$\n");
    OeffneDatei("voll.EIN");
    ASSERT_EQ(fenster.Netz()->MaxPkte, 65535);
    dialoge.meldungen.clear();
    NeuerPunkt("Q", "1500", "1500");
    EXPECT_EQ(dialoge.meldungen, QStringList{"Mehr als 65 535 Punkte fasst ein Netz nicht."});
    EXPECT_EQ(fenster.Netz()->MaxPkte, 65535);
    // A number that has become free is taken again.
    Modus("DelPunktButton");
    Klick(Ort("65535"));
    Modus("PunktartButton");
    ZeichnePunkt("Q", "1500", "1500");
    EXPECT_NE(Punkt("Q"), nullptr);
    EXPECT_EQ(fenster.Netz()->MaxPkte, 65535);
}

TEST_F(Punkte, NummernfeldSuchtUndZeigt) {
    LegeDateiAn(
        "s.EIN",
        "$NT 3\n$FP A              1         1000         1000\n"
        "    ROTST          1         3000         1000\n    ROTEN          1         3000         2000\n"
        "    Tal            1         2000         1500\n$$$\n");
    OeffneDatei("s.EIN");
    auto& feld = Nummernfeld();
    EXPECT_EQ(feld.count(), 4);
    bild->setFocus();
    QTest::keyClick(bild, Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(feld.hasFocus());
    int weg = 0;  // how far the picture is panned away first
    for (const auto& [getippt, gefunden] : {std::pair{"ROTEN", "ROTEN"},
                                            {"otst", "ROTST"},
                                            {"ROT", "ROTST"},
                                            {"al", "Tal"},
                                            {"A", "A"},
                                            {"TAL", "Tal"},
                                            {"t", "Tal"},
                                            {"?O*n", "ROTEN"},
                                            {"r**t*t*", "ROTST"}}) {
        SCOPED_TRACE(getippt);
        for (int i = 0; i < weg; ++i)
            Taste(Qt::Key_Left);
        weg += 5;
        feld.lineEdit()->selectAll();
        const double faktor = fenster.Netz()->Faktor;
        const QImage vorher = fenster.Bild().copy();
        QTest::keyClicks(feld.lineEdit(), getippt);
        feld.completer()->popup()->hide();
        QTest::keyClick(feld.lineEdit(), Qt::Key_Return);
        EXPECT_EQ(feld.currentText(), gefunden);
        EXPECT_EQ(Status(), QString("Punkt ") + gefunden);
        EXPECT_TRUE(bild->rect().contains(Ort(gefunden)));
        EXPECT_EQ(fenster.Netz()->Faktor, faktor);
        EXPECT_FALSE(fenster.Bild() == vorher) << "marked";
        EXPECT_EQ(fenster.Bild().pixelColor(Ort(gefunden) - QPoint(0, 25)), QColor(0, 0, 255));
    }
    const QImage vorher = fenster.Bild().copy();
    for (const char* getippt : {"XYZ", "Punktnummern", ""}) {
        feld.setEditText(getippt);
        Knopf("SpeedButton10").click();
        EXPECT_TRUE(fenster.Bild() == vorher) << getippt;
    }
    EXPECT_FALSE(fenster.Ungesichert());
    Modus("DelPunktButton");
    Klick(Ort("Tal"));
    EXPECT_EQ(feld.count(), 3);
}

TEST_F(Punkte, TastenDerAnsicht) {
    const Liste& l = *fenster.Netz();
    const QImage alles = fenster.Bild().copy();
    const auto taste = [&](const auto& t) {
        QTest::keyClick(bild, t);
        QTest::qWait(150);  // a shortcut shows its button pressed for a moment
    };
    for (const auto& [pfeil, weg] : {std::pair{Qt::Key_Left, QPoint(80, 0)},
                                     {Qt::Key_Right, QPoint(-80, 0)},
                                     {Qt::Key_Up, QPoint(0, 53)},
                                     {Qt::Key_Down, QPoint(0, -53)}}) {
        const QPoint vorher = Ort("A");
        Taste(pfeil);
        EXPECT_EQ(Ort("A") - vorher, weg);
    }
    EXPECT_TRUE(fenster.Bild() == alles);
    taste('+');
    EXPECT_NEAR(l.Faktor, 16.0 / 3, 1e-9);
    taste('-');
    taste('-');
    EXPECT_NEAR(l.Faktor, 12, 1e-9);
    Taste(Qt::Key_Left);
    taste(Qt::Key_Home);
    EXPECT_TRUE(fenster.Bild() == alles);

    // F fits what is visible, with a margin: wide, tall, one point, one place.
    const struct {
        const char* name;
        const char* netz;
        QRect rahmen;
    } faelle[] = {
        {"breit", "A              1 1000 1000\n    B              1 1720 1010\n", {40, 260, 721, 11}},
        {"hoch", "A              1 1000 1000\n    B              1 1001 1045\n", {395, 40, 11, 451}},
        {"einer", "A              1 1000 1000\n", {400, 265, 1, 1}},
        {"zwei an einem Ort",
         "A              1 1000 1000\n    B              1 1000 1000\n",
         {400, 265, 1, 1}},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        LegeDateiAn("f.EIN", std::string("$NT 3\n$FP ") + f.netz + "$$$\n");
        OeffneDatei("f.EIN");
        ASSERT_NE(Punkt("A"), nullptr);
        taste(Qt::Key_F);
        QRect rahmen(Ort("A"), QSize(1, 1));
        if (Punkt("B") != nullptr) rahmen |= QRect(Ort("B"), QSize(1, 1));
        EXPECT_EQ(rahmen, f.rahmen);
    }
    Neu();
    VerbirgPunkt("A");
    VerbirgPunkt("B");
    taste(Qt::Key_F);
    EXPECT_EQ(Ort("C").x(), 40) << "hidden points do not count";
    EXPECT_EQ(Ort("E").x(), 760);
}

}  // namespace
}  // namespace zrw
