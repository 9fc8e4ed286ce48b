#include "output/blatt/Schlichtgitter.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "model/Ganzzahl.h"
#include "output/Abschneiden.h"
#include "output/Balkenbild.h"

namespace zrw {
namespace {

constexpr double kKilometer = 1000.0;
constexpr double kFern = 1e9;  ///< kilometres that are no place on earth

class Kilometerlinien {
  public:
    Kilometerlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, Farbe farbe, std::int64_t schritt)
        : flaeche_(flaeche),
          ansicht_(ansicht),
          zahlen_(flaeche, farbe, 1),
          schritt_(schritt),
          kante_(flaeche.Sichtbar()),
          lo_(ansicht.BildinWelt({kante_.links, kante_.oben})),
          ru_(ansicht.BildinWelt({kante_.rechts, kante_.unten})) {}

    [[nodiscard]] bool Zeichenbar() const {
        return std::fabs(lo_.rechts) < kFern && std::fabs(ru_.rechts) < kFern &&
               std::fabs(lo_.hoch) < kFern && std::fabs(ru_.hoch) < kFern;
    }
    void ZeichneSenkrechte() const {
        for (std::int64_t km = Erster(lo_.rechts); Meter(km) <= ru_.rechts; km += schritt_) {
            const auto x = static_cast<std::int32_t>(ansicht_.Bildort({Meter(km), lo_.hoch}).x);
            flaeche_.Linie({x, kante_.oben}, {x, kante_.unten});
            zahlen_.SchreibeOben(x, std::to_string(km), 0);
            zahlen_.SchreibeUnten(x, std::to_string(km), 0);
        }
    }
    void ZeichneWaagrechte() const {
        for (std::int64_t km = Erster(ru_.hoch); Meter(km) <= lo_.hoch; km += schritt_) {
            const auto y = static_cast<std::int32_t>(ansicht_.Bildort({lo_.rechts, Meter(km)}).y);
            flaeche_.Linie({kante_.links, y}, {kante_.rechts, y});
            zahlen_.SchreibeLinks(y, std::to_string(km), 0);
            zahlen_.SchreibeRechts(y, std::to_string(km), 0);
        }
    }

  private:
    [[nodiscard]] std::int64_t Erster(double meter) const {
        return static_cast<std::int64_t>(std::ceil(meter / kKilometer / static_cast<double>(schritt_))) *
               schritt_;
    }
    [[nodiscard]] static double Meter(std::int64_t km) { return static_cast<double>(km) * kKilometer; }

    Zeichenflaeche& flaeche_;
    const Ansicht& ansicht_;
    Randzahlen zahlen_;
    std::int64_t schritt_;  ///< [km]
    Rechteck kante_;
    Welt lo_;
    Welt ru_;
};

}  // namespace

Rechteck Randzahlen::Innen(std::int32_t einzug) const {
    const std::int32_t rand = Luft() + zeilen_ * flaeche_.Texthoehe();
    return {kante_.links + einzug, kante_.oben + rand, kante_.rechts - einzug, kante_.unten - rand};
}

void Randzahlen::SchreibeGanz(Flaechenpunkt ort, std::string_view text, const Rechteck& r) const {
    if (ort.x >= r.links && ort.y >= r.oben && ort.x + flaeche_.Textbreite(text) <= r.rechts &&
        ort.y + flaeche_.Texthoehe() <= r.unten)
        flaeche_.Text(ort, text, farbe_);
}

void Randzahlen::SchreibeOben(std::int32_t x, std::string_view text, std::int32_t zeile) const {
    SchreibeGanz({x + Luft(), kante_.oben + Luft() + zeile * flaeche_.Texthoehe()}, text, kante_);
}

void Randzahlen::SchreibeUnten(std::int32_t x, std::string_view text, std::int32_t zeile) const {
    SchreibeGanz({x + Luft(), kante_.unten - Luft() - (zeile + 1) * flaeche_.Texthoehe()}, text, kante_);
}

void Randzahlen::SchreibeLinks(std::int32_t y, std::string_view text, std::int32_t einzug) const {
    SchreibeGanz({kante_.links + Luft() + einzug, y - flaeche_.Texthoehe()}, text, Innen(0));
}

void Randzahlen::SchreibeRechts(std::int32_t y, std::string_view text, std::int32_t einzug) const {
    const std::int32_t x = kante_.rechts - Luft() - einzug - flaeche_.Textbreite(text);
    SchreibeGanz({x, y - flaeche_.Texthoehe()}, text, Innen(0));
}

void ZeichneKilometerlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, Farbe farbe, double dichte) {
    const double dots = kKilometer / ansicht.Faktor;
    if (!(dots > 0.0) || !std::isfinite(dots)) return;
    std::int64_t schritt = 1;
    if (dots < kLinienabstand * dichte) {
        const auto km = KleinsteTeilung(dots, kLinienabstand * dichte).Mal(1);
        if (!km || *km > kFern) return;
        schritt = std::max<std::int64_t>(RundeZuInt64(*km), 1);
    }
    const Kilometerlinien linien(flaeche, ansicht, farbe, schritt);
    if (!linien.Zeichenbar()) return;
    const Stiftwechsel stift(flaeche, {Aufgehellt(farbe), 1, Strichart::Voll}, {kWeiss, true});
    linien.ZeichneSenkrechte();
    linien.ZeichneWaagrechte();
}

}  // namespace zrw
