// The observations for other programs: a table of all rows, and what they say together.
#pragma once

#include <memory>
#include <string>

#include "model/Dateien.h"
#include "model/ergebnisse/Listenordnung.h"

namespace zrw {

/// The names of the columns, separated by semicolons, without a line end.
[[nodiscard]] std::string Spaltenzeile(Spalten spalten = kUeblicheSpalten);
/// A row in the same form, UTF-8: numbers as the shortest decimals that read back, flags 0 or 1, what is
/// missing empty.
[[nodiscard]] std::string Beobachtungszeile(const Beobachtung& b, Spalten spalten = kUeblicheSpalten);

/// Comma-separated values (RFC 4180, but with semicolons and line feeds), UTF-8 without a byte order mark:
/// all rows by |TG| falling.
/// @throws Fehler where it cannot be written; the old file then is as it was
void SchreibeBeobachtungen(const Beobachtungsliste& liste, std::unique_ptr<Dateischreiber> datei);

/// JSON (RFC 8259): {"tabellen":{"STRTABLE":{"n":...}}} with the tables that were read; of each the number of
/// rows ("n"), of flagged ("ff") and uncontrolled ("nk") ones, of those with |TG| below 1 and 2
/// ("tg_unter_1", "tg_unter_2"), and the largest |TG| ("tg_max"), as far as the table has the columns.
/// @throws Fehler as above
void SchreibeStatistik(const Beobachtungsliste& liste, std::unique_ptr<Dateischreiber> datei);

}  // namespace zrw
