#include "output/Figurenzeichner.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

#include "geo/Zrwgeo.h"
#include "model/Bildvorlage.h"
#include "model/Ganzzahl.h"
#include "model/Punktsymbole.h"
#include "output/Abschneiden.h"
#include "output/Balkenbild.h"
#include "output/Bildaufbau.h"
#include "output/Erklaerungsbild.h"
#include "output/Kartengitter.h"
#include "output/Legendenbild.h"
#include "output/Residuenbild.h"
#include "output/blatt/Schlichtgitter.h"

namespace zrw {
namespace {

// Sizes in the drawing are in metres of the world: it has no scale of its own.
constexpr double kDxfRadius = 2.0;
constexpr double kDxfTexthoehe = 2.0;
constexpr double kDxfTextabstand = 2.0;
constexpr double kDxfQuerstrich = 1.0;  ///< to each side

/// Square round a position, reaching `r` dots to each side.
Rechteck Umkreis(Flaechenpunkt m, std::int32_t r) {
    return {m.x - r, m.y - r, m.x + r, m.y + r};
}

Dxfart Kantenart(bool gestrichelt) {
    return {dxf::kBeobachtungen, gestrichelt ? dxf::kGestrichelt : dxf::kDurchgezogen};
}

constexpr Dxfart kPunktart{dxf::kPunkte};
constexpr Dxfart kTextart{dxf::kPunktnummern};

}  // namespace

Plotdatei* Figurenzeichner::Plot(Gang gang) const {
    return zustand_.ExportActive && gang == Gang::Zeigen ? zustand_.PlotFile : nullptr;
}

DXFUnit* Figurenzeichner::Dxf(Gang gang) const {
    const bool offen = zustand_.Dxf != nullptr && zustand_.Dxf->DxfIsOpen();
    return offen && gang == Gang::Zeigen ? zustand_.Dxf : nullptr;
}

/// World position of a dot of the export. Rounded to dots, as the plot is: both files then agree.
Dxfpunkt Figurenzeichner::Weltort(Bildpunkt b) const {
    const Welt w = zustand_.Exportansicht->BildinWelt(b);
    return {w.rechts, w.hoch};
}

Rechteck Figurenzeichner::Punktumfang(Bildpunkt ort) const {
    return Umgebung(ort, ort, Symbolreichweite());
}

Rechteck Figurenzeichner::Kantenumfang(Bildpunkt anfang, Bildpunkt ende) const {
    return Umgebung(anfang, ende, Kantenreichweite());
}

Rechteck Figurenzeichner::Textumfang(const PktText& text, Bildpunkt ort) const {
    if (zustand_.flaeche == nullptr) return kKeinRechteck;
    const Bildpunkt ecke = Textecke(text, ort);
    const Bildpunkt ende{Summe(ecke.x, zustand_.flaeche->Textbreite(text.Aus.Text())),
                         Summe(ecke.y, zustand_.flaeche->Texthoehe())};
    // Glyphs may stand out of their line.
    return Umgebung(ecke, ende, zustand_.flaeche->Texthoehe());
}

Bildpunkt Figurenzeichner::Textecke(const PktText& text, Bildpunkt stelle) const {
    const double dichte = zustand_.Dichte();
    if (dichte == 1.0) return text.Textort(stelle);
    const auto dots = [&](std::int64_t v) { return RundeZuInt64(static_cast<double>(v) * dichte); };
    return {Summe(stelle.x, dots(text.XBiO)), Summe(stelle.y, dots(text.YBiO))};
}

void Figurenzeichner::SetzeEbene(Ebene ebene) const {
    if (zustand_.flaeche != nullptr && !ebeneSteht_) zustand_.flaeche->SetzeEbene(ebene);
}

void Figurenzeichner::ClearPicture(std::int32_t weite, std::int32_t hoehe) {
    SetzeEbene(Ebene::Grund);
    if (zustand_.flaeche != nullptr) zustand_.flaeche->FuelleRechteck({0, 0, weite, hoehe}, kWeiss);
}

// --- Points -----------------------------------------------------------------------------------------------

/// What pens add on screens finer than the plan's sizes [dots].
std::int64_t Figurenzeichner::Stiftrand() const {
    return zustand_.Pixeldichte > 1.0 ? static_cast<std::int64_t>(std::ceil(zustand_.Pixeldichte)) : 0;
}

/// What classes add to symbols and lines [dots].
std::int64_t Figurenzeichner::Stilrand() const {
    return stilzuwachs_ == 0 ? 0
                             : RundeZuInt64(std::ceil(static_cast<double>(stilzuwachs_) * zustand_.Dichte()));
}

/// Of the rim round labels [dots].
std::int64_t Figurenzeichner::Halobreite() const {
    return zustand_.Halo ? std::max<std::int64_t>(RundeZuInt64(zustand_.Dichte()), 1) : 0;
}

/// Asked for every point: in registers, row by row.
std::int64_t Figurenzeichner::Symbolreichweite() const {
    const Einstellungen& e = einstellungen_;
    std::uint16_t groesste = 0;
    std::apply(
        [&](const auto&... s) { ((groesste = std::max(groesste, std::max(e.*s.quer, e.*s.laengs))), ...); },
        kPunktsymbole);
    return groesste + 1 + Stiftrand() + Stilrand();
}

void Figurenzeichner::ZeichnePunkt(const Punkt& punkt, Bildpunkt m, Gang gang) {
    SetzeEbene(Ebene::Punkte);
    Zeichenflaeche* f = zustand_.flaeche;
    if (f != nullptr && !InReichweite(m, 0, f->Ausschnitt()) &&
        !InReichweite(m, Symbolreichweite(), f->Ausschnitt()))
        f = nullptr;
    const Symbolziel ziel{f, Plot(gang), Dxf(gang)};
    const Farbe farbe = gang == Gang::Wischen ? kWeiss : stil_ != nullptr ? stil_->farbe : punkt.Farbe;
    std::optional<Stiftwechsel> wechsel;
    if (f != nullptr) {
        wechsel.emplace(*f, Stift{farbe, 1, Strichart::Voll},
                        Pinsel{stil_ != nullptr || punkt.PktAttr == PunktAttr::Fu ? farbe : kWeiss, false});
    }
    if (const Punktsymbol* symbol = ZumSymbol(punkt.PktTyp); symbol != nullptr)
        ZeichneSymbol(ziel, m, *symbol);
}

void Figurenzeichner::ZeichneSymbol(const Symbolziel& ziel, Bildpunkt m, const Punktsymbol& symbol) const {
    // The most remarkable class has the largest symbols, too.
    const std::int64_t zuwachs = stil_ != nullptr ? RundeZuInt64((stil_->breite - 1) * zustand_.Dichte()) : 0;
    const std::int64_t quer = einstellungen_.*symbol.quer + zuwachs;
    const std::int64_t laengs = einstellungen_.*symbol.laengs + zuwachs;
    if (symbol.ecken.empty())
        return Scheibe(ziel, m, static_cast<std::int32_t>(quer), symbol.form == Symbolform::Kreis);
    std::array<Bildpunkt, kMeisteEcken> ecken;
    std::transform(symbol.ecken.begin(), symbol.ecken.end(), ecken.begin(), [&](Symbolecke e) {
        return Bildpunkt{m.x + e.x * quer, m.y + e.y * laengs};
    });
    if (symbol.form == Symbolform::Kreuz) return Kreuz(ziel, ecken);
    Vieleck(ziel, {ecken.data(), symbol.ecken.size()});
}

void Figurenzeichner::Scheibe(const Symbolziel& ziel, Bildpunkt m, std::int32_t radius, bool kreis) const {
    if (ziel.flaeche != nullptr) ziel.flaeche->Ellipse(Umkreis(Aufflaeche(m), radius));
    if (ziel.plot != nullptr && kreis) ziel.plot->Kreis(m, radius);
    if (ziel.plot != nullptr && !kreis) ziel.plot->Punkt(m);
    if (ziel.dxf != nullptr && kreis) ziel.dxf->DxfCircle(kPunktart, Weltort(m), kDxfRadius);
    if (ziel.dxf != nullptr) ziel.dxf->DxfPoint(kPunktart, Weltort(m));
}

void Figurenzeichner::Kreuz(const Symbolziel& ziel, const std::array<Bildpunkt, 4>& enden) const {
    for (const std::size_t i : {std::size_t{0}, std::size_t{2}}) {
        if (ziel.flaeche != nullptr) ziel.flaeche->Linie(Aufflaeche(enden[i]), Aufflaeche(enden[i + 1]));
        if (ziel.dxf != nullptr) ziel.dxf->DxfLine(kPunktart, Weltort(enden[i]), Weltort(enden[i + 1]));
    }
    if (ziel.plot != nullptr) ziel.plot->Kreuz(enden);
}

/// Square, rhombus, triangle.
void Figurenzeichner::Vieleck(const Symbolziel& ziel, std::span<const Bildpunkt> ecken) const {
    if (ziel.flaeche != nullptr) {
        std::array<Flaechenpunkt, 4> dort{};
        std::transform(ecken.begin(), ecken.end(), dort.begin(), Aufflaeche);
        ziel.flaeche->Vieleck({dort.data(), ecken.size()});
    }
    if (ziel.plot != nullptr && ecken.size() == 3) ziel.plot->Dreieck({ecken[0], ecken[1], ecken[2]});
    if (ziel.plot != nullptr && ecken.size() == 4) {
        ziel.plot->Viereck({ecken[0], ecken[1], ecken[2], ecken[3]});
    }
    if (ziel.dxf == nullptr) return;
    for (std::size_t i = 0; i < ecken.size(); ++i)
        ziel.dxf->DxfLine(kPunktart, Weltort(ecken[i]), Weltort(ecken[(i + 1) % ecken.size()]));
}

// --- Lines ------------------------------------------------------------------------------------------------

void Figurenzeichner::ZeichneKante(const Kante& kante, Bildpunkt anfang, Bildpunkt ende, Gang gang) {
    const bool nurBild = Plot(gang) == nullptr && Dxf(gang) == nullptr;
    if (nurBild && !BeruehrtFlaeche(anfang, ende)) return;
    SetzeEbene(Ebene::Beobachtungen);
    const Kantenbild bild(kante.KAttr, kante.LAttr, anfang, ende, einstellungen_);
    if (zustand_.flaeche != nullptr) {
        const Farbe eigene =
            stil_ != nullptr ? stil_->farbe : Kantenfarbe(kante.KAttr, kante.LAttr, kante.Farbe);
        const Farbe farbe = gang == Gang::Wischen ? kWeiss : eigene;
        ZeigeZuege(bild.Zuege(), farbe, stil_ != nullptr ? stil_->breite : 1,
                   stil_ != nullptr && stil_->gestrichelt);
    }
    if (nurBild) return;
    Plotdatei* plot = Plot(gang);
    const DXFUnit* dxf = Dxf(gang);
    for (const Zug& zug : bild.Zuege()) {
        if (plot != nullptr) plot->Linienzug(zug);
        if (dxf != nullptr) SchreibeZug(zug, anfang, ende);
    }
}

std::int64_t Figurenzeichner::Kantenreichweite() const {
    constexpr std::uint8_t kAlle = (1U << KanteAttr::Anzahl) - 1;
    return Zeichenreichweite(KanteAttr::AusMaske(kAlle), LinieAttr::ARI1, einstellungen_) + Stiftrand() +
           Stilrand();
}

std::int64_t Figurenzeichner::Kantenreichweite(const Kante& kante) const {
    return Zeichenreichweite(kante.KAttr, kante.LAttr, einstellungen_) + Stiftrand() + Stilrand();
}

/// Whether a line with its marks may touch the surface. How far they reach matters beside it only.
bool Figurenzeichner::BeruehrtFlaeche(Bildpunkt anfang, Bildpunkt ende) const {
    if (zustand_.flaeche == nullptr) return false;
    const Rechteck s = zustand_.flaeche->Ausschnitt();
    return InReichweite(anfang, ende, 0, s) || InReichweite(anfang, ende, Kantenreichweite(), s);
}

/// All strokes of a line, cut to what the surface can take.
void Figurenzeichner::ZeigeZuege(std::span<const Zug> zuege, Farbe farbe, std::int32_t breite,
                                 bool gestrichelt) {
    const Rechteck grenzen = zustand_.flaeche->Grenzen();
    // Strokes beside the middle of a surface that takes nearly everything need no closer look.
    constexpr std::int32_t kNah = 1 << 29;
    const bool weit =
        grenzen.links <= -kNah && grenzen.oben <= -kNah && grenzen.rechts >= kNah && grenzen.unten >= kNah;
    const auto nah = [](Bildpunkt p) {
        return ((static_cast<std::uint64_t>(p.x) + kNah) | (static_cast<std::uint64_t>(p.y) + kNah)) <
               std::uint64_t{2} * kNah;
    };
    std::size_t anzahl = 0;
    for (const Zug& zug : zuege) {
        for (const Strich& s : Striche(zug.form)) {
            const Bildpunkt von = zug.punkte[s.von];
            const Bildpunkt nach = zug.punkte[s.nach];
            if (weit && nah(von) && nah(nach)) {
                stuecke_[anzahl++] = {Aufflaeche(von), Aufflaeche(nach), s.gestrichelt || gestrichelt};
            } else if (const auto teil = SchneideLinieAb(von, nach, grenzen)) {
                stuecke_[anzahl++] = {teil->first, teil->second, s.gestrichelt || gestrichelt};
            }
        }
    }
    zustand_.flaeche->Linien({stuecke_.data(), anzahl}, farbe, breite);
}

void Figurenzeichner::SchreibeZug(const Zug& zug, Bildpunkt anfang, Bildpunkt ende) {
    if (zug.form != Zugform::Querstrich) {
        for (const Strich& s : Striche(zug.form)) {
            zustand_.Dxf->DxfLine(Kantenart(s.gestrichelt), Weltort(zug.punkte[s.von]),
                                  Weltort(zug.punkte[s.nach]));
        }
        return;
    }
    // The drawing has its tick in the middle of the line and in metres, wherever the plot has it.
    const Dxfpunkt a = Weltort(anfang);
    const Dxfpunkt e = Weltort(ende);
    const double laenge = std::hypot(e.x - a.x, e.y - a.y);
    if (!(laenge > 0.0)) return;
    const double qx = -(e.y - a.y) / laenge * kDxfQuerstrich;
    const double qy = (e.x - a.x) / laenge * kDxfQuerstrich;
    const double mx = a.x + (e.x - a.x) / 2;
    const double my = a.y + (e.y - a.y) / 2;
    zustand_.Dxf->DxfLine(Kantenart(false), {mx + qx, my + qy}, {mx - qx, my - qy});
}

// --- Labels -----------------------------------------------------------------------------------------------

void Figurenzeichner::ZeichneText(const PktText& text, Bildpunkt stelle, Gang gang) {
    SetzeEbene(Ebene::Punktnummern);
    if (zustand_.flaeche != nullptr) ZeigeText(text, stelle, gang == Gang::Wischen ? kWeiss : text.Col);
    // The files always get the whole number. The plot shifts it by the horizontal offset in both directions;
    // plotted sheets have their numbers there.
    if (Plotdatei* plot = Plot(gang); plot != nullptr) plot->Text(stelle, text.XBiO, text.Aus.Text());
    if (DXFUnit* dxf = Dxf(gang); dxf != nullptr) {
        Dxfpunkt ort = Weltort(stelle);
        ort.x += kDxfTextabstand;
        dxf->DxfText(text.Aus.Text(), kTextart, ort, 0.0, kDxfTexthoehe);
    }
}

void Figurenzeichner::ZeigeText(const PktText& text, Bildpunkt stelle, Farbe farbe) {
    Zeichenflaeche& f = *zustand_.flaeche;
    const Bildpunkt ort = Textecke(text, stelle);
    const std::string_view zeichen = zustand_.Gezeigt(text);
    // No character is wider than twice the line height.
    const std::int64_t rand =
        std::int64_t{f.Texthoehe()} * 2 * static_cast<std::int64_t>(PunktNummernTyp::kLaenge);
    if (zeichen.empty() || !InReichweite(ort, rand, f.Ausschnitt())) return;
    if (!zustand_.Halo) return f.Text(Aufflaeche(ort), zeichen, farbe);
    f.TextMitRand(Aufflaeche(ort), zeichen, farbe, kWeiss, static_cast<std::int32_t>(Halobreite()));
}

// --- All of them ------------------------------------------------------------------------------------------

bool Figurenzeichner::ZeichneNetz(const Bildvorlage& v) {
    Zeichenflaeche* f = zustand_.flaeche;
    if (!zustand_.Abkuerzungen || f == nullptr || zustand_.modus != Zeichenmodus::Bildschirm ||
        zustand_.ExportActive || Dxf(Gang::Zeigen) != nullptr)
        return false;
    if (v.darstellung.Stile != nullptr) stilzuwachs_ = v.darstellung.Stile->Zuwachs();
    // No character is wider than twice the line height.
    const std::int64_t hoehe = f->Texthoehe();
    const auto laenge = static_cast<std::int64_t>(PunktNummernTyp::kLaenge);
    Bildaufbau(v, *f, *this,
               {Symbolreichweite(), Kantenreichweite(), 2 * hoehe * laenge, hoehe, Halobreite()}, speicher_)
        .ZeichneNetz();
    return true;
}

// --- Overlays ---------------------------------------------------------------------------------------------

void Figurenzeichner::ZeichneLegende(Legende& legende, Gang gang) {
    if (gang == Gang::Zeigen) legende.Zeit = uhr_.DatumZeit();
    if (zustand_.flaeche == nullptr || zustand_.OhneStehendes) return;
    SetzeEbene(Ebene::Legende);
    Legendenbild(*zustand_.flaeche, einstellungen_, zustand_.Dichte()).ZeichneLegende(legende, gang);
}

/// Only on paper: neither the screen nor a drawing has thin lines.
bool Figurenzeichner::GitterSchlicht() const {
    return zustand_.GitterSchlicht && zustand_.modus == Zeichenmodus::Drucker && ZeigtResiduen();
}

void Figurenzeichner::GitterShow(const Bildvorlage& v) {
    SetzeEbene(Ebene::Gitter);
    Netzangaben netz = netz_;
    if (zustand_.BlattschnittWiePunkte && PunkteInGaussKrueger(netz.Netztyp))
        netz.Abbildungsmodus = static_cast<std::uint8_t>(Abbildung::GaussKrueger);
    if (GitterSchlicht()) {
        zustand_.flaeche->SetzeStrichmass(kGitterstrich);
        ZeichneKartenblattlinien(*zustand_.flaeche, v.ansicht,
                                 {.netz = netz,
                                  .farbe = einstellungen_.TKCol,
                                  .dichte = zustand_.Dichte(),
                                  .nebenKilometern = v.darstellung.ShowKMQ});
        return zustand_.flaeche->SetzeStrichmass(0);
    }
    Kartengitter({zustand_.flaeche, Dxf(Gang::Zeigen), einstellungen_.TKCol}, v.ansicht).Kartenblaetter(netz);
}

void Figurenzeichner::KMGitterShow(const Bildvorlage& v) {
    SetzeEbene(Ebene::Gitter);
    if (GitterSchlicht()) {
        zustand_.flaeche->SetzeStrichmass(kGitterstrich);
        ZeichneKilometerlinien(*zustand_.flaeche, v.ansicht, einstellungen_.TKCol, zustand_.Dichte());
        return zustand_.flaeche->SetzeStrichmass(0);
    }
    Kartengitter({zustand_.flaeche, Dxf(Gang::Zeigen), einstellungen_.TKCol}, v.ansicht).Kilometerquadrate();
}

bool Figurenzeichner::ZeigtResiduen() const {
    return zustand_.flaeche != nullptr && !zustand_.ExportActive;
}

void Figurenzeichner::ZeichnePunktRes(const Bildvorlage& v) {
    if (!ZeigtResiduen() || zustand_.Ergebnisse == nullptr) return;
    SetzeEbene(Ebene::Ergebnisse);
    Residuenbild(zustand_, einstellungen_, v).ZeichnePunktRes(*zustand_.Ergebnisse);
}

void Figurenzeichner::DrawResMasstab(const Bildvorlage& v) {
    if (!ZeigtResiduen() || zustand_.OhneStehendes) return;
    SetzeEbene(Ebene::Ergebnisse);
    Residuenbild(zustand_, einstellungen_, v).DrawResMasstab();
}

void Figurenzeichner::ZeichneErklaerung(const Bildvorlage& v) {
    if (!ZeigtResiduen() || zustand_.OhneStehendes) return;
    Zeichenflaeche& f = *zustand_.flaeche;
    // Whatever changes what is shown has the whole picture drawn.
    if (!v.darstellung.ShowErklaerung) erklaerung_.clear();
    if (v.darstellung.ShowErklaerung && (f.Ausschnitt() == f.Sichtbar() || erklaerung_.empty()))
        erklaerung_ = BaueErklaerung(Zeichenbestand(v.netz, v.darstellung), einstellungen_,
                                     Erklaerungsbild::kMeisteZeilen);
    SetzeEbene(Ebene::Legende);
    ebeneSteht_ = true;
    const Erklaerungsbild bild(zustand_, einstellungen_, v, *this,
                               2 * std::max(Symbolreichweite(), Kantenreichweite() / 2), erklaerung_);
    bild.ZeichneKasten();
    ebeneSteht_ = false;
    erklaerungsrahmen_ = bild.Umfang();
}

void Figurenzeichner::ZeichneMassbalken(const Bildvorlage& v) {
    if (!ZeigtResiduen() || zustand_.OhneStehendes || !InMetern(netz_.Netztyp)) return;
    SetzeEbene(Ebene::Legende);
    const auto balken = MetrischerBalken(v.ansicht.Faktor, zustand_.Dichte());
    if (!balken) return;
    // Both bars need so much room beside each other; else they stand one above the other.
    constexpr int kZeilen = 60;
    Zeichenflaeche& f = *zustand_.flaeche;
    const Rechteck s = f.Sichtbar();
    const std::int64_t hoehe = f.Texthoehe();
    const bool eng = v.darstellung.ZeigtErgebnisse() && s.rechts - s.links < kZeilen * hoehe;
    const bool zwei = v.darstellung.ZeigtEllipsen() && v.darstellung.EigenerEllipsenmassstab();
    ZeichneBalken(f, *balken, eng ? (zwei ? 7 : 4) * hoehe : 0);
}

}  // namespace zrw
