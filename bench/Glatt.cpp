// Smooth and plain frames of the window's picture on one and two cores, in the size of two common screens,
// beside the painter of Qt with antialiasing on the same figures.
#include <QApplication>
#include <algorithm>
#include <array>
#include <memory>
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
#include "ui/bild/Bildpflege.h"

namespace {

using namespace zrw::bench;

struct Netzgroesse {
    const char* name;
    Netzmass mass;
    // Bounds at both sizes [ms]; 0: none.
    double eckig[2];
    double glatt[2];
};

constexpr Netzgroesse kNetze[]{
    {"ganzes Netz", {}, {16, 40}, {100, 250}},
    {"5000 Linien", {.punkte = 1700, .paare = 5000, .beobachtungen = 7300}, {0, 0}, {0, 16}}};

/// One network in one size of picture.
class Bildgroessenprobe {
  public:
    Bildgroessenprobe(const Netzgroesse& netz, int vergroesserung)
        : weite_(kWeite * vergroesserung),
          hoehe_(kHoehe * vergroesserung),
          netz_(BaueNetz(netz.mass, einstellungen_, {weite_, hoehe_})),
          gut_(*netz_.liste, einstellungen_, weite_, hoehe_, true) {
        netz_.liste->FindWorldMinMax();
        netz_.liste->PasseEin();
        for (const unsigned helfer : {0U, 1U}) {
            auto& f = flaechen_.emplace_back(std::make_unique<zrw::Bildflaeche>(1, 1));
            f->SetzeHelfer(helfer);
            f->SetzeGroesse(weite_, hoehe_);
        }
    }

    [[nodiscard]] double MissMaler() {
        return MissZeit([&] {
            netz_.liste->WeltinBild();
            gut_.ZeichneBild();
            return 0;
        });
    }
    [[nodiscard]] double MissBild(bool glatt, std::size_t helfer) {
        zrw::Bildflaeche& f = *flaechen_[helfer];
        f.SetzeGlatt(glatt);
        return MissZeit([&] {
            zustand_.flaeche = &f;
            zrw::ZeichneBild(netz_.liste->Vorlage(), zeichner_);
            f.SchliesseAb();
            return 0;
        });
    }
    /// The longest step while a picture becomes smooth: so long an event may have to wait.
    [[nodiscard]] double MissAufgeben() {
        zrw::Bildflaeche& f = *flaechen_[1];
        zustand_.flaeche = &f;
        zrw::Bildpflege pflege(zustand_, f, zeichner_);
        pflege.SetzeGlatt(true);
        pflege.ZeichneNeu(netz_.liste->Vorlage());
        double laengster = 0;
        while (pflege.Rau()) {
            laengster = std::max(laengster, MissZeit([&] {
                                     pflege.GlaetteZeilen(netz_.liste->Vorlage());
                                     return 0;
                                 }));
        }
        return laengster;
    }

  private:
    int weite_;
    int hoehe_;
    const zrw::Einstellungen einstellungen_;
    const zrw::Systemuhr uhr_;
    zrw::Lesung netz_;
    GuterMaler gut_;
    std::vector<std::unique_ptr<zrw::Bildflaeche>> flaechen_;
    zrw::Zeichenzustand zustand_;
    zrw::Figurenzeichner zeichner_{zustand_, einstellungen_, netz_.netz, uhr_};
};

void MissGroesse(Tabelle& tabelle, const Netzgroesse& netz, int vergroesserung) {
    constexpr double kZumMaler = 0.15;
    constexpr double kAufgeben = 5;
    const auto g = static_cast<std::size_t>(vergroesserung - 1);
    Bildgroessenprobe probe(netz, vergroesserung);
    std::vector<Schritt> schritte{
        {"Maler von Qt, geglättet", 0, [&] { return probe.MissMaler(); }},
        {"eckig, ein Kern", 0, [&] { return probe.MissBild(false, 0); }},
        {"eckig, zwei Kerne", 0, [&] { return probe.MissBild(false, 1); }},
        {"glatt, ein Kern", 0, [&] { return probe.MissBild(true, 0); }},
        {"glatt, zwei Kerne", 0, [&] { return probe.MissBild(true, 1); }},
        {"längster Schritt beim Glätten", 0, [&] { return probe.MissAufgeben(); }},
    };
    LaufeSchritte(schritte, tabelle.runden);
    DruckeSchritte(schritte);
    std::array<std::vector<double>, 6> zeiten;
    std::transform(schritte.begin(), schritte.end(), zeiten.begin(),
                   [](const Schritt& s) { return s.zeiten; });
    const std::string name = std::string("Glatt, ") + netz.name + ", " +
                             std::to_string(kWeite * vergroesserung) + " x " +
                             std::to_string(kHoehe * vergroesserung);
    const auto hoechstens = [](double grenze) { return grenze > 0 ? Hoechstwert(grenze) : Ziel{}; };
    const auto& [maler, eckig, eckigZwei, glatt, glattZwei, schritt] = zeiten;
    tabelle.NimmZeile({name + ": eckig, ein Kern", eckig, {}, {}});
    tabelle.NimmZeile({name + ": eckig, zwei Kerne", eckigZwei, {}, hoechstens(netz.eckig[g])});
    tabelle.NimmZeile({name + ": ein Kern zum Maler", glatt, maler, {}});
    tabelle.NimmZeile({name + ": zwei Kerne zum Maler", glattZwei, maler, Verhaeltnis(kZumMaler)});
    tabelle.NimmZeile({name + ": zwei Kerne", glattZwei, {}, hoechstens(netz.glatt[g])});
    tabelle.NimmZeile({name + ": längster Schritt", schritt, {}, Hoechstwert(kAufgeben)});
}

int MissAlles(Tabelle& tabelle) {
    for (const Netzgroesse& netz : kNetze) {
        for (const int vergroesserung : {1, 2})
            MissGroesse(tabelle, netz, vergroesserung);
    }
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication anwendung(anzahl, worte);
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
