// Undoing and redoing, unsaved changes and what is asked about them, networks with nothing in them, and
// files remembered.
#include <cmath>
#include <random>
#include <vector>

#include "tests/hilfe/Probenetz.h"
#include "tests/ui/Netzprobe.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

class Aenderungen : public Netzprobe {};

/// Random edits with every mode; undoing and redoing them all gives the very same files and pictures.
TEST_F(Aenderungen, AllesZurueckUndWiederVor) {
    for (const unsigned saat : {1U, 2U, 3U}) {
        SCOPED_TRACE(saat);
        Neu();
        std::mt19937 zufall(saat);
        const auto w = [&](int n) { return static_cast<int>(zufall() % static_cast<unsigned>(n)); };
        const auto irgendwo = [&] {
            const QPoint wackeln(w(7) - 3, w(7) - 3);
            if (w(5) == 0) return QPoint(w(800), w(530));
            const Liste& l = *fenster.Netz();
            std::vector<QPoint> orte;
            for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next)
                orte.emplace_back(static_cast<int>(p->Item->XO), static_cast<int>(p->Item->YO));
            for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next)
                orte.emplace_back(static_cast<int>(t->Item->Textort().x),
                                  static_cast<int>(t->Item->Textort().y));
            for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next) {
                orte.emplace_back(static_cast<int>((k->Item->XO + k->Item->XBiE) / 2),
                                  static_cast<int>((k->Item->YO + k->Item->YBiE) / 2));
            }
            return orte.empty() ? wackeln : orte[zufall() % orte.size()] + wackeln;
        };
        const Stand anfang = Jetzt();
        for (int i = 0; i < 300; ++i) {
            const char* modi[] = {"MovePktButton",  "MoveTextButton", "EditBeobButton",
                                  "EditBeobButton", "PunktartButton", "PunktartButton",
                                  "DelBeobButton",  "HidePktButton",  "HidePktNrButton"};
            Modus(w(25) == 0 ? "DelPunktButton" : modi[w(9)]);
            Ziehe(irgendwo(), irgendwo());
            Klick(irgendwo());
            const int wahl = w(12);
            if (wahl < 3) {
                Finde("TFormPunktart", "CheckBoxNeuPkt").setChecked(wahl == 0);
                Finde("TFormPunktart", ("RadioGroupPktArt" + std::to_string(w(4))).c_str()).click();
                Finde("TFormPunktart", ("RadioGroupSymb" + std::to_string(w(6))).c_str()).click();
                if (wahl == 0) {
                    Zeichne(QString("N%1").arg(i), QString::number(w(6000)), QString::number(w(3500)));
                } else {
                    Finde("TFormPunktart", "DrawButton").click();
                }
            } else if (wahl < 6) {
                Finde("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(wahl == 3);
                Finde("TFormBeobTyp", ("RadioGroupRichtg" + std::to_string(w(3))).c_str()).click();
                Finde("TFormBeobTyp", wahl == 4 ? "CheckBoxStrecke" : "CheckBoxGps").click();
            } else if (wahl == 6) {
                Waehle("TFormHiddenPkt", "ListBox1", Eintraege("TFormHiddenPkt", "ListBox1").mid(0, 2));
                Finde("TFormHiddenPkt", "UnhiddenButton").click();
            } else if (wahl == 7) {
                Knopf("NummernZeigenButton").click();
            } else if (wahl == 8) {
                for (int n = w(6); n > 0; --n)
                    fenster.Rueckgaengig();
                if (w(2) == 0) fenster.Wiederhole();
            }
            PruefeNetz();
            if (HasFatalFailure()) return;
        }
        const QStringList figuren = Figuren();
        const Stand ende = Jetzt();
        ASSERT_FALSE(ende == anfang);
        NimmAllesZurueck();
        EXPECT_TRUE(Jetzt() == anfang);
        EXPECT_FALSE(fenster.Ungesichert());
        EXPECT_FALSE(fenster.windowTitle().endsWith('*'));
        while (Knopf("WiederholenButton").isEnabled())
            fenster.Wiederhole();
        EXPECT_EQ(Aenderung(figuren), QStringList());
        EXPECT_TRUE(Jetzt() == ende);
    }
}

TEST_F(Aenderungen, AlleGeloeschtUndZurueck) {
    const Stand vorher = Jetzt();
    Modus("DelPunktButton");
    for (const QPoint p : {A, B, C, C, E})
        Klick(p);
    EXPECT_EQ(Figuren(), QStringList());
    PruefeNetz();
    Knopf("EinpassenButton").click();
    EXPECT_TRUE(Status().contains("kein Punkt sichtbar"));
    for (const Werkzeugzeile& w : kWerkzeuge) {
        Modus(w.komponente.data());
        Ziehe(A, B);
        Klick(A, Qt::RightButton);
    }
    Knopf("SpeedButton3").click();
    NimmAllesZurueck();
    Knopf("SpeedButton3").click();
    EXPECT_TRUE(Jetzt() == vorher);
}

TEST_F(Aenderungen, LeereNetzeUndNetzeOhneLinienUndNummern) {
    Lege("leer.ZRW", std::string(84, '\0'));
    Lege("ohne.EIN",
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
        Oeffne(datei);
        const std::int32_t punkte = fenster.Netz()->MaxPkte;
        for (const char* knopf : {"EinpassenButton", "ButtonGroesser", "ButtonKleiner", "SpeedButton3",
                                  "NummernZeigenButton", "SpeedButton10"}) {
            Knopf(knopf).click();
        }
        EXPECT_TRUE(std::isfinite(fenster.Netz()->Faktor) && fenster.Netz()->Faktor > 0);
        for (const Werkzeugzeile& w : kWerkzeuge) {
            Modus(w.komponente.data());
            for (const QPoint p : {A, B, E, (A + B) / 2, (A + E) / 2, nummer, QPoint(700, 500)}) {
                Ziehe(p, p + QPoint(20, 20));
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
    Ziehe(A, A + QPoint(10, 0));
    Ziehe(B, B + QPoint(10, 0));
    EXPECT_TRUE(stern());
    Speichere("x.ZRW");
    EXPECT_FALSE(stern());
    fenster.Rueckgaengig();
    EXPECT_TRUE(stern()) << "undone behind what is saved";
    fenster.Wiederhole();
    EXPECT_FALSE(stern());
    fenster.Rueckgaengig();
    Ziehe(A + QPoint(10, 0), A + QPoint(10, 30));
    fenster.Rueckgaengig();
    EXPECT_TRUE(stern()) << "the saved state cannot be reached any more";
    Speichere("fehlt/x.ZRW");
    EXPECT_TRUE(stern()) << "not saved";
    Speichere({});
    EXPECT_TRUE(stern()) << "cancelled";
    dialoge.antwort = false;
    Oeffne("n.EIN");
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
        Ziehe(Ort("E"), Ort("E") + QPoint(i % 2 == 0 ? 9 : -8, 0));
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
            schliessen ? (void)fenster.close() : Oeffne("a.EIN");
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
    Oeffne("a.EIN");
    fenster.close();
    EXPECT_TRUE(dialoge.fragen.isEmpty()) << "nothing has been changed";
}

TEST_F(Aenderungen, LetzteDateien) {
    for (int i = 0; i < 12; ++i) {
        const QString name = QString("m%1.EIN").arg(i);
        Lege(name, kAnderes);
        Oeffne(name);
    }
    Oeffne("m5.EIN");
    Oeffne("fehlt.EIN");
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
