#include "output/beschriftung/Planbeschriftung.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>

#include "model/Bildorte.h"
#include "model/Ganzzahl.h"
#include "model/Gezeigt.h"
#include "output/Abschneiden.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Messflaeche.h"
#include "output/beschriftung/Schildkasten.h"

namespace zrw {
namespace {

/// Units of the task for each pixel of the plan.
constexpr std::int32_t kFein = 8;

std::int32_t Einheiten(double dots, double dichte) {
    return static_cast<std::int32_t>(std::clamp(std::round(dots * kFein / dichte), -2e9, 2e9));
}

/// Writes down what is drawn within its bounds: strokes as they come, symbols one by one.
class Sperrmesser final : public Messflaeche {
  public:
    Sperrmesser(const Zeichenflaeche& geraet, const Rechteck& sichtbar)
        : Messflaeche(geraet), sichtbar_(sichtbar) {}

    [[nodiscard]] Rechteck Sichtbar() const override { return sichtbar_; }
    void Linie(Flaechenpunkt von, Flaechenpunkt nach) override {
        Kasten({std::min(von.x, nach.x), std::min(von.y, nach.y), std::max(von.x, nach.x),
                std::max(von.y, nach.y)});
    }
    /// Of lines. What is drawn in white nobody sees.
    void Linien(std::span<const Linienstueck> stuecke, Farbe farbe, std::int32_t /*breite*/) override {
        if (farbe != kWeiss) striche.insert(striche.end(), stuecke.begin(), stuecke.end());
    }
    /// Round all that was drawn since it was asked last, lines apart.
    [[nodiscard]] Rechteck NimmUmfang() { return std::exchange(umfang_, kKeinRechteck); }

    std::vector<Linienstueck> striche;

  protected:
    void Kasten(const Rechteck& r) override { umfang_ = Vereint(umfang_, r); }

  private:
    Rechteck sichtbar_;
    Rechteck umfang_ = kKeinRechteck;
};

/// Characters that stay between base line and cap height, as most numbers do.
bool OhneUnterlaengen(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'P') || (c >= 'R' && c <= 'Z') || c == ' ' ||
               c == '.' || c == '-' || c == '+' || c == '*';
    });
}

}  // namespace

/// What is looked at: a plan in a view, and how it is drawn there.
struct Planbeschriftung::Blick {
    Bildvorlage vorlage;
    Zeichenzustand zustand;
    const Einstellungen& groessen;
    const Netzangaben& netz;
    const Uhr& uhr;
    const Zeichenflaeche& schrift;
    Rechteck sichtbar;  ///< what is gathered [dots]
    Rechteck grenzen;   ///< points beyond keep their labels [dots]

    [[nodiscard]] std::int32_t Einheiten(double dots) const { return zrw::Einheiten(dots, zustand.Dichte()); }
    [[nodiscard]] Flaechenpunkt Einheiten(Bildpunkt p) const {
        return {Einheiten(static_cast<double>(p.x)), Einheiten(static_cast<double>(p.y))};
    }
    [[nodiscard]] Flaechenpunkt Einheiten(Flaechenpunkt p) const { return {Einheiten(p.x), Einheiten(p.y)}; }
    [[nodiscard]] bool Innen(Bildpunkt p) const {
        return p.x >= grenzen.links && p.x <= grenzen.rechts && p.y >= grenzen.oben && p.y <= grenzen.unten;
    }
};

void Planbeschriftung::NimmPlan(const Blick& b, const Beweglich& beweglich) {
    const Bildvorlage& v = b.vorlage;
    Sperrmesser messer(b.schrift, b.sichtbar);
    Zeichenzustand zustand = b.zustand;
    zustand.flaeche = &messer;
    Figurenzeichner zeichner(zustand, b.groessen, b.netz, b.uhr);
    if (v.darstellung.ShowBeob) ZeichneKanten(v, zeichner);
    for (const Linienstueck& s : messer.striche)
        aufgabe_.striche.push_back({b.Einheiten(s.von), b.Einheiten(s.nach), kFein / 2});
    std::vector<std::int32_t> radius(kMaxPunkte + 1);
    for (const PunktKnoten* p = v.netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (!v.Gezeichnet(*p) || !v.darstellung.Dargestellt(*p->Item)) continue;
        const Bildpunkt ort = BildortVon(*p, v.ansicht);
        p->Item->ZeigeSymbolBei(ort, zeichner);
        const Rechteck r = messer.NimmUmfang();
        if (Leer(r)) continue;
        const Flaechenpunkt mitte = Aufflaeche(ort);
        const std::int32_t quer = b.Einheiten(std::max(mitte.x - r.links, r.rechts - mitte.x) + 0.5);
        const std::int32_t laengs = b.Einheiten(std::max(mitte.y - r.oben, r.unten - mitte.y) + 0.5);
        aufgabe_.symbole.push_back({b.Einheiten(ort), quer, laengs});
        radius[p->PNr] = std::max({radius[p->PNr], quer, laengs});
    }
    NimmTexte(b, radius, beweglich);
}

/// @param radius of the symbols by point number [units]
void Planbeschriftung::NimmTexte(const Blick& b, const std::vector<std::int32_t>& radius,
                                 const Beweglich& beweglich) {
    const Bildvorlage& v = b.vorlage;
    if (!v.darstellung.ShowPktText || !v.darstellung.ShowHilfP) return;
    Gezeigt gezeigt(v.netz, v.darstellung);
    for (PPunktString t = v.netz.PktTextKnoten; t != nullptr; t = t->Next) {
        if (!v.Gezeichnet(*t) || !gezeigt(*t)) continue;
        const Bildpunkt ort = BildortVon(*t, v.netz, v.ansicht);
        const std::string_view zeichen = b.zustand.Gezeigt(*t->Item);
        if (zeichen.empty() || !InReichweite(ort, 0, b.sichtbar)) continue;
        // Whole pixels of the plan: offsets count them. A little air at the sides, none above the digits.
        const auto pixel = [](double einheiten) {
            return static_cast<std::int32_t>(std::ceil(einheiten / kFein)) * kFein;
        };
        const double hoehe = b.Einheiten(b.schrift.Texthoehe());
        const std::int32_t oben = pixel(hoehe * 0.15 - kFein + 1);
        const std::int32_t unten = OhneUnterlaengen(zeichen) ? pixel(hoehe * 0.18 - kFein + 1) : 0;
        Schild s;
        s.punkt = b.Einheiten(ort);
        s.weite = b.Einheiten(b.schrift.Textbreite(zeichen)) + 2 * kFein;
        s.hoehe = static_cast<std::int32_t>(hoehe) - oben - unten;
        s.radius = radius[t->TNr];
        innen_.push_back({-kFein, oben});
        const auto stelle = [](std::int64_t abstand) {
            constexpr std::int64_t kWeit = 1 << 24;
            return static_cast<std::int32_t>(std::clamp(abstand, -kWeit, kWeit)) * kFein;
        };
        s.lage = {stelle(t->Item->XBiO) + innen_.back().x, stelle(t->Item->YBiO) + innen_.back().y};
        s.fest = !b.Innen(ort) || !beweglich(*t);
        aufgabe_.schilder.push_back(s);
        texte_.push_back(t);
    }
}

Planbeschriftung Planbeschriftung::FuerBild(const Bildvorlage& v, const Zeichenmittel& mittel,
                                            const Zeichenflaeche& schrift, double dichte,
                                            const Beweglich& beweglich) {
    // What reaches into the picture from outside is in the way, too.
    const auto rand = static_cast<std::int32_t>(std::lround(256 * dichte));
    const Ansicht ansicht = dichte == 1.0 ? v.ansicht : v.ansicht.InDichte(dichte);
    Einstellungen groessen = mittel.einstellungen;
    if (dichte != 1.0) groessen.ScaleSizes(dichte);
    const Rechteck bild{0, 0, ansicht.Weite - 1, ansicht.Hoehe - 1};
    Zeichenzustand zustand = mittel.zustand;
    zustand.modus = Zeichenmodus::Bildschirm;
    zustand.Pixeldichte = dichte;
    const Blick blick{v.InAnsicht(ansicht),
                      zustand,
                      groessen,
                      mittel.netz,
                      mittel.uhr,
                      schrift,
                      {-rand, -rand, bild.rechts + rand, bild.unten + rand},
                      bild};
    Planbeschriftung p;
    p.NimmPlan(blick, beweglich);
    const Flaechenpunkt ende = blick.Einheiten(Flaechenpunkt{bild.rechts, bild.unten});
    p.aufgabe_.blaetter = {{0, 0, ende.x, ende.y}};
    return p;
}

Planbeschriftung Planbeschriftung::FuerDruck(const Bildvorlage& v, const Zeichenmittel& mittel,
                                             const Zeichenflaeche& schrift, double massstab,
                                             const Druckseite& seite, const Beweglich& beweglich) {
    const double geraetefaktor = Geraetefaktor(seite);
    const Ansicht ansicht = v.ansicht.FuerGeraet(Druckfaktor(massstab, seite.aufloesung));
    Einstellungen einstellungen = mittel.einstellungen;
    const Einstellungen groessen = Geraetegroessen(einstellungen, geraetefaktor);
    constexpr std::int32_t kWeit = Messflaeche::kReichweite;
    const Rechteck alles{-kWeit, -kWeit, kWeit, kWeit};
    Zeichenzustand zustand = mittel.zustand;
    zustand.modus = Zeichenmodus::Drucker;
    zustand.Geraetefaktor = geraetefaktor;
    Planbeschriftung p;
    p.papier_ = {ansicht, seite};
    p.NimmPlan({v.InAnsicht(ansicht), zustand, groessen, mittel.netz, mittel.uhr, schrift, alles, alles},
               beweglich);
    return p;
}

void Planbeschriftung::SetzeBlaetter(const std::vector<Blatt>& blaetter) {
    const Druckseite& seite = papier_.seite;
    const double dichte = Geraetefaktor(seite);
    const auto einheiten = [&](double dots) { return Einheiten(dots, dichte); };
    // Positions are rounded on each sheet anew, and a number on the very edge is hard to read.
    aufgabe_.blattrand = std::max(kFein, einheiten(1.0));
    aufgabe_.blaetter.clear();
    for (const Blatt& b : blaetter) {
        const Bildpunkt ecke = papier_.ansicht.Bildort(b.ecke);
        const auto x = static_cast<double>(ecke.x);
        const auto y = static_cast<double>(ecke.y);
        aufgabe_.blaetter.push_back(
            {einheiten(x), einheiten(y), einheiten(x + seite.weite) - 1, einheiten(y + seite.hoehe) - 1});
    }
}

std::size_t Planbeschriftung::Bewegliche() const {
    return static_cast<std::size_t>(std::count_if(aufgabe_.schilder.begin(), aufgabe_.schilder.end(),
                                                  [](const Schild& s) { return !s.fest; }));
}

std::optional<Planbeschriftung::Ordnung> Planbeschriftung::OrdneNummern(
    const Fortschritt& fortschritt) const {
    return Ordne(aufgabe_, fortschritt);
}

/// @param aufgabe the same labels, perhaps elsewhere or fixed
std::optional<Planbeschriftung::Ordnung> Planbeschriftung::Ordne(const Beschriftungsaufgabe& aufgabe,
                                                                 const Fortschritt& fortschritt) const {
    Beschriftungswahl wahl;
    wahl.raster = kFein;
    auto lagen = OrdneSchilder(aufgabe, wahl, fortschritt);
    if (!lagen) return std::nullopt;
    Ordnung o;
    std::vector<Flaechenpunkt> vorher;
    for (std::size_t i = 0; i < texte_.size(); ++i) {
        const Schild& s = aufgabe_.schilder[i];
        vorher.push_back(s.lage);
        if (s.fest || (*lagen)[i] == s.lage) continue;
        const Flaechenpunkt text{(*lagen)[i].x - innen_[i].x, (*lagen)[i].y - innen_[i].y};
        o.versetzt.push_back({texte_[i], {text.x / kFein, text.y / kFein}});
    }
    o.vorher = BewerteSchilder(aufgabe_, vorher);
    o.nachher = BewerteSchilder(aufgabe_, *lagen);
    o.lagen = std::move(*lagen);
    return o;
}

std::vector<std::size_t> Planbeschriftung::Zerschnittene(const Ordnung& ordnung) const {
    std::vector<std::size_t> nummern;
    for (std::size_t i = 0; i < aufgabe_.schilder.size(); ++i) {
        const Schild& s = aufgabe_.schilder[i];
        if (!s.fest && Zerschnitten(aufgabe_.blaetter, aufgabe_.blattrand,
                                    Begrenzterkasten(s, ordnung.lagen[i]), Begrenzt(s.punkt)))
            nummern.push_back(i);
    }
    return nummern;
}

std::optional<Planbeschriftung::Ordnung> Planbeschriftung::OrdneZerschnittene(
    const Ordnung& bisher, const Fortschritt& fortschritt) const {
    Beschriftungsaufgabe aufgabe = aufgabe_;
    std::vector<Kasten> umgebungen;
    for (const std::size_t i : Zerschnittene(bisher)) {
        const Kasten k = Begrenzterkasten(aufgabe.schilder[i], bisher.lagen[i]);
        umgebungen.push_back(k.Erweitert(k.rechts - k.links + 2 * (k.unten - k.oben)));
    }
    for (std::size_t i = 0; i < aufgabe.schilder.size(); ++i) {
        Schild& s = aufgabe.schilder[i];
        s.lage = bisher.lagen[i];
        const Kasten k = Begrenzterkasten(s, s.lage);
        s.fest = s.fest || std::none_of(umgebungen.begin(), umgebungen.end(),
                                        [&](const Kasten& u) { return u.Ueberlappt(k); });
    }
    return Ordne(aufgabe, fortschritt);
}

}  // namespace zrw
