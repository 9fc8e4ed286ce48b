// Makes the example network with its result tables, the sheet of line styles and three networks in the XML of
// GNU Gama: beispiel_erzeugen
// ZIELORDNER. The same files come out at every run.
#include <filesystem>
#include <iostream>

#include "beispiele/Ausgleichung.h"
#include "beispiele/Gamadatei.h"
#include "beispiele/Kleinnetze.h"
#include "beispiele/Linientafel.h"
#include "beispiele/Netz.h"
#include "beispiele/Tabellen.h"
#include "beispiele/Zufall.h"
#include "input/Systemdateien.h"
#include "model/Fehler.h"

int main(int argc, char** argv) {
    using namespace zrw::beispiel;
    if (argc != 2) {
        std::cerr << "Aufruf: beispiel_erzeugen ZIELORDNER\n";
        return 2;
    }
    Netz netz;
    netz.titel = "Netz Vogelsberg (frei erfunden)";
    Zufall zufall(19741104);
    const Rollen rollen = LegePunkteAn(netz, zufall);
    BeobachteNetz(netz, rollen, zufall);
    const std::filesystem::path ziel(argv[1]);
    if (!SchreibeSteuerdatei(netz, ziel) || !SchreibeLinientafel(ziel)) {
        std::cerr << "Kann in den Ordner " << argv[1] << " nicht schreiben.\n";
        return 1;
    }
    try {
        zrw::Systemdateien dateien;
        const Ausgleichung ausgleichung = GleicheAus(netz);
        SchreibeTabellen(Auswertung(netz, ausgleichung), dateien, ziel);
        for (const Kleinnetz& k : Kleinnetze()) {
            const std::filesystem::path datei = ziel / "gama" / k.name;
            dateien.ErstelleOrdner(datei.parent_path());
            dateien.ErsetzeDatei(datei.string() + ".gkf", Gamanetz(k.netz));
            dateien.ErsetzeDatei(datei.string() + ".xml",
                                 Gamaergebnisse(k.netz, GleicheAus(k.netz, Fehlersuche::Behalten)));
        }
    } catch (const zrw::Fehler& f) {
        std::cerr << f.what() << '\n';
        return 1;
    }
    return 0;
}
