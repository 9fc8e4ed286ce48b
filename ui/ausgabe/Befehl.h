// The command line that writes what the window's dialog writes: the words, and how a shell takes them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "ui/ausgabe/Ausgabeauftrag.h"
#include "ui/ausgabe/Formate.h"

namespace zrw {

/// @param ordner where the file goes @param datei what is read
[[nodiscard]] std::vector<std::string> Befehlsworte(const Format& format, const Ausgabeauftrag& auftrag,
                                                    const std::filesystem::path& ordner,
                                                    const std::filesystem::path& datei);

/// The words in one line, in quotes where the shell of this system would take them for something else.
[[nodiscard]] std::string Befehlszeile(const std::vector<std::string>& worte);

}  // namespace zrw
