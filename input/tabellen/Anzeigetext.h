// How values of the result tables are shown: number patterns, dates and flags as text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zrw {

/// Number by pattern: "0" no decimals, "#.000" three decimals without a leading zero (0.5 gives ".500"), "#"
/// zero gives no digit at all. Rounded from the shortest decimal form of the number, halves away from
/// zero: 2.675 gives "2.68". An empty pattern gives that form itself; what is no number is empty.
[[nodiscard]] std::string Anzeigetext(double wert, std::string_view muster);

/// A time stamp of a table [ms since day 0, day 1 being 1 January of year 1]: "14.03.2001 15:09:26". Empty
/// beyond the years 1 to 9999.
[[nodiscard]] std::string AnzeigeZeitpunkt(double millisekunden);

}  // namespace zrw
