// Typed reading of the fields of one line of a control file: words, numbers, and texts that stand by
// position.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "model/Zahlentext.h"

namespace zrw {

/// Takes the next word off the text, with the blanks around it. The last word is the whole rest.
[[nodiscard]] inline std::string_view NaechstesWort(std::string_view& text) {
    std::size_t anfang = 0;
    while (anfang < text.size() && IstLeerzeichen(text[anfang]))
        ++anfang;
    std::size_t ende = anfang;
    while (ende < text.size() && !IstLeerzeichen(text[ende]))
        ++ende;
    const std::string_view wort = text.substr(anfang, ende - anfang);
    while (ende < text.size() && IstLeerzeichen(text[ende]))
        ++ende;
    text.remove_prefix(ende);
    return wort;
}

class Feldleser {
  public:
    explicit Feldleser(std::string_view text) : text_(text) {}

    [[nodiscard]] std::string_view Wort() { return NaechstesWort(text_); }
    [[nodiscard]] std::optional<double> Real() { return LiesReal(NimmBisLeer()); }
    [[nodiscard]] std::optional<std::int64_t> Ganz() { return LiesGanz(NimmBisLeer()); }

    /// Exactly `anzahl` characters by position, fewer at the end of the line.
    [[nodiscard]] std::string_view Zeichen(std::size_t anzahl) {
        const std::string_view t = text_.substr(0, anzahl);
        text_.remove_prefix(t.size());
        return t;
    }
    void UeberspringeZeichen(std::size_t anzahl) { (void)Zeichen(anzahl); }
    [[nodiscard]] std::string_view Rest() const { return text_; }

  private:
    /// The next word without the blanks behind it: what follows may stand by position.
    std::string_view NimmBisLeer() {
        while (!text_.empty() && IstLeerzeichen(text_.front()))
            text_.remove_prefix(1);
        std::size_t ende = 0;
        while (ende < text_.size() && !IstLeerzeichen(text_[ende]))
            ++ende;
        return Zeichen(ende);
    }

    std::string_view text_;
};

}  // namespace zrw
