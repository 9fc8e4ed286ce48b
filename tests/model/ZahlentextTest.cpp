// Numbers and text, under the plain locale and under those that write a comma.
#include "model/Zahlentext.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace zrw {
namespace {

void PruefeReal() {
    const std::pair<double, std::vector<const char*>> kGut[] = {
        {1500, {"1500", "+1500", "1500.", "1.5e3", "1.5D+03", "15d2", "0.15E04", " \t1500 \t", "0001500.00"}},
        {-.5, {"-.5", "-0.5", "-5e-1", "-5D-01"}},
        {0, {"0", "-0", "0e999", "1e-400", "-1d-400", "1e-99999999999999999999"}},
        {5e-324, {"4.9e-324"}},
        {3412345.678, {"3412345.678", "+3.412345678E6"}}};
    for (const auto& [wert, texte] : kGut) {
        for (const char* text : texte)
            EXPECT_EQ(LiesReal(text), wert) << text;
    }
    for (const char* text :
         {"",   " ",  ".",   "+",    "-",   "-.",  "+-5",  "-+5",  "++5",   "--5",  "2,5", "1 2",
          "e5", "1e", "1e+", "0x10", "inf", "nan", "-inf", "+nan", "1e309", "\xB2", "1\n"}) {
        EXPECT_EQ(LiesReal(text), std::nullopt) << text;
    }
    for (const char* text :
         {"1.000,5", "1.2.3", "1e5d3", "1.5x", "INFINITY", "-1e400", "1d999999999999999999999"}) {
        EXPECT_EQ(LiesReal(text), std::nullopt) << text;
    }
    // Size and exponent may point in different directions; only the value counts.
    const std::string nullen(400, '0');
    for (const std::string& text :
         {"0." + nullen + "1", "0." + nullen + "1e5", std::string("0.01e-9223372036854775808")}) {
        EXPECT_EQ(LiesReal(text), 0.0) << text;
    }
    for (const std::string& text :
         {"1" + nullen, "1" + nullen + "e-10", std::string("10e9223372036854775807")}) {
        EXPECT_EQ(LiesReal(text), std::nullopt) << text;
    }
    EXPECT_EQ(LiesReal("1" + nullen + "e-400"), 1.0);
}

void PruefeGanz() {
    EXPECT_EQ(LiesGanz(" +8421504\t"), 8421504);
    EXPECT_EQ(LiesGanz("-9223372036854775808"), std::numeric_limits<std::int64_t>::min());
    for (const char* text :
         {"", "+", "-", "+-5", "1.0", "1.", "1e3", "0x1F", "1 2", "9223372036854775808", "abc"}) {
        EXPECT_EQ(LiesGanz(text), std::nullopt) << text;
    }
}

void PruefeSchreiben() {
    for (const std::string text : {"1", "2.5", "-0.25", "100000", "12345678", "0.001", "3412345.678", "1e+15",
                                   "999999999999999", "0.00001", "9e-06"}) {
        EXPECT_EQ(SchreibeReal(LiesReal(text).value_or(0)), text);
    }
    std::mt19937_64 zufall(3);
    for (int i = 0; i < 2000; ++i) {
        const double v = std::ldexp(static_cast<double>(zufall()), static_cast<int>(zufall() % 400) - 260);
        ASSERT_EQ(LiesReal(SchreibeReal(v)), v);
    }
    struct {
        double wert;
        int breite, stellen;
        const char* text;
    } constexpr kFest[] = {
        {3.14159, 8, 2, "    3.14"}, {-1234.5, 4, 3, "-1234.500"}, {0.5, 0, 0, "0"},
        {1.5, 3, 0, "  2"},          {2.5, -4, -1, "2"},           {1e15, 1, 1, "1000000000000000.0"}};
    for (const auto& f : kFest)
        EXPECT_EQ(Festkomma(f.wert, f.breite, f.stellen), f.text);
    EXPECT_EQ(Festkomma(-std::numeric_limits<double>::max(), 0, 60).size(), 371U);
    EXPECT_EQ(Festkomma(std::nan(""), 6, 2), "   nan");
}

struct MitKomma : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

void PruefeAlles() {
    PruefeReal();
    PruefeGanz();
    PruefeSchreiben();
}

TEST(Zahlentext, ZahlenSindDezimalUndGanz) {
    PruefeAlles();
}

TEST(Zahlentext, ZahlenUnterEinemStromGebietsschemaMitKomma) {
    const std::locale vorher = std::locale::global(std::locale(std::locale::classic(), new MitKomma));
    PruefeAlles();
    std::locale::global(vorher);
}

TEST(Zahlentext, ZahlenUnterEinemSystemGebietsschemaMitKomma) {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "de_AT.UTF-8", "fr_FR.UTF-8", "German"}) {
        if (std::setlocale(LC_ALL, name) == nullptr || *std::localeconv()->decimal_point != ',') continue;
        PruefeAlles();
        std::setlocale(LC_ALL, "C");
        return;
    }
    std::setlocale(LC_ALL, "C");
    GTEST_SKIP() << "no locale with a decimal comma is installed here";
}

}  // namespace
}  // namespace zrw
