// A whole frame of the largest network in four views, with and without numbers, from world coordinates to the
// last pixel: the picture's own surface beside the painter of Qt used well, the painter in the place of the
// surface, and the painter that is handed everything. The pictures must be the same inside.
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/GuterMaler.h"
#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/Bildflaeche.h"

namespace {

using namespace zrw::bench;

constexpr int kWeite = 1920;
constexpr int kHoehe = 1080;

struct Ansicht {
    const char* name;
    const char* was;
    bool fuellend;   ///< the points fill the picture, not the fit of whole kilometres
    double flaeche;  ///< part of the network's area that is seen
    // Bounds with and without numbers; 0: none.
    double gut[2];       ///< own / painter used well
    double schlicht[2];  ///< own / painter used plainly
    double richtwert;    ///< [ms]
};

constexpr Ansicht kAnsichten[]{
    {"a", "alles, eigene Einpassung", false, 1.0, {0.08, 0.12}, {1.0 / 20, 1.0 / 14}, 16},
    {"a2", "alles, bildfüllend", true, 1.0, {0, 0.22}, {0, 0}, 30},
    {"b", "ein Zehntel der Fläche", true, 0.1, {0.30, 0.30}, {1.0 / 25, 1.0 / 25}, 10},
    {"c", "ein Tausendstel", true, 0.001, {0.60, 0.60}, {1.0 / 80, 1.0 / 80}, 3}};

void SetzeAnsicht(zrw::Liste& l, const Ansicht& a) {
    l.FindWorldMinMax();
    l.PasseEin();
    if (!a.fuellend) return;
    double minX = 1e300;
    double maxX = -1e300;
    double minY = 1e300;
    double maxY = -1e300;
    for (const auto* p = l.PunktKnoten; p != nullptr; p = p->Next) {
        minX = std::min(minX, p->XWPu);
        maxX = std::max(maxX, p->XWPu);
        minY = std::min(minY, p->YWPu);
        maxY = std::max(maxY, p->YWPu);
    }
    const double voll = std::max((maxX - minX) / kWeite, (maxY - minY) / kHoehe);
    l.Faktor = voll * std::sqrt(a.flaeche);
    l.XOffset = (minX + maxX - kWeite * l.Faktor) / 2 - l.MinXW;
    l.YOffset = (minY + maxY + kHoehe * l.Faktor) / 2 - l.MaxYW;
    l.WeltinBild();
}

/// Pixels that differ, and those of them that no stroke over the border touches: the painter cuts such
/// strokes first and sets other pixels then.
struct Unterschied {
    int alle = 0;
    int innen = 0;
};

Unterschied Vergleiche(const QImage& bild, const GuterMaler& gut) {
    zrw::Bildflaeche rand(kWeite, kHoehe);
    for (const bool schnell : {true, false}) {
        rand.SetzeSchnell(schnell);
        for (const GuterMaler::Randstrich& s : gut.Randstriche()) {
            rand.SetzeStift(
                {zrw::kSchwarz, 1, s.gestrichelt ? zrw::Strichart::Gestrichelt : zrw::Strichart::Voll});
            rand.Linie({s.linie.x1(), s.linie.y1()}, {s.linie.x2(), s.linie.y2()});
        }
    }
    Unterschied u;
    for (int y = 0; y < kHoehe; ++y) {
        for (int x = 0; x < kWeite; ++x) {
            if (bild.pixel(x, y) == gut.Bild().pixel(x, y)) continue;
            ++u.alle;
            if (rand.Bild().pixel(x, y) == qRgb(255, 255, 255)) ++u.innen;
        }
    }
    return u;
}

/// The network and everything that draws it.
class Vergleich {
  public:
    explicit Vergleich(Tabelle& tabelle)
        : tabelle_(tabelle),
          netz_(BaueNetz({}, einstellungen_, {kWeite, kHoehe})),
          liste_(*netz_.liste),
          gut_(liste_, einstellungen_, kWeite, kHoehe),
          allesbild_(kWeite, kHoehe, QImage::Format_RGB32),
          allesmaler_(&allesbild_),
          alles_(allesmaler_, {-10000000, -10000000, 10000000, 10000000}) {
        maler_.SetzeSchnell(false);
    }

    void Miss(const Ansicht& a, bool nummern) {
        SetzeAnsicht(liste_, a);
        liste_.ShowPktText = nummern;
        std::vector<Schritt> schritte{
            {"Maler von Qt, gut genutzt", 0,
             [&] {
                 return zrw::bench::Miss([&] {
                     liste_.WeltinBild();
                     gut_.Zeichne();
                     return 0;
                 });
             }},
            {"eigene Fläche", 0, [&] { return Zeichne(eigene_); }},
            {"Maler an Stelle der Fläche", 0, [&] { return Zeichne(maler_); }},
        };
        if (!tabelle_.kurz)
            schritte.push_back({"Maler, alles hingegeben", 0, [&] { return Zeichne(alles_); }});
        Laufe(schritte, tabelle_.runden);
        const std::string name = std::string("Bild ") + a.name + (nummern ? " mit Nummern" : " ohne Nummern");
        const Unterschied u = Vergleiche(eigene_.Bild(), gut_);
        std::printf(
            "%s (%s); %d Pixel anders als gut genutzter Maler, %d davon nicht an Strichen über den Rand\n",
            name.c_str(), a.was, u.alle, u.innen);
        Drucke(schritte);
        const std::size_t i = nummern ? 0 : 1;
        const auto ziel = [](double grenze) { return grenze > 0 ? Verhaeltnis(grenze) : Ziel{}; };
        tabelle_.Nimm(
            {name + ": zum gut genutzten Maler", schritte[1].zeiten, schritte[0].zeiten, ziel(a.gut[i])});
        tabelle_.Nimm({name + ": zum Maler an Stelle der Fläche", schritte[1].zeiten, schritte[2].zeiten,
                       ziel(a.schlicht[i])});
        if (!tabelle_.kurz) {
            tabelle_.Nimm({name + ": zum Maler, alles hingegeben", schritte[1].zeiten, schritte[3].zeiten,
                           ziel(a.schlicht[i])});
        }
        tabelle_.Nimm({name + ": Richtwert", schritte[1].zeiten, {}, Hoechstwert(a.richtwert)});
        tabelle_.Nimm(
            {name + ": andere Pixel innen", {static_cast<double>(u.innen)}, {}, Hoechstwert(0), "px"});
    }

  private:
    double Zeichne(zrw::Zeichenflaeche& f) {
        return zrw::bench::Miss([&] {
            zustand_.flaeche = &f;
            liste_.WeltinBild();
            liste_.ShowPicture(zeichner_);
            return 0;
        });
    }

    Tabelle& tabelle_;
    const zrw::Einstellungen einstellungen_;
    const zrw::Systemuhr uhr_;
    zrw::Lesung netz_;
    zrw::Liste& liste_;
    GuterMaler gut_;
    zrw::Bildflaeche eigene_{kWeite, kHoehe};
    zrw::Bildflaeche maler_{kWeite, kHoehe};
    // A surface that takes everything for visible: nothing is left out before the painter.
    QImage allesbild_;
    QPainter allesmaler_;
    zrw::Malerflaeche alles_;
    zrw::Zeichenzustand zustand_;
    zrw::Figurenzeichner zeichner_{zustand_, einstellungen_, netz_.netz, uhr_};
};

int Arbeite(Tabelle& tabelle) {
    int worte = 1;
    char name[] = "bench_bild";
    char* argumente[] = {name, nullptr};
    const QApplication anwendung(worte, argumente);
    Vergleich vergleich(tabelle);
    for (const Ansicht& a : kAnsichten) {
        for (const bool nummern : {true, false})
            vergleich.Miss(a, nummern);
    }
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return Fuehre(anzahl, worte, 5, Arbeite);
}
