// A small INI file of the program's own: KEY=TEXT, TEXT... in sections, as Qt writes such files. Unlike Qt's
// own reader it opens nothing but a regular file of moderate size, and a value is text: it never names its
// own type.
#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "input/Systemdateien.h"
#include "model/Fehler.h"

namespace zrw {

class Inidatei {
  public:
    /// Reads one section. That there is no file is no fault.
    Inidatei(const QString& datei, std::string abschnitt);

    /// Why the file that is there could not be read; it counts as empty then.
    [[nodiscard]] const std::optional<Fehler>& Lesefehler() const { return lesefehler_; }

    /// The texts of a key, empty where it is not there or holds something else than texts.
    [[nodiscard]] QStringList LiesTexte(std::string_view schluessel) const;
    /// @param schluessel without = and blanks. Nothing is written before `SichereDatei`.
    void SetzeTexte(std::string_view schluessel, const QStringList& texte);
    /// Puts what was set into the file as it is by now; what others wrote there stays.
    /// @throws Fehler; what was set is then still there for another time
    void SichereDatei();

  private:
    std::filesystem::path datei_;
    std::string abschnitt_;
    Systemdateien dateien_;
    std::optional<Fehler> lesefehler_;
    std::vector<std::string> zeilen_;
    std::map<std::string, std::string, std::less<>> neu_;  ///< key -> value as it stands in the file
};

}  // namespace zrw
