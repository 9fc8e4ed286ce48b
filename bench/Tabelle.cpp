#include "bench/Tabelle.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <string_view>

#include "bench/Messung.h"

namespace zrw::bench {
namespace {

constexpr int kKurzeRunden = 3;

/// A JSON pair of minimum and median.
std::string Zeitenpaar(const char* name, const std::vector<double>& werte) {
    return std::string(", \"") + name + "\": [" + std::to_string(Kleinster(werte)) + ", " +
           std::to_string(Median(werte)) + "]";
}

}  // namespace

Tabelle::Tabelle(int anzahl, char** worte, int ueblich) : runden(ueblich) {
    for (int i = 1; i < anzahl; ++i) {
        const std::string_view wort = worte[i];
        if (wort == "--kurz") {
            kurz = true;
            runden = std::min(runden, kKurzeRunden);
        } else if (wort == "--zeilen" && i + 1 < anzahl) {
            strom_.open(worte[++i], std::ios::app);
        } else if (wort == "--frisch" && i + 2 < anzahl) {
            aufgabe = worte[++i];
            datei = worte[++i];
        } else if (const int zahl = std::atoi(worte[i]); zahl > 0) {
            runden = zahl;
        }
    }
}

void Tabelle::NimmZeile(const Zeile& z) {
    std::string text = "{\"was\": \"" + z.was + "\", \"einheit\": \"" + z.einheit + "\"";
    text += Zeitenpaar("eigene", z.eigene);
    double gemessen = Kleinster(z.eigene);
    if (!z.vergleich.empty()) {
        std::vector<double> verhaeltnisse;
        for (std::size_t i = 0; i < z.eigene.size(); ++i)
            verhaeltnisse.push_back(z.eigene[i] / z.vergleich[i]);
        const double median = Median(verhaeltnisse);
        text += Zeitenpaar("vergleich", z.vergleich) + ", \"verhaeltnis\": " + std::to_string(median);
        if (z.ziel.art == Ziel::Art::Verhaeltnis) gemessen = median;
    }
    if (z.ziel.art != Ziel::Art::Keins) {
        text += std::string(", \"ziel\": \"") +
                (z.ziel.art == Ziel::Art::Verhaeltnis ? "verhaeltnis" : "hoechstwert") +
                "\", \"grenze\": " + std::to_string(z.ziel.grenze) +
                ", \"erreicht\": " + (gemessen <= z.ziel.grenze ? "true" : "false");
    }
    if (strom_.is_open()) strom_ << text << "}\n" << std::flush;
}

int FuehreMessungAus(int anzahl, char** worte, int ueblicheRunden, int (*arbeit)(Tabelle&)) {
    try {
        Tabelle tabelle(anzahl, worte, ueblicheRunden);
        return arbeit(tabelle);
    } catch (const std::exception& f) {
        std::fprintf(stderr, "%s\n", f.what());
        return 1;
    }
}

}  // namespace zrw::bench
