// A TrueType font as a document carries it (OpenType 1.9, tables of the outlines only): its measures, and a
// file of the characters that are used. Knows neither fonts of the system nor documents.
#pragma once

#include <array>
#include <bitset>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "output/Schriftmasse.h"

namespace zrw {

/// A font of the system, as it was found.
struct Schriftquelle {
    std::string name;                             ///< of the family
    std::array<std::uint16_t, 256> glyphen{};     ///< by the bytes of code page 1252; 0 where there is none
    std::map<std::string, std::string> tabellen;  ///< by their four letters, whole
};

/// Bytes of code page 1252 that a document uses.
using Zeichenmenge = std::bitset<256>;

class Einbettschrift {
  public:
    /// None where the font has no outlines of this kind, may not be embedded in part, or is damaged.
    [[nodiscard]] static std::optional<Einbettschrift> AusQuelle(Schriftquelle quelle);

    [[nodiscard]] const Schriftmasse& Masse() const { return masse_; }
    /// Box round all glyphs, left, bottom, right, top [1/1000 em].
    [[nodiscard]] const std::array<double, 4>& Kasten() const { return kasten_; }
    /// Name of the font with these characters alone: "ABCDEF+Name", the same for the same characters.
    [[nodiscard]] std::string Name(const Zeichenmenge& zeichen) const;
    /// The font file with these characters, and with what their glyphs are put together from.
    [[nodiscard]] std::string Datei(const Zeichenmenge& zeichen) const;

  private:
    Einbettschrift() = default;
    [[nodiscard]] bool LiesTafeln();
    [[nodiscard]] std::string_view Umriss(std::size_t glyphe) const;
    [[nodiscard]] std::vector<bool> Benoetigt(const Zeichenmenge& zeichen) const;
    [[nodiscard]] std::string Zuordnung(const Zeichenmenge& zeichen) const;

    Schriftquelle quelle_;
    Schriftmasse masse_;
    std::array<double, 4> kasten_{};
    std::vector<std::uint32_t> orte_;  ///< of the outlines, one more than there are glyphs
    std::size_t breiten_ = 0;  ///< glyphs with an advance of their own; the others have the last one's
};

}  // namespace zrw
