#include "bench/Messung.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

#ifdef __unix__
#include <unistd.h>
#endif

namespace zrw::bench {

double Median(std::vector<double> werte) {
    std::sort(werte.begin(), werte.end());
    const std::size_t m = werte.size() / 2;
    return werte.size() % 2 == 1 ? werte[m] : (werte[m - 1] + werte[m]) / 2;
}

void Laufe(std::vector<Schritt>& schritte, int runden) {
    for (Schritt& s : schritte)
        (void)s.messe();
    for (int runde = 0; runde < runden; ++runde) {
        for (Schritt& s : schritte)
            s.zeiten.push_back(s.messe());
    }
}

void Drucke(const std::vector<Schritt>& schritte) {
    std::printf("%-46s %9s %9s %8s %8s\n", "Schritt", "min ms", "Median ms", "MB/s", "zu (a)");
    for (const Schritt& s : schritte) {
        std::vector<double> verhaeltnisse;
        for (std::size_t i = 0; i < s.zeiten.size(); ++i) {
            verhaeltnisse.push_back(s.zeiten[i] / schritte.front().zeiten[i]);
        }
        const double median = Median(s.zeiten);
        std::printf("%-46s %9.2f %9.2f ", s.name.c_str(), *std::min_element(s.zeiten.begin(), s.zeiten.end()),
                    median);
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

}  // namespace zrw::bench
