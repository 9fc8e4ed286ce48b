#include "output/Svgflaeche.h"

#include <algorithm>
#include <string>

#include "model/Cp1252.h"
#include "output/Helvetica.h"

namespace zrw {
namespace {

constexpr int kStellen = 3;

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
        Schreibe(" ");
        Schreibe(name);
        Schreibe("=\"");
        Schreibe(papier ? dots / s.aufloesung * kMillimeterJeZoll : dots, kStellen);
        Schreibe(papier ? "mm\"" : "\"");
    };
    const auto blatt = [&] {
        Attribut("width", std::int64_t{s.weite});
        Attribut("height", std::int64_t{s.hoehe});
    };
    Schreibe("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\"");
    kante("width", s.weite);
    kante("height", s.hoehe);
    Schreibe(" viewBox=\"-0.5 -0.5 ");
    Schreibe(std::int64_t{s.weite});
    Schreibe(" ");
    Schreibe(std::int64_t{s.hoehe});
    Schreibe("\"\n font-family=\"Arial, Helvetica, sans-serif\"");
    Attribut("font-size", Schrift());
    Schreibe(" xml:space=\"preserve\"\n fill=\"none\"");
    Attribut("stroke-width", Strich());
    // Both ends of a line are drawn. Dashes have blunt ends, or the gaps would close.
    Schreibe(" stroke-linecap=\"square\" stroke-linejoin=\"round\">\n<title>");
    Zeichen(titel);
    Schreibe("</title>\n<clipPath id=\"BLATT\"><rect x=\"-0.5\" y=\"-0.5\"");
    blatt();
    Schreibe("/></clipPath>\n");
}

void Svgflaeche::Beende() {
    EbeneGewechselt(Ebene::Grund);
    Schreibe("</svg>\n");
    UebernimmDatei();
}

// --- Groups and paths -------------------------------------------------------------------------------------

/// The next group begins with its first figure: layers on which nothing is drawn leave none.
void Svgflaeche::EbeneGewechselt(Ebene /*ebene*/) {
    SchliessePfad();
    if (offeneGruppe_) Schreibe("</g>\n");
    offeneGruppe_ = false;
}

void Svgflaeche::BeginneElement() {
    SchliessePfad();
    const Ebene ebene = AktuelleEbene();
    if (offeneGruppe_ || ebene == Ebene::Grund) return;
    offeneGruppe_ = true;
    const int nummer = ++gruppen_[static_cast<std::size_t>(ebene)];
    Schreibe("<g id=\"");
    Schreibe(Ebenenname(ebene));
    if (nummer > 1) {
        Schreibe("_");
        Schreibe(std::int64_t{nummer});
    }
    Schreibe("\" class=\"");
    Schreibe(Ebenenname(ebene));
    Schreibe("\" clip-path=\"url(#BLATT)\">\n");
}

void Svgflaeche::SchliessePfad() {
    if (!pfad_) return;
    Schreibe("\"/>\n");
    pfad_.reset();
}

void Svgflaeche::BeginnePfad() {
    BeginneElement();
    Schreibe("<path");
    Stiftattribute();
    Schreibe(" d=\"");
    pfad_ = AktuellerStift();
    pfadlinien_ = 0;
}

void Svgflaeche::Linie(Flaechenpunkt von, Flaechenpunkt nach) {
    if (!Sieht(von, nach)) return;
    if (pfad_ != AktuellerStift() || pfadlinien_ == kLinienJePfad) BeginnePfad();
    // Dashes begin anew with every line, so only solid ones go on where the last one ended.
    const bool weiter = pfadlinien_ > 0 && !Gestrichelt(*pfad_) && pfadende_ == von;
    const auto paar = [this](std::string_view befehl, Flaechenpunkt p) {
        Schreibe(befehl);
        Schreibe(std::int64_t{p.x});
        Schreibe(" ");
        Schreibe(std::int64_t{p.y});
    };
    if (!weiter) paar("M", von);
    paar("L", nach);
    pfadende_ = nach;
    ++pfadlinien_;
}

// --- Shapes and texts -------------------------------------------------------------------------------------

void Svgflaeche::Attribut(std::string_view name, double wert) {
    Schreibe(" ");
    Schreibe(name);
    Schreibe("=\"");
    Schreibe(wert, kStellen);
    Schreibe("\"");
}

void Svgflaeche::Attribut(std::string_view name, std::int64_t wert) {
    Schreibe(" ");
    Schreibe(name);
    Schreibe("=\"");
    Schreibe(wert);
    Schreibe("\"");
}

void Svgflaeche::Farbattribut(std::string_view name, Farbe farbe) {
    constexpr std::string_view kZiffern = "0123456789abcdef";
    Schreibe(" ");
    Schreibe(name);
    Schreibe("=\"#");
    for (const std::uint8_t teil : {Rotanteil(farbe), Gruenanteil(farbe), Blauanteil(farbe)}) {
        Schreibe(kZiffern.substr(teil >> 4U, 1));
        Schreibe(kZiffern.substr(teil & 15U, 1));
    }
    Schreibe("\"");
}

void Svgflaeche::Stiftattribute() {
    const Stift& stift = AktuellerStift();
    const double breite = stift.breite * Strich();
    Farbattribut("stroke", stift.farbe);
    if (stift.breite != 1) Attribut("stroke-width", breite);
    if (!Gestrichelt(stift)) return;
    Schreibe(" stroke-linecap=\"butt\" stroke-dasharray=\"");
    Schreibe(kStrichlaenge * stift.breite * Pixel(), kStellen);
    Schreibe(" ");
    Schreibe(kStrichluecke * stift.breite * Pixel(), kStellen);
    Schreibe("\"");
}

void Svgflaeche::Formende() {
    Stiftattribute();
    if (!AktuellerPinsel().leer) Farbattribut("fill", AktuellerPinsel().farbe);
    Schreibe("/>\n");
}

void Svgflaeche::ZeichneRechteck(const Rechteck& r) {
    if (!Sieht(r)) return;
    BeginneElement();
    Schreibe("<rect");
    Attribut("x", std::int64_t{r.links});
    Attribut("y", std::int64_t{r.oben});
    Attribut("width", std::int64_t{r.rechts} - r.links);
    Attribut("height", std::int64_t{r.unten} - r.oben);
    Formende();
}

void Svgflaeche::Ellipse(const Rechteck& u) {
    if (!Sieht(u)) return;
    BeginneElement();
    Schreibe("<ellipse");
    const Ellipsenmass m = Mass(u);
    Attribut("cx", m.mx);
    Attribut("cy", m.my);
    Attribut("rx", m.a);
    Attribut("ry", m.b);
    Formende();
}

void Svgflaeche::Vieleck(std::span<const Flaechenpunkt> ecken) {
    if (ecken.empty() || !Sieht(Umschrieben(ecken))) return;
    BeginneElement();
    Schreibe("<polygon points=\"");
    for (const Flaechenpunkt& e : ecken) {
        if (&e != ecken.data()) Schreibe(" ");
        Schreibe(std::int64_t{e.x});
        Schreibe(",");
        Schreibe(std::int64_t{e.y});
    }
    Schreibe("\"");
    Formende();
}

void Svgflaeche::Fuelle(const Rechteck& r, Farbe farbe) {
    const Rechteck g = Geschnitten(r, Sichtbar());
    if (g.links > g.rechts || g.oben > g.unten) return;
    BeginneElement();
    Schreibe("<rect");
    Attribut("x", g.links - 0.5);
    Attribut("y", g.oben - 0.5);
    Attribut("width", std::int64_t{g.rechts} - g.links + 1);
    Attribut("height", std::int64_t{g.unten} - g.oben + 1);
    Farbattribut("fill", farbe);
    Schreibe("/>\n");
}

void Svgflaeche::Text(Flaechenpunkt ort, std::string_view text, Farbe farbe) {
    if (!SiehtText(ort, text)) return;
    BeginneElement();
    Schreibe("<text");
    // Lines run through the middles of pixels, texts stand at their edges.
    Attribut("x", ort.x - 0.5);
    Attribut("y", static_cast<double>(ort.y) + Grundlinie() - 0.5);
    Farbattribut("fill", farbe);
    Schreibe(">");
    Zeichen(text);
    Schreibe("</text>\n");
}

/// Text of the network as character data.
void Svgflaeche::Zeichen(std::string_view text) {
    for (const char& c : text) {
        if (IstSteuerzeichen(c)) continue;
        switch (c) {
            case '&':
                Schreibe("&amp;");
                break;
            case '<':
                Schreibe("&lt;");
                break;
            case '>':
                Schreibe("&gt;");
                break;
            default:
                Schreibe(Cp1252NachUtf8({&c, 1}));
        }
    }
}

}  // namespace zrw
