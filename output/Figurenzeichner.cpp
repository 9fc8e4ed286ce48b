#include "output/Figurenzeichner.h"

#include <algorithm>
#include <array>

#include "model/Ganzzahl.h"
#include "output/Abschneiden.h"

namespace zrw {
namespace {

/// Characters that short numbers leave out at the front.
constexpr std::size_t kKurzeStelle = 4;

/// Square round a position, reaching `r` dots to each side.
Rechteck Umkreis(Flaechenpunkt m, std::int32_t r) {
    return {m.x - r, m.y - r, m.x + r, m.y + r};
}

void Kreuz(Zeichenflaeche& f, Flaechenpunkt m, std::int32_t r) {
    f.Linie({m.x - r, m.y}, {m.x + r, m.y});
    f.Linie({m.x, m.y - r}, {m.x, m.y + r});
}

void Raute(Zeichenflaeche& f, Flaechenpunkt m, std::int32_t quer, std::int32_t laengs) {
    f.Vieleck(std::array<Flaechenpunkt, 4>{
        {{m.x, m.y - laengs}, {m.x + quer, m.y}, {m.x, m.y + laengs}, {m.x - quer, m.y}}});
}

void Dreieck(Zeichenflaeche& f, Flaechenpunkt m, std::int32_t r) {
    f.Vieleck(std::array<Flaechenpunkt, 3>{{{m.x, m.y - r}, {m.x + r, m.y + r}, {m.x - r, m.y + r}}});
}

}  // namespace

void Figurenzeichner::ClearPicture(std::int32_t weite, std::int32_t hoehe) {
    if (zustand_.flaeche != nullptr) zustand_.flaeche->Fuelle({0, 0, weite, hoehe}, kWeiss);
}

void Figurenzeichner::ZeichnePunkt(const Punkt& punkt, Gang gang) {
    if (zustand_.flaeche == nullptr) return;
    Symbol(punkt.PktTyp, punkt.PktAttr, gang == Gang::Wischen ? kWeiss : punkt.Farbe, punkt.Position());
}

void Figurenzeichner::Symbol(PunktTyp typ, PunktAttr attr, Farbe farbe, Bildpunkt mitte) {
    Zeichenflaeche& f = *zustand_.flaeche;
    const Einstellungen& e = einstellungen_;
    const std::int32_t groesste = std::max(
        {e.PTSize, e.HPSize, e.Kreuzgroesse, e.Quadratgroesse, e.RauteQuer, e.RauteLaengs, e.Dreieckgroesse});
    if (!InReichweite(mitte, groesste + 1, f.Sichtbar())) return;
    const Flaechenpunkt m = Aufflaeche(mitte);
    const Stiftwechsel wechsel(f, {farbe, 1, Strichart::Voll},
                               {attr == PunktAttr::Fu ? farbe : kWeiss, false});
    switch (typ) {
        case PunktTyp::Pkt:
            f.Ellipse(Umkreis(m, e.HPSize));
            break;
        case PunktTyp::Krei:
            f.Ellipse(Umkreis(m, e.PTSize));
            break;
        case PunktTyp::Kreu:
            Kreuz(f, m, e.Kreuzgroesse);
            break;
        case PunktTyp::Qua:
            f.ZeichneRechteck(Umkreis(m, e.Quadratgroesse));
            break;
        case PunktTyp::Rau:
            Raute(f, m, e.RauteQuer, e.RauteLaengs);
            break;
        case PunktTyp::Drei:
            Dreieck(f, m, e.Dreieckgroesse);
            break;
    }
}

void Figurenzeichner::ZeichneKante(const Kante& kante, Gang gang) {
    if (zustand_.flaeche == nullptr) return;
    const Farbe eigene = Kantenfarbe(kante.KAttr, kante.LAttr, kante.Farbe);
    const Farbe farbe = gang == Gang::Wischen ? kWeiss : eigene;
    const Kantenbild bild(kante.KAttr, kante.LAttr, kante.Position(), kante.Ende(), einstellungen_);
    for (const Zug& zug : bild.Zuege())
        Zeichne(zug, farbe);
}

void Figurenzeichner::Zeichne(const Zug& zug, Farbe farbe) {
    Zeichenflaeche& f = *zustand_.flaeche;
    for (const Strich& strich : Striche(zug.form)) {
        const auto teil = Abschneiden(zug.punkte[strich.von], zug.punkte[strich.nach], f.Sichtbar());
        if (!teil) continue;
        const Stiftwechsel wechsel(
            f, {farbe, 1, strich.gestrichelt ? Strichart::Gestrichelt : Strichart::Voll}, {farbe, false});
        f.Linie(teil->first, teil->second);
    }
}

void Figurenzeichner::ZeichneText(const PktText& text, Gang gang) {
    if (zustand_.flaeche == nullptr) return;
    Zeichenflaeche& f = *zustand_.flaeche;
    Bildpunkt ort = text.Textort();
    if (zustand_.modus == Zeichenmodus::Drucker) {
        const auto dots = [&](std::int64_t v) {
            return RundeZuInt64(static_cast<double>(v) * zustand_.Geraetefaktor);
        };
        ort = {Summe(text.XO, dots(text.XBiO)), Summe(text.YO, dots(text.YBiO))};
    }
    std::string_view zeichen = text.Aus.Text();
    if (zustand_.KurzeNummern) zeichen.remove_prefix(std::min(zeichen.size(), kKurzeStelle));
    // No character is wider than twice the line height.
    const std::int64_t rand =
        std::int64_t{f.Texthoehe()} * 2 * static_cast<std::int64_t>(PunktNummernTyp::kLaenge);
    if (zeichen.empty() || !InReichweite(ort, rand, f.Sichtbar())) return;
    f.Text(Aufflaeche(ort), zeichen, gang == Gang::Wischen ? kWeiss : text.Col);
}

}  // namespace zrw
