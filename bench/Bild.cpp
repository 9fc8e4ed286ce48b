// A whole frame of the largest network in four views, with and without numbers: the picture's own surface
// beside the painter drawing the same figures in the same process. The pictures must be the same inside.
// usage: bench_bild [ROUNDS]
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "input/Oeffnen.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "tests/hilfe/Speicherdateien.h"
#include "ui/Bildflaeche.h"

namespace {

using zrw::bench::Miss;

constexpr int kWeite = 1920;
constexpr int kHoehe = 1080;

struct Ansicht {
    const char* name;
    bool fuellend;   ///< the points fill the picture, not the fit of whole kilometres
    double flaeche;  ///< part of the network's area that is seen
};

constexpr Ansicht kAnsichten[]{{"a  alles, eigene Einpassung", false, 1.0},
                               {"a2 alles, bildfüllend", true, 1.0},
                               {"b  ein Zehntel der Fläche", true, 0.1},
                               {"c  ein Tausendstel", true, 0.001}};

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

/// Pixels that differ.
int Unterschied(const QImage& a, const QImage& b) {
    int anzahl = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            anzahl += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    }
    return anzahl;
}

int Vergleiche(int runden) {
    const zrw::Einstellungen e;
    zrw::Speicherdateien quelle;
    quelle.dateien["N.EIN"] = zrw::bench::ErzeugeSteuerdatei({});
    const zrw::Lesung netz = zrw::OeffneNetz("N.EIN", quelle, e, {}, {kWeite, kHoehe}, {});
    zrw::Liste& liste = *netz.liste;
    liste.ShowFL = true;
    zrw::Bildflaeche eigene(kWeite, kHoehe);
    zrw::Bildflaeche maler(kWeite, kHoehe);
    maler.SetzeSchnell(false);
    const zrw::Systemuhr uhr;
    zrw::Zeichenzustand zustand;
    zrw::Figurenzeichner zeichner(zustand, e, netz.netz, uhr);
    for (const Ansicht& a : kAnsichten) {
        SetzeAnsicht(liste, a);
        for (const bool nummern : {true, false}) {
            liste.ShowPktText = nummern;
            const auto zeichne = [&](zrw::Bildflaeche& f) {
                return Miss([&] {
                    zustand.flaeche = &f;
                    liste.WeltinBild();
                    liste.ShowPicture(zeichner);
                    return 0;
                });
            };
            std::vector<zrw::bench::Schritt> schritte{
                {"Maler von Qt", 0, [&] { return zeichne(maler); }},
                {"eigene Fläche", 0, [&] { return zeichne(eigene); }},
            };
            zrw::bench::Laufe(schritte, runden);
            std::printf("%s, %s Nummern; %d Pixel verschieden\n", a.name, nummern ? "mit" : "ohne",
                        Unterschied(eigene.Bild(), maler.Bild()));
            zrw::bench::Drucke(schritte);
        }
    }
    return 0;
}

}  // namespace

int main(int anzahl, char** argumente) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int worte = 1;
    const QApplication anwendung(worte, argumente);
    const int runden = anzahl > 1 ? std::atoi(argumente[1]) : 5;
    try {
        return Vergleiche(runden > 0 ? runden : 5);
    } catch (const std::exception& f) {
        std::fprintf(stderr, "%s\n", f.what());
        return 1;
    }
}
