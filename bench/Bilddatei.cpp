// How fast a picture file is saved and opened, beside the raw limit: writing and reading the same bytes, onto
// the disk in both cases.
#include "model/Bilddatei.h"

#include <cstdio>
#include <string>
#include <vector>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using namespace zrw::bench;

int MissAlles(Tabelle& tabelle) {
    const zrw::Einstellungen e;
    const Zwischenordner ordner;
    const auto datei = ordner.Pfad() / "N.ZRW";
    const auto schlicht = ordner.Pfad() / "S.ZRW";
    zrw::Systemdateien system;
    zrw::Speicherdateien speicher;
    // A picture file counts at most 65535 lines.
    const zrw::Lesung netz = BaueNetz({.paare = 65000, .beobachtungen = 95000}, e, {1200, 800});
    zrw::SchreibeBilddatei(*netz.liste, netz.netz, datei, system);
    const std::string bytes = system.LiesDatei(datei, std::size_t{1} << 30U);
    zrw::Netzangaben gelesen;
    std::printf("%d Punkte, %d Linien, %.1f MB\n", netz.liste->MaxPkte, netz.liste->MaxKant,
                MB(bytes.size()));

    std::vector<Schritt> schritte{
        {"(a) dieselben Bytes schreiben", bytes.size(),
         [&] {
             return MissZeit([&] {
                 system.ErsetzeDatei(schlicht, bytes);
                 return 0;
             });
         }},
        {"(b) Zarwikdatei speichern", bytes.size(),
         [&] {
             return MissZeit([&] {
                 zrw::SchreibeBilddatei(*netz.liste, netz.netz, datei, system);
                 return 0;
             });
         }},
        {"    in den Speicher", bytes.size(),
         [&] {
             return MissZeit([&] {
                 zrw::SchreibeBilddatei(*netz.liste, netz.netz, "N.ZRW", speicher);
                 return 0;
             });
         }},
        {"(c) dieselben Bytes lesen", bytes.size(),
         [&] { return MissZeit([&] { return system.LiesDatei(schlicht, bytes.size()); }); }},
        {"(d) Zarwikdatei öffnen", bytes.size(),
         [&] { return MissZeit([&] { return zrw::LiesBilddatei(datei, system, e, gelesen); }); }},
    };
    LaufeSchritte(schritte, tabelle.runden);
    DruckeSchritte(schritte);
    tabelle.NimmZeile({"Zarwikdatei speichern: zum Schreiben der Bytes", schritte[1].zeiten,
                       schritte[0].zeiten, Verhaeltnis(3)});
    tabelle.NimmZeile(
        {"Zarwikdatei öffnen: zum Lesen der Bytes", schritte[4].zeiten, schritte[3].zeiten, Verhaeltnis(3)});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    return FuehreMessungAus(anzahl, worte, 9, MissAlles);
}
