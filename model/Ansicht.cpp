#include "model/Ansicht.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <cstdlib>

#include "model/Ganzzahl.h"

namespace zrw {
namespace {

/// Margin of the picture that fitting leaves free [px].
constexpr double kBildrand = 30;
/// Scales that zooming stays within [m/px]: from the hundredth of a millimetre to several earths in the
/// picture. Beyond them positions lose their last digit, and nobody finds back.
constexpr double kFeinster = 1e-5;
constexpr double kGroebster = 1e6;
/// Margin round fitted points, with room for their numbers [px].
constexpr int kRand = 40;
/// Scale for a single point [m/px].
constexpr double kEinzelpunkt = 0.5;
constexpr double kKilometer = 1000;

/// A picture of this size at this scale with the world position in its middle.
Bildlage UmMitte(double faktor, double rechts, double hoch, const Ansicht& a) {
    return {faktor, {(rechts - a.Weite * faktor) / 2, (hoch + a.Hoehe * faktor) / 2}};
}

}  // namespace

Welt Ansicht::BildinWelt(Bildpunkt b) const {
    return {MinXW + XOffset + static_cast<double>(b.x) * Faktor,
            MaxYW + YOffset - static_cast<double>(b.y) * Faktor};
}

Bildpunkt Ansicht::Bildort(Welt w) const {
    return {RundeZuInt64((w.rechts - (MinXW + XOffset)) / Faktor),
            RundeZuInt64((MaxYW + YOffset - w.hoch) / Faktor)};
}

Welt Ansicht::Versetzt(Welt w, Bildpunkt weg) const {
    return {w.rechts + static_cast<double>(weg.x) * Faktor, w.hoch - static_cast<double>(weg.y) * Faktor};
}

bool Ansicht::Brauchbar() const {
    if (!(Faktor > 0.0) || !std::isfinite(Faktor)) return false;
    for (const double v : {MaxXW, MinXW, MaxYW, MinYW, XOffset, YOffset}) {
        if (!std::isfinite(v)) return false;
    }
    return true;
}

Ansicht Ansicht::InDichte(double dichte) const {
    Ansicht a = *this;
    a.Faktor /= dichte;
    a.Weite = static_cast<std::int32_t>(std::lround(Weite * dichte));
    a.Hoehe = static_cast<std::int32_t>(std::lround(Hoehe * dichte));
    return a;
}

Ansicht Ansicht::FuerGeraet(double faktor, const std::optional<Welt>& ecke) const {
    Ansicht a = *this;
    a.Faktor = faktor;
    if (ecke) {
        a.XOffset = ecke->rechts - MinXW;
        a.YOffset = ecke->hoch - MaxYW;
    }
    return a;
}

Bildlage Ansicht::Eingepasst(const Weltkasten& welt) const {
    assert(!welt.Leer());
    const double dx = welt.rechts - welt.links;
    const double dy = welt.oben - welt.unten;
    const double weite = std::max(Weite - 2 * kRand, 1);
    const double hoehe = std::max(Hoehe - 2 * kRand, 1);
    const double faktor = dx > 0 || dy > 0 ? std::max(dx / weite, dy / hoehe) : kEinzelpunkt;
    return UmMitte(faktor, welt.links + welt.rechts, welt.unten + welt.oben, *this);
}

Bildlage Ansicht::Ausschnitt(Bildpunkt a, Bildpunkt b) const {
    const auto weite = static_cast<double>(std::max<std::int64_t>(std::llabs(a.x - b.x), 1));
    const auto hoehe = static_cast<double>(std::max<std::int64_t>(std::llabs(a.y - b.y), 1));
    const Welt eckeA = BildinWelt(a);
    const Welt eckeB = BildinWelt(b);
    return UmMitte(Faktor * std::max(weite / Weite, hoehe / Hoehe), eckeA.rechts + eckeB.rechts,
                   eckeA.hoch + eckeB.hoch, *this);
}

void Ansicht::SetzeLage(const Bildlage& lage) {
    Faktor = lage.faktor;
    XOffset = lage.ecke.rechts - MinXW;
    YOffset = lage.ecke.hoch - MaxYW;
}

void Ansicht::SetzeMitte(Welt mitte) {
    XOffset = mitte.rechts - MinXW - Weite / 2.0 * Faktor;
    YOffset = mitte.hoch - MaxYW + Hoehe / 2.0 * Faktor;
}

void Ansicht::SetzeAusdehnung(const Weltkasten& welt) {
    MinXW = std::trunc(welt.links / kKilometer - 1) * kKilometer;
    MaxXW = std::trunc(welt.rechts / kKilometer + 1) * kKilometer;
    MaxYW = std::trunc(welt.oben / kKilometer + 1) * kKilometer;
    MinYW = std::trunc(welt.unten / kKilometer - 1) * kKilometer;
}

void Ansicht::VergissLage() {
    const Ansicht leer;
    *this = Ansicht{.Weite = Weite, .Hoehe = Hoehe, .Faktor = leer.Faktor};
}

void Ansicht::Findfaktor() {
    const double dx = MaxXW - MinXW;
    const double dy = MaxYW - MinYW;
    // The horizontal extent goes with the height and the vertical one with the width: plots that are in use
    // were arranged with this scale.
    Faktor = dy < dx ? dx / (Hoehe - kBildrand) : dy / Weite;
}

void Ansicht::PasseEin() {
    XOffset = 0;
    YOffset = 0;
    Findfaktor();
}

void Ansicht::MoveMe(std::int64_t dx, std::int64_t dy) {
    XOffset += static_cast<double>(dx) * Faktor;
    YOffset += static_cast<double>(dy) * Faktor;
}

void Ansicht::SetzeVersatz(Welt anfang, Bildpunkt weg) {
    XOffset = anfang.rechts - static_cast<double>(weg.x) * Faktor;
    YOffset = anfang.hoch + static_cast<double>(weg.y) * Faktor;
}

bool Ansicht::ZoomeSchritt(double x, double y, bool groesser, double schritt) {
    const double vorher = Faktor;
    const double danach = groesser ? vorher * schritt : vorher / schritt;
    if (groesser ? danach < kFeinster : danach > kGroebster) return false;
    XOffset += x * vorher;
    YOffset -= y * vorher;
    XOffset -= x * danach;
    YOffset += y * danach;
    Faktor = danach;
    return true;
}

bool ErlaubteLage(const Bildlage& lage) {
    return lage.faktor >= kFeinster && lage.faktor <= kGroebster;
}

}  // namespace zrw
