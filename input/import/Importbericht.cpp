#include "input/import/Importbericht.h"

#include "model/Fehler.h"

namespace zrw::fremd {

void Importbericht::NimmAuf(Befundart art, const Xmldatei& datei, std::size_t stelle) {
    Zahl& zahl = zahlen_[static_cast<std::size_t>(art)];
    if (zahl.anzahl++ > 0 && zahl.zeile > 0) return;
    zahl.datei = datei.Name();
    zahl.zeile = datei.Zeile(stelle);
}

std::vector<std::string> Importbericht::Zeilen() const {
    std::vector<std::string> zeilen;
    for (const Befundzeile& b : kBefunde) {
        const Zahl& zahl = zahlen_[static_cast<std::size_t>(b.art)];
        if (zahl.anzahl == 0) continue;
        std::string zeile = zahl.anzahl == 1 ? b.eines : std::to_string(zahl.anzahl) + ' ' + b.mehrere;
        if (zahl.zeile > 0) {
            zeile += zahl.anzahl == 1 ? " (" : " (zuerst ";
            zeile += Fehler::Ort(zahl.datei, zahl.zeile) + ')';
        }
        zeilen.push_back(zeile + '.');
    }
    return zeilen;
}

}  // namespace zrw::fremd
