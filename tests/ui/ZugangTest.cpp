// The window for those who do not see it: names in Qt's accessibility tree, and what the picture tells.
#include <QAccessible>
#include <QDialog>
#include <QMenuBar>
#include <QPrinter>
#include <QRegularExpression>
#include <set>

#include "tests/ui/Netzprobe.h"
#include "ui/druck/Druckvorschau.h"
#include "ui/fenster/Aktionen.h"
#include "ui/werkzeuge/Werkzeugtafel.h"

namespace zrw {
namespace {

struct Leerplan final : Vorschauplan {
    Druckwerk Werk() override { return {}; }
    QImage Uebersicht() override { return {9, 9, QImage::Format_RGB32}; }
    std::vector<Vorschaublatt> Blaetter() override { return {}; }
    void SchalteBlatt(QPoint /*ort*/) override {}
    void VerschiebeBlaetter(QPoint /*weg*/) override {}
    QString Massstab() const override { return "1"; }
    void SetzeMassstab(const QString& /*text*/) override {}
    void NimmPapier() override {}
};

class Zugang : public Netzprobe {
  protected:
    /// Every widget that the tree of a window holds.
    static void SammleWidgets(QAccessibleInterface* teil, std::set<const QWidget*>& aus) {
        if (teil == nullptr || !teil->isValid()) return;
        if (const auto* w = qobject_cast<const QWidget*>(teil->object())) aus.insert(w);
        for (int i = 0; i < teil->childCount(); ++i)
            SammleWidgets(teil->child(i), aus);
    }
    /// @return how many widgets of the window can have the keyboard; each must have a name
    static int PruefeNamen(QWidget& fenster) {
        std::set<const QWidget*> baum;
        SammleWidgets(QAccessible::queryAccessibleInterface(&fenster), baum);
        int anzahl = 0;
        for (QWidget* w : fenster.findChildren<QWidget*>()) {
            if (!w->isVisible() || w->window() != &fenster || w->focusPolicy() == Qt::NoFocus ||
                w->focusProxy() != nullptr)
                continue;
            ++anzahl;
            const std::string wer = (fenster.objectName() + " " + w->metaObject()->className() + " " +
                                     w->objectName() + " in " + w->parentWidget()->objectName())
                                        .toStdString();
            EXPECT_TRUE(baum.contains(w)) << wer;
            EXPECT_FALSE(QAccessible::queryAccessibleInterface(w)->text(QAccessible::Name).isEmpty()) << wer;
        }
        return anzahl;
    }
};

TEST_F(Zugang, WasDieTastaturHabenKannHatEinenNamen) {
    EXPECT_GT(PruefeNamen(fenster), 50);
    Modus("SpeedButton13");
    LegeDateiAn("weit.EIN", "$NT 3\n$FP A              1 0 0\n    B              1 0 90000\n$$$\n");
    OeffneDatei("weit.EIN");
    fenster.resize(420, 700);
    QCoreApplication::processEvents();
    PruefeNamen(fenster);
    for (const char* knopf : {"PunktartButton", "EditBeobButton", "SpeedButton14", "SpeedButton15",
                              "DataButton", "ColorButton", "SpeedButton4", "SpeedButton6"})
        Knopf(knopf).click();
    Kind<QAction>("AktionNetzImport").trigger();
    for (QDialog* dialog : fenster.findChildren<QDialog*>())
        dialog->show();
    QPrinter geraet;
    Leerplan plan;
    Druckvorschau vorschau(geraet, plan, &fenster);
    vorschau.show();
    int fensterzahl = 0;
    for (QWidget* w : QApplication::topLevelWidgets()) {
        if (!w->isVisible() || w == &fenster || w->windowType() == Qt::Popup) continue;
        EXPECT_GT(PruefeNamen(*w), 0) << w->objectName().toStdString();
        ++fensterzahl;
    }
    EXPECT_EQ(fensterzahl, 13);
}

TEST_F(Zugang, JederBefehlStehtImBaum) {
    QStringList namen;
    QAccessibleInterface* leiste = QAccessible::queryAccessibleInterface(fenster.menuBar());
    ASSERT_EQ(leiste->childCount(), static_cast<int>(kMenues.size()));
    for (int i = 0; i < leiste->childCount(); ++i) {
        QAccessibleInterface* menue = leiste->child(i)->child(0);
        ASSERT_NE(menue, nullptr);
        for (int k = 0; k < menue->childCount(); ++k)
            namen << menue->child(k)->text(QAccessible::Name).section('\t', 0, 0);
    }
    const auto aktionen = fenster.findChildren<QAction*>(QRegularExpression("^Aktion"));
    EXPECT_GE(static_cast<std::size_t>(aktionen.size()), kBefehle.size() + kWerkzeuge.size() + 10);
    for (const QAction* a : aktionen)
        EXPECT_TRUE(namen.contains(a->text().section('\t', 0, 0).remove('&'))) << a->text().toStdString();
}

std::vector<QAccessible::Event> gemeldet;
void Merke(QAccessibleEvent* e) {
    if (e->object() != nullptr && e->object()->objectName() == "ImageZarwik") gemeldet.push_back(e->type());
}

TEST_F(Zugang, DasBildSagtWelcherPunktEsIst) {
    QAccessibleInterface* zugang = QAccessible::queryAccessibleInterface(bild);
    EXPECT_EQ(zugang->role(), QAccessible::Canvas);
    EXPECT_EQ(zugang->text(QAccessible::Name), "Netzbild");
    EXPECT_EQ(zugang->text(QAccessible::Value), "");
    QAccessible::setActive(true);
    gemeldet.clear();
    const auto vorher = QAccessible::installUpdateHandler(&Merke);
    QTest::keyClick(bild, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(zugang->text(QAccessible::Value), Status());
    EXPECT_TRUE(Status().startsWith("Punkt B, Festpunkt, "));
    EXPECT_EQ(zugang->text(QAccessible::Description), Status());
    Taste(Qt::Key_Escape);
    EXPECT_EQ(zugang->text(QAccessible::Value), "");
    std::erase(gemeldet, QAccessible::Focus);
    // Without a screen the toolkit tells nobody.
    if (QAccessible::isActive()) {
        EXPECT_EQ(gemeldet, (std::vector{QAccessible::ValueChanged, QAccessible::DescriptionChanged,
                                         QAccessible::ValueChanged, QAccessible::DescriptionChanged}));
    }
    QAccessible::installUpdateHandler(vorher);
}

}  // namespace
}  // namespace zrw
