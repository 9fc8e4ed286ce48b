// The colours of the settings handed on to the open network, and the wheel that turns the other way.
#include <QComboBox>

#include "model/Farbpaletten.h"
#include "tests/ui/Netzprobe.h"

namespace zrw {
namespace {

class Farben : public Netzprobe {
  protected:
    Farben() { Knopf("ColorButton").click(); }
    void WaehlePalette(int nummer) {
        auto& palette = Kind<QComboBox>("FarbPalette");
        palette.setCurrentIndex(nummer);
        Q_EMIT palette.activated(nummer);
    }
    void WendeAn() { Kind<QAbstractButton>("FarbenAnwenden").click(); }
    [[nodiscard]] Farbe Von(const char* nummer) const { return Punkt(nummer)->Item->Farbe; }
};

TEST_F(Farben, AngewendetUndZurueck) {
    const Stand vorher = Jetzt();
    Punkt("E")->Item->Farbe = Farbe{0x654321};
    WaehlePalette(2);
    EXPECT_EQ(Von("C"), Farbe{0x0000FF}) << "not by itself";
    WendeAn();
    EXPECT_TRUE(Von("A") == einstellungen.FPCol && Von("C") == einstellungen.NPCol);
    EXPECT_EQ(fenster.Netz()->FindPktText(Punkt("C")->PNr)->Col, einstellungen.NPCol);
    EXPECT_EQ(fenster.Netz()->KanteKnoten->Item->Farbe, einstellungen.RICol);
    EXPECT_EQ(Von("E"), Farbe{0x654321}) << "of no kind";
    WendeAn();
    EXPECT_EQ(Status(), "Das Netz hat diese Farben schon.");
    fenster.Rueckgaengig();
    Punkt("E")->Item->Farbe = Einstellungen{}.NPCol;
    EXPECT_EQ(Gespeichert(), vorher.bytes) << "in one step";
    WendeAn();
    EXPECT_EQ(Von("E"), einstellungen.NPCol) << "again after it was undone";
}

// Coloured by a palette that the settings do not have any more.
TEST_F(Farben, BilddateiInDenFarbenEinerPalette) {
    WaehlePalette(3);
    WendeAn();
    SpeichereDatei("s.ZRW");
    const Farbe grau = Von("C");
    WaehlePalette(0);
    OeffneDatei("s.ZRW");
    EXPECT_EQ(Von("C"), grau);
    WendeAn();
    EXPECT_EQ(Von("C"), Einstellungen{}.NPCol);
}

TEST_F(Farben, RadUmgekehrt) {
    const double vorher = fenster.Netz()->Faktor;
    Rad(A, 1);
    EXPECT_GT(fenster.Netz()->Faktor, vorher) << "as described";
    Kasten("CheckBoxMausrad").click();
    Rad(A, 1);
    EXPECT_EQ(fenster.Netz()->Faktor, vorher);
}

}  // namespace
}  // namespace zrw
