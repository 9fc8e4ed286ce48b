#include "beispiele/Linientafel.h"

#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "input/Systemdateien.h"
#include "model/Bilddatei.h"
#include "model/Fehler.h"

namespace zrw::beispiel {
namespace {

constexpr std::array kStile{"NULL", "AR1", "AR2", "AST", "ARI1", "ARI2", "ASTI"};
constexpr unsigned kMengen = 16;
constexpr double kLinks = 135;  // the columns begin behind the names of the rows
constexpr double kSpalte = 150;
constexpr double kZeile = 26;
constexpr double kStern = 150;  // square of one star
constexpr std::array kLaengen{1, 2, 3, 5, 8, 12, 16, 20, 30, 40, 60};

/// Builds the sheet at one metre a pixel, x to the right and y downwards as on the screen.
class Tafel {
  public:
    explicit Tafel(Liste& liste, const Einstellungen& e) : liste_(liste), e_(e) {}

    PunktIndex Punkt(double x, double y, bool sichtbar, const std::string& text = {}) {
        zrw::Punkt p = zrw::Punkt::Create(PunktTyp::Pkt, kSchwarz, PunktAttr::Fu);
        p.Visible = sichtbar;
        liste_.AddPunkt(p, {x, -y}, ++nummer_);
        PktText t = PktText::Create(text, kSchwarz, e_);
        t.XBiO = 0;
        t.YBiO = -7;
        liste_.AddPktText(t, nummer_);
        ++liste_.MaxPkte;
        return nummer_;
    }
    void Schrift(double x, double y, const std::string& text) { Punkt(x, y, false, text); }
    void Linie(Welt von, Welt nach, unsigned stil, unsigned menge, bool mitPunkten) {
        const auto attr = KanteAttr::AusMaske(static_cast<std::uint8_t>(menge));
        const PunktIndex a = Punkt(von.rechts, von.hoch, mitPunkten);
        const PunktIndex b = Punkt(nach.rechts, nach.hoch, mitPunkten);
        liste_.AddKante(Kante::Create(kSchwarz, attr, static_cast<LinieAttr>(stil)), a, b);
        ++liste_.MaxKant;
    }

  private:
    Liste& liste_;
    const Einstellungen& e_;
    PunktIndex nummer_ = 0;
};

std::string Mengenname(unsigned menge) {
    constexpr std::array kNamen{"ST", "GPS", "DH1", "DH2"};
    std::string name;
    for (unsigned i = 0; i < kNamen.size(); ++i) {
        if ((menge >> i & 1U) != 0) name += (name.empty() ? "" : " ") + std::string(kNamen[i]);
    }
    return name.empty() ? "ohne" : name;
}

/// Styles across, sets downwards.
double Kreuztabelle(Tafel& t, double y) {
    for (unsigned stil = 0; stil < kStile.size(); ++stil)
        t.Schrift(kLinks + stil * kSpalte + 40, y, kStile[stil]);
    for (unsigned menge = 0; menge < kMengen; ++menge) {
        y += kZeile;
        t.Schrift(10, y, Mengenname(menge));
        for (unsigned stil = 0; stil < kStile.size(); ++stil) {
            const double x = kLinks + stil * kSpalte;
            t.Linie({x, y}, {x + kSpalte - 40, y}, stil, menge, true);
        }
    }
    return y + kZeile;
}

/// Twelve directions from one station.
double Sterne(Tafel& t, double y, unsigned menge) {
    constexpr int kRichtungen = 12;
    t.Schrift(10, y + kStern / 2, Mengenname(menge));
    for (unsigned stil = 0; stil < kStile.size(); ++stil) {
        const Welt m{kLinks + stil * kSpalte + kStern / 2 - 20, y + kStern / 2};
        for (int i = 0; i < kRichtungen; ++i) {
            const double w = 2 * std::numbers::pi * i / kRichtungen;
            const Welt innen{m.rechts + 12 * std::sin(w), m.hoch - 12 * std::cos(w)};
            const Welt aussen{m.rechts + 70 * std::sin(w), m.hoch - 70 * std::cos(w)};
            t.Linie(innen, aussen, stil, menge, false);
        }
    }
    return y + kStern;
}

/// Short lines of growing length, bare and with everything; then lines of 400 pixels.
double Laengen(Tafel& t, double y) {
    constexpr unsigned kAlles = 15;
    for (const int laenge : kLaengen) {
        t.Schrift(10, y, std::to_string(laenge) + " Pixel");
        for (unsigned stil = 0; stil < kStile.size(); ++stil) {
            const double x = kLinks + stil * kSpalte;
            t.Linie({x, y}, {x + laenge, y}, stil, 0, false);
            t.Linie({x + kSpalte / 2, y}, {x + kSpalte / 2 + laenge, y}, stil, kAlles, false);
        }
        y += 18;
    }
    for (unsigned stil = 0; stil < kStile.size(); ++stil) {
        t.Schrift(10, y, std::string(kStile[stil]) + " 400");
        t.Linie({kLinks, y}, {kLinks + 400, y + 6}, stil, 0, true);
        t.Linie({kLinks + 500, y}, {kLinks + 900, y - 6}, stil, kAlles, true);
        y += 24;
    }
    return y;
}

}  // namespace

bool SchreibeLinientafel(const std::filesystem::path& ordner) {
    const Einstellungen e;
    Liste liste(e);
    Tafel tafel(liste, e);
    double y = Kreuztabelle(tafel, 20);
    for (const unsigned menge : {0U, 3U, 15U})
        y = Sterne(tafel, y, menge);
    y = Laengen(tafel, y + 10);
    liste.Weite = static_cast<std::int32_t>(kLinks + kStile.size() * kSpalte);
    liste.Hoehe = static_cast<std::int32_t>(y);
    liste.MaxXW = liste.Weite;
    liste.MinYW = -liste.Hoehe;
    liste.WeltinBild();
    try {
        Systemdateien dateien;
        SchreibeBilddatei(liste, {}, ordner / "LINIEN.ZRW", dateien);
    } catch (const Fehler&) {
        return false;
    }
    return true;
}

}  // namespace zrw::beispiel
