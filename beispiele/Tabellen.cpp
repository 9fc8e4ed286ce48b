// The tables of observations, one row each in the order of the control file, and what the tables share.
#include "beispiele/Tabellen.h"

#include <algorithm>
#include <cmath>

#include "geo/Winkel.h"

namespace zrw::beispiel {
namespace {

constexpr double kMgon = 1000.0;  // [mgon/gon]

/// What the tables of single observations have alike. @param wirkungsfeld name of the effect on the point
void Einzelwert(Tabellenbogen& b, const Pruefung& p, int stellen, double wirkung,
                std::string_view wirkungsfeld) {
    Zuverlaessigkeit(b, p, stellen, wirkung);
    Empfindlichkeit(b, p);
    b.Real("EV", p.Redundanz(), 4);
    b.Flag("NK", !p.Kontrolliert());
    b.Flag("FF", p.grob);
    if (!p.Kontrolliert()) return;
    b.Real("TG", std::fabs(p.Testgroesse()), 2);
    b.Real("GF", p.GroberFehler() * kMm, stellen);
    b.Real(wirkungsfeld, (1.0 - p.Redundanz()) * std::fabs(p.GroberFehler()) * wirkung, 2);
}

void Enden(Tabellenbogen& b, const Auswertung& a, Stelle von, Stelle nach) {
    b.Text("P1", a.Nummer(von));
    b.Text("P2", a.Nummer(nach));
}

void Niveaus(Tabellenbogen& b, const Auswertung& a, Stelle von, Stelle nach) {
    b.Ganz("NIVP1", a.netz.punkte[von].niveau);
    b.Ganz("NIVP2", a.netz.punkte[nach].niveau);
}

/// Parts of an earth-centred vector along the line, across it to the right and upwards.
struct Linienanteile {
    double laengs = 0.0, quer = 0.0, hoch = 0.0;
};

Ort ImGitter(const std::array<Ort, 3>& achsen, const Ort& v) {
    Ort g{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t k = 0; k < 3; ++k)
            g[i] += achsen[k][i] * v[k];
    }
    return g;
}

Linienanteile AnLinie(const NetzPunkt& von, const NetzPunkt& nach, const Ort& gitter) {
    const double s = Abstand(von, nach);
    const double y = (nach.rechts - von.rechts) / s, x = (nach.hoch - von.hoch) / s;
    return {gitter[0] * y + gitter[1] * x, gitter[0] * x - gitter[1] * y, gitter[2]};
}

void GpsVektorzeile(Tabellenbogen& b, const Auswertung& a, const GpsVektor& vektor,
                    const std::array<Pruefung, 3>& p) {
    constexpr std::array<const char*, 3> kAchse{"X", "Y", "Z"};
    Enden(b, a, vektor.von, vektor.nach);
    Niveaus(b, a, vektor.von, vektor.nach);
    Ort v{}, fehler{}, wirkung{};
    double groesste = 0.0, empfindlichste = 0.0;
    for (std::size_t k = 0; k < 3; ++k) {
        const std::string achse = kAchse[k];
        const bool kontrolliert = p[k].Kontrolliert();
        const double r = p[k].Redundanz();
        v[k] = p[k].v;
        b.Real("D" + achse, p[k].wert, 4);
        b.Real("V" + achse, v[k] * kMm, 1);
        b.Real("EV" + achse, r, 4);
        b.Flag("NKD" + achse, !kontrolliert);
        Zuverlaessigkeit(b, p[k], 2, kMm, achse);
        if (!kontrolliert) continue;
        fehler[k] = p[k].GroberFehler();
        wirkung[k] = (1.0 - r) * fehler[k];
        groesste = std::max(groesste, std::fabs(p[k].Testgroesse()));
        empfindlichste = std::max(empfindlichste, kNachweisbar * std::sqrt((1.0 - r) / r));
    }
    b.Real("TG", groesste, 2);
    b.Real("EF", empfindlichste, 2);
    b.Flag("FF", p.front().grob);
    const NetzPunkt &von = a.punkte[vektor.von], &nach = a.punkte[vektor.nach];
    const auto achsen = Erdachsen(a.netz, nach);
    const Linienanteile verbesserung = AnLinie(von, nach, ImGitter(achsen, v));
    b.Real("VL", verbesserung.laengs * kMm, 1);
    b.Real("VQ", verbesserung.quer * kMm, 1);
    b.Real("VH", verbesserung.hoch * kMm, 1);
    const Linienanteile grob = AnLinie(von, nach, ImGitter(achsen, fehler));
    b.Real("GFL", grob.laengs * kMm, 1);
    b.Real("GFQ", grob.quer * kMm, 1);
    b.Real("GFH", grob.hoch * kMm, 1);
    const Ort punkt = ImGitter(achsen, wirkung);
    b.Real("EPE", punkt[0] * kMm, 1);
    b.Real("EPN", punkt[1] * kMm, 1);
    b.Real("EPH", punkt[2] * kMm, 1);
}

}  // namespace

Auswertung::Auswertung(const Netz& n, const Ausgleichung& a) : netz(n), ausgleichung(a), punkte(n.punkte) {
    for (Stelle i = 0; i < punkte.size(); ++i) {
        punkte[i].rechts = RundeZahl(punkte[i].rechts + RundeZahl(a.punkte[i].dy, 4), 4);
        punkte[i].hoch = RundeZahl(punkte[i].hoch + RundeZahl(a.punkte[i].dx, 4), 4);
        punkte[i].hoehe = RundeZahl(punkte[i].hoehe + RundeZahl(a.punkte[i].dh, 4), 4);
        reihenfolge.push_back(i);
    }
    // The new points of no order stand in the coordinate file, which comes last.
    const auto block = [&](Stelle p) {
        return std::pair(n.punkte[p].art, n.punkte[p].art == Art::NP && n.punkte[p].niveau == 0);
    };
    std::stable_sort(reihenfolge.begin(), reihenfolge.end(),
                     [&](Stelle p, Stelle q) { return block(p) < block(q); });
}

double Auswertung::SigmaLage(Stelle p) const {
    return std::sqrt(ausgleichung.punkte[p].qyy + ausgleichung.punkte[p].qxx);
}

int Auswertung::Lagegenauigkeit(Stelle p) const {
    const double sigma = SigmaLage(p);
    return sigma <= 0.020 ? 1 : sigma <= 0.060 ? 2 : 3;
}

void Zuverlaessigkeit(Tabellenbogen& b, const Pruefung& p, int stellen, double wirkung,
                      const std::string& endung) {
    constexpr double kTausend = 1000.0;
    b.Real("VMF" + endung, p.SigmaV() * kTausend, stellen);
    if (!p.Kontrolliert()) return;
    const double r = p.Redundanz();
    const double grenzwert = kNachweisbar * p.sigma / std::sqrt(r);
    b.Real("GRZW" + endung, grenzwert * kTausend, stellen);
    b.Real("EGRZW" + endung, (1.0 - r) * grenzwert * wirkung, 2);
    b.Real("NMF" + endung, std::sqrt(p.q) * kTausend, stellen);
}

void Empfindlichkeit(Tabellenbogen& b, const Pruefung& p, const std::string& endung) {
    const double r = p.Redundanz();
    if (p.Kontrolliert()) b.Real("EF" + endung, kNachweisbar * std::sqrt((1.0 - r) / r), 2);
}

Tabellenbogen Strecken(const Auswertung& a) {
    Tabellenbogen b(Tabelle::Strecken);
    for (std::size_t i = 0; i < a.netz.strecken.size(); ++i) {
        const Strecke& s = a.netz.strecken[i];
        const Pruefung& p = a.ausgleichung.strecken[i];
        const NetzPunkt &von = a.punkte[s.von], &nach = a.punkte[s.nach];
        const double winkel = std::atan2(nach.rechts - von.rechts, nach.hoch - von.hoch) * kGonJeRadiant;
        b.Zeile();
        Enden(b, a, s.von, s.nach);
        b.Real("ST", s.wert, 4);
        b.Real("VS", p.v * kMm, 2);
        b.Real("RI", winkel < 0.0 ? winkel + 400.0 : winkel, 4);
        Einzelwert(b, p, 2, kMm, "EP");
    }
    return b;
}

Tabellenbogen Hoehenunterschiede(const Auswertung& a) {
    Tabellenbogen b(Tabelle::Hoehenunterschiede);
    const auto zeile = [&](Stelle von, Stelle nach, const Pruefung& p) {
        b.Zeile();
        Enden(b, a, von, nach);
        Niveaus(b, a, von, nach);
        b.Real("DH", p.wert, 4);
        b.Real("VH", p.v * kMm, 2);
        b.Real("ST", a.Entfernung(von, nach), 4);
        Einzelwert(b, p, 2, kMm, "EH");
    };
    for (std::size_t i = 0; i < a.netz.hoehen.size(); ++i)
        zeile(a.netz.hoehen[i].von, a.netz.hoehen[i].nach, a.ausgleichung.hoehen[i]);
    for (std::size_t i = 0; i < a.netz.zenite.size(); ++i)
        zeile(a.netz.zenite[i].von, a.netz.zenite[i].nach, a.ausgleichung.zenite[i]);
    return b;
}

Tabellenbogen Richtungen(const Auswertung& a) {
    Tabellenbogen b(Tabelle::Richtungen);
    for (std::size_t i = 0; i < a.netz.saetze.size(); ++i) {
        const Richtungssatz& satz = a.netz.saetze[i];
        for (std::size_t k = 0; k < satz.ziele.size(); ++k) {
            const Ziel& z = satz.ziele[k];
            const Pruefung& p = a.ausgleichung.richtungen[i][k];
            const double s = a.Entfernung(satz.stand, z.punkt);
            b.Zeile();
            b.Text("PS", a.Nummer(satz.stand));
            b.Text("PZ", a.Nummer(z.punkt));
            b.Ganz("Satz", z.azimut ? 0 : 1);
            b.Real("RI", z.wert, 4);
            b.Real("VR", p.v * kMgon, 3);
            b.Real("QA", p.v / kGonJeRadiant * s * kMm, 2);
            b.Real("ST", s, 4);
            Einzelwert(b, p, 3, s / kGonJeRadiant * kMm, "EP");
        }
    }
    return b;
}

Tabellenbogen GpsVektoren(const Auswertung& a) {
    Tabellenbogen b(Tabelle::Gps);
    for (std::size_t i = 0; i < a.netz.gps.size(); ++i) {
        for (std::size_t k = 0; k < a.netz.gps[i].size(); ++k) {
            b.Zeile();
            GpsVektorzeile(b, a, a.netz.gps[i][k], a.ausgleichung.gps[i][k]);
        }
    }
    return b;
}

void SchreibeTabellen(const Auswertung& a, Dateien& dateien, const std::filesystem::path& ordner) {
    for (const auto bogen : {GpsVektoren, Strecken, Hoehenunterschiede, Richtungen, Koordinaten, GpsPunkte3D,
                             GpsPunkte2D, Linienkontrollen, Streckenkontrollen, WeitereKoordinaten})
        bogen(a).SchreibeDateien(dateien, ordner);
}

}  // namespace zrw::beispiel
