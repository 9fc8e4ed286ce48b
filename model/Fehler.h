// The one error type of the project: a German message, the file and, for text, the line. Thrown at file
// borders, shown at one place of the window or printed by the batch mode.
#pragma once

#include <cstdint>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace zrw {

class Fehler : public std::runtime_error {
  public:
    /// @param text what happened and what now, UTF-8
    /// @param datei the file concerned, UTF-8; may be empty
    /// @param zeile 1 for the first line, 0 where lines have no meaning
    explicit Fehler(const std::string& text, std::string datei = {}, std::int64_t zeile = 0)
        : std::runtime_error(Meldung(text, datei, zeile)),
          text_(text),
          datei_(std::move(datei)),
          zeile_(zeile) {}

    [[nodiscard]] const std::string& Text() const { return text_; }
    [[nodiscard]] const std::string& Datei() const { return datei_; }
    [[nodiscard]] std::int64_t Zeile() const { return zeile_; }

    /// One line: "NETZ.EIN, Zeile 12: Text".
    [[nodiscard]] static std::string Meldung(const std::string& text, const std::string& datei,
                                             std::int64_t zeile) {
        return datei.empty() ? text : Ort(datei, zeile) + ": " + text;
    }
    /// "NETZ.EIN, Zeile 12"
    [[nodiscard]] static std::string Ort(const std::string& datei, std::int64_t zeile) {
        return datei + (zeile > 0 ? ", Zeile " + std::to_string(zeile) : std::string());
    }

  private:
    std::string text_;
    std::string datei_;
    std::int64_t zeile_;
};

/// The file cannot be opened at all.
class Oeffnungsfehler : public Fehler {
  public:
    /// @param grund why, as it stands behind other words, too: "nicht vorhanden"
    Oeffnungsfehler(const std::string& grund, std::string datei)
        : Fehler("Kann Datei nicht öffnen (" + grund + ").", std::move(datei)), grund_(grund) {}
    [[nodiscard]] const std::string& Grund() const { return grund_; }

  private:
    std::string grund_;
};

/// What users are told of any fault. Beside ours there is only one to be expected: no more memory.
[[nodiscard]] inline std::string Fehlertext(const std::exception& fehler) {
    if (dynamic_cast<const Fehler*>(&fehler) != nullptr) return fehler.what();
    if (dynamic_cast<const std::bad_alloc*>(&fehler) != nullptr ||
        dynamic_cast<const std::length_error*>(&fehler) != nullptr) {
        return "Der Speicher reicht nicht. Bitte andere Programme beenden oder ein kleineres Netz nehmen.";
    }
    return std::string("Unerwarteter Fehler (") + fehler.what() + ").";
}

}  // namespace zrw
