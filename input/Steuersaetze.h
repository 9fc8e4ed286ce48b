// The records of a control file: one row per key with its code, what it belongs to, and the member that reads
// it. A new key is one row here and one member of `Steuerleser`.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "input/Steuerleser.h"
#include "model/Aufzaehltafel.h"

namespace zrw {

struct Satz {
    std::string_view schluessel;
    std::uint8_t code;  ///< number of the record, 1 to 51
    void (Steuerleser::*lesen)(std::string_view rest);
    bool imPunktblock = false;  ///< may stand between the lines of a point block without ending it
};

inline constexpr auto kSaetze = std::to_array<Satz>({
    {"$$$", 1, &Steuerleser::Ende},
    {"$CC", 2, &Steuerleser::UebergeheSatz, true},
    {"$MS", 3, &Steuerleser::UebergeheSatz},
    {"$MR", 4, &Steuerleser::UebergeheSatz},
    {"$MH", 5, &Steuerleser::UebergeheSatz},
    {"$MA", 6, &Steuerleser::UebergeheSatz},
    {"$MN", 7, &Steuerleser::UebergeheSatz},
    {"$MV", 8, &Steuerleser::UebergeheSatz},
    {"$R0", 9, &Steuerleser::UebergeheSatz},
    {"$S0", 10, &Steuerleser::UebergeheSatz},
    {"$V0", 11, &Steuerleser::UebergeheSatz},
    {"$H0", 12, &Steuerleser::UebergeheSatz},
    {"$P0", 13, &Steuerleser::UebergeheSatz},
    {"$G0", 14, &Steuerleser::UebergeheSatz},
    {"$XO", 15, &Steuerleser::LiesXVersatz, true},
    {"$YO", 16, &Steuerleser::LiesYVersatz, true},
    {"$RD", 17, &Steuerleser::UebergeheSatz},
    {"$RS", 18, &Steuerleser::LiesStandpunkt},
    {"$RZ", 19, &Steuerleser::LiesRichtung},
    {"$ST", 20, &Steuerleser::LiesStrecke},
    {"$SR", 21, &Steuerleser::UebergeheSatz},
    {"$DH", 22, &Steuerleser::LiesHoehenunterschied},
    {"$ZD", 23, &Steuerleser::LiesHoehenunterschied},
    {"$SH", 24, &Steuerleser::LeseGPSVektoren},
    {"$SV", 25, &Steuerleser::UebergeheSatz},
    {"$SK", 26, &Steuerleser::UebergeheSatz},
    {"$SG", 27, &Steuerleser::UebergeheSatz},
    {"$EL", 28, &Steuerleser::LiesEllipsoid},
    {"$QG", 29, &Steuerleser::UebergeheSatz},
    {"$AU", 30, &Steuerleser::LiesTitel},
    {"$GW", 31, &Steuerleser::UebergeheSatz},
    {"$FP", 32, &Steuerleser::LesePunkt<PunktArt::FP>},
    {"$NP", 33, &Steuerleser::LesePunkt<PunktArt::NP>},
    {"$FL", 34, &Steuerleser::LesePunkt<PunktArt::FL>},
    {"$FH", 35, &Steuerleser::LesePunkt<PunktArt::FH>},
    {"$NT", 36, &Steuerleser::LiesNetztyp},
    {"$AZ", 37, &Steuerleser::LiesAzimut},
    {"$PD", 38, &Steuerleser::UebergeheSatz},
    {"$PF", 39, &Steuerleser::LiesPunktformat},
    {"$LS", 40, &Steuerleser::UebergeheSatz},
    {"$SF", 41, &Steuerleser::FuegeEin},
    {"$RF", 42, &Steuerleser::FuegeEin},
    {"$HF", 43, &Steuerleser::FuegeEin},
    {"$GF", 44, &Steuerleser::FuegeEin},
    {"$KF", 45, &Steuerleser::FuegeKoordinatenEin, true},
    {"$WF", 46, &Steuerleser::UebergeheSatz, true},
    {"$RT", 47, &Steuerleser::UebergeheSatz},
    {"$NI", 48, &Steuerleser::UebergeheSatz},
    {"$KS", 49, &Steuerleser::LiesKoordinatensystem},
    {"$LA", 50, &Steuerleser::UebergeheSatz},
    {"$KV", 51, &Steuerleser::UebergeheSatz},
});
static_assert(Verschieden(kSaetze, &Satz::schluessel) && Verschieden(kSaetze, &Satz::code));

/// Row of the key that the first three characters of a line are, or null.
[[nodiscard]] const Satz* LeseSchluessel(std::string_view zeile);

/// Whether the record introduces points.
[[nodiscard]] constexpr bool IstPunktsatz(const Satz* satz) {
    return satz != nullptr && satz->code >= 32 && satz->code <= 35;
}

}  // namespace zrw
