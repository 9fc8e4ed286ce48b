// Named sets of all display colours, and the colours that figures carry: what a file keeps of the kind of a
// point or a line is its colour.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Einstellungen.h"

namespace zrw {

/// All colours, in the order in which they are stored.
inline constexpr auto kFarbfelder = std::to_array<Farbe Einstellungen::*>(
    {&Einstellungen::TXCol, &Einstellungen::FPCol, &Einstellungen::FLCol, &Einstellungen::FHCol,
     &Einstellungen::NPCol, &Einstellungen::RICol, &Einstellungen::AZCol, &Einstellungen::GPSCol,
     &Einstellungen::TKCol, &Einstellungen::PPCol, &Einstellungen::LGRCol, &Einstellungen::LGGCol,
     &Einstellungen::HRCol, &Einstellungen::HGCol, &Einstellungen::GFCol});
/// A colour for each of them.
using Farbsatz = std::array<Farbe, kFarbfelder.size()>;

[[nodiscard]] constexpr Farbsatz FarbenAus(const Einstellungen& e) {
    Farbsatz satz;
    std::transform(kFarbfelder.begin(), kFarbfelder.end(), satz.begin(),
                   [&](Farbe Einstellungen::*feld) { return e.*feld; });
    return satz;
}
constexpr void SetzeFarben(Einstellungen& e, const Farbsatz& satz) {
    for (std::size_t i = 0; i < satz.size(); ++i)
        e.*kFarbfelder[i] = satz[i];
}

/// The settings that figures of a network were coloured from: points with their labels, and lines.
struct Figurenfarben {
    std::array<Farbe, 4> punkte;
    std::array<Farbe, 4> linien;
    friend bool operator==(const Figurenfarben&, const Figurenfarben&) = default;
};
[[nodiscard]] constexpr Figurenfarben FigurenfarbenAus(const Einstellungen& e) {
    return {{e.FPCol, e.FLCol, e.FHCol, e.NPCol}, {e.RICol, e.AZCol, e.GPSCol, e.GFCol}};
}
/// No two kinds of points share a colour, nor two of lines: they can be told apart in a file.
[[nodiscard]] constexpr bool Unterscheidbar(const Figurenfarben& f) {
    const auto verschieden = [](const std::array<Farbe, 4>& farben) {
        for (std::size_t i = 0; i < farben.size(); ++i) {
            if (std::count(farben.begin(), farben.end(), farben[i]) != 1) return false;
        }
        return true;
    };
    return verschieden(f.punkte) && verschieden(f.linien);
}

struct Farbpalette {
    std::string_view name;     ///< UTF-8
    std::string_view hinweis;  ///< what it is for, UTF-8
    Farbsatz farben;
};

/// From the usual notation 0xRRGGBB.
[[nodiscard]] consteval Farbsatz AusRgb(const std::array<std::uint32_t, kFarbfelder.size()>& rgb) {
    Farbsatz satz;
    std::transform(rgb.begin(), rgb.end(), satz.begin(),
                   [](std::uint32_t f) { return Farbe{((f & 0xFFU) << 16U) | (f & 0xFF00U) | (f >> 16U)}; });
    return satz;
}

/// In a row: numbers; FP, FL, FH, NP; RI, AZ, GPS; map sheets, frame; residuals and ellipses of the position;
/// residuals and precision of the height; gross errors. The first is what the program comes with.
inline constexpr auto kFarbpaletten = std::to_array<Farbpalette>({
    {"Vorgabe", "Farben, mit denen Zarwik ausgeliefert wird", FarbenAus(Einstellungen{})},
    // At least 7:1 on white: level AAA of WCAG 2.1.
    {"Kontrast", "Dunkle, satte Farben für schwache Projektoren und Drucker",
     AusRgb({0x000000, 0x000000, 0x0000C0, 0x006400, 0xB00000, 0xB00000, 0x6A006A, 0x0000C0, 0x0000C0,
             0xB00000, 0xB00000, 0xB00000, 0x0000C0, 0x0000C0, 0x000000})},
    // From the eight colours of M. Okabe and K. Ito, "Color Universal Design" (2002, revised 2008).
    {"Farbfehlsicht", "Auch mit Rot-Grün-Sehschwäche zu unterscheiden",
     AusRgb({0x000000, 0x000000, 0xCC79A7, 0x0072B2, 0xD55E00, 0x0072B2, 0x000000, 0xCC79A7, 0x56B4E9,
             0xD55E00, 0xD55E00, 0xD55E00, 0x0072B2, 0x0072B2, 0xD55E00})},
    // Greys with equal steps of lightness, the lightest still 3:1 on white.
    {"Schwarzweiß", "Schwarz und Grau",
     AusRgb({0x000000, 0x000000, 0x303030, 0x616161, 0x949494, 0x616161, 0x303030, 0x949494, 0x949494,
             0x303030, 0x303030, 0x303030, 0x616161, 0x616161, 0x000000})},
});

static_assert(Verschieden(kFarbpaletten, &Farbpalette::name));
static_assert(std::all_of(kFarbpaletten.begin(), kFarbpaletten.end(),
                          [](const Farbpalette& p) {
                              Einstellungen e;
                              SetzeFarben(e, p.farben);
                              return Unterscheidbar(FigurenfarbenAus(e));
                          }),
              "kinds of points differ, and kinds of lines");

/// The palette that the colours are exactly, or null.
[[nodiscard]] constexpr const Farbpalette* FindePalette(const Farbsatz& farben) {
    const auto* p = std::find_if(kFarbpaletten.begin(), kFarbpaletten.end(),
                                 [&](const Farbpalette& f) { return f.farben == farben; });
    return p != kFarbpaletten.end() ? p : nullptr;
}

}  // namespace zrw
