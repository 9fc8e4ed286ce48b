// The command line, taken apart. Knows no files and no window.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/ausgabe/Ausgabeauftrag.h"

namespace zrw {

enum class Auftrag { Fenster, Stapel, Hilfe, Version };

struct Aufruf : Ausgabeauftrag {
    Auftrag auftrag = Auftrag::Fenster;
    std::string datei;                 ///< control or picture file, may be empty for the window
    std::vector<std::string> formate;  ///< names from the format table
    std::string ziel;                  ///< target folder; empty: the working folder
    std::optional<std::string> einstellungen;
};

/// Usage that cannot be understood; the text is German.
struct Falschaufruf {
    std::string text;
};

/// @param worte the arguments without the program's name, UTF-8
/// @throws Falschaufruf
[[nodiscard]] Aufruf LiesAufruf(const std::vector<std::string>& worte);

/// What --help prints.
[[nodiscard]] std::string Hilfetext();

}  // namespace zrw
