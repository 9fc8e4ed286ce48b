// The tables of points and those of checks.
#include <algorithm>
#include <cmath>
#include <set>

#include "beispiele/Tabellen.h"
#include "beispiele/Zufall.h"
#include "geo/Winkel.h"

namespace zrw::beispiel {
namespace {

/// Number of the coordinate frame: Gauss-Krueger on the Bessel ellipsoid.
constexpr int kLagestatus = 100;

struct Ellipse {
    double a = 0.0, b = 0.0;  ///< semi-axes [m]
    double phi = 0.0;         ///< direction of the semi-major axis, from north clockwise, 0 to 200 [gon]
};

/// W. R. Helmert's ellipse of one standard deviation.
Ellipse Fehlerellipse(const Punktlage& p) {
    const double summe = p.qyy + p.qxx;
    const double w = std::hypot(p.qxx - p.qyy, 2.0 * p.qxy);
    double phi = 0.5 * std::atan2(2.0 * p.qxy, p.qxx - p.qyy) * kGonJeRadiant;
    if (phi < 0.0) phi += 200.0;
    return {std::sqrt((summe + w) / 2.0), std::sqrt(std::max(0.0, (summe - w) / 2.0)), phi};
}

std::string_view Kuerzel(Art art) {
    switch (art) {
        case Art::FP:
            return "FP";
        case Art::FL:
            return "FL";
        case Art::FH:
            return "FH";
        case Art::NP:
            return "NP";
    }
    return "NP";
}

void Lage(Tabellenbogen& b, const Punktlage& p) {
    if (p.lage == Bestimmung::Offen) return;
    // From the rounded corrections, so that the differences of the coordinates are these to the digit.
    const double dy = RundeZahl(p.dy * kMm, 1), dx = RundeZahl(p.dx * kMm, 1);
    b.Real("dY", dy, 1);
    b.Real("dX", dx, 1);
    b.Real("dP", std::hypot(dy, dx), 2);
    b.Real("mY", std::sqrt(p.qyy) * kMm, 2);
    b.Real("mX", std::sqrt(p.qxx) * kMm, 2);
    b.Real("mL", std::sqrt(p.qyy + p.qxx) * kMm, 2);
    const Ellipse e = Fehlerellipse(p);
    b.Real("A", e.a * kMm, 2);
    b.Real("B", e.b * kMm, 2);
    b.Real("Phi", e.phi, 2);
}

void Hoehe(Tabellenbogen& b, const Punktlage& p) {
    if (p.hoehe == Bestimmung::Offen) return;
    b.Real("dH", p.dh * kMm, 1);
    b.Real("mH", std::sqrt(p.qhh) * kMm, 2);
}

/// A point as the satellite vectors have it that begin or end there: the mean of all but the blunders.
struct GpsPunkt {
    Stelle punkt = 0;
    double vektoren = 0.0;  ///< number without blunders
    bool grob = false;      ///< there is a blunder among the vectors
    double zeit = 0.0;      ///< of the first vector [ms since day 0]
    Ort v{};                ///< adjusted minus observed, earth-centred [m]
    Ort redundanz{};        ///< 0 to 1
    double sigma = 0.0;     ///< of a component [m]

    /// What would be said of a component if it were observed. @param richtung unit vector
    [[nodiscard]] Pruefung Anteil(const Ort& richtung) const {
        double r = 0.0, anteil = 0.0;
        for (std::size_t k = 0; k < 3; ++k) {
            r += richtung[k] * richtung[k] * redundanz[k];
            anteil += richtung[k] * v[k];
        }
        return {0.0, anteil, sigma, std::max(0.0, 1.0 - r) * sigma * sigma, false};
    }
};

/// A session a day, a vector after the other. Day 739041 is 4 June 2024.
double Messzeit(std::size_t block, std::size_t vektor) {
    constexpr double kErsterTag = 739041.0, kMsJeTag = 86400000.0, kMsJeMinute = 60000.0;
    return (kErsterTag + static_cast<double>(block)) * kMsJeTag +
           (8.0 * 60.0 + 25.0 * static_cast<double>(vektor)) * kMsJeMinute;
}

std::vector<GpsPunkt> GpsPunkte(const Auswertung& a) {
    std::vector<GpsPunkt> alle(a.netz.punkte.size());
    for (std::size_t i = 0; i < a.netz.gps.size(); ++i) {
        for (std::size_t j = 0; j < a.netz.gps[i].size(); ++j) {
            const GpsVektor& vektor = a.netz.gps[i][j];
            const auto& p = a.ausgleichung.gps[i][j];
            for (const Stelle ende : {vektor.von, vektor.nach}) {
                GpsPunkt& g = alle[ende];
                if (g.zeit == 0.0) g.zeit = Messzeit(i, j);
                g.grob = g.grob || p.front().grob;
                if (p.front().grob) continue;
                g.vektoren += 1.0;
                for (std::size_t k = 0; k < 3; ++k) {
                    g.v[k] += ende == vektor.nach ? p[k].v : -p[k].v;
                    g.redundanz[k] += p[k].Redundanz();
                }
                g.sigma = vektor.sigma;  // the same in all of a block
            }
        }
    }
    std::vector<GpsPunkt> gefunden;
    for (const Stelle p : a.reihenfolge) {
        GpsPunkt g = alle[p];
        if (g.vektoren == 0.0) continue;
        g.punkt = p;
        g.sigma /= std::sqrt(g.vektoren);
        for (std::size_t k = 0; k < 3; ++k) {
            g.v[k] /= g.vektoren;
            g.redundanz[k] /= g.vektoren;
        }
        gefunden.push_back(g);
    }
    return gefunden;
}

constexpr std::array<Ort, 3> kErdachse{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};

/// Unit vectors to the east, north and up of the grid.
std::array<Ort, 3> Gitterachsen(const Netz& netz, const NetzPunkt& p) {
    const auto achsen = Erdachsen(netz, p);
    std::array<Ort, 3> e{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double lang = std::hypot(achsen[0][i], achsen[1][i], achsen[2][i]);
        for (std::size_t k = 0; k < 3; ++k)
            e[i][k] = achsen[k][i] / lang;
    }
    return e;
}

/// The fields that both tables of satellite points have, of easting and northing and in space the height.
void Gitteranteile(Tabellenbogen& b, const Auswertung& a, const GpsPunkt& g, std::size_t anzahl) {
    constexpr std::array<const char*, 3> kName{"Y", "X", "H"};
    const NetzPunkt& p = a.punkte[g.punkt];
    const Ort ort{p.rechts, p.hoch, p.hoehe};
    const auto achsen = Gitterachsen(a.netz, p);
    b.Text("PKT", p.nummer);
    b.Ganz("NIV", p.niveau);
    for (std::size_t i = 0; i < anzahl; ++i) {
        const std::string name = kName[i];
        const Pruefung anteil = g.Anteil(achsen[i]);
        b.Real(name, ort[i], 4);
        b.Real("v" + name, anteil.v * kMm, 1);
        Zuverlaessigkeit(b, anteil, 2, kMm, name);
        Empfindlichkeit(b, anteil, name);
        if (!anteil.Kontrolliert()) continue;
        b.Real("GF" + name, anteil.GroberFehler() * kMm, 1);
        b.Real("EP" + name, (1.0 - anteil.Redundanz()) * std::fabs(anteil.GroberFehler()) * kMm, 1);
    }
    b.Real("vP", std::hypot(g.Anteil(achsen[0]).v, g.Anteil(achsen[1]).v) * kMm, 1);
    b.Flag("FF", g.grob);
}

void Test(Tabellenbogen& b, const Pruefung& p, const std::string& achse) {
    if (p.Kontrolliert()) b.Real("TG" + achse, std::fabs(p.Testgroesse()), 2);
    b.Real("EV" + achse, p.Redundanz(), 4);
}

/// A length measured for a check and the length from the coordinates.
/// @param grob puts in an error beyond what is allowed
void Kontrolle(Tabellenbogen& b, const Auswertung& a, Stelle von, Stelle nach, Zufall& zufall, bool grob) {
    const double gerechnet = RundeZahl(a.Entfernung(von, nach), 3);
    const double zulaessig = RundeZahl(0.020 + 1e-5 * gerechnet, 3);
    const double fehler = zufall.Normal(zulaessig / 6.0) + (grob ? 2.5 * zulaessig : 0.0);
    const double gemessen = RundeZahl(gerechnet + fehler, 3);
    const double v = RundeZahl(gerechnet - gemessen, 3);
    b.Real("Sgem", gemessen, 3);
    b.Real("Sger", gerechnet, 3);
    b.Real("vS", v, 3);
    b.Real("Dzul", zulaessig, 3);
    b.Ganz("LG", std::max(a.Lagegenauigkeit(von), a.Lagegenauigkeit(nach)));
    b.Flag("GF", std::fabs(v) > zulaessig);
}

}  // namespace

Tabellenbogen Koordinaten(const Auswertung& a) {
    Tabellenbogen b(Tabelle::Koordinaten);
    for (const Stelle i : a.reihenfolge) {
        const NetzPunkt& p = a.punkte[i];
        b.Zeile();
        b.Text("PKT", p.nummer);
        b.Ganz("NIV", p.niveau);
        b.Real("X", p.hoch, 4);
        b.Real("Y", p.rechts, 4);
        b.Real("H", p.hoehe, 4);
        b.Real("UND", 0.0, 3);  // the heights of the network are those above the ellipsoid
        Lage(b, a.ausgleichung.punkte[i]);
        Hoehe(b, a.ausgleichung.punkte[i]);
        b.Text("ST", Kuerzel(p.art));
        b.Ganz("LS", kLagestatus);
    }
    return b;
}

Tabellenbogen GpsPunkte3D(const Auswertung& a) {
    constexpr std::array<const char*, 3> kAchse{"X", "Y", "Z"};
    Tabellenbogen b(Tabelle::GpsPunkte3D);
    for (const GpsPunkt& g : GpsPunkte(a)) {
        b.Zeile();
        Gitteranteile(b, a, g, 3);
        const Ort ort = Geozentrisch(a.punkte[g.punkt]);
        for (std::size_t k = 0; k < 3; ++k) {
            const std::string achse = kAchse[k];
            b.Real(achse + "(GPS)", ort[k] - RundeZahl(g.v[k], 4), 4);
            b.Real("v" + achse + "(GPS)", g.v[k] * kMm, 1);
            Test(b, g.Anteil(kErdachse[k]), achse);
        }
        b.Real("Zeit", g.zeit, 0);
    }
    return b;
}

Tabellenbogen GpsPunkte2D(const Auswertung& a) {
    Tabellenbogen b(Tabelle::GpsPunkte2D);
    for (const GpsPunkt& g : GpsPunkte(a)) {
        const auto achsen = Gitterachsen(a.netz, a.punkte[g.punkt]);
        b.Zeile();
        Gitteranteile(b, a, g, 2);
        Test(b, g.Anteil(achsen[0]), "Y");
        Test(b, g.Anteil(achsen[1]), "X");
        b.Real("Zeit", g.zeit, 0);
    }
    return b;
}

/// Every twelfth of the distances measured once more.
Tabellenbogen Linienkontrollen(const Auswertung& a) {
    constexpr std::size_t kAbstand = 12, kGrob = 5;
    Tabellenbogen b(Tabelle::Linien);
    Zufall zufall(611);
    for (std::size_t i = kAbstand / 2; i < a.netz.strecken.size(); i += kAbstand) {
        const Strecke& s = a.netz.strecken[i];
        b.Zeile();
        b.Text("PA", a.Nummer(s.von));
        b.Text("PE", a.Nummer(s.nach));
        Kontrolle(b, a, s.von, s.nach, zufall, i / kAbstand == kGrob);
    }
    return b;
}

/// Some of the sights between points whose distance is not measured.
Tabellenbogen Streckenkontrollen(const Auswertung& a) {
    constexpr std::size_t kAbstand = 11, kGrob = 4;
    Tabellenbogen b(Tabelle::Streckenkontrollen);
    Zufall zufall(812);
    std::set<std::pair<Stelle, Stelle>> gemessen;
    for (const Strecke& s : a.netz.strecken)
        gemessen.insert(std::minmax(s.von, s.nach));
    std::size_t nummer = 0;
    for (const Richtungssatz& satz : a.netz.saetze) {
        for (const Ziel& z : satz.ziele) {
            if (!gemessen.insert(std::minmax(satz.stand, z.punkt)).second || nummer++ % kAbstand != 0)
                continue;
            b.Zeile();
            b.Text("P1", a.Nummer(satz.stand));
            b.Text("P2", a.Nummer(z.punkt));
            Kontrolle(b, a, satz.stand, z.punkt, zufall, nummer / kAbstand == kGrob);
        }
    }
    return b;
}

Tabellenbogen WeitereKoordinaten(const Auswertung& a) {
    Tabellenbogen b(Tabelle::WeitereKoordinaten);
    for (const Stelle i : a.reihenfolge) {
        const NetzPunkt& p = a.punkte[i];
        if (p.art != Art::NP || p.niveau == 0) continue;
        b.Zeile();
        b.Text("PKT", p.nummer);
        b.Ganz("NIV", p.niveau);
        b.Real("Y", p.rechts, 3);
        b.Real("X", p.hoch, 3);
        b.Ganz("LG", a.Lagegenauigkeit(i));
        b.Ganz("ST", kLagestatus);
    }
    return b;
}

}  // namespace zrw::beispiel
