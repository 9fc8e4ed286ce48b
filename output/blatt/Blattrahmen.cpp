#include "output/blatt/Blattrahmen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>

#include "model/Zahlentext.h"
#include "output/Balkenbild.h"
#include "output/blatt/Schlichtgitter.h"

namespace zrw {
namespace {

// Pens [mm].
constexpr double kRahmenstrich = 0.35;
constexpr double kMarkenstrich = 0.13;
constexpr double kBlattstrich = 0.7;
// Letters and distances [1/10 mm].
constexpr int kZahl = 21;
constexpr int kNord = 45;
constexpr int kKreuz = 20;     ///< half of one
constexpr int kEckmarke = 10;  ///< of a coordinate
constexpr int kSchnittmarke = 40;
constexpr int kBlattnummer = 24;
constexpr int kLuft = 5;
constexpr int kNachbar = 160;       ///< kept free for the name of a neighbour, to both sides
constexpr int kRahmengitter = 400;  ///< of crosses, at least
constexpr int kGitterweiteGross = 800;
constexpr int kGross = 5000;  ///< sheets as wide as this

/// Round multiples of a step within a stretch.
template <class Tun>
void FuerVielfache(double von, double bis, double schritt, const Tun& tun) {
    constexpr double kMeiste = 1000;
    const double erstes = std::ceil(von / schritt);
    const double letztes = std::floor(bis / schritt);
    const double weite = letztes - erstes;
    if (!(weite >= 0 && weite < kMeiste)) return;
    const auto anzahl = static_cast<int>(weite) + 1;
    for (int i = 0; i < anzahl; ++i)
        tun((erstes + i) * schritt);
}

std::string Koordinate(double wert, double schritt) {
    const int stellen = std::clamp(static_cast<int>(-std::floor(std::log10(schritt))), 0, 3);
    return Festkomma(wert, 0, stellen);
}

}  // namespace

void Blattrahmen::Schreibe(Flaechenpunkt ort, Bezug bezug, std::string_view text) const {
    const std::int32_t breite = flaeche_.Textbreite(text);
    const std::int32_t links = bezug == Bezug::Links ? 0 : bezug == Bezug::Mitte ? breite / 2 : breite;
    flaeche_.Text({ort.x - links, ort.y}, text, kSchwarz);
}

void Blattrahmen::ZeichneLinien() const {
    const Stiftwechsel stift(flaeche_, {kSchwarz, 1, Strichart::Voll}, {kWeiss, true});
    flaeche_.SetzeStrichmass(kRahmenstrich);
    flaeche_.ZeichneRechteck(layout_.rand);
    flaeche_.ZeichneRechteck(layout_.planflaeche);
    const Rechteck& f = layout_.schriftfeld;
    flaeche_.Linie({layout_.rand.links, f.oben}, {layout_.rand.rechts, f.oben});
    for (const std::int32_t x : {f.links, layout_.zeichenfeld.links, layout_.uebersicht.links})
        if (x > layout_.rand.links) flaeche_.Linie({x, f.oben}, {x, f.unten});
}

/// Where a sheet is cut so that it meets its neighbours: half of what they have in common lies beyond.
void Blattrahmen::ZeichneSchnittmarken(const Blattstand& stand) const {
    const Stiftwechsel stift(flaeche_, {kSchwarz, 1, Strichart::Voll}, {kWeiss, true});
    flaeche_.SetzeStrichmass(kMarkenstrich);
    const Rechteck& p = layout_.planflaeche;
    const std::int32_t innen = stand.ueberlappung / 2;
    const std::int32_t l = Dots(kSchnittmarke);
    for (const std::int32_t x : {p.links + innen, p.rechts - innen}) {
        flaeche_.Linie({x, p.oben - l}, {x, p.oben});
        flaeche_.Linie({x, p.unten}, {x, p.unten + l});
    }
    for (const std::int32_t y : {p.oben + innen, p.unten - innen}) {
        flaeche_.Linie({p.links - l, y}, {p.links, y});
        flaeche_.Linie({p.rechts, y}, {p.rechts + l, y});
    }
}

// --- Coordinates ------------------------------------------------------------------------------------------

void Blattrahmen::ZeichneKoordinaten(const Blattstand& stand) const {
    if (!stand.inMetern || !(stand.faktor > 0.0) || !std::isfinite(stand.faktor)) return;
    const Rechteck& p = layout_.planflaeche;
    const int weite = mass_.Zehntel(p.rechts - p.links) < kGross ? kRahmengitter : kGitterweiteGross;
    const std::int32_t mindestens = std::max(Dots(weite), 1);
    const auto schritt = KleinsteTeilung(1 / stand.faktor, mindestens).Mal(1);
    if (!schritt || !(*schritt > 0.0)) return;
    const Stiftwechsel stift(flaeche_, {kSchwarz, 1, Strichart::Voll}, {kWeiss, true});
    flaeche_.SetzeStrichmass(kGitterstrich);
    flaeche_.SetzeSchriftmass(Dots(kZahl));
    BeziffereRechts(stand, *schritt);
    BeziffereHoch(stand, *schritt);
    ZeichneKreuze(stand, *schritt);
    flaeche_.SetzeSchriftmass(0);
}

/// Eastings above and below, but not where cut marks and neighbours stand.
void Blattrahmen::BeziffereRechts(const Blattstand& stand, double schritt) const {
    const Rechteck& p = layout_.planflaeche;
    const std::int32_t mitte = (p.links + p.rechts) / 2;
    const double ende = stand.ecke.rechts + (p.rechts - p.links) * stand.faktor;
    FuerVielfache(stand.ecke.rechts, ende, schritt, [&](double wert) {
        const auto x =
            p.links + static_cast<std::int32_t>(std::lround((wert - stand.ecke.rechts) / stand.faktor));
        flaeche_.Linie({x, p.oben - Dots(kEckmarke)}, {x, p.oben});
        flaeche_.Linie({x, p.unten}, {x, p.unten + Dots(kEckmarke)});
        const std::string text = Koordinate(wert, schritt);
        const std::int32_t halb = flaeche_.Textbreite(text) / 2 + Dots(kLuft);
        const std::int32_t innen = stand.ueberlappung / 2;
        if (std::abs(x - mitte) < halb + Dots(kNachbar) || x - halb < p.links + innen ||
            x + halb > p.rechts - innen)
            return;
        Schreibe({x, p.oben - Dots(kEckmarke + kLuft) - flaeche_.Texthoehe()}, Bezug::Mitte, text);
        Schreibe({x, p.unten + Dots(kEckmarke + kLuft)}, Bezug::Mitte, text);
    });
}

void Blattrahmen::BeziffereHoch(const Blattstand& stand, double schritt) const {
    const Rechteck& p = layout_.planflaeche;
    const std::int32_t mitte = (p.oben + p.unten) / 2;
    const double ende = stand.ecke.hoch - (p.unten - p.oben) * stand.faktor;
    FuerVielfache(ende, stand.ecke.hoch, schritt, [&](double wert) {
        const auto y =
            p.oben + static_cast<std::int32_t>(std::lround((stand.ecke.hoch - wert) / stand.faktor));
        flaeche_.Linie({p.links - Dots(kEckmarke), y}, {p.links, y});
        flaeche_.Linie({p.rechts, y}, {p.rechts + Dots(kEckmarke), y});
        const std::int32_t halb = flaeche_.Texthoehe() / 2 + Dots(kLuft);
        const std::int32_t innen = stand.ueberlappung / 2;
        if (std::abs(y - mitte) < halb + 2 * flaeche_.Texthoehe() || y - halb < p.oben + innen ||
            y + halb > p.unten - innen)
            return;
        const std::string text = Koordinate(wert, schritt);
        const std::int32_t oben = y - flaeche_.Texthoehe() / 2;
        Schreibe({p.links - Dots(kEckmarke + kLuft), oben}, Bezug::Rechts, text);
        Schreibe({p.rechts + Dots(kEckmarke + kLuft), oben}, Bezug::Links, text);
    });
}

void Blattrahmen::ZeichneKreuze(const Blattstand& stand, double schritt) const {
    const Rechteck& p = layout_.planflaeche;
    const std::int32_t k = Dots(kKreuz);
    const double rechts = stand.ecke.rechts + (p.rechts - p.links) * stand.faktor;
    const double unten = stand.ecke.hoch - (p.unten - p.oben) * stand.faktor;
    FuerVielfache(stand.ecke.rechts, rechts, schritt, [&](double e) {
        const auto x =
            p.links + static_cast<std::int32_t>(std::lround((e - stand.ecke.rechts) / stand.faktor));
        FuerVielfache(unten, stand.ecke.hoch, schritt, [&](double h) {
            const auto y =
                p.oben + static_cast<std::int32_t>(std::lround((stand.ecke.hoch - h) / stand.faktor));
            const Rechteck kreuz{x - k, y - k, x + k, y + k};
            if (std::any_of(stand.kaesten.begin(), stand.kaesten.end(),
                            [&](const Rechteck& r) { return !Leer(Geschnitten(r, kreuz)); }))
                return;
            flaeche_.Linie({std::max(x - k, p.links), y}, {std::min(x + k, p.rechts), y});
            flaeche_.Linie({x, std::max(y - k, p.oben)}, {x, std::min(y + k, p.unten)});
        });
    });
}

// --- Sheets -----------------------------------------------------------------------------------------------

void Blattrahmen::NenneNachbarn(const Blattstand& stand) const {
    const Blatt& hier = stand.blaetter[stand.nummer];
    const auto nachbar = [&](int zeile, int spalte) {
        const auto b = std::find(stand.blaetter.begin(), stand.blaetter.end(),
                                 Blatt{hier.zeile + zeile, hier.spalte + spalte, {}});
        return b == stand.blaetter.end() ? std::string() : std::to_string(b - stand.blaetter.begin() + 1);
    };
    const Rechteck& p = layout_.planflaeche;
    const Rechteck& r = layout_.rand;
    flaeche_.SetzeSchriftmass(Dots(kZahl));
    const std::int32_t h = flaeche_.Texthoehe();
    const std::int32_t x = (p.links + p.rechts) / 2;
    const std::int32_t y = (p.oben + p.unten) / 2;
    const auto waagrecht = [&](const std::string& blatt, std::int32_t mitte) {
        if (!blatt.empty()) Schreibe({x, mitte - h / 2}, Bezug::Mitte, "Anschluss Blatt " + blatt);
    };
    const auto senkrecht = [&](const std::string& blatt, std::int32_t mitte) {
        if (blatt.empty()) return;
        Schreibe({mitte, y - h}, Bezug::Mitte, "Blatt");
        Schreibe({mitte, y}, Bezug::Mitte, blatt);
    };
    waagrecht(nachbar(-1, 0), (r.oben + p.oben) / 2);
    waagrecht(nachbar(1, 0), (p.unten + layout_.schriftfeld.oben) / 2);
    senkrecht(nachbar(0, -1), (r.links + p.links) / 2);
    senkrecht(nachbar(0, 1), (p.rechts + r.rechts) / 2);
    flaeche_.SetzeSchriftmass(0);
}

/// All sheets as they lie, this one with a thick border.
void Blattrahmen::ZeichneUebersicht(const Blattstand& stand) const {
    constexpr int kUebersichtseinzug = 35;
    const Rechteck& u = layout_.uebersicht;
    int zeile0 = stand.blaetter.front().zeile;
    int zeile1 = zeile0;
    int spalte0 = stand.blaetter.front().spalte;
    int spalte1 = spalte0;
    for (const Blatt& b : stand.blaetter) {
        zeile0 = std::min(zeile0, b.zeile);
        zeile1 = std::max(zeile1, b.zeile);
        spalte0 = std::min(spalte0, b.spalte);
        spalte1 = std::max(spalte1, b.spalte);
    }
    const Rechteck& p = layout_.planflaeche;
    const double spalten = spalte1 - spalte0 + 1;
    const double zeilen = zeile1 - zeile0 + 1;
    const double jeDot =
        std::min((u.rechts - u.links - 2 * Dots(kUebersichtseinzug)) / (spalten * (p.rechts - p.links + 1)),
                 (u.unten - u.oben - 2 * Dots(kUebersichtseinzug)) / (zeilen * (p.unten - p.oben + 1)));
    if (!(jeDot > 0.0)) return;
    const double weite = jeDot * (p.rechts - p.links + 1);
    const double hoehe = jeDot * (p.unten - p.oben + 1);
    const double x0 = (u.links + u.rechts - spalten * weite) / 2;
    const double y0 = (u.oben + u.unten - zeilen * hoehe) / 2;
    const auto kasten = [&](const Blatt& b) {
        const auto dot = [](double v) { return static_cast<std::int32_t>(std::lround(v)); };
        const double x = x0 + (b.spalte - spalte0) * weite;
        const double y = y0 + (b.zeile - zeile0) * hoehe;
        return Rechteck{dot(x), dot(y), dot(x + weite), dot(y + hoehe)};
    };
    const Stiftwechsel stift(flaeche_, {kSchwarz, 1, Strichart::Voll}, {kWeiss, true});
    flaeche_.SetzeStrichmass(kMarkenstrich);
    flaeche_.SetzeSchriftmass(Dots(kBlattnummer));
    for (std::size_t i = 0; i < stand.blaetter.size(); ++i) {
        const Rechteck k = kasten(stand.blaetter[i]);
        flaeche_.ZeichneRechteck(k);
        const std::string nummer = std::to_string(i + 1);
        if (flaeche_.Textbreite(nummer) < weite && flaeche_.Texthoehe() < hoehe)
            Schreibe({(k.links + k.rechts) / 2, (k.oben + k.unten - flaeche_.Texthoehe()) / 2}, Bezug::Mitte,
                     nummer);
    }
    flaeche_.SetzeSchriftmass(0);
    flaeche_.SetzeStrichmass(kBlattstrich);
    flaeche_.ZeichneRechteck(kasten(stand.blaetter[stand.nummer]));
}

// --- North arrow and scale bar ----------------------------------------------------------------------------

/// Northings grow upwards on every sheet.
void Blattrahmen::ZeichneNordpfeil() const {
    const Rechteck& z = layout_.zeichenfeld;
    const std::int32_t x = (z.links + z.rechts) / 2;
    const std::int32_t spitze = z.oben + Dots(75);
    const std::int32_t fuss = z.oben + Dots(245);
    const std::int32_t halb = Dots(30);
    const std::int32_t kerbe = fuss - Dots(35);
    flaeche_.SetzeSchriftmass(Dots(kNord));
    Schreibe({x, z.oben + Dots(20)}, Bezug::Mitte, "N");
    flaeche_.SetzeSchriftmass(0);
    flaeche_.SetzeStrichmass(kMarkenstrich);
    const std::array<Flaechenpunkt, 3> hell{{{x, spitze}, {x + halb, fuss}, {x, kerbe}}};
    const std::array<Flaechenpunkt, 3> dunkel{{{x, spitze}, {x - halb, fuss}, {x, kerbe}}};
    const Stiftwechsel stift(flaeche_, {kSchwarz, 1, Strichart::Voll}, {kWeiss, false});
    flaeche_.Vieleck(hell);
    flaeche_.SetzePinsel({kSchwarz, false});
    flaeche_.Vieleck(dunkel);
}

void Blattrahmen::ZeichneMassstab(const Blattstand& stand) const {
    constexpr int kSeitlich = 80;       ///< for half of the first and last number, and the unit
    constexpr double kSchritt = 30.0;   ///< that a bar's steps have at least, times its density
    constexpr double kGroesster = 2.5;  ///< how much larger than that they may be
    const Rechteck& z = layout_.zeichenfeld;
    const double platz = z.rechts - z.links - 2 * Dots(kSeitlich);
    if (!stand.inMetern || platz <= 0.0) return;
    const auto balken = MetrischerBalken(stand.faktor, platz / 4 / kGroesster / kSchritt);
    if (!balken) return;
    const std::size_t teile = balken->werte.size() - 1;
    const std::int32_t links =
        (z.links + z.rechts - static_cast<std::int32_t>(std::lround(balken->laenge))) / 2;
    const auto teil = [&](std::size_t i) {
        return links + static_cast<std::int32_t>(
                           std::lround(balken->laenge * static_cast<double>(i) / static_cast<double>(teile)));
    };
    const std::int32_t oben = z.oben + Dots(335);
    const std::int32_t unten = z.oben + Dots(355);
    const Stiftwechsel stift(flaeche_, {kSchwarz, 1, Strichart::Voll}, {kWeiss, false});
    flaeche_.SetzeStrichmass(kMarkenstrich);
    for (std::size_t i = 0; i < teile; ++i) {
        flaeche_.SetzePinsel({i % 2 == 0 ? kSchwarz : kWeiss, false});
        flaeche_.ZeichneRechteck({teil(i), oben, teil(i + 1), unten});
    }
    flaeche_.SetzeSchriftmass(Dots(kZahl));
    const std::int32_t zahlen = oben - Dots(kLuft) - flaeche_.Texthoehe();
    for (const std::size_t i : {std::size_t{0}, teile / 2, teile}) {
        const std::string& text = balken->werte[i];
        // The one in the middle only where it leaves room for its neighbours.
        if (i == teile / 2 && balken->laenge < 3.0 * flaeche_.Textbreite(balken->werte[teile])) continue;
        Schreibe({teil(i), zahlen}, Bezug::Mitte, text);
    }
    const std::int32_t hinter = teil(teile) + flaeche_.Textbreite(balken->werte[teile]) / 2;
    Schreibe({hinter + flaeche_.Textbreite(" "), zahlen}, Bezug::Links, balken->einheit);
    flaeche_.SetzeSchriftmass(0);
}

void Blattrahmen::ZeichneRahmen(const Blattstand& stand) const {
    flaeche_.SetzeEbene(Ebene::Grund);
    ZeichneKoordinaten(stand);
    ZeichneSchnittmarken(stand);
    NenneNachbarn(stand);
    ZeichneUebersicht(stand);
    ZeichneNordpfeil();
    ZeichneMassstab(stand);
    ZeichneSchriftfeld(flaeche_, layout_.schriftfeld, mass_, stand.texte);
    ZeichneLinien();
    flaeche_.SetzeStrichmass(0);
}

}  // namespace zrw
