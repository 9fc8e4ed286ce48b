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
constexpr double kAbstand = 55.0;  ///< of lines, at least [px of the screen]
constexpr double kFern = 1e9;      ///< kilometres that are no place on earth

class Kilometerlinien {
  public:
    Kilometerlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, Farbe farbe, std::int64_t schritt)
        : flaeche_(flaeche),
          ansicht_(ansicht),
          farbe_(farbe),
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
            Beziffere({x + Luft(), kante_.oben + Luft()}, km);
            Beziffere({x + Luft(), kante_.unten - Luft() - flaeche_.Texthoehe()}, km);
        }
    }
    void ZeichneWaagrechte() const {
        for (std::int64_t km = Erster(ru_.hoch); Meter(km) <= lo_.hoch; km += schritt_) {
            const auto y = static_cast<std::int32_t>(ansicht_.Bildort({lo_.rechts, Meter(km)}).y);
            flaeche_.Linie({kante_.links, y}, {kante_.rechts, y});
            const std::int32_t breite = flaeche_.Textbreite(std::to_string(km));
            Beziffere({kante_.links + Luft(), y - flaeche_.Texthoehe()}, km);
            Beziffere({kante_.rechts - Luft() - breite, y - flaeche_.Texthoehe()}, km);
        }
    }

  private:
    [[nodiscard]] std::int64_t Erster(double meter) const {
        return static_cast<std::int64_t>(std::ceil(meter / kKilometer / static_cast<double>(schritt_))) *
               schritt_;
    }
    [[nodiscard]] static double Meter(std::int64_t km) { return static_cast<double>(km) * kKilometer; }
    [[nodiscard]] std::int32_t Luft() const { return flaeche_.Texthoehe() / 4; }
    /// Whole numbers only: one that would be cut at a corner is left out.
    void Beziffere(Flaechenpunkt ort, std::int64_t km) const {
        const std::string text = std::to_string(km);
        if (ort.x >= kante_.links && ort.y >= kante_.oben &&
            ort.x + flaeche_.Textbreite(text) <= kante_.rechts &&
            ort.y + flaeche_.Texthoehe() <= kante_.unten)
            flaeche_.Text(ort, text, farbe_);
    }

    Zeichenflaeche& flaeche_;
    const Ansicht& ansicht_;
    Farbe farbe_;
    std::int64_t schritt_;  ///< [km]
    Rechteck kante_;
    Welt lo_;
    Welt ru_;
};

}  // namespace

void ZeichneKilometerlinien(Zeichenflaeche& flaeche, const Ansicht& ansicht, Farbe farbe, double dichte) {
    const double dots = kKilometer / ansicht.Faktor;
    if (!(dots > 0.0) || !std::isfinite(dots)) return;
    std::int64_t schritt = 1;
    if (dots < kAbstand * dichte) {
        const auto km = KleinsteTeilung(dots, kAbstand * dichte).Mal(1);
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
