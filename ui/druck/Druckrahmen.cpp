#include "ui/druck/Druckrahmen.h"

#include <array>
#include <cstdlib>

#include "model/Ganzzahl.h"
#include "output/Abschneiden.h"

namespace zrw {

std::pair<Bildpunkt, Bildpunkt> Druckrahmen::Ecken(const Liste& liste) const {
    const Bildpunkt links = ecke_ ? liste.Bildort(*ecke_) : Bildpunkt{};
    const Bildpunkt groesse = Ausgabebereich(liste, stand_->massstab, stand_->seite);
    return {links, {Summe(links.x, groesse.x), Summe(links.y, groesse.y)}};
}

bool Druckrahmen::Gefangen(const Liste& liste, Bildpunkt ort) const {
    if (!stand_) return false;
    const auto [a, b] = Ecken(liste);
    const std::int64_t fang = liste.Anzeige().Fang;
    const auto nahe = [&](std::int64_t v, std::int64_t kante) {
        return std::llabs(Differenz(v, kante)) <= fang;
    };
    const auto zwischen = [&](std::int64_t v, std::int64_t von, std::int64_t bis) {
        return v >= Differenz(von, fang) && v <= Summe(bis, fang);
    };
    return ((nahe(ort.x, a.x) || nahe(ort.x, b.x)) && zwischen(ort.y, a.y, b.y)) ||
           ((nahe(ort.y, a.y) || nahe(ort.y, b.y)) && zwischen(ort.x, a.x, b.x));
}

void Druckrahmen::ZeichneRahmen(const Liste& liste, Zeichenflaeche& flaeche, Farbe farbe) const {
    if (!stand_) return;
    const auto [a, b] = Ecken(liste);
    const Stiftwechsel stift(flaeche, {farbe, 1, Strichart::Voll}, {kWeiss, true});
    const std::array<Bildpunkt, 5> ecken{a, Bildpunkt{b.x, a.y}, b, Bildpunkt{a.x, b.y}, a};
    for (std::size_t i = 0; i + 1 < ecken.size(); ++i) {
        if (const auto strich = SchneideLinieAb(ecken[i], ecken[i + 1], flaeche.Sichtbar()))
            flaeche.Linie(strich->first, strich->second);
    }
}

}  // namespace zrw
