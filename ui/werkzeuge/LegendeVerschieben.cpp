#include "ui/werkzeuge/LegendeVerschieben.h"

#include <algorithm>
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
    Liste& netz = *umgebung_.AktuelleListe();
    netz.MausLegende(ort);
    anfang_ = ort;
    vorher_ = netz.Legend->Position();
}

void LegendeVerschieben::Ziehen(Bildpunkt ort) {
    if (anfang_) Setze({vorher_.x + ort.x - anfang_->x, vorher_.y + ort.y - anfang_->y});
}

void LegendeVerschieben::Loslassen(Bildpunkt ort) {
    Ziehen(ort);
    Schliesse();
}

void LegendeVerschieben::Abbrechen() {
    if (anfang_) Setze(vorher_);
    Schliesse();
}

void LegendeVerschieben::Setze(Bildpunkt ort) {
    umgebung_.AktuelleListe()->Legend->Drag(Auf32(ort.x), Auf32(ort.y), umgebung_.Bildzeichner());
    umgebung_.BildGeaendert();
}

/// Draws again what the legend was dragged over.
void LegendeVerschieben::Schliesse() {
    if (!anfang_) return;
    anfang_.reset();
    umgebung_.AktuelleListe()->Legend->Move = false;
    umgebung_.ZeichneNeu();
}

}  // namespace zrw
