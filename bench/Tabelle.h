// The rows that a benchmark program has for the common table: one call of `NimmZeile` each. bench/run
// collects the rows of all programs and prints them; a program alone prints its own details only.
#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

namespace zrw::bench {

/// What a row has to keep.
struct Ziel {
    enum class Art : std::uint8_t { Keins, Verhaeltnis, Hoechstwert };
    Art art = Art::Keins;
    double grenze = 0.0;
};
/// Median over the rounds of own / other is at most this.
[[nodiscard]] constexpr Ziel Verhaeltnis(double grenze) {
    return {Ziel::Art::Verhaeltnis, grenze};
}
/// The smallest own value is at most this, in the unit of the row.
[[nodiscard]] constexpr Ziel Hoechstwert(double grenze) {
    return {Ziel::Art::Hoechstwert, grenze};
}

struct Zeile {
    std::string was;
    std::vector<double> eigene;       ///< one entry a round
    std::vector<double> vergleich{};  ///< raw limit or peer in the same rounds; empty: none
    Ziel ziel{};
    std::string einheit = "ms";
};

/// Command line of a benchmark program: [--kurz] [--zeilen DATEI] [--frisch AUFGABE DATEI] [ROUNDS]
class Tabelle {
  public:
    int runden;           ///< at least 1
    bool kurz = false;    ///< only what the table needs, few rounds
    std::string aufgabe;  ///< of a fresh process, see `FrischerProzess`; mostly none
    std::string datei;    ///< what it works on

    Tabelle(int anzahl, char** worte, int ueblich);

    /// Adds a row, here and in the file that collects them.
    void NimmZeile(const Zeile& zeile);

  private:
    std::ofstream strom_;
};

/// The `main` of every benchmark: reads the command line and says what went wrong.
int FuehreMessungAus(int anzahl, char** worte, int ueblicheRunden, int (*arbeit)(Tabelle&));

}  // namespace zrw::bench
