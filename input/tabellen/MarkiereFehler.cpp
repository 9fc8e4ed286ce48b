#include "input/tabellen/MarkiereFehler.h"

#include <algorithm>

#include "input/tabellen/Ergebnisabfragen.h"
#include "model/Cp1252.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

PunktIndex Punktnummer(const Liste& liste, const Antwort& antwort, const std::vector<Zelle>& zeile,
                       std::string_view feld) {
    const auto spalte = std::find(antwort.spalten.begin(), antwort.spalten.end(), feld);
    const auto* text =
        std::get_if<std::string>(&zeile[static_cast<std::size_t>(spalte - antwort.spalten.begin())]);
    return text != nullptr ? liste.FindPunktNr(PunktNummernTyp(Utf8NachCp1252(*text))) : kKeinPunkt;
}

}  // namespace

std::vector<std::string> MarkiereFehler(Liste& liste, TDM& daten, const Einstellungen& einstellungen) {
    std::vector<std::string> meldungen;
    for (const Fehlersuche& s : kFehlersuchen) {
        const std::string eigene = std::string(Beschreibung(s.tabelle).name) + ".DB";
        if (!daten.Vorhanden(s.datei) || !daten.Vorhanden(eigene)) continue;
        try {
            const Antwort antwort = daten.Frage(s.tabelle, s.abfrage);
            for (const auto& zeile : antwort.zeilen) {
                const PPunktKante kante = liste.FindKante(Punktnummer(liste, antwort, zeile, s.von),
                                                          Punktnummer(liste, antwort, zeile, s.nach));
                if (kante != nullptr) kante->Item->Farbe = einstellungen.GFCol;
            }
        } catch (const Fehler& f) {
            meldungen.emplace_back(f.what());
        }
    }
    return meldungen;
}

}  // namespace zrw
