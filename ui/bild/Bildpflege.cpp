#include "ui/bild/Bildpflege.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdlib>

#include "model/Bildorte.h"
#include "ui/fenster/Schalter.h"

namespace zrw {
namespace {

/// More are drawn faster with all others.
constexpr std::size_t kMeisteFiguren = 5000;
/// Smooth edges take at most so many times as long as plain ones.
constexpr double kGlattZuEckig = 4.0;
/// Making parts smooth gives way to the user after so long [ms].
constexpr double kTeilzeit = 4.0;
// Parts of so many pixels, in bands of so many rows: across all of a dense picture, a few rows would be drawn
// with all that reaches into them from above and below.
constexpr double kErsterTeil = 8192;
constexpr double kKleinsterTeil = 2048;
constexpr double kBandhoehe = 64;

/// Pixels of a rectangle.
double Inhalt(const Rechteck& r) {
    return static_cast<double>(r.rechts - r.links + 1) * static_cast<double>(r.unten - r.oben + 1);
}

}  // namespace

void Bildpflege::ZeichneNeu(const Bildvorlage& v) {
    rau_ = band_ = kKeinRechteck;
    pixel_ = kErsterTeil;
    jePixel_ = 0;
    ZeichneAusschnitt(v, flaeche_.Sichtbar());
    gezeichnet_ = v.ansicht;
    gueltig_ = true;
}

void Bildpflege::ZeichneAusschnitt(const Bildvorlage& v, const Rechteck& r) {
    if (Leer(r)) return;
    bool glatt = glaetten_ && SchnellGlatt(r);
    const double zeit = ZeichneBereich(v, r, glatt);
    if (!glaetten_ || glatt) return;
    glatt = !glattzeit_ && zeit / Anteil(r) * kGlattZuEckig <= bildzeit_;
    if (glatt) {
        ZeichneBereich(v, r, true);
    } else {
        rau_ = Vereint(rau_, r);
        band_ = kKeinRechteck;
    }
}

/// @return how long it took [ms]
double Bildpflege::ZeichneBereich(const Bildvorlage& v, const Rechteck& r, bool glatt) {
    const auto anfang = std::chrono::steady_clock::now();
    flaeche_.SetzeGlatt(glatt);
    flaeche_.SetzeAusschnitt(r);
    ZeichneBild(v, zeichner_);
    flaeche_.SetzeAusschnitt(flaeche_.Sichtbar());
    flaeche_.SchliesseAb();
    const std::chrono::duration<double, std::milli> zeit = std::chrono::steady_clock::now() - anfang;
    if (glatt) MerkeGlattzeit(zeit.count(), Anteil(r));
    return zeit.count();
}

/// Rows that are made smooth one after the other count together: alone they are too few to tell from.
void Bildpflege::MerkeGlattzeit(double zeit, double anteil) {
    constexpr double kGenug = 0.25;  ///< of the picture
    zeitsumme_ += zeit;
    anteilsumme_ += anteil;
    if (anteilsumme_ < kGenug) return;
    glattzeit_ = zeitsumme_ / anteilsumme_;
    zeitsumme_ = anteilsumme_ = 0;
}

double Bildpflege::Anteil(const Rechteck& r) const {
    return Inhalt(r) / Inhalt(flaeche_.Sichtbar());
}

/// Whether a part can be drawn smooth while the user waits.
bool Bildpflege::SchnellGlatt(const Rechteck& r) const {
    return glattzeit_ && *glattzeit_ * Anteil(r) <= bildzeit_;
}

void Bildpflege::GlaetteZeilen(const Bildvorlage& v) {
    if (!Rau()) return;
    if (Leer(band_)) {
        const double hoehe = std::max(kBandhoehe, pixel_ / (rau_.rechts - rau_.links + 1));
        band_ = rau_;
        band_.unten =
            static_cast<std::int32_t>(std::min<double>(rau_.unten, rau_.oben + std::ceil(hoehe) - 1));
    }
    Rechteck teil = band_;
    const double weite = std::ceil(pixel_ / (band_.unten - band_.oben + 1));
    teil.rechts = static_cast<std::int32_t>(std::min<double>(band_.rechts, band_.links + weite - 1));
    const double zeit = ZeichneBereich(v, teil, true);
    MerkeTeilzeit(zeit, Inhalt(teil));
    band_.links = teil.rechts + 1;
    if (Leer(band_)) rau_.oben = band_.unten + 1;
}

/// The slowest part counts, and is forgotten slowly: beside dense parts of a network lie empty ones.
void Bildpflege::MerkeTeilzeit(double zeit, double inhalt) {
    constexpr double kVergessen = 0.99;
    if (inhalt < pixel_ / 2) return;  // mostly what reaches into it
    jePixel_ = std::max(zeit / inhalt, jePixel_ * kVergessen);
    pixel_ = std::clamp(kTeilzeit / std::max(jePixel_, 1e-9), kKleinsterTeil, 2 * pixel_);
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
    band_ = kKeinRechteck;
    if (Rau()) rau_ = Geschnitten({rau_.links + dx, rau_.oben + dy, rau_.rechts + dx, rau_.unten + dy}, bild);
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

/// Whether a change shows only at its figures. The legend tells the time of its last drawing, the key what
/// figures there are, results stand
/// beside their points, and labels of one text or one number speak for each other.
bool Bildpflege::Oertlich(const Bildvorlage& v) const {
    return zustand_.Abkuerzungen && gueltig_ && !v.darstellung.ShowLegende &&
           !v.darstellung.ZeigtErklaerung() && !v.darstellung.ZeigtErgebnisse() && v.netz.TexteEindeutig() &&
           v.netz.NummernEindeutig() && gezeichnet_.Lage() == v.ansicht.Lage();
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
