// The one table of the point kinds: control-file key, captions, colour setting and display switch.
#pragma once

#include <array>
#include <string_view>

#include "model/Aufzaehltafel.h"
#include "model/Darstellung.h"
#include "model/Einstellungen.h"
#include "model/Figuren.h"

namespace zrw {

struct Punktart {
    PunktArt art;
    std::string_view kuerzel;      ///< as in the control file and on the check boxes
    std::string_view bezeichnung;  ///< German, UTF-8
    std::string_view legende;      ///< in the key of the legend, UTF-8
    Farbe Einstellungen::*farbe;
    bool Darstellung::*schalter;
};

inline constexpr auto kPunktarten = std::to_array<Punktart>({
    {PunktArt::FP, "FP", "Festpunkt", "Anschlußpunkt 2D,3D", &Einstellungen::FPCol, &Darstellung::ShowFP},
    {PunktArt::FL, "FL", "Lagefestpunkt", "Anschlußpunkt 2D", &Einstellungen::FLCol, &Darstellung::ShowFL},
    {PunktArt::FH, "FH", "Höhenfestpunkt", "Anschlußpunkt Höhe", &Einstellungen::FHCol, &Darstellung::ShowFH},
    {PunktArt::NP, "NP", "Neupunkt", "Neupunkt", &Einstellungen::NPCol, &Darstellung::ShowNP},
});
static_assert(InReihe(kPunktarten, &Punktart::art), "a row for each PunktArt, in its order");

[[nodiscard]] constexpr const Punktart& ZurArt(PunktArt art) {
    return kPunktarten[static_cast<std::size_t>(art)];
}

}  // namespace zrw
