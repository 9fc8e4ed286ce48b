#include "output/Svgflaeche.h"

#include <algorithm>
#include <string>

#include "model/Cp1252.h"
#include "output/Helvetica.h"

namespace zrw {
namespace {

constexpr int kSvgstellen = 3;

/// Pens are never thinner than a dot: paper has its own width, the screen has one pixel.
double Stiftmass(double aufloesung) {
    return std::max(1.0, kStrichbreite / kMillimeterJeZoll * aufloesung);
}

bool Gestrichelt(const Stift& stift) {
    return stift.art == Strichart::Gestrichelt;
}

}  // namespace

Svgflaeche::Svgflaeche(std::unique_ptr<Dateischreiber> datei, const Druckseite& seite, std::string_view titel)
    : Vektorflaeche(std::move(datei), seite, Stiftmass(seite.aufloesung), kHelvetica) {
    Kopf(titel);
}

void Svgflaeche::Kopf(std::string_view titel) {
    const Druckseite& s = Seite();
    const bool papier = s.aufloesung != kBildaufloesung;
    const auto kante = [&](std::string_view name, std::int32_t dots) {
        SchreibeText(" ");
        SchreibeText(name);
        SchreibeText("=\"");
        SchreibeZahl(papier ? dots / s.aufloesung * kMillimeterJeZoll : dots, kSvgstellen);
        SchreibeText(papier ? "mm\"" : "\"");
    };
    const auto blatt = [&] {
        Attribut("width", std::int64_t{s.weite});
        Attribut("height", std::int64_t{s.hoehe});
    };
    SchreibeText("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"");
    kante("width", s.weite);
    kante("height", s.hoehe);
    SchreibeText(" viewBox=\"-0.5 -0.5 ");
    SchreibeZahl(std::int64_t{s.weite});
    SchreibeText(" ");
    SchreibeZahl(std::int64_t{s.hoehe});
    SchreibeText("\"\n font-family=\"Arial, Helvetica, sans-serif\"");
    Attribut("font-size", Schrift());
    SchreibeText(" xml:space=\"preserve\"\n fill=\"none\"");
    Attribut("stroke-width", Strich());
    // Both ends of a line are drawn. Dashes have blunt ends, or the gaps would close.
    SchreibeText(" stroke-linecap=\"square\" stroke-linejoin=\"round\">\n<title>");
    Zeichen(titel);
    SchreibeText("</title>\n<clipPath id=\"BLATT\"><rect x=\"-0.5\" y=\"-0.5\"");
    blatt();
    SchreibeText("/></clipPath>\n");
}

void Svgflaeche::BeendeDatei() {
    EbeneGewechselt(Ebene::Grund);
    SchreibeText("</svg>\n");
    UebernimmDatei();
}

// --- Groups and paths -------------------------------------------------------------------------------------

/// The next group begins with its first figure: layers on which nothing is drawn leave none.
void Svgflaeche::EbeneGewechselt(Ebene /*ebene*/) {
    SchliessePfad();
    if (offeneGruppe_) SchreibeText("</g>\n");
    offeneGruppe_ = false;
}

void Svgflaeche::BeginneElement() {
    SchliessePfad();
    const Ebene ebene = AktuelleEbene();
    if (offeneGruppe_ || ebene == Ebene::Grund) return;
    offeneGruppe_ = true;
    const int nummer = ++gruppen_[static_cast<std::size_t>(ebene)];
    SchreibeText("<g id=\"");
    SchreibeText(Ebenenname(ebene));
    if (nummer > 1) {
        SchreibeText("_");
        SchreibeZahl(std::int64_t{nummer});
    }
    SchreibeText("\" class=\"");
    SchreibeText(Ebenenname(ebene));
    SchreibeText("\" clip-path=\"url(#BLATT)\">\n");
}

void Svgflaeche::SchliessePfad() {
    if (!pfad_) return;
    SchreibeText("\"/>\n");
    pfad_.reset();
}

void Svgflaeche::BeginnePfad() {
    BeginneElement();
    SchreibeText("<path");
    Stiftattribute();
    SchreibeText(" d=\"");
    pfad_ = AktuellerStift();
    pfadlinien_ = 0;
}

void Svgflaeche::Linie(Flaechenpunkt von, Flaechenpunkt nach) {
    if (!SiehtStrecke(von, nach)) return;
    if (pfad_ != AktuellerStift() || pfadlinien_ == kLinienJePfad) BeginnePfad();
    // Dashes begin anew with every line, so only solid ones go on where the last one ended.
    const bool weiter = pfadlinien_ > 0 && !Gestrichelt(*pfad_) && pfadende_ == von;
    const auto paar = [this](std::string_view befehl, Flaechenpunkt p) {
        SchreibeText(befehl);
        SchreibeZahl(std::int64_t{p.x});
        SchreibeText(" ");
        SchreibeZahl(std::int64_t{p.y});
    };
    if (!weiter) paar("M", von);
    paar("L", nach);
    pfadende_ = nach;
    ++pfadlinien_;
}

// --- Shapes and texts -------------------------------------------------------------------------------------

void Svgflaeche::Attribut(std::string_view name, double wert) {
    SchreibeText(" ");
    SchreibeText(name);
    SchreibeText("=\"");
    SchreibeZahl(wert, kSvgstellen);
    SchreibeText("\"");
}

void Svgflaeche::Attribut(std::string_view name, std::int64_t wert) {
    SchreibeText(" ");
    SchreibeText(name);
    SchreibeText("=\"");
    SchreibeZahl(wert);
    SchreibeText("\"");
}

void Svgflaeche::Farbattribut(std::string_view name, Farbe farbe) {
    constexpr std::string_view kZiffern = "0123456789abcdef";
    SchreibeText(" ");
    SchreibeText(name);
    SchreibeText("=\"#");
    for (const std::uint8_t teil : {Rotanteil(farbe), Gruenanteil(farbe), Blauanteil(farbe)}) {
        SchreibeText(kZiffern.substr(teil >> 4U, 1));
        SchreibeText(kZiffern.substr(teil & 15U, 1));
    }
    SchreibeText("\"");
}

void Svgflaeche::Stiftattribute() {
    const Stift& stift = AktuellerStift();
    const double breite = stift.breite * Strich();
    Farbattribut("stroke", stift.farbe);
    if (stift.breite != 1) Attribut("stroke-width", breite);
    if (!Gestrichelt(stift)) return;
    SchreibeText(" stroke-linecap=\"butt\" stroke-dasharray=\"");
    SchreibeZahl(kStrichlaenge * stift.breite * Pixel(), kSvgstellen);
    SchreibeText(" ");
    SchreibeZahl(kStrichluecke * stift.breite * Pixel(), kSvgstellen);
    SchreibeText("\"");
}

void Svgflaeche::Formende() {
    Stiftattribute();
    if (!AktuellerPinsel().leer) Farbattribut("fill", AktuellerPinsel().farbe);
    SchreibeText("/>\n");
}

void Svgflaeche::ZeichneRechteck(const Rechteck& r) {
    if (!SiehtRechteck(r)) return;
    BeginneElement();
    SchreibeText("<rect");
    Attribut("x", std::int64_t{r.links});
    Attribut("y", std::int64_t{r.oben});
    Attribut("width", std::int64_t{r.rechts} - r.links);
    Attribut("height", std::int64_t{r.unten} - r.oben);
    Formende();
}

void Svgflaeche::Ellipse(const Rechteck& u) {
    if (!SiehtRechteck(u)) return;
    BeginneElement();
    SchreibeText("<ellipse");
    const Ellipsenmass m = Mass(u);
    Attribut("cx", m.mx);
    Attribut("cy", m.my);
    Attribut("rx", m.a);
    Attribut("ry", m.b);
    Formende();
}

void Svgflaeche::Eckenliste(std::span<const Flaechenpunkt> ecken) {
    SchreibeText("<polygon points=\"");
    for (const Flaechenpunkt& e : ecken) {
        if (&e != ecken.data()) SchreibeText(" ");
        SchreibeZahl(std::int64_t{e.x});
        SchreibeText(",");
        SchreibeZahl(std::int64_t{e.y});
    }
    SchreibeText("\"");
}

void Svgflaeche::Vieleck(std::span<const Flaechenpunkt> ecken) {
    if (ecken.empty() || !SiehtRechteck(Umschrieben(ecken))) return;
    BeginneElement();
    Eckenliste(ecken);
    Formende();
}

void Svgflaeche::FuelleDurchscheinend(std::span<const Flaechenpunkt> ecken, Farbe farbe, int prozent) {
    if (ecken.empty() || !SiehtRechteck(Umschrieben(ecken))) return;
    BeginneElement();
    Eckenliste(ecken);
    Farbattribut("fill", farbe);
    Attribut("fill-opacity", prozent / 100.0);
    SchreibeText("/>\n");
}

void Svgflaeche::FuelleRechteck(const Rechteck& r, Farbe farbe) {
    const Rechteck g = Geschnitten(r, Sichtbar());
    if (g.links > g.rechts || g.oben > g.unten) return;
    BeginneElement();
    SchreibeText("<rect");
    Attribut("x", g.links - 0.5);
    Attribut("y", g.oben - 0.5);
    Attribut("width", std::int64_t{g.rechts} - g.links + 1);
    Attribut("height", std::int64_t{g.unten} - g.oben + 1);
    Farbattribut("fill", farbe);
    SchreibeText("/>\n");
}

void Svgflaeche::Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) {
    if (!SiehtText(ort, text)) return;
    BeginneText(ort);
    Farbattribut("fill", farbe);
    BeendeText(text);
}

/// An element of its own: not every viewer knows how to paint strokes below fillings.
void Svgflaeche::TextMitRand(Flaechenpunkt ort, std::string_view text, Farbe farbe, Farbe randfarbe,
                             std::int32_t rand) {
    if (!SiehtText(ort, text)) return;
    BeginneText(ort);
    Farbattribut("stroke", randfarbe);
    Attribut("stroke-width", 2.0 * rand);
    BeendeText(text);
    Text(ort, text, farbe);
}

void Svgflaeche::BeginneText(Flaechenpunkt ort) {
    BeginneElement();
    SchreibeText("<text");
    // Lines run through the middles of pixels, texts stand at their edges.
    Attribut("x", ort.x - 0.5);
    Attribut("y", static_cast<double>(ort.y) + Grundlinie() - 0.5);
}

void Svgflaeche::BeendeText(std::string_view text) {
    SchreibeText(">");
    Zeichen(text);
    SchreibeText("</text>\n");
}

/// Text of the network as character data.
void Svgflaeche::Zeichen(std::string_view text) {
    for (const char& c : text) {
        if (IstSteuerzeichen(c)) continue;
        switch (c) {
            case '&':
                SchreibeText("&amp;");
                break;
            case '<':
                SchreibeText("&lt;");
                break;
            case '>':
                SchreibeText("&gt;");
                break;
            default:
                SchreibeText(Cp1252NachUtf8({&c, 1}));
        }
    }
}

}  // namespace zrw
