// Byte layout of Paradox tables (.DB) and their primary index (.PX): fixed header, field table, blocks.
// Header and block heads are little-endian; contents of records are big-endian with the top bit flipped, so
// that raw bytes sort as the values do.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "input/tabellen/Paradox.h"
#include "model/Aufzaehltafel.h"

namespace zrw::paradox {

// The fixed header. What is not named here is zero in a table at rest.
inline constexpr std::size_t kSatzlaenge = 0x00;    // u16
inline constexpr std::size_t kKopflaenge = 0x02;    // u16, block 1 begins here
inline constexpr std::size_t kDateiart = 0x04;      // u8, see kMitSchluessel
inline constexpr std::size_t kBlockgroesse = 0x05;  // u8 [KiB]
inline constexpr std::size_t kSatzzahl = 0x06;      // u32, in an index the entries of all levels
inline constexpr std::size_t kKette = 0x0A;         // u16, blocks in the chain
inline constexpr std::size_t kBloecke = 0x0C;       // u16, blocks in the file, free ones included
inline constexpr std::size_t kErster = 0x0E;        // u16, head of the chain, 0: empty
inline constexpr std::size_t kLetzter = 0x10;       // u16
inline constexpr std::size_t kUngeklaert = 0x12;    // u16, meaning unknown: 3 in tables, 4 in indexes
inline constexpr std::size_t kUmbau1 = 0x14;        // u8, not 0 while being rewritten
inline constexpr std::size_t kWurzel = 0x1E;        // u16, index: block of the root
inline constexpr std::size_t kEbenen = 0x20;        // u8, index: levels
inline constexpr std::size_t kFeldzahl = 0x21;      // u16
inline constexpr std::size_t kSchluessel = 0x23;    // u16, so many of the first fields are the key
inline constexpr std::size_t kKennwortAlt = 0x25;   // u32, not 0 in an encrypted table of version 3 and 4
inline constexpr std::size_t kSortierung = 0x29;    // u8
inline constexpr std::size_t kUmbau2 = 0x2A;        // u8, like the first
inline constexpr std::size_t kStempel = 0x2C;       // u8, index: belongs to this state of the table
inline constexpr std::size_t kZaehler1 = 0x2D;      // u8, table: changes, the source of the stamp
inline constexpr std::size_t kZaehler2 = 0x2E;      // u8
inline constexpr std::size_t kVersion = 0x39;       // u8
inline constexpr std::size_t kBloecke2 = 0x3A;      // u16, as kBloecke
inline constexpr std::size_t kKennung = 0x3E;       // u16, 0F1F in a plain table
inline constexpr std::size_t kIndexzaehler = 0x49;  // u32, index: never 0
inline constexpr std::size_t kBenutzt = 0x51;       // u16, header bytes in use
inline constexpr std::size_t kStufenkopf = 0x56;    // u8, 20 where the second part follows
inline constexpr std::size_t kKopf = 0x58;          // end

// The second part: tables from version 5 on, no index.
inline constexpr std::size_t kVersion2 = 0x58;      // u16, 0100 + version, twice
inline constexpr std::size_t kKennwort = 0x5C;      // u32, not 0 in an encrypted table
inline constexpr std::size_t kZeitstempel = 0x60;   // u32 [s since 1970]
inline constexpr std::size_t kFeldzaehler = 0x64;   // u16, highest field number ever + 1
inline constexpr std::size_t kFeldnummern = 0x66;   // u16, where they stand, from kKopf
inline constexpr std::size_t kCodeseite = 0x6A;     // u16
inline constexpr std::size_t kEinsen = 0x6C;        // u16, 0101
inline constexpr std::size_t kSortiername = 0x6E;   // u16, where it stands, from kKopf
inline constexpr std::size_t kUmbauten = 0x70;      // u16
inline constexpr std::size_t kKopfMitTeil2 = 0x78;  // end

// Then, without gaps: type and size of every field, u8 each; u32 for the table's name and, in a table, u32
// per field name, both of use only in memory; the table's name in kNameBreite bytes; the field names with a
// zero each; from version 5 on field numbers, u16 each, and the name of the sort order with a zero.
inline constexpr std::size_t kNameBreite = 79;
inline constexpr std::size_t kNameBreite7 = 261;  // version 0C

inline constexpr std::uint8_t kMitSchluessel = 0;
inline constexpr std::uint8_t kIndex = 1;
inline constexpr std::uint8_t kOhneSchluessel = 2;

inline constexpr std::uint8_t kAeltesteVersion = 0x03;
inline constexpr std::uint8_t kVersionMitTeil2 = 0x05;
inline constexpr std::uint8_t kNeuesteVersion = 0x0C;

/// u16 next block (0: last), u16 previous block (0: first), s16 bytes of all records but the first, negative
/// without any. The records follow, and then what was left there before.
inline constexpr std::size_t kBlockkopf = 6;

/// An index record: the key of the first record of the target, then three u16 stored like record contents:
/// block number of the target, its data records, 0.
inline constexpr std::size_t kVerweis = 6;

struct Typ {
    Feldtyp typ;
    std::uint8_t breite;    ///< bytes in the record, 0: the size byte says
    std::uint8_t kleinste;  ///< smallest and
    std::uint8_t groesste;  ///< largest size byte
};

inline constexpr auto kTypen = std::to_array<Typ>({
    {Feldtyp::Alpha, 0, 1, 255},
    {Feldtyp::Datum, 4, 4, 4},
    {Feldtyp::Kurz, 2, 2, 2},
    {Feldtyp::Lang, 4, 4, 4},
    {Feldtyp::Waehrung, 8, 8, 8},
    {Feldtyp::Zahl, 8, 8, 8},
    {Feldtyp::Logisch, 1, 1, 1},
    {Feldtyp::Memo, 0, 10, 255},
    {Feldtyp::Binaer, 0, 10, 255},
    {Feldtyp::FormatMemo, 0, 10, 255},
    {Feldtyp::Ole, 0, 10, 255},
    {Feldtyp::Grafik, 0, 10, 255},
    {Feldtyp::Zeit, 4, 4, 4},
    {Feldtyp::Zeitpunkt, 8, 8, 8},
    {Feldtyp::Zaehler, 4, 4, 4},
    {Feldtyp::Bcd, 17, 0, 255},
    {Feldtyp::Bytes, 0, 1, 255},
});

static_assert(Verschieden(kTypen, &Typ::typ));

/// Null for a code without type.
[[nodiscard]] constexpr const Typ* FindeTyp(std::uint8_t code) {
    for (const Typ& t : kTypen) {
        if (static_cast<std::uint8_t>(t.typ) == code) return &t;
    }
    return nullptr;
}

}  // namespace zrw::paradox
