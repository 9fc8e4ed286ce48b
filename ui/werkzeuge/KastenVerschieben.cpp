#include "ui/werkzeuge/KastenVerschieben.h"

#include <algorithm>
#include <cassert>
#include <limits>

#include "output/Erklaerungsbild.h"

namespace zrw {
namespace {

std::int32_t Auf32(std::int64_t v) {
    using Grenze = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(v, Grenze::min(), Grenze::max()));
}

}  // namespace

void KastenVerschieben::Druecken(Bildpunkt ort) {
    assert(UeberGriff(ort));
    anfang_ = ort;
    NimmInDieHand(ort);
    Ziehen(ort);
}

Bildpunkt KastenVerschieben::Ziel(Bildpunkt ort) const {
    const Bildpunkt ecke = Ort();
    return {Auf32(ecke.x + ort.x - anfang_->x), Auf32(ecke.y + ort.y - anfang_->y)};
}

void KastenVerschieben::Ziehen(Bildpunkt ort) {
    if (anfang_) umgebung_.ZeigeVorschau(ZeigeBei(Ziel(ort)));
}

void KastenVerschieben::Loslassen(Bildpunkt ort) {
    if (!anfang_) return;
    const Bildpunkt ziel = Ziel(ort);
    const bool woanders = ziel != Ort();
    SetzeOrt(ziel);
    Abbrechen();
    if (woanders) umgebung_.MeldeErledigt(Satz());
}

void KastenVerschieben::Abbrechen() {
    if (!anfang_) return;
    anfang_.reset();
    umgebung_.ZeigeVorschau({});
    LassAusDerHand();
}

// --- Legend -----------------------------------------------------------------------------------------------

bool LegendeVerschieben::UeberGriff(Bildpunkt ort) const {
    const Liste* netz = Umgebung().AktuelleListe();
    return netz != nullptr && netz->ShowLegende && netz->Gefangen(ort, netz->Legend->Position());
}

Bildpunkt LegendeVerschieben::Ort() const {
    return Umgebung().AktuelleListe()->Legend->Position();
}

void LegendeVerschieben::SetzeOrt(Bildpunkt ort) {
    Legende& legende = *Umgebung().AktuelleListe()->Legend;
    legende.XO = ort.x;
    legende.YO = ort.y;
}

Vorschau LegendeVerschieben::ZeigeBei(Bildpunkt ort) const {
    Legende legende = *Umgebung().AktuelleListe()->Legend;
    legende.XO = ort.x;
    legende.YO = ort.y;
    return [legende](Zeichner& z, Zeichenflaeche& /*f*/) mutable { z.ZeichneLegende(legende, Gang::Zeigen); };
}

void LegendeVerschieben::NimmInDieHand(Bildpunkt maus) {
    Umgebung().AktuelleListe()->MausLegende(maus);
    Umgebung().LasseLegendeAus(true);
}

void LegendeVerschieben::LassAusDerHand() {
    Umgebung().AktuelleListe()->Legend->Move = false;
    Umgebung().LasseLegendeAus(false);
}

// --- Key --------------------------------------------------------------------------------------------------

bool ErklaerungVerschieben::UeberGriff(Bildpunkt ort) const {
    const Liste* netz = Umgebung().AktuelleListe();
    if (netz == nullptr || !netz->ZeigtErklaerung()) return false;
    const Bildbereich r = Umgebung().Erklaerungsrahmen();
    return ort.x >= r.links && ort.x <= r.rechts && ort.y >= r.oben && ort.y <= r.unten;
}

Bildpunkt ErklaerungVerschieben::Ort() const {
    return Umgebung().AktuelleListe()->Erklaerungsort.value_or(Erklaerungsbild::kUeblicherOrt);
}

void ErklaerungVerschieben::SetzeOrt(Bildpunkt ort) {
    Umgebung().AktuelleListe()->Erklaerungsort = ort;
}

Vorschau ErklaerungVerschieben::ZeigeBei(Bildpunkt ort) const {
    return [&liste = *Umgebung().AktuelleListe(), ort](Zeichner& z, Zeichenflaeche& /*f*/) {
        Darstellung darstellung = liste;
        darstellung.Erklaerungsort = ort;
        z.ZeichneErklaerung({liste, liste, darstellung});
    };
}

void ErklaerungVerschieben::NimmInDieHand(Bildpunkt /*maus*/) {
    Umgebung().LasseErklaerungAus(true);
}

void ErklaerungVerschieben::LassAusDerHand() {
    Umgebung().LasseErklaerungAus(false);
}

}  // namespace zrw
