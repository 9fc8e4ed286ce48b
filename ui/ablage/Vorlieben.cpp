#include "ui/ablage/Vorlieben.h"

#include <array>
#include <string_view>

namespace zrw {
namespace {

struct Vorliebe {
    std::string_view schluessel;
    bool Vorlieben::*feld;
};
constexpr auto kVorlieben = std::to_array<Vorliebe>({
    {"EinpassenNachOeffnen", &Vorlieben::EinpassenNachOeffnen},
    {"KantenGlaetten", &Vorlieben::KantenGlaetten},
    {"RadUmgekehrt", &Vorlieben::RadUmgekehrt},
    {"ZumAuffaelligenReiter", &Vorlieben::ZumAuffaelligenReiter},
});

}  // namespace

void LadeVorlieben(Vorlieben& v, const EinstellungsSpeicher& speicher) {
    for (const Vorliebe& z : kVorlieben) {
        const auto wert = speicher.LiesWert(z.schluessel);
        if (wert == "1" || wert == "0") v.*z.feld = wert == "1";
    }
}

void SchreibeVorlieben(const Vorlieben& v, EinstellungsSpeicher& speicher) {
    for (const Vorliebe& z : kVorlieben)
        speicher.SchreibeWert(z.schluessel, v.*z.feld ? "1" : "0");
}

}  // namespace zrw
