#include "ui/werkzeuge/ZoomRechteck.h"

#include "model/Bildorte.h"

#include <algorithm>
#include <cstdlib>

#include "ui/werkzeuge/Markierung.h"

namespace zrw {
namespace {}  // namespace

QString ZoomRechteck::Anleitung() const {
    return QStringLiteral(
        "Zoomen mit der Maus: Rechteck aufziehen oder klicken; rechte Taste: Ansicht davor.");
}

std::optional<Bildpunkt> ZoomRechteck::Griff(const PunktKnoten& punkt) const {
    return BildortVon(punkt, *umgebung_.AktuelleListe());
}

void ZoomRechteck::Druecken(Bildpunkt ort) {
    if (umgebung_.AktuelleListe() != nullptr) anfang_ = ort;
}

void ZoomRechteck::Ziehen(Bildpunkt ort) {
    if (anfang_) umgebung_.ZeigeVorschau(MarkiereRechteck(*anfang_, ort));
}

void ZoomRechteck::Loslassen(Bildpunkt ort) {
    if (!anfang_) return;
    const Bildpunkt anfang = *anfang_;
    Abbrechen();
    if (std::max(std::llabs(ort.x - anfang.x), std::llabs(ort.y - anfang.y)) <= kZittern) {
        umgebung_.ZoomeUm(ort);
    } else {
        umgebung_.ZoomeAuf(anfang, ort);
    }
}

void ZoomRechteck::Abbrechen() {
    anfang_.reset();
    umgebung_.ZeigeVorschau({});
}

}  // namespace zrw
