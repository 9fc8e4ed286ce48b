// Makes Paradox tables with a unique primary index over their first field, a long: the content of the .DB and
// of the .PX file.
#pragma once

#include <cstdint>
#include <ctime>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Paradox.h"

namespace zrw::paradox {

enum class Stufe : std::uint8_t { Fuenf = 0x0B, Sieben = 0x0C };

struct Dateipaar {
    std::string db;
    std::string px;
};

/// Text is stored as code page 1252, "?" for what it lacks; empty text and null are the same.
/// @param name table name without extension, UTF-8
/// @param felder the first must be a long, the key; no blobs, counters, BCD or raw bytes. Only text needs its
/// size.
/// @param zeilen one value per field each, any order: the table has them by key
/// @param zeit [s since 1970] kept in the header
/// @throws Fehler for names and fields the format has no room for, a repeated or missing key, a value that
/// its
///         field cannot hold, too many records
[[nodiscard]] Dateipaar SchreibeTabelle(std::string_view name, std::span<const Feld> felder,
                                        std::span<const std::vector<Wert>> zeilen, std::time_t zeit,
                                        Stufe stufe = Stufe::Fuenf);

}  // namespace zrw::paradox
