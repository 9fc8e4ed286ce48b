// The lines of a control file and of the one include file that may be open inside it.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "model/Dateien.h"

namespace zrw {

class Zeilenquelle {
  public:
    /// Opens the control file. @throws Fehler where it cannot be read
    Zeilenquelle(const std::filesystem::path& steuerdatei, const Dateien& dateien);

    /// Next line without its line end (LF or CR LF): from the include file while one is open, else from the
    /// control file. False at the end of the control file.
    [[nodiscard]] bool Naechste(std::string_view& zeile);

    /// Continues with the lines of another file. The name is code page 1252, relative to the control file's
    /// folder, with "\" or "/" between folders, in any case. False where there is no such file.
    /// @throws Fehler where the includes of one reading grow beyond all measure
    [[nodiscard]] bool OeffneEinfuegung(std::string_view name);
    [[nodiscard]] bool EinfuegungOffen() const { return eingefuegt_.offen; }

    /// Size of the control file [bytes].
    [[nodiscard]] std::size_t Groesse() const { return haupt_.inhalt.size(); }
    /// Part of it that has been read [0 to 1].
    [[nodiscard]] double Anteil() const {
        return static_cast<double>(haupt_.stelle) / static_cast<double>(haupt_.inhalt.size() + 1);
    }
    /// File name and line of the last line read, for messages.
    [[nodiscard]] std::string Datei() const { return PfadText(Aktuell().pfad.filename()); }
    [[nodiscard]] long Zeile() const { return Aktuell().nummer; }

  private:
    struct Text {
        std::filesystem::path pfad;
        std::string inhalt;
        std::size_t stelle = 0;
        long nummer = 0;
        bool offen = false;
    };
    [[nodiscard]] static bool Lies(Text& text, std::string_view& zeile);
    [[nodiscard]] const Text& Aktuell() const { return ausEinfuegung_ ? eingefuegt_ : haupt_; }

    const Dateien& dateien_;
    Text haupt_;
    Text eingefuegt_;
    bool ausEinfuegung_ = false;
    std::size_t gelesen_ = 0;
};

}  // namespace zrw
