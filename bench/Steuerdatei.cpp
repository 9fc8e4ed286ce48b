// How fast a control file becomes a network, beside the raw limit: splitting the same bytes into lines and
// converting every number in them, without keeping anything.
// usage: bench_steuerdatei [ROUNDS]
#include "input/Steuerdatei.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "bench/Messung.h"
#include "bench/Netzgenerator.h"
#include "input/Systemdateien.h"
#include "model/Bytes.h"
#include "model/Fehler.h"
#include "tests/hilfe/Speicherdateien.h"

namespace {

using zrw::bench::Miss;

/// What keeps the compiler from leaving the work out.
struct Rohergebnis {
    std::size_t zeilen = 0;
    std::size_t felder = 0;
    double summe = 0.0;
};

void Zerlege(const char* p, const char* ende, Rohergebnis& r) {
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
        Zerlege(p, zeilenende, r);
        p = zeilenende == ende ? ende : zeilenende + 1;
    }
    return r;
}

/// As opening does it: read, take the extents, fit.
zrw::Lesung Lade(const std::filesystem::path& datei, const zrw::Dateien& dateien,
                 const zrw::Einstellungen& e) {
    zrw::Lesung lesung = zrw::LeseSteuerdatei(datei, dateien, e, {});
    lesung.liste->Weite = 1200;
    lesung.liste->Hoehe = 800;
    lesung.liste->FindWorldMinMax();
    lesung.liste->PasseEin();
    return lesung;
}

std::string Gespeichert(const zrw::Liste& liste, const zrw::Netzangaben& netz) {
    zrw::ByteSchreiber f;
    liste.Store(f, netz);
    return std::string(f.Inhalt());
}

double MB(std::size_t bytes) {
    return static_cast<double>(bytes) / 1e6;
}

/// A file of its own that goes with its owner.
class Zwischendatei {
  public:
    explicit Zwischendatei(std::string_view inhalt)
        : pfad_(std::filesystem::temp_directory_path() / "zarwik_bench.EIN") {
        zrw::Systemdateien().Ersetze(pfad_, inhalt);
    }
    ~Zwischendatei() {
        std::error_code fehler;
        std::filesystem::remove(pfad_, fehler);
    }
    Zwischendatei(const Zwischendatei&) = delete;
    Zwischendatei& operator=(const Zwischendatei&) = delete;
    [[nodiscard]] const std::filesystem::path& Pfad() const { return pfad_; }

  private:
    std::filesystem::path pfad_;
};

constexpr const char* kNetz = "NETZ.EIN";

int Vergleiche(int runden) {
    const zrw::Einstellungen e;
    zrw::Speicherdateien dateien;
    dateien.dateien[kNetz] = zrw::bench::ErzeugeSteuerdatei({});
    const std::string& bytes = dateien.dateien[kNetz];
    const Zwischendatei datei(bytes);
    const zrw::Systemdateien system;

    const std::size_t vorher = zrw::bench::Speicherbedarf();
    const double kalt = Miss([&] { return Rohgrenze(bytes).summe; });
    zrw::Lesung netz;
    const double erste = Miss([&] {
        netz = Lade(datei.Pfad(), system, e);
        return 0;
    });
    const std::size_t nachher = zrw::bench::Speicherbedarf();
    const Rohergebnis roh = Rohgrenze(bytes);
    std::printf("Steuerdatei %.2f MB, %zu Zeilen, %zu Felder; Netz %d Punkte, %d Linien\n", MB(bytes.size()),
                roh.zeilen, roh.felder, netz.liste->MaxPkte, netz.liste->MaxKant);
    std::printf("Erstes Lesen im Prozess %.1f ms (a: %.1f ms), Speicher des Netzes %.1f MB\n\n", erste, kalt,
                MB(nachher > vorher ? nachher - vorher : 0));

    // A picture file counts at most 65535 lines.
    zrw::Speicherdateien kleiner;
    kleiner.dateien[kNetz] = zrw::bench::ErzeugeSteuerdatei({.paare = 65000, .beobachtungen = 95000});
    const zrw::Lesung bild = Lade(kNetz, kleiner, e);
    const std::string gespeichert = Gespeichert(*bild.liste, bild.netz);
    zrw::Netzangaben gelesen;

    std::vector<zrw::bench::Schritt> schritte{
        {"(a) Zeilen und Zahlen, nichts behalten", bytes.size(),
         [&] { return Miss([&] { return Rohgrenze(bytes).summe; }); }},
        {"(b) Steuerdatei aus dem Speicher -> Netz", bytes.size(),
         [&] { return Miss([&] { return Lade(kNetz, dateien, e); }); }},
        {"    davon Kopie der Bytes", bytes.size(), [&] { return Miss([&] { return std::string(bytes); }); }},
        {"(c) Steuerdatei von der Platte -> Netz", bytes.size(),
         [&] { return Miss([&] { return Lade(datei.Pfad(), system, e); }); }},
        {"    davon Lesen der Bytes", bytes.size(),
         [&] { return Miss([&] { return system.Lies(datei.Pfad(), bytes.size()); }); }},
        {"(d) WeltinBild", 0,
         [&] {
             return Miss([&] {
                 netz.liste->WeltinBild();
                 return 0;
             });
         }},
        {"(e) Zarwikdatei: Store", gespeichert.size(),
         [&] { return Miss([&] { return Gespeichert(*bild.liste, bild.netz); }); }},
        {"(e) Zarwikdatei: Load", gespeichert.size(),
         [&] {
             return Miss([&] {
                 zrw::ByteLeser leser(gespeichert);
                 return zrw::Liste::Load(leser, e, gelesen, kNetz);
             });
         }},
    };
    zrw::bench::Laufe(schritte, runden);
    zrw::bench::Drucke(schritte);
    return 0;
}

}  // namespace

int main(int anzahl, char** argumente) {
    const int runden = anzahl > 1 ? std::atoi(argumente[1]) : 7;
    try {
        return Vergleiche(runden > 0 ? runden : 7);
    } catch (const std::exception& f) {
        std::fprintf(stderr, "%s\n", f.what());
        return 1;
    }
}
