#include "output/Legendenbild.h"

#include <array>
#include <string>
#include <string_view>

#include "model/Cp1252.h"
#include "model/Ganzzahl.h"
#include "model/Punktarten.h"
#include "output/Abschneiden.h"

namespace zrw {
namespace {

constexpr double kMindestbreite = 150;  ///< [px]
constexpr double kLegendenrand = 4;     ///< beside the longest description [px]
constexpr double kRahmenabstand = 2;    ///< from the frame to the texts, left and above [px]
constexpr std::int32_t kLegendenzeilen = 8;
constexpr std::int32_t kErsteArt = 4;  ///< line of the first point kind

}  // namespace

std::int32_t Legendenbild::Dots(double pixel) const {
    return static_cast<std::int32_t>(RundeZuInt64(pixel * geraetefaktor_));
}

std::int32_t Legendenbild::Breite(const Legende& l) const {
    const std::int32_t mindestens = Dots(kMindestbreite);
    std::int32_t w = mindestens;
    // The first text may fill the least width without a margin, the second may not exceed what is there.
    const std::int32_t b1 = flaeche_.Textbreite(l.Bez1);
    const std::int32_t b2 = flaeche_.Textbreite(l.Bez2);
    if (b1 > mindestens) w = b1 + Dots(kLegendenrand);
    if (w < b2) w = b2 + Dots(kLegendenrand);
    return w;
}

void Legendenbild::ZeichneLegende(const Legende& l, Gang gang) const {
    const std::int32_t w = Breite(l);
    const std::int32_t h = flaeche_.Texthoehe();
    const std::int32_t s = einstellungen_.PTSize;
    const std::int64_t reichweite = std::int64_t{w} + std::int64_t{h} * kLegendenzeilen + std::int64_t{s} * 3;
    if (!InReichweite(l.Position(), reichweite, flaeche_.Sichtbar())) return;
    const auto [x, y] = Aufflaeche(l.Position());
    const bool wischen = gang == Gang::Wischen;
    const auto farbe = [&](Farbe eigene) { return wischen ? kWeiss : eigene; };
    {
        const Stiftwechsel rahmen(flaeche_, {farbe(l.Farbe), 1, Strichart::Voll}, {kWeiss, true});
        const std::int32_t abstand = Dots(kRahmenabstand);
        flaeche_.ZeichneRechteck({x - abstand, y - abstand, x + w, y + kLegendenzeilen * h});
    }
    const auto zeile = [&, x = x, y = y](std::int32_t nummer, std::int32_t einzug, std::string_view text) {
        flaeche_.Text({x + einzug, y + nummer * h}, text, farbe(kSchwarz));
    };
    zeile(0, 0, "Zarwik " + l.Zeit);
    zeile(1, 0, l.Bez1);
    zeile(2, 0, l.Bez2);
    zeile(3, 0, Utf8NachCp1252("Maßstab 1:") + l.Masstab);
    for (std::size_t i = 0; i < kPunktarten.size(); ++i) {
        const Punktart& art = kPunktarten[i];
        const auto nummer = kErsteArt + static_cast<std::int32_t>(i);
        zeile(nummer, 3 * s, Utf8NachCp1252(art.legende));
        const auto c = static_cast<std::int32_t>(RundeZuInt64(y + (nummer + 0.5) * h));
        const Farbe eigene = farbe(einstellungen_.*art.farbe);
        const Stiftwechsel signatur(flaeche_, {eigene, 1, Strichart::Voll}, {eigene, false});
        flaeche_.Ellipse({x, c - s, x + 2 * s, c + s});
    }
}

}  // namespace zrw
