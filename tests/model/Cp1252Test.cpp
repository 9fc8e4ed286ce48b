// Code page 1252 both ways: every byte, every damage.
#include "model/Cp1252.h"

#include <gtest/gtest.h>

namespace zrw {
namespace {

TEST(Cp1252, JedesByteKommtZurueck) {
    std::string alle;
    for (int b = 0; b < 256; ++b)
        alle += static_cast<char>(b);
    EXPECT_EQ(Utf8NachCp1252(Cp1252NachUtf8(alle)), alle);
    EXPECT_EQ(Cp1252NachUtf8("Gr\xF6\xDF"
                             "e \x80 \x9F \x8D"),
              "Größe € Ÿ \u008D");
}

TEST(Cp1252, BeschaedigtesUndFremdesWirdZumFragezeichen) {
    struct {
        const char *utf8, *bytes;
    } constexpr kFaelle[] = {{"Höhe", "H\xF6he"},
                             {"10 €", "10 \x80"},
                             {"α≤😀", "???"},
                             {"\u0080", "?"},
                             {"a\x80"
                              "b",
                              "a?b"},          // continuation without a lead
                             {"a\xC3", "a?"},  // cut
                             {"\xE2\x82", "??"},
                             {"\xC3"
                              "A",
                              "?A"},              // continuation missing
                             {"\xC0\xAF", "??"},  // overlong slash in two, three and four bytes
                             {"\xE0\x80\xAF", "???"},
                             {"\xF0\x80\x80\xAF", "????"},
                             {"\xF8\x80\x80\xAF", "????"},  // no such lead
                             {"\xFF\xFE", "??"}};
    for (const auto& f : kFaelle)
        EXPECT_EQ(Utf8NachCp1252(f.utf8), f.bytes) << f.utf8;
}

TEST(Cp1252, BreiteZeichenAuchHalbe) {
    EXPECT_EQ(BreitNachUtf8(std::wstring{L'a', 0xE4, 0x20AC, 0xD83D, 0xDE00, 'z'}), "aä€😀z");
    EXPECT_EQ(BreitNachUtf8(std::wstring{0xDE00, 0xD83D, 'a', 0xD83D}), "\uFFFD\uFFFDa\uFFFD");
}

}  // namespace
}  // namespace zrw
