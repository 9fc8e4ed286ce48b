// The list of observations beside the open network: its state, and what the window shows of it.
#include <algorithm>

#include "tests/ui/Netzprobe.h"
#include "ui/ergebnisse/Ergebnisstand.h"

namespace zrw {
namespace {

/// The sample network with its tables in a folder of its own.
void LegeBeispielAn(const QString& ordner) {
    for (const auto& datei : std::filesystem::directory_iterator(ZRW_QUELLE "/beispiele")) {
        const auto endung = datei.path().extension();
        if (endung == ".DB" || endung == ".EIN" || endung == ".KF" || endung == ".SF")
            std::filesystem::copy(datei.path(), ordner.toStdString());
    }
}

TEST(Ergebnisstand, LiestNeuWasSichAendertUndVergisstFremdes) {
    const QTemporaryDir ordner;
    LegeBeispielAn(ordner.path());
    const Systemdateien dateien;
    TDM daten(dateien);
    daten.SetzeOrdner(ordner.path().toStdString());
    Ergebnisstand stand(daten);
    EXPECT_TRUE(stand.Liste()->zeilen.empty()) << "without a network";
    int gemeldet = 0;
    stand.BeiAenderung(stand, [&] { ++gemeldet; });
    stand.OrdnerGewaehlt();
    const auto liste = stand.Liste();
    EXPECT_EQ(liste->zeilen.size(), 937U);
    EXPECT_EQ(stand.Liste(), liste) << "read once";
    ASSERT_TRUE(QTest::qWaitFor([&] { return gemeldet == 1; }));

    std::ofstream(ordner.filePath("STRTABLE.DB").toStdString()) << "halb";
    ASSERT_TRUE(QTest::qWaitFor([&] { return gemeldet == 2; })) << "somebody writes the file";
    const auto spaeter = stand.Liste();
    EXPECT_EQ(spaeter->Lage(Beobachtungstabelle::Strecken).zustand, Lesezustand::Unlesbar);
    EXPECT_EQ(spaeter->zeilen.size() + liste->Lage(Beobachtungstabelle::Strecken).Anzahl(), 937U);

    stand.VergissNetz();
    EXPECT_TRUE(stand.Liste()->zeilen.empty());
    daten.SetzeOrdner("");
    stand.OrdnerGewaehlt();
    EXPECT_TRUE(stand.Liste()->zeilen.empty()) << "no tables there";
}

}  // namespace
}  // namespace zrw
