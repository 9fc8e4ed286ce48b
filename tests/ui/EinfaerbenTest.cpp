// Colouring and statistics of the open plan: pages of the side bar, what stays as it was, tables that change.
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTextBrowser>

#include "input/Systemdateien.h"
#include "tests/ui/Fenster.h"

namespace zrw {
namespace {

class Einfaerben : public Fensterprobe {
  protected:
    Einfaerben() {
        for (const QString& name : QDir(ZRW_QUELLE "/beispiele").entryList({"*.EIN", "*.KF", "*.SF", "*.DB"}))
            QFile::copy(ZRW_QUELLE "/beispiele/" + name, ordner.filePath(name));
        OeffneDatei("NETZ.EIN");
    }
    void Waehle(const char* feld, int stelle) const {
        auto& wahl = Kind<QComboBox>(feld);
        wahl.setCurrentIndex(stelle);
        emit wahl.activated(stelle);
    }
    [[nodiscard]] const Figurenstile* Stile() const { return fenster.Netz()->Stile.get(); }
    [[nodiscard]] std::vector<std::size_t> Anzahlen() const {
        std::vector<std::size_t> anzahlen;
        for (const Stilzeile& z : Stile()->zeilen)
            anzahlen.push_back(z.anzahl);
        return anzahlen;
    }
    void Schreibe(const char* feld, const QString& text) const {
        Kind<QLineEdit>(feld).setText(text);
        emit Kind<QLineEdit>(feld).editingFinished();
    }
};

TEST_F(Einfaerben, NachTestgroesseUndZurueck) {
    const QImage vorher = fenster.Bild();
    Kind<QAction>("AktionEinfaerbenWahl").trigger();
    QCoreApplication::processEvents();
    SpeichereDatei("vorher.ZRW");
    EXPECT_TRUE(Kind<QDockWidget>("SeitenLeiste").isVisible());
    Waehle("FarbGroesse", 1);
    EXPECT_EQ(Anzahlen(), (std::vector<std::size_t>{221, 159, 24, 5, 8, 0}));
    SpeichereDatei("nachher.ZRW");
    EXPECT_TRUE(Systemdateien().LiesDatei(ordner.filePath("vorher.ZRW").toStdString(), SIZE_MAX) ==
                Systemdateien().LiesDatei(ordner.filePath("nachher.ZRW").toStdString(), SIZE_MAX));

    Schreibe("FarbGrenzen", "3; 2");
    EXPECT_TRUE(Kind<QLabel>("FarbHinweis").text().startsWith("Grenzen sind")) << "and nothing changes";
    EXPECT_EQ(Anzahlen().size(), 6U);
    Schreibe("FarbGrenzen", "2; 4");
    EXPECT_EQ(Anzahlen(), (std::vector<std::size_t>{380, 24, 5, 8, 0}));
    Waehle("NurKlasse", 3);
    EXPECT_EQ(Anzahlen(), (std::vector<std::size_t>{0, 0, 5, 0, 0}));
    Waehle("FarbGroesse", 4);
    EXPECT_TRUE(QString::fromStdString(Stile()->titel).endsWith("Strecken)")) << "one kind alone";

    Kind<QPushButton>("FarbenAus").click();
    EXPECT_EQ(Stile(), nullptr);
    Kind<QDockWidget>("SeitenLeiste").close();
    QCoreApplication::processEvents();
    EXPECT_EQ(fenster.Bild(), vorher);
}

TEST_F(Einfaerben, LinienEinesPunktesUndWasKeinerFaengt) {
    Schreibe("NurPunkt", "gibt es nicht");
    EXPECT_EQ(Stile(), nullptr);
    Schreibe("NurPunkt", "HOHFELS");
    ASSERT_NE(Stile(), nullptr);
    EXPECT_TRUE(Stile()->zeilen.empty()) << "no colours, no legend";
    Knopf("EinpassenButton").click();
    const Liste& l = *fenster.Netz();
    int da = 0;
    for (const PunktKante* k = l.KanteKnoten; k != nullptr; k = k->Next) {
        const bool amPunkt = l.GetPktText(k->ANr) == "HOHFELS" || l.GetPktText(k->ENr) == "HOHFELS";
        EXPECT_EQ(l.Gewaehlt(*k), amPunkt);
        da += amPunkt ? 1 : 0;
    }
    EXPECT_GT(da, 5);
    // A change of the network keeps the choice.
    Knopf("RueckgaengigButton").click();
    OeffneDatei("NETZ.EIN");
    EXPECT_EQ(Stile(), nullptr) << "another network begins as usual";
    EXPECT_EQ(Kind<QLineEdit>("NurPunkt").text(), "");
}

TEST_F(Einfaerben, BeschaedigteTabelleFaerbtNichts) {
    Waehle("FarbGroesse", 1);
    Waehle("FarbGattung", 1);  // distances
    EXPECT_GT(Anzahlen()[0], 100U);
    QFile tabelle(ordner.filePath("STRTABLE.DB"));
    ASSERT_TRUE(tabelle.resize(3000));
    Waehle("FarbPalette", 1);
    EXPECT_FALSE(Stile()->HatWerte());
    EXPECT_TRUE(Kind<QLabel>("FarbHinweis").text().contains("STRTABLE.DB"));
}

TEST_F(Einfaerben, StatistikAlsSeiteUndBlatt) {
    Kind<QAction>("AktionStatistikWahl").trigger();
    const QString text = Kind<QTextBrowser>("StatistikText").toPlainText();
    for (const char* teil :
         {"Richtungen", "529", "Normalverteilung", "68.3", "NB22 → NB01", "24.70", "größte mL"})
        EXPECT_TRUE(text.contains(teil)) << teil;
    dialoge.datei = ordner.filePath("blatt.pdf");
    Kind<QPushButton>("StatistikSpeichern").click();
    EXPECT_EQ(dialoge.meldungen, QStringList());
    const std::string pdf = Systemdateien().LiesDatei(ordner.filePath("blatt.pdf").toStdString(), SIZE_MAX);
    EXPECT_TRUE(pdf.starts_with("%PDF"));
    EXPECT_NE(pdf.find("/Count 1"), std::string::npos) << "one page";
    // The last bar of the test values: its rows in the list, until its button is clicked.
    auto& feld = Kind<QWidget>("TestgroessenBild");
    QTest::mouseClick(&feld, Qt::LeftButton, {}, QPoint(feld.width() * 5 / 8, feld.height() / 2));
    auto& knopf = Kind<QPushButton>("FilterBereich");
    EXPECT_TRUE(knopf.isVisible());
    EXPECT_TRUE(knopf.text().startsWith("TG von 3 bis 3.25")) << knopf.text().toStdString();
    const auto& tabelle = Kind<QTableView>("BeobachtungsTabelle");
    EXPECT_EQ(tabelle.model()->rowCount(), 2);
    knopf.click();
    EXPECT_EQ(tabelle.model()->rowCount(), 937);
}

}  // namespace
}  // namespace zrw
