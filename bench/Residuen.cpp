// How fast the results of the largest network are drawn, beside the raw limit: the same pens and lines handed
// to the same surface from a list.
#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>

#include "beispiele/Zufall.h"
#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "model/Punktergebnisse.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"

namespace {

using namespace zrw::bench;

struct Strich {
    zrw::Stift stift;
    zrw::Flaechenpunkt von, nach;
};

/// Sees every line with its pen and does as little as it can with it; writes them down on demand.
class Zaehlflaeche final : public zrw::Zeichenflaeche {
  public:
    std::size_t anzahl = 0;
    std::uint64_t summe = 0;
    std::vector<Strich>* mitschrift = nullptr;

    [[nodiscard]] zrw::Rechteck Sichtbar() const override { return {0, 0, 1199, 799}; }
    void Linie(zrw::Flaechenpunkt von, zrw::Flaechenpunkt nach) override {
        ++anzahl;
        summe += static_cast<std::uint32_t>(von.x ^ von.y ^ nach.x ^ nach.y) + AktuellerStift().farbe.wert;
        if (mitschrift != nullptr) mitschrift->push_back({AktuellerStift(), von, nach});
    }
    void ZeichneRechteck(const zrw::Rechteck& /*r*/) override {}
    void Ellipse(const zrw::Rechteck& /*r*/) override {}
    void Vieleck(std::span<const zrw::Flaechenpunkt> /*ecken*/) override {}
    void FuelleRechteck(const zrw::Rechteck& /*r*/, zrw::Farbe /*farbe*/) override {}
    void Text(zrw::Flaechenpunkt /*ort*/, std::string_view /*text*/, zrw::Farbe /*farbe*/) override {}
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override {
        return 6 * static_cast<std::int32_t>(text.size());
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return 12; }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return 8; }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return 11; }
};

/// Invented results of every point.
class Zufallsergebnisse final : public zrw::Punktergebnisse {
  public:
    /// @param achse  longest semi-axis of an ellipse [mm]
    Zufallsergebnisse(const zrw::Liste& liste, double achse) {
        zrw::beispiel::Zufall zufall(1);
        for (const zrw::PunktString* t = liste.PktTextKnoten; t != nullptr; t = t->Next) {
            zrw::Punktergebnis& e = werte_[std::string(t->Item->Aus.Text())];
            const auto rest = [&] { return zufall.Gleich(-30.0, 30.0); };
            e = {.dY = rest(), .dX = rest(), .dH = rest()};
            e.A = zufall.Gleich(achse / 2, achse);
            e.B = zufall.Gleich(achse / 4, e.A);
            e.Phi = zufall.Gleich(0.0, 200.0);
            e.mH = zufall.Gleich(1.0, 40.0);
            e.mL = zufall.Gleich(1.0, 40.0);
        }
    }
    void ErneuereErgebnisse() override {}
    [[nodiscard]] const zrw::Punktergebnis* ErgebnisZu(std::string_view nummer) const override {
        const auto i = werte_.find(std::string(nummer));
        return i != werte_.end() ? &i->second : nullptr;
    }

  private:
    std::unordered_map<std::string, zrw::Punktergebnis> werte_;
};

int MissAlles(Tabelle& tabelle) {
    const zrw::Einstellungen e;
    const zrw::Lesung netz = BaueNetz({}, e, {1200, 800});
    zrw::Liste& liste = *netz.liste;

    Zaehlflaeche flaeche;
    zrw::Zeichenzustand zustand;
    zustand.flaeche = &flaeche;
    const zrw::Systemuhr uhr;
    zrw::Figurenzeichner zeichner(zustand, e, netz.netz, uhr);
    // Small, middle and the most expensive: every ellipse of 201 lines.
    for (const double achse : {4.0, 30.0, 280.0}) {
        Zufallsergebnisse ergebnisse(liste, achse);
        zustand.Ergebnisse = &ergebnisse;
        const auto zeichne = [&](bool alle) {
            liste.ShowLGGen = true;
            liste.ShowLgRes = liste.ShowHRes = liste.ShowHGen = alle;
            return MissZeit([&] {
                zeichner.ZeichnePunktRes(liste.Vorlage());
                return 0;
            });
        };
        std::vector<Strich> striche;
        flaeche.mitschrift = &striche;
        (void)zeichne(true);
        flaeche.mitschrift = nullptr;
        std::printf("%d Punkte, Halbachsen bis %.0f px -> %zu Striche\n", liste.MaxPkte, achse,
                    striche.size());
        std::vector<Schritt> schritte{
            {"(a) dieselben Striche aus einer Liste", 0,
             [&] {
                 return MissZeit([&] {
                     for (const Strich& s : striche) {
                         flaeche.SetzeStift(s.stift);
                         flaeche.Linie(s.von, s.nach);
                     }
                     return 0;
                 });
             }},
            {"(b) alle vier Darstellungen", 0, [&] { return zeichne(true); }},
            {"    nur die Ellipsen", 0, [&] { return zeichne(false); }},
        };
        LaufeSchritte(schritte, tabelle.runden);
        DruckeSchritte(schritte);
        std::printf("\n");
        tabelle.NimmZeile(
            {"Ergebnisse bis " + std::to_string(static_cast<int>(achse)) + " px: zu den Strichen allein",
             schritte[1].zeiten, schritte[0].zeiten});
    }
    return flaeche.summe != 0 ? 0 : 1;
}

}  // namespace

int main(int anzahl, char** worte) {
    return FuehreMessungAus(anzahl, worte, 7, MissAlles);
}
