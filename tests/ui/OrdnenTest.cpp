// Putting point numbers in order: dialog, what stays, one step, picture file.
#include <QCheckBox>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <map>
#include <set>

#include "tests/ui/Fenster.h"

namespace zrw {
namespace {

class Ordnen : public Fensterprobe {
  protected:
    Ordnen() {
        fenster.OeffneDatei(kBeispiel);
        Knopf("SpeedButton3").click();
    }
    /// @param wahl object name of what is ticked besides
    void OrdneNummern(const char* wahl = nullptr) {
        Knopf("NummernOrdnenButton").click();
        if (wahl != nullptr) Kind<QAbstractButton>(wahl).setChecked(true);
        Kind<QPushButton>("OrdnenKnopf").click();
    }
    /// By number.
    [[nodiscard]] std::map<std::string, std::pair<std::int64_t, std::int64_t>> Abstaende() const {
        std::map<std::string, std::pair<std::int64_t, std::int64_t>> alle;
        for (const PunktString* t = fenster.Netz()->PktTextKnoten; t != nullptr; t = t->Next)
            alle[std::string(t->Item->Aus.Text())] = {t->Item->XBiO, t->Item->YBiO};
        return alle;
    }
};

TEST_F(Ordnen, IstEinSchrittUndBleibtInDerZarwikdatei) {
    const Stand vorher = Jetzt();
    OrdneNummern();
    EXPECT_TRUE(Status().endsWith(" Punktnummern geordnet; keine überlappt eine andere"))
        << Status().toStdString();
    const Stand geordnet = Jetzt();
    const auto abstaende = Abstaende();
    EXPECT_NE(geordnet, vorher);
    fenster.Rueckgaengig();
    EXPECT_EQ(Jetzt(), vorher);
    fenster.WiederholeSchritt();
    EXPECT_EQ(Jetzt(), geordnet);
    OrdneNummern();
    EXPECT_TRUE(Status().startsWith("Alle Punktnummern stehen schon so")) << Status().toStdString();
    SpeichereDatei("geordnet.ZRW");
    OeffneDatei("geordnet.ZRW");
    EXPECT_EQ(Abstaende(), abstaende);
    OrdneNummern();
    EXPECT_TRUE(Status().startsWith("Keine Punktnummer zu ordnen")) << Status().toStdString();
}

TEST_F(Ordnen, LaesstVonHandVerschobeneStehen) {
    const Liste& l = *fenster.Netz();
    PunktString& t = *l.PktTextKnoten;
    const PunktKnoten& p = *l.SuchPkt(t.TNr);
    Modus("MoveTextButton");
    const QPoint ort = Pixel(l, p) + QPoint(static_cast<int>(t.Item->XBiO), static_cast<int>(t.Item->YBiO));
    ZieheMaus(ort, ort + QPoint(33, 21));
    const std::pair gezogen(t.Item->XBiO, t.Item->YBiO);
    ASSERT_EQ(gezogen.first, einstellungen.PXOff + 33);
    OrdneNummern();
    EXPECT_EQ(std::pair(t.Item->XBiO, t.Item->YBiO), gezogen);
    OrdneNummern("VerschobeneWahl");
    EXPECT_NE(std::pair(t.Item->XBiO, t.Item->YBiO), gezogen);
}

TEST_F(Ordnen, RechteTasteOrdnetNurDieAusgewaehlten) {
    const auto vorher = Abstaende();
    const Stand stand = Jetzt();
    const Liste& l = *fenster.Netz();
    std::set<std::string> gewaehlt;
    const QPoint mitte = Pixel(l, *l.FindPunkt("HOHFELS"));
    const QRect kasten(mitte - QPoint(60, 60), mitte + QPoint(60, 60));
    for (const PunktKnoten* p = l.PunktKnoten; p != nullptr; p = p->Next)
        if (kasten.contains(Pixel(l, *p))) gewaehlt.insert(std::string(l.FindText(p->PNr)->Item->Aus.Text()));
    ASSERT_GT(gewaehlt.size(), 5U);
    ASSERT_LT(gewaehlt.size(), vorher.size() / 2);
    ZieheMaus(kasten.topLeft(), kasten.bottomRight());
    Klick(mitte, Qt::RightButton);
    for (QAction* a : Kind<QMenu>("FigurenMenue").findChildren<QAction*>())
        if (a->text() == "Punktnummern &ordnen…") a->trigger();
    Kind<QPushButton>("OrdnenKnopf").click();
    std::size_t versetzt = 0;
    for (const auto& [nummer, abstand] : Abstaende()) {
        if (abstand == vorher.at(nummer)) continue;
        EXPECT_TRUE(gewaehlt.contains(nummer)) << nummer;
        ++versetzt;
    }
    EXPECT_GT(versetzt, 3U);
    EXPECT_TRUE(Status().startsWith(QString("%1 Punktnummern geordnet").arg(versetzt)));
    fenster.Rueckgaengig();
    EXPECT_EQ(Jetzt(), stand) << "one step";
    OrdneNummern();
    EXPECT_NE(Abstaende(), vorher);
}

TEST_F(Ordnen, MisstNummernInDerSchriftDesBildes) {
    const Liste& l = *fenster.Netz();
    for (const bool glatt : {false, true}) {
        Knopf("ColorButton").click();
        Kind<QCheckBox>("CheckBoxGlaetten").setChecked(glatt);
        Kind<QDialog>("TZRWParameter").close();
        OrdneNummern("VerschobeneWahl");
        Bildflaeche schrift(1, 1);
        schrift.SetzeGlatt(glatt);
        QList<QRect> kaesten;
        for (const PunktString* t = l.PktTextKnoten; t != nullptr; t = t->Next) {
            const Bildpunkt ort = t->Item->Textort(BildortVon(*t, l, l));
            kaesten << QRect(static_cast<int>(ort.x), static_cast<int>(ort.y),
                             schrift.Textbreite(t->Item->Aus.Text()), schrift.Texthoehe() - 3);
            for (const QRect& k : kaesten)
                EXPECT_TRUE(&k == &kaesten.back() || !k.intersects(kaesten.back()))
                    << glatt << t->Item->Aus.Text();
        }
    }
}

TEST_F(Ordnen, GiltFuerDenDruckmassstab) {
    OrdneNummern();
    const auto bildplaetze = Abstaende();
    auto& feld = Kind<QLineEdit>("EditMasstab");
    feld.setText("viel");
    OrdneNummern("DruckWahl");
    EXPECT_EQ(dialoge.meldungen.size(), 1);
    EXPECT_EQ(Abstaende(), bildplaetze);
    feld.setText("250000");
    OrdneNummern("DruckWahl");
    EXPECT_TRUE(Status().contains("geordnet")) << Status().toStdString();
    EXPECT_NE(Abstaende(), bildplaetze);
}

TEST_F(Ordnen, LegtNummernNichtUeberBlattkanten) {
    // Nothing but numbers reaches the edges.
    Kasten("CheckBoxBeob").setChecked(false);
    einstellungen.ScaleSizes(0);
    Kind<QLineEdit>("EditMasstab").setText("200000");
    dialoge.antwort = true;
    const auto anKanten = [&] {
        Knopf("SpeedButton5").click();
        int pixel = 0;
        for (const QImage& b : drucker.blaetter) {
            for (int x = 0; x < b.width(); ++x)
                pixel += (b.pixel(x, 0) != 0xFFFFFFFF) + (b.pixel(x, b.height() - 1) != 0xFFFFFFFF);
            for (int y = 0; y < b.height(); ++y)
                pixel += (b.pixel(0, y) != 0xFFFFFFFF) + (b.pixel(b.width() - 1, y) != 0xFFFFFFFF);
        }
        return pixel;
    };
    EXPECT_GT(anKanten(), 0);
    OrdneNummern("DruckWahl");
    EXPECT_GT(drucker.blaetter.size(), 2);
    EXPECT_EQ(anKanten(), 0);
}

TEST_F(Ordnen, RuehrtNichtAnWasNichtZuSehenIst) {
    const auto vorher = Abstaende();
    Kasten("CheckBoxPktNr").setChecked(false);
    OrdneNummern();
    EXPECT_EQ(Abstaende(), vorher);
    EXPECT_TRUE(Status().startsWith("Keine Punktnummer zu ordnen")) << Status().toStdString();
}

}  // namespace
}  // namespace zrw
