#include "ui/bild/Bildpflege.h"

#include <cstdlib>

#include "model/Bildorte.h"
#include "ui/fenster/Schalter.h"

namespace zrw {
namespace {

/// More are drawn faster with all others.
constexpr std::size_t kMeisteFiguren = 5000;

}  // namespace

void Bildpflege::ZeichneNeu(const Bildvorlage& v) {
    ZeichneBild(v, zeichner_);
    gezeichnet_ = v.ansicht;
    gueltig_ = true;
}

void Bildpflege::ZeichneAusschnitt(const Bildvorlage& v, const Rechteck& r) {
    if (Leer(r)) return;
    flaeche_.SetzeAusschnitt(r);
    ZeichneBild(v, zeichner_);
    flaeche_.SetzeAusschnitt(flaeche_.Sichtbar());
}

// --- Panning ----------------------------------------------------------------------------------------------

bool Bildpflege::Verschiebbar(const Bildvorlage& v) const {
    const Darstellung& d = v.darstellung;
    return zustand_.Abkuerzungen && gueltig_ && !EinerAn(d, kBewegtSichNicht) && !d.LGGenOn &&
           zeichner_.NurPixel();
}

void Bildpflege::VerschiebeBild(const Bildvorlage& v, Bildpunkt weg) {
    const Rechteck bild = flaeche_.Sichtbar();
    if (!Verschiebbar(v) || std::llabs(weg.x) >= bild.rechts / 2 || std::llabs(weg.y) >= bild.unten / 2 ||
        !BewegtSichGleich(v.netz, gezeichnet_, v.ansicht, weg))
        return ZeichneNeu(v);
    gezeichnet_ = v.ansicht;
    const auto dx = static_cast<std::int32_t>(weg.x);
    const auto dy = static_cast<std::int32_t>(weg.y);
    flaeche_.VerschiebeBild(dx, dy);
    Rechteck rest = bild;
    if (dy != 0) {
        ZeichneAusschnitt(v, {bild.links, dy > 0 ? bild.oben : bild.unten + dy + 1, bild.rechts,
                              dy > 0 ? bild.oben + dy - 1 : bild.unten});
        (dy > 0 ? rest.oben : rest.unten) += dy;
    }
    if (dx != 0)
        ZeichneAusschnitt(v, {dx > 0 ? rest.links : rest.rechts + dx + 1, rest.oben,
                              dx > 0 ? rest.links + dx - 1 : rest.rechts, rest.unten});
}

// --- Changes ----------------------------------------------------------------------------------------------

/// Whether a change shows only at its figures. The legend tells the time of its last drawing, results stand
/// beside their points, and labels of one text or one number speak for each other.
bool Bildpflege::Oertlich(const Bildvorlage& v) const {
    return zustand_.Abkuerzungen && gueltig_ && !v.darstellung.ShowLegende &&
           !v.darstellung.ZeigtErgebnisse() && v.netz.TexteEindeutig() && v.netz.NummernEindeutig() &&
           gezeichnet_.Lage() == v.ansicht.Lage();
}

Rechteck Bildpflege::Umfang(const Bildvorlage& v, const Figurenmenge& figuren) const {
    Rechteck r = kKeinRechteck;
    for (const PunktKnoten* p : figuren.punkte) {
        if (v.netz.EnthaeltPunkt(*p)) r = Vereint(r, zeichner_.Punktumfang(BildortVon(*p, v.ansicht)));
    }
    for (const PunktKante* k : figuren.kanten) {
        if (v.netz.EnthaeltKante(*k))
            r = Vereint(
                r, zeichner_.Kantenumfang(AnfangVon(*k, v.netz, v.ansicht), EndeVon(*k, v.netz, v.ansicht)));
    }
    for (const PunktString* t : figuren.texte)
        r = Vereint(r, zeichner_.Textumfang(*t->Item, BildortVon(*t, v.netz, v.ansicht)));
    return r;
}

void Bildpflege::Vorher(const Bildvorlage& v, const Figurenmenge& figuren) {
    oertlich_ = Oertlich(v) && figuren.Anzahl() <= kMeisteFiguren;
    if (oertlich_) vorher_ = Umfang(v, figuren);
}

void Bildpflege::Nachher(const Bildvorlage& v, const Figurenmenge& figuren) {
    if (!oertlich_ || !Oertlich(v) || figuren.Anzahl() > kMeisteFiguren) return ZeichneNeu(v);
    const Rechteck nachher = Geschnitten(Umfang(v, figuren), flaeche_.Sichtbar());
    const Rechteck vorher = Geschnitten(vorher_, flaeche_.Sichtbar());
    if (Leer(Geschnitten(vorher, nachher))) {
        ZeichneAusschnitt(v, vorher);
        ZeichneAusschnitt(v, nachher);
    } else {
        ZeichneAusschnitt(v, Vereint(vorher, nachher));
    }
}

}  // namespace zrw
