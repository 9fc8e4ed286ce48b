// The settings: what is stored under which key, what damaged stores leave, and scaling for an output device.
#include "model/Einstellungen.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/hilfe/Speicherdateien.h"

namespace zrw {
namespace {

using Texte = std::map<std::string, std::string, std::less<>>;

/// Key and text of every stored setting, in the order of storing.
const std::vector<std::pair<std::string, std::string>> kWerk{
    {"TXCol", "0"},    {"FPCol", "0"},       {"FLCol", "8421504"},   {"FHCol", "32768"},    {"NPCol", "255"},
    {"RICol", "255"},  {"AZCol", "8388736"}, {"GPSCol", "16711935"}, {"TKCol", "16711680"}, {"PPCol", "255"},
    {"PTSize", "4"},   {"HPSize", "2"},      {"Fang", "5"},          {"PXOff", "10"},       {"PYOff", "-5"},
    {"LGRCol", "255"}, {"LGGCol", "255"},    {"HRCol", "16711680"},  {"HGCol", "16711680"}, {"GFCol", "128"},
    {"ResMF", "1"}};

TEST(Einstellungen, WerkseinstellungUndReihenfolge) {
    Einstellungen e;
    Speichereinstellungen s;
    LoadSettings(e, s);
    SaveSettings(e, s);
    std::vector<std::pair<std::string, std::string>> geschrieben;
    for (const std::string& schluessel : s.geschrieben)
        geschrieben.emplace_back(schluessel, s.werte[schluessel]);
    EXPECT_EQ(geschrieben, kWerk);
    EXPECT_EQ(e.Zoomschritt, 2.0 / 3.0);
}

// No two keys share a field.
TEST(Einstellungen, JederSchluesselHatSeinFeld) {
    Einstellungen e;
    Speichereinstellungen s;
    for (const auto& [schluessel, text] : kWerk)
        s.werte[schluessel] = std::to_string(1001 + s.werte.size());
    s.werte["ResMF"] = "0.1";
    const Texte alle = s.werte;
    LoadSettings(e, s);
    EXPECT_EQ(e.FPCol.wert, 1002U);
    EXPECT_EQ(e.Fang, 1013);
    s.werte.clear();
    SaveSettings(e, s);
    EXPECT_EQ(s.werte, alle);
}

TEST(Einstellungen, WasGelesenWird) {
    struct {
        const char *schluessel, *text, *danach;
    } constexpr kFaelle[] = {{"PTSize", "65541", "5"},
                             {"HPSize", "-1", "65535"},
                             {"Fang", "abc", "5"},
                             {"PXOff", "", "10"},
                             {"PYOff", "-2147483648", "-2147483648"},
                             {"PYOff", "99999999999", "-5"},
                             {"PXOff", "3000000000", "10"},
                             {"FLCol", "8421504 rot", "8421504"},
                             {"FPCol", "4294967295", "-1"},
                             {"ResMF", "abc", "1"},
                             {"ResMF", "2,5", "1"},
                             {"ResMF", "inf", "1"},
                             {"ResMF", "2.5", "2.5"}};
    for (const auto& f : kFaelle) {
        Einstellungen e;
        Speichereinstellungen s;
        s.werte[f.schluessel] = f.text;
        e.ResMF = 7;  // a missing or damaged scale does not keep what was there
        LoadSettings(e, s);
        SaveSettings(e, s);
        Texte soll(kWerk.begin(), kWerk.end());
        soll[f.schluessel] = f.danach;
        EXPECT_EQ(s.werte, soll) << f.schluessel << " " << f.text;
    }
}

TEST(Einstellungen, GroessenWachsenMitDemGeraet) {
    constexpr std::uint16_t Einstellungen::*kGroessen[] = {
        &Einstellungen::PTSize,         &Einstellungen::HPSize,     &Einstellungen::Kreuzgroesse,
        &Einstellungen::Quadratgroesse, &Einstellungen::RauteQuer,  &Einstellungen::RauteLaengs,
        &Einstellungen::Dreieckgroesse, &Einstellungen::Querstrich, &Einstellungen::GPSGroesse,
        &Einstellungen::Umweggroesse};
    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    constexpr double kFaelle[][3] = {{4, 6.25, 25}, {25, 0.16, 4},     {5, 0.5, 2},
                                     {7, 0.5, 4},   {3, 0.1, 0},       {40000, 6.25, 65535},
                                     {4, -1, 0},    {4, 1e300, 65535}, {4, kNan, 0}};
    for (const auto& [vorher, faktor, nachher] : kFaelle) {
        Einstellungen e;
        for (const auto feld : kGroessen)
            e.*feld = static_cast<std::uint16_t>(vorher);
        e.ScaleSizes(faktor);
        for (const auto feld : kGroessen)
            EXPECT_EQ(e.*feld, nachher) << vorher << " x " << faktor;
        EXPECT_EQ(e.Fang, 5);
    }
}

}  // namespace
}  // namespace zrw
