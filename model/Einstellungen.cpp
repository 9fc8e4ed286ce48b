#include "model/Einstellungen.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <variant>

#include "model/Ganzzahl.h"
#include "model/Zahlentext.h"

namespace zrw {
namespace {

using Feld =
    std::variant<Farbe Einstellungen::*, std::uint16_t Einstellungen::*, std::int32_t Einstellungen::*>;

struct Schluessel {
    std::string_view name;
    Feld feld;
};

/// The integer settings in the order in which they are read and written.
std::span<const Schluessel> Ganzzahlen() {
    using E = Einstellungen;
    static const auto kTabelle = std::to_array<Schluessel>(
        {{"TXCol", &E::TXCol},   {"FPCol", &E::FPCol}, {"FLCol", &E::FLCol},   {"FHCol", &E::FHCol},
         {"NPCol", &E::NPCol},   {"RICol", &E::RICol}, {"AZCol", &E::AZCol},   {"GPSCol", &E::GPSCol},
         {"TKCol", &E::TKCol},   {"PPCol", &E::PPCol}, {"PTSize", &E::PTSize}, {"HPSize", &E::HPSize},
         {"Fang", &E::Fang},     {"PXOff", &E::PXOff}, {"PYOff", &E::PYOff},   {"LGRCol", &E::LGRCol},
         {"LGGCol", &E::LGGCol}, {"HRCol", &E::HRCol}, {"HGCol", &E::HGCol},   {"GFCol", &E::GFCol}});
    return kTabelle;
}

constexpr std::string_view kResMF = "ResMF";

/// A stored integer has 32 bits; colours may stand there signed or unsigned.
std::optional<std::int64_t> LiesGanz32(const std::optional<std::string>& text) {
    if (!text) return std::nullopt;
    const auto wert = LiesGanz(*text);
    if (!wert || *wert < std::numeric_limits<std::int32_t>::min() ||
        *wert > std::numeric_limits<std::uint32_t>::max()) {
        return std::nullopt;
    }
    return wert;
}

void SetzeWert(Farbe& ziel, std::int64_t wert) {
    ziel.wert = static_cast<std::uint32_t>(wert);
}
void SetzeWert(std::uint16_t& ziel, std::int64_t wert) {
    ziel = static_cast<std::uint16_t>(wert & 0xFFFF);
}
void SetzeWert(std::int32_t& ziel, std::int64_t wert) {
    if (wert <= std::numeric_limits<std::int32_t>::max()) ziel = static_cast<std::int32_t>(wert);
}

std::int32_t Ganz(Farbe f) {
    return static_cast<std::int32_t>(f.wert);
}
std::int32_t Ganz(std::uint16_t v) {
    return v;
}
std::int32_t Ganz(std::int32_t v) {
    return v;
}

}  // namespace

void Einstellungen::ScaleSizes(double geraetefaktor) {
    const std::array<std::uint16_t*, 10> groessen{&PTSize,     &HPSize,      &Kreuzgroesse,   &Quadratgroesse,
                                                  &RauteQuer,  &RauteLaengs, &Dreieckgroesse, &Querstrich,
                                                  &GPSGroesse, &Umweggroesse};
    for (std::uint16_t* g : groessen) {
        const std::int64_t neu = RundeZuInt64(static_cast<double>(*g) * geraetefaktor);
        *g = static_cast<std::uint16_t>(std::clamp<std::int64_t>(neu, 0, 65535));
    }
}

void LoadSettings(Einstellungen& e, const EinstellungsSpeicher& speicher) {
    for (const Schluessel& s : Ganzzahlen()) {
        const auto wert = LiesGanz32(speicher.LiesWert(s.name));
        if (!wert) continue;
        std::visit([&](auto feld) { SetzeWert(e.*feld, *wert); }, s.feld);
    }
    e.ResMF = LiesReal(speicher.LiesWert(kResMF).value_or("1")).value_or(1.0);
}

void SaveSettings(const Einstellungen& e, EinstellungsSpeicher& speicher) {
    for (const Schluessel& s : Ganzzahlen()) {
        const std::int32_t wert = std::visit([&](auto feld) { return Ganz(e.*feld); }, s.feld);
        speicher.SchreibeWert(s.name, std::to_string(wert));
    }
    speicher.SchreibeWert(kResMF, SchreibeReal(e.ResMF));
}

}  // namespace zrw
