// Arbitrary bytes as a foreign network and, behind a line that parts them, its results. What is imported can
// be opened; what is refused leaves nothing behind. `Fehler` is the only way to refuse.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Proben.h"
#include "fuzz/Speicher.h"
#include "input/Steuerdatei.h"
#include "input/import/Namensliste.h"
#include "input/import/Netzimport.h"
#include "input/tabellen/Beobachtungsleser.h"
#include "input/tabellen/UnitZRWData.h"
#include "model/Fehler.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using namespace zrw;

std::size_t Punkte(const Liste& liste) {
    std::size_t punkte = 0;
    for (const PunktKnoten* p = liste.PunktKnoten; p != nullptr; p = p->Next)
        ++punkte;
    return punkte;
}

void PruefeImport(Speicherdateien& dateien, const Importergebnis& ergebnis) {
    const Einstellungen einstellungen;
    std::size_t meldungen = 0;
    const Meldungsempfaenger zaehle = [&](const Meldung& m) { meldungen += m.hinweis ? 0 : 1; };
    const Lesung lesung = LeseSteuerdatei(ergebnis.steuerdatei, dateien, einstellungen, zaehle);
    fuzz::VerlangeBedingung(meldungen == 0, "die Steuerdatei ist ohne Fehler");
    fuzz::VerlangeBedingung(Punkte(*lesung.liste) == ergebnis.punkte, "jeder Punkt ist in der Steuerdatei");
    fuzz::VerlangeBedingung(lesung.bericht.unbekannte.anzahl == 0, "jede Beobachtung findet ihre Punkte");
    fuzz::PruefeNetz(*lesung.liste);
    (void)LiesNamensliste(ergebnis.steuerdatei, dateien, zaehle);
    fuzz::VerlangeBedingung(meldungen == 0, "die Liste der Namen ist ohne Fehler");
    TDM daten(dateien);
    daten.SetzeOrdner(ergebnis.steuerdatei.parent_path());
    const Beobachtungsliste liste = LiesBeobachtungen(daten);
    fuzz::VerlangeBedingung(daten.NimmMeldungen().empty(), "die Tabellen sind ohne Fehler");
    fuzz::VerlangeBedingung(liste.zeilen.size() <= 3 * ergebnis.ergebnisse, "keine Zeile ohne Ergebnis");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    const std::size_t trennung = eingabe.find(fuzz::kTrennzeile);
    Speicherdateien dateien;
    dateien.dateien["a/N.gkf"] = eingabe.substr(0, trennung);
    const bool mitErgebnissen = trennung != std::string::npos;
    if (mitErgebnissen) dateien.dateien["a/N.xml"] = eingabe.substr(trennung + fuzz::kTrennzeile.size());
    const std::size_t vorher = dateien.dateien.size();
    (void)ErkenneImport("a/N.gkf", dateien);
    try {
        const Importergebnis ergebnis = ImportiereNetz(
            {.netz = "a/N.gkf", .ergebnisse = mitErgebnissen ? "a/N.xml" : "", .ziel = "b"}, dateien, 0);
        PruefeImport(dateien, ergebnis);
    } catch (const Fehler&) {
        fuzz::VerlangeBedingung(dateien.dateien.size() == vorher, "ein Fehler lässt nichts zurück");
    }
    return 0;
}
