// How the work grows with the network: 1 000 to 65 535 points with three lines each. Each time is set in
// relation to n log n of its points, and to the smaller networks.
#include <QApplication>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "model/Bilddatei.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/bild/Bildflaeche.h"

namespace {

using namespace zrw::bench;

constexpr int kWeite = 1920;
constexpr int kHoehe = 1080;
constexpr std::size_t kPunkte[]{1000, 4000, 16000, 65535};
/// Caches hold the small networks and not the large ones. Work that grows with n^1.5 would be at 3.4 already.
constexpr double kSpielraum = 2.0;

/// A network of one size and what is done with it.
class Groesse {
  public:
    Groesse(std::size_t punkte, const std::filesystem::path& ordner)
        : punkte_(punkte),
          steuerdatei_(ordner / (std::to_string(punkte) + ".EIN")),
          bilddatei_(ordner / (std::to_string(punkte) + ".ZRW")),
          plot_(ordner / zrw::kPlotname),
          dxf_(ordner / zrw::kDxfname),
          netz_(BaueNetz({.punkte = punkte, .paare = 3 * punkte, .beobachtungen = 4 * punkte}, e_,
                         {kWeite, kHoehe})),
          duenn_(BaueNetz({.punkte = punkte, .paare = punkte - 500, .beobachtungen = punkte * 3 / 2}, e_,
                          {kWeite, kHoehe})) {
        dateien_.ErsetzeDatei(
            steuerdatei_,
            ErzeugeSteuerdatei({.punkte = punkte, .paare = 3 * punkte, .beobachtungen = 4 * punkte}));
        SpeichereNetz();
    }

    [[nodiscard]] double NLogN() const {
        const auto n = static_cast<double>(punkte_);
        return n * std::log2(n);
    }
    [[nodiscard]] std::string Name() const { return std::to_string(punkte_); }

    void LiesNetz() const { (void)zrw::OeffneNetz(steuerdatei_, dateien_, e_, {}, {kWeite, kHoehe}, {}); }
    void WeltinBild() { netz_.liste->WeltinBild(); }
    void ZeichneNetz() {
        zustand_.flaeche = &flaeche_;
        netz_.liste->ShowPicture(zeichner_);
        flaeche_.SchliesseAb();
    }
    /// With one line a point: a picture file counts at most 65535.
    void SpeichereNetz() { zrw::SchreibeBilddatei(*duenn_.liste, duenn_.netz, bilddatei_, dateien_); }
    void OeffneBilddatei() {
        zrw::Netzangaben gelesen;
        (void)zrw::LiesBilddatei(bilddatei_, dateien_, e_, gelesen);
    }
    void ExportiereNetz() {
        zustand_.flaeche = nullptr;
        zrw::ExportierePlan(netz_.liste->Vorlage(), {zustand_, e_, netz_.netz, uhr_}, dateien_,
                            {zrw::Druckfaktor(25000, 600), plot_, dxf_});
    }

  private:
    std::size_t punkte_;
    std::filesystem::path steuerdatei_, bilddatei_, plot_, dxf_;
    const zrw::Einstellungen e_;
    zrw::Systemdateien dateien_;
    zrw::Lesung netz_;
    zrw::Lesung duenn_;
    const zrw::Systemuhr uhr_;
    zrw::Bildflaeche flaeche_{kWeite, kHoehe};
    zrw::Zeichenzustand zustand_;
    zrw::Figurenzeichner zeichner_{zustand_, e_, netz_.netz, uhr_};
};

struct Arbeit {
    const char* was;
    void (*tue)(Groesse&);
};

constexpr Arbeit kArbeiten[]{
    {"Lesen", [](Groesse& g) { g.LiesNetz(); }},
    {"WeltinBild", [](Groesse& g) { g.WeltinBild(); }},
    {"Bild a mit Nummern", [](Groesse& g) { g.ZeichneNetz(); }},
    {"Zarwikdatei speichern", [](Groesse& g) { g.SpeichereNetz(); }},
    {"Zarwikdatei öffnen", [](Groesse& g) { g.OeffneBilddatei(); }},
    {"Export", [](Groesse& g) { g.ExportiereNetz(); }},
};

int MissAlles(Tabelle& tabelle) {
    int worte = 1;
    char name[] = "bench_wachstum";
    char* argumente[] = {name, nullptr};
    const QApplication anwendung(worte, argumente);
    const Zwischenordner ordner;
    std::vector<std::unique_ptr<Groesse>> groessen;
    for (const std::size_t punkte : kPunkte)
        groessen.push_back(std::make_unique<Groesse>(punkte, ordner.Pfad()));
    for (const Arbeit& a : kArbeiten) {
        std::vector<Schritt> schritte;
        for (const auto& g : groessen) {
            schritte.push_back({std::string(a.was) + ", " + g->Name() + " Punkte", 0, [&a, &g] {
                                    return MissZeit([&] {
                                        a.tue(*g);
                                        return 0;
                                    });
                                }});
        }
        LaufeSchritte(schritte, tabelle.runden);
        DruckeSchritte(schritte);
        // Against the best of all smaller networks: what every run costs would hide growth in the smallest.
        double bisher = 1e300;
        double groesstes = 0.0;
        for (std::size_t i = 0; i < schritte.size(); ++i) {
            const double jeNLogN = Kleinster(schritte[i].zeiten) / groessen[i]->NLogN();
            if (i > 0) groesstes = std::max(groesstes, jeNLogN / bisher);
            bisher = std::min(bisher, jeNLogN);
            std::printf("%-46s %9.2f ns\n", "    je n log n", jeNLogN * 1e6);
            tabelle.NimmZeile({"Wachstum, " + schritte[i].name, schritte[i].zeiten});
        }
        tabelle.NimmZeile({std::string("Wachstum, ") + a.was + ": je n log n, zum besten kleineren",
                           {groesstes},
                           {},
                           Hoechstwert(kSpielraum),
                           "fach"});
    }
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
