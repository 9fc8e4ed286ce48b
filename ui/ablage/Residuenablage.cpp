#include "ui/ablage/Residuenablage.h"

#include <array>
#include <cmath>
#include <string_view>

#include "model/Zahlentext.h"

namespace zrw {
namespace {

struct Wahl {
    std::string_view schluessel;
    bool Residuendarstellung::*feld;
};
constexpr auto kWahlen = std::to_array<Wahl>({
    {"ResPfeile", &Residuendarstellung::Residuenpfeile},
    {"ResEllipsenGefuellt", &Residuendarstellung::EllipsenGefuellt},
    {"ResEllipsen95", &Residuendarstellung::Ellipsen95},
});
constexpr std::string_view kEllipsenmassstab = "ResEllipsenMF";

}  // namespace

void LadeResiduendarstellung(Residuendarstellung& d, const EinstellungsSpeicher& speicher) {
    for (const Wahl& w : kWahlen) {
        const auto wert = speicher.LiesWert(w.schluessel);
        if (wert == "1" || wert == "0") d.*w.feld = wert == "1";
    }
    const auto text = speicher.LiesWert(kEllipsenmassstab);
    const auto zahl = text ? LiesReal(*text) : std::nullopt;
    if (zahl && *zahl >= 0.0 && std::isfinite(*zahl)) d.Ellipsenmassstab = *zahl;
}

void SchreibeResiduendarstellung(const Residuendarstellung& d, EinstellungsSpeicher& speicher) {
    for (const Wahl& w : kWahlen)
        speicher.SchreibeWert(w.schluessel, d.*w.feld ? "1" : "0");
    speicher.SchreibeWert(kEllipsenmassstab, SchreibeReal(d.Ellipsenmassstab));
}

}  // namespace zrw
