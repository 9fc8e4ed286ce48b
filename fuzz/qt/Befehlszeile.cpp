// Arbitrary words, one a line, as the command line. `Falschaufruf` is the only way to refuse them.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/Aufruf.h"
#include "fuzz/Proben.h"
#include "ui/ausgabe/Formate.h"
#include "ui/fenster/Schalter.h"

namespace {

using namespace zrw;

bool Bekannt(const std::vector<std::string>& schalter) {
    return std::all_of(schalter.begin(), schalter.end(), [](const std::string& name) {
        return !name.empty() && std::any_of(kSchalter.begin(), kSchalter.end(),
                                            [&](const Schalter& s) { return s.name == name; });
    });
}

void PruefeWorte(const std::vector<std::string>& worte) {
    const Aufruf a = LiesAufruf(worte);
    fuzz::VerlangeBedingung(a.auftrag != Auftrag::Stapel || (!a.datei.empty() && !a.formate.empty()),
                            "der Stapelbetrieb hat eine Datei und ein Format");
    for (const std::string& f : a.formate)
        fuzz::VerlangeBedingung(FindeFormat(f) != nullptr, "jedes Format ist bekannt");
    fuzz::VerlangeBedingung(
        !a.groesse || (BrauchbareGroesse(a.groesse->weite) && BrauchbareGroesse(a.groesse->hoehe)),
        "die Größe ist brauchbar");
    fuzz::VerlangeBedingung(LiesMassstab(a.massstab).has_value(), "der Maßstab ist lesbar");
    fuzz::VerlangeBedingung(a.dpi >= 1 && a.dpi <= 100000, "die Auflösung ist brauchbar");
    fuzz::VerlangeBedingung(Bekannt(a.ein) && Bekannt(a.aus), "jeder Schalter ist bekannt");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* daten, std::size_t groesse) {
    const std::string eingabe(daten, daten + groesse);
    std::vector<std::string> worte;
    for (std::size_t i = 0; i < eingabe.size();) {
        const std::size_t ende = std::min(eingabe.find('\n', i), eingabe.size());
        worte.push_back(eingabe.substr(i, ende - i));
        i = ende + 1;
    }
    try {
        PruefeWorte(worte);
    } catch (const Falschaufruf& f) {
        fuzz::VerlangeBedingung(!f.text.empty(), "ein falscher Aufruf wird erklärt");
    }
    return 0;
}
