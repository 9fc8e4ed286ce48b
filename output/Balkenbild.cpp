#include "output/Balkenbild.h"

#include <algorithm>
#include <cmath>

#include "model/Ganzzahl.h"
#include "model/Zahlentext.h"
#include "output/Abschneiden.h"

namespace zrw {
namespace {

void ZieheStrich(Zeichenflaeche& f, Bildpunkt von, Bildpunkt nach) {
    if (const auto teil = SchneideLinieAb(von, nach, f.Grenzen())) f.Linie(teil->first, teil->second);
}

void SchreibeText(Zeichenflaeche& f, Bildpunkt ort, std::string_view text) {
    // No character is wider than twice the line height.
    const std::int64_t rand = std::int64_t{f.Texthoehe()} * 2 * static_cast<std::int64_t>(text.size());
    if (InReichweite(ort, rand, f.Sichtbar())) f.Text(Aufflaeche(ort), text, kSchwarz);
}

/// Where the parts of a bar lie along it [dots], from the left edge of its texts.
struct Laengs {
    std::int64_t anfang;
    std::int64_t einheit;
    std::int64_t weite;
};

Laengs MissLaengs(const Zeichenflaeche& f, const Balken& b) {
    const std::int64_t anfang = f.Textbreite(b.werte.front()) / 2;
    const std::int64_t einheit =
        anfang + RundeZuInt64(b.laenge) + f.Textbreite(b.werte.back()) / 2 + f.Textbreite(" ");
    return {anfang, einheit,
            std::max<std::int64_t>(einheit + f.Textbreite(b.einheit), f.Textbreite(b.titel))};
}

}  // namespace

std::optional<double> Teilung::Mal(int schritte) const {
    return LiesReal(std::to_string(ziffer * schritte) + "e" + std::to_string(exponent));
}

Teilung KleinsteTeilung(double dots, double mindestens) {
    // A product may fall short of its round value in the last place.
    const double genug = mindestens * (1 - 1e-9);
    const int kleinster = static_cast<int>(std::floor(std::log10(mindestens) - std::log10(dots))) - 1;
    for (int exponent = kleinster; exponent <= kleinster + 2; ++exponent) {
        for (const int ziffer : {1, 2, 5}) {
            const Teilung t{ziffer, exponent};
            const auto k = t.Mal(1);
            if (k && *k * dots >= genug) return t;
        }
    }
    return {1, kleinster + 3};
}

std::optional<Balken> MetrischerBalken(double faktor, double dichte) {
    constexpr double kSchritt = 30.0;  ///< at least [px]
    constexpr int kTeile = 4;
    constexpr double kInKilometern = 2000.0;  ///< from this length on [m]
    constexpr int kTausend = 3;
    if (!(faktor > 0.0) || !std::isfinite(faktor) || !std::isfinite(1 / faktor)) return std::nullopt;
    const Teilung meter = KleinsteTeilung(1 / faktor, kSchritt * dichte);
    const auto ganz = meter.Mal(kTeile);
    if (!ganz) return std::nullopt;
    const bool kilometer = *ganz >= kInKilometern;
    const Teilung gezeigt{meter.ziffer, kilometer ? meter.exponent - kTausend : meter.exponent};
    Balken balken{{}, kilometer ? "km" : "m", {}, *ganz / faktor, true};
    for (int i = 0; i <= kTeile; ++i)
        balken.werte.push_back(SchreibeReal(gezeigt.Mal(i).value_or(0.0)));
    return balken;
}

/// From the bottom: a margin of a line of text, the bar, its numbers, the caption.
void ZeichneBalken(Zeichenflaeche& f, const Balken& b, std::int64_t hoeher) {
    const Rechteck s = f.Sichtbar();
    const std::int64_t h = f.Texthoehe();
    const std::int64_t rand = h / 4;
    const std::int64_t strich = std::max<std::int64_t>(h / 3, 2);
    const std::int64_t zeilen = b.titel.empty() ? 1 : 2;
    const Laengs l = MissLaengs(f, b);
    const std::int64_t links = b.rechts ? s.rechts - h - l.weite : s.links + h;
    const std::int64_t grund = s.unten - h - hoeher;
    const std::int64_t oben = grund - strich - zeilen * h;
    if (oben - rand < s.oben || links > s.rechts || (b.rechts && links - rand < s.links)) return;

    // Network and grids would make it unreadable.
    f.FuelleRechteck({static_cast<std::int32_t>(links - rand), static_cast<std::int32_t>(oben - rand),
                      static_cast<std::int32_t>(std::min<std::int64_t>(links + l.weite + rand, s.rechts)),
                      static_cast<std::int32_t>(grund + rand)},
                     kWeiss);
    const Stiftwechsel wechsel(f, {}, {kWeiss, true});
    const std::int64_t zahlen = oben + (zeilen - 1) * h;
    if (!b.titel.empty()) SchreibeText(f, {links, oben}, b.titel);
    SchreibeText(f, {links + l.einheit, zahlen}, b.einheit);

    const std::size_t letzter = b.werte.size() - 1;
    const auto teilpunkt = [&](std::size_t i) {
        return links + l.anfang +
               RundeZuInt64(b.laenge * static_cast<double>(i) / static_cast<double>(letzter));
    };
    std::int64_t breiteste = 0;
    for (const std::string& t : b.werte)
        breiteste = std::max<std::int64_t>(breiteste, f.Textbreite(t));
    const bool alle =
        b.laenge > static_cast<double>(letzter) * static_cast<double>(breiteste + f.Textbreite(" "));
    ZieheStrich(f, {teilpunkt(0), grund}, {teilpunkt(letzter), grund});
    for (std::size_t i = 0; i <= letzter; ++i) {
        const std::int64_t x = teilpunkt(i);
        ZieheStrich(f, {x, grund}, {x, grund - strich});
        if (alle || i == 0 || i == letzter)
            SchreibeText(f, {x - f.Textbreite(b.werte[i]) / 2, zahlen}, b.werte[i]);
    }
}

}  // namespace zrw
