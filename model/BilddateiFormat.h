// Byte layout of the picture file ".ZRW": header, point records, label records, line records. Little-endian,
// packed, without magic number or version. docs/dateiformate.md explains it field by field.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zrw::bilddatei {

//  0 Faktor, MaxXW, MinXW, MaxYW, MinYW, XOffset, YOffset  7 doubles
// 56 MaxPkte, MaxKant, Weite, Hoehe                        4 int32
// 72 two words of the legend, written as zero              2 uint32
// 80 Netztyp                                               int32
inline constexpr std::size_t kKopf = 84;
// XWPu, YWPu double; PNr u16; colour u32; PktAttr, PktTyp, Visible u8; XO, YO int64
inline constexpr std::size_t kPunktsatz = 41;
// TNr u16; length u8 and 14 bytes of text; colour u32; XBiO, YBiO int64; Visible u8; XO, YO int64
inline constexpr std::size_t kTextsatz = 54;
// ANr, ENr u16; XBiE, YBiE int64; colour u32; KAttr, LAttr, Visible u8; XO, YO int64
inline constexpr std::size_t kKantensatz = 43;

/// Counts are read as 16 bits: no more points (= labels), no more lines fit into a file.
inline constexpr std::int32_t kMaxAnzahl = 65535;

}  // namespace zrw::bilddatei
