// What is observed between the points. Every value is computed from the coordinates and gets a little noise,
// so the network is consistent; a few blunders are put in on purpose.
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <numbers>
#include <set>

#include "beispiele/Dreiecke.h"
#include "beispiele/Netz.h"
#include "beispiele/Zufall.h"
#include "geo/Winkel.h"
#include "geo/Zrwgeo.h"

namespace zrw::beispiel {
namespace {

constexpr int kBessel = 1;
constexpr double kErdradius = 6381000.0;  // [m]
constexpr double kRefraktion = 0.13;

// Standard deviation of a direction [gon].
constexpr double kSigmaNetz = 0.0003;
constexpr double kSigmaDritte = 0.0005;
constexpr double kSigmaZug = 0.0010;
constexpr double kSigmaHochziel = 0.0020;

double InVollkreis(double gon) {
    gon = std::fmod(gon, 400.0);
    return gon < 0.0 ? gon + 400.0 : gon;
}

// Grid bearing from a to b [gon].
double Richtungswinkel(const NetzPunkt& a, const NetzPunkt& b) {
    return InVollkreis(std::atan2(b.rechts - a.rechts, b.hoch - a.hoch) * kGonJeRadiant);
}

class Feldbuch {
  public:
    Feldbuch(Netz& netz, const Rollen& rollen, Zufall& zufall)
        : netz_(netz), rollen_(rollen), zufall_(zufall) {}

    void Alles() {
        HoehereOrdnungen();
        DritteOrdnung();
        Zuege();
        Exzentren();
        Hochziele();
        Passpunkte();
        Azimute();
        Nivellement();
        Gps();
        GrobeFehler();
        BildeSaetze();
    }

  private:
    struct Sicht {
        Stelle ziel;
        double sigma;
        bool azimut;
    };

    void Einseitig(Stelle stand, Stelle ziel, double sigma, bool azimut = false) {
        if (gesehen_.insert({stand, ziel}).second) sichten_[stand].push_back({ziel, sigma, azimut});
    }

    void Gegenseitig(Stelle a, Stelle b, double sigma) {
        Einseitig(a, b, sigma);
        Einseitig(b, a, sigma);
    }

    bool Verbunden(Stelle a, Stelle b) const {
        return gesehen_.contains({a, b}) || gesehen_.contains({b, a});
    }

    void MissStrecke(Stelle a, Stelle b, double festerAnteil = 0.003) {
        const double soll = Abstand(netz_.punkte[a], netz_.punkte[b]);
        const double sigma = festerAnteil + 2e-6 * soll;
        netz_.strecken.push_back(
            {a, b, RundeZahl(soll + zufall_.Normal(sigma), 4), RundeZahl(sigma, 4), false});
    }

    void MissZenitdistanz(Stelle a, Stelle b) {
        const NetzPunkt &p = netz_.punkte[a], &q = netz_.punkte[b];
        const double s = Abstand(p, q);
        const double hoeher = q.hoehe - p.hoehe - ErdkruemmungUndRefraktion(s);
        const double wert = 100.0 - std::atan2(hoeher, s) * kGonJeRadiant + zufall_.Normal(0.0010);
        netz_.zenite.push_back({a, b, RundeZahl(wert, 4), 0.0010});
    }

    void MissHoehe(Stelle a, Stelle b) {
        const NetzPunkt &p = netz_.punkte[a], &q = netz_.punkte[b];
        const double sigma = std::max(0.0002, 0.0012 * std::sqrt(Abstand(p, q) / 1000.0));
        netz_.hoehen.push_back(
            {a, b, RundeZahl(q.hoehe - p.hoehe + zufall_.Normal(sigma), 4), RundeZahl(sigma, 4), false});
    }

    GpsVektor Vektor(Stelle a, Stelle b) {
        const auto von = Geozentrisch(netz_.punkte[a]), nach = Geozentrisch(netz_.punkte[b]);
        GpsVektor v{a, b, {}, 0.005, false};
        for (std::size_t i = 0; i < 3; ++i)
            v.d[i] = RundeZahl(nach[i] - von[i] + zufall_.Normal(v.sigma), 4);
        return v;
    }

    // The points of `auswahl` nearest to `punkt`, itself left out.
    std::vector<Stelle> Naechste(Stelle punkt, std::vector<Stelle> auswahl, std::size_t anzahl) const {
        std::erase(auswahl, punkt);
        const auto weit = [&](Stelle s) { return Abstand(netz_.punkte[punkt], netz_.punkte[s]); };
        std::sort(auswahl.begin(), auswahl.end(), [&](Stelle a, Stelle b) { return weit(a) < weit(b); });
        auswahl.resize(std::min(anzahl, auswahl.size()));
        return auswahl;
    }

    std::vector<Stelle> Trigonometrisch() const {
        std::vector<Stelle> tp = rollen_.ordnung1;
        tp.insert(tp.end(), rollen_.ordnung2.begin(), rollen_.ordnung2.end());
        tp.insert(tp.end(), rollen_.ordnung3.begin(), rollen_.ordnung3.end());
        return tp;
    }

    void HoehereOrdnungen() {
        for (const auto& [a, b] : Seiten(Dreiecke(netz_.punkte, rollen_.ordnung1))) {
            Gegenseitig(a, b, kSigmaNetz);
            MissStrecke(a, b);
        }
        std::vector<Stelle> beide = rollen_.ordnung1;
        beide.insert(beide.end(), rollen_.ordnung2.begin(), rollen_.ordnung2.end());
        for (const auto& [a, b] : Seiten(Dreiecke(netz_.punkte, beide))) {
            if (Verbunden(a, b)) continue;
            if (zufall_.TrifftZu(0.7)) {
                Gegenseitig(a, b, kSigmaNetz);
            } else {
                Einseitig(a, b, kSigmaNetz);
            }
            if (zufall_.TrifftZu(0.4)) MissStrecke(a, b);
        }
    }

    // Only what concerns a point of the third order; the sides between higher ones are there already.
    void DritteOrdnung() {
        const auto istDritte = [&](Stelle s) {
            return std::find(rollen_.ordnung3.begin(), rollen_.ordnung3.end(), s) != rollen_.ordnung3.end();
        };
        for (const auto& [a, b] : Seiten(Dreiecke(netz_.punkte, Trigonometrisch()))) {
            if (Verbunden(a, b) || (!istDritte(a) && !istDritte(b))) continue;
            const double wurf = zufall_.Gleich(0.0, 1.0);
            if (wurf < 0.5) {
                Gegenseitig(a, b, kSigmaDritte);
            } else if (wurf < 0.86) {
                Einseitig(istDritte(a) ? a : b, istDritte(a) ? b : a, kSigmaDritte);
            }
            if (wurf < 0.2 || wurf >= 0.86) MissStrecke(a, b);
        }
    }

    void Zuege() {
        const std::vector<Stelle> tp = Trigonometrisch();
        for (const std::vector<Stelle>& zug : rollen_.zuege) {
            for (std::size_t i = 0; i + 1 < zug.size(); ++i) {
                Gegenseitig(zug[i], zug[i + 1], kSigmaZug);
                MissStrecke(zug[i], zug[i + 1]);
                if (i % 2 == 0) MissZenitdistanz(zug[i], zug[i + 1]);
                if (i % 4 == 0) MissZenitdistanz(zug[i + 1], zug[i]);
            }
            // Every third point is tied to the nearest trigonometric point.
            for (std::size_t i = 2; i + 2 < zug.size(); i += 3) {
                Einseitig(zug[i], Naechste(zug[i], tp, 1).front(), kSigmaZug);
            }
        }
        for (const auto& [neben, hilf] : rollen_.hilfspunkte) {
            Gegenseitig(neben, hilf, 0.0020);
            MissStrecke(neben, hilf);
        }
    }

    // The centre is tied by a short sight; the long ones are observed from the eccentre.
    void Exzentren() {
        const std::vector<Stelle> tp = Trigonometrisch();
        for (const auto& [zentrum, exz] : rollen_.exzentren) {
            const double s = Abstand(netz_.punkte[zentrum], netz_.punkte[exz]);
            const double sigma = std::max(kSigmaZug, RundeZahl(0.0004 / s * kGonJeRadiant, 4));
            Gegenseitig(zentrum, exz, sigma);
            MissStrecke(zentrum, exz, 0.0004);
            MissHoehe(zentrum, exz);
            for (const Stelle ziel : Naechste(zentrum, tp, 3))
                Einseitig(exz, ziel, kSigmaNetz);
        }
    }

    void Hochziele() {
        std::vector<Stelle> staende = Trigonometrisch();
        for (const auto& zug : rollen_.zuege)
            staende.insert(staende.end(), zug.begin() + 1, zug.end() - 1);
        for (const Stelle ziel : rollen_.hochziele) {
            for (const Stelle stand : Naechste(ziel, staende, 4))
                Einseitig(stand, ziel, kSigmaHochziel);
        }
    }

    void Passpunkte() {
        for (const Stelle p : rollen_.passpunkte) {
            for (const Stelle tp : Naechste(p, Trigonometrisch(), 3))
                MissStrecke(p, tp);
        }
    }

    // Gyro azimuths in the middle of some traverses, to a point that is not sighted otherwise.
    void Azimute() {
        const std::vector<Stelle> tp = Trigonometrisch();
        for (const std::vector<Stelle>& zug : rollen_.zuege) {
            const Stelle stand = zug[zug.size() / 2];
            for (const Stelle ziel : Naechste(stand, tp, 4)) {
                if (Verbunden(stand, ziel)) continue;
                Einseitig(stand, ziel, 0.0030, true);
                break;
            }
        }
    }

    void Nivellement() {
        const std::vector<Stelle>& ring = rollen_.nivRing;
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const Stelle weiter = ring[(i + 1) % ring.size()];
            MissHoehe(ring[i], weiter);
            if (i % 2 == 0) MissHoehe(weiter, ring[i]);
            if (i % 4 == 0) MissHoehe(ring[i], Naechste(ring[i], Trigonometrisch(), 1).front());
        }
    }

    void Gps() {
        std::vector<GpsVektor> rahmen, verdichtung;
        const std::vector<Stelle>& ref = rollen_.referenz;
        for (const Stelle r : ref) {
            for (const Stelle tp : Naechste(r, rollen_.ordnung1, 3))
                rahmen.push_back(Vektor(r, tp));
        }
        // The middle of the mesh holds the frame together.
        const Stelle mitte = rollen_.ordnung1[5];
        for (const Stelle tp : Naechste(mitte, rollen_.ordnung1, 4))
            rahmen.push_back(Vektor(mitte, tp));
        for (const Stelle p : rollen_.passpunkte) {
            for (const Stelle tp : Naechste(p, rollen_.ordnung1, 2))
                verdichtung.push_back(Vektor(tp, p));
        }
        netz_.gps = {std::move(rahmen), std::move(verdichtung)};
    }

    void GrobeFehler() {
        for (const std::size_t i : {std::size_t{11}, netz_.strecken.size() / 2, netz_.strecken.size() - 9}) {
            netz_.strecken[i].wert += 0.25;
            netz_.strecken[i].grob = true;
        }
        netz_.hoehen.back().wert += 0.05;
        netz_.hoehen.back().grob = true;
        netz_.gps[1][3].d[2] -= 0.12;
        netz_.gps[1][3].grob = true;
    }

    // Directions count from the first target; azimuths stand by themselves at the end of the set. First and
    // second order go into the control file, everything else into the file it includes.
    void BildeSaetze() {
        for (auto& [stand, sichten] : sichten_) {
            const NetzPunkt& p = netz_.punkte[stand];
            std::stable_sort(sichten.begin(), sichten.end(), [&](const Sicht& a, const Sicht& b) {
                if (a.azimut != b.azimut) return b.azimut;
                return Richtungswinkel(p, netz_.punkte[a.ziel]) < Richtungswinkel(p, netz_.punkte[b.ziel]);
            });
            Richtungssatz satz{stand, stand > rollen_.ordnung2.back(), {}};
            const double null = Richtungswinkel(p, netz_.punkte[sichten.front().ziel]);
            for (const Sicht& s : sichten) {
                const double t = Richtungswinkel(p, netz_.punkte[s.ziel]) + zufall_.Normal(s.sigma);
                const double wert = s.azimut ? t : &s == &sichten.front() ? 0.0 : t - null;
                satz.ziele.push_back({s.ziel, InVollkreis(RundeZahl(wert, 4)), s.sigma, s.azimut});
            }
            netz_.saetze.push_back(std::move(satz));
        }
    }

    Netz& netz_;
    const Rollen& rollen_;
    Zufall& zufall_;
    std::map<Stelle, std::vector<Sicht>> sichten_;
    std::set<std::pair<Stelle, Stelle>> gesehen_;
};

}  // namespace

double RundeZahl(double wert, int stellen) {
    const double zehner = std::pow(10.0, stellen);
    return std::round(wert * zehner) / zehner + 0.0;
}

double ErdkruemmungUndRefraktion(double strecke) {
    return (1.0 - kRefraktion) * strecke * strecke / (2.0 * kErdradius);
}

std::array<double, 3> Geozentrisch(const NetzPunkt& p) {
    const Ellipsoid e = EllipsoidRadii(kBessel, {50.0});
    const Geograph g = GridToGeo(Abbildung::GaussKrueger, p.hoch, p.rechts, e.f, e.a);
    const double n = EllipsoidRadii(kBessel, g.breite).N;
    const double b = g.breite.wert * std::numbers::pi / 180.0, l = g.laenge.wert * std::numbers::pi / 180.0;
    return {(n + p.hoehe) * std::cos(b) * std::cos(l), (n + p.hoehe) * std::cos(b) * std::sin(l),
            (n * (1.0 - e.f) * (1.0 - e.f) + p.hoehe) * std::sin(b)};
}

std::array<double, 3> Vektorort(const Netz& netz, const NetzPunkt& p) {
    if (netz.eben) return {p.hoch, p.rechts, p.hoehe};
    return Geozentrisch(p);
}

void BeobachteNetz(Netz& netz, const Rollen& rollen, Zufall& zufall) {
    Feldbuch(netz, rollen, zufall).Alles();
}

}  // namespace zrw::beispiel
