// The output formats of the program, a row each: batch mode and window write through them.
#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Bildvorlage.h"
#include "model/Dateien.h"
#include "model/Netzangaben.h"
#include "output/Blattschnitt.h"
#include "output/Papier.h"
#include "output/Zeichenzustand.h"
#include "output/beschriftung/Planbeschriftung.h"
#include "output/blatt/Blattdruck.h"

namespace zrw {

/// Gets what the user should know of, a line in UTF-8.
using Sprecher = std::function<void(const std::string& text)>;

class TDM;

/// What a format writes from. Nothing of it changes but the legend, which notes when it was drawn.
struct Ausgabe {
    Bildvorlage vorlage;
    const Netzangaben& netz;
    const Einstellungen& einstellungen;
    const Zeichenzustand& zustand;  ///< without a surface
    Dateien& dateien;
    double massstab;           ///< scale denominator of the print
    std::string massstabtext;  ///< the same as the legend names it
    bool passend;   ///< no scale was asked for: a document takes the one at which the plan fits its sheet
    int dpi;        ///< resolution of the print [dots per inch]
    Papier papier;  ///< as it lies
    bool gesucht;   ///< that scale was asked for: drawings and plotter files take it, too
    std::size_t blaetter;        ///< how many sheets it may take
    Blattgestaltung gestaltung;  ///< of sheets
    bool alleBlaetter;           ///< every sheet of the print that holds something, not the first alone
    bool kantig;                 ///< pictures without smooth edges
    bool ausBild;                ///< from a picture file
    Sprecher sage;
    std::string eingabe;   ///< name of the input without folder and extension, UTF-8
    TDM* daten = nullptr;  ///< the tables of the adjustment; null: none are known
};

// What applies to a format.
inline constexpr unsigned kMitGroesse = 1;     ///< a picture of so many pixels
inline constexpr unsigned kMitKanten = 2;      ///< its edges are smooth or not
inline constexpr unsigned kMitPapier = 4;      ///< lies on sheets of paper
inline constexpr unsigned kMitMassstab = 8;    ///< has a scale and a resolution
inline constexpr unsigned kMitSchaltern = 16;  ///< holds what is switched on, not all of the network
inline constexpr unsigned kOhneLegende = 32;   ///< neither legend nor results, whatever is switched on
inline constexpr unsigned kMitNummern = 64;    ///< point numbers stand where the plan has them

struct Format {
    std::string_view name;         ///< on the command line
    std::string_view bezeichnung;  ///< in the window, UTF-8
    std::string_view endung;       ///< of the file, with its dot; the rest of the name is that of the input
    std::string_view dateiname;    ///< fixed name instead; may be empty
    unsigned merkmale;
    void (*schreibe)(const Ausgabe& a, const std::filesystem::path& datei);

    [[nodiscard]] constexpr bool HatMerkmal(unsigned merkmal) const { return (merkmale & merkmal) != 0; }
};

[[nodiscard]] std::span<const Format> AlleFormate();

/// Row of a format, or null.
[[nodiscard]] const Format* FindeFormat(std::string_view name);

/// All names, for messages.
[[nodiscard]] std::string Formatnamen();

/// Name of the file that a format writes for this input.
[[nodiscard]] std::filesystem::path Zielname(const Format& format, const std::filesystem::path& eingabe);

/// The sheets of a document, and the scale that they are drawn at.
struct Blattwahl {
    double massstab;
    std::string massstabtext;     ///< as the legend names it
    std::vector<Blatt> blaetter;  ///< those that are written, one at least
    std::size_t gebraucht;        ///< how many would hold all of the plan; 0: more than `kMeisteBlaetter`
};

/// The scale of a document of this output, as the legend names it.
[[nodiscard]] std::string Dokumentmassstab(const Ausgabe& a);

/// Places for point numbers on the sheets of a document of this output, all those that hold the plan.
/// @param netz that of the output; stays as it is @return nothing where it was stopped
[[nodiscard]] std::optional<Planbeschriftung::Ordnung> OrdneAufDokument(
    const Ausgabe& a, Netz& netz, const Planbeschriftung::Beweglich& beweglich,
    const Fortschritt& fortschritt);

/// The same sheets as a document of this output has. Tells nobody.
/// @throws Fehler where all of too many are asked for
[[nodiscard]] Blattwahl WaehleBlaetter(const Ausgabe& a);

/// The sheets of this choice, to be drawn one by one.
[[nodiscard]] Blattauftrag AuftragVon(const Ausgabe& a, const Blattwahl& wahl, const Druckseite& seite);

}  // namespace zrw
