// How fast a control file becomes a network, beside the raw limit: splitting the same bytes into lines and
// converting every number in them, without keeping anything.
#include "input/Steuerdatei.h"

#include <charconv>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <string_view>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "bench/Tabelle.h"
#include "input/Systemdateien.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using namespace zrw::bench;

/// What keeps the compiler from leaving the work out.
struct Rohergebnis {
    std::size_t zeilen = 0;
    std::size_t felder = 0;
    double summe = 0.0;
};

void ZerlegeZahlen(const char* p, const char* ende, Rohergebnis& r) {
    while (p != ende) {
        while (p != ende && (*p == ' ' || *p == '\t'))
            ++p;
        const char* feld = p;
        while (p != ende && *p != ' ' && *p != '\t')
            ++p;
        if (feld == p) break;
        ++r.felder;
        double wert = 0.0;
        if (std::from_chars(feld, p, wert).ec == std::errc()) r.summe += wert;
    }
}

Rohergebnis Rohgrenze(std::string_view bytes) {
    Rohergebnis r;
    const char* p = bytes.data();
    const char* ende = p + bytes.size();
    while (p != ende) {
        const auto* zeilenende =
            static_cast<const char*>(std::memchr(p, '\n', static_cast<std::size_t>(ende - p)));
        if (zeilenende == nullptr) zeilenende = ende;
        ++r.zeilen;
        ZerlegeZahlen(p, zeilenende, r);
        p = zeilenende == ende ? ende : zeilenende + 1;
    }
    return r;
}

constexpr std::size_t kGrenze = std::size_t{1} << 30U;

/// As opening does it: read, take the extents, fit.
zrw::Lesung LadeNetz(const std::filesystem::path& datei, const zrw::Dateien& dateien,
                     const zrw::Einstellungen& e) {
    zrw::Lesung lesung = zrw::LeseSteuerdatei(datei, dateien, e, {});
    lesung.liste->Weite = 1200;
    lesung.liste->Hoehe = 800;
    lesung.liste->FindWorldMinMax();
    lesung.liste->Ansicht::PasseEin();
    return lesung;
}

constexpr const char* kNetz = "NETZ.EIN";

/// One reading in a process that did nothing before [ms].
int Frisch(const Tabelle& tabelle) {
    const zrw::Einstellungen e;
    const zrw::Systemdateien system;
    const bool roh = tabelle.aufgabe == "roh";
    const double zeit =
        roh ? MissZeit([&] { return Rohgrenze(system.LiesDatei(tabelle.datei, kGrenze)).summe; })
            : MissZeit([&] { return LadeNetz(tabelle.datei, system, e); });
    std::printf("%f\n", zeit);
    return 0;
}

int MissAlles(Tabelle& tabelle) {
    if (!tabelle.aufgabe.empty()) return Frisch(tabelle);
    const zrw::Einstellungen e;
    zrw::Speicherdateien dateien;
    dateien.dateien[kNetz] = ErzeugeSteuerdatei({});
    const std::string& bytes = dateien.dateien[kNetz];
    const Zwischenordner ordner;
    const auto datei = ordner.Pfad() / kNetz;
    zrw::Systemdateien system;
    system.ErsetzeDatei(datei, bytes);

    const zrw::Lesung netz = LadeNetz(datei, system, e);
    const Rohergebnis roh = Rohgrenze(bytes);
    std::printf("Steuerdatei %.2f MB, %zu Zeilen, %zu Felder; Netz %d Punkte, %d Linien\n", MB(bytes.size()),
                roh.zeilen, roh.felder, netz.liste->MaxPkte, netz.liste->MaxKant);
    std::vector<Schritt> schritte{
        {"(a) Zeilen und Zahlen, nichts behalten", bytes.size(),
         [&] { return MissZeit([&] { return Rohgrenze(bytes).summe; }); }},
        {"(b) Steuerdatei aus dem Speicher -> Netz", bytes.size(),
         [&] { return MissZeit([&] { return LadeNetz(kNetz, dateien, e); }); }},
        {"    davon Kopie der Bytes", bytes.size(),
         [&] { return MissZeit([&] { return std::string(bytes); }); }},
        {"(c) Steuerdatei von der Platte -> Netz", bytes.size(),
         [&] { return MissZeit([&] { return LadeNetz(datei, system, e); }); }},
        {"    davon Lesen der Bytes", bytes.size(),
         [&] { return MissZeit([&] { return system.LiesDatei(datei, bytes.size()); }); }},
        {"(d) WeltinBild", 0,
         [&] {
             return MissZeit([&] {
                 netz.liste->WeltinBild();
                 return 0;
             });
         }},
    };
    LaufeSchritte(schritte, tabelle.runden);
    std::vector<Schritt> frisch{
        {"(a) frischer Prozess: lesen, Zeilen und Zahlen", bytes.size(),
         [&] { return FrischerProzess("roh", datei)[0]; }},
        {"(b) frischer Prozess: Steuerdatei -> Netz", bytes.size(),
         [&] { return FrischerProzess("netz", datei)[0]; }},
    };
    LaufeSchritte(frisch, tabelle.runden);
    DruckeSchritte(schritte);
    DruckeSchritte(frisch);
    tabelle.NimmZeile({"Steuerdatei -> Netz: zum Teilen und Umwandeln", schritte[3].zeiten,
                       schritte[0].zeiten, Verhaeltnis(2)});
    tabelle.NimmZeile({"Steuerdatei -> Netz: dasselbe, frischer Prozess", frisch[1].zeiten, frisch[0].zeiten,
                       Verhaeltnis(2.5)});
    tabelle.NimmZeile({"WeltinBild, alle Bildörter", schritte[5].zeiten, {}, Hoechstwert(8)});
    return 0;
}

}  // namespace

int main(int anzahl, char** worte) {
    return FuehreMessungAus(anzahl, worte, 9, MissAlles);
}
