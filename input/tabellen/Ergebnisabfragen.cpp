#include "input/tabellen/Ergebnisabfragen.h"

#include <algorithm>

#include "input/tabellen/UnitZRWData.h"
#include "model/Fehler.h"

namespace zrw {
namespace {

std::int64_t ZaehleMarkierte(TDM& daten, const Ergebnisreiter& r, std::string_view a, std::string_view b) {
    std::int64_t anzahl = daten.ZaehleZeilen(r.tabelle, Abfragetext(r.kante, a, b), r.flag).markiert;
    if (!r.gegen.empty())
        anzahl += daten.ZaehleZeilen(r.tabelle, Abfragetext(r.gegen, a, b), r.flag).markiert;
    return anzahl;
}

}  // namespace

std::vector<std::string_view> Markiergruende(TDM& daten, std::string_view a, std::string_view b) {
    std::vector<std::string_view> gruende;
    for (const Ergebnisreiter& r : kErgebnisreiter) {
        // What is told of points marks no line.
        const auto* suche = std::find_if(kFehlersuchen.begin(), kFehlersuchen.end(),
                                         [&](const Fehlersuche& s) { return s.tabelle == r.tabelle; });
        if (suche == kFehlersuchen.end() || !daten.Vorhanden(suche->datei) || !daten.RaschGefragt(r.tabelle))
            continue;
        try {
            if (ZaehleMarkierte(daten, r, a, b) > 0) gruende.push_back(r.titel);
        } catch (const Fehler&) {
            continue;
        }
    }
    return gruende;
}

std::string Abfragetext(std::string_view muster, std::string_view a, std::string_view b) {
    std::string text;
    while (!muster.empty()) {
        const bool platz = muster.starts_with("{a}") || muster.starts_with("{b}");
        if (!platz) {
            text += muster.front();
            muster.remove_prefix(1);
            continue;
        }
        for (const char c : muster[1] == 'a' ? a : b) {
            text += c;
            if (c == '\'') text += c;
        }
        muster.remove_prefix(3);
    }
    return text;
}

}  // namespace zrw
