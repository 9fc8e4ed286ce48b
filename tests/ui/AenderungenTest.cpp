// Undoing and redoing, unsaved changes and what is asked about them, networks with nothing in them, and
// files remembered.
#include <cmath>

#include "tests/hilfe/Probenetz.h"
#include "tests/ui/Netzprobe.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

class Aenderungen : public Netzprobe {};

TEST_F(Aenderungen, LeereNetzeUndNetzeOhneLinienUndNummern) {
    LegeDateiAn("leer.ZRW", std::string(84, '\0'));
    LegeDateiAn("ohne.EIN",
                "$NT 3\n$FP A              1         1000         1000\n    B              1 3000 2000\n");
    Probenetz n;  // labels that belong to no point
    n.P(1, 1000, 1000);
    n.P(2, 3000, 2000);
    n.T(8, "X");
    n.T(9, "Y");
    n.K(1, 2);
    const QPoint nummer = Textort("A");
    dialoge.antwort = false;
    OeffneAlsBilddatei(n.l);
    for (const char* datei : {"leer.ZRW", "ohne.EIN", "o.ZRW"}) {
        SCOPED_TRACE(datei);
        OeffneDatei(datei);
        const std::int32_t punkte = fenster.Netz()->MaxPkte;
        for (const char* knopf : {"EinpassenButton", "ButtonGroesser", "ButtonKleiner", "SpeedButton3",
                                  "NummernZeigenButton", "SpeedButton10"}) {
            Knopf(knopf).click();
        }
        EXPECT_TRUE(std::isfinite(fenster.Netz()->Faktor) && fenster.Netz()->Faktor > 0);
        for (const Werkzeugzeile& w : kWerkzeuge) {
            Modus(w.komponente.data());
            for (const QPoint p : {A, B, E, (A + B) / 2, (A + E) / 2, nummer, QPoint(700, 500)}) {
                ZieheMaus(p, p + QPoint(20, 20));
                Klick(p);
                Klick(p, Qt::RightButton);
            }
            Knopf("SpeedButton3").click();
        }
        NimmAllesZurueck();
        EXPECT_EQ(fenster.Netz()->MaxPkte, punkte);
    }
}

TEST_F(Aenderungen, SternUndStandDerSicherung) {
    const auto stern = [this] { return fenster.windowTitle().endsWith('*'); };
    EXPECT_FALSE(stern());
    EXPECT_FALSE(Knopf("RueckgaengigButton").isEnabled());
    Modus("MovePktButton");
    ZieheMaus(A, A + QPoint(10, 0));
    ZieheMaus(B, B + QPoint(10, 0));
    EXPECT_TRUE(stern());
    SpeichereDatei("x.ZRW");
    EXPECT_FALSE(stern());
    fenster.Rueckgaengig();
    EXPECT_TRUE(stern()) << "undone behind what is saved";
    fenster.WiederholeSchritt();
    EXPECT_FALSE(stern());
    fenster.Rueckgaengig();
    ZieheMaus(A + QPoint(10, 0), A + QPoint(10, 30));
    fenster.Rueckgaengig();
    EXPECT_TRUE(stern()) << "the saved state cannot be reached any more";
    SpeichereDatei("fehlt/x.ZRW");
    EXPECT_TRUE(stern()) << "not saved";
    SpeichereDatei({});
    EXPECT_TRUE(stern()) << "cancelled";
    dialoge.antwort = false;
    OeffneDatei("n.EIN");
    EXPECT_FALSE(stern());
    EXPECT_FALSE(Knopf("RueckgaengigButton").isEnabled() || Knopf("WiederholenButton").isEnabled());
    Modus("ZentrierButton");
    Klick(A);
    Klick(B);
    EXPECT_TRUE(stern());
    EXPECT_FALSE(Knopf("RueckgaengigButton").isEnabled()) << "centring is not undone";
}

TEST_F(Aenderungen, MehrSchritteAlsBehaltenWerden) {
    Modus("MovePktButton");
    for (int i = 0; i < 520; ++i)
        ZieheMaus(Ort("E"), Ort("E") + QPoint(i % 2 == 0 ? 9 : -8, 0));
    int schritte = 0;
    for (; Knopf("RueckgaengigButton").isEnabled(); ++schritte)
        fenster.Rueckgaengig();
    EXPECT_GE(schritte, 200);
    EXPECT_LT(schritte, 520) << "memory is bounded";
    EXPECT_TRUE(fenster.Ungesichert()) << "what was read is out of reach";
}

/// Closing and opening with unsaved changes: yes, no, cancel, and yes where the saving fails or is cancelled.
TEST_F(Aenderungen, FrageVorDemVerwerfen) {
    const QString gut = ordner.filePath("gut.ZRW");
    const struct {
        const char* name;
        std::optional<bool> antwort;
        std::optional<QString> datei;
        bool verworfen;
    } faelle[] = {{"ja", true, gut, true},
                  {"nein", false, {}, true},
                  {"abbrechen", {}, gut, false},
                  {"ja, ohne Datei", true, {}, false},
                  {"ja, geht nicht", true, ordner.filePath("fehlt/x.ZRW"), false}};
    for (const bool schliessen : {false, true}) {
        for (const auto& f : faelle) {
            SCOPED_TRACE(f.name);
            Neu();
            fenster.show();
            QFile::remove(gut);
            Modus("DelPunktButton");
            Klick(E);
            const QStringList vorher = Figuren();
            dialoge.fragen.clear();
            dialoge.antwort = f.antwort;
            dialoge.datei = f.datei;
            schliessen ? (void)fenster.close() : OeffneDatei("a.EIN");
            EXPECT_EQ(dialoge.fragen, QStringList{"Zarwik speichern"});
            EXPECT_EQ(QFile::exists(gut), f.antwort == true && f.verworfen);
            if (schliessen) {
                EXPECT_EQ(fenster.isVisible(), !f.verworfen);
            } else {
                EXPECT_EQ(Punkt("Z") != nullptr, f.verworfen);
            }
            if (!f.verworfen) {
                EXPECT_EQ(Aenderung(vorher), QStringList());
                EXPECT_TRUE(fenster.windowTitle().endsWith('*'));
                fenster.Rueckgaengig();
                EXPECT_NE(Punkt("E"), nullptr);
            }
        }
    }
    fenster.show();
    Neu();
    dialoge.fragen.clear();
    OeffneDatei("a.EIN");
    fenster.close();
    EXPECT_TRUE(dialoge.fragen.isEmpty()) << "nothing has been changed";
}

TEST_F(Aenderungen, LetzteDateien) {
    for (int i = 0; i < 12; ++i) {
        const QString name = QString("m%1.EIN").arg(i);
        LegeDateiAn(name, kAnderes);
        OeffneDatei(name);
    }
    OeffneDatei("m5.EIN");
    OeffneDatei("fehlt.EIN");
    Knopf("LetzteDateienButton").click();
    ASSERT_EQ(dialoge.auswahl.size(), 9);
    EXPECT_EQ(dialoge.auswahl[0], ordner.filePath("m5.EIN"));
    EXPECT_EQ(dialoge.auswahl[1], ordner.filePath("m11.EIN"));
    EXPECT_EQ(dialoge.auswahl.count(ordner.filePath("m5.EIN")), 1);
    EXPECT_FALSE(dialoge.auswahl.contains(ordner.filePath("fehlt.EIN")));
    dialoge.datei = ordner.filePath("m9.EIN");
    Knopf("LetzteDateienButton").click();
    EXPECT_TRUE(fenster.windowTitle().endsWith("m9.EIN"));
    QCoreApplication::processEvents();  // the session is written when there is nothing else to do
    EXPECT_EQ(Sitzung(ordner.filePath("sitzung.ini")).LetzteDateien().front(), ordner.filePath("m9.EIN"));
}

}  // namespace
}  // namespace zrw
