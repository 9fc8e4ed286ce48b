// The command line, taken apart. Knows no files and no window.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ui/ausgabe/Ausgabeauftrag.h"

namespace zrw {

enum class Auftrag { Fenster, Stapel, Hilfe, Version };

/// A network of another program, to be taken over before anything is exported.
struct Importaufruf {
    std::string netz;  ///< empty: nothing is imported
    std::string ergebnisse;
    std::optional<double> grenze;
    bool ersetzen = false;
};

struct Aufruf : Ausgabeauftrag {
    Auftrag auftrag = Auftrag::Fenster;
    std::string datei;  ///< control or picture file, may be empty for the window
    Importaufruf importiere;
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
