#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <numbers>
#include <optional>

#include "output/Abschneiden.h"
#include "output/Geonetz.h"
#include "output/blatt/Schlichtgitter.h"

namespace zrw {
namespace {

constexpr double kMinuten = 60.0;         ///< of a degree
constexpr int kWestgrenze = 5 * 60 + 40;  ///< of the sheet columns [arc minutes]
constexpr int kNordgrenze = 56 * 60;      ///< of the sheet rows [arc minutes]
// Every so many minutes a line, the first as wide and high as a sheet.
constexpr std::array kSpalten{10, 20, 30, 60, 120, 300, 600};
constexpr std::array kBlattzeilen{6, 12, 30, 60, 120, 300, 600};
constexpr int kStuecke = 64;   ///< of a line, which is curved in the grid
constexpr double kWeit = 9.0;  ///< from the central meridian: beyond lie other zones [deg]
constexpr int kMeiste = 1000;  ///< lines each way: more is no picture of the earth

/// From `von` to `bis` [deg].
struct Spanne {
    double von = HUGE_VAL;
    double bis = -HUGE_VAL;
    void Umfasse(double w) {
        von = std::min(von, w);
        bis = std::max(bis, w);
    }
    [[nodiscard]] Spanne Erweitert() const {
        const double mehr = (bis - von) / 20 + 1 / kMinuten;
        return {von - mehr, bis + mehr};
    }
    [[nodiscard]] int Erste(int schritt) const {
        return static_cast<int>(std::ceil(von * kMinuten / schritt)) * schritt;
    }
    [[nodiscard]] bool Hat(int minuten) const { return minuten <= bis * kMinuten; }
    [[nodiscard]] bool Zeichenbar(int schritt) const { return (bis - von) * kMinuten / schritt < kMeiste; }
};

/// Where the stroke crosses a line of the other direction, as the coordinate along that one.
std::optional<std::int32_t> Querung(double v0, double w0, double v1, double w1, double v) {
    if ((v0 < v) == (v1 < v)) return std::nullopt;
    const double w = w0 + (v - v0) / (v1 - v0) * (w1 - w0);
    constexpr double kFern = 1e8;
    if (!(std::fabs(w) < kFern)) return std::nullopt;
    return static_cast<std::int32_t>(std::lround(w));
}

class Kartenblattlinien {
  public:
    Kartenblattlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, const Blattliniengitter& gitter)
        : flaeche_(flaeche),
          geo_(gitter.netz, ansicht),
          zeile_(gitter.nebenKilometern ? 1 : 0),
          einzug_(gitter.nebenKilometern ? flaeche.Textbreite("00000") : 0),
          zahlen_(flaeche, gitter.farbe, zeile_ + 1) {
        const Rechteck& k = zahlen_.Kante();
        for (const std::int32_t x : {k.links, k.links + (k.rechts - k.links) / 2, k.rechts}) {
            for (const std::int32_t y : {k.oben, k.oben + (k.unten - k.oben) / 2, k.unten}) {
                const auto g = Position(ansicht.BildinWelt({x, y}), gitter.netz.Hauptmeridian);
                if (!g) return;
                breiten_.Umfasse(g->breite.wert);
                laengen_.Umfasse(g->laenge.wert);
            }
        }
        const double abstand = kLinienabstand * gitter.dichte * ansicht.Faktor;  // [m]
        const double breite = (breiten_.von + breiten_.bis) / 2;
        const double laenge = (laengen_.von + laengen_.bis) / 2;
        const Welt ort = geo_.Weltort(breite, laenge);
        const Welt ost = geo_.Weltort(breite, laenge + 1 / kMinuten);
        const Welt nord = geo_.Weltort(breite + 1 / kMinuten, laenge);
        spalten_ = Schritt(kSpalten, std::hypot(ost.rechts - ort.rechts, ost.hoch - ort.hoch), abstand);
        zeilen_ = Schritt(kBlattzeilen, std::hypot(nord.rechts - ort.rechts, nord.hoch - ort.hoch), abstand);
        breiten_ = breiten_.Erweitert();
        laengen_ = laengen_.Erweitert();
        zeichenbar_ =
            spalten_ > 0 && zeilen_ > 0 && laengen_.Zeichenbar(spalten_) && breiten_.Zeichenbar(zeilen_);
    }

    [[nodiscard]] bool Zeichenbar() const { return zeichenbar_; }

    void ZeichneMeridiane() const {
        const Rechteck& k = zahlen_.Kante();
        for (int m = laengen_.Erste(spalten_); laengen_.Hat(m); m += spalten_) {
            ZeichneLinie([&](double t) { return Ort(breiten_, t, m / kMinuten, false); },
                         [&](Strich s) {
                             if (const auto x = Querung(s.y0, s.x0, s.y1, s.x1, k.oben))
                                 zahlen_.SchreibeOben(*x, Gradzahl(m), zeile_);
                             if (const auto x = Querung(s.y0, s.x0, s.y1, s.x1, k.unten))
                                 zahlen_.SchreibeUnten(*x, Gradzahl(m), zeile_);
                         });
        }
    }

    void ZeichneParallelen() const {
        const Rechteck& k = zahlen_.Kante();
        for (int m = breiten_.Erste(zeilen_); breiten_.Hat(m); m += zeilen_) {
            ZeichneLinie([&](double t) { return Ort(laengen_, t, m / kMinuten, true); },
                         [&](Strich s) {
                             if (const auto y = Querung(s.x0, s.y0, s.x1, s.y1, k.links))
                                 zahlen_.SchreibeLinks(*y, Gradzahl(m), einzug_);
                             if (const auto y = Querung(s.x0, s.y0, s.x1, s.y1, k.rechts))
                                 zahlen_.SchreibeRechts(*y, Gradzahl(m), einzug_);
                         });
        }
    }

    /// In the south-west corners of the sheets, as on the screen.
    void SchreibeBlattnummern(Farbe farbe) const {
        if (spalten_ != kSpalten.front() || zeilen_ != kBlattzeilen.front()) return;
        const Randzahlen nummern(flaeche_, farbe, 0);
        const Rechteck innen = zahlen_.Innen(einzug_ + flaeche_.Textbreite("00\xB0"
                                                                           "00'"));
        for (int l = laengen_.Erste(spalten_); laengen_.Hat(l); l += spalten_) {
            for (int b = breiten_.Erste(zeilen_); breiten_.Hat(b); b += zeilen_) {
                const Bildpunkt ecke = geo_.Bildort(b / kMinuten, l / kMinuten);
                if (!InReichweite(ecke, 0, zahlen_.Kante())) continue;
                const int nummer = (kNordgrenze - b - zeilen_) / zeilen_ * 100 + (l - kWestgrenze) / spalten_;
                const Flaechenpunkt ort = Aufflaeche(ecke);
                nummern.SchreibeGanz(
                    {ort.x + 2 * flaeche_.Schriftgrad(), ort.y - 2 * flaeche_.Schrifthoehe()},
                    std::to_string(nummer), innen);
            }
        }
    }

  private:
    /// By turning the mapping round: its inverse takes the zone from the easting, and a sheet may reach into
    /// the next one's. Nothing outside the zone.
    [[nodiscard]] std::optional<Geograph> Position(Welt ort, int hauptmeridian) const {
        constexpr double kMeterJeGrad = 111000.0;
        constexpr double kBreitestes = 85.0;
        constexpr int kSchritte = 40;
        double breite = 50.0;
        double laenge = hauptmeridian;
        for (int i = 0; i < kSchritte; ++i) {
            const Welt hier = geo_.Weltort(breite, laenge);
            const double rechts = ort.rechts - hier.rechts;
            const double hoch = ort.hoch - hier.hoch;
            if (std::hypot(rechts, hoch) < 0.1) return Geograph{Grad{breite}, Grad{laenge}, {}, 0.0};
            breite += hoch / kMeterJeGrad;
            laenge += rechts / kMeterJeGrad / std::cos(breite * std::numbers::pi / 180);
            if (!(std::fabs(breite) < kBreitestes) || !(std::fabs(laenge - hauptmeridian) < kWeit)) break;
        }
        return std::nullopt;
    }
    struct Strich {
        double x0, y0, x1, y1;
    };

    template <std::size_t n>
    [[nodiscard]] static int Schritt(const std::array<int, n>& schritte, double meterJeMinute,
                                     double abstand) {
        const auto s = std::find_if(schritte.begin(), schritte.end(),
                                    [&](int minuten) { return minuten * meterJeMinute >= abstand; });
        return s == schritte.end() ? 0 : *s;
    }
    /// At the share `t` of the span, on the other coordinate's line `fest` [deg].
    [[nodiscard]] Bildpunkt Ort(const Spanne& s, double t, double fest, bool entlangLaenge) const {
        const double w = s.von + (s.bis - s.von) * t;
        return entlangLaenge ? geo_.Bildort(fest, w) : geo_.Bildort(w, fest);
    }
    template <class Lage, class Jeder>
    void ZeichneLinie(const Lage& lage, const Jeder& jeder) const {
        Bildpunkt vorher = lage(0.0);
        for (int i = 1; i <= kStuecke; ++i) {
            const Bildpunkt hier = lage(static_cast<double>(i) / kStuecke);
            if (const auto teil = SchneideLinieAb(vorher, hier, flaeche_.Grenzen()))
                flaeche_.Linie(teil->first, teil->second);
            jeder(Strich{static_cast<double>(vorher.x), static_cast<double>(vorher.y),
                         static_cast<double>(hier.x), static_cast<double>(hier.y)});
            vorher = hier;
        }
    }

    Zeichenflaeche& flaeche_;
    Geonetz geo_;
    std::int32_t zeile_;   ///< of the numbers along the upper and lower edge
    std::int32_t einzug_;  ///< of those at the sides [dots]
    Randzahlen zahlen_;
    Spanne breiten_;
    Spanne laengen_;
    int spalten_ = 0;  ///< [arc minutes]
    int zeilen_ = 0;   ///< [arc minutes]
    bool zeichenbar_ = false;
};

}  // namespace

std::string Gradzahl(int minuten) {
    const int betrag = std::abs(minuten);
    std::string text = (minuten < 0 ? "-" : "") + std::to_string(betrag / 60) + "\xB0";
    if (const int rest = betrag % 60; rest != 0) text += (rest < 10 ? "0" : "") + std::to_string(rest) + "'";
    return text;
}

void ZeichneKartenblattlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht,
                              const Blattliniengitter& gitter) {
    const Kartenblattlinien linien(flaeche, ansicht, gitter);
    if (!linien.Zeichenbar()) return;
    const Farbe hell = Aufgehellt(gitter.farbe);
    const Stiftwechsel stift(flaeche, {hell, 1, Strichart::Voll}, {kWeiss, true});
    linien.ZeichneMeridiane();
    linien.ZeichneParallelen();
    linien.SchreibeBlattnummern(hell);
}

}  // namespace zrw
