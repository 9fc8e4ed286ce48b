// Every folder under tests/golden/ is one control file with the picture file and the messages that it must
// give. The expectations come from tests/golden/erwartung.py, which shares no code with this program.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "input/Oeffnen.h"
#include "input/Systemdateien.h"
#include "model/BilddateiFormat.h"
#include "model/Bytes.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

namespace fs = std::filesystem;
using namespace bilddatei;

std::string Inhalt(const fs::path& datei) {
    std::ifstream strom(datei, std::ios::binary);
    return {std::istreambuf_iterator<char>(strom), {}};
}

std::vector<std::string> Zeilen(const fs::path& datei) {
    std::vector<std::string> zeilen;
    std::istringstream strom(Inhalt(datei));
    for (std::string z; std::getline(strom, z);) {
        if (!z.empty()) zeilen.push_back(z);
    }
    return zeilen;
}

std::vector<fs::path> Faelle() {
    std::vector<fs::path> faelle;
    for (const auto& e : fs::directory_iterator(fs::path(ZRW_QUELLE) / "tests/golden")) {
        if (fs::exists(e.path() / "NETZ.EIN")) faelle.push_back(e.path());
    }
    std::sort(faelle.begin(), faelle.end());
    return faelle;
}

/// Puts the expected world coordinates into the record where ours are close enough: the last bit of a
/// projection depends on the mathematics library.
void GleicheAn(std::string& bytes, const std::string& soll, double toleranz) {
    ByteLeser kopf(std::string_view(soll).substr(56));
    const auto punkte = static_cast<std::size_t>(kopf.I32());
    for (std::size_t i = 0; i < 2 * punkte; ++i) {
        const std::size_t stelle = kKopf + (i / 2) * kPunktsatz + (i % 2) * 8;
        if (stelle + 8 > bytes.size()) return;
        const double ist = ByteLeser(std::string_view(bytes).substr(stelle)).F64();
        const double erwartet = ByteLeser(std::string_view(soll).substr(stelle)).F64();
        if (std::fabs(ist - erwartet) <= toleranz) bytes.replace(stelle, 8, soll, stelle, 8);
    }
}

class Golden : public testing::TestWithParam<fs::path> {};

TEST_P(Golden, GibtBilddateiUndMeldungen) {
    const fs::path ordner = GetParam();
    const Einstellungen einstellungen;
    const Systemdateien dateien;
    std::vector<std::string> meldungen;
    Lesung lesung;
    try {
        lesung = LeseSteuerdatei(ordner / "NETZ.EIN", dateien, einstellungen, [&](const Meldung& m) {
            if (!m.hinweis) meldungen.push_back(m.text);  // what is lost, not advice
        });
    } catch (const Fehler& f) {
        EXPECT_GT(f.Zeile(), 0) << "a malformed number is named with its line";
    }
    if (!lesung.endetext.empty()) meldungen.push_back(lesung.endetext);
    const bool mitNetz = fs::exists(ordner / "erwartet.ZRW");
    const std::vector<std::string> erwartet = Zeilen(ordner / "meldungen.txt");
    if (mitNetz || !erwartet.empty()) {
        EXPECT_EQ(meldungen, erwartet);
    }
    if (!mitNetz) {
        EXPECT_TRUE(lesung.liste == nullptr || lesung.ende == Leseende::Programmende);
        return;
    }
    ASSERT_NE(lesung.liste, nullptr);
    lesung.liste->Weite = 1200;
    lesung.liste->Hoehe = 800;
    lesung.liste->FindWorldMinMax();
    lesung.liste->PasseEin();
    ByteSchreiber f;
    lesung.liste->Store(f, lesung.netz);
    std::string ist(f.Inhalt());
    const std::string soll = Inhalt(ordner / "erwartet.ZRW");
    if (fs::exists(ordner / "toleranz.txt")) GleicheAn(ist, soll, std::stod(Inhalt(ordner / "toleranz.txt")));
    ASSERT_EQ(ist.size(), soll.size());
    for (std::size_t i = 0; i < ist.size(); ++i)
        ASSERT_EQ(ist[i], soll[i]) << "byte " << i;
}

INSTANTIATE_TEST_SUITE_P(Ordner, Golden, testing::ValuesIn(Faelle()),
                         [](const auto& p) { return p.param.filename().string(); });

TEST(GoldenOrdner, SindDa) {
    EXPECT_GE(Faelle().size(), 38U);
}

}  // namespace
}  // namespace zrw
