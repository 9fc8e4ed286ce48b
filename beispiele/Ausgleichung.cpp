#include "beispiele/Ausgleichung.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

#include "beispiele/Normalgleichung.h"
#include "geo/Winkel.h"

namespace zrw::beispiel {
namespace {

/// The equations are nearly linear: the corrections are below a tenth of a millimetre after the first step.
constexpr int kSchritte = 4;
constexpr std::size_t kKeine = Unbekannte::kKeine;

double UmNull(double gon) {
    return std::remainder(gon, 400.0);
}

/// An observation, linear about where the points are now.
struct Gleichung {
    Pruefung ergebnis;
    std::size_t gruppe = 0;  ///< values that are left out together have the same
    std::vector<Koeffizient> a = {};
};

class Ausgleicher {
  public:
    explicit Ausgleicher(const Netz& netz)
        : netz_(netz), unbekannt_(netz.punkte.size(), {kKeine, kKeine, kKeine}), lagen_(netz.punkte.size()) {
        NummeriereLage();
        NummeriereHoehen();
        for (const NetzPunkt& p : netz.punkte)
            erdachsen_.push_back(Erdachsen(netz, p));
        korrektur_.resize(anzahl_ + netz.saetze.size());
        for (const Richtungssatz& s : netz.saetze) {
            const Ziel& erstes = s.ziele.front();
            orientierungen_.push_back(erstes.azimut ? 0.0
                                                    : Richtungswinkel(s.stand, erstes.punkt) - erstes.wert);
            orientierung_.push_back(erstes.azimut ? kKeine : anzahl_++);
        }
        korrektur_.resize(anzahl_);
    }

    Ausgleichung RechneAusgleichung(Fehlersuche suche) {
        Normalgleichung n = GleicheNetzAus();
        while (suche == Fehlersuche::Weglassen && LassWeg())
            n = GleicheNetzAus();
        return SammleErgebnisse(n);
    }

  private:
    // Datum and numbering of the unknowns.

    void NummeriereLage() {
        std::vector<bool> beobachtet(netz_.punkte.size());
        const auto sieh = [&](Stelle a, Stelle b) { beobachtet[a] = beobachtet[b] = true; };
        for (const Richtungssatz& s : netz_.saetze) {
            for (const Ziel& z : s.ziele)
                sieh(s.stand, z.punkt);
        }
        for (const Strecke& s : netz_.strecken)
            sieh(s.von, s.nach);
        for (const auto& block : netz_.gps) {
            for (const GpsVektor& v : block)
                sieh(v.von, v.nach);
        }
        for (Stelle i = 0; i < netz_.punkte.size(); ++i) {
            const Art art = netz_.punkte[i].art;
            if (art == Art::FP || art == Art::FL) {
                lagen_[i].lage = Bestimmung::Fest;
            } else if (beobachtet[i]) {
                lagen_[i].lage = Bestimmung::Ausgeglichen;
                unbekannt_[i][0] = anzahl_++;
                unbekannt_[i][1] = anzahl_++;
            }
        }
    }

    /// Points that are joined by height differences without a fixed height among them: the first is held.
    void NummeriereHoehen() {
        std::vector<Stelle> netzteil(netz_.punkte.size());
        std::iota(netzteil.begin(), netzteil.end(), Stelle{0});
        const auto verbinde = [&](Stelle a, Stelle b) {
            const Stelle bleibt = std::min(netzteil[a], netzteil[b]),
                         geht = std::max(netzteil[a], netzteil[b]);
            std::replace(netzteil.begin(), netzteil.end(), geht, bleibt);
        };
        for (const Hoehenunterschied& h : netz_.hoehen)
            verbinde(h.von, h.nach);
        for (const Zenitdistanz& z : netz_.zenite)
            verbinde(z.von, z.nach);
        for (const auto& block : netz_.gps) {
            for (const GpsVektor& v : block)
                verbinde(v.von, v.nach);
        }
        std::set<Stelle> mitFester;
        for (Stelle i = 0; i < netz_.punkte.size(); ++i) {
            const Art art = netz_.punkte[i].art;
            if (art != Art::FP && art != Art::FH) continue;
            lagen_[i].hoehe = Bestimmung::Fest;
            mitFester.insert(netzteil[i]);
        }
        for (Stelle i = 0; i < netz_.punkte.size(); ++i) {
            if (lagen_[i].hoehe == Bestimmung::Fest || (netzteil[i] == i && !mitFester.contains(i))) continue;
            lagen_[i].hoehe = Bestimmung::Ausgeglichen;
            unbekannt_[i][2] = anzahl_++;
        }
    }

    // Where the points are now. Corrections stay apart from the coordinates, which have no digits to spare.

    Ort Korrektur(Stelle p) const {
        Ort k{};
        for (std::size_t i = 0; i < 3; ++i)
            k[i] = unbekannt_[p][i] == kKeine ? 0.0 : korrektur_[unbekannt_[p][i]];
        return k;
    }

    Ort Unterschied(Stelle von, Stelle nach) const {
        const NetzPunkt &p = netz_.punkte[von], &q = netz_.punkte[nach];
        const Ort kp = Korrektur(von), kq = Korrektur(nach);
        return {q.rechts - p.rechts + (kq[0] - kp[0]), q.hoch - p.hoch + (kq[1] - kp[1]),
                q.hoehe - p.hoehe + (kq[2] - kp[2])};
    }

    double Entfernung(Stelle von, Stelle nach) const {
        const Ort d = Unterschied(von, nach);
        return std::hypot(d[0], d[1]);
    }

    double Richtungswinkel(Stelle von, Stelle nach) const {
        const Ort d = Unterschied(von, nach);
        return std::atan2(d[0], d[1]) * kGonJeRadiant;
    }

    // The equations: their order is that of the network and never changes.

    static void NimmAbleitung(Gleichung& g, std::size_t unbekannte, double ableitung) {
        if (unbekannte != kKeine) g.a.push_back({unbekannte, ableitung});
    }

    /// Puts in the derivatives by both ends of a line, given those by its far end.
    void NimmEnden(Gleichung& g, Stelle von, Stelle nach, const Ort& ableitung) const {
        for (std::size_t i = 0; i < 3; ++i) {
            if (ableitung[i] == 0.0) continue;
            NimmAbleitung(g, unbekannt_[von][i], -ableitung[i]);
            NimmAbleitung(g, unbekannt_[nach][i], ableitung[i]);
        }
    }

    Gleichung& Neu(double wert, double v, double sigma) {
        const std::size_t gruppe = gleichungen_.empty() ? 0 : gleichungen_.back().gruppe + 1;
        return gleichungen_.emplace_back(Gleichung{{wert, v, sigma, 0.0, false}, gruppe});
    }

    void LinearisiereNetz() {
        gleichungen_.clear();
        for (std::size_t s = 0; s < netz_.saetze.size(); ++s)
            Richtungen(netz_.saetze[s], s);
        for (const Strecke& s : netz_.strecken) {
            const Ort d = Unterschied(s.von, s.nach);
            const double lang = std::hypot(d[0], d[1]);
            NimmEnden(Neu(s.wert, lang - s.wert, s.sigma), s.von, s.nach, {d[0] / lang, d[1] / lang, 0.0});
        }
        for (const Hoehenunterschied& h : netz_.hoehen)
            Hoehe(h.von, h.nach, h.wert, h.sigma);
        for (const Zenitdistanz& z : netz_.zenite) {
            // The distance is known far better than the sight needs it.
            const double lang = Entfernung(z.von, z.nach);
            const double hoeher =
                lang * std::tan((100.0 - z.wert) / kGonJeRadiant) + ErdkruemmungUndRefraktion(lang);
            Hoehe(z.von, z.nach, hoeher, lang * z.sigma / kGonJeRadiant);
        }
        for (const auto& block : netz_.gps) {
            for (const GpsVektor& v : block)
                Vektor(v);
        }
        for (Gleichung& g : gleichungen_)
            g.ergebnis.grob = weggelassen_.contains(g.gruppe);
    }

    void Richtungen(const Richtungssatz& satz, std::size_t nummer) {
        const double null = orientierungen_[nummer] +
                            (orientierung_[nummer] == kKeine ? 0.0 : korrektur_[orientierung_[nummer]]);
        for (const Ziel& z : satz.ziele) {
            const Ort d = Unterschied(satz.stand, z.punkt);
            const double winkel = Richtungswinkel(satz.stand, z.punkt) - (z.azimut ? 0.0 : null);
            const double s2 = d[0] * d[0] + d[1] * d[1];
            Gleichung& g = Neu(z.wert, UmNull(winkel - z.wert), z.sigma);
            NimmEnden(g, satz.stand, z.punkt, {d[1] / s2 * kGonJeRadiant, -d[0] / s2 * kGonJeRadiant, 0.0});
            if (!z.azimut) NimmAbleitung(g, orientierung_[nummer], -1.0);
        }
    }

    void Hoehe(Stelle von, Stelle nach, double wert, double sigma) {
        NimmEnden(Neu(wert, Unterschied(von, nach)[2] - wert, sigma), von, nach, {0.0, 0.0, 1.0});
    }

    void Vektor(const GpsVektor& v) {
        const auto p = Vektorort(netz_, netz_.punkte[v.von]), q = Vektorort(netz_, netz_.punkte[v.nach]);
        const Ort kp = Korrektur(v.von), kq = Korrektur(v.nach);
        std::size_t gruppe = 0;
        for (std::size_t k = 0; k < 3; ++k) {
            double d = q[k] - p[k];
            for (std::size_t i = 0; i < 3; ++i)
                d += erdachsen_[v.nach][k][i] * kq[i] - erdachsen_[v.von][k][i] * kp[i];
            Gleichung& g = Neu(v.d[k], d - v.d[k], v.sigma);
            gruppe = k == 0 ? g.gruppe : gruppe;
            g.gruppe = gruppe;
            for (std::size_t i = 0; i < 3; ++i) {
                NimmAbleitung(g, unbekannt_[v.von][i], -erdachsen_[v.von][k][i]);
                NimmAbleitung(g, unbekannt_[v.nach][i], erdachsen_[v.nach][k][i]);
            }
        }
    }

    // Adjusting and testing.

    /// Adjusts without what is left out. @return the normal equations of the last step
    Normalgleichung GleicheNetzAus() {
        for (int schritt = 0;; ++schritt) {
            LinearisiereNetz();
            Normalgleichung n(anzahl_);
            for (const Gleichung& g : gleichungen_) {
                if (!g.ergebnis.grob) n.AddiereGleichung(g.a, g.ergebnis.v, g.ergebnis.sigma);
            }
            n.ZerlegeMatrix();
            if (schritt == kSchritte) {
                for (Gleichung& g : gleichungen_) {
                    const std::vector<double> y = n.Vorwaerts(g.a);
                    g.ergebnis.q = Produkt(y, y);
                }
                return n;
            }
            const std::vector<double> x = n.LoeseSystem();
            for (std::size_t i = 0; i < anzahl_; ++i)
                korrektur_[i] += x[i];
        }
    }

    /// Leaves out the observation that stands out most. @return false where none does
    bool LassWeg() {
        const Gleichung* schlimmste = nullptr;
        double groesste = kGrenze;
        for (const Gleichung& g : gleichungen_) {
            if (g.ergebnis.grob || !g.ergebnis.Kontrolliert()) continue;
            const double w = std::fabs(g.ergebnis.Testgroesse());
            if (w <= groesste) continue;
            groesste = w;
            schlimmste = &g;
        }
        if (schlimmste != nullptr) weggelassen_.insert(schlimmste->gruppe);
        return schlimmste != nullptr;
    }

    Ausgleichung SammleErgebnisse(const Normalgleichung& n) {
        Ausgleichung e;
        e.unbekannte = {unbekannt_, orientierung_, orientierungen_, korrektur_, {}};
        for (std::size_t i = 0; i < anzahl_; ++i)
            e.unbekannte.teiler.push_back(n.Vorwaerts(std::array{Koeffizient{i, 1.0}}));
        for (Stelle p = 0; p < netz_.punkte.size(); ++p) {
            const Ort k = Korrektur(p);
            lagen_[p].dy = k[0];
            lagen_[p].dx = k[1];
            lagen_[p].dh = k[2];
            const auto kovarianz = [&](std::size_t i, std::size_t j) {
                const std::size_t a = unbekannt_[p][i], b = unbekannt_[p][j];
                return a == kKeine || b == kKeine ? 0.0
                                                  : Produkt(e.unbekannte.teiler[a], e.unbekannte.teiler[b]);
            };
            lagen_[p].qyy = kovarianz(0, 0);
            lagen_[p].qxx = kovarianz(1, 1);
            lagen_[p].qxy = kovarianz(0, 1);
            lagen_[p].qhh = kovarianz(2, 2);
        }
        e.punkte = lagen_;
        auto g = gleichungen_.begin();
        const auto naechste = [&] { return (g++)->ergebnis; };
        for (const Richtungssatz& s : netz_.saetze)
            std::generate_n(std::back_inserter(e.richtungen.emplace_back()), s.ziele.size(), naechste);
        std::generate_n(std::back_inserter(e.strecken), netz_.strecken.size(), naechste);
        std::generate_n(std::back_inserter(e.hoehen), netz_.hoehen.size(), naechste);
        std::generate_n(std::back_inserter(e.zenite), netz_.zenite.size(), naechste);
        for (const auto& block : netz_.gps) {
            auto& vektoren = e.gps.emplace_back(block.size());
            for (auto& komponenten : vektoren)
                std::generate(komponenten.begin(), komponenten.end(), naechste);
        }
        return e;
    }

    const Netz& netz_;
    std::size_t anzahl_ = 0;                             ///< of the unknowns
    std::vector<std::array<std::size_t, 3>> unbekannt_;  ///< easting, northing, height of each point
    std::vector<std::size_t> orientierung_;              ///< unknown of each set
    std::vector<double> orientierungen_;                 ///< bearing of the zero of each set at first [gon]
    std::vector<double> korrektur_;                      ///< by unknown
    std::vector<std::array<Ort, 3>> erdachsen_;
    std::vector<Punktlage> lagen_;
    std::vector<Gleichung> gleichungen_;
    std::set<std::size_t> weggelassen_;  ///< groups
};

}  // namespace

double Pruefung::Redundanz() const {
    const double s2 = sigma * sigma;
    return std::clamp(grob ? s2 / (s2 + q) : 1.0 - q / s2, 0.0, 1.0);
}

double Pruefung::SigmaV() const {
    return grob ? std::sqrt(sigma * sigma + q) : sigma * std::sqrt(Redundanz());
}

std::array<Ort, 3> Erdachsen(const Netz& netz, const NetzPunkt& p) {
    constexpr double kWeit = 1.0;  // [m]
    constexpr std::array kOrt{&NetzPunkt::rechts, &NetzPunkt::hoch, &NetzPunkt::hoehe};
    std::array<Ort, 3> achsen{};
    for (std::size_t i = 0; i < 3; ++i) {
        NetzPunkt vor = p, zurueck = p;
        vor.*kOrt[i] += kWeit;
        zurueck.*kOrt[i] -= kWeit;
        const auto v = Vektorort(netz, vor), z = Vektorort(netz, zurueck);
        for (std::size_t k = 0; k < 3; ++k)
            achsen[k][i] = (v[k] - z[k]) / (2.0 * kWeit);
    }
    return achsen;
}

Ausgleichung GleicheAus(const Netz& netz, Fehlersuche suche) {
    return Ausgleicher(netz).RechneAusgleichung(suche);
}

}  // namespace zrw::beispiel
