// One result table while it is filled row by row; fields are addressed by name and stay null otherwise.
#pragma once

#include <cstdint>
#include <deque>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "input/tabellen/Ergebnistabellen.h"
#include "model/Dateien.h"

namespace zrw::beispiel {

class Tabellenbogen {
  public:
    explicit Tabellenbogen(Tabelle tabelle) : tabelle_(tabelle) {}

    /// Begins a row; the records are numbered from 1.
    void Zeile();
    /// @throws Fehler, like the others, for a name that the table does not have
    void Text(std::string_view feld, std::string_view cp1252);
    void Ganz(std::string_view feld, std::int64_t wert);
    /// Rounded to `stellen` decimals, so that the last bits of the arithmetic do not matter.
    void Real(std::string_view feld, double wert, int stellen);
    void Flag(std::string_view feld, bool wert);
    /// @throws Fehler where the files cannot be written
    void SchreibeDateien(Dateien& dateien, const std::filesystem::path& ordner) const;

  private:
    [[nodiscard]] paradox::Wert& Feld(std::string_view name);

    Tabelle tabelle_;
    std::vector<std::vector<paradox::Wert>> zeilen_;
    std::deque<std::string> texte_;  ///< what the rows point to, UTF-8
};

}  // namespace zrw::beispiel
