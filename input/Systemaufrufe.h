// The calls of the operating system that `Systemdateien` is made of: the only place of this room that knows
// which system it is. Numbers of errors are those of <cerrno> on every system; 0 is none.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "model/Dateien.h"

namespace zrw::system {

struct Schliesser {
    void operator()(std::FILE* f) const { std::fclose(f); }
};
using Strom = std::unique_ptr<std::FILE, Schliesser>;

enum class Dateiart { Keine, Gewoehnlich, Ordner, Andere };
struct Befund {
    Dateiart art = Dateiart::Keine;
    int fehler = 0;  ///< why there is none, or why that cannot be told
};
/// What a name leads to, over links.
[[nodiscard]] Befund Untersuche(const std::filesystem::path& p);

/// For reading, whoever else has it open; what is written beside, renamed or removed meanwhile stays what it
/// was here. None sets `errno`.
[[nodiscard]] Strom OeffneZumLesen(const std::filesystem::path& p);
/// A new file; where one of this name is already, none. None sets `errno`.
[[nodiscard]] Strom LegeAn(const std::filesystem::path& p);
/// Of the file that is open, which a new one under its name does not touch.
[[nodiscard]] std::optional<Dateistand> StandVon(std::FILE* f);
[[nodiscard]] std::optional<Dateistand> StandVon(const std::filesystem::path& p);
/// Brings what was written onto the disk. @return whether it did
[[nodiscard]] bool AufPlatte(std::FILE* f);

/// Whether the rights of an existing file allow writing it: 0 if so.
[[nodiscard]] int VerbotenesSchreiben(const std::filesystem::path& p);
/// Where writing to a name leads to. A link whose file is missing leads to where that file belongs: who has
/// put the link there wants the file in that place, and not the link replaced. Else sets `fehler`.
[[nodiscard]] std::filesystem::path Linkziel(const std::filesystem::path& p, int& fehler);
/// Gives `neu` the name and the rights of `ziel` in one step; whoever has the old content open keeps it.
[[nodiscard]] int Ersetze(const std::filesystem::path& neu, const std::filesystem::path& ziel);
/// No error where there is none.
[[nodiscard]] int Entferne(const std::filesystem::path& p);
/// Where the one that it belongs to exists.
[[nodiscard]] int LegeOrdnerAn(const std::filesystem::path& p);
/// With those above it.
[[nodiscard]] int ErstelleOrdner(const std::filesystem::path& p);
/// Names in a folder, in no order; none where it cannot be read.
[[nodiscard]] std::vector<std::filesystem::path> Eintraege(const std::filesystem::path& ordner);

/// From the root on, without "." and "..".
[[nodiscard]] std::filesystem::path VollerName(const std::filesystem::path& p);
/// Whether both lead to the same file, which exists.
[[nodiscard]] bool DieselbeDatei(const std::filesystem::path& a, const std::filesystem::path& b);
/// Sets the running programs apart.
[[nodiscard]] int Prozess();

}  // namespace zrw::system
