// The tables of what a line stands for: one row for each kind of direction and for each other observation.
// How they look: output/Kantenbild.cpp.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Figuren.h"

namespace zrw {

struct Linienart {
    LinieAttr attr;
    std::string_view name;         ///< in files; empty: none
    std::string_view bezeichnung;  ///< of the direction, UTF-8; empty: none was observed
    int richtungen;                ///< from how many of its ends a direction was observed
    bool indirekt;                 ///< makes a detour
};

inline constexpr auto kLinienarten = std::to_array<Linienart>({
    {LinieAttr::Null, "", "", 0, false},
    {LinieAttr::AR1, "AR1", "Richtung einseitig", 1, false},
    {LinieAttr::AR2, "AR2", "Richtung zweiseitig", 2, false},
    {LinieAttr::AST, "AST", "", 0, false},
    {LinieAttr::ARI1, "ARI1", "Richtung einseitig", 1, true},
    {LinieAttr::ARI2, "ARI2", "Richtung zweiseitig", 2, true},
    {LinieAttr::ASTI, "ASTI", "", 0, true},
});
static_assert(InReihe(kLinienarten, &Linienart::attr), "a row for each LinieAttr, in its order");

/// Bytes of a picture file that name no kind count as none.
[[nodiscard]] constexpr const Linienart& ZurLinie(LinieAttr attr) {
    const Linienart* art = FindeZeile(kLinienarten, attr);
    return art != nullptr ? *art : kLinienarten.front();
}

struct Beobachtungsart {
    KanteAttr::Art art;
    std::string_view name;         ///< in files
    std::string_view bezeichnung;  ///< in a list, UTF-8
    std::string_view knopf;        ///< where it is chosen, UTF-8
};

inline constexpr auto kBeobachtungsarten = std::to_array<Beobachtungsart>({
    {KanteAttr::ST, "ST", "Strecke", "Streckenmessung"},
    {KanteAttr::GPS, "GPS", "GPS-Vektor", "GPS-Messung"},
    {KanteAttr::DH1, "DH1", "Höhenunterschied einseitig", "Einseitig"},
    {KanteAttr::DH2, "DH2", "Höhenunterschied zweiseitig", "Zweiseitig"},
});
static_assert(InReihe(kBeobachtungsarten, &Beobachtungsart::art),
              "a row for each KanteAttr::Art, in its order");

/// Bits of the set that stand for no observation; picture files keep them.
inline constexpr auto kUnbenannteBits = static_cast<std::uint8_t>(0xFFU << kBeobachtungsarten.size());

[[nodiscard]] constexpr const Beobachtungsart& ZurBeobachtung(KanteAttr::Art art) {
    return kBeobachtungsarten[art];
}

}  // namespace zrw
