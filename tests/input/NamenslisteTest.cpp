#include "input/import/Namensliste.h"

#include <gtest/gtest.h>

#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

using Gelesen = std::pair<Namensliste, std::vector<std::string>>;

Gelesen Lies(const std::string& inhalt) {
    Speicherdateien dateien;
    dateien.dateien["netz/nord_NAMEN.csv"] = inhalt;
    Gelesen n;
    n.first =
        LiesNamensliste("netz/NORD.EIN", dateien, [&](const Meldung& m) { n.second.push_back(m.Zeile()); });
    return n;
}

TEST(Namensliste, SchreibtUndLiest) {
    const std::vector<Namenspaar> paare{{"M\xFChl1", "Mühlberg; \"Süd\"\nTurm"},
                                        {"A~1", "AAAA BBBB CCCC Ωλ"}};
    const std::string text = Namenslistentext(paare);
    EXPECT_EQ(text, "Neu;Alt\nMühl1;\"Mühlberg; \"\"Süd\"\"\nTurm\"\nA~1;AAAA BBBB CCCC Ωλ\n");
    const Namensliste soll{{paare[0].neu, paare[0].alt}, {paare[1].neu, paare[1].alt}};
    EXPECT_EQ(Lies(text), Gelesen(soll, {}));
    EXPECT_EQ(Lies("\xEF\xBB\xBFNeu;Alt\r\nA~1;AAAA BBBB CCCC Ωλ\r\n\r\n").first.size(), 1U);
    EXPECT_EQ(Lies("Neu;Alt\nM\xFChl;M\xFChlberg").first.at("M\xFChl"), "Mühlberg") << "code page 1252";
    EXPECT_EQ(LiesNamensliste("netz/SUED.EIN", Speicherdateien(), {}), Namensliste()) << "no file";
}

TEST(Namensliste, NimmtWasSichLesenLaesst) {
    for (const char* kopf : {"", "Alt;Neu\nA;B\n", "Neu\nA;B\n", "Neu;Alt;X\n"}) {
        EXPECT_EQ(Lies(kopf), Gelesen({}, {"NORD_namen.csv, Zeile 1: Die langen Punktnamen fehlen: "
                                           "erwartet ist „Neu;Alt“"}))
            << kopf;
    }
    for (const std::string zeile :
         {"B", "B;b;c", ";b", "B;", "123456789012345;b", "A;zweimal", "B;\"offen"}) {
        const auto [namen, meldungen] = Lies("Neu;Alt\nA;a\n" + zeile);
        EXPECT_EQ(namen, (Namensliste{{"A", "a"}})) << zeile;
        ASSERT_EQ(meldungen.size(), 1U) << zeile;
        EXPECT_TRUE(meldungen[0].starts_with("NORD_namen.csv, Zeile 3: Lange Punktnamen: 1 Zeile"))
            << meldungen[0];
    }
    const auto [namen, meldungen] = Lies("Neu;Alt\n" + std::string(std::size_t{33} << 20U, ';'));
    EXPECT_TRUE(namen.empty());
    EXPECT_EQ(meldungen.size(), 1U) << "too large";
}

}  // namespace
}  // namespace zrw
