#include "input/tabellen/Anzeigetext.h"

#include <gtest/gtest.h>

#include <limits>

namespace zrw {
namespace {

TEST(Anzeigetext, ZahlenNachMuster) {
    const struct {
        double wert;
        const char* muster;
        const char* text;
    } faelle[] = {{0.0, "0", "0"},
                  {0.0, "#", ""},
                  {0.0, "#.000", ".000"},
                  {0.5, "#.000", ".500"},
                  {-0.5, "#.000", "-.500"},
                  {-0.0004, "#.000", ".000"},
                  {0.0004, "0.000", "0.000"},
                  {0.0995, "#.00", ".10"},
                  {9.9995, "#.000", "10.000"},
                  {99.5, "0", "100"},
                  {0.5, "0", "1"},
                  {2.5, "0", "3"},
                  {-2.5, "0", "-3"},
                  {0.4999, "0", "0"},
                  {-0.4, "0", "0"},
                  {2.675, "#.00", "2.68"},
                  {1234567.8915, "#.000", "1234567.892"},
                  {12, "#.", "12"},
                  {0.0, "#.", ""},
                  {12.34, "#.0000", "12.3400"},
                  {3550123.4, "#.0", "3550123.4"},
                  {1e-7, "#.00", ".00"},
                  {1e20, "0", "100000000000000000000"},
                  {1.5, "", "1.5"},
                  {std::numeric_limits<double>::quiet_NaN(), "0", ""},
                  {-std::numeric_limits<double>::infinity(), "#.000", ""}};
    for (const auto& f : faelle)
        EXPECT_EQ(Anzeigetext(f.wert, f.muster), f.text) << f.wert << " " << f.muster;
    EXPECT_EQ(Anzeigetext(std::numeric_limits<double>::max(), "0").size(), 309U);
}

TEST(Anzeigetext, Zeitpunkte) {
    EXPECT_EQ(AnzeigeZeitpunkt(62135722800000.0), "01.01.1970 11:00:00");
    EXPECT_EQ(AnzeigeZeitpunkt(86400000.0), "01.01.0001 00:00:00");
    EXPECT_EQ(AnzeigeZeitpunkt(3652060 * 86400000.0 - 1), "31.12.9999 23:59:59");
    for (const double wert :
         {0.0, -1.0, 3652060 * 86400000.0, 1e300, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_EQ(AnzeigeZeitpunkt(wert), "") << wert;
}

}  // namespace
}  // namespace zrw
