// How good the places are that point numbers get, and how long finding them takes, beside a plain choice of
// the first free of eight places. Quality hangs on no clock: the same figures on every machine.
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "beispiele/Zufall.h"
#include "bench/Messung.h"
#include "bench/Tabelle.h"
#include "input/Oeffnen.h"
#include "input/Systemdateien.h"
#include "output/Uhr.h"
#include "output/beschriftung/Planbeschriftung.h"
#include "ui/bild/Bildflaeche.h"

namespace {

using namespace zrw::bench;
using zrw::Beschriftungsaufgabe;
using zrw::Beschriftungsguete;
using zrw::Beschriftungswahl;
using zrw::beispiel::Zufall;

constexpr int kFein = 8;  // units of a pixel

int Einheiten(double pixel) {
    return static_cast<int>(pixel * kFein);
}

Beschriftungswahl Gierig(const Beschriftungswahl& wahl) {
    Beschriftungswahl w = wahl;
    w.plaetze = std::min(w.plaetze, 8);
    return w;
}

Beschriftungsguete Gesucht(const Beschriftungsaufgabe& a, const Beschriftungswahl& wahl) {
    return zrw::BewerteSchilder(a, zrw::OrdneSchilder(a, wahl).value());
}

Beschriftungsguete Einfach(const Beschriftungsaufgabe& a, const Beschriftungswahl& wahl) {
    return zrw::BewerteSchilder(a, zrw::OrdneGierig(a, Gierig(wahl)));
}

/// The sample network as a picture of this size.
Beschriftungsaufgabe Beispiel(zrw::Bildgroesse groesse) {
    zrw::Systemdateien dateien;
    const zrw::Einstellungen e;
    const zrw::Lesung l = zrw::OeffneNetz(ZRW_BEISPIEL, dateien, e, {}, groesse, [](const zrw::Meldung&) {});
    l.liste->ShowFL = true;
    const zrw::Zeichenzustand zustand;
    const zrw::Systemuhr uhr;
    return zrw::Planbeschriftung::FuerBild(l.liste->Vorlage(), {zustand, e, l.netz, uhr},
                                           zrw::Bildflaeche(1, 1), 1.0,
                                           [](const zrw::PunktString&) { return true; })
        .Aufgabe();
}

/// Labels of 30 x 7 on 792 x 612, the usual random test.
Beschriftungsaufgabe Zufallsaufgabe(int schilder, std::uint32_t saat) {
    Beschriftungsaufgabe a;
    a.blaetter = {{Einheiten(-1000), Einheiten(-1000), Einheiten(2000), Einheiten(2000)}};
    Zufall zufall(saat);
    for (int i = 0; i < schilder; ++i) {
        zrw::Schild s;
        s.punkt = {Einheiten(zufall.Gleich(0, 792)), Einheiten(zufall.Gleich(0, 612))};
        s.weite = Einheiten(30);
        s.hoehe = Einheiten(7);
        a.schilder.push_back(s);
    }
    return a;
}

void NimmPunkt(Beschriftungsaufgabe& a, zrw::Flaechenpunkt ort, int stellen, int radius) {
    zrw::Schild s;
    s.punkt = ort;
    s.weite = Einheiten(6 * stellen + 2);
    s.hoehe = Einheiten(11);
    s.radius = Einheiten(radius);
    a.schilder.push_back(s);
    a.symbole.push_back({ort, s.radius, s.radius});
}

/// Points along a winding line, one for each height of text.
Beschriftungsaufgabe Bahnstrecke() {
    Beschriftungsaufgabe a;
    a.blaetter = {{-1000000, -1000000, 1000000, 1000000}};
    Zufall zufall(3);
    double x = 0;
    double y = 0;
    double richtung = 0;
    for (int i = 0; i < 800; ++i) {
        richtung = (richtung + zufall.Gleich(-0.15, 0.15)) * 0.98;
        x += 11 * std::cos(richtung);
        y += 11 * std::sin(richtung);
        const double quer = zufall.Gleich(-5, 5);
        NimmPunkt(a, {Einheiten(x - quer * std::sin(richtung)), Einheiten(y + quer * std::cos(richtung))},
                  static_cast<int>(zufall.Gleich(5, 13)), 2);
        if (i > 0) a.striche.push_back({a.schilder[a.schilder.size() - 2].punkt, a.schilder.back().punkt, 4});
    }
    return a;
}

/// As dense as the sample: room, strokes and digits for each number.
Beschriftungsaufgabe WieBeispiel(int schilder) {
    constexpr double kRaum = 1200.0 * 800 / 165;
    Beschriftungsaufgabe a;
    const double weite = std::sqrt(schilder * kRaum * 1.5);
    a.blaetter = {{0, 0, Einheiten(weite), Einheiten(weite / 1.5)}};
    Zufall zufall(1);
    for (int i = 0; i < schilder; ++i) {
        const zrw::Flaechenpunkt ort{Einheiten(zufall.Gleich(0, weite)),
                                     Einheiten(zufall.Gleich(0, weite / 1.5))};
        NimmPunkt(a, ort, static_cast<int>(zufall.Gleich(2, 8)), 4);
        for (int j = 0; j < 6; ++j) {
            a.striche.push_back(
                {ort,
                 {ort.x + Einheiten(zufall.Gleich(-60, 60)), ort.y + Einheiten(zufall.Gleich(-60, 60))},
                 kFein / 2});
        }
    }
    return a;
}

void NimmZahl(Tabelle& t, const std::string& was, double eigene, double andere, double grenze,
              const char* einheit) {
    std::printf("%-60s %8.2f %-3s einfach %8.2f\n", was.c_str(), eigene, einheit, andere);
    t.NimmZeile({was, {eigene}, {andere}, Hoechstwert(grenze), einheit});
}

void MissBeispiel(Tabelle& t) {
    const Beschriftungsaufgabe klein = Beispiel({1200, 800});
    const auto zahl = [](std::size_t n) { return static_cast<double>(n); };
    const Beschriftungsguete g = Gesucht(klein, {});
    const Beschriftungsguete e = Einfach(klein, {});
    const std::string vorsatz = "Nummern des Beispiels, 1200x800: ";
    NimmZahl(t, vorsatz + "überlappt", zahl(g.ueberlappt), zahl(e.ueberlappt), 0, "");
    NimmZahl(t, vorsatz + "auf fremdem Symbol", zahl(g.aufSymbol), zahl(e.aufSymbol), 0, "");
    NimmZahl(t, vorsatz + "von Linien gekreuzt", zahl(g.gekreuzt), zahl(e.gekreuzt), 60, "");
    NimmZahl(t, vorsatz + "näher an fremdem Punkt", zahl(g.naeherAmFremden), zahl(e.naeherAmFremden), 20, "");
    NimmZahl(t, vorsatz + "mittlerer Abstand", g.mittlererAbstand / kFein, e.mittlererAbstand / kFein, 9,
             "px");
    NimmZahl(t, vorsatz + "größter Abstand", g.groessterAbstand / kFein, e.groessterAbstand / kFein, 20,
             "px");
    const Beschriftungsaufgabe gross = Beispiel({1600, 1200});
    NimmZahl(t, "Nummern des Beispiels, 1600x1200: von Linien gekreuzt", zahl(Gesucht(gross, {}).gekreuzt),
             zahl(Einfach(gross, {}).gekreuzt), 30, "");
}

void MissZufall(Tabelle& t) {
    Beschriftungswahl wahl;
    wahl.plaetze = 4;
    wahl.anliegend = true;
    wahl.gleiten = false;
    wahl.raster = 1;
    struct Stufe {
        int schilder;
        double grenze;
    };
    for (const Stufe s : {Stufe{250, 0.5}, Stufe{500, 3}, Stufe{750, 8}, Stufe{1000, 18}}) {
        constexpr int kSaaten = 5;
        double eigene = 0;
        double andere = 0;
        for (std::uint32_t saat = 1; saat <= kSaaten; ++saat) {
            const Beschriftungsaufgabe a = Zufallsaufgabe(s.schilder, saat);
            eigene += 100.0 * static_cast<double>(Gesucht(a, wahl).ueberlappt) / s.schilder / kSaaten;
            andere += 100.0 * static_cast<double>(Einfach(a, wahl).ueberlappt) / s.schilder / kSaaten;
        }
        NimmZahl(t, std::to_string(s.schilder) + " Zufallsnummern auf 4 Plätzen: überlappt", eigene, andere,
                 s.grenze, "%");
    }
}

void MissBahn(Tabelle& t) {
    const Beschriftungsaufgabe a = Bahnstrecke();
    const double andere = static_cast<double>(Einfach(a, {}).ueberlappt) / 8;
    for (const int weit : {3, 8}) {
        Beschriftungswahl wahl;
        wahl.weitester = 10 * weit;
        NimmZahl(t, "800 Nummern einer Bahnstrecke bis " + std::to_string(weit) + " Höhen weit: überlappt",
                 static_cast<double>(Gesucht(a, wahl).ueberlappt) / 8, andere, weit == 3 ? 10 : 0, "%");
    }
}

void MissDauer(Tabelle& t) {
    std::vector<std::vector<double>> zeiten;
    for (const int n : {1000, 16000, 65535}) {
        const Beschriftungsaufgabe a = WieBeispiel(n);
        auto& reihe = zeiten.emplace_back();
        for (int r = 0; r < std::min(t.runden, 5); ++r)
            reihe.push_back(MissZeit([&] { return zrw::OrdneSchilder(a, {}); }));
        std::printf("%d Nummern wie im Beispiel: %.0f ms\n", n, Kleinster(reihe));
    }
    t.NimmZeile({"1000 Nummern ordnen", zeiten[0], {}, Hoechstwert(100)});
    t.NimmZeile({"65 535 Nummern ordnen", zeiten[2], {}, Hoechstwert(5000)});
    t.NimmZeile({"65 535 zu 16 000 Nummern ordnen", zeiten[2], zeiten[1], Verhaeltnis(5)});
}

int MissAlles(Tabelle& tabelle) {
    MissBeispiel(tabelle);
    MissZufall(tabelle);
    MissBahn(tabelle);
    MissDauer(tabelle);
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication programm(anzahl, worte);
    return FuehreMessungAus(anzahl, worte, 3, MissAlles);
}
