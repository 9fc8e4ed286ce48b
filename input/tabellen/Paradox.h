// The Paradox table format (.DB with its primary index .PX): the vocabulary that reader and writer share.
// Header values are little-endian; the contents of records are big-endian with the top bit flipped, so that
// raw bytes sort as the values do. All bytes of a field zero: null.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace zrw::paradox {

/// Field types with their codes in the file.
enum class Feldtyp : std::uint8_t {
    Alpha = 0x01,
    Datum = 0x02,
    Kurz = 0x03,
    Lang = 0x04,
    Waehrung = 0x05,
    Zahl = 0x06,
    Logisch = 0x09,
    Memo = 0x0C,
    Binaer = 0x0D,
    FormatMemo = 0x0E,
    Ole = 0x0F,
    Grafik = 0x10,
    Zeit = 0x14,
    Zeitpunkt = 0x15,
    Zaehler = 0x16,
    Bcd = 0x17,
    Bytes = 0x18,
};

struct Feld {
    std::string name;  ///< UTF-8
    Feldtyp typ = Feldtyp::Alpha;
    std::uint8_t groesse = 0;  ///< size byte of the file: width of text [bytes], decimals of BCD
};

/// Content of one field. monostate: null, and the fields whose content is skipped: blobs, BCD, raw bytes.
/// Whole numbers, dates (day number, 1 January of year 1 is 1) and times (ms since midnight) are integers;
/// time stamps are ms since day 0 as a real. Reals are finite. Text is UTF-8 without trailing blanks, never
/// empty: that is null.
using Wert = std::variant<std::monostate, std::int64_t, double, bool, std::string_view>;

}  // namespace zrw::paradox
