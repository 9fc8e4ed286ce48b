#include "beispiele/Kleinnetze.h"

#include <array>
#include <cmath>
#include <utility>

#include "beispiele/Zufall.h"
#include "geo/Winkel.h"

namespace zrw::beispiel {
namespace {

/// By how much the approximate coordinates are off [m].
constexpr double kNaeherung = 0.02;

using Paare = std::vector<std::pair<Stelle, Stelle>>;

/// The network as it is; what its users know of it is not quite that.
class Feld {
  public:
    Feld(std::string titel, std::vector<NetzPunkt> punkte, std::uint32_t saat)
        : zufall_(saat), wahr_(std::move(punkte)) {
        netz_.titel = std::move(titel);
        netz_.eben = true;
    }

    void Satz(Stelle stand, const std::vector<Stelle>& ziele, double sigma) {
        const double null = zufall_.Gleich(0.0, 400.0);
        Richtungssatz satz{.stand = stand, .ziele = {}};
        for (const Stelle z : ziele) {
            const double winkel =
                std::atan2(wahr_[z].rechts - wahr_[stand].rechts, wahr_[z].hoch - wahr_[stand].hoch) *
                kGonJeRadiant;
            const double wert = std::fmod(winkel - null + zufall_.Normal(sigma) + 800.0, 400.0);
            satz.ziele.push_back({.punkt = z, .wert = RundeZahl(wert, 5), .sigma = sigma});
        }
        netz_.saetze.push_back(satz);
    }
    void Strecken(const Paare& paare, double sigma) {
        for (const auto& [a, b] : paare) {
            const double wert = Abstand(wahr_[a], wahr_[b]) + zufall_.Normal(sigma);
            netz_.strecken.push_back({a, b, RundeZahl(wert, 4), sigma});
        }
    }
    void Hoehen(const Paare& paare, double sigma) {
        for (const auto& [a, b] : paare) {
            const double wert = wahr_[b].hoehe - wahr_[a].hoehe + zufall_.Normal(sigma);
            netz_.hoehen.push_back({a, b, RundeZahl(wert, 5), sigma});
        }
    }
    void Vektoren(const Paare& paare, double sigma) {
        auto& block = netz_.gps.emplace_back();
        for (const auto& [a, b] : paare) {
            GpsVektor v{.von = a, .nach = b, .sigma = sigma};
            const auto p = Vektorort(netz_, wahr_[a]), q = Vektorort(netz_, wahr_[b]);
            for (std::size_t k = 0; k < 3; ++k)
                v.d[k] = RundeZahl(q[k] - p[k] + zufall_.Normal(sigma), 4);
            block.push_back(v);
        }
    }

    /// @param fehler of the first distance, height difference or vector that there is [m]
    Netz Nimm(double fehler) {
        netz_.punkte = wahr_;
        for (NetzPunkt& p : netz_.punkte) {
            const bool lageFest = p.art == Art::FP || p.art == Art::FL;
            const bool hoeheFest = p.art == Art::FP || p.art == Art::FH;
            if (!lageFest) p.rechts = RundeZahl(p.rechts + zufall_.Normal(kNaeherung), 3);
            if (!lageFest) p.hoch = RundeZahl(p.hoch + zufall_.Normal(kNaeherung), 3);
            if (!hoeheFest) p.hoehe = RundeZahl(p.hoehe + zufall_.Normal(kNaeherung), 3);
        }
        if (!netz_.strecken.empty()) netz_.strecken.front().wert += fehler;
        if (!netz_.hoehen.empty()) netz_.hoehen.front().wert += fehler;
        if (!netz_.gps.empty()) netz_.gps.front().front().d[0] += fehler;
        return netz_;
    }

  private:
    Zufall zufall_;
    std::vector<NetzPunkt> wahr_;
    Netz netz_;
};

NetzPunkt Punkt(std::string nummer, Art art, double rechts, double hoch, double hoehe) {
    return {.nummer = std::move(nummer), .art = art, .rechts = rechts, .hoch = hoch, .hoehe = hoehe};
}

/// Four known points round five new ones; directions, distances and one line that is measured twice.
Netz Lage() {
    Feld feld(
        "Lagenetz Steinau (frei erfunden)",
        {Punkt("1001", Art::FL, 4512.340, 8120.510, 0.0), Punkt("1002", Art::FL, 6890.120, 8344.870, 0.0),
         Punkt("1003", Art::FL, 7011.660, 6205.080, 0.0), Punkt("1004", Art::FL, 4410.050, 6101.220, 0.0),
         Punkt("K\xFCppel", Art::NP, 5320.480, 7402.310, 0.0), Punkt("12", Art::NP, 6105.930, 7511.740, 0.0),
         Punkt("13", Art::NP, 6203.570, 6822.190, 0.0), Punkt("14", Art::NP, 5288.710, 6740.660, 0.0),
         Punkt("15", Art::NP, 5733.020, 7120.450, 0.0)},
        20261);
    constexpr double kRichtung = 0.0004, kStrecke = 0.004;
    feld.Satz(4, {0, 1, 5, 8, 7, 3}, kRichtung);
    feld.Satz(5, {1, 2, 6, 8, 4, 0}, kRichtung);
    feld.Satz(6, {5, 2, 7, 8}, kRichtung);
    feld.Satz(7, {4, 8, 6, 3}, kRichtung);
    feld.Satz(8, {4, 5, 6, 7}, kRichtung);
    feld.Satz(8, {4, 6}, kRichtung);
    feld.Satz(0, {1, 4, 3}, kRichtung);
    feld.Strecken({{4, 5}, {5, 6}, {6, 7}, {7, 4}, {8, 4}, {8, 6}, {5, 4}, {0, 4}, {2, 6}}, kStrecke);
    return feld.Nimm(0.031);
}

/// A levelling loop with a cross line; the points have coordinates for the plan only.
Netz Hoehen() {
    Feld feld("H\xF6hennetz Steinau (frei erfunden)",
              {Punkt("HP1", Art::FH, 4600.0, 8050.0, 212.4410),
               Punkt("HP2", Art::FH, 6950.0, 6300.0, 251.0980), Punkt("N1", Art::NP, 5210.0, 7890.0, 218.310),
               Punkt("N2", Art::NP, 5930.0, 7710.0, 226.742), Punkt("N3", Art::NP, 6620.0, 7120.0, 240.115),
               Punkt("N4", Art::NP, 6130.0, 6480.0, 236.980), Punkt("N5", Art::NP, 5240.0, 6710.0, 224.506)},
              20262);
    feld.Hoehen({{0, 2}, {2, 3}, {3, 4}, {4, 1}, {1, 5}, {5, 6}, {6, 0}, {3, 5}, {5, 3}, {6, 2}}, 0.0008);
    return feld.Nimm(0.0065);
}

/// Two reference stations and four new points, on two days.
Netz Vektoren() {
    Feld feld(
        "GPS-Netz Steinau (frei erfunden)",
        {Punkt("REF1", Art::FP, 3800.220, 8900.410, 310.220),
         Punkt("REF2", Art::FP, 7650.480, 5600.730, 288.915),
         Punkt("G1", Art::NP, 5100.100, 7950.300, 241.870), Punkt("G2", Art::NP, 6480.750, 7630.950, 255.342),
         Punkt("G3", Art::NP, 6150.330, 6380.620, 238.614),
         Punkt("G4", Art::NP, 4720.860, 6590.140, 229.407)},
        20263);
    feld.Vektoren({{0, 2}, {0, 3}, {1, 3}, {1, 4}, {2, 3}, {3, 4}}, 0.005);
    feld.Vektoren({{0, 5}, {1, 5}, {5, 2}, {4, 5}}, 0.005);
    return feld.Nimm(0.038);
}

}  // namespace

std::vector<Kleinnetz> Kleinnetze() {
    return {{"LAGE", Lage()}, {"HOEHEN", Hoehen()}, {"VEKTOREN", Vektoren()}};
}

}  // namespace zrw::beispiel
