// Editing says what it edits: the windows of the tools name the figures, and the status line what was done.
#include <QDialog>
#include <QLabel>

#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

class Bearbeiten : public Netzprobe {
  protected:
    [[nodiscard]] QString Enden() const { return Kind<QLabel>("BeobachtungsEnden").text(); }
    [[nodiscard]] QString Vorhaben() const { return Kind<QLabel>("ZentrierVorhaben").text(); }
    void BeginneLinie() const {
        Modus("EditBeobButton");
        FindeTeil("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
    }
};

TEST_F(Bearbeiten, DialogNenntDieBeobachtung) {
    Modus("EditBeobButton");
    EXPECT_EQ(Enden(), "Linie anklicken");
    Klick((C + E) / 2);
    EXPECT_EQ(Enden(), "C nach E");
    EXPECT_EQ(Kind<QLabel>("BeobachtungsEnden").accessibleName(), "Bearbeitete Beobachtung: C nach E");
    BeginneLinie();
    EXPECT_EQ(Enden(), "Ersten Punkt anklicken");
    Klick(A);
    EXPECT_EQ(Enden(), "A: Ziel anklicken");
    Taste(Qt::Key_Escape);
    EXPECT_EQ(Enden(), "Ersten Punkt anklicken");
}

TEST_F(Bearbeiten, LinieFolgtDerMausBisSieFertigIst) {
    const QPoint leer(500, 400);
    BeginneLinie();
    FindeTeil("TFormBeobTyp", "RadioGroupRichtg2").click();  // no dashes
    BewegeMaus(leer);
    const QImage ohne = bild->grab().toImage();
    const Stand vorher = Jetzt();
    Klick(B);
    BewegeMaus(B);  // a mouse that is there already does not move
    BewegeMaus(leer);
    const QImage frei = bild->grab().toImage();
    const auto weiss = [](const QImage& b, QPoint p) {
        const QImage umgebung = b.copy(QRect(p - QPoint(1, 1), QSize(3, 3)));
        return !umgebung.isNull() && umgebung == QImage(b.copy(QRect(600, 450, 3, 3)));
    };
    EXPECT_FALSE(weiss(frei, (B + leer) / 2));
    FindeTeil("TFormBeobTyp", "CheckBoxGps").setChecked(true);
    EXPECT_NE(bild->grab().toImage(), frei) << "it looks as the line would";
    BewegeMaus(E + QPoint(2, 1));
    EXPECT_EQ(Enden(), "B nach E");
    EXPECT_FALSE(weiss(bild->grab().toImage(), (B + E) / 2 + QPoint(0, 20))) << "to the point itself";
    EXPECT_FALSE(weiss(bild->grab().toImage(), E - QPoint(0, 9))) << "with a ring round it";
    EXPECT_EQ(Jetzt(), vorher);
    Taste(Qt::Key_Escape);
    BewegeMaus(leer);
    EXPECT_EQ(bild->grab().toImage(), ohne);
    Klick(B);
    BewegeMaus(E);
    OeffneDatei("a.EIN");
    EXPECT_EQ(Enden(), "Ersten Punkt anklicken");
}

TEST_F(Bearbeiten, JedeAenderungSagtWasSieGetanHat) {
    const auto klick = [this](const char* knopf, QPoint ort) {
        Modus(knopf);
        Klick(ort);
    };
    const auto ziehe = [this](const char* knopf, QPoint von) {
        Modus(knopf);
        ZieheMaus(von, von + QPoint(30, 20));
    };
    const std::vector<std::pair<QString, std::function<void()>>> schritte = {
        {"Punkt A verschoben", [&] { ziehe("MovePktButton", A); }},
        {"Punktnummer B verschoben", [&] { ziehe("MoveTextButton", Textort("B") + QPoint(3, 3)); }},
        {"Punktnummer E versteckt", [&] { klick("HidePktNrButton", Textort("E") + QPoint(3, 3)); }},
        {"Punkt B versteckt", [&] { klick("HidePktButton", B); }},
        {"Punktnummer E wieder gezeigt", [&] { fenster.NummernZeigenClick(); }},
        {"Beobachtung C – E gelöscht", [&] { klick("DelBeobButton", (C + E) / 2); }},
        {"Punkt E gelöscht", [&] { klick("DelPunktButton", E); }},
        {"Punkt N eingefügt", [&] { NeuerPunkt("N", "1500", "1500"); }},
    };
    for (const auto& [satz, tat] : schritte) {
        tat();
        EXPECT_EQ(Status(), satz);
    }
    // It can still be read when the mouse moves on, and the place of the mouse is told as always.
    BewegeMaus({600, 400});
    EXPECT_TRUE(Status().contains(" M=1:"));
    EXPECT_EQ(Kind<QLabel>("StatusAnleitung").text(), schritte.back().first);
    for (auto s = schritte.rbegin(); s != schritte.rend(); ++s) {
        fenster.Rueckgaengig();
        EXPECT_EQ(Status(), "Zurückgenommen: " + s->first);
    }
    fenster.WiederholeSchritt();
    EXPECT_EQ(Status(), "Wiederholt: Punkt A verschoben");
}

TEST_F(Bearbeiten, AuchWasKeinSchrittIstSagtWasEsGetanHat) {
    Kasten("CheckBoxPktNr").setChecked(false);
    EXPECT_EQ(Status(), "Punktnummern ausgeschaltet");
    const_cast<Liste*>(fenster.Netz())->ShowLegende = true;
    const Bildpunkt ecke = fenster.Netz()->Legend->Position();
    const QPoint griff(static_cast<int>(ecke.x), static_cast<int>(ecke.y));
    ZieheMaus(griff, griff + QPoint(40, 30));
    EXPECT_EQ(Status(), "Legende verschoben");
}

TEST_F(Bearbeiten, LangeNummernVerbreiternNichts) {
    const QString lang = "WWWWWWWWWWWWWW";
    LegeDateiAn("l.EIN",
                "$NT 3\n$FP WWWWWWWWWWWWWW 1         1000         1000\n"
                "    MMMMMMMMMMMMMM 1         3000         1000\n"
                "$ST WWWWWWWWWWWWWW MMMMMMMMMMMMMM\n$$$\n");
    Modus("EditBeobButton");
    const int breite = Kind<QDialog>("TFormBeobTyp").sizeHint().width();
    OeffneDatei("l.EIN");
    const QPoint mitte = (Ort("WWWWWWWWWWWWWW") + Ort("MMMMMMMMMMMMMM")) / 2;
    Klick(mitte);
    EXPECT_EQ(Kind<QLabel>("BeobachtungsEnden").toolTip(), lang + " nach MMMMMMMMMMMMMM");
    EXPECT_EQ(Kind<QDialog>("TFormBeobTyp").sizeHint().width(), breite);
}

TEST_F(Bearbeiten, ZentrierkastenNenntWasErTut) {
    Modus("SpeedButton13");
    EXPECT_EQ(Vorhaben(), "Exzentren und Zentrum wählen");
    WaehleTexte("GroupBox1", "ExzListBox", {"A", "C", "D"});
    EXPECT_EQ(Vorhaben(), "Zentrum wählen");
    WaehleTexte("GroupBox1", "PZListBox", {"B"});
    EXPECT_EQ(Vorhaben(), "3 Punkte auf B");
    FindeTeil("GroupBox1", "OkButton").click();
    EXPECT_EQ(Vorhaben(), "Exzentren und Zentrum wählen") << "what was chosen has left the lists";
}

}  // namespace
}  // namespace zrw
