// Steps measured in turn inside one process, so that what disturbs the machine disturbs them alike, and their
// ratio to the first step, paired by round. What of it belongs into the table of the benchmarks: Tabelle.h.
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace zrw::bench {

using Uhr = std::chrono::steady_clock;

/// Time between two readings [ms].
[[nodiscard]] inline double Millisekunden(Uhr::duration d) {
    return std::chrono::duration<double, std::milli>(d).count();
}

/// Time that the work takes [ms]; its result lives on until the clock has stopped, so that tearing down what
/// was built is not part of the building.
template <class Arbeit>
[[nodiscard]] double MissZeit(Arbeit arbeit) {
    const Uhr::time_point anfang = Uhr::now();
    const auto ergebnis = arbeit();
    const Uhr::time_point ende = Uhr::now();
    (void)ergebnis;
    return Millisekunden(ende - anfang);
}

struct Schritt {
    std::string name;
    std::size_t bytes = 0;          ///< what one run reads or writes; 0 where that has no meaning
    std::function<double()> messe;  ///< one run [ms]
    std::vector<double> zeiten{};   ///< one entry a round [ms]
};

/// One unmeasured round, then `runden` rounds of all steps in turn; up to five times as many of quick ones.
void LaufeSchritte(std::vector<Schritt>& schritte, int runden);

/// Prints a row per step: minimum and median [ms], MB/s from the median, median ratio to the first step.
void DruckeSchritte(const std::vector<Schritt>& schritte);

[[nodiscard]] double Median(std::vector<double> werte);
[[nodiscard]] double Kleinster(const std::vector<double>& werte);

/// [MB] of 10^6 bytes.
[[nodiscard]] inline double MB(std::size_t bytes) {
    return static_cast<double>(bytes) / 1e6;
}

/// Resident memory of this process [bytes], 0 where the system does not say.
[[nodiscard]] std::size_t Speicherbedarf();

/// The most memory that the work holds at a time beyond what was there before [bytes]; 0 where the system
/// does not say.
[[nodiscard]] std::size_t Spitzenbedarf(const std::function<void()>& arbeit);

/// What a process of this program prints that has done nothing else: numbers, called with
/// `--frisch AUFGABE DATEI`. @throws std::runtime_error where it fails
[[nodiscard]] std::vector<double> FrischerProzess(const std::string& aufgabe,
                                                  const std::filesystem::path& datei);

/// A folder of its own that goes with its owner.
class Zwischenordner {
  public:
    Zwischenordner();
    ~Zwischenordner();
    Zwischenordner(const Zwischenordner&) = delete;
    Zwischenordner& operator=(const Zwischenordner&) = delete;
    [[nodiscard]] const std::filesystem::path& Pfad() const { return pfad_; }

  private:
    std::filesystem::path pfad_;
};

}  // namespace zrw::bench
