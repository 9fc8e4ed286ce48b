// The import of a foreign network: reads the network and, where there are any, its results, and writes what
// every other network consists of: a control file with its tables, in a folder of their own.
#pragma once

#include <cstddef>
#include <ctime>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/Dateien.h"

namespace zrw {

/// What a file is to the import, by its content.
enum class Importrolle : unsigned char { Keine, Netz, Ergebnisse };
struct Importerkennung {
    Importrolle rolle = Importrolle::Keine;
    std::string_view format;  ///< "GNU Gama"; empty for no foreign file
};
/// Looks into a file. What cannot be read is no foreign file.
[[nodiscard]] Importerkennung ErkenneImport(const std::filesystem::path& datei, const Dateien& dateien);

/// What can be imported, for file dialogs: "GNU Gama (*.gkf *.xml)"; of several formats with ";;" between.
/// UTF-8
[[nodiscard]] std::string Importfilter();

/// Normalised residual beyond which an observation is flagged: error probability of the first kind 0.1 %.
inline constexpr double kUeblicheGrenze = 3.29;

struct Importauftrag {
    std::filesystem::path netz;
    std::filesystem::path ergebnisse;  ///< empty: none
    std::filesystem::path ziel;        ///< folder; empty: `ImportOrdner`
    double grenze = kUeblicheGrenze;   ///< > 0
    bool ersetzen = false;             ///< files that are there already
};

/// "NETZ.zarwik" beside "NETZ.gkf".
[[nodiscard]] std::filesystem::path ImportOrdner(const std::filesystem::path& netz);
/// The results that lie beside a network under its name, or a network beside its results; empty: none.
[[nodiscard]] std::filesystem::path Importpartner(const std::filesystem::path& datei, Importrolle gesucht,
                                                  const Dateien& dateien);
/// The files in the target folder whose place an import would take, or which would no longer belong there.
[[nodiscard]] std::vector<std::filesystem::path> ImportZiele(const Importauftrag& auftrag,
                                                             const Dateien& dateien);

struct Importergebnis {
    std::filesystem::path steuerdatei;
    std::size_t punkte = 0;               ///< in the control file
    std::size_t beobachtungen = 0;        ///< of the network
    std::size_t ergebnisse = 0;           ///< observations with results
    std::vector<std::string> hinweise{};  ///< what could not be kept, a line each, UTF-8
};

/// @param zeit [s since 1970] kept in the tables
/// @throws Fehler where something cannot be read, written or exists already; nothing has changed then, but
/// where the last renaming of several files fails
[[nodiscard]] Importergebnis ImportiereNetz(const Importauftrag& auftrag, Dateien& dateien, std::time_t zeit);

/// One line about an import that went well: "9 Punkte und 41 Beobachtungen nach ... importiert." UTF-8
[[nodiscard]] std::string Importmeldung(const Importergebnis& ergebnis);

}  // namespace zrw
