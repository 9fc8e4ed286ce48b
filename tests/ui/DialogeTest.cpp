// The small windows around the main window, each driven by its own controls.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QSpinBox>
#include <QTest>

#include "model/Farbpaletten.h"
#include "tests/hilfe/Antwortdienst.h"
#include "tests/hilfe/Speicherdateien.h"
#include "ui/dialoge/Farbfeld.h"
#include "ui/dialoge/TAboutBox.h"
#include "ui/dialoge/TFormBeobTyp.h"
#include "ui/dialoge/TFormHiddenPkt.h"
#include "ui/dialoge/TFormHidePunkte.h"
#include "ui/dialoge/TFormPunktart.h"
#include "ui/dialoge/TZRWParameter.h"

namespace zrw {
namespace {

template <class Teil = QAbstractButton>
Teil& FindeTeil(const QWidget& dialog, const char* name) {
    auto* teil = dialog.findChild<Teil*>(name);
    if (teil == nullptr) throw std::runtime_error(std::string("no component ") + name);
    return *teil;
}

void KlickeKnoepfe(const QWidget& dialog, std::initializer_list<const char*> namen) {
    for (const char* name : namen)
        FindeTeil(dialog, name).click();
}

void WaehleZeilen(const QListView& liste, std::initializer_list<int> zeilen) {
    for (const int zeile : zeilen)
        liste.selectionModel()->select(liste.model()->index(zeile, 0), QItemSelectionModel::Select);
}

TEST(Beobachtungstyp, WahlUndTyp) {
    using L = LinieAttr;
    struct Fall {
        L richtung;
        std::uint8_t maske;
        Beobachtungswahl wahl;
        L zurueck;
        std::uint8_t maskeZurueck;
    };
    for (const Fall& f : {
             Fall{L::AST, 0x00, {0, false, false, false, 0}, L::AST, 0x00},
             Fall{L::Null, 0x02, {0, false, true, false, 0}, L::Null, 0x02},  // GPS alone has no direction
             Fall{L::Null, 0x01, {0, true, false, false, 0}, L::AST, 0x01},
             Fall{L::Null, 0x03, {0, true, true, false, 0}, L::AST, 0x03},
             Fall{L::AST, 0x06, {0, false, true, false, 1}, L::AST, 0x06},
             Fall{L::AR1, 0x02, {1, false, true, false, 0}, L::AR1, 0x02},
             Fall{L::AR2, 0x09, {2, true, false, false, 2}, L::AR2, 0x09},
             Fall{L::ASTI, 0x01, {0, true, false, true, 0}, L::ASTI, 0x01},
             Fall{L::ARI1, 0x04, {1, false, false, true, 1}, L::ARI1, 0x04},
             Fall{L::ARI2, 0x0C, {2, false, false, true, 2}, L::ARI2, 0x08},  // against the line wins
             Fall{static_cast<L>(7), 0xF1, {0, true, false, false, 0}, L::AST, 0xF1},
             Fall{static_cast<L>(255), 0xA2, {0, false, true, false, 0}, L::Null, 0xA2},
         }) {
        const auto name = testing::Message() << int(f.richtung) << '/' << int(f.maske);
        const KanteAttr weitere = KanteAttr::AusMaske(f.maske);
        EXPECT_EQ(AlsWahl({f.richtung, weitere}), f.wahl) << name;
        EXPECT_EQ(AlsTyp(f.wahl, weitere), (Beobachtungstyp{f.zurueck, KanteAttr::AusMaske(f.maskeZurueck)}))
            << name;
    }
}

// What the window tests do not press.
TEST(TFormBeobTyp, GpsNieIndirekt) {
    Antwortdienst dialoge;
    TFormBeobTyp form(dialoge, nullptr);
    form.ZeigeWahl({0, false, true, false, 2});
    KlickeKnoepfe(form, {"CheckBoxInd"});
    EXPECT_EQ(dialoge.gesagt, QStringList{"GPS indirekt nicht möglich!"});
    EXPECT_EQ(form.Wahl(), (Beobachtungswahl{0, false, true, false, 2}));
}

TEST(TFormPunktart, FremdesSymbolUndArtNachFarbe) {
    TFormPunktart form(nullptr);
    form.ZeigeEingabe({"12", PunktArt::FH, static_cast<PunktTyp>(9), "1", "2", false});
    EXPECT_EQ(form.Eingabe().symbol, static_cast<PunktTyp>(9)) << "no button for it, kept";
    Einstellungen s;
    s.FHCol = s.NPCol;
    EXPECT_EQ(ArtNachFarbe(s.FLCol, s), PunktArt::FL);
    EXPECT_EQ(ArtNachFarbe(s.NPCol, s), PunktArt::FH) << "the first of two with one colour";
    EXPECT_EQ(ArtNachFarbe({0x123456}, s), PunktArt::NP);
}

TEST(TFormHidePunkte, GefiltertSortiertUndMitAllenPunktenSchnell) {
    TFormHidePunkte form(nullptr);
    TFormHiddenPkt versteckt(nullptr);
    auto& liste = FindeTeil<QListView>(form, "ListBoxPkt");
    form.verstecken = [&](const QStringList& nummern) { versteckt.NimmNummern(nummern); };
    form.FuelleListe({"B2", "a1", "C3", "A4"});
    WaehleZeilen(liste, {3, 0, 1});
    QTest::keyClicks(&FindeTeil<QLineEdit>(form, "FilterPkt"), "A");
    KlickeKnoepfe(form, {"Button1", "Button1"});
    EXPECT_EQ(versteckt.Nummern(), (QStringList{"a1", "a1", "A4", "A4"}));
    WaehleZeilen(FindeTeil<QListView>(versteckt, "ListBox1"), {1, 2});
    versteckt.NimmNummer("a0");  // what is selected stays selected around it
    QStringList gezeigt;
    versteckt.zeige = [&](const QString& nummer) { gezeigt << nummer; };
    KlickeKnoepfe(versteckt, {"UnhiddenButton"});
    EXPECT_EQ(gezeigt, (QStringList{"a1", "A4"}));

    QStringList viele;
    for (int i = 0; i < 65535; ++i)
        viele << QString::number(i * 7919 % 65535);
    form.show();
    QElapsedTimer uhr;
    uhr.start();
    form.FuelleListe(viele);
    EXPECT_FALSE(liste.isRowHidden(0)) << "new entries, no filter";
    QTest::keyClicks(&FindeTeil<QLineEdit>(form, "FilterPkt"), "1\b");
    liste.selectAll();
    KlickeKnoepfe(form, {"Button1"});
    QCoreApplication::processEvents();
    EXPECT_LT(uhr.elapsed(), 1000);
    EXPECT_EQ(versteckt.Nummern().size(), 65535 + 3);
}

class Parameter : public testing::Test {
  protected:
    ~Parameter() override { delete form; }
    Einstellungen e;
    Vorlieben vorlieben;
    Speichereinstellungen ablage;
    Antwortdienst dialoge;
    QPointer<TZRWParameter> form = new TZRWParameter(e, vorlieben, ablage, dialoge, nullptr);
};

TEST_F(Parameter, JedesFeldAendertSeineEinstellungSofort) {
    using E = Einstellungen;
    std::uint32_t farbe = 0x102030;
    const std::pair<const char*, Farbe E::*> felder[] = {
        {"TXPanel", &E::TXCol},     {"FPPanel", &E::FPCol},     {"FLPanel", &E::FLCol},
        {"FHPanel", &E::FHCol},     {"NPPanel", &E::NPCol},     {"RIPanel", &E::RICol},
        {"AZPanel", &E::AZCol},     {"GPSPanel", &E::GPSCol},   {"TKPanel", &E::TKCol},
        {"PPPanel", &E::PPCol},     {"LGResPanel", &E::LGRCol}, {"HresPanel", &E::HRCol},
        {"LGGenPanel", &E::LGGCol}, {"HgenPanel", &E::HGCol},   {"GFPanel", &E::GFCol}};
    for (const auto& [name, feld] : felder) {
        auto& panel = dynamic_cast<Farbfeld&>(FindeTeil(*form, name));
        dialoge.farbe = Farbe{++farbe};
        QTest::keyClick(&panel, Qt::Key_Space);
        dialoge.farbe.reset();
        QTest::mouseClick(&panel, Qt::LeftButton);  // cancelled
        EXPECT_EQ((e.*feld).wert, farbe) << name;
        EXPECT_EQ(panel.Wert(), e.*feld) << name;
    }
    EXPECT_EQ(e.TXCol.wert, 0x102031U) << "no panel has changed another's";
    int zahl = 10;
    for (const char* name : {"SpinEdit1", "SpinEdit2", "SpinEdit3", "SpinEdit4", "SpinEdit5"})
        FindeTeil<QSpinBox>(*form, name).setValue(++zahl);
    EXPECT_TRUE(e.PTSize == 11 && e.HPSize == 12 && e.Fang == 13 && e.PXOff == 14 && e.PYOff == 15);

    // What another part of the program changed is shown on activation, and not cut to the range by that.
    e.PTSize = 300;
    e.PXOff = -7;
    QEvent aktiv(QEvent::WindowActivate);
    QCoreApplication::sendEvent(form, &aktiv);
    EXPECT_EQ(FindeTeil<QSpinBox>(*form, "SpinEdit4").value(), -7);
    EXPECT_EQ(e.PTSize, 300);
}

TEST_F(Parameter, PalettenUndVorgaben) {
    auto& palette = FindeTeil<QComboBox>(*form, "FarbPalette");
    EXPECT_EQ(palette.currentText(), "Vorgabe");
    QTest::keyClicks(&palette, "K");
    EXPECT_EQ(FarbenAus(e), kFarbpaletten[1].farben);
    EXPECT_EQ(dynamic_cast<Farbfeld&>(FindeTeil(*form, "NPPanel")).Wert(), e.NPCol) << "shown at once";
    dialoge.farbe = Farbe{0x123456};
    KlickeKnoepfe(*form, {"TKPanel"});
    EXPECT_EQ(palette.currentText(), "Eigene");
    for (const Qt::Key taste : {Qt::Key_Up, Qt::Key_Down})
        QTest::keyClick(&palette, taste);
    EXPECT_EQ(palette.currentText(), "Schwarzweiß") << "nobody chooses his own";
    FindeTeil<QSpinBox>(*form, "SpinEdit3").setValue(9);
    FindeTeil<QLineEdit>(*form, "EditZoomfaktor").setText("4");
    KlickeKnoepfe(*form, {"CheckBoxMausrad", "VorgabenKnopf"});
    EXPECT_EQ(e.Fang, 9) << "answered with no";
    dialoge.ja = true;
    KlickeKnoepfe(*form, {"VorgabenKnopf"});
    EXPECT_TRUE(palette.currentText() == "Vorgabe" && e.Fang == 5 && !vorlieben.RadUmgekehrt);
    EXPECT_EQ(e.Zoomschritt, Einstellungen{}.Zoomschritt);
    EXPECT_EQ(FindeTeil<QLineEdit>(*form, "EditZoomfaktor").text(), "1.5");
}

TEST_F(Parameter, ZoomfaktorWirdBeimTippenGeprueft) {
    auto& feld = FindeTeil<QLineEdit>(*form, "EditZoomfaktor");
    EXPECT_EQ(feld.text(), "1.5");
    const QColor normal = feld.palette().color(QPalette::Base);
    for (const char* text : {"1.01", "100", "2.5"}) {
        for (const char* schlecht : {"0", "-2", "1", "1.009", "100.1", "2,5", "abc", "1e999", ""}) {
            feld.setText(text);
            EXPECT_EQ(feld.palette().color(QPalette::Base), normal) << text;
            feld.setText(schlecht);
            EXPECT_EQ(e.Zoomschritt, 1 / std::stod(text)) << schlecht;
            EXPECT_NE(feld.palette().color(QPalette::Base), normal) << schlecht;
        }
    }
}

TEST_F(Parameter, ResiduenmassstabBeimVerlassenUndSichernBeimSchliessen) {
    std::size_t gesichert = 0;
    form->geschlossen = [&] { gesichert += ablage.geschrieben.size(); };
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    auto& feld = FindeTeil<QLineEdit>(*form, "EditMFRes");
    EXPECT_EQ(feld.text(), "1");
    const auto tippe = [&](const char* text) {
        feld.setFocus();
        feld.selectAll();
        QTest::keyClicks(&feld, text);
    };
    tippe("2.5\r");
    EXPECT_TRUE(form->isVisible()) << "Enter ends the input only";
    int meldungen = 0;
    for (const char* text : {"abc\t", "1:2\t", "2,5\r"}) {
        tippe(text);
        EXPECT_EQ(dialoge.meldungen.size(), ++meldungen) << text;
        EXPECT_EQ(feld.text(), "2.5") << text;
        EXPECT_EQ(e.ResMF, 2.5) << text;
    }
    for (const auto& [text, wert] : {std::pair{"0\r", 0.0}, {"-1\t", -1.0}}) {
        tippe(text);
        EXPECT_EQ(dialoge.meldungen.size(), ++meldungen) << "taken, but not in silence";
        EXPECT_EQ(e.ResMF, wert);
    }
    tippe("4");
    QTest::keyClick(&feld, Qt::Key_Escape);  // closes without leaving the field
    EXPECT_EQ(gesichert, 25U) << "once, and before the call";
    EXPECT_EQ(ablage.werte["ResMF"], "4");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(form.isNull()) << "deletes itself";
}

TEST(TAboutBox, NenntVersionUndZeigtDasBild) {
    const TAboutBox box("1.2", nullptr);
    EXPECT_EQ(FindeTeil<QLabel>(box, "VersionLabel").text(), "Version 1.2");
    EXPECT_FALSE(FindeTeil<QLabel>(box, "ProgramIcon").pixmap().toImage().allGray());
}

}  // namespace
}  // namespace zrw
