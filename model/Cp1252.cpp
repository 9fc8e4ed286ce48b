#include "model/Cp1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

namespace zrw {
namespace {

/// Characters of the bytes 0x80 to 0x9F (Unicode mapping table CP1252); the rest equals Latin-1.
constexpr std::array<char32_t, 32> kOben{0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                         0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                         0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                         0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void HaengeAn(std::string& ziel, char32_t c) {
    if (c < 0x80) {
        ziel += static_cast<char>(c);
    } else if (c < 0x800) {
        ziel += static_cast<char>(0xC0 | (c >> 6U));
        ziel += static_cast<char>(0x80 | (c & 0x3FU));
    } else {
        if (c < 0x10000) {
            ziel += static_cast<char>(0xE0 | (c >> 12U));
        } else {
            ziel += static_cast<char>(0xF0 | (c >> 18U));
            ziel += static_cast<char>(0x80 | ((c >> 12U) & 0x3FU));
        }
        ziel += static_cast<char>(0x80 | ((c >> 6U) & 0x3FU));
        ziel += static_cast<char>(0x80 | (c & 0x3FU));
    }
}

constexpr char32_t kKeins = 0xFFFFFFFF;

/// Takes one character off the front; `kKeins` for a damaged sequence, of which one byte is taken.
char32_t NimmZeichen(std::string_view& t) {
    const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(t[i]); };
    const std::uint8_t b = byte(0);
    const std::size_t laenge = b < 0x80 ? 1 : b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : b >= 0xC2 ? 2 : 0;
    const bool ganz = laenge > 0 && laenge <= t.size() &&
                      std::all_of(t.begin() + 1, t.begin() + static_cast<std::ptrdiff_t>(laenge),
                                  [](char c) { return (static_cast<std::uint8_t>(c) & 0xC0U) == 0x80; });
    if (!ganz) {
        t.remove_prefix(1);
        return kKeins;
    }
    char32_t c = laenge == 1 ? b : b & (0x7FU >> laenge);
    for (std::size_t i = 1; i < laenge; ++i)
        c = (c << 6U) | (byte(i) & 0x3FU);
    // A longer form than needed and values that are no characters count as damage, too.
    constexpr std::array<char32_t, 5> kKleinstes{0, 0, 0x80, 0x800, 0x10000};
    if (c < kKleinstes[laenge] || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        t.remove_prefix(1);
        return kKeins;
    }
    t.remove_prefix(laenge);
    return c;
}

/// Nothing for a character that the code page lacks.
std::optional<char> NachByte(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) return static_cast<char>(c);
    const auto* stelle = std::find(kOben.begin(), kOben.end(), c);
    if (stelle == kOben.end()) return std::nullopt;
    return static_cast<char>(0x80 + (stelle - kOben.begin()));
}

/// Length of the ASCII text at the front, in whole words of eight bytes: control files have megabytes of it.
std::size_t AsciiVorn(std::string_view text) {
    constexpr std::uint64_t kObersteBits = 0x8080808080808080U;
    std::size_t i = 0;
    for (std::uint64_t wort = 0; i + sizeof wort <= text.size(); i += sizeof wort) {
        std::memcpy(&wort, text.data() + i, sizeof wort);
        if ((wort & kObersteBits) != 0) break;
    }
    return i;
}

}  // namespace

char32_t Cp1252Zeichen(char byte) {
    const auto b = static_cast<std::uint8_t>(byte);
    return b >= 0x80 && b < 0xA0 ? kOben[b - 0x80U] : b;
}

std::string Cp1252NachUtf8(std::string_view bytes) {
    std::string text;
    text.reserve(bytes.size());
    for (const char z : bytes)
        HaengeAn(text, Cp1252Zeichen(z));
    return text;
}

std::string Utf8NachCp1252(std::string_view text) {
    std::string bytes(text);
    WandleInCp1252(bytes);
    return bytes;
}

bool IstUtf8(std::string_view text) {
    bool hohe = false;
    for (;;) {
        text.remove_prefix(AsciiVorn(text));
        if (text.empty()) return hohe;
        const char32_t c = NimmZeichen(text);
        if (c == kKeins) return false;
        hohe = hohe || c >= 0x80;
    }
}

Zeichenverlust WandleInCp1252(std::string& text, std::size_t ab) {
    Zeichenverlust verlust;
    std::size_t ziel = 0;
    // No character is longer in the code page than in UTF-8: writing stays behind reading.
    for (std::string_view rest = std::string_view(text).substr(ab);;) {
        const std::size_t ascii = AsciiVorn(rest);
        std::memmove(text.data() + ziel, rest.data(), ascii);
        ziel += ascii;
        rest.remove_prefix(ascii);
        if (rest.empty()) break;
        const auto byte = NachByte(NimmZeichen(rest));
        if (!byte && verlust.anzahl++ == 0) verlust.erstes = ziel;
        text[ziel++] = byte.value_or('?');
    }
    text.resize(ziel);
    return verlust;
}

std::string BreitNachUtf8(std::wstring_view text) {
    constexpr char32_t kHaelfte = 0x3FF;
    const auto zeichen = [&](std::size_t i) { return i < text.size() ? static_cast<char32_t>(text[i]) : 0; };
    const auto ist = [&](std::size_t i, char32_t haelfte) { return (zeichen(i) & ~kHaelfte) == haelfte; };
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool erste = ist(i, 0xD800);
        const bool paar = erste && ist(i + 1, 0xDC00);
        const bool allein = !paar && (erste || ist(i, 0xDC00));
        HaengeAn(utf8, paar     ? 0x10000 + ((zeichen(i) & kHaelfte) << 10U) + (zeichen(i + 1) & kHaelfte)
                       : allein ? char32_t{0xFFFD}
                                : zeichen(i));
        if (paar) ++i;
    }
    return utf8;
}

}  // namespace zrw
