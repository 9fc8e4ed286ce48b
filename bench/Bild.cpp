// A whole frame of the largest network in four views, with and without numbers, from world coordinates to the
// last pixel: the picture's own surface beside the painter of Qt used well, the painter in the place of the
// surface, and the painter that is handed everything. The pictures must be the same inside.
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/Ansichten.h"
#include "bench/GuterMaler.h"
#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/bild/Bildflaeche.h"

namespace {

using namespace zrw::bench;

/// Pixels that differ, and those of them that no stroke over the border touches: the painter cuts such
/// strokes first and sets other pixels then.
struct Unterschied {
    int alle = 0;
    int innen = 0;
};

Unterschied VergleicheBilder(const QImage& bild, const GuterMaler& gut) {
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

    void MissAnsicht(const Ansicht& a, bool nummern) {
        SetzeAnsicht(liste_, a);
        liste_.ShowPktText = nummern;
        std::vector<Schritt> schritte{
            {"Maler von Qt, gut genutzt", 0,
             [&] {
                 return zrw::bench::MissZeit([&] {
                     liste_.WeltinBild();
                     gut_.ZeichneBild();
                     return 0;
                 });
             }},
            {"eigene Fläche", 0, [&] { return MissZeichnen(eigene_); }},
            {"Maler von Qt, alles hingegeben", 0, [&] { return MissZeichnen(alles_); }},
        };
        if (!tabelle_.kurz)
            schritte.push_back({"Maler an Stelle der Fläche", 0, [&] { return MissZeichnen(maler_); }});
        LaufeSchritte(schritte, tabelle_.runden);
        const std::string name = std::string("Bild ") + a.name + (nummern ? " mit Nummern" : " ohne Nummern");
        const Unterschied u = VergleicheBilder(eigene_.Bild(), gut_);
        std::printf(
            "%s (%s); %d Pixel anders als gut genutzter Maler, %d davon nicht an Strichen über den Rand\n",
            name.c_str(), a.was, u.alle, u.innen);
        DruckeSchritte(schritte);
        const std::size_t i = nummern ? 0 : 1;
        const auto ziel = [](double grenze) { return grenze > 0 ? Verhaeltnis(grenze) : Ziel{}; };
        tabelle_.NimmZeile(
            {name + ": zum gut genutzten Maler", schritte[1].zeiten, schritte[0].zeiten, ziel(a.gut[i])});
        tabelle_.NimmZeile(
            {name + ": zum Maler, schlicht", schritte[1].zeiten, schritte[2].zeiten, ziel(a.schlicht[i])});
        tabelle_.NimmZeile({name + ": Richtwert", schritte[1].zeiten, {}, Hoechstwert(a.richtwert)});
        tabelle_.NimmZeile(
            {name + ": andere Pixel innen", {static_cast<double>(u.innen)}, {}, Hoechstwert(0), "px"});
    }

  private:
    double MissZeichnen(zrw::Zeichenflaeche& f) {
        return zrw::bench::MissZeit([&] {
            zustand_.flaeche = &f;
            liste_.ShowPicture(zeichner_);
            eigene_.SchliesseAb();  // helpers may still be drawing
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

int MissAlles(Tabelle& tabelle) {
    Vergleich vergleich(tabelle);
    for (const Ansicht& a : kAnsichten) {
        for (const bool nummern : {true, false})
            vergleich.MissAnsicht(a, nummern);
    }
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication anwendung(anzahl, worte);
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
