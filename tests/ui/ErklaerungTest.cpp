// The key of the plan and the rim round numbers in the window.
#include "tests/ui/Fenster.h"

namespace zrw {
namespace {

class Erklaerungsfenster : public Fensterprobe {
  protected:
    Erklaerungsfenster() { fenster.OeffneDatei(kBeispiel); }
    [[nodiscard]] QAction& Schalteraktion(const char* name) const {
        return Kind<QAction>((std::string("Aktion") + name).c_str());
    }
};

TEST_F(Erklaerungsfenster, KastenLaesstSichVerschiebenUndAendertDasNetzNicht) {
    const Stand ohne = Jetzt();
    Schalteraktion("CheckBoxZeichenerklaerung").trigger();
    const QImage mit = fenster.Bild().copy();
    const QPoint griff(bild->width() - 60, 40);
    ASSERT_FALSE(mit == ohne.bild);
    EXPECT_EQ(mit.copy(0, 0, 500, mit.height()), ohne.bild.copy(0, 0, 500, mit.height()));
    ZieheMaus(griff, griff + QPoint(-300, 50));
    EXPECT_EQ(Status(), "Zeichenerklärung verschoben");
    EXPECT_EQ(fenster.Netz()->Erklaerungsort, (Bildpunkt{-308, 58}));
    const QImage woanders = fenster.Bild().copy();
    EXPECT_FALSE(woanders == mit);
    // Given up, it stays.
    DrueckeTaste(griff + QPoint(-300, 50));
    BewegeMaus(griff);
    Taste(Qt::Key_Escape);
    LassTasteLos(griff);
    EXPECT_EQ(fenster.Bild(), woanders);
    // Hidden kinds leave it at once.
    const_cast<Liste*>(fenster.Netz())->Erklaerungsort.reset();
    Kasten("CheckBoxNP").click();
    EXPECT_FALSE(fenster.Bild().copy(griff.x() - 200, 0, 200, 300) == mit.copy(griff.x() - 200, 0, 200, 300));
    Kasten("CheckBoxNP").click();
    EXPECT_EQ(fenster.Bild(), mit);
    Schalteraktion("CheckBoxZeichenerklaerung").trigger();
    EXPECT_TRUE(Jetzt() == ohne);
}

TEST_F(Erklaerungsfenster, RandUmDieNummern) {
    const Stand ohne = Jetzt();
    Schalteraktion("CheckBoxHalo").trigger();
    int weiss = 0;
    int andere = 0;
    for (int y = 0; y < ohne.bild.height(); ++y) {
        for (int x = 0; x < ohne.bild.width(); ++x) {
            const QRgb neu = fenster.Bild().pixel(x, y);
            if (neu != ohne.bild.pixel(x, y)) ++(neu == qRgb(255, 255, 255) ? weiss : andere);
        }
    }
    EXPECT_GT(weiss, 500);
    EXPECT_EQ(andere, 0) << "what the rim does not cover stays";
    Schalteraktion("CheckBoxHalo").trigger();
    EXPECT_TRUE(Jetzt() == ohne);
}

}  // namespace
}  // namespace zrw
