#include "bench/Netzgenerator.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>
#include <vector>

#include "beispiele/Zufall.h"
#include "model/Zahlentext.h"
#include "tests/hilfe/Speicherdateien.h"

namespace zrw::bench {
namespace {

using beispiel::Zufall;
using Paar = std::pair<std::size_t, std::size_t>;

// South-west corner and size of the network [m], Gauss-Krüger.
constexpr double kRechts = 3500000.0;
constexpr double kHoch = 5700000.0;
constexpr double kWeite = 60000.0;
constexpr double kTiefe = 40000.0;

enum class Art : std::uint8_t { Richtung, Strecke, Hoehe, GPS };

struct Beobachtung {
    Paar punkte;
    Art art = Art::Richtung;
};

std::size_t Index(Zufall& zufall, std::size_t anzahl) {
    return static_cast<std::size_t>(zufall.Gleich(0.0, static_cast<double>(anzahl)));
}

/// The library's own shuffling differs from library to library.
template <class T>
void MischeListe(std::vector<T>& liste, Zufall& zufall) {
    for (std::size_t n = liste.size(); n > 1; --n)
        std::swap(liste[n - 1], liste[Index(zufall, n)]);
}

class Generator {
  public:
    explicit Generator(const Netzmass& mass)
        : mass_(mass),
          zufall_(mass.saat),
          spalten_(static_cast<std::size_t>(
              std::ceil(std::sqrt(static_cast<double>(mass.punkte) * kWeite / kTiefe)))) {}

    std::string ErzeugeText() {
        text_.reserve(mass_.punkte * 80 + mass_.beobachtungen * 48);
        text_ += "$AU Messnetz\n$NT 3\n$PF 0\n$EL 1\n$KS 9 0\n";
        Punkte();
        const std::vector<Beobachtung> alle = Beobachtungen(Paare());
        Richtungen(alle);
        Einfache(alle, Art::Strecke, "$ST ");
        Einfache(alle, Art::Hoehe, "$DH ");
        GPS(alle);
        text_ += "$$$\n";
        return std::move(text_);
    }

  private:
    /// Eight digits, as labels of real networks have: map sheet and running number.
    void Nummer(std::size_t punkt, std::size_t breite) {
        const std::string nummer = std::to_string(54170000 + punkt);
        text_ += nummer;
        text_.append(breite - nummer.size(), ' ');
    }
    void Zahl(double wert, int breite, int stellen) {
        text_ += ' ';
        text_ += Festkomma(wert, breite, stellen);
    }

    void Punkte() {
        constexpr std::array<std::string_view, 4> kArten{"$FP ", "$FL ", "$FH ", "$NP "};
        const double schritt = kWeite / static_cast<double>(spalten_);
        std::vector<std::size_t> folge(mass_.punkte);
        for (std::size_t i = 0; i < folge.size(); ++i)
            folge[i] = i;
        MischeListe(folge, zufall_);
        for (const std::size_t i : folge) {
            text_ += kArten[zufall_.TrifftZu(0.9) ? 3 : Index(zufall_, 3)];
            Nummer(i, 14);
            text_ += zufall_.TrifftZu(0.9) ? " 1" : " 0";
            const auto ort = [&](std::size_t platz) {
                return (static_cast<double>(platz) + zufall_.Gleich(-0.3, 0.3)) * schritt;
            };
            Zahl(kRechts + ort(i % spalten_), 12, 4);
            Zahl(kHoch + ort(i / spalten_), 12, 4);
            text_ += '\n';
        }
    }

    /// Neighbours to the right, above and on the diagonal, every pair once; the two diagonals beyond as a
    /// reserve.
    std::vector<Paar> Paare() {
        constexpr std::array<std::pair<std::size_t, std::size_t>, 5> kNah{
            {{1, 0}, {0, 1}, {1, 1}, {2, 1}, {1, 2}}};
        std::vector<Paar> paare;
        for (const auto& [rechts, hoch] : kNah) {
            std::vector<Paar> gruppe;
            for (std::size_t i = 0; i < mass_.punkte; ++i) {
                const std::size_t ziel = i + hoch * spalten_ + rechts;
                if (i % spalten_ + rechts < spalten_ && ziel < mass_.punkte) gruppe.emplace_back(i, ziel);
            }
            MischeListe(gruppe, zufall_);
            gruppe.resize(std::min(gruppe.size(), mass_.paare - paare.size()));
            paare.insert(paare.end(), gruppe.begin(), gruppe.end());
        }
        return paare;
    }

    /// Every pair once, then pairs at random until there are enough, from either end.
    std::vector<Beobachtung> Beobachtungen(const std::vector<Paar>& paare) {
        std::vector<Beobachtung> alle;
        alle.reserve(mass_.beobachtungen);
        while (alle.size() < mass_.beobachtungen && !paare.empty()) {
            Paar p = paare[alle.size() < paare.size() ? alle.size() : Index(zufall_, paare.size())];
            if (zufall_.TrifftZu(0.5)) std::swap(p.first, p.second);
            const double los = zufall_.Gleich(0.0, 1.0);
            alle.push_back({p, los < 0.6    ? Art::Richtung
                               : los < 0.85 ? Art::Strecke
                               : los < 0.95 ? Art::Hoehe
                                            : Art::GPS});
        }
        MischeListe(alle, zufall_);
        return alle;
    }

    /// Sets of directions, station by station in the order of their first direction.
    void Richtungen(const std::vector<Beobachtung>& alle) {
        std::vector<std::vector<std::size_t>> ziele(mass_.punkte);
        std::vector<std::size_t> folge;
        for (const Beobachtung& b : alle) {
            if (b.art != Art::Richtung) continue;
            if (ziele[b.punkte.first].empty()) folge.push_back(b.punkte.first);
            ziele[b.punkte.first].push_back(b.punkte.second);
        }
        for (const std::size_t standpunkt : folge) {
            text_ += "$RS ";
            Nummer(standpunkt, 8);
            text_ += '\n';
            bool erste = true;
            for (const std::size_t ziel : ziele[standpunkt]) {
                text_ += std::exchange(erste, false) ? "$RZ " : "    ";  // the others continue the first
                Nummer(ziel, 14);
                Zahl(zufall_.Gleich(0.0, 400.0), 9, 5);
                text_ += '\n';
            }
        }
    }

    void Einfache(const std::vector<Beobachtung>& alle, Art art, std::string_view schluessel) {
        for (const Beobachtung& b : alle) {
            if (b.art != art) continue;
            text_ += schluessel;
            Nummer(b.punkte.first, 14);
            Nummer(b.punkte.second, 14);
            Zahl(zufall_.Gleich(100.0, 300.0), 10, 4);
            text_ += '\n';
        }
    }

    void GPS(const std::vector<Beobachtung>& alle) {
        const auto anzahl =
            std::count_if(alle.begin(), alle.end(), [](const Beobachtung& b) { return b.art == Art::GPS; });
        text_ += "$SH 1 " + std::to_string(anzahl) + "\n";
        for (const Beobachtung& b : alle) {
            if (b.art != Art::GPS) continue;
            text_ += "$SV 1 1 ";
            Nummer(b.punkte.first, 14);
            text_ += ' ';
            Nummer(b.punkte.second, 14);
            for (int i = 0; i < 3; ++i)
                Zahl(zufall_.Gleich(-300.0, 300.0), 10, 4);
            text_ += '\n';
        }
    }

    const Netzmass& mass_;
    Zufall zufall_;
    std::size_t spalten_;
    std::string text_;
};

}  // namespace

std::string ErzeugeSteuerdatei(const Netzmass& mass) {
    return Generator(mass).ErzeugeText();
}

Lesung BaueNetz(const Netzmass& mass, const Einstellungen& einstellungen, Bildgroesse bild) {
    Speicherdateien quelle;
    quelle.dateien["N.EIN"] = ErzeugeSteuerdatei(mass);
    Lesung lesung = OeffneNetz("N.EIN", quelle, einstellungen, {}, bild, {});
    lesung.liste->ShowFL = true;
    return lesung;
}

}  // namespace zrw::bench
