// Arbitrary texts as stored settings, one "key=value" a line: read, saved and read again, and scaled as
// printing does.
#include "model/Einstellungen.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz/Proben.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using namespace zrw;

Speichereinstellungen LiesEinstellungen(std::string_view eingabe) {
    Speichereinstellungen speicher;
    while (!eingabe.empty()) {
        const std::string_view zeile = eingabe.substr(0, eingabe.find('\n'));
        eingabe.remove_prefix(std::min(eingabe.size(), zeile.size() + 1));
        const std::size_t gleich = zeile.find('=');
        if (gleich == std::string_view::npos) continue;
        speicher.werte[std::string(zeile.substr(0, gleich))] = zeile.substr(gleich + 1);
    }
    return speicher;
}

void PruefeEingabe(std::string_view eingabe) {
    Einstellungen e;
    LoadSettings(e, LiesEinstellungen(eingabe));
    Speichereinstellungen erste;
    SaveSettings(e, erste);
    fuzz::VerlangeBedingung(erste.geschrieben.size() == 21, "jeder Schlüssel wird geschrieben");
    Einstellungen gelesen;
    LoadSettings(gelesen, erste);
    Speichereinstellungen zweite;
    SaveSettings(gelesen, zweite);
    fuzz::VerlangeBedingung(erste.werte == zweite.werte, "gesichert und gelesen bleibt alles gleich");
    for (const double faktor : {6.25, 1.0 / 6.25, 1e300, std::nan(""), -1.0})
        e.ScaleSizes(faktor);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    PruefeEingabe(eingabe);
    return 0;
}
