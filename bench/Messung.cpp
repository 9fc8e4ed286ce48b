#include "bench/Messung.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <stdexcept>

#ifdef __unix__
#include <unistd.h>
#endif

namespace zrw::bench {
namespace {

constexpr double kMindestens = 500.0;  ///< time for which steps are repeated [ms]

}  // namespace

double Median(std::vector<double> werte) {
    std::sort(werte.begin(), werte.end());
    const std::size_t m = werte.size() / 2;
    return werte.size() % 2 == 1 ? werte[m] : (werte[m - 1] + werte[m]) / 2;
}

double Kleinster(const std::vector<double>& werte) {
    return *std::min_element(werte.begin(), werte.end());
}

void LaufeSchritte(std::vector<Schritt>& schritte, int runden) {
    for (Schritt& s : schritte)
        (void)s.messe();
    const Uhr::time_point anfang = Uhr::now();
    // What is quickly done is done more often: short times suffer most from what else the machine does.
    for (int runde = 0;
         runde < runden || (runde < 5 * runden && Millisekunden(Uhr::now() - anfang) < kMindestens);
         ++runde) {
        for (Schritt& s : schritte)
            s.zeiten.push_back(s.messe());
    }
}

void DruckeSchritte(const std::vector<Schritt>& schritte) {
    std::printf("%-46s %9s %9s %8s %8s\n", "Schritt", "min ms", "Median ms", "MB/s", "zu (a)");
    for (const Schritt& s : schritte) {
        std::vector<double> verhaeltnisse;
        for (std::size_t i = 0; i < s.zeiten.size(); ++i) {
            verhaeltnisse.push_back(s.zeiten[i] / schritte.front().zeiten[i]);
        }
        const double median = Median(s.zeiten);
        std::printf("%-46s %9.2f %9.2f ", s.name.c_str(), Kleinster(s.zeiten), median);
        if (s.bytes > 0) {
            std::printf("%8.0f", static_cast<double>(s.bytes) / 1000.0 / median);
        } else {
            std::printf("%8s", "-");
        }
        std::printf(" %8.2f\n", Median(verhaeltnisse));
    }
}

std::size_t Speicherbedarf() {
#ifdef __unix__
    std::ifstream statm("/proc/self/statm");
    std::size_t gesamt = 0;
    std::size_t resident = 0;
    if (statm >> gesamt >> resident) return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
#endif
    return 0;
}

std::size_t Spitzenbedarf(const std::function<void()>& arbeit) {
    std::ofstream("/proc/self/clear_refs") << "5";  // the peak begins anew
    const std::size_t vorher = Speicherbedarf();
    arbeit();
    std::ifstream status("/proc/self/status");
    std::string wort;
    std::size_t kilobytes = 0;
    while (status >> wort) {
        if (wort == "VmHWM:" && status >> kilobytes) break;
    }
    const std::size_t spitze = kilobytes * 1024;
    return spitze > vorher ? spitze - vorher : 0;
}

std::vector<double> FrischerProzess(const std::string& aufgabe, const std::filesystem::path& datei) {
    std::string ausgabe;
#ifdef __unix__
    const std::string selbst = std::filesystem::read_symlink("/proc/self/exe").string();
    const std::string befehl = "'" + selbst + "' --frisch " + aufgabe + " '" + datei.string() + "'";
    std::FILE* strom = ::popen(befehl.c_str(), "r");
    if (strom == nullptr) throw std::runtime_error("Kann keinen frischen Prozess starten: " + befehl);
    std::array<char, 4096> stueck{};
    while (std::fgets(stueck.data(), static_cast<int>(stueck.size()), strom) != nullptr)
        ausgabe += stueck.data();
    if (::pclose(strom) != 0) throw std::runtime_error("Der frische Prozess scheiterte: " + befehl);
#endif
    std::istringstream worte(ausgabe);
    std::vector<double> zahlen;
    for (double zahl = 0.0; worte >> zahl;)
        zahlen.push_back(zahl);
    if (zahlen.empty()) throw std::runtime_error("Der frische Prozess sagte nichts: " + aufgabe);
    return zahlen;
}

Zwischenordner::Zwischenordner() : pfad_(std::filesystem::temp_directory_path() / "zarwik_bench") {
    // A number of its own: two runs beside each other must not take the files from one another.
    pfad_ += "_" + std::to_string(Uhr::now().time_since_epoch().count());
    std::filesystem::create_directories(pfad_);
}

Zwischenordner::~Zwischenordner() {
    std::error_code fehler;
    std::filesystem::remove_all(pfad_, fehler);
}

}  // namespace zrw::bench
