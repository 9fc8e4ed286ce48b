// How long colouring takes: the classes of all lines of the largest network from as many observations, and a
// picture in colours beside the same without.
#include <QApplication>
#include <cstdio>

#include "beispiele/Zufall.h"
#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "model/ergebnisse/Einfaerbung.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/bild/Bildflaeche.h"

namespace {

using namespace zrw::bench;

constexpr int kWeite = 1920;
constexpr int kHoehe = 1080;

/// A row for every line, with an invented test value.
zrw::Beobachtungsliste ErfindeListe(const zrw::Liste& netz) {
    zrw::beispiel::Zufall zufall(1);
    zrw::Beobachtungsliste liste;
    for (const auto* k = netz.KanteKnoten; k != nullptr; k = k->Next) {
        zrw::Beobachtung& b = liste.zeilen.emplace_back();
        b.von = zrw::PunktNummernTyp(netz.GetPktText(k->ANr));
        b.nach = zrw::PunktNummernTyp(netz.GetPktText(k->ENr));
        b.werte.fill(zrw::kKeinWert);
        b.werte[static_cast<std::size_t>(zrw::Messwert::TG)] = zufall.Gleich(0.0, 3.5);
    }
    return liste;
}

int MissAlles(Tabelle& tabelle) {
    int worte = 1;
    char name[] = "bench_faerbung";
    char* argumente[] = {name, nullptr};
    const QApplication anwendung(worte, argumente);
    const zrw::Einstellungen e;
    const zrw::Lesung netz = BaueNetz({}, e, {kWeite, kHoehe});
    zrw::Liste& liste = *netz.liste;
    const zrw::Beobachtungsliste beobachtungen = ErfindeListe(liste);
    const zrw::Planfaerbung wahl{.einfaerbung = zrw::Einfaerbung{}};
    const auto stile = zrw::BaueStile(liste, wahl, beobachtungen, nullptr);
    zrw::Bildflaeche flaeche(kWeite, kHoehe);
    zrw::Zeichenzustand zustand;
    zustand.flaeche = &flaeche;
    const zrw::Systemuhr uhr;
    zrw::Figurenzeichner zeichner(zustand, e, netz.netz, uhr);
    const auto zeichne = [&](bool glatt, bool farben) {
        flaeche.SetzeGlatt(glatt);
        liste.Stile = farben ? stile : nullptr;
        return MissZeit([&] {
            liste.ShowPicture(zeichner);
            flaeche.SchliesseAb();
            return 0;
        });
    };
    std::printf("%d Punkte, %d Linien, %zu Beobachtungen, %dx%d\n", liste.MaxPkte, liste.MaxKant,
                beobachtungen.zeilen.size(), kWeite, kHoehe);
    std::vector<Schritt> schritte{
        {"(a) eckig, eigene Farben", 0, [&] { return zeichne(false, false); }},
        {"(b) eckig, nach TG", 0, [&] { return zeichne(false, true); }},
        {"(c) glatt, eigene Farben", 0, [&] { return zeichne(true, false); }},
        {"(d) glatt, nach TG", 0, [&] { return zeichne(true, true); }},
        {"(e) Klassen aller Linien", 0,
         [&] { return MissZeit([&] { return zrw::BaueStile(liste, wahl, beobachtungen, nullptr); }); }},
    };
    LaufeSchritte(schritte, tabelle.runden);
    DruckeSchritte(schritte);
    tabelle.NimmZeile(
        {"ganzes Netz eckig, eingefärbt zu ohne", schritte[1].zeiten, schritte[0].zeiten, Verhaeltnis(1.2)});
    tabelle.NimmZeile(
        {"ganzes Netz glatt, eingefärbt zu ohne", schritte[3].zeiten, schritte[2].zeiten, Verhaeltnis(1.2)});
    tabelle.NimmZeile({"Klassen aller Linien", schritte[4].zeiten, {}, Hoechstwert(300)});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
