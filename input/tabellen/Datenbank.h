// A relational database in memory: result tables are imported into it and asked in SQL. The only place that
// knows the database library.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "input/tabellen/Paradox.h"

struct sqlite3;

namespace zrw {

/// One value of an answer; flags are whole numbers 0 and 1. Text is UTF-8.
using Zelle = std::variant<std::monostate, std::int64_t, double, std::string>;

/// Rows of an answer under the names of their columns.
struct Antwort {
    std::vector<std::string> spalten;
    std::vector<std::vector<Zelle>> zeilen;
};

class Datenbank {
  public:
    /// @throws Fehler without memory
    Datenbank();
    ~Datenbank();
    Datenbank(const Datenbank&) = delete;
    Datenbank& operator=(const Datenbank&) = delete;

    /// Hands one row of values to the table that is being filled.
    using Zeilenziel = std::function<void(std::span<const paradox::Wert>)>;
    /// Puts a table in place of the one of this name, in one step: where `fuelle` throws, the old one stays.
    /// @param spalten names of the columns, empty ones are left out and repeated ones, too
    /// @param verzeichnisse columns to be looked up by
    void ErsetzeTabelle(std::string_view name, std::span<const std::string> spalten,
                        std::span<const std::string_view> verzeichnisse,
                        const std::function<void(const Zeilenziel&)>& fuelle);
    /// Drops the table if there is one.
    void EntferneTabelle(std::string_view name);
    /// Calls `tun` with each row; the values hold until the next one. @throws Fehler as `StelleAbfrage`
    void FuerJedeZeile(std::string_view abfrage,
                       const std::function<void(std::span<const Zelle>)>& tun) const;
    /// @throws Fehler naming what the query misses
    [[nodiscard]] Antwort StelleAbfrage(std::string_view abfrage) const;

  private:
    class Anweisung;
    void FuehreAnweisungAus(const std::string& anweisung) const;
    [[noreturn]] void WirfFehler() const;

    struct Schliesser {
        void operator()(sqlite3* datenbank) const;
    };
    std::unique_ptr<sqlite3, Schliesser> datenbank_;
};

}  // namespace zrw
