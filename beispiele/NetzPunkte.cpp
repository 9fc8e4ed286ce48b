// Where the points lie. The first order is set by hand so that the mesh is well shaped; everything else fills
// it. All coordinates and names are invented.
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

#include "beispiele/Dreiecke.h"
#include "beispiele/Netz.h"
#include "beispiele/Zufall.h"

namespace zrw::beispiel {
namespace {

constexpr double kPi = std::numbers::pi;

struct Festpunkt {
    std::string_view name;
    Art art;
    double rechts, hoch;  // [m]
};

// Umlauts as bytes of code page 1252: \xDC is a capital U umlaut.
constexpr std::array<Festpunkt, 14> kErsteOrdnung{{
    {"ROTST", Art::FP, 3503214.0, 5604836.0},
    {"K\xDCHBG", Art::NP, 3513871.0, 5607092.0},
    {"WOLFSB", Art::FL, 3524602.0, 5605218.0},
    {"ELMSD", Art::FP, 3533847.0, 5607455.0},
    {"GALGR", Art::NP, 3508093.0, 5596247.0},
    {"HOHFELS", Art::FP, 3518688.0, 5598371.0},
    {"BUCHST", Art::NP, 3529341.0, 5596884.0},
    {"SALZKP", Art::FL, 3502436.0, 5587352.0},
    {"M\xDCHLR", Art::NP, 3513178.0, 5588903.0},
    {"DORNSD", Art::NP, 3523640.0, 5587226.0},
    {"HAINBU", Art::FL, 3533512.0, 5588617.0},
    {"LERCHB", Art::FP, 3507584.0, 5578441.0},
    {"STKAUT", Art::NP, 3518917.0, 5579786.0},
    {"RABENL", Art::FP, 3529203.0, 5578127.0},
}};

// Satellite reference stations outside the mesh.
constexpr std::array<Festpunkt, 5> kReferenzen{{
    {"REF1", Art::FP, 3498438.0, 5596214.0},
    {"REF2", Art::FP, 3519463.0, 5611067.0},
    {"REF3", Art::FP, 3538592.0, 5598405.0},
    {"REF4", Art::FP, 3512290.0, 5573958.0},
    {"REF5", Art::FP, 3534906.0, 5579249.0},
}};

struct Zugvorgabe {
    std::string_view von, nach;
    double bogen;  // how far the middle lies off the straight line [m], positive to the right
    double welle;  // amplitude of the winding [m]
    int ersteNummer;
};

constexpr std::array<Zugvorgabe, 7> kZuege{{
    {"HOHFELS", "K\xDCHBG", 1500.0, 260.0, 101},
    {"HOHFELS", "BUCHST", -1500.0, 330.0, 201},
    {"GALGR", "SALZKP", 1400.0, -280.0, 301},
    {"M\xDCHLR", "LERCHB", -1300.0, 300.0, 401},
    {"DORNSD", "RABENL", -1500.0, 250.0, 501},
    {"HAINBU", "BUCHST", -1400.0, 310.0, 601},
    {"ROTST", "GALGR", -1200.0, -240.0, 701},
}};

struct Exzentrumvorgabe {
    std::string_view zentrum;
    std::array<double, 3> abstaende;  // [m], 0 for none
};

constexpr std::array<Exzentrumvorgabe, 6> kExzentren{{
    {"HOHFELS", {0.624, 14.207, 29.583}},
    {"ELMSD", {1.846, 0.0, 0.0}},
    {"12", {2.713, 9.418, 0.0}},
    {"5", {0.587, 0.0, 0.0}},
    {"STKAUT", {1.231, 22.956, 0.0}},
    {"23", {6.342, 0.0, 0.0}},
}};

struct Hochziel {
    std::string_view name;  // K for a church spire, W for a water tower
    double rechts, hoch;
};

constexpr std::array<Hochziel, 8> kHochziele{{
    {"ALTRODK", 3510920.0, 5602060.0},
    {"LINDHAINK", 3522870.0, 5601940.0},
    {"SEEBACHK", 3505180.0, 5591560.0},
    {"OBERAUK", 3509920.0, 5584310.0},
    {"G\xC4NSDORFK", 3526480.0, 5583420.0},
    {"NEUHOFW", 3516060.0, 5593740.0},
    {"RODBERGW", 3530980.0, 5592410.0},
    {"EICHENW", 3514830.0, 5581890.0},
}};

double Gerundet(double wert) {
    return std::round(wert * 1000.0) / 1000.0;
}

// Heights [m] of a broad old volcano with a few ridges.
double Gelaende(double rechts, double hoch) {
    const double dy = (rechts - 3518000.0) / 1000.0, dx = (hoch - 5595500.0) / 1000.0;
    const double berg = 470.0 * std::exp(-(dy * dy + dx * dx) / 210.0);
    return 205.0 + berg + 34.0 * std::sin(dy / 2.3) * std::cos(dx / 1.9) +
           12.0 * std::sin(dy * 1.1 + dx * 0.7);
}

class Anlage {
  public:
    Anlage(Netz& netz, Zufall& zufall) : punkte_(netz.punkte), zufall_(zufall) {}

    Rollen Alles() {
        ErsteOrdnung();
        ZweiteOrdnung();
        DritteOrdnung();
        Zuege();
        NivRing();
        Passpunkte();
        Exzentren();
        Hilfspunkte();
        return std::move(rollen_);
    }

  private:
    Stelle Neu(std::string nummer, Art art, int niveau, double rechts, double hoch) {
        punkte_.push_back({std::move(nummer), art, niveau, Gerundet(rechts), Gerundet(hoch),
                           Gerundet(Gelaende(rechts, hoch) + zufall_.Gleich(0.0, 3.0))});
        return punkte_.size() - 1;
    }

    Stelle SuchePunkt(std::string_view nummer) const {
        const auto p = std::find_if(punkte_.begin(), punkte_.end(),
                                    [&](const NetzPunkt& q) { return q.nummer == nummer; });
        return static_cast<Stelle>(p - punkte_.begin());
    }

    bool Frei(double rechts, double hoch, double umkreis) const {
        return std::none_of(punkte_.begin(), punkte_.end(), [&](const NetzPunkt& p) {
            return std::hypot(p.rechts - rechts, p.hoch - hoch) < umkreis;
        });
    }

    void ErsteOrdnung() {
        for (const Festpunkt& f : kErsteOrdnung) {
            rollen_.ordnung1.push_back(Neu(std::string(f.name), f.art, 1, f.rechts, f.hoch));
        }
        for (const Festpunkt& f : kReferenzen) {
            rollen_.referenz.push_back(Neu(std::string(f.name), f.art, 1, f.rechts, f.hoch));
        }
        gross_ = Dreiecke(punkte_, rollen_.ordnung1);
    }

    // One point near the middle of every large triangle.
    void ZweiteOrdnung() {
        int nummer = 1;
        for (const Dreieck& d : gross_) {
            double rechts = zufall_.Gleich(-800.0, 800.0), hoch = zufall_.Gleich(-800.0, 800.0);
            for (const Stelle s : d) {
                rechts += punkte_[s].rechts / 3.0;
                hoch += punkte_[s].hoch / 3.0;
            }
            const Art art = nummer % 6 == 3 ? Art::FL : Art::NP;
            rollen_.ordnung2.push_back(Neu(std::to_string(nummer++), art, 1, rechts, hoch));
        }
    }

    // Random points inside the mesh that keep their distance from all others.
    void DritteOrdnung() {
        int nummer = 21;
        for (int versuch = 0; versuch < 5000 && rollen_.ordnung3.size() < 18; ++versuch) {
            const double rechts = zufall_.Gleich(3502000.0, 3535000.0);
            const double hoch = zufall_.Gleich(5577000.0, 5608000.0);
            const bool innen = std::any_of(gross_.begin(), gross_.end(), [&](const Dreieck& d) {
                return LiegtIn(punkte_, d, rechts, hoch);
            });
            if (!innen || !Frei(rechts, hoch, 2700.0)) continue;
            rollen_.ordnung3.push_back(Neu(std::to_string(nummer++), Art::NP, 1, rechts, hoch));
        }
    }

    // Points along a winding road from one point to another, about 1150 m apart.
    void Zuege() {
        for (const Zugvorgabe& z : kZuege) {
            const Stelle von = SuchePunkt(z.von), nach = SuchePunkt(z.nach);
            const double laenge = Abstand(punkte_[von], punkte_[nach]);
            const double ey = (punkte_[nach].rechts - punkte_[von].rechts) / laenge;
            const double ex = (punkte_[nach].hoch - punkte_[von].hoch) / laenge;
            const double seiten = std::round(laenge * 1.08 / 1150.0);
            std::vector<Stelle> zug{von};
            for (int i = 1; i < static_cast<int>(seiten); ++i) {
                const double t = i / seiten;
                const double quer = z.bogen * std::sin(kPi * t) + z.welle * std::sin(4.0 * kPi * t) +
                                    zufall_.Gleich(-90.0, 90.0);
                const double laengs = laenge * t + zufall_.Gleich(-110.0, 110.0);
                zug.push_back(Neu(std::to_string(z.ersteNummer + i - 1), Art::NP, 0,
                                  punkte_[von].rechts + ey * laengs + ex * quer,
                                  punkte_[von].hoch + ex * laengs - ey * quer));
            }
            zug.push_back(nach);
            rollen_.zuege.push_back(std::move(zug));
        }
    }

    void NivRing() {
        constexpr int kAnzahl = 22;
        for (int i = 0; i < kAnzahl; ++i) {
            const double w = 2.0 * kPi * i / kAnzahl;
            const double r = 1.0 + 0.07 * std::sin(3.0 * w) + zufall_.Gleich(-0.035, 0.035);
            std::string nummer = "NB" + std::to_string(100 + i + 1).substr(1);
            rollen_.nivRing.push_back(Neu(std::move(nummer), Art::FH, i % 4 == 0 ? 1 : 0,
                                          3518300.0 + 9700.0 * r * std::sin(w),
                                          5592600.0 + 7900.0 * r * std::cos(w)));
        }
    }

    // Numbered by the kilometre square they lie in, as 14 digits.
    void Passpunkte() {
        for (int i = 0, versuch = 0; i < 6 && versuch < 5000; ++versuch) {
            const double rechts = zufall_.Gleich(3504000.0, 3532500.0);
            const double hoch = zufall_.Gleich(5580000.0, 5605500.0);
            if (!Frei(rechts, hoch, 1250.0)) continue;
            const std::string e = std::to_string(static_cast<int>(rechts / 1000.0));
            const std::string n = std::to_string(static_cast<int>(hoch / 1000.0));
            std::string nummer = e.substr(0, 2) + n.substr(0, 2) + e.substr(2, 2) + n.substr(2, 2);
            nummer += std::to_string(1000101 + i++).substr(1);
            rollen_.passpunkte.push_back(Neu(std::move(nummer), Art::NP, 1, rechts, hoch));
        }
    }

    void Exzentren() {
        for (const Exzentrumvorgabe& v : kExzentren) {
            const Stelle zentrum = SuchePunkt(v.zentrum);
            int nummer = 1;
            for (const double abstand : v.abstaende) {
                if (abstand == 0.0) continue;
                const NetzPunkt z = punkte_[zentrum];
                const double w = zufall_.Gleich(0.0, 2.0 * kPi);
                const Stelle e = Neu(z.nummer + "E" + std::to_string(nummer++), Art::NP, 0,
                                     z.rechts + abstand * std::sin(w), z.hoch + abstand * std::cos(w));
                punkte_[e].hoehe = Gerundet(z.hoehe + zufall_.Gleich(-0.8, 0.3));
                rollen_.exzentren.emplace_back(zentrum, e);
            }
        }
    }

    void Hilfspunkte() {
        for (const Hochziel& h : kHochziele) {
            rollen_.hochziele.push_back(Neu(std::string(h.name), Art::NP, 0, h.rechts, h.hoch));
            punkte_.back().hoehe += 38.0;
        }
        for (std::size_t i = 0; i < rollen_.zuege.size(); i += 2) {
            const Stelle neben = rollen_.zuege[i][3];
            const NetzPunkt p = punkte_[neben];
            const double w = zufall_.Gleich(0.0, 2.0 * kPi), abstand = zufall_.Gleich(120.0, 340.0);
            const Stelle h = Neu(p.nummer + "H", Art::NP, 0, p.rechts + abstand * std::sin(w),
                                 p.hoch + abstand * std::cos(w));
            rollen_.hilfspunkte.emplace_back(neben, h);
        }
    }

    std::vector<NetzPunkt>& punkte_;
    Zufall& zufall_;
    Rollen rollen_;
    std::vector<Dreieck> gross_;
};

}  // namespace

double Abstand(const NetzPunkt& a, const NetzPunkt& b) {
    return std::hypot(b.rechts - a.rechts, b.hoch - a.hoch);
}

Rollen LegePunkteAn(Netz& netz, Zufall& zufall) {
    return Anlage(netz, zufall).Alles();
}

}  // namespace zrw::beispiel
