// The menus: one action for entry, button and key, a letter or a key for each, and what stands in the status
// bar.
#include <QMenu>
#include <QMenuBar>
#include <QStatusTipEvent>
#include <algorithm>
#include <map>
#include <set>

#include "tests/ui/Netzprobe.h"
#include "ui/fenster/Aktionen.h"
#include "ui/fenster/Menuebuchstaben.h"
#include "ui/hilfe/Hilfefenster.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

class Menues : public Netzprobe {
  protected:
    [[nodiscard]] QAction& Aktion(std::string_view name) const {
        return Kind<QAction>((std::string("Aktion") + std::string(name)).c_str());
    }
    /// The entry of the menu bar that begins like this.
    [[nodiscard]] QMenu& Menue(const char* titel) const {
        for (const QAction* a : fenster.menuBar()->actions()) {
            if (a->text().remove('&').startsWith(titel)) return *a->menu();
        }
        throw std::out_of_range(titel);
    }
};

TEST_F(Menues, JederEintragHatSeinenBuchstabenUndZweiZeilen) {
    std::set<QAction*> alle;
    const auto pruefe = [&](const QList<QAction*>& eintraege, const QString& wo) {
        std::set<QChar> buchstaben;
        for (QAction* a : eintraege) {
            if (a->isSeparator()) continue;
            const QChar b = Menuebuchstabe(a->text());
            EXPECT_TRUE(!b.isNull() && buchstaben.insert(b).second) << (wo + ": " + a->text()).toStdString();
            if (wo.isEmpty()) continue;
            alle.insert(a);
            EXPECT_EQ(a->toolTip().count('\n'), 1) << a->text().toStdString();
            EXPECT_TRUE(a->statusTip().contains(": ") || a->statusTip().contains("EIN/AUS"));
            EXPECT_TRUE(a->isCheckable() || !a->icon().isNull()) << a->text().toStdString();
        }
    };
    pruefe(fenster.menuBar()->actions(), {});
    EXPECT_EQ(fenster.menuBar()->actions().size(), static_cast<qsizetype>(kMenues.size()));
    for (const QAction* titel : fenster.menuBar()->actions())
        pruefe(titel->menu()->actions(), titel->text());
    for (const Befehl& b : kBefehle)
        EXPECT_TRUE(alle.contains(&Aktion(b.komponente))) << b.komponente;
    for (const Werkzeugzeile& w : kWerkzeuge)
        EXPECT_TRUE(alle.contains(&Aktion(w.komponente))) << w.komponente;
    for (const Schalter& s : kSchalter)
        EXPECT_TRUE(s.komponente.empty() || alle.contains(&Aktion(s.komponente))) << s.komponente;
}

TEST_F(Menues, EintragKnopfUndTasteSindEins) {
    Aktion("MovePktButton").trigger();
    EXPECT_TRUE(Knopf("MovePktButton").isChecked());
    Modus("DelPunktButton");
    EXPECT_TRUE(Aktion("DelPunktButton").isChecked() && !Aktion("MovePktButton").isChecked());
    Taste(Qt::Key_1);
    EXPECT_TRUE(Knopf("PanButton").isChecked());
    Aktion("WerkzeugAus").trigger();
    EXPECT_FALSE(Knopf("PanButton").isChecked());
    const QImage vorher = fenster.Bild().copy();
    Aktion("CheckBoxPktNr").trigger();
    EXPECT_FALSE(Kasten("CheckBoxPktNr").isChecked() || fenster.Bild() == vorher);
    Kasten("CheckBoxPktNr").click();
    EXPECT_TRUE(Aktion("CheckBoxPktNr").isChecked() && fenster.Bild() == vorher);
    EXPECT_FALSE(Aktion("CheckBoxBlattschnitt").isVisible());
    EXPECT_EQ(Knopf("SpeedButton9").toolTip().section('\n', 0, 0), "Zarwik speichern (Strg+S)");
    // A key that can do nothing says why.
    QTest::keyClick(bild, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Status(), "Es gibt nichts zurückzunehmen.");
    Taste(Qt::Key_F10);
    EXPECT_EQ(QApplication::activePopupWidget(), &Menue("Datei"));
    Menue("Datei").setActiveAction(&Aktion("SpeedButton9"));
    QTest::keyClick(&Menue("Datei"), Qt::Key_F1);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    const QWidgetList offen = QApplication::topLevelWidgets();
    EXPECT_TRUE(std::any_of(offen.begin(), offen.end(), [](const QWidget* w) {
        const auto* hilfe = dynamic_cast<const Hilfefenster*>(w);
        return hilfe != nullptr && hilfe->isVisible() && hilfe->Kontext() == 5;
    })) << "the page of the entry";
    Taste(Qt::Key_F10);
    QTest::keyClick(&Menue("Datei"), Qt::Key_B);
    EXPECT_EQ(dialoge.fragen, QStringList("Zarwik speichern")) << "closes by its letter";
}

TEST_F(Menues, LetzteDateienUndTipps) {
    QMenu& menue = *Aktion("LetzteDateienButton").menu();
    emit menue.aboutToShow();
    ASSERT_EQ(menue.actions().size(), 1);
    EXPECT_TRUE(menue.actions()[0]->text().startsWith("&1"));
    dialoge.antwort = false;
    OeffneDatei("a.EIN");
    emit menue.aboutToShow();
    menue.actions()[1]->trigger();
    EXPECT_NE(Punkt("C"), nullptr);
    const QString meldung = Status();
    const auto zeige = [this](const QString& tipp) {
        QStatusTipEvent e(tipp);
        QCoreApplication::sendEvent(&fenster, &e);
        return Status();
    };
    EXPECT_EQ(zeige("Tipp 1"), "Tipp 1");
    EXPECT_EQ(zeige("Tipp 2"), "Tipp 2");
    EXPECT_EQ(zeige(""), meldung);
    zeige("Tipp 3");
    Taste(Qt::Key_Left);
    EXPECT_NE(zeige(""), meldung) << "a newer message stays";
}

TEST_F(Menues, DieKnopfleisteLaesstKeinenKnopfAllein) {
    auto& rahmen = Kind<QWidget>("WerkzeugRahmen");
    for (const int breite : {300, 420, 600, 800, 1180, 1600}) {
        fenster.resize(breite, 700);
        QCoreApplication::processEvents();
        std::map<int, int> reihen;
        std::set<QAction*> sichtbar;
        for (QToolButton* k : fenster.findChildren<QToolButton*>()) {
            if (!k->isVisible() || k->defaultAction() == nullptr) continue;
            sichtbar.insert(k->defaultAction());
            EXPECT_TRUE(k->parentWidget()->rect().contains(k->geometry())) << breite;
            reihen[k->mapTo(&fenster, QPoint()).y()] += k->objectName() == "SpeedButton10" ? 2 : 1;
        }
        for (const auto& [y, anzahl] : reihen)
            EXPECT_GT(anzahl, 1) << breite << " " << y;
        const auto* mehr = rahmen.findChild<QToolButton*>("MehrKnoepfe");
        for (const Werkzeugzeile& w : kWerkzeuge) {
            QAction* a = &Aktion(w.komponente);
            EXPECT_TRUE(sichtbar.contains(a) || mehr->menu()->actions().contains(a)) << w.komponente;
        }
        EXPECT_EQ(mehr->isVisible(), breite < 500);
    }
}

TEST(Menuebuchstaben, JederBekommtEinenWennEsGeht) {
    const struct {
        QStringList texte;
        QStringList erwartet;
    } faelle[] = {
        {{"Bild", "Bauen", "&Boden"}, {"B&ild", "B&auen", "&Boden"}},
        {{"AB", "A", "B"}, {"A&B", "&A", "B"}},
        {{"AB", "A"}, {"A&B", "&A"}},
        {{"Öl", "A && B", ""}, {"Ö&l", "&A && B", ""}},
        {{"A\tB", "A"}, {"&A\tB", "A"}},
    };
    for (const auto& f : faelle)
        EXPECT_EQ(MitBuchstaben(f.texte), f.erwartet);
}

}  // namespace
}  // namespace zrw
