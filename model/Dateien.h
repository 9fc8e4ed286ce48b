// The outside world of files behind one interface, so that readers and writers are tested in memory.
// The real one: input/Systemdateien.h.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "model/Cp1252.h"

namespace zrw {

/// A file that is being written beside the one whose place it takes at the end. Dropped before `ErsetzeZiel`,
/// it leaves no trace.
class Dateischreiber {
  public:
    virtual ~Dateischreiber() = default;
    /// Appends. @throws Fehler
    virtual void SchreibeBytes(std::string_view bytes) = 0;
    /// Brings everything written onto the disk; nothing is written afterwards. @throws Fehler
    virtual void SichereDatei() = 0;
    /// Takes the place, after `SichereDatei`: at every moment the name holds the old content or the new one.
    /// @throws Fehler; the old file then is as it was
    virtual void ErsetzeZiel() = 0;
};

/// Tells one content of a file from a later one.
struct Dateistand {
    std::uintmax_t groesse = 0;
    std::int64_t zeit = 0;  ///< of the last change, in whatever the system counts
    friend bool operator==(const Dateistand&, const Dateistand&) = default;
};

class Dateien {
  public:
    virtual ~Dateien() = default;

    /// Whole content of a regular file of at most `grenze` bytes.
    /// @throws Oeffnungsfehler where there is none, it may not be read, or is a folder, pipe or device
    /// @throws Fehler where it is larger or reading fails
    [[nodiscard]] virtual std::string LiesDatei(const std::filesystem::path& datei,
                                                std::size_t grenze) const = 0;

    /// The first bytes of a file, all of a shorter one. @throws Fehler as `LiesDatei`
    [[nodiscard]] virtual std::string LiesAnfang(const std::filesystem::path& datei,
                                                 std::size_t anzahl) const {
        std::string inhalt = LiesDatei(datei, static_cast<std::size_t>(-1));
        inhalt.resize(std::min(inhalt.size(), anzahl));
        return inhalt;
    }

    /// None where there is no regular file.
    [[nodiscard]] virtual std::optional<Dateistand> Stand(const std::filesystem::path& datei) const = 0;

    /// Begins a new content for a file.
    /// @throws Fehler where it could not be written; the old file then is as it was
    [[nodiscard]] virtual std::unique_ptr<Dateischreiber> BeginneDatei(
        const std::filesystem::path& datei) = 0;
    /// Puts a whole content in place at once. @throws Fehler as `Dateischreiber` does
    void ErsetzeDatei(const std::filesystem::path& datei, std::string_view inhalt) {
        const auto neu = BeginneDatei(datei);
        neu->SchreibeBytes(inhalt);
        neu->SichereDatei();
        neu->ErsetzeZiel();
    }

    /// Makes a folder and those above it, where they are missing. @throws Fehler
    virtual void ErstelleOrdner(const std::filesystem::path& /*ordner*/) {}
    /// Removes a file, if there is one. @throws Fehler where it stays
    virtual void EntferneDatei(const std::filesystem::path& datei) = 0;

    /// The file of this name in a folder, an exact match first, else without regard to case.
    [[nodiscard]] virtual std::optional<std::filesystem::path> FindeDatei(const std::filesystem::path& ordner,
                                                                          const std::string& name) const = 0;
};

// The system keeps its names as bytes or as wide characters.
[[nodiscard]] inline std::string NativNachUtf8(const std::string& nativ) {
    return nativ;
}
[[nodiscard]] inline std::string NativNachUtf8(const std::wstring& nativ) {
    return BreitNachUtf8(nativ);
}

/// UTF-8 text of a path, for messages.
[[nodiscard]] inline std::string PfadText(const std::filesystem::path& p) {
    return NativNachUtf8(p.native());
}

/// Path of a UTF-8 text.
[[nodiscard]] inline std::filesystem::path TextPfad(std::string_view utf8) {
    return {std::u8string(utf8.begin(), utf8.end())};
}

}  // namespace zrw
