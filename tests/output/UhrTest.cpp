#include "output/Uhr.h"

#include <gtest/gtest.h>

#include <ctime>

namespace zrw {
namespace {

std::string Jetzt() {
    const std::time_t jetzt = std::time(nullptr);
    char text[64];
    return {text, std::strftime(text, sizeof text, "%d.%m.%Y %H:%M:%S", std::localtime(&jetzt))};
}

TEST(Uhr, GehtWieDieDesSystems) {
    // Both ways of asking within one second; a few tries, as the second may just be over.
    bool gleich = false;
    for (int i = 0; i < 5 && !gleich; ++i)
        gleich = Systemuhr().DatumZeit() == Jetzt();
    EXPECT_TRUE(gleich) << Systemuhr().DatumZeit() << " " << Jetzt();
}

}  // namespace
}  // namespace zrw
