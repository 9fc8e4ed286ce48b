// The names that points had before their network was imported: a file of two columns beside the control file,
// for those whose name did not fit into a point number.
#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <span>
#include <string>

#include "input/Steuerdatei.h"
#include "model/Dateien.h"

namespace zrw {

struct Namenspaar {
    std::string neu;  ///< the point number, code page 1252
    std::string alt;  ///< the name that it stands for, UTF-8
};

/// From point numbers (code page 1252) to the names that they stand for (UTF-8).
using Namensliste = std::map<std::string, std::string, std::less<>>;

/// Where the list of a control file lies: "NETZ_namen.csv" beside "NETZ.EIN".
[[nodiscard]] std::filesystem::path Namenslistendatei(const std::filesystem::path& steuerdatei);

/// The content of that file: "Neu;Alt" and a row for each pair, UTF-8 without a byte order mark, line feeds.
[[nodiscard]] std::string Namenslistentext(std::span<const Namenspaar> paare);

/// Empty where there is none. Never throws for what is in the file: what cannot be used is told and left out.
[[nodiscard]] Namensliste LiesNamensliste(const std::filesystem::path& steuerdatei, const Dateien& dateien,
                                          const Meldungsempfaenger& meldung);

}  // namespace zrw
