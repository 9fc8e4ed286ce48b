// Reading a control file (".EIN") into a fresh network. Fitting and showing it is the caller's business, and
// so is keeping the previous network when the reading fails.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "input/Lesebericht.h"
#include "model/Dateien.h"
#include "model/Fehler.h"
#include "model/FigListe.h"
#include "model/Netzangaben.h"

namespace zrw {

/// Something that the reading met and went on from.
struct Meldung {
    std::string text;   ///< German, UTF-8
    std::string datei;  ///< name of the file without its folder
    std::int64_t zeile = 0;
    std::string grund{};   ///< why, for a line of its own; may be empty
    bool hinweis = false;  ///< nothing is lost: it was read as described and may be meant otherwise

    /// What stands below the text where there is room for two lines: "NETZ.EIN, Zeile 12: Rechtswert fehlt"
    [[nodiscard]] std::string Stelle() const {
        return grund.empty() ? Fehler::Ort(datei, zeile) : Fehler::Meldung(grund, datei, zeile);
    }
    /// All in one line: "NETZ.EIN, Zeile 12: Lesefehler bei Punkt7: Rechtswert fehlt"
    [[nodiscard]] std::string Zeile() const {
        const std::string mitGrund =
            grund.empty() ? text : text + (grund.starts_with('(') ? " " : ": ") + grund;
        return Fehler::Meldung(mitGrund, datei, zeile);
    }
};
/// Takes the messages of one reading as they come; there may be very many.
using Meldungsempfaenger = std::function<void(const Meldung&)>;

/// Told now and then which part of the control file is read [0 to 1]; answers whether to go on.
using Lesefortschritt = std::function<bool(double anteil)>;

/// The reading was given up by `Lesefortschritt`.
class Leseabbruch : public Fehler {
  public:
    using Fehler::Fehler;
};

/// How a reading ended that did not fail altogether.
enum class Leseende : std::uint8_t {
    Vollstaendig,
    Abgebrochen,   ///< an include file is missing: the network holds what was read before
    Programmende,  ///< a coordinate file is missing: the program is to end
};

struct Lesung {
    std::unique_ptr<Liste> liste;
    Netzangaben netz;
    Leseende ende = Leseende::Vollstaendig;
    std::string endetext;   ///< the message of an ending other than `Vollstaendig`
    std::string endegrund;  ///< its second line: "NETZ.EIN, Zeile 12: nicht vorhanden"
    Lesebericht bericht;
};

/// @param einstellungen colours and label offsets; must outlive the network
/// @throws Fehler where the file cannot be opened or a number outside the point lines is malformed
/// @throws Leseabbruch
[[nodiscard]] Lesung LeseSteuerdatei(const std::filesystem::path& datei, const Dateien& dateien,
                                     const Einstellungen& einstellungen, const Meldungsempfaenger& meldung,
                                     const Lesefortschritt& fortschritt = {});

/// Sexagesimal degrees.minutesseconds [-] to decimal degrees [deg].
[[nodiscard]] double GradDezimal(double wert);

}  // namespace zrw
