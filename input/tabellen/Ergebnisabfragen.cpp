#include "input/tabellen/Ergebnisabfragen.h"

namespace zrw {

std::string Abfragetext(std::string_view muster, std::string_view a, std::string_view b) {
    std::string text;
    while (!muster.empty()) {
        const bool platz = muster.starts_with("{a}") || muster.starts_with("{b}");
        if (!platz) {
            text += muster.front();
            muster.remove_prefix(1);
            continue;
        }
        for (const char c : muster[1] == 'a' ? a : b) {
            text += c;
            if (c == '\'') text += c;
        }
        muster.remove_prefix(3);
    }
    return text;
}

}  // namespace zrw
