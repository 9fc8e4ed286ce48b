// Arbitrary bytes as one of the result tables: marked, listed, drawn from, and once more after the table
// has been cut. The first byte says which. `Fehler` is the only way to refuse them.
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/Proben.h"
#include "input/Steuerdatei.h"
#include "input/tabellen/Anzeigetext.h"
#include "input/tabellen/Beobachtungsleser.h"
#include "input/tabellen/Ergebnisabfragen.h"
#include "input/tabellen/MarkiereFehler.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Fehler.h"
#include "model/ergebnisse/Listenordnung.h"
#include "model/ergebnisse/Statistik.h"
#include "output/ergebnisse/Beobachtungsdatei.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using namespace zrw;

constexpr const char* kOrdner = "netz";
constexpr const char* kNetz =
    "$NT 3\n"
    "$FP A              1  3500000.0 5500000.0\n"
    "$NP B              0  3501000.0 5501000.0\n"
    "    C              0  3502000.0 5500500.0\n"
    "$ST A B 1414.2\n$ST B C 1118.0\n$RS A\n$RZ C 50.0\n$DH B C 1.0\n";

/// Every value of an answer as the results window would show it.
void ZeigeAntwort(const Antwort& antwort, std::span<const Tabellenfeld> felder) {
    for (const auto& zeile : antwort.zeilen) {
        fuzz::VerlangeBedingung(zeile.size() == antwort.spalten.size(), "ein Wert je Spalte");
        for (std::size_t i = 0; i < zeile.size(); ++i) {
            const auto* zahl = std::get_if<double>(&zeile[i]);
            if (zahl == nullptr) continue;
            const std::string text = Anzeigetext(*zahl, i < felder.size() ? felder[i].format : "#.000");
            fuzz::VerlangeBedingung(text.size() < 400, "eine Zahl ist kein Roman");
            fuzz::VerlangeBedingung(AnzeigeZeitpunkt(*zahl).size() < 30, "ein Zeitpunkt ist kurz");
        }
    }
}

void FrageTabelle(TDM& daten, Tabelle tabelle) {
    const Ergebnistabelle& t = Beschreibung(tabelle);
    std::vector<std::string> abfragen{std::string(t.alles)};
    for (const Ergebnisreiter& r : kErgebnisreiter) {
        if (r.tabelle != tabelle) continue;
        abfragen.push_back(Abfragetext(r.punkt, "A"));
        abfragen.push_back(Abfragetext(r.kante, "A' OR '1'='1", "B"));
    }
    for (const std::string& abfrage : abfragen) {
        try {
            ZeigeAntwort(daten.FrageTabelle(tabelle, abfrage), t.felder);
        } catch (const Fehler& f) {
            fuzz::VerlangeBedingung(!f.Text().empty(), "ein Fehler sagt etwas");
        }
    }
}

/// The list of observations: in any order, as files, and counted; every row once.
void ListeBeobachtungen(TDM& daten, Dateien& dateien) {
    const Beobachtungsliste liste = LiesBeobachtungen(daten);
    for (std::size_t s = 0; s < kListenspalten.size(); ++s) {
        const auto zeilen = OrdneZeilen(liste, {}, {static_cast<Listenspalte>(s), s % 2 == 0, s % 3 == 0});
        fuzz::VerlangeBedingung(zeilen.size() == liste.zeilen.size(), "jede Zeile einmal");
    }
    SchreibeBeobachtungen(liste, dateien.BeginneDatei("netz/liste"));
    SchreibeStatistik(liste, dateien.BeginneDatei("netz/statistik"));
    for (const Beobachtungsgattung& g : kBeobachtungsgattungen) {
        const Gattungsstatistik s = Zaehle(liste, g.tabelle, kUeblicheTestgrenze);
        fuzz::VerlangeBedingung(s.tgUnter1 <= s.tgUnter2 && s.tgUnter2 <= s.mitTG && s.mitTG <= s.anzahl,
                                "Anteile sind Teile des Ganzen");
        const Histogramm h = ZaehleKlassen(liste, Messwert::TG, g.tabelle, 5.0, 20);
        fuzz::VerlangeBedingung(h.gesamt == s.mitTG, "ein Histogramm zählt alle");
    }
}

void PruefeTabelle(Tabelle tabelle, std::string_view bytes) {
    Speicherdateien dateien;
    const std::string ordner = std::string(kOrdner) + "/";
    dateien.dateien[ordner + "NETZ.EIN"] = kNetz;
    // Directions are marked only where there is a file of distances, whatever it holds.
    dateien.dateien[ordner + "STRTABLE.DB"] = "";
    const std::string name = ordner + std::string(Beschreibung(tabelle).name) + ".DB";
    dateien.dateien[name] = bytes;
    const Einstellungen einstellungen;
    const Lesung lesung = LeseSteuerdatei(ordner + "NETZ.EIN", dateien, einstellungen, {});
    Liste& liste = *lesung.liste;
    TDM daten(dateien);
    daten.SetzeOrdner(kOrdner);
    // A table that is cut while the window is open: what was read before answers.
    for (const std::size_t laenge : {bytes.size(), bytes.size() / 2}) {
        dateien.dateien[name] = bytes.substr(0, laenge);
        (void)MarkiereFehler(liste, daten, einstellungen);
        FrageTabelle(daten, tabelle);
        daten.ErneuereErgebnisse();
        for (const char* nummer : {"A", "B", "", "14 Zeichen lang"})
            (void)daten.ErgebnisZu(nummer);
        daten.ErneuereRelative();
        (void)daten.RelativeZu("A", "B");
        ListeBeobachtungen(daten, dateien);
        (void)daten.NimmMeldungen();
    }
    fuzz::PruefeListe(liste);
    fuzz::PruefeNetz(liste);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    if (eingabe.empty()) return 0;
    const auto nummer = static_cast<unsigned char>(eingabe.front()) % kTabellen.size();
    PruefeTabelle(static_cast<Tabelle>(nummer), std::string_view(eingabe).substr(1));
    return 0;
}
