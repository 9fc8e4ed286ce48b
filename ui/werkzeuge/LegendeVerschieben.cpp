#include "ui/werkzeuge/LegendeVerschieben.h"

#include <algorithm>
#include <cassert>
#include <limits>

namespace zrw {
namespace {

std::int32_t Auf32(std::int64_t v) {
    using Grenze = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(v, Grenze::min(), Grenze::max()));
}

}  // namespace

bool LegendeVerschieben::UeberEcke(Bildpunkt ort) const {
    const Liste* netz = umgebung_.AktuelleListe();
    return netz != nullptr && netz->ShowLegende && netz->Gefangen(ort, netz->Legend->Position());
}

void LegendeVerschieben::Druecken(Bildpunkt ort) {
    assert(UeberEcke(ort));
    umgebung_.AktuelleListe()->MausLegende(ort);
    anfang_ = ort;
    umgebung_.LasseLegendeAus(true);
    Ziehen(ort);
}

Bildpunkt LegendeVerschieben::Ziel(Bildpunkt ort) const {
    const Bildpunkt ecke = umgebung_.AktuelleListe()->Legend->Position();
    return {Auf32(ecke.x + ort.x - anfang_->x), Auf32(ecke.y + ort.y - anfang_->y)};
}

void LegendeVerschieben::Ziehen(Bildpunkt ort) {
    if (!anfang_) return;
    Legende legende = *umgebung_.AktuelleListe()->Legend;
    legende.XO = Ziel(ort).x;
    legende.YO = Ziel(ort).y;
    umgebung_.ZeigeVorschau(
        [legende](Zeichner& z, Zeichenflaeche& /*f*/) mutable { z.ZeichneLegende(legende, Gang::Zeigen); });
}

void LegendeVerschieben::Loslassen(Bildpunkt ort) {
    if (!anfang_) return;
    Legende& legende = *umgebung_.AktuelleListe()->Legend;
    const Bildpunkt ziel = Ziel(ort);
    const bool woanders = ziel != legende.Position();
    legende.XO = ziel.x;
    legende.YO = ziel.y;
    Abbrechen();
    if (woanders) umgebung_.MeldeErledigt(QStringLiteral("Legende verschoben"));
}

void LegendeVerschieben::Abbrechen() {
    if (!anfang_) return;
    anfang_.reset();
    umgebung_.AktuelleListe()->Legend->Move = false;
    umgebung_.ZeigeVorschau({});
    umgebung_.LasseLegendeAus(false);
}

}  // namespace zrw
