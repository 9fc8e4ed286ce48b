// The result tables beside the sample network against what a least-squares adjustment of its control file
// must fulfil. Shares no code with the adjustment: the control file is read here, by its columns.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <numbers>
#include <set>
#include <sstream>

#include "input/Oeffnen.h"
#include "input/Systemdateien.h"
#include "input/Zrwgeo.h"
#include "input/tabellen/MarkiereFehler.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Cp1252.h"

namespace zrw {
namespace {

constexpr double kRho = 200.0 / std::numbers::pi;
const std::filesystem::path kOrdner = ZRW_QUELLE "/beispiele";

struct Messung {
    std::string von, nach;
    double wert = 0.0, sigma = 0.0;
    bool azimut = false;
};

/// The control file with what it includes.
struct Vorlage {
    struct Punkt {
        std::string nummer, art;
        double niveau = 0.0, rechts = 0.0, hoch = 0.0, hoehe = 0.0;
    };
    std::vector<Punkt> punkte;
    std::map<std::string, std::vector<Messung>> messungen;  ///< by key; directions under "$RZ"

    explicit Vorlage(const char* datei) { Lies(datei); }

    void Lies(const std::string& datei) {
        std::ifstream strom(kOrdner / datei, std::ios::binary);
        for (std::string z; std::getline(strom, z);) {
            while (!z.empty() && (z.back() == '\r' || z.back() == ' '))
                z.pop_back();
            const std::string neu = z.substr(0, 3);
            if (neu != "   ") schluessel_ = neu;
            z.resize(80, ' ');
            std::istringstream ab4(z.substr(4)), ab18(z.substr(18)), ab33(z.substr(33));
            if (neu == "$KF" || neu == "$SF") {
                std::string name;
                ab4 >> name;
                Lies(name);
            } else if (neu == "$XO") {
                ab4 >> hoch_;
            } else if (neu == "$YO") {
                ab4 >> rechts_;
            } else if (neu == "$RS") {
                stand_ = Nummer(z, 4);
            } else if (schluessel_ == "$RZ" || schluessel_ == "$AZ") {
                Messung m{stand_, Nummer(z, 4), 0.0, 0.0, schluessel_ == "$AZ"};
                ab18 >> m.wert >> m.sigma;
                messungen["$RZ"].push_back(m);
            } else if (schluessel_ == "$ST" || schluessel_ == "$DH" || schluessel_ == "$ZD") {
                Messung m{Nummer(z, 4), Nummer(z, 19)};
                ab33 >> m.wert >> m.sigma;
                messungen[schluessel_].push_back(m);
            } else if (schluessel_ == "$FP" || schluessel_ == "$FL" || schluessel_ == "$FH" ||
                       schluessel_ == "$NP") {
                Punkt p{Nummer(z, 4), schluessel_.substr(1)};
                ab18 >> p.niveau >> p.rechts >> p.hoch >> p.hoehe;
                p.rechts += rechts_;
                p.hoch += hoch_;
                punkte.push_back(p);
            }
        }
    }

  private:
    static std::string Nummer(const std::string& zeile, std::size_t stelle) {
        const std::string n = zeile.substr(stelle, 14);
        return Cp1252NachUtf8(n.substr(0, n.find(' ')));
    }
    std::string schluessel_, stand_;
    double rechts_ = 0.0, hoch_ = 0.0;
};

/// One row, fields by name.
struct Zeile {
    const Antwort* tafel;
    const std::vector<Zelle>* werte;

    [[nodiscard]] const Zelle& Feld(std::string_view name) const {
        const auto& s = tafel->spalten;
        return werte->at(static_cast<std::size_t>(std::find(s.begin(), s.end(), name) - s.begin()));
    }
    [[nodiscard]] bool Leer(std::string_view name) const { return Feld(name).index() == 0; }
    [[nodiscard]] std::string Text(std::string_view name) const { return std::get<std::string>(Feld(name)); }
    /// 0 for null.
    [[nodiscard]] double operator[](std::string_view name) const {
        if (const auto* i = std::get_if<std::int64_t>(&Feld(name))) return static_cast<double>(*i);
        return Leer(name) ? 0.0 : std::get<double>(Feld(name));
    }
};

class Beispieltabellen : public testing::Test {
  protected:
    std::vector<Zeile> Zeilen(Tabelle t) {
        Antwort& a = tafeln_[t];
        if (a.spalten.empty()) a = daten_.Frage(t, Beschreibung(t).alles);
        std::vector<Zeile> zeilen;
        for (const auto& z : a.zeilen)
            zeilen.push_back({&a, &z});
        return zeilen;
    }
    void SetUp() override {
        daten_.SetzeOrdner(kOrdner);
        for (const Zeile& z : Zeilen(Tabelle::Koordinaten))
            punkte.emplace(z.Text("PKT"), z);
    }
    double Unterschied(const Zeile& z, std::string_view von, std::string_view nach, std::string_view feld) {
        return punkte.at(z.Text(nach))[feld] - punkte.at(z.Text(von))[feld];
    }
    /// Length and bearing [gon] from the adjusted coordinates.
    std::pair<double, double> Polar(const Zeile& z, std::string_view von, std::string_view nach) {
        const double y = Unterschied(z, von, nach, "Y"), x = Unterschied(z, von, nach, "X");
        return {std::hypot(y, x), std::atan2(y, x) * kRho};
    }

    Systemdateien dateien;
    const Vorlage vorlage{"NETZ.EIN"};
    std::map<std::string, Zeile> punkte;
    TDM daten_{dateien};

  private:
    std::map<Tabelle, Antwort> tafeln_;
};

TEST_F(Beispieltabellen, PunkteUndEllipsen) {
    const auto zeilen = Zeilen(Tabelle::Koordinaten);
    ASSERT_EQ(zeilen.size(), vorlage.punkte.size());
    ASSERT_EQ(zeilen.size(), 165U);
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const Zeile& z = zeilen[i];
        const Vorlage::Punkt& p = vorlage.punkte[i];
        SCOPED_TRACE(p.nummer);
        ASSERT_EQ(z.Text("PKT"), p.nummer);
        EXPECT_EQ(z.Text("ST"), p.art);
        EXPECT_EQ(z["NIV"], p.niveau);
        EXPECT_NEAR(z["Y"] - z["dY"] / 1000, p.rechts, 1e-6);
        EXPECT_NEAR(z["X"] - z["dX"] / 1000, p.hoch, 1e-6);
        EXPECT_NEAR(z["H"] - z["dH"] / 1000, p.hoehe, 1e-6);
        EXPECT_NEAR(z["dP"], std::hypot(z["dY"], z["dX"]), 0.006);
        EXPECT_EQ(z.Leer("A"), p.art == "FH") << "only the levelled points have no observed position";
        EXPECT_EQ(z["A"] > 0, p.art == "NP");
        EXPECT_TRUE(z["A"] >= z["B"] && z["B"] >= 0 && z["Phi"] >= 0 && z["Phi"] <= 200);
        EXPECT_EQ(p.art == "FP" || p.art == "FH", !z.Leer("mH") && z["mH"] == 0);
        const double toleranz = 0.012 * (z["mL"] + 1);
        const double c = std::cos(z["Phi"] / kRho), s = std::sin(z["Phi"] / kRho);
        EXPECT_NEAR(std::pow(z["A"], 2) + std::pow(z["B"], 2), std::pow(z["mY"], 2) + std::pow(z["mX"], 2),
                    2 * toleranz);
        EXPECT_NEAR(std::pow(z["A"] * c, 2) + std::pow(z["B"] * s, 2), std::pow(z["mX"], 2), 2 * toleranz);
        EXPECT_NEAR(z["mL"], std::hypot(z["mY"], z["mX"]), 0.012);
    }
    for (const Zeile& z : Zeilen(Tabelle::WeitereKoordinaten))
        EXPECT_NEAR(z["Y"], punkte.at(z.Text("PKT"))["Y"], 0.00051) << z.Text("PKT");
}

TEST_F(Beispieltabellen, BeobachtetPlusVerbesserungIstAusgeglichen) {
    // All figures of one row come from the same standard deviation [in the unit of the residual].
    const auto guete = [](const Zeile& z, std::string_view v, double sigma) {
        if (z["FF"] != 0) return;
        EXPECT_NEAR(z["VMF"], sigma * std::sqrt(z["EV"]), 0.01 * sigma + 0.006) << z["ID"];
        EXPECT_NEAR(z["TG"] * z["VMF"], z["NK"] != 0 ? 0 : std::fabs(z[v]), 0.006 * (1 + z["VMF"] + z["TG"]));
    };
    const auto strecken = Zeilen(Tabelle::Strecken);
    ASSERT_EQ(strecken.size(), vorlage.messungen.at("$ST").size());
    for (std::size_t i = 0; i < strecken.size(); ++i) {
        const Zeile& z = strecken[i];
        const Messung& m = vorlage.messungen.at("$ST")[i];
        EXPECT_TRUE(z.Text("P1") == m.von && z.Text("P2") == m.nach && z["ST"] == m.wert) << i;
        guete(z, "VS", m.sigma * 1000);
        EXPECT_NEAR(Polar(z, "P1", "P2").first, z["ST"] + z["VS"] / 1000, 2e-4) << m.von << " " << m.nach;
    }
    auto hoehen = vorlage.messungen.at("$DH");
    const auto& zenite = vorlage.messungen.at("$ZD");
    hoehen.insert(hoehen.end(), zenite.begin(), zenite.end());
    const auto zeilen = Zeilen(Tabelle::Hoehenunterschiede);
    ASSERT_EQ(zeilen.size(), hoehen.size());
    for (std::size_t i = 0; i < zeilen.size(); ++i) {
        const Zeile& z = zeilen[i];
        const Messung& m = hoehen[i];
        const double s = Polar(z, "P1", "P2").first;
        const bool zenit = i >= vorlage.messungen.at("$DH").size();
        EXPECT_TRUE(z.Text("P1") == m.von && z.Text("P2") == m.nach) << i;
        guete(z, "VH", m.sigma * 1000 * (zenit ? s / kRho : 1));
        // Earth curvature less a refraction of 0.13.
        EXPECT_NEAR(z["DH"], zenit ? s / std::tan(m.wert / kRho) + 0.87 * s * s / 2 / 6381e3 : m.wert, 6e-5);
        EXPECT_NEAR(Unterschied(z, "P1", "P2", "H"), z["DH"] + z["VH"] / 1000, 2e-4)
            << m.von << " " << m.nach;
    }
    const auto richtungen = Zeilen(Tabelle::Richtungen);
    ASSERT_EQ(richtungen.size(), vorlage.messungen.at("$RZ").size());
    std::map<std::string, double> orientierung;
    for (std::size_t i = 0; i < richtungen.size(); ++i) {
        const Zeile& z = richtungen[i];
        const Messung& m = vorlage.messungen.at("$RZ")[i];
        EXPECT_TRUE(z.Text("PS") == m.von && z.Text("PZ") == m.nach && z["RI"] == m.wert) << i;
        EXPECT_EQ(z["Satz"], m.azimut ? 0 : 1);
        guete(z, "VR", m.sigma * 1000);
        const auto [s, winkel] = Polar(z, "PS", "PZ");
        const double null = winkel - z["RI"] - z["VR"] / 1000;
        if (s < 100) continue;  // the digits of the coordinates do not tell the direction
        const double soll = m.azimut ? 0.0 : orientierung.try_emplace(m.von, null).first->second;
        EXPECT_LT(std::fabs(std::remainder(null - soll, 400.0)) / kRho * std::min(s, 1000.0), 4e-4)
            << m.von << " " << m.nach;
    }
}

TEST_F(Beispieltabellen, GpsVektorenUndPunkteImRaum) {
    const Ellipsoid bessel = EllipsoidRadii(1, {50.0});
    std::map<std::string, std::array<double, 3>> raum;
    const auto eben = Zeilen(Tabelle::GpsPunkte2D);
    for (const Zeile& z : Zeilen(Tabelle::GpsPunkte3D)) {
        const std::string nummer = z.Text("PKT");
        auto& r = raum[nummer];
        r = {z["X(GPS)"] + z["vX(GPS)"] / 1000, z["Y(GPS)"] + z["vY(GPS)"] / 1000,
             z["Z(GPS)"] + z["vZ(GPS)"] / 1000};
        const GeographHoehe g = CartesianToGeo(1, r[0], r[1], r[2]);
        const Gitterpunkt gitter =
            GeoToGrid(Abbildung::GaussKrueger, 9, g.laenge, g.breite, bessel.f, bessel.a);
        const Zeile& k = punkte.at(nummer);
        EXPECT_NEAR(gitter.rechts, k["Y"], 1e-3) << nummer;
        EXPECT_NEAR(gitter.hoch, k["X"], 1e-3) << nummer;
        EXPECT_NEAR(g.hoehe, k["H"], 1e-3) << nummer;
        const Zeile& e = eben.at(raum.size() - 1);
        EXPECT_TRUE(e.Text("PKT") == nummer && e["Y"] == k["Y"] && e["vX"] == z["vX"]) << nummer;
    }
    for (const Zeile& z : Zeilen(Tabelle::Gps)) {
        const auto &p = raum.at(z.Text("P1")), &q = raum.at(z.Text("P2"));
        for (const auto& [i, d, v] : {std::tuple(0U, "DX", "VX"), {1U, "DY", "VY"}, {2U, "DZ", "VZ"}})
            EXPECT_NEAR(q[i] - p[i], z[d] + z[v] / 1000, 4e-4) << z.Text("P2");
        EXPECT_NEAR(std::hypot(z["VX"], z["VY"], z["VZ"]), std::hypot(z["VL"], z["VQ"], z["VH"]), 0.2);
    }
}

/// Weighted sum of residuals over one unknown, and what the rounding of the residuals may make of it.
struct Summe {
    double wert = 0.0, grenze = 0.0;
    /// @param v, sigma, letzte residual, standard deviation and last digit in one unit
    void Nimm(double ableitung, double v, double sigma, double letzte) {
        const double p = ableitung / (sigma * sigma);
        wert += p * v;
        grenze += std::fabs(p) * (0.51 * letzte + 2e-4 * std::fabs(v));
    }
};

using Ort = std::array<double, 3>;

/// Unit vectors to the east, north and up of the grid at an earth-centred position.
std::array<Ort, 3> Gitterachsen(const Zeile& z) {
    const Ellipsoid e = EllipsoidRadii(1, {50.0});
    const GeographHoehe g = CartesianToGeo(1, z["X(GPS)"], z["Y(GPS)"], z["Z(GPS)"]);
    const double k =
        GeoToGrid(Abbildung::GaussKrueger, 9, g.laenge, g.breite, e.f, e.a).konvergenz.wert / kRho;
    const double b = g.breite.wert / 180 * std::numbers::pi, l = g.laenge.wert / 180 * std::numbers::pi;
    const Ort ost{-std::sin(l), std::cos(l), 0};
    const Ort nord{-std::sin(b) * std::cos(l), -std::sin(b) * std::sin(l), std::cos(b)};
    std::array<Ort, 3> achsen{{{}, {}, {std::cos(b) * std::cos(l), std::cos(b) * std::sin(l), std::sin(b)}}};
    for (std::size_t i = 0; i < 3; ++i) {
        achsen[0][i] = ost[i] * std::cos(k) - nord[i] * std::sin(k);
        achsen[1][i] = nord[i] * std::cos(k) + ost[i] * std::sin(k);
    }
    return achsen;
}

TEST_F(Beispieltabellen, NormalgleichungenSindErfuellt) {
    std::map<std::string, Summe> summen;  // by unknown
    const auto ende = [&](const std::string& nummer, const Ort& je, double v, double sigma, double letzte) {
        for (const auto& [i, name, genauigkeit] :
             {std::tuple(0U, "Y ", "A"), {1U, "X ", "A"}, {2U, "H ", "mH"}}) {
            if (punkte.at(nummer)[genauigkeit] > 0 && je[i] != 0)
                summen[name + nummer].Nimm(je[i], v, sigma, letzte);
        }
    };
    const auto linie = [&](const Zeile& z, const char* von, const char* nach, const Ort& je, double v,
                           double sigma, double letzte) {
        ende(z.Text(von), {-je[0], -je[1], -je[2]}, v, sigma, letzte);
        ende(z.Text(nach), je, v, sigma, letzte);
    };
    for (const Zeile& z : Zeilen(Tabelle::Strecken)) {
        const double t = Polar(z, "P1", "P2").second / kRho;
        const double sigma = vorlage.messungen.at("$ST")[static_cast<std::size_t>(z["ID"]) - 1].sigma * 1000;
        if (z["FF"] == 0) linie(z, "P1", "P2", {std::sin(t), std::cos(t), 0}, z["VS"], sigma, 0.01);
    }
    for (const Zeile& z : Zeilen(Tabelle::Richtungen)) {
        const double sigma = vorlage.messungen.at("$RZ")[static_cast<std::size_t>(z["ID"]) - 1].sigma * 1000;
        const auto [s, t] = Polar(z, "PS", "PZ");
        linie(z, "PS", "PZ", {std::cos(t / kRho) * kRho / s, -std::sin(t / kRho) * kRho / s, 0}, z["VR"],
              sigma, 0.001);
        if (z["Satz"] == 1) summen["Satz " + z.Text("PS")].Nimm(1, z["VR"], sigma, 0.001);
    }
    const auto &dh = vorlage.messungen.at("$DH"), &zd = vorlage.messungen.at("$ZD");
    for (const Zeile& z : Zeilen(Tabelle::Hoehenunterschiede)) {
        const auto i = static_cast<std::size_t>(z["ID"]) - 1;
        const double sigma = i < dh.size() ? dh[i].sigma : zd[i - dh.size()].sigma / kRho * z["ST"];
        if (z["FF"] == 0) linie(z, "P1", "P2", {0, 0, 1}, z["VH"], sigma * 1000, 0.01);
    }
    std::map<std::string, Zeile> gps;
    for (const Zeile& z : Zeilen(Tabelle::GpsPunkte3D))
        gps.emplace(z.Text("PKT"), z);
    std::map<std::string, Ort> mittel;  // residuals of the point less the mean of its vectors
    for (const Zeile& z : Zeilen(Tabelle::Gps)) {
        if (z["FF"] != 0) continue;
        const Ort v{z["VX"], z["VY"], z["VZ"]};
        for (const auto& [punkt, seite] : {std::pair(z.Text("P1"), -1.0), std::pair(z.Text("P2"), 1.0)}) {
            const auto e = Gitterachsen(gps.at(punkt));
            const Ort soll{gps.at(punkt)["vX(GPS)"], gps.at(punkt)["vY(GPS)"], gps.at(punkt)["vZ(GPS)"]};
            for (std::size_t k = 0; k < 3; ++k) {
                ende(punkt, {seite * e[0][k], seite * e[1][k], seite * e[2][k]}, v[k], 5, 0.1);
                mittel[punkt][k] += seite * v[k] - soll[k];
            }
        }
    }
    for (const auto& [punkt, rest] : mittel)
        EXPECT_LT(std::hypot(rest[0], rest[1], rest[2]), 1) << punkt;
    EXPECT_GT(summen.size(), 400U);
    for (const auto& [unbekannte, summe] : summen)
        EXPECT_LE(std::fabs(summe.wert), summe.grenze) << unbekannte;
}

TEST_F(Beispieltabellen, RedundanzenErgebenBeobachtungenOhneUnbekannte) {
    double redundanz = 0.0, ueberzaehlig = 0.0;
    const auto nimm = [&](Tabelle t, std::initializer_list<const char*> felder) {
        for (const Zeile& z : Zeilen(t)) {
            for (const char* feld : felder) {
                EXPECT_TRUE(z[feld] >= 0 && z[feld] <= 1);
                if (z["FF"] != 0) continue;
                redundanz += z[feld];
                ueberzaehlig += 1;
            }
        }
    };
    nimm(Tabelle::Strecken, {"EV"});
    nimm(Tabelle::Richtungen, {"EV"});
    nimm(Tabelle::Hoehenunterschiede, {"EV"});
    nimm(Tabelle::Gps, {"EVX", "EVY", "EVZ"});
    for (const auto& [nummer, z] : punkte)
        ueberzaehlig -= (z["A"] > 0 ? 2 : 0) + (z["mH"] > 0 ? 1 : 0);
    std::set<std::string> saetze;
    for (const Messung& m : vorlage.messungen.at("$RZ"))
        saetze.insert(m.von);
    EXPECT_NEAR(redundanz, ueberzaehlig - static_cast<double>(saetze.size()), 0.03);
}

TEST_F(Beispieltabellen, GrobeFehlerSindGefundenUndVerbunden) {
    std::multiset<std::string> gefunden;
    for (const Tabelle t :
         {Tabelle::Strecken, Tabelle::Hoehenunterschiede, Tabelle::Richtungen, Tabelle::Gps}) {
        for (const Zeile& z : Zeilen(t)) {
            const bool richtung = t == Tabelle::Richtungen;
            const std::string linie = z.Text(richtung ? "PS" : "P1") + " " + z.Text(richtung ? "PZ" : "P2");
            EXPECT_EQ(z["FF"] != 0, z["TG"] > 3.29) << linie;
            if (t != Tabelle::Gps) {
                EXPECT_EQ(z["NK"] != 0, z["EV"] < 0.01) << linie;
            }
            if (z["FF"] != 0) gefunden.insert(linie);
        }
    }
    EXPECT_EQ(gefunden, (std::multiset<std::string>{"GALGR HOHFELS", "106 107", "35561403000104 36",
                                                    "NB22 NB01", "ROTST 35560800000102"}));
    for (const Tabelle t : {Tabelle::Linien, Tabelle::Streckenkontrollen}) {
        const char *von = t == Tabelle::Linien ? "PA" : "P1", *nach = t == Tabelle::Linien ? "PE" : "P2";
        for (const Zeile& z : Zeilen(t)) {
            EXPECT_NEAR(z["Sger"], Polar(z, von, nach).first, 7e-4);
            EXPECT_NEAR(z["vS"], z["Sger"] - z["Sgem"], 1e-6);
            EXPECT_EQ(z["GF"] != 0, std::fabs(z["vS"]) > z["Dzul"]);
            if (z["GF"] != 0) gefunden.insert(z.Text(von) + " " + z.Text(nach));
        }
    }
    EXPECT_EQ(gefunden.size(), 7U);

    const Einstellungen einstellungen;
    const Lesung l = OeffneNetz(kOrdner / "NETZ.EIN", dateien, einstellungen, {}, {900, 700}, {});
    EXPECT_TRUE(MarkiereFehler(*l.liste, daten_, einstellungen).empty());
    const auto index = [&](const std::string& nummer) {
        return l.liste->FindPunktNr(PunktNummernTyp(Utf8NachCp1252(nummer)));
    };
    for (const std::string& linie : gefunden) {
        const std::size_t blank = linie.find(' ');
        const auto kante = l.liste->FindKante(index(linie.substr(0, blank)), index(linie.substr(blank + 1)));
        ASSERT_NE(kante, nullptr) << linie;
        EXPECT_EQ(kante->Item->Farbe, einstellungen.GFCol) << linie;
    }
}

}  // namespace
}  // namespace zrw
