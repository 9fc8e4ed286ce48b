#include "input/tabellen/MarkiereFehler.h"

#include <algorithm>
#include <array>

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

std::vector<Tabellenmeldung> MarkiereFehler(Liste& liste, TDM& daten, const Einstellungen& einstellungen) {
    std::vector<Tabellenmeldung> meldungen;
    for (const Fehlersuche& s : kFehlersuchen) {
        const std::string eigene = std::string(Beschreibung(s.tabelle).name) + ".DB";
        if (!daten.Vorhanden(s.datei) || !daten.Vorhanden(eigene)) continue;
        try {
            const TDM::Mangel mangel =
                daten.PruefeFelder(s.tabelle, std::array<std::string_view, 4>{"ID", s.von, s.nach, s.flag});
            const bool fehlt = !mangel.fehlende.empty();
            if (!mangel.text.empty())
                meldungen.push_back({mangel.text + (fehlt ? " Ihre groben Fehler bleiben unmarkiert."
                                                          : " Grobe Fehler können unmarkiert bleiben.")});
            if (fehlt) continue;
            const Antwort antwort = daten.FrageTabelle(s.tabelle, s.abfrage);
            for (const auto& zeile : antwort.zeilen) {
                const PPunktKante kante = liste.FindKante(Punktnummer(liste, antwort, zeile, s.von),
                                                          Punktnummer(liste, antwort, zeile, s.nach));
                if (kante != nullptr) kante->Item->Farbe = einstellungen.GFCol;
            }
        } catch (const Fehler& f) {
            meldungen.push_back({f.what(), true});
        }
    }
    return meldungen;
}

}  // namespace zrw
