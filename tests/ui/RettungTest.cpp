// An unsaved plot survives the end of its program, and programs leave each other's plots alone.
#include "ui/Rettung.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "input/Systemdateien.h"
#include "model/Bytes.h"
#include "model/Fehler.h"
#include "model/Rettungsstand.h"
#include "tests/hilfe/Probenetz.h"
#include "ui/Umwandlung.h"

namespace zrw {
namespace {

std::string Bytes(const Liste& l, const Netzangaben& netz) {
    ByteSchreiber f;
    l.Store(f, netz);
    return std::string(f.Inhalt());
}

TEST(Rettungsstand, BringtAllesZurueck) {
    Probenetz n;
    for (PunktIndex i = 1; i <= 5; ++i) {
        n.P(i, i * 10.0, 7.0 * i, static_cast<PunktArt>(i % 4)).Item->Visible = i % 2 == 0;
        n.T(i, "P" + std::to_string(i)).Item->XBiO = i;
    }
    n.K(1, 2, LinieAttr::AR1);
    n.K(2, 5, LinieAttr::ASTI);
    n.l.WeltinBild();
    Netzangaben netz;
    netz.Netztyp = 3;
    const std::string rettung = SchreibeRettung(n.l, netz, "C:\\Netz Süd.EIN");
    const Rettungsstand stand = LiesRettung(rettung, n.e, "x");
    EXPECT_EQ(stand.name, "C:\\Netz Süd.EIN");
    EXPECT_TRUE(Bytes(*stand.liste, stand.netz) == Bytes(n.l, netz)) << "order, positions, visibility";
    const PunktKnoten* b = stand.liste->PunktKnoten;
    for (const PunktKnoten* a = n.l.PunktKnoten; a != nullptr; a = a->Next, b = b->Next)
        EXPECT_EQ(a->Item->PktArt, b->Item->PktArt) << "picture files do not know it";
    // Cut off anywhere it is refused.
    for (std::size_t laenge = 0; laenge < rettung.size(); laenge += 7)
        EXPECT_THROW((void)LiesRettung(rettung.substr(0, laenge), n.e, "x"), Fehler) << laenge;
}

TEST(Rettungsstand, MehrLinienAlsEineZarwikdateiZaehlt) {
    Probenetz n;
    n.P(1);
    n.P(2, 5, 5);
    n.T(1, "A");
    n.T(2, "B");
    for (int i = 0; i < 65536 + 40; ++i)
        n.K(1, 2, static_cast<LinieAttr>(i % 7));
    n.l.WeltinBild();
    const std::string rettung = SchreibeRettung(n.l, {}, "x");
    const Rettungsstand stand = LiesRettung(rettung, n.e, "x");
    EXPECT_TRUE(Bytes(*stand.liste, {}) == Bytes(n.l, {}));
}

TEST(Rettung, HinterlassenesWirdGefundenFremdesNicht) {
    const QTemporaryDir ordner;
    const QString pfad = ordner.filePath("rettung");
    Systemdateien dateien;
    const auto liegt = [&](const char* muster) { return QDir(pfad).entryList({muster}, QDir::Files).size(); };
    Rettung zweites(pfad, dateien);
    {
        Rettung erstes(pfad, dateien);
        EXPECT_TRUE(erstes.Hinterlassene().isEmpty());
        erstes.Bewahre("eins");
        zweites.Bewahre("zwei");
        EXPECT_EQ(liegt("*.rettung"), 2);
        EXPECT_TRUE(zweites.Hinterlassene().isEmpty()) << "the other one is still at work";
    }
    const QStringList gefunden = zweites.Hinterlassene();
    ASSERT_EQ(gefunden.size(), 1);
    EXPECT_EQ(zweites.Lies(gefunden[0]), "eins");
    Rettung drittes(pfad, dateien);
    EXPECT_TRUE(drittes.Hinterlassene().isEmpty()) << "the second one is deciding about it";
    zweites.LegeAb(gefunden[0]);
    EXPECT_EQ(liegt("*.verworfen"), 1) << "kept for a change of mind";
    zweites.Vergiss();
    EXPECT_EQ(liegt("*.rettung"), 0) << "a clean end leaves nothing";
    zweites.Bewahre("zwei");
    EXPECT_EQ(liegt("*.rettung"), 1) << "the same bytes again after they were forgotten";
}

TEST(Rettung, OhneOrdnerOderRechteBleibtAllesWieEsIst) {
    Systemdateien dateien;
    Rettung keine(QString(), dateien);
    EXPECT_NO_THROW(keine.Bewahre("x"));
    EXPECT_TRUE(keine.Hinterlassene().isEmpty());
    const QTemporaryDir ordner;
    QFile datei(ordner.filePath("datei"));
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    Rettung unmoeglich(ordner.filePath("datei/darin"), dateien);
    EXPECT_THROW(unmoeglich.Bewahre("x"), Fehler);
}

}  // namespace
}  // namespace zrw
