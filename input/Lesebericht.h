// What one reading of a control file counted, and the German texts made of it. Single lines are told while
// they are read: `Meldung`.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace zrw {

struct Lesebericht {
    /// Lines of one kind that went without effect.
    struct Befund {
        std::size_t anzahl = 0;
        std::string datei;  ///< of the first, without its folder
        std::int64_t zeile = 0;
    };
    Befund unbekannte;   ///< observations that name points which no line before them has introduced
    Befund wiederholte;  ///< points whose number was in the network already

    bool schluessel = false;     ///< a line begins with a known key
    bool netztyp = false;        ///< the file names its network type
    std::size_t ohneTyp = 0;     ///< point lines before it
    std::size_t fremderTyp = 0;  ///< point lines of a type without coordinates
    std::int32_t letzterFremder = 0;
    std::size_t unlesbare = 0;  ///< other point lines without a point
};

/// For the status line, after what was read: "3 Beobachtungen nennen unbekannte Punkte (zuerst NETZ.EIN,
/// Zeile 12)". Empty where there is nothing to say. UTF-8.
[[nodiscard]] std::string Statustext(const Lesebericht& bericht);

/// Why a control file gave no point at all. UTF-8.
[[nodiscard]] std::string Leertext(const Lesebericht& bericht);

/// Why the fields behind the number of a point line are not readable. UTF-8.
/// @param text the fields, code page 1252
/// @param felder what they are called: an integer, then reals
[[nodiscard]] std::string Lesegrund(std::string_view text, std::span<const char* const> felder);

/// A short, printable piece of a line for a message. UTF-8.
[[nodiscard]] std::string Auszug(std::string_view zeile, std::size_t laenge = 40);

}  // namespace zrw
