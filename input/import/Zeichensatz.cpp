#include "input/import/Zeichensatz.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "model/Cp1252.h"

namespace zrw::fremd {
namespace {

// What bytes from 0xA0 or 0x80 on mean (ISO/IEC 8859-2 and 8859-15, Microsoft's code page 1250).
// clang-format off
constexpr std::array<char16_t, 96> kLatein2{
    0x00A0, 0x0104, 0x02D8, 0x0141, 0x00A4, 0x013D, 0x015A, 0x00A7, 0x00A8, 0x0160, 0x015E, 0x0164,
    0x0179, 0x00AD, 0x017D, 0x017B, 0x00B0, 0x0105, 0x02DB, 0x0142, 0x00B4, 0x013E, 0x015B, 0x02C7,
    0x00B8, 0x0161, 0x015F, 0x0165, 0x017A, 0x02DD, 0x017E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102,
    0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E,
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170,
    0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3,
    0x00F4, 0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};
constexpr std::array<char16_t, 96> kLatein9{
    0x00A0, 0x00A1, 0x00A2, 0x00A3, 0x20AC, 0x00A5, 0x0160, 0x00A7, 0x0161, 0x00A9, 0x00AA, 0x00AB,
    0x00AC, 0x00AD, 0x00AE, 0x00AF, 0x00B0, 0x00B1, 0x00B2, 0x00B3, 0x017D, 0x00B5, 0x00B6, 0x00B7,
    0x017E, 0x00B9, 0x00BA, 0x00BB, 0x0152, 0x0153, 0x0178, 0x00BF, 0x00C0, 0x00C1, 0x00C2, 0x00C3,
    0x00C4, 0x00C5, 0x00C6, 0x00C7, 0x00C8, 0x00C9, 0x00CA, 0x00CB, 0x00CC, 0x00CD, 0x00CE, 0x00CF,
    0x00D0, 0x00D1, 0x00D2, 0x00D3, 0x00D4, 0x00D5, 0x00D6, 0x00D7, 0x00D8, 0x00D9, 0x00DA, 0x00DB,
    0x00DC, 0x00DD, 0x00DE, 0x00DF, 0x00E0, 0x00E1, 0x00E2, 0x00E3, 0x00E4, 0x00E5, 0x00E6, 0x00E7,
    0x00E8, 0x00E9, 0x00EA, 0x00EB, 0x00EC, 0x00ED, 0x00EE, 0x00EF, 0x00F0, 0x00F1, 0x00F2, 0x00F3,
    0x00F4, 0x00F5, 0x00F6, 0x00F7, 0x00F8, 0x00F9, 0x00FA, 0x00FB, 0x00FC, 0x00FD, 0x00FE, 0x00FF};
constexpr std::array<char16_t, 128> kSeite1250{
    0x20AC, 0xFFFD, 0x201A, 0xFFFD, 0x201E, 0x2026, 0x2020, 0x2021, 0xFFFD, 0x2030, 0x0160, 0x2039,
    0x015A, 0x0164, 0x017D, 0x0179, 0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0xFFFD, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141,
    0x00A4, 0x0104, 0x00A6, 0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B,
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB,
    0x013D, 0x02DD, 0x013E, 0x017C, 0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7,
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3,
    0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF,
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, 0x010D, 0x00E9, 0x0119, 0x00EB,
    0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7,
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9};
// clang-format on

/// A set of single bytes; those below the table are the numbers of their characters.
struct Bytesatz {
    std::string_view name;  ///< lower case
    std::span<const char16_t> tafel;
};

constexpr auto kBytesaetze = std::to_array<Bytesatz>({
    {"iso-8859-2", kLatein2},
    {"iso_8859-2", kLatein2},
    {"latin2", kLatein2},
    {"iso-8859-15", kLatein9},
    {"windows-1250", kSeite1250},
    {"cp1250", kSeite1250},
    {"cp-1250", kSeite1250},
});
/// Code page 1252 and the sets that it contains.
constexpr auto kWestlich = std::to_array<std::string_view>(
    {"windows-1252", "cp1252", "cp-1252", "iso-8859-1", "iso_8859-1", "latin1", "iso8859-1"});

void HaengeAn(std::string& ziel, std::uint32_t zeichen) {
    const auto byte = [&](std::uint32_t b) { ziel += static_cast<char>(b); };
    if (zeichen < 0x80) {
        byte(zeichen);
    } else if (zeichen < 0x800) {
        byte(0xC0U | zeichen >> 6U);
        byte(0x80U | (zeichen & 0x3FU));
    } else if (zeichen < 0x10000) {
        byte(0xE0U | zeichen >> 12U);
        byte(0x80U | (zeichen >> 6U & 0x3FU));
        byte(0x80U | (zeichen & 0x3FU));
    } else {
        byte(0xF0U | zeichen >> 18U);
        byte(0x80U | (zeichen >> 12U & 0x3FU));
        byte(0x80U | (zeichen >> 6U & 0x3FU));
        byte(0x80U | (zeichen & 0x3FU));
    }
}

/// @param hoch place of the high byte of each pair: 0 or 1
std::string AusUtf16(std::string_view bytes, std::size_t hoch) {
    std::string utf8;
    utf8.reserve(bytes.size() / 2);
    const auto einheit = [&](std::size_t i) {
        return static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[i + hoch])) << 8U |
               static_cast<unsigned char>(bytes[i + 1 - hoch]);
    };
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        std::uint32_t z = einheit(i);
        const bool paar = z >= 0xD800 && z < 0xDC00 && i + 3 < bytes.size() && einheit(i + 2) >= 0xDC00 &&
                          einheit(i + 2) < 0xE000;
        if (paar) {
            z = 0x10000U + ((z - 0xD800U) << 10U) + (einheit(i + 2) - 0xDC00U);
            i += 2;
        } else if (z >= 0xD800 && z < 0xE000) {
            z = 0xFFFD;  // half of a pair
        }
        HaengeAn(utf8, z);
    }
    return utf8;
}

std::string AusBytesatz(std::string_view bytes, const Bytesatz& satz) {
    const std::size_t ab = 256 - satz.tafel.size();
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char c : bytes) {
        const auto b = static_cast<unsigned char>(c);
        HaengeAn(utf8, b < ab ? b : satz.tafel[b - ab]);
    }
    return utf8;
}

/// The encoding that the XML head names, lower case; empty: none.
std::string Kopfangabe(std::string_view text) {
    if (!text.starts_with("<?xml")) return {};
    const std::string_view kopf = text.substr(0, std::min(text.find("?>"), std::size_t{512}));
    const std::size_t wort = kopf.find("encoding");
    if (wort == std::string_view::npos) return {};
    const std::size_t auf = kopf.find_first_of("\"'", wort);
    if (auf == std::string_view::npos) return {};
    const std::size_t zu = kopf.find(kopf[auf], auf + 1);
    if (zu == std::string_view::npos) return {};
    std::string name(kopf.substr(auf + 1, zu - auf - 1));
    std::transform(name.begin(), name.end(), name.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return name;
}

bool NurAscii(std::string_view text) {
    return std::none_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) < 0; });
}

}  // namespace

std::string WandleInUtf8(std::string& text) {
    if (text.starts_with("\xEF\xBB\xBF")) {
        text.erase(0, 3);
        return {};
    }
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
        text = AusUtf16(std::string_view(text).substr(2), text.front() == '\xFF' ? 1 : 0);
        return {};
    }
    const std::string name = Kopfangabe(text);
    // Most sets have the characters of ASCII where ASCII has them.
    if (name.empty() || name == "utf-8" || name == "utf8" || name == "us-ascii" || NurAscii(text)) return {};
    if (std::find(kWestlich.begin(), kWestlich.end(), name) != kWestlich.end()) {
        text = Cp1252NachUtf8(text);
        return {};
    }
    const auto* satz = std::find_if(kBytesaetze.begin(), kBytesaetze.end(),
                                    [&](const Bytesatz& s) { return s.name == name; });
    if (satz == kBytesaetze.end())
        return "Den Zeichensatz „" + name + "“ kennt Zarwik nicht. Bitte die Datei als UTF-8 speichern.";
    text = AusBytesatz(text, *satz);
    return {};
}

}  // namespace zrw::fremd
