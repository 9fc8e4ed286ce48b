#include "ui/Bildpflege.h"

#include <cstdlib>

#include "model/Bildorte.h"

namespace zrw {
namespace {

/// More are drawn faster with all others.
constexpr std::size_t kMeisteFiguren = 5000;

}  // namespace

void Bildpflege::ZeichneNeu(Liste& liste) {
    liste.ShowPicture(zeichner_);
    zeichner_.VergissGewischtes();
    gezeichnet_ = liste;
    gueltig_ = true;
}

void Bildpflege::ZeichneAusschnitt(Liste& liste, const Rechteck& r) {
    if (Leer(r)) return;
    flaeche_.SetzeAusschnitt(r);
    liste.ShowPicture(zeichner_);
    flaeche_.SetzeAusschnitt(flaeche_.Sichtbar());
}

// --- Panning ----------------------------------------------------------------------------------------------

bool Bildpflege::Verschiebbar(const Liste& liste) const {
    return zustand_.Abkuerzungen && gueltig_ && !liste.ShowLegende && !liste.ShowGitter && !liste.ShowKMQ &&
           !liste.ZeigtErgebnisse() && Leer(zeichner_.Gewischt()) && zeichner_.NurPixel();
}

void Bildpflege::Verschiebe(Liste& liste, Bildpunkt weg) {
    const Rechteck bild = flaeche_.Sichtbar();
    if (!Verschiebbar(liste) || std::llabs(weg.x) >= bild.rechts / 2 || std::llabs(weg.y) >= bild.unten / 2 ||
        !BewegtSichGleich(liste, gezeichnet_, liste, weg))
        return ZeichneNeu(liste);
    gezeichnet_ = liste;
    const auto dx = static_cast<std::int32_t>(weg.x);
    const auto dy = static_cast<std::int32_t>(weg.y);
    flaeche_.Verschiebe(dx, dy);
    Rechteck rest = bild;
    if (dy != 0) {
        ZeichneAusschnitt(liste, {bild.links, dy > 0 ? bild.oben : bild.unten + dy + 1, bild.rechts,
                                  dy > 0 ? bild.oben + dy - 1 : bild.unten});
        (dy > 0 ? rest.oben : rest.unten) += dy;
    }
    if (dx != 0)
        ZeichneAusschnitt(liste, {dx > 0 ? rest.links : rest.rechts + dx + 1, rest.oben,
                                  dx > 0 ? rest.links + dx - 1 : rest.rechts, rest.unten});
}

// --- Changes ----------------------------------------------------------------------------------------------

/// Whether a change shows only at its figures. The legend tells the time of its last drawing, results stand
/// beside their points, and labels of one text or one number speak for each other.
bool Bildpflege::Oertlich(const Liste& liste) const {
    return zustand_.Abkuerzungen && gueltig_ && !liste.ShowLegende && !liste.ZeigtErgebnisse() &&
           liste.TexteEindeutig() && liste.NummernEindeutig() && gezeichnet_.Lage() == liste.Lage();
}

Rechteck Bildpflege::Umfang(const Liste& liste, const Figurenmenge& figuren) const {
    Rechteck r = kKeinRechteck;
    for (const PunktKnoten* p : figuren.punkte) {
        if (liste.Enthaelt(*p)) r = Vereint(r, zeichner_.Punktumfang(BildortVon(*p, liste)));
    }
    for (const PunktKante* k : figuren.kanten) {
        if (liste.Enthaelt(*k))
            r = Vereint(r, zeichner_.Kantenumfang(AnfangVon(*k, liste, liste), EndeVon(*k, liste, liste)));
    }
    for (const PunktString* t : figuren.texte)
        r = Vereint(r, zeichner_.Textumfang(*t->Item, BildortVon(*t, liste, liste)));
    return r;
}

void Bildpflege::Heile(Liste& liste) {
    Vorher(liste, {});
    Nachher(liste, {});
}

void Bildpflege::Vorher(Liste& liste, const Figurenmenge& figuren) {
    oertlich_ = Oertlich(liste) && figuren.Anzahl() <= kMeisteFiguren;
    if (oertlich_) vorher_ = Vereint(Umfang(liste, figuren), zeichner_.Gewischt());
}

void Bildpflege::Nachher(Liste& liste, const Figurenmenge& figuren) {
    if (!oertlich_ || !Oertlich(liste) || figuren.Anzahl() > kMeisteFiguren) return ZeichneNeu(liste);
    const Rechteck nachher = Geschnitten(Umfang(liste, figuren), flaeche_.Sichtbar());
    const Rechteck vorher = Geschnitten(vorher_, flaeche_.Sichtbar());
    if (Leer(Geschnitten(vorher, nachher))) {
        ZeichneAusschnitt(liste, vorher);
        ZeichneAusschnitt(liste, nachher);
    } else {
        ZeichneAusschnitt(liste, Vereint(vorher, nachher));
    }
    zeichner_.VergissGewischtes();
}

}  // namespace zrw
