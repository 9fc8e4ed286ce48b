// The results of a foreign adjustment as the ten result tables: which value goes into which field, and what
// is worked out for the others. hilfe/47_gama.md has it as a table.
#pragma once

#include <cstddef>
#include <ctime>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "input/import/Fremdnetz.h"
#include "input/import/Importbericht.h"

namespace zrw::fremd {

/// A file to be written: its name and its content.
using Dateiinhalt = std::pair<std::string, std::string>;

/// Tables with their indexes, all ten, and the one of the relative ellipses where there are any.
/// @param nummern point number of each point, code page 1252
/// @param grenze normalised residual beyond which an observation is flagged
/// @param zeit [s since 1970] kept in the tables
/// @throws Fehler where a table cannot hold so many rows
[[nodiscard]] std::vector<Dateiinhalt> Ergebnistabellen(const Fremdnetz& netz,
                                                        std::span<const std::string> nummern, double grenze,
                                                        std::time_t zeit, Importbericht& bericht);

/// Names of all files that `Ergebnistabellen` may give.
[[nodiscard]] std::vector<std::string> Tabellendateien();

}  // namespace zrw::fremd
