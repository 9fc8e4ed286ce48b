#include "output/blatt/Blattdruck.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "geo/Zrwgeo.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"
#include "model/Ganzzahl.h"
#include "output/Export.h"
#include "output/blatt/Blattfenster.h"
#include "output/blatt/Blattrahmen.h"

namespace zrw {
namespace {

Schriftfeldtexte Texte(const Bildvorlage& v, const Zeichenmittel& mittel, const Blattauftrag& a,
                       std::size_t nummer) {
    const Blatttexte& t = a.gestaltung.texte;
    Schriftfeldtexte s;
    s.firma = t.firma;
    s.projekt = t.projekt;
    s.bearbeiter = t.bearbeiter;
    if (const auto& legende = v.darstellung.Legend) {
        s.titel = legende->Bez1;
        s.untertitel = legende->Bez2;
    }
    s.massstab = "1:" + a.druck.massstabtext;
    if (a.systemBekannt) s.koordinatensystem = Koordinatensystem(mittel.netz);
    const std::string zeit = mittel.uhr.DatumZeit();
    s.datum = zeit.substr(0, zeit.find(' '));
    s.datei = a.datei;
    s.blatt = std::to_string(nummer + 1) + " von " + std::to_string(a.blaetter.size());
    return s;
}

}  // namespace

std::string Koordinatensystem(const Netzangaben& netz) {
    if (!HatKartengitter(netz.Netztyp) || !netz.AbbildungGenannt) return {};
    const auto abbildung = static_cast<Abbildung>(netz.Abbildungsmodus);
    const bool gk = abbildung == Abbildung::GaussKrueger || PunkteInGaussKrueger(netz.Netztyp);
    std::string name = gk ? "Gauß-Krüger" : abbildung == Abbildung::Utm ? "UTM" : "Transversale Mercator";
    if (InMetern(netz.Netztyp)) {
        name += ", Meridian " + std::to_string(netz.Hauptmeridian) + "°";
    } else {
        name = "Geographisch";
    }
    if (netz.EllipsoidGenannt && EllipsoidBekannt(netz.Ellipsoid))
        name += ", " + std::string(EllipsoidName(netz.Ellipsoid));
    return Utf8NachCp1252(name);
}

Blattteilung TeileSeite(const Druckseite& seite, bool rahmen, const Blattgestaltung& gestaltung) {
    Blattteilung t{seite, {}, 0};
    if (rahmen) {
        const Rechteck p = Blattlayout::FuerSeite(seite).planflaeche;
        t.plan = {std::max(p.rechts - p.links, 1), std::max(p.unten - p.oben, 1), seite.aufloesung};
        t.ecke = {p.links, p.oben};
    }
    const std::int32_t ganz = Papiermass(seite.aufloesung).Dots(gestaltung.ueberlappung * 10);
    // At least half of each sheet is its own.
    t.ueberlappung = std::clamp(ganz, 0, std::min(t.plan.weite, t.plan.hoehe) / 2);
    return t;
}

namespace {

/// The share of a sheet that is its own.
Druckseite EigeneFlaeche(const Blattteilung& t) {
    return {t.plan.weite - t.ueberlappung, t.plan.hoehe - t.ueberlappung, t.plan.aufloesung};
}

/// How far a sheet reaches beyond its share, to each side [m].
double Ueberstand(const Blattteilung& t, double massstab) {
    return t.ueberlappung / 2 * Druckfaktor(massstab, t.plan.aufloesung);  // NOLINT: whole dots
}

std::vector<Blatt> Erweitert(std::vector<Blatt> blaetter, double meter) {
    for (Blatt& b : blaetter)
        b.ecke = {b.ecke.rechts - meter, b.ecke.hoch + meter};
    return blaetter;
}

}  // namespace

std::vector<Blatt> TeileBlaetterAuf(const Druckplan& plan, double massstab, const Blattteilung& teilung) {
    auto blaetter = Blattaufteilung(plan, massstab, teilung.plan);
    if (teilung.ueberlappung == 0 || blaetter.size() < 2) return blaetter;
    return Erweitert(Blattaufteilung(plan, massstab, EigeneFlaeche(teilung)), Ueberstand(teilung, massstab));
}

std::vector<Blatt> TeileBlaetterAuf(const Druckplan& plan, double massstab, const Blattteilung& teilung,
                                    Welt ursprung) {
    const double meter = Ueberstand(teilung, massstab);
    return Erweitert(Blattschnitt(plan, massstab, EigeneFlaeche(teilung),
                                  {ursprung.rechts + meter, ursprung.hoch - meter}),
                     meter);
}

std::optional<double> PassenderMassstab(const Druckplan& plan, const Blattteilung& teilung,
                                        std::size_t blaetter) {
    if (blaetter <= 1) return PassenderMassstab(plan, teilung.plan);
    return GroessterMassstab(plan, teilung.plan, static_cast<double>(blaetter), [&](double massstab) {
        try {
            const std::size_t gebraucht = TeileBlaetterAuf(plan, massstab, teilung).size();
            return gebraucht > 0 && gebraucht <= blaetter;
        } catch (const Fehler&) {
            return false;  // far too many
        }
    });
}

void DruckeBlatt(const Bildvorlage& v, const Zeichenmittel& mittel, const Einstellungen& groessen,
                 Zeichenflaeche& drucker, const Blattauftrag& auftrag, std::size_t nummer) {
    Druckauftrag druck = auftrag.druck;
    const Blatt& blatt = auftrag.blaetter[nummer];
    const bool rahmen = mittel.zustand.Blattrahmen;
    const Blattgestaltung& g = auftrag.gestaltung;
    druck.ecke = blatt.ecke;
    if (!rahmen && !g.schwarzweiss && !(g.stift > 0.0))
        return DruckePlan(v, mittel, groessen, drucker, druck);
    const Druckseite& seite = druck.seite;
    const Blattteilung teilung = TeileSeite(seite, rahmen, g);
    const double faktor = Druckfaktor(druck.massstab, seite.aufloesung);
    // The view is that of the whole page: what is drawn beyond the plan area cannot be seen.
    druck.ecke = Welt{blatt.ecke.rechts - static_cast<double>(teilung.ecke.x) * faktor,
                      blatt.ecke.hoch + static_cast<double>(teilung.ecke.y) * faktor};
    if (v.legende != nullptr) {
        const double dichte = Geraetefaktor(seite);
        const Bildpunkt ort =
            druck.legende.value_or(Bildpunkt{RundeZuInt64(static_cast<double>(v.legende->XO) * dichte),
                                             RundeZuInt64(static_cast<double>(v.legende->YO) * dichte)});
        druck.legende = Bildpunkt{Summe(ort.x, teilung.ecke.x), Summe(ort.y, teilung.ecke.y)};
    }
    const auto x = static_cast<std::int32_t>(teilung.ecke.x);
    const auto y = static_cast<std::int32_t>(teilung.ecke.y);
    Rechteck planflaeche{0, 0, seite.weite - 1, seite.hoehe - 1};
    if (rahmen) planflaeche = {x, y, x + teilung.plan.weite, y + teilung.plan.hoehe};
    Zeichenzustand zustand = mittel.zustand;
    zustand.GitterSchlicht = zustand.GitterSchlicht || rahmen;
    std::vector<Rechteck> kaesten;
    {
        Blattfenster fenster(drucker, planflaeche, g.schwarzweiss, g.stift);
        if (rahmen) fenster.BeginneFenster(planflaeche);
        DruckePlan(v, {zustand, mittel.einstellungen, mittel.netz, mittel.uhr}, groessen, fenster, druck);
        if (rahmen) fenster.BeendeFenster();
        kaesten = fenster.Kaesten();
    }
    if (!rahmen) return;
    Blattrahmen(drucker, seite)
        .ZeichneRahmen({.texte = Texte(v, mittel, auftrag, nummer),
                        .faktor = faktor,
                        .ecke = blatt.ecke,
                        .inMetern = InMetern(mittel.netz.Netztyp),
                        .ueberlappung = teilung.ueberlappung,
                        .blaetter = auftrag.blaetter,
                        .nummer = nummer,
                        .kaesten = std::move(kaesten)});
}

}  // namespace zrw
