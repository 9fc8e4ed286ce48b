// The tool modes: what press, drag, release and abort do to the network and to the view.
#include <QDialog>
#include <functional>
#include <vector>

#include "tests/ui/Netzprobe.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

/// How a drag ends.
enum class Ende { Los, Escape, Rechts, Mitte, Groesse, Werkzeug };

class Werkzeuge : public Netzprobe {
  protected:
    static constexpr QPoint kLeer{700, 500};  // where nothing stands

    void SetUp() override {
        ASSERT_EQ(bild->size(), QSize(800, 530));
        for (const auto& [nummer, ort] : {std::pair{"A", A}, {"B", B}, {"C", C}, {"D", C}, {"E", E}})
            ASSERT_EQ(Ort(nummer), ort) << nummer;
    }
    void BeendeZug(QPoint ort, Ende ende) {
        if (ende == Ende::Escape) Taste(Qt::Key_Escape);
        if (ende == Ende::Rechts) DrueckeTaste(ort, Qt::RightButton);
        if (ende == Ende::Mitte) DrueckeTaste(ort, Qt::MiddleButton);
        if (ende == Ende::Groesse) Bildgroesse({820, 540});
        if (ende == Ende::Werkzeug) Modus("DataButton");
        LassTasteLos(ort);
        if (ende == Ende::Rechts) LassTasteLos(ort, Qt::RightButton);
        if (ende == Ende::Mitte) LassTasteLos(ort, Qt::MiddleButton);
    }
};

TEST_F(Werkzeuge, ZiehenAendertDieListe) {
    const char* punkt = "MovePktButton";
    const char* nummer = "MoveTextButton";
    const QPoint nrA = Textort("A");
    const QPoint nrD = Textort("D");
    const auto nichts = [] {};
    const auto ohne = [this](const char* nr) { return [this, nr] { VerbirgPunkt(nr); }; };
    const auto ohneNummer = [this] { VerbirgNummer("A"); };
    const struct {
        const char* name;
        const char* modus;
        std::function<void()> vorher;
        QPoint druck;
        std::vector<QPoint> weg;
        const char* neu;  // nothing: no change
    } faelle[] = {
        {"mit Linien und Nummer", punkt, nichts, A, {{90, 300}, {145, 240}}, "+ P A 145 240 FP Krei"},
        {"am Rand des Fangs", punkt, nichts, E + QPoint(5, -5), {{390, 130}}, "+ P E 385 135 NP Krei"},
        {"neben dem Fang", punkt, nichts, E + QPoint(6, 0), {{405, 125}}, nullptr},
        {"von zweien an einem Ort der neuere", punkt, nichts, C, {{300, 60}}, "+ P D 300 60 NP Krei"},
        {"Linie zum verborgenen Nachbarn", punkt, ohne("B"), A, {{100, 200}}, "+ P A 100 200 FP Krei"},
        {"verborgener am selben Ort", punkt, ohne("D"), C, {{300, 60}}, "+ P C 300 60 NP Krei"},
        {"mit verborgener Nummer", punkt, ohneNummer, A, {{99, 200}}, "+ P A 99 200 FP Krei"},
        {"ein verborgener Punkt", punkt, ohne("E"), E, {{300, 60}}, nullptr},
        {"hin und zurueck", punkt, nichts, A, {{300, 60}, A}, nullptr},
        {"ohne Bewegung", punkt, nichts, A, {}, nullptr},
        {"aus dem Bild", punkt, nichts, A, {{-300, -60}, {-500, 900}}, "+ P A -500 900 FP Krei"},
        {"Nummer", nummer, nichts, nrA, {nrA + QPoint(7, 7), nrA + QPoint(-30, 12)}, "+ N A -20 7"},
        {"von zwei Nummern die neuere", nummer, nichts, nrD, {nrD + QPoint(0, 40)}, "+ N D 10 35"},
        {"Nummer ohne Bewegung", nummer, nichts, nrA, {nrA + QPoint(9, 9), nrA}, nullptr},
        {"eine verborgene Nummer", nummer, ohne("A"), nrA, {nrA + QPoint(30, 30)}, nullptr},
        {"ein Punkt ist keine Nummer", nummer, nichts, A - QPoint(4, 0), {{300, 300}}, nullptr},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Neu();
        f.vorher();
        Modus(f.modus);
        const QStringList figuren = Figuren();
        const Stand vorher = Jetzt();
        DrueckeTaste(f.druck);
        for (const QPoint p : f.weg)
            BewegeMaus(p);
        LassTasteLos(f.weg.empty() ? f.druck : f.weg.back());
        const QStringList aenderung = Aenderung(figuren);
        PruefeNetz();
        if (f.neu == nullptr) {
            EXPECT_EQ(aenderung, QStringList());
            EXPECT_TRUE(Jetzt() == vorher);
            continue;
        }
        EXPECT_EQ(aenderung.filter("+ "), QStringList(f.neu));
        EXPECT_EQ(aenderung.size(), 2) << "nothing else has changed";
        EXPECT_TRUE(fenster.windowTitle().endsWith('*'));
        fenster.Rueckgaengig();
        EXPECT_TRUE(Jetzt() == vorher);
        fenster.WiederholeSchritt();
        EXPECT_EQ(Aenderung(figuren), aenderung);
    }
}

TEST_F(Werkzeuge, WasGezogenWirdFolgtDerMaus) {
    const struct {
        const char* modus;
        QPoint druck;
        QRect dort;  // where nothing else stands
    } faelle[] = {{"MovePktButton", A, {85, 335, 60, 40}},
                  {"MoveTextButton", Textort("A"), {105, 335, 40, 40}}};
    for (const auto& f : faelle) {
        Neu();
        Modus(f.modus);
        const QImage vorher = bild->grab().toImage().copy(f.dort);
        DrueckeTaste(f.druck);
        BewegeMaus(f.druck + QPoint(-20, 110));
        const QImage dabei = bild->grab().toImage().copy(f.dort);
        EXPECT_FALSE(dabei == vorher) << f.modus;
        LassTasteLos(f.druck + QPoint(-20, 110));
        EXPECT_TRUE(fenster.Bild().copy(f.dort).convertToFormat(dabei.format()) == dabei) << f.modus;
    }
}

TEST_F(Werkzeuge, AbbruchLaesstAllesWieVorher) {
    const struct {
        const char* modus;
        QPoint druck;
    } faelle[] = {{"PanButton", {400, 300}},
                  {"ZoomInButton", {400, 300}},
                  {"MovePktButton", A},
                  {"MovePktButton", C},
                  {"MoveTextButton", Textort("A")}};
    for (const auto& f : faelle) {
        for (const Ende ende : {Ende::Escape, Ende::Rechts, Ende::Mitte, Ende::Groesse, Ende::Werkzeug}) {
            SCOPED_TRACE(std::string(f.modus) + " " + std::to_string(static_cast<int>(ende)));
            Neu();
            Modus(f.modus);
            const QStringList vorher = Figuren();
            const QImage bildVorher = fenster.Bild().copy();
            DrueckeTaste(f.druck);
            BewegeMaus(f.druck + QPoint(30, 40));
            BeendeZug(f.druck + QPoint(50, 20), ende);
            EXPECT_EQ(Aenderung(vorher), QStringList());
            EXPECT_FALSE(fenster.Ungesichert());
            EXPECT_EQ(fenster.Netz()->Faktor, 8);
            Bildgroesse({800, 530});
            EXPECT_TRUE(fenster.Bild() == bildVorher);
            // Nothing is left of the preview either.
            BewegeMaus({790, 520});
            const QImage gezeigt = bild->grab().toImage();
            EXPECT_TRUE(gezeigt == bildVorher.convertToFormat(gezeigt.format()));
        }
    }
}

TEST_F(Werkzeuge, EinAnderesNetzMittenImZiehen) {
    OeffneDatei("a.EIN");
    const QStringList anderes = Figuren();
    const std::string bytes = Gespeichert();
    for (const Werkzeugzeile& w : kWerkzeuge) {
        for (const QPoint druck : {A, Textort("A"), (A + B) / 2}) {
            for (const bool vorherKlick : {false, true}) {
                SCOPED_TRACE(std::string(w.komponente));
                Neu();
                Modus(w.komponente.data());
                if (vorherKlick) Klick(E);
                DrueckeTaste(druck);
                BewegeMaus(druck + QPoint(40, 30));
                OeffneDatei("a.EIN");
                ASSERT_EQ(Aenderung(anderes), QStringList());
                BewegeMaus(druck + QPoint(60, 30));
                LassTasteLos(druck + QPoint(60, 30));
                // A release of the old press does nothing to the new network.
                EXPECT_TRUE(Gespeichert() == bytes);
                EXPECT_FALSE(fenster.Ungesichert());
                (void)bild->grab();
                for (const char* knopf : {"DrawButton", "RadioGroupRichtg2"})
                    fenster.findChild<QAbstractButton*>(knopf)->click();
                EXPECT_EQ(Aenderung(anderes), QStringList());
                Knopf(w.komponente.data()).setChecked(false);
            }
        }
    }
}

TEST_F(Werkzeuge, BeobachtungAendern) {
    struct Fall {
        QPoint klick;
        std::vector<const char*> wahl;
        const char* vorher;
        const char* nachher;
    };
    const QPoint ab = (A + B) / 2;
    const QPoint ce = (C + E) / 2;
    for (const Fall& f : {
             Fall{ab, {"RadioGroupRichtg2"}, "A-B AR1 0", "A-B AR2 0"},
             Fall{ab, {"CheckBoxGps"}, "A-B AR1 0", "A-B AR1 2"},
             Fall{ab, {"CheckBoxGps", "RadioGroupRichtg0"}, "A-B AR1 0", "A-B Null 2"},
             Fall{ab, {"RadioGroupZenit2"}, "A-B AR1 0", "A-B AR1 8"},
             Fall{ab, {"CheckBoxInd", "RadioGroupRichtg0"}, "A-B AR1 0", "A-B ASTI 0"},
             Fall{ab, {"CheckBoxInd", "CheckBoxGps"}, "A-B AR1 0", "A-B AR1 2"},
             Fall{ce, {"CheckBoxStrecke"}, "C-E AST 1", "C-E AST 0"},
             Fall{ce, {"CheckBoxStrecke", "CheckBoxGps"}, "C-E AST 1", "C-E Null 2"},
             Fall{ce, {"RadioGroupZenit1", "RadioGroupRichtg1"}, "C-E AST 1", "C-E AR1 5"},
         }) {
        SCOPED_TRACE(f.nachher);
        Neu();
        Modus("EditBeobButton");
        EXPECT_TRUE(Kind<QDialog>("TFormBeobTyp").isVisible());
        const std::string bytes = Gespeichert();
        const QStringList vorher = Figuren();
        Klick(f.klick);
        EXPECT_FALSE(fenster.Ungesichert()) << "picking changes nothing";
        for (const char* knopf : f.wahl) {
            const QStringList davor = Figuren();
            FindeTeil("TFormBeobTyp", knopf).click();
            EXPECT_EQ(Aenderung(davor).size(), 2) << knopf << " changes the line at once";
        }
        const QStringList erwartet{QString("+ L ") + f.nachher, QString("- L ") + f.vorher};
        EXPECT_EQ(Aenderung(vorher), erwartet);
        // Undone, the dialog shows what the line has: the same choice leads to the same line again.
        fenster.Rueckgaengig();
        FindeTeil("TFormBeobTyp", f.wahl.back()).click();
        EXPECT_EQ(Aenderung(vorher), erwartet);
        NimmAllesZurueck();
        EXPECT_TRUE(Gespeichert() == bytes);
    }
    // Dropped: nothing changes any more.
    const std::function<void()> loesen[] = {
        [this] { Taste(Qt::Key_Escape); }, [this] { Klick(kLeer, Qt::RightButton); },
        [this] { Klick(kLeer); }, [this] { FindeTeil("TFormBeobTyp", "CheckBoxNeuBeob").click(); }};
    for (const auto& loese : loesen) {
        Neu();
        Modus("EditBeobButton");
        Klick(ab);
        loese();
        const QStringList vorher = Figuren();
        FindeTeil("TFormBeobTyp", "RadioGroupRichtg2").click();
        FindeTeil("TFormBeobTyp", "RadioGroupRichtg0").click();
        EXPECT_EQ(Aenderung(vorher), QStringList());
    }
    Knopf("EditBeobButton").click();
    EXPECT_FALSE(Kind<QDialog>("TFormBeobTyp").isVisible());
}

TEST_F(Werkzeuge, BeobachtungEinfuegen) {
    const QStringList neu{"+ L A-E AR2 1"};
    const QStringList statt{"+ L A-B AR2 1", "- L A-B AR1 0"};
    const auto nichts = [] {};
    const auto beideTasten = [this] {
        DrueckeTaste(kLeer);
        Klick(kLeer, Qt::RightButton);
        LassTasteLos(kLeer);
    };
    const struct {
        const char* name;
        QPoint erster;
        std::function<void()> dazwischen;
        QPoint zweiter;
        QStringList erwartet;
    } faelle[] = {
        {"neu", A, nichts, E, neu},
        {"neu, ueber leere Stelle", A, [this] { Klick(kLeer); }, E, neu},
        {"vorhanden", A, nichts, B, statt},
        {"vorhanden, andersherum", B, nichts, A, statt},
        {"auf sich selbst", A, nichts, A, {}},
        {"Escape", A, [this] { Taste(Qt::Key_Escape); }, E, {}},
        {"rechte Taste", A, [this] { Klick(kLeer, Qt::RightButton); }, E, {}},
        {"zweite Taste", A, beideTasten, E, {}},
        {"anderes Werkzeug", A, [this] { Modus("PanButton"), Modus("EditBeobButton"); }, E, {}},
        {"verborgener Punkt", A, [this] { VerbirgPunkt("E"), Modus("EditBeobButton"); }, E, {}},
    };
    for (const auto& f : faelle) {
        SCOPED_TRACE(f.name);
        Neu();
        Modus("EditBeobButton");
        FindeTeil("TFormBeobTyp", "CheckBoxNeuBeob").setChecked(true);
        FindeTeil("TFormBeobTyp", "RadioGroupRichtg2").click();
        FindeTeil("TFormBeobTyp", "CheckBoxStrecke").setChecked(true);
        const std::string bytes = Gespeichert();
        Klick(f.erster);
        BewegeMaus({600, 400});
        EXPECT_EQ(Status(), "Beobachtung einfügen P1 gesetzt P2 anklicken");
        f.dazwischen();
        const QStringList vorher = Figuren();
        Klick(f.zweiter);
        EXPECT_EQ(Aenderung(vorher), f.erwartet);
        PruefeNetz();
        NimmAllesZurueck();
        EXPECT_TRUE(Gespeichert() == bytes);
    }
    Neu();
    Klick(A);
    Klick(E);
    ASSERT_NE(fenster.Netz()->KanteKnoten, nullptr);
    EXPECT_EQ(Name(fenster.Netz()->KanteKnoten->ENr), "E");
    EXPECT_EQ(fenster.Netz()->KanteKnoten->Item->Farbe, einstellungen.GPSCol);
}

TEST_F(Werkzeuge, KlickeLoeschenUndVerbergen) {
    const QPoint ab = (A + B) / 2;
    const QPoint ce = (C + E) / 2;
    const QStringList mitA{"L A-B AR1 0", "L A-C AR1 0", "N A 10 -5", "P A 125 250 FP Krei"};
    const struct {
        const char* modus;
        QPoint klick;
        QStringList getroffen;
    } faelle[] = {
        {"DelPunktButton", A, mitA},
        {"DelPunktButton", C, {"L B-D AR1 0", "N D 10 -5", "P D 250 125 NP Krei"}},
        {"DelPunktButton", ab, {}},
        {"DelBeobButton", ab, {"L A-B AR1 0"}},
        {"DelBeobButton", ce + QPoint(0, 5), {"L C-E AST 1"}},
        {"DelBeobButton", ce + QPoint(0, 7), {}},
        {"DelBeobButton", kLeer, {}},
        {"HidePktButton", A, mitA},
        {"HidePktButton", kLeer, {}},
        {"HidePktNrButton", Textort("A"), {"N A 10 -5"}},
        {"HidePktNrButton", B, {"N B 10 -5"}},
        {"HidePktNrButton", kLeer, {}},
        {"DataButton", A, {}},
        {"DataButton", ab, {}},
        {"PunktartButton", A, {}},
        {"SpeedButton13", A, {}},
    };
    for (const auto& f : faelle) {
        QStringList erwartet;
        for (const QString& figur : f.getroffen) {
            erwartet << "- " + figur;
            if (QString(f.modus).startsWith("Hide")) erwartet << "+ " + figur + " -";  // hidden, not gone
        }
        erwartet.sort();
        SCOPED_TRACE(f.modus);
        Neu();
        Modus(f.modus);
        const QStringList vorher = Figuren();
        const Stand stand = Jetzt();
        BewegeMaus({790, 5});
        const QImage ohne = bild->grab().toImage();
        BewegeMaus(f.klick);
        EXPECT_TRUE(erwartet.isEmpty() || bild->grab().toImage() != ohne) << "the hit is highlighted";
        Klick(f.klick);
        EXPECT_EQ(Aenderung(vorher), erwartet);
        PruefeNetz();
        EXPECT_EQ(fenster.Ungesichert(), !erwartet.isEmpty());
        Klick(f.klick, Qt::RightButton);
        EXPECT_EQ(Aenderung(vorher), erwartet) << "the right button takes nothing";
        NimmAllesZurueck();
        EXPECT_TRUE(Jetzt() == stand);
    }
}

TEST_F(Werkzeuge, ZoomenMitRechteckUndKlick) {
    struct Fall {
        const char* name;
        QPoint von, nach;
        double faktor;
        QPoint bleibt;  // this picture position keeps its world position ...
        QPoint dort;    // ... and is then shown here
    };
    Modus("ZoomInButton");
    for (const Fall& f : {
             Fall{"Rechteck", {100, 100}, {500, 365}, 4, {300, 232}, {400, 265}},
             Fall{"rueckwaerts", {500, 365}, {100, 100}, 4, {300, 232}, {400, 265}},
             Fall{"breit", {0, 200}, {400, 210}, 4, {200, 205}, {400, 265}},
             Fall{"hoch", {300, 0}, {310, 265}, 4, {305, 132}, {400, 265}},
             Fall{"Klick", {125, 250}, {125, 250}, 8.0 * 2 / 3, {125, 250}, {125, 250}},
             Fall{"Zittern", {125, 250}, {128, 247}, 8.0 * 2 / 3, {128, 247}, {128, 247}},
         }) {
        SCOPED_TRACE(f.name);
        const QImage vorher = fenster.Bild().copy();
        const Liste& l = *fenster.Netz();
        const Welt ort = l.BildinWelt({f.bleibt.x(), f.bleibt.y()});
        ZieheMaus(f.von, f.nach);
        EXPECT_NEAR(l.Faktor, f.faktor, 1e-9);
        const Welt danach = l.BildinWelt({f.dort.x(), f.dort.y()});
        EXPECT_NEAR(danach.rechts, ort.rechts, 8) << "within a pixel";
        EXPECT_NEAR(danach.hoch, ort.hoch, 8);
        EXPECT_FALSE(fenster.Ungesichert());
        Klick({1, 1}, Qt::RightButton);
        EXPECT_EQ(l.Faktor, 8);
        EXPECT_TRUE(fenster.Bild() == vorher);
        Klick({1, 1}, Qt::RightButton);
        EXPECT_TRUE(fenster.Bild() == vorher) << "there is no view before the first";
    }
    const QImage vorher = fenster.Bild().copy();
    Klick({300, 200});
    const QImage eins = fenster.Bild().copy();
    Klick({300, 200});
    Klick({300, 200}, Qt::RightButton);
    EXPECT_TRUE(fenster.Bild() == eins);
    Klick({300, 200}, Qt::RightButton);
    EXPECT_TRUE(fenster.Bild() == vorher);
}

TEST_F(Werkzeuge, ZeigerUndStatustextJederArt) {
    QStringList texte;
    for (const Werkzeugzeile& w : kWerkzeuge) {
        Modus(w.komponente.data());
        EXPECT_GT(Status().size(), 20) << w.komponente;
        EXPECT_FALSE(Knopf(w.komponente.data()).icon().isNull()) << w.bild << " is no picture";
        texte << Status();
        for (const Werkzeugzeile& anderes : kWerkzeuge)
            EXPECT_EQ(Knopf(anderes.komponente.data()).isChecked(), &anderes == &w);
        EXPECT_EQ(bild->cursor().shape() == Qt::ArrowCursor, w.komponente == "SpeedButton13") << w.komponente;
    }
    EXPECT_EQ(texte.removeDuplicates(), 0);
    Knopf("DataButton").click();
    EXPECT_EQ(bild->cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(Knopf("DataButton").isChecked());
}

}  // namespace
}  // namespace zrw
