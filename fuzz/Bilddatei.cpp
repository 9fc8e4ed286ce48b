// Arbitrary bytes as a picture file: loaded, drawn onto a surface that insists on its limits, edited and
// saved. `Fehler` is the only way to refuse them.
#include "model/Bilddatei.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "fuzz/Proben.h"
#include "model/Bytes.h"
#include "model/Fehler.h"
#include "output/Blattschnitt.h"
#include "output/Druck.h"
#include "output/Export.h"
#include "output/Figurenzeichner.h"
#include "output/Geojson.h"
#include "output/Pdfflaeche.h"
#include "tests/hilfe/Festuhr.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

constexpr std::int32_t kWeite = 800;
constexpr std::int32_t kHoehe = 600;

/// A device that computes exactly up to some distance from its edges: nothing further out may reach it.
class Pruefflaeche final : public zrw::Zeichenflaeche {
  public:
    [[nodiscard]] zrw::Rechteck Sichtbar() const override { return {0, 0, kWeite - 1, kHoehe - 1}; }
    void Linie(zrw::Flaechenpunkt von, zrw::Flaechenpunkt nach) override {
        PruefeOrt(von);
        PruefeOrt(nach);
    }
    void ZeichneRechteck(const zrw::Rechteck& r) override { PruefeRechteck(r); }
    void Ellipse(const zrw::Rechteck& r) override { PruefeRechteck(r); }
    void Vieleck(std::span<const zrw::Flaechenpunkt> ecken) override {
        for (const zrw::Flaechenpunkt p : ecken)
            PruefeOrt(p);
    }
    void FuelleRechteck(const zrw::Rechteck& r, zrw::Farbe /*farbe*/) override { PruefeRechteck(r); }
    void Text(zrw::Flaechenpunkt ort, std::string_view text, zrw::Farbe /*farbe*/) override {
        PruefeOrt(ort);
        zrw::fuzz::VerlangeBedingung(text.size() <= kLaengsterText, "kein Text ist zu lang");
    }
    [[nodiscard]] std::int32_t Textbreite(std::string_view text) const override {
        return static_cast<std::int32_t>(text.size()) * 6;
    }
    [[nodiscard]] std::int32_t Texthoehe() const override { return 13; }
    [[nodiscard]] std::int32_t Schriftgrad() const override { return 8; }
    [[nodiscard]] std::int32_t Schrifthoehe() const override { return 11; }

  private:
    static constexpr std::size_t kLaengsterText = 40;  // the title of the legend with its time

    static void PruefeOrt(zrw::Flaechenpunkt p) {
        constexpr std::int32_t kReichweite = 20000;
        zrw::fuzz::VerlangeBedingung(
            p.x >= -kReichweite && p.x <= kReichweite && p.y >= -kReichweite && p.y <= kReichweite,
            "jede Koordinate liegt nahe der Flaeche");
    }
    static void PruefeRechteck(const zrw::Rechteck& r) {
        PruefeOrt(zrw::Flaechenpunkt{r.links, r.oben});
        PruefeOrt(zrw::Flaechenpunkt{r.rechts, r.unten});
    }
};

/// Results of every kind for every point, whatever a table might hold.
class Wildergebnisse final : public zrw::Punktergebnisse {
  public:
    void ErneuereErgebnisse() override {}
    [[nodiscard]] const zrw::Punktergebnis* ErgebnisZu(std::string_view nummer) const override {
        constexpr double kInf = std::numeric_limits<double>::infinity();
        static constexpr std::array kWerte{
            0.0, 1.0, -3.5, 40.0, 1e9, -1e300, 1e-300, kInf, -kInf, std::numeric_limits<double>::quiet_NaN()};
        std::uint64_t h = zrw::PunktNummernTyp(nummer).Streuwert(1);
        for (auto feld : {&zrw::Punktergebnis::dY, &zrw::Punktergebnis::dX, &zrw::Punktergebnis::dH,
                          &zrw::Punktergebnis::A, &zrw::Punktergebnis::B, &zrw::Punktergebnis::Phi,
                          &zrw::Punktergebnis::mH, &zrw::Punktergebnis::mL}) {
            ergebnis_.*feld = kWerte[h % kWerte.size()];
            h /= kWerte.size();
        }
        return &ergebnis_;
    }

  private:
    mutable zrw::Punktergebnis ergebnis_;
};

/// What opening does with a file of unknown origin.
void PasseInsFenster(zrw::Liste& liste) {
    liste.Weite = kWeite;
    liste.Hoehe = kHoehe;
    if (liste.Brauchbar()) return;
    liste.FindWorldMinMax();
    liste.PasseEin();
}

/// Number of lines of a file, each of which must end in CR LF and pass the check.
template <class Pruefung>
std::size_t PruefeZeilen(std::string_view datei, Pruefung pruefung) {
    std::size_t zeilen = 0;
    while (!datei.empty()) {
        const std::size_t ende = datei.find("\r\n");
        zrw::fuzz::VerlangeBedingung(ende != std::string_view::npos, "jede Zeile hat ihr Ende");
        pruefung(datei.substr(0, ende), zeilen++);
        datei.remove_prefix(ende + 2);
    }
    return zeilen;
}

/// Whatever the network holds, both files keep their form, and the network stays as it is.
void PruefeExport(zrw::Liste& liste, const zrw::Zeichenmittel& mittel) {
    zrw::ByteSchreiber vorher;
    liste.Store(vorher, {});
    zrw::Speicherdateien dateien;
    const double faktor = zrw::Druckfaktor(25000, 600);
    zrw::ExportierePlan(liste.Vorlage(), mittel, dateien, {faktor, zrw::kPlotname, zrw::kDxfname});
    const std::size_t zeilen =
        PruefeZeilen(dateien.dateien[zrw::kDxfname], [](std::string_view zeile, std::size_t nummer) {
            zrw::fuzz::VerlangeBedingung(
                nummer % 2 == 1 || (zeile.size() == 3 && zeile[2] >= '0' && zeile[2] <= '9'),
                "jede zweite Zeile ist ein Gruppencode");
        });
    zrw::fuzz::VerlangeBedingung(zeilen % 2 == 0, "die Zeichnung besteht aus Paaren");
    PruefeZeilen(dateien.dateien[zrw::kPlotname], [](std::string_view zeile, std::size_t /*nummer*/) {
        zrw::fuzz::VerlangeBedingung(zeile.ends_with("PU;") || zeile.ends_with("PU; LT;"),
                                     "der Stift ist oben");
    });
    zrw::ByteSchreiber nachher;
    liste.Store(nachher, {});
    zrw::fuzz::VerlangeBedingung(vorher.Inhalt() == nachher.Inhalt(), "der Export aendert nichts");
}

/// The vector outputs end properly whatever they are given, and the print leaves the network as it was.
void PruefeBlaetter(zrw::Liste& liste, const zrw::Zeichenmittel& mittel, zrw::Einstellungen& einstellungen) {
    zrw::ByteSchreiber vorher;
    liste.Store(vorher, {});
    zrw::Speicherdateien dateien;
    const zrw::Papier papier = zrw::kPapierformate[0].hochkant;
    zrw::Pdfflaeche pdf(dateien.BeginneDatei("a.pdf"), papier, 300, {});
    const zrw::Druckseite seite = zrw::Bedruckbar(papier, 300);
    zrw::DruckePlan(liste.Vorlage(), mittel, zrw::Geraetegroessen(einstellungen, zrw::Geraetefaktor(seite)),
                    pdf, {25000, "25000", seite});
    pdf.BeendeDatei();
    zrw::fuzz::VerlangeBedingung(dateien.dateien["a.pdf"].ends_with("%%EOF\n"), "das Blatt ist ganz");
    try {
        const zrw::Druckplan plan{liste.Vorlage(), mittel, pdf};
        const bool leer = zrw::Blattschnitt(plan, 25000, seite, liste.BildinWelt({})).empty();
        zrw::fuzz::VerlangeBedingung(zrw::Blattaufteilung(plan, 25000, seite).empty() == leer,
                                     "beide finden etwas");
        (void)zrw::PassenderMassstab(plan, seite);
    } catch (const zrw::Fehler&) {  // too many sheets
    }
    zrw::SchreibeGeojson(liste, mittel.netz, einstellungen, mittel.zustand.Ergebnisse, dateien, "a.geojson");
    zrw::fuzz::VerlangeBedingung(dateien.dateien["a.geojson"].ends_with("]}\n"), "das Netz ist ganz");
    zrw::ByteSchreiber nachher;
    liste.Store(nachher, {});
    zrw::fuzz::VerlangeBedingung(vorher.Inhalt() == nachher.Inhalt(), "der Druck aendert nichts");
}

void PruefeEingabe(std::string_view eingabe) {
    zrw::Einstellungen einstellungen;
    zrw::Netzangaben netz;
    zrw::ByteLeser leser(eingabe);
    const std::unique_ptr<zrw::Liste> liste = zrw::Liste::Load(leser, einstellungen, netz, "bild.zrw");
    zrw::fuzz::VerlangeBedingung(leser.Gut(), "Laden liest nicht ueber das Ende");
    zrw::fuzz::PruefeListe(*liste);
    zrw::fuzz::PruefeSpeichern(*liste, netz);
    const double faktor = liste->Faktor;
    liste->Findfaktor();  // with whatever picture size the file names
    liste->Faktor = faktor;

    Pruefflaeche flaeche;
    zrw::Zeichenzustand zustand;
    zustand.flaeche = &flaeche;
    const zrw::Festuhr uhr;
    zrw::Figurenzeichner z(zustand, einstellungen, netz, uhr);
    PasseInsFenster(*liste);
    liste->ShowGitter = liste->ShowKMQ = liste->ShowLegende = liste->ShowErklaerung = true;
    liste->ShowLgRes = liste->ShowHRes = liste->ShowLGGen = liste->ShowHGen = true;
    Wildergebnisse ergebnisse;
    zustand.Ergebnisse = &ergebnisse;
    netz.Abbildungsmodus = static_cast<std::uint8_t>(netz.Netztyp & 3);
    liste->ShowPicture(z);
    zrw::fuzz::BedieneListe(*liste, z);
    zustand.modus = zrw::Zeichenmodus::Drucker;
    zustand.Geraetefaktor = 6.25;
    zustand.KurzeNummern = zustand.Halo = true;
    liste->ShowPicture(z);
    const zrw::Zeichenmittel mittel{zustand, einstellungen, netz, uhr};
    PruefeExport(*liste, mittel);
    PruefeBlaetter(*liste, mittel, einstellungen);
    zrw::fuzz::BearbeiteListe(*liste, z);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    try {
        PruefeEingabe(eingabe);
    } catch (const zrw::Fehler&) {  // refused with a message
    }
    return 0;
}
