#include "input/tabellen/Codeseite.h"

#include <cstdint>

#include "model/Cp1252.h"

namespace zrw {
namespace {

/// Characters of the bytes 0x80 to 0xFF (Unicode mapping tables CP437 and CP850), 16 in each line.
constexpr std::string_view k437 =
    "ÇüéâäàåçêëèïîìÄÅ"
    "ÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    "áíóúñÑªº¿⌐¬½¼¡«»"
    "░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    "└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
    "╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    "αßΓπΣσµτΦΘΩδ∞φε∩"
    "≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr std::string_view k850 =
    "ÇüéâäàåçêëèïîìÄÅ"
    "ÉæÆôöòûùÿÖÜø£Ø×ƒ"
    "áíóúñÑªº¿®¬½¼¡«»"
    "░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    "└┴┬├─┼ãÃ╚╔╩╦╠═╬¤"
    "ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    "ÓßÔÒõÕµþÞÚÛÙýÝ¯´"
    "\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";

}  // namespace

bool Codeseite::Bekannt(unsigned nummer) {
    return nummer == 437 || nummer == 850 || nummer == 1252;
}

Codeseite::Codeseite(unsigned nummer) {
    std::string_view zeichen = nummer == 437 ? k437 : k850;
    for (std::size_t i = 0; i < oben_.size(); ++i) {
        if (nummer == 437 || nummer == 850) {
            const std::size_t laenge = static_cast<std::uint8_t>(zeichen[0]) >= 0xE0 ? 3 : 2;
            oben_[i] = zeichen.substr(0, laenge);
            zeichen.remove_prefix(laenge);
        } else {
            oben_[i] = Cp1252NachUtf8(std::string(1, static_cast<char>(0x80 + i)));
        }
    }
}

void Codeseite::HaengeAn(std::string& ziel, std::string_view bytes) const {
    for (const char z : bytes) {
        const auto b = static_cast<std::uint8_t>(z);
        if (b < 0x80) {
            ziel += z;
        } else {
            ziel += oben_[b - 0x80U];
        }
    }
}

std::string Codeseite::NachUtf8(std::string_view bytes) const {
    std::string text;
    text.reserve(bytes.size());
    HaengeAn(text, bytes);
    return text;
}

}  // namespace zrw
