// The output formats of the batch mode, a row each.
#pragma once

#include <string>
#include <string_view>

#include "model/Dateien.h"
#include "model/FigListe.h"
#include "model/Netzangaben.h"
#include "output/Papier.h"
#include "output/Zeichenzustand.h"

namespace zrw {

/// What a format writes from.
struct Ausgabe {
    Liste& liste;
    const Netzangaben& netz;
    const Einstellungen& einstellungen;
    const Zeichenzustand& zustand;  ///< without a surface
    Dateien& dateien;
    double massstab;           ///< scale denominator of the print
    std::string massstabtext;  ///< the same as the legend names it
    bool passend;       ///< no scale was asked for: a document takes the one at which the plan fits its sheet
    int dpi;            ///< resolution of the print [dots per inch]
    Papier papier;      ///< as it lies
    bool alleBlaetter;  ///< every sheet of the print that holds something, not the first alone
    bool kantig;        ///< pictures without smooth edges
    bool ausBild;       ///< from a picture file
    void (*sage)(const std::string& text);  ///< what the user should know of, UTF-8
    std::string_view eingabe;               ///< name of the input without folder and extension, UTF-8
};

struct Format {
    std::string_view name;       ///< on the command line
    std::string_view endung;     ///< of the file, with its dot; the rest of the name is that of the input
    std::string_view dateiname;  ///< fixed name instead; may be empty
    void (*schreibe)(const Ausgabe& a, const std::filesystem::path& datei);
};

/// Row of a format, or null.
[[nodiscard]] const Format* FindeFormat(std::string_view name);

/// All names, for messages.
[[nodiscard]] std::string Formatnamen();

}  // namespace zrw
