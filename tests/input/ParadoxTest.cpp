// Tables of hand-made bytes are read, damaged ones refused; written ones have the bytes worked out by hand.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Paradoxleser.h"
#include "input/tabellen/Paradoxschreiber.h"
#include "model/Fehler.h"
#include "model/Zahlentext.h"

namespace zrw::paradox {
namespace {

/// "00 FF" as two bytes; blanks are for the eye.
std::string Hex(std::string_view text) {
    std::string bytes;
    std::string ziffern;
    for (const char c : text) {
        if (c != ' ') ziffern += c;
        if (ziffern.size() < 2) continue;
        bytes += static_cast<char>(std::stoi(ziffern, nullptr, 16));
        ziffern.clear();
    }
    return bytes;
}

std::string U16(std::size_t v) {
    return {static_cast<char>(v & 0xFFU), static_cast<char>(v >> 8U)};
}

struct Probefeld {
    std::string_view artUndGroesse;  ///< hexadecimal
    std::string_view name;
};

struct Probeblock {
    std::size_t naechster = 0;
    std::size_t voriger = 0;
    std::size_t saetze = 0;
    std::string bytes;
};

/// Puts a table together without any code of the writer. Blocks of 1 KiB; the last ends with its bytes.
struct Probetabelle {
    std::size_t version = 0x0B;
    std::size_t art = 0;
    std::vector<Probefeld> felder{{"0404", "ID"}, {"0106", "Name"}};
    std::size_t satz = 10;
    std::size_t zeilen = 1;
    std::size_t erster = 1;
    std::vector<Probeblock> bloecke{{0, 0, 1, Hex("80000001") + std::string("Punkt\0", 6)}};
    std::size_t codeseite = 1252;
    std::string sortiername = "ascii";

    [[nodiscard]] std::string Bytes() const {
        std::string k(version >= 5 ? 0x78 : 0x58, '\0');
        for (const Probefeld& f : felder)
            k += Hex(f.artUndGroesse);
        k.append(4 + 4 * felder.size(), '\x5A');  // pointers of no use
        k.append(version == 12 ? 261 : 79, 'T');
        for (const Probefeld& f : felder)
            k.append(f.name).append(1, '\0');
        if (version >= 5) k.append(2 * felder.size(), '\x07').append(sortiername).append(1, '\0');
        if (version >= 4) k.resize(2048, '\0');
        k.replace(0, 5, U16(satz) + U16(k.size()) + static_cast<char>(art));
        k.replace(5, 3, '\x01' + U16(zeilen));
        k.replace(0x0C, 4, U16(bloecke.size()) + U16(erster));
        k.replace(0x21, 2, U16(felder.size()));
        k[0x39] = static_cast<char>(version);
        if (version >= 5) {
            k.replace(0x25, 4, Hex("00FF00FF"));
            k.replace(0x6A, 2, U16(codeseite));
        }
        std::size_t ende = k.size();
        for (const Probeblock& b : bloecke) {
            k.resize(ende, '\xEE');  // what records of old left behind
            ende += 1024;
            k += U16(b.naechster) + U16(b.voriger) + U16((b.saetze - 1) * satz & 0xFFFFU) + b.bytes;
        }
        return k;
    }
};

std::string Text(const Wert& wert) {
    if (const auto* ganz = std::get_if<std::int64_t>(&wert)) return std::to_string(*ganz);
    if (const auto* real = std::get_if<double>(&wert)) return "R" + SchreibeReal(*real);
    if (const auto* wahr = std::get_if<bool>(&wert)) return *wahr ? "wahr" : "falsch";
    if (const auto* text = std::get_if<std::string_view>(&wert)) return "'" + std::string(*text) + "'";
    return "-";
}

/// All values of all rows, or the rows before the damage and its message.
std::string Gelesen(std::string_view bytes, std::string* warnung = nullptr) {
    std::string alles;
    try {
        const Leser leser(bytes, "A.DB");
        if (warnung != nullptr) *warnung = leser.Warnung();
        leser.FuerJedeZeile([&](std::span<const Wert> werte) {
            for (const Wert& w : werte)
                alles += Text(w) + " ";
        });
    } catch (const Fehler& f) {
        EXPECT_EQ(f.Datei(), "A.DB");
        return alles + f.Text();
    }
    return alles;
}

TEST(Paradox, WerteWieVonHandBerechnet) {
    const struct {
        std::string_view feld, bytes, wert;
    } faelle[] = {{"0404", "80000001", "1"},
                  {"0404", "7FFFFFFF", "-1"},
                  {"0404", "80000000", "0"},
                  {"0404", "8000FDE8", "65000"},
                  {"0404", "00000000", "-"},
                  {"0404", "00000001", "-2147483647"},
                  {"0302", "7FD8", "-40"},
                  {"0302", "0000", "-"},
                  {"0608", "BFF0000000000000", "R1"},
                  {"0608", "400FFFFFFFFFFFFF", "R-1"},
                  {"0608", "8000000000000000", "R0"},
                  {"0508", "C0934A0000000000", "R1234.5"},
                  {"0608", "0000000000000000", "-"},
                  {"0608", "FFF8000000000000", "-"},  // not a number
                  {"0608", "FFF0000000000000", "-"},  // infinite
                  {"0204", "800AF93B", "719163"},
                  {"1508", "C2CC418CD7B9C000", "R62135722800000"},
                  {"1404", "80000000", "0"},
                  {"1604", "80000007", "7"},
                  {"0901", "00", "-"},
                  {"0901", "80", "falsch"},
                  {"0901", "81", "wahr"},
                  {"0104", "41424344", "'ABCD'"},  // full: no zero at the end
                  {"0104", "41200044", "'A'"},
                  {"0104", "20202020", "-"},
                  {"0104", "00424344", "-"},
                  {"0105", "FC44FCDF80", "'üDüß€'"},
                  {"0C0A", "41424344454647484950", "-"},
                  {"1702", "C2000000000000000000000000000012AB", "-"},
                  {"1802", "4142", "-"}};
    for (const auto& f : faelle) {
        // A second field shows that the first took as many bytes as it has.
        const std::string bytes = Hex(f.bytes) + "z";
        Probetabelle t;
        t.felder = {{f.feld, "A"}, {"0101", "B"}};
        t.satz = bytes.size();
        t.bloecke = {{0, 0, 1, bytes}};
        EXPECT_EQ(Gelesen(t.Bytes()), std::string(f.wert) + " 'z' ") << f.feld << " " << f.bytes;
    }
}

TEST(Paradox, AlleVersionenMitUndOhneSchluessel) {
    for (const std::size_t version : {3U, 4U, 5U, 9U, 10U, 11U, 12U}) {
        for (const std::size_t art : {0U, 2U}) {
            Probetabelle t;
            t.version = version;
            t.art = art;
            std::string bytes = t.Bytes();
            EXPECT_EQ(Gelesen(bytes), "1 'Punkt' ") << version << " " << art;
            const Leser leser(bytes, "A.DB");
            ASSERT_EQ(leser.Felder().size(), 2U);
            EXPECT_EQ(leser.Felder()[0].name + leser.Felder()[1].name, "IDName");
            EXPECT_EQ(leser.Felder()[1].groesse, 6);
            EXPECT_EQ(leser.Zeilen(), 1U);
            // The word of encryption moved with version 5.
            bytes[version >= 5 ? 0x5C : 0x25] = 1;
            EXPECT_EQ(Gelesen(bytes),
                      "Die Tabelle ist verschlüsselt und kann nicht gelesen werden. Bitte ohne Kennwort "
                      "speichern.");
        }
    }
}

/// Chain 2, 4, 1, 5 with an empty block in it; block 3 is free.
Probetabelle Kettentabelle() {
    const auto satz = [](int nr) { return Hex("8000000" + std::to_string(nr)) + "Nummer"; };
    Probetabelle t;
    t.erster = 2;
    t.zeilen = 4;
    t.bloecke = {{5, 4, 0, {}},
                 {4, 0, 2, satz(1) + satz(2)},
                 {0, 2, 1, satz(9)},
                 {1, 2, 1, satz(3)},
                 {0, 1, 1, satz(4)}};
    return t;
}

TEST(Paradox, ReihenFolgenDerKette) {
    EXPECT_EQ(Gelesen(Kettentabelle().Bytes()), "1 'Nummer' 2 'Nummer' 3 'Nummer' 4 'Nummer' ");
    Probetabelle leer;
    leer.zeilen = leer.erster = 0;
    leer.bloecke.clear();
    EXPECT_EQ(Gelesen(leer.Bytes()), "");
}

TEST(Paradox, CodeseitenUndWarnungen) {
    const struct {
        std::size_t version, codeseite;
        std::string_view sortiername, wert, warnung;
    } faelle[] = {{11, 1252, "ascii", "„€ß", ""},
                  {11, 850, "ascii", "äÇ▀", ""},
                  {11, 437, "ascii", "äÇ▀", ""},
                  {3, 1252, "", "äÇ▀", ""},
                  {11, 0, "DBWINUS0", "„€ß", ""},
                  {11, 0, "BLROM800", "„€ß", ""},
                  {11, 0, "ANSIINTL", "„€ß", ""},
                  {11, 0, "intl", "„€ß", "Codeseite 0 "},
                  {11, 866, "cyrr", "„€ß", "Codeseite 866 "}};
    for (const auto& f : faelle) {
        Probetabelle t;
        t.version = f.version;
        t.codeseite = f.codeseite;
        t.sortiername = f.sortiername;
        // Two texts of one record at the same time, more than once, and a name.
        const std::string zeichen = "\x84\x80\xDF";
        t.felder = {{"0103", zeichen}, {"0103", "B"}};
        t.satz = 6;
        t.zeilen = 2;
        t.bloecke = {{0, 0, 2, zeichen + zeichen + zeichen + zeichen}};
        std::string warnung;
        const std::string text = "'" + std::string(f.wert) + "' ";
        EXPECT_EQ(Gelesen(t.Bytes(), &warnung), text + text + text + text)
            << f.codeseite << " " << f.sortiername;
        EXPECT_EQ(warnung.empty(), f.warnung.empty()) << warnung;
        EXPECT_NE(warnung.find(f.warnung), std::string::npos) << warnung;
        EXPECT_EQ("'" + Leser(t.Bytes(), "A.DB").Felder()[0].name + "' ", text);
    }
    for (const std::size_t stelle : {0x14U, 0x2AU}) {
        std::string bytes = Probetabelle().Bytes();
        bytes[stelle] = 1;
        std::string warnung;
        EXPECT_EQ(Gelesen(bytes, &warnung), "1 'Punkt' ");
        EXPECT_NE(warnung.find("unvollständig"), std::string::npos);
    }
    // Only some of their bytes tell the two DOS code pages apart.
    EXPECT_EQ(Codeseite(437).NachUtf8("a\xE1\xFF\xF0\x9B"), "aß\u00A0≡¢");
    EXPECT_EQ(Codeseite(850).NachUtf8("a\xE1\xFF\xF0\x9B"), "aß\u00A0\u00ADø");
}

TEST(Paradox, BeschaedigtesWirdBenannt) {
    const struct {
        std::size_t stelle;
        std::string_view bytes, meldung;
    } faelle[] = {
        {4, "01", "keine Paradox-Tabelle (sondern ein Index)"},
        {4, "03", "(Dateiart 3)"},
        {0x39, "02", "(Dateiversion 2)"},
        {0x39, "0D", "(Dateiversion 13)"},
        {0, "0000", "(Sätze von 0 Bytes"},
        {0, "FB03", "(Sätze von 1019 Bytes in Blöcken von 1024)"},
        {0, "0B00", "(die Felder ergeben keinen Satz von 11 Bytes)"},
        {0, "0900", "(die Felder ergeben keinen Satz von 9 Bytes)"},
        {2, "7700", "(Kopf von 119 Bytes)"},
        {2, "FFFF", "(Kopf von 65535 Bytes)"},
        {2, "DC00", "(die Feldnamen enden nicht im Kopf)"},
        {5, "00", "(Blöcke von 0 Bytes)"},
        {5, "21", "(Blöcke von 33792 Bytes)"},
        {6, "FFFFFFFF", "(4294967295 Sätze angekündigt"},
        {6, "0500", "4 'Nummer' Die Tabelle ist beschädigt (4 statt 5 Sätzen)"},
        {6, "0300", "3 'Nummer' Die Tabelle ist beschädigt (mehr als die angekündigten 3 Sätze)"},
        {0x21, "0000", "(0 Felder)"},
        {0x21, "0001", "(256 Felder)"},
        {0x78, "07", "(Feld 1 mit unbekannter Art 7)"},
        {0x79, "05", "(Feld 1 mit unmöglicher Breite 5)"},
        {0x7B, "00", "(Feld 2 mit unmöglicher Breite 0)"},
        {0x0E, "0600", "(Block 6 gibt es nicht)"},
        {0x0C, "0300", "2 'Nummer' Die Tabelle ist beschädigt (Block 4 gibt es nicht)"},
        {0x0C00, "00FF", "(Block 65280 gibt es nicht)"},
        {0x1400, "0200", "3 'Nummer' Die Tabelle ist beschädigt (Block 2 kommt in der Kette zweimal"},
        {0x0C04, "0B00", "(Block 2 mit unmöglicher Satzzahl)"},
        {0x0C04, "F203", "(Block 2 mit unmöglicher Satzzahl)"},
        {0x1804, "0A00", "(Block 5 ist abgeschnitten)"}};
    const std::string heil = Kettentabelle().Bytes();
    for (const auto& f : faelle) {
        std::string bytes = heil;
        // The first two blocks begin at 0800 and 0C00.
        const std::string neu = Hex(f.bytes);
        bytes.replace(f.stelle, neu.size(), neu);
        EXPECT_NE(Gelesen(bytes).find(f.meldung), std::string::npos) << f.meldung << "\n" << Gelesen(bytes);
    }
    EXPECT_NE(Gelesen(heil.substr(0, 0x57)).find("der Kopf fehlt"), std::string::npos);
    EXPECT_NE(Gelesen(heil.substr(0, heil.size() - 1)).find("(Block 5 ist abgeschnitten)"),
              std::string::npos);
    EXPECT_NE(Gelesen(heil.substr(0, 0x1803)).find("(Block 5 fehlt am Ende der Datei)"), std::string::npos);
}

const std::vector<Feld> kPostKoo{
    {"ID", Feldtyp::Lang, 4}, {"PKT", Feldtyp::Alpha, 14}, {"NIV", Feldtyp::Lang, 4}, {"Y", Feldtyp::Zahl, 8},
    {"X", Feldtyp::Zahl, 8},  {"LG", Feldtyp::Lang, 4},    {"ST", Feldtyp::Lang, 4}};

TEST(Paradoxschreiber, LeereTabelleByteFuerByte) {
    const auto [db, px] = SchreibeTabelle("PostKooTABLE", kPostKoo, {}, 0x3AAF8A46);
    const std::string kopf =
        Hex("2E00 0008 0002 0000 0000 0000 0000 0000 0000 0300 0000 0000 0000 0000 0000 0000"
            "0007 0001 0000 FF00 FF62 0000 0002 0100 0000 0000 0000 0000 000B 0000 0000 1F0F"
            "0000 0000 0000 0000 0000 0000 0000 0000 0021 0100 0000 2000 0B01 0B01 0000 0000"
            "468A AF3A 0800 B200 0000 E404 0101 C000 0100 0000 0000 0000 0404 010E 0404 0608"
            "0608 0404 0404");
    EXPECT_EQ(db.size(), 2048U);
    EXPECT_EQ(db.substr(0, kopf.size()), kopf);
    EXPECT_EQ(db.substr(0xA6, 17), std::string("PostKooTABLE.DB\0\0", 17));
    EXPECT_EQ(db.substr(0xA6 + 79, 64), std::string("ID\0PKT\0NIV\0Y\0X\0LG\0ST\0", 21) +
                                            Hex("0100 0200 0300 0400 0500 0600 0700") + "ANSIINTL" +
                                            std::string(21, '\0'));
    const std::string index =
        Hex("0A00 0008 0102 0000 0000 0000 0000 0000 0000 0400 0000 0000 0000 0000 0000 0100"
            "0001 0000 0000 0000 0062 0000 6600 0000 0000 0000 0000 0000 000B 0000 0000 0000"
            "0000 0000 0000 0000 0001 0000 0000 0000 00AD 0000 0000 0000 0404 0000 0000") +
        "PostKooTABLE.PX";
    EXPECT_EQ(px.size(), 2048U);
    EXPECT_EQ(px.substr(0, index.size()), index);
    EXPECT_EQ(px.find_first_not_of('\0', index.size()), std::string::npos);
    const auto [db7, px7] = SchreibeTabelle("PostKooTABLE", kPostKoo, {}, 0, Stufe::Sieben);
    EXPECT_EQ(db7.substr(0x51, 2), U16(471));
    EXPECT_EQ(px7.substr(0x51, 2), U16(0x58 + 2 + 4 + 261));
    EXPECT_EQ(Gelesen(db7), "");
}

TEST(Paradoxschreiber, WerteByteFuerByte) {
    const std::vector<Feld> felder{{"ID", Feldtyp::Lang, 0},    {"K", Feldtyp::Kurz, 0},
                                   {"Z", Feldtyp::Zahl, 0},     {"T", Feldtyp::Alpha, 3},
                                   {"J", Feldtyp::Logisch, 0},  {"D", Feldtyp::Datum, 0},
                                   {"P", Feldtyp::Zeitpunkt, 0}};
    using namespace std::string_view_literals;
    const std::vector<std::vector<Wert>> zeilen{
        {std::int64_t{65000}, std::int64_t{-40}, 1234.5, "Öß€"sv, true, std::int64_t{719163},
         62135722800000.0},
        {std::int64_t{-1}, {}, -0.0, ""sv, false, {}, {}},
        {std::int64_t{1}, std::int64_t{32767}, -1.0, "a "sv, {}, std::int64_t{-2147483647}, 1.0}};
    for (const Stufe stufe : {Stufe::Fuenf, Stufe::Sieben}) {
        const auto [db, px] = SchreibeTabelle("T", felder, zeilen, 0, stufe);
        EXPECT_EQ(db.substr(2048, 6 + 3 * 30),
                  Hex("0000 0000 3C00"
                      "7FFFFFFF 0000 8000000000000000 000000 80 00000000 0000000000000000"
                      "80000001 FFFF 400FFFFFFFFFFFFF 612000 00 00000001 BFF0000000000000"
                      "8000FDE8 7FD8 C0934A0000000000 D6DF80 81 800AF93B C2CC418CD7B9C000"));
        EXPECT_EQ(db.size(), 4096U);
        EXPECT_EQ(db.find_first_not_of('\0', 2048 + 96), std::string::npos);
        EXPECT_EQ(Gelesen(db),
                  "-1 - R0 - falsch - - 1 32767 R-1 'a' - -2147483647 R1 "
                  "65000 -40 R1234.5 'Öß€' wahr 719163 R62135722800000 ");
        EXPECT_EQ(px.substr(2048, 16), Hex("0000 0000 0000 7FFFFFFF 8001 8003 8000"));
    }
}

/// 200 blocks of three rows and five more fill one index block and begin the next, so that a root stands
/// above.
TEST(Paradoxschreiber, IndexInZweiEbenen) {
    const std::vector<Feld> felder{
        {"ID", Feldtyp::Lang, 4}, {"A", Feldtyp::Alpha, 255}, {"B", Feldtyp::Alpha, 255}};
    std::vector<std::vector<Wert>> zeilen;
    for (std::int64_t nr = 614; nr > 0; --nr)
        zeilen.push_back({nr, {}, {}});
    const auto [db, px] =
        SchreibeTabelle("T", felder, zeilen, 0);  // 3 of 514 bytes in a block: 205 blocks, 2 in the last
    EXPECT_EQ(db.size(), 2048U + 205U * 2048U);
    EXPECT_EQ(db.substr(6, 12), Hex("66020000 CD00 CD00 0100 CD00"));
    EXPECT_EQ(db.substr(205 * 2048, 10), Hex("0000 CC00 0202 80000265"));  // 613, the first of the last block
    ASSERT_EQ(px.size(), 2048U + 3U * 2048U);
    EXPECT_EQ(px.substr(6, 12), Hex("CF000000 0300 0300 0100 0300"));  // 205 + 2 entries
    EXPECT_EQ(px.substr(0x1E, 3), Hex("0100 02"));
    // Root: the leaves in blocks 2 and 3 with 204 * 3 and 2 rows.
    EXPECT_EQ(px.substr(2048, 6 + 20), Hex("0200 0000 0A00 80000001 8002 8264 8000 80000265 8003 8002 8000"));
    EXPECT_EQ(px.substr(2 * 2048, 6 + 10), Hex("0300 0100 EE07 80000001 8001 8003 8000"));
    EXPECT_EQ(px.substr(3 * 2048 - 2 - 10, 12), Hex("80000262 80CC 8003 8000 0000"));
    EXPECT_EQ(px.substr(3 * 2048, 6 + 10), Hex("0000 0200 0000 80000265 80CD 8002 8000"));
    EXPECT_EQ(px.find_first_not_of('\0', 3 * 2048 + 16), std::string::npos);
}

TEST(Paradoxschreiber, LehntAbWasNichtHineinpasst) {
    using namespace std::string_view_literals;
    const std::int64_t eins = 1;
    const std::vector<Feld> paar{{"ID", Feldtyp::Lang, 4}, {"Wert", Feldtyp::Alpha, 2}};
    const auto mit = [](Feldtyp typ) {
        return std::vector<Feld>{{"ID", Feldtyp::Lang, 4}, {"Wert", typ, 10}};
    };
    const std::vector<Wert> leer{eins, {}};
    const struct {
        std::vector<Feld> felder;
        std::vector<std::vector<Wert>> zeilen;
        std::string_view meldung;
        std::string name = "T";
    } faelle[] = {{paar, {{eins, "a"sv}, {eins, "b"sv}}, "Schlüssel 1 kommt mehrfach vor"},
                  {paar, {leer, {{}, {}}}, "Satz 2 hat keinen Schlüssel"},
                  {paar, {leer, {1.0, {}}}, "Satz 2 hat keinen Schlüssel"},
                  {paar, {{eins}}, "Satz 1 hat 1 statt 2 Werte"},
                  {paar, {{std::int64_t{1} << 31U, {}}}, "Feld „ID“"},
                  {paar, {{-(std::int64_t{1} << 31U), {}}}, "Feld „ID“"},
                  {paar, {{eins, "äöü"sv}}, "Schlüssel 1 hat im Feld „Wert“"},
                  {paar, {{eins, "\0"sv}}, "Feld „Wert“"},
                  {paar, {{eins, eins}}, "Feld „Wert“"},
                  {mit(Feldtyp::Zahl), {{eins, std::nan("")}}, "Feld „Wert“"},
                  {mit(Feldtyp::Zahl), {{eins, HUGE_VAL}}, "Feld „Wert“"},
                  {mit(Feldtyp::Zahl), {{eins, eins}}, "Feld „Wert“"},
                  {mit(Feldtyp::Kurz), {{eins, std::int64_t{-32768}}}, "Feld „Wert“"},
                  {mit(Feldtyp::Logisch), {{eins, eins}}, "Feld „Wert“"},
                  {mit(Feldtyp::Memo), {}, "„Wert“ hat eine Art"},
                  {mit(Feldtyp::Zaehler), {}, "„Wert“ hat eine Art"},
                  {mit(Feldtyp::Bcd), {}, "„Wert“ hat eine Art"},
                  {{{"ID", Feldtyp::Lang, 4}, {"B", Feldtyp::Alpha, 0}}, {}, "„B“ hat eine Art oder Breite"},
                  {{}, {}, "1 bis 255 Felder, nicht 0"},
                  {{{"ID", Feldtyp::Kurz, 2}}, {}, "Das erste Feld"},
                  {{{"ID", Feldtyp::Lang, 4}, {"id", Feldtyp::Lang, 4}}, {}, "„id“ kommt mehrfach vor"},
                  {{{"ID", Feldtyp::Lang, 4}, {std::string(26, 'n'), Feldtyp::Lang, 4}}, {}, "25 Zeichen"},
                  {std::vector<Feld>(256), {}, "nicht 256"},
                  {paar, {}, "Tabellenname", ""},
                  {paar, {}, "Tabellenname", std::string(76, 'n')}};
    for (const auto& f : faelle) {
        try {
            (void)SchreibeTabelle(f.name, f.felder, f.zeilen, 0);
            ADD_FAILURE() << f.meldung;
        } catch (const Fehler& e) {
            EXPECT_NE(e.Text().find(f.meldung), std::string::npos) << e.Text();
            EXPECT_EQ(e.Datei(), f.name + ".DB");
        }
    }
    // 1364 bytes: three do not fit into 4 KiB. 1363 do.
    std::vector<Feld> breit{{"ID", Feldtyp::Lang, 4}};
    for (const int breite : {255, 255, 255, 255, 255, 84})
        breit.push_back(
            {"F" + std::to_string(breit.size()), Feldtyp::Alpha, static_cast<std::uint8_t>(breite)});
    const std::vector<std::vector<Wert>> satz{{eins, {}, {}, {}, {}, {}, "z"sv}};
    EXPECT_EQ(Gelesen(SchreibeTabelle("T", breit, satz, 0).db), "1 - - - - - 'z' ");
    ++breit.back().groesse;
    EXPECT_THROW((void)SchreibeTabelle("T", breit, satz, 0), Fehler);
}

}  // namespace
}  // namespace zrw::paradox
