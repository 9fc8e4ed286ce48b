// What a page of the PDF surface is drawn with: pens, shapes and texts.
#include <algorithm>
#include <string>

#include "model/Cp1252.h"
#include "output/Pdfflaeche.h"

namespace zrw {
namespace {

constexpr int kPunktstellen = 4;  ///< of lengths in points

/// Distance of the control points of a quarter circle of radius 1: within 0.03 % of the circle.
constexpr double kViertelkreis = 0.5522847498;

}  // namespace

void Pdfflaeche::Paar(double x, double y) {
    SchreibeZahl(x, kPunktstellen);
    SchreibeText(" ");
    SchreibeZahl(y, kPunktstellen);
    SchreibeText(" ");
}

void Pdfflaeche::Farbbefehl(Farbe farbe, std::string_view befehl) {
    for (const std::uint8_t teil : {Rotanteil(farbe), Gruenanteil(farbe), Blauanteil(farbe)}) {
        SchreibeZahl(teil / 255.0, kDotstellen);
        SchreibeText(" ");
    }
    SchreibeText(befehl);
    SchreibeText("\n");
}

void Pdfflaeche::WendeStiftAn() {
    const Stift& neu = AktuellerStift();
    if (stift_ == neu) return;
    if (!stift_ || stift_->farbe != neu.farbe) Farbbefehl(neu.farbe, "RG");
    const double breite = neu.breite * Strich();
    if (!stift_ || stift_->breite != neu.breite) {
        SchreibeZahl(breite, kDotstellen);
        SchreibeText(" w\n");
    }
    // Round ends show lines of no length; dashes have blunt ends, or the gaps would close.
    if (neu.art == Strichart::Voll) {
        SchreibeText("1 J[]0 d\n");
    } else {
        SchreibeText("0 J[");
        SchreibeZahl(kStrichlaenge * neu.breite * Pixel(), kDotstellen);
        SchreibeText(" ");
        SchreibeZahl(kStrichluecke * neu.breite * Pixel(), kDotstellen);
        SchreibeText("]0 d\n");
    }
    stift_ = neu;
}

void Pdfflaeche::WendeFuellungAn(Farbe farbe) {
    if (fuellung_ == farbe) return;
    Farbbefehl(farbe, "rg");
    fuellung_ = farbe;
}

void Pdfflaeche::SchliessePfad() {
    if (!pfad_) return;
    SchreibeText("S\n");
    pfad_ = false;
}

void Pdfflaeche::Linie(Flaechenpunkt von, Flaechenpunkt nach) {
    if (!SiehtStrecke(von, nach)) return;
    if (!pfad_ || stift_ != AktuellerStift() || pfadlinien_ == kLinienJePfad) {
        BeginneForm();
        WendeStiftAn();
        pfad_ = true;
        pfadlinien_ = 0;
    }
    // Dashes begin anew with every line, so only solid ones go on where the last one ended.
    const bool weiter = pfadlinien_ > 0 && stift_->art == Strichart::Voll && pfadende_ == von;
    if (!weiter) {
        Paar(von.x, von.y);
        SchreibeText("m ");
    }
    Paar(nach.x, nach.y);
    SchreibeText("l\n");
    pfadende_ = nach;
    ++pfadlinien_;
}

void Pdfflaeche::BeginneUmriss() {
    BeginneForm();
    WendeStiftAn();
    if (!AktuellerPinsel().leer) WendeFuellungAn(AktuellerPinsel().farbe);
}

void Pdfflaeche::BeendeUmriss() {
    SchreibeText(AktuellerPinsel().leer ? "s\n" : "b\n");
}

void Pdfflaeche::ZeichneRechteck(const Rechteck& r) {
    const std::array<Flaechenpunkt, 4> ecken{
        {{r.links, r.oben}, {r.rechts, r.oben}, {r.rechts, r.unten}, {r.links, r.unten}}};
    Vieleck(ecken);
}

void Pdfflaeche::Vieleck(std::span<const Flaechenpunkt> ecken) {
    if (ecken.empty() || !SiehtRechteck(Umschrieben(ecken))) return;
    BeginneUmriss();
    Eckenzug(ecken);
    BeendeUmriss();
}

void Pdfflaeche::Eckenzug(std::span<const Flaechenpunkt> ecken) {
    for (const Flaechenpunkt& e : ecken) {
        Paar(e.x, e.y);
        SchreibeText(&e == ecken.data() ? "m " : "l ");
    }
}

/// Colour and transparency are put back as they were.
void Pdfflaeche::FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) {
    if (ecken.empty() || !SiehtRechteck(Umschrieben(ecken))) return;
    BeginneForm();
    durchscheinend_.insert(prozent);
    SchreibeText("q /D" + std::to_string(prozent) + " gs\n");
    Farbbefehl(farbe, "rg");
    Eckenzug(ecken);
    SchreibeText("f\nQ\n");
}

void Pdfflaeche::Ellipse(const Rechteck& u) {
    if (!SiehtRechteck(u)) return;
    const auto [mx, my, a, b] = Mass(u);
    BeginneUmriss();
    Paar(mx + a, my);
    SchreibeText("m ");
    // A quarter turn after the other: (c, s) is where it begins, (-s, c) where it ends.
    double c = 1.0;
    double s = 0.0;
    for (int viertel = 0; viertel < 4; ++viertel) {
        Paar(mx + a * (c - kViertelkreis * s), my + b * (s + kViertelkreis * c));
        Paar(mx + a * (kViertelkreis * c - s), my + b * (kViertelkreis * s + c));
        Paar(mx - a * s, my + b * c);
        SchreibeText("c ");
        const double alt = c;
        c = -s;
        s = alt;
    }
    BeendeUmriss();
}

void Pdfflaeche::FuelleRechteck(const Rechteck& r, Farbe farbe) {
    const Rechteck g = Geschnitten(r, Sichtbar());
    if (g.links > g.rechts || g.oben > g.unten) return;
    BeginneForm();
    WendeFuellungAn(farbe);
    Paar(g.links, g.oben);
    Paar(g.rechts - g.links + 1.0, g.unten - g.oben + 1.0);
    SchreibeText("re f\n");
}

void Pdfflaeche::Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) {
    if (!SiehtText(ort, text)) return;
    BeginneForm();
    WendeFuellungAn(farbe);
    SchreibeTextobjekt(ort, text);
}

/// Strokes the outlines first. Pens are put back as they were: the stroke is no pen of the plan.
void Pdfflaeche::TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                             std::int32_t rand) {
    if (!SiehtText(ort, text)) return;
    BeginneForm();
    SchreibeText("q 1 Tr []0 d ");
    SchreibeZahl(2.0 * rand, kMatrixstellen);
    SchreibeText(" w\n");
    Farbbefehl(randfarbe, "RG");
    SchreibeTextobjekt(ort, text);
    SchreibeText("Q\n");
    Text(ort, text, farbe);
}

void Pdfflaeche::SchreibeTextobjekt(Flaechenpunkt ort, std::string_view text) {
    // Upright although y points downwards here.
    SchreibeText("BT/F ");
    SchreibeZahl(Schrift(), kMatrixstellen);
    SchreibeText(" Tf 1 0 0 -1 ");
    Paar(ort.x, ort.y + Grundlinie());
    SchreibeText("Tm(");
    for (const char& c : text) {
        if (IstSteuerzeichen(c)) continue;
        zeichen_.set(static_cast<unsigned char>(c));
        if (c == '(' || c == ')' || c == '\\') SchreibeText("\\");
        SchreibeText({&c, 1});
    }
    SchreibeText(")Tj ET\n");
}

}  // namespace zrw
