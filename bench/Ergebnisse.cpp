// How long the results of the largest network take from their table to the picture: the first time, with
// import, and afterwards, beside a redraw without them and their raw strokes through the same painter.
#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <string>
#include <vector>

#include "beispiele/Zufall.h"
#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "input/tabellen/UnitZRWData.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"
#include "ui/bild/Bildflaeche.h"

namespace {

using namespace zrw::bench;

constexpr int kWeite = 1920;
constexpr int kHoehe = 1080;
constexpr std::size_t kZeilen = 65000;

struct Strich {
    zrw::Stift stift;
    zrw::Flaechenpunkt von, nach;
};

/// Writes down the lines that a drawing consists of.
class Mitschrift final : public zrw::Zeichenflaeche {
  public:
    explicit Mitschrift(const zrw::Zeichenflaeche& vorbild) : vorbild_(vorbild) {}
    std::vector<Strich> striche;

    [[nodiscard]] zrw::Rechteck Sichtbar() const override { return vorbild_.Sichtbar(); }
    void Linie(zrw::Flaechenpunkt von, zrw::Flaechenpunkt nach) override {
        striche.push_back({AktuellerStift(), von, nach});
    }
    void ZeichneRechteck(const zrw::Rechteck& /*r*/) override {}
    void Ellipse(const zrw::Rechteck& /*r*/) override {}
    void Vieleck(std::span<const zrw::Flaechenpunkt> /*ecken*/) override {}
    void FuelleRechteck(const zrw::Rechteck& /*r*/, zrw::Farbe /*farbe*/) override {}
    void Text(zrw::Flaechenpunkt /*ort*/, std::string_view /*text*/, zrw::Farbe /*farbe*/) override {}
    [[nodiscard]] std::int32_t Textbreite(std::string_view t) const override {
        return vorbild_.Textbreite(t);
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return vorbild_.Texthoehe(); }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return vorbild_.Schriftgrad(); }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return vorbild_.Schrifthoehe(); }

  private:
    const zrw::Zeichenflaeche& vorbild_;
};

/// The table of coordinates for points of the network, with invented residuals and accuracies.
void SchreibeTabelle(const zrw::Liste& liste, zrw::Dateien& dateien, const std::string& ordner) {
    using zrw::paradox::Wert;
    zrw::beispiel::Zufall zufall(1);
    std::vector<std::vector<Wert>> zeilen;
    for (const auto* t = liste.PktTextKnoten; t != nullptr && zeilen.size() < kZeilen; t = t->Next) {
        std::vector<Wert> zeile(20);
        zeile[0] = static_cast<std::int64_t>(zeilen.size() + 1);
        zeile[1] = t->Item->Aus.Text();
        for (std::size_t i = 2; i < 20; ++i)
            zeile[i] = zufall.Gleich(1.0, 30.0);
        zeile[2] = std::int64_t{1};
        zeile[18] = "N";
        zeile[19] = std::int64_t{1};
        zeilen.push_back(std::move(zeile));
    }
    zrw::ErzeugeTabelle(dateien, ordner, zrw::Tabelle::Koordinaten, zeilen, 0);
}

int MissAlles(Tabelle& tabelle) {
    int worte = 1;
    char name[] = "bench_ergebnisse";
    char* argumente[] = {name, nullptr};
    const QApplication anwendung(worte, argumente);
    const zrw::Einstellungen e;
    const zrw::Lesung netz = BaueNetz({}, e, {kWeite, kHoehe});
    zrw::Liste& liste = *netz.liste;
    const QTemporaryDir ordner;
    zrw::Systemdateien dateien;
    SchreibeTabelle(liste, dateien, ordner.path().toStdString());

    zrw::Bildflaeche flaeche(kWeite, kHoehe);
    zrw::Zeichenzustand zustand;
    zustand.flaeche = &flaeche;
    const zrw::Systemuhr uhr;
    zrw::Figurenzeichner zeichner(zustand, e, netz.netz, uhr);
    zrw::TDM daten(dateien);
    daten.SetzeOrdner(ordner.path().toStdString());
    zustand.Ergebnisse = &daten;
    const auto schalte = [&](bool ein) {
        liste.ShowLgRes = liste.ShowHRes = liste.ShowLGGen = liste.ShowHGen = ein;
    };
    const auto zeichne = [&](bool mit) {
        schalte(mit);
        return MissZeit([&] {
            liste.ShowPicture(zeichner);
            return 0;
        });
    };
    schalte(true);
    Mitschrift mitschrift(flaeche);
    zustand.flaeche = &mitschrift;
    zeichner.ZeichnePunktRes(liste.Vorlage());
    zustand.flaeche = &flaeche;
    std::printf("%zu Zeilen, %d Punkte, %zu Striche der Ergebnisse, %dx%d\n", kZeilen, liste.MaxPkte,
                mitschrift.striche.size(), kWeite, kHoehe);
    std::vector<Schritt> schritte{
        {"(a) Bild ohne Ergebnisse", 0, [&] { return zeichne(false); }},
        {"(b) Striche der Ergebnisse allein", 0,
         [&] {
             return MissZeit([&] {
                 for (const Strich& s : mitschrift.striche) {
                     flaeche.SetzeStift(s.stift);
                     flaeche.Linie(s.von, s.nach);
                 }
                 return 0;
             });
         }},
        {"(c) Bild mit Ergebnissen", 0, [&] { return zeichne(true); }},
        {"(d) erstes Mal: Tabelle lesen und Ergebnisse zeichnen", 0,
         [&] {
             return MissZeit([&] {
                 auto neu = std::make_unique<zrw::TDM>(dateien);
                 neu->SetzeOrdner(ordner.path().toStdString());
                 zustand.Ergebnisse = neu.get();
                 schalte(true);
                 zeichner.ZeichnePunktRes(liste.Vorlage());
                 zustand.Ergebnisse = &daten;
                 return neu;
             });
         }},
        {"    davon die Tabelle", 0,
         [&] {
             return MissZeit([&] {
                 auto neu = std::make_unique<zrw::TDM>(dateien);
                 neu->SetzeOrdner(ordner.path().toStdString());
                 neu->ErneuereErgebnisse();
                 return neu;
             });
         }},
    };
    LaufeSchritte(schritte, tabelle.runden);
    DruckeSchritte(schritte);
    std::vector<double> getrennt;
    for (std::size_t i = 0; i < schritte[0].zeiten.size(); ++i)
        getrennt.push_back(schritte[0].zeiten[i] + schritte[1].zeiten[i]);
    tabelle.NimmZeile({"Bild mit Ergebnissen: zum Bild ohne und den Strichen allein", schritte[2].zeiten,
                       getrennt, Verhaeltnis(1.5)});
    tabelle.NimmZeile(
        {"Ergebnisse zum ersten Mal, mit der Tabelle", schritte[3].zeiten, {}, Hoechstwert(400)});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
