// How fast a plot is exported to both files, beside the raw limit: writing the same bytes with plain buffered
// output, without bringing them onto the disk and with that.
#include "output/Export.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "output/Figurenzeichner.h"
#include "output/Uhr.h"

namespace {

namespace fs = std::filesystem;
using namespace zrw::bench;

/// The bytes in the pieces in which a program with plain output would hand them over: line by line.
void SchreibeSchlicht(const fs::path& name, const std::string& bytes) {
    std::ofstream f(name, std::ios::binary | std::ios::trunc);
    for (std::size_t i = 0; i < bytes.size();) {
        const std::size_t ende = bytes.find('\n', i) + 1;
        f.write(bytes.data() + i, static_cast<std::streamsize>(ende - i));
        i = ende;
    }
}

std::string LiesDatei(const fs::path& name) {
    return zrw::Systemdateien().LiesDatei(name, std::size_t{1} << 32U);
}

int MissAlles(Tabelle& tabelle) {
    const zrw::Einstellungen e;
    zrw::Systemdateien system;
    const Zwischenordner ordner;
    const zrw::Lesung netz = BaueNetz({.paare = 200000, .beobachtungen = 294000}, e, {1200, 800});

    const zrw::Systemuhr uhr;
    zrw::Zeichenzustand zustand;
    const fs::path plotname = ordner.Pfad() / zrw::kPlotname;
    const fs::path dxfname = ordner.Pfad() / zrw::kDxfname;
    const auto exportiere = [&](bool plot, bool dxf) {
        return MissZeit([&] {
            zrw::Exportauftrag auftrag{zrw::Druckfaktor(25000, 600), {}, {}};
            if (plot) auftrag.plot = plotname;
            if (dxf) auftrag.dxf = dxfname;
            zrw::ExportierePlan(netz.liste->Vorlage(), {zustand, e, netz.netz, uhr}, system, auftrag);
            return 0;
        });
    };
    const std::size_t speicher = Spitzenbedarf([&] { (void)exportiere(true, true); });
    // The same network without its lines: a file of a fraction of the size.
    netz.liste->ShowBeob = false;
    const std::size_t ohneLinien = Spitzenbedarf([&] { (void)exportiere(true, true); });
    const auto klein = fs::file_size(dxfname) + fs::file_size(plotname);
    netz.liste->ShowBeob = true;
    (void)exportiere(true, true);
    const std::string plotbytes = LiesDatei(plotname);
    const std::string dxfbytes = LiesDatei(dxfname);
    const std::size_t bytes = plotbytes.size() + dxfbytes.size();
    std::printf("%d Punkte, %d Linien -> %.1f MB DXF, %.1f MB PLT\n", netz.liste->MaxPkte,
                netz.liste->MaxKant, MB(dxfbytes.size()), MB(plotbytes.size()));
    std::printf("Speicher des Exports: %.2f MB fuer %.1f MB Dateien, %.2f MB fuer %.1f MB\n\n", MB(speicher),
                MB(bytes), MB(ohneLinien), MB(klein));

    const auto schlicht = [&] {
        SchreibeSchlicht(plotname, plotbytes);
        SchreibeSchlicht(dxfname, dxfbytes);
    };
    std::vector<Schritt> schritte{
        {"(a) dieselben Bytes, gepuffert, Zeile um Zeile", bytes,
         [&] {
             return MissZeit([&] {
                 schlicht();
                 return 0;
             });
         }},
        {"(b) dieselben Bytes ersetzt, auf die Platte", bytes,
         [&] {
             return MissZeit([&] {
                 system.ErsetzeDatei(plotname, plotbytes);
                 system.ErsetzeDatei(dxfname, dxfbytes);
                 return 0;
             });
         }},
        {"(c) Export in beide Dateien", bytes, [&] { return exportiere(true, true); }},
        {"    nur DXF", dxfbytes.size(), [&] { return exportiere(false, true); }},
        {"    nur PLT", plotbytes.size(), [&] { return exportiere(true, false); }},
        {"    ohne Datei: nur zeichnen", 0, [&] { return exportiere(false, false); }},
    };
    if (tabelle.kurz) schritte.resize(3);
    LaufeSchritte(schritte, tabelle.runden);
    DruckeSchritte(schritte);
    tabelle.NimmZeile({"Export DXF und PLT: zum Schreiben der Bytes", schritte[2].zeiten, schritte[1].zeiten,
                       Verhaeltnis(6)});
    tabelle.NimmZeile({"Export DXF und PLT: Speicher", {MB(speicher)}, {}, {}, "MB"});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    return FuehreMessungAus(anzahl, worte, 5, MissAlles);
}
