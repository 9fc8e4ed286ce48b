#include "ui/werkzeuge/Markierung.h"

#include <algorithm>
#include <utility>

#include "model/Bildorte.h"
#include "output/Abschneiden.h"

namespace zrw {
namespace {

constexpr std::int32_t kBreite = 3;
constexpr std::int32_t kRadius = 9;
constexpr std::int32_t kMarkierrand = 2;

Stiftwechsel Markierstift(Zeichenflaeche& f, std::int32_t breite) {
    return {f, {kMarkierfarbe, breite, Strichart::Voll}, {kWeiss, true}};
}

}  // namespace

Vorschau MarkierePunkt(Bildpunkt ort) {
    return [ort](Zeichner& /*z*/, Zeichenflaeche& f) {
        if (!InReichweite(ort, kRadius, f.Sichtbar())) return;
        const auto m = Aufflaeche(ort);
        const auto stift = Markierstift(f, kBreite);
        f.Ellipse({m.x - kRadius, m.y - kRadius, m.x + kRadius, m.y + kRadius});
    };
}

Vorschau MarkiereKante(Bildpunkt anfang, Bildpunkt ende) {
    return [=](Zeichner& /*z*/, Zeichenflaeche& f) {
        const auto stift = Markierstift(f, kBreite);
        if (const auto teil = SchneideLinieAb(anfang, ende, f.Sichtbar())) f.Linie(teil->first, teil->second);
    };
}

Vorschau MarkiereText(const Werkzeugumgebung& umgebung, const PunktString* text) {
    if (text == nullptr) return {};
    return [r = umgebung.Textrahmen(*text)](Zeichner& /*z*/, Zeichenflaeche& f) {
        if (!InReichweite({r.links, r.oben}, r.rechts - r.links + kMarkierrand, f.Sichtbar())) return;
        const auto o = Aufflaeche({r.links, r.oben});
        const auto u = Aufflaeche({r.rechts, r.unten});
        const auto stift = Markierstift(f, 1);
        f.ZeichneRechteck({o.x - kMarkierrand, o.y - kMarkierrand, u.x + kMarkierrand, u.y + kMarkierrand});
    };
}

Vorschau MarkiereRechteck(Bildpunkt a, Bildpunkt b) {
    return [=](Zeichner& /*z*/, Zeichenflaeche& f) {
        const auto stift = Markierstift(f, 1);
        const Rechteck s = f.Sichtbar();
        const auto x = [&](std::int64_t v) {
            return static_cast<std::int32_t>(std::clamp<std::int64_t>(v, s.links - 1, s.rechts + 1));
        };
        const auto y = [&](std::int64_t v) {
            return static_cast<std::int32_t>(std::clamp<std::int64_t>(v, s.oben - 1, s.unten + 1));
        };
        f.ZeichneRechteck(
            {x(std::min(a.x, b.x)), y(std::min(a.y, b.y)), x(std::max(a.x, b.x)), y(std::max(a.y, b.y))});
    };
}

Vorschau ZeigeEntwurf(const Kante& kante, Bildpunkt anfang, Bildpunkt ende) {
    return [=](Zeichner& z, Zeichenflaeche& /*f*/) { z.ZeichneKante(kante, anfang, ende, Gang::Zeigen); };
}

Vorschau Zusammen(Vorschau unten, Vorschau oben) {
    if (!unten || !oben) return unten ? unten : oben;
    return [unten = std::move(unten), oben = std::move(oben)](Zeichner& z, Zeichenflaeche& f) {
        unten(z, f);
        oben(z, f);
    };
}

Vorschau MarkiereTreffer(const Liste& netz, const PunktKnoten* punkt) {
    return punkt != nullptr ? MarkierePunkt(BildortVon(*punkt, netz)) : Vorschau();
}

Vorschau MarkiereTreffer(const Liste& netz, const PunktKante* kante) {
    return kante != nullptr ? MarkiereKante(AnfangVon(*kante, netz, netz), EndeVon(*kante, netz, netz))
                            : Vorschau();
}

bool ImBild(const Ansicht& ansicht, Bildpunkt ort) {
    return ort.x >= 0 && ort.y >= 0 && ort.x < ansicht.Weite && ort.y < ansicht.Hoehe;
}

}  // namespace zrw
