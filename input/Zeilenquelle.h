// The lines of a control file and of the one include file that may be open inside it. Files in UTF-8 become
// code page 1252, each by itself, before anybody counts columns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "model/Dateien.h"

namespace zrw {

/// Place of a line in a reading; small, since every observation carries one.
struct Zeilenort {
    std::uint32_t datei = 0;  ///< number of the file in the order of opening
    std::uint32_t zeile = 0;  ///< 1 for the first line
};

/// How opening an include file ended.
struct Einfuegung {
    std::string grund;  ///< why it is not open, UTF-8; empty: it is
    std::string
        ersatz;  ///< the file beside the control file that took the place of a path that leads nowhere
};

/// Characters of a file that code page 1252 lacks.
struct Ersetzung {
    std::size_t anzahl = 0;  ///< that became "?"
    std::string datei;
    std::int64_t zeile = 0;  ///< of the first
};

class Zeilenquelle {
  public:
    /// Opens the control file. @throws Fehler where it cannot be read
    Zeilenquelle(const std::filesystem::path& steuerdatei, const Dateien& dateien);

    /// Next line without its line end (LF, CR LF or CR): from the include file while one is open, else from
    /// the control file. False at the end of the control file.
    [[nodiscard]] bool Naechste(std::string_view& zeile);

    /// Continues with the lines of another file. The name is code page 1252, relative to the control file's
    /// folder, with "\" or "/" between folders, in any case. Where it leads nowhere, the file of its last
    /// part beside the control file takes its place.
    /// @throws Fehler where the includes of one reading grow beyond all measure
    [[nodiscard]] Einfuegung OeffneEinfuegung(std::string_view name);
    [[nodiscard]] bool EinfuegungOffen() const { return eingefuegt_.offen; }

    /// Size of the control file [bytes].
    [[nodiscard]] std::size_t Groesse() const { return haupt_.inhalt.size(); }
    /// Part of it that has been read [0 to 1].
    [[nodiscard]] double Anteil() const {
        return static_cast<double>(haupt_.stelle) / static_cast<double>(haupt_.inhalt.size() + 1);
    }
    /// The last line read, for messages.
    [[nodiscard]] Zeilenort Hier() const { return {Aktuell().datei, Aktuell().nummer}; }
    /// Name of a file without its folder, UTF-8.
    [[nodiscard]] const std::string& Name(Zeilenort ort) const { return namen_[ort.datei]; }
    /// What was lost in the file opened last.
    [[nodiscard]] const Ersetzung& Ersetzt() const { return ersetzt_; }

  private:
    struct Text {
        std::string inhalt;
        std::size_t stelle = 0;
        std::size_t ruecklauf = 0;  ///< next CR at or behind `stelle`; before it: to be searched
        std::uint32_t datei = 0;
        std::uint32_t nummer = 0;
        bool offen = false;
    };
    void UebernimmInhalt(Text& text, const std::filesystem::path& pfad, std::string inhalt);
    [[nodiscard]] static bool LiesZeile(Text& text, std::string_view& zeile);
    [[nodiscard]] const Text& Aktuell() const { return ausEinfuegung_ ? eingefuegt_ : haupt_; }

    const Dateien& dateien_;
    std::filesystem::path ordner_;
    std::vector<std::string> namen_;
    Ersetzung ersetzt_;
    Text haupt_;
    Text eingefuegt_;
    bool ausEinfuegung_ = false;
    std::size_t gelesen_ = 0;
};

}  // namespace zrw
