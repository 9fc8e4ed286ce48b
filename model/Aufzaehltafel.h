// What must hold of tables, checked while compiling: rows in the order of an enumeration, keys that are there
// only once.
#pragma once

#include <array>
#include <cstddef>

namespace zrw {

/// For assertions: row n is the row of member n, and there is one for every member before `Anzahl`.
template <class Zeile, std::size_t N, class Glied>
[[nodiscard]] consteval bool InReihe(const std::array<Zeile, N>& tafel, Glied Zeile::*glied) {
    for (std::size_t i = 0; i < N; ++i) {
        if (static_cast<std::size_t>(tafel[i].*glied) != i) return false;
    }
    return N == static_cast<std::size_t>(Glied::Anzahl);
}

/// For assertions: no two rows have the same key.
template <class Zeile, std::size_t N, class Schluessel>
[[nodiscard]] consteval bool Verschieden(const std::array<Zeile, N>& tafel, Schluessel Zeile::*schluessel) {
    for (std::size_t i = 0; i < N; ++i) {
        for (std::size_t j = 0; j < i; ++j) {
            if (tafel[i].*schluessel == tafel[j].*schluessel) return false;
        }
    }
    return true;
}

/// Null for a value that is no member: bytes of picture files may be anything.
template <class Zeile, std::size_t N, class Glied>
[[nodiscard]] constexpr const Zeile* FindeZeile(const std::array<Zeile, N>& tafel, Glied wert) {
    const auto i = static_cast<std::size_t>(wert);
    return i < N ? &tafel[i] : nullptr;
}

}  // namespace zrw
