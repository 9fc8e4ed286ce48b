#include "output/Vektorflaeche.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "model/Ganzzahl.h"
#include "output/Verdichter.h"

namespace zrw {
namespace {

std::int32_t GanzeDots(double dots) {
    return static_cast<std::int32_t>(RundeZuInt64(dots));
}

}  // namespace

double Vektorflaeche::Schrift() const {
    return schriftmass_ > 0 ? schriftmass_ : kZeichenschrift * Pixel();
}

std::int32_t Vektorflaeche::Grundlinie() const {
    return GanzeDots(masse_.anstieg * Schrift());
}

std::int32_t Vektorflaeche::Textbreite(std::string_view text) const {
    return GanzeDots(masse_.Breite(text) * Schrift());
}

std::int32_t Vektorflaeche::Texthoehe() const {
    return Grundlinie() + GanzeDots(masse_.abstieg * Schrift());
}

/// Of the font as it would be on a screen with such dots: indents follow it, and they grow with the dots.
std::int32_t Vektorflaeche::Schriftgrad() const {
    return static_cast<std::int32_t>(Schrifthoehe() * kPunkteJeZoll / kBildaufloesung);
}

std::int32_t Vektorflaeche::Schrifthoehe() const {
    return std::max(1, GanzeDots(Schrift()));
}

void Vektorflaeche::BeginneStrom() {
    strom_.emplace(std::make_unique<Verdichter>([this](std::string_view stueck) {
        geschrieben_ += stueck.size();
        datei_.NimmText(stueck);
    }));
}

void Vektorflaeche::BeendeStrom() {
    strom_->SichereDatei();
    strom_.reset();
}

void Vektorflaeche::SchreibeZahl(std::int64_t zahl) {
    std::array<char, 20> ziffern{};  // the lower end of 64 bits with its sign
    const char* ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), zahl).ptr;
    SchreibeText(std::string_view(ziffern.data(), static_cast<std::size_t>(ende - ziffern.data())));
}

void Vektorflaeche::SchreibeZahl(double wert, int stellen) {
    std::array<char, 48> ziffern{};
    const char* ende = std::to_chars(ziffern.data(), ziffern.data() + ziffern.size(), wert,
                                     std::chars_format::fixed, stellen)
                           .ptr;
    std::string_view text(ziffern.data(), static_cast<std::size_t>(ende - ziffern.data()));
    text.remove_suffix(text.size() - 1 - text.find_last_not_of('0'));
    if (text.ends_with('.')) text.remove_suffix(1);
    SchreibeText(text == "-0" ? std::string_view("0") : text);
}

bool Vektorflaeche::SiehtRechteck(const Rechteck& r) const {
    const std::int64_t rand = RundeZuInt64(std::ceil(AktuellerStift().breite * strich_));
    const Rechteck s = Sichtbar();
    return r.links <= s.rechts + rand && r.rechts >= s.links - rand && r.oben <= s.unten + rand &&
           r.unten >= s.oben - rand;
}

bool Vektorflaeche::SiehtStrecke(Flaechenpunkt von, Flaechenpunkt nach) const {
    return SiehtRechteck(Rechteck{std::min(von.x, nach.x), std::min(von.y, nach.y), std::max(von.x, nach.x),
                                  std::max(von.y, nach.y)});
}

bool Vektorflaeche::SiehtText(Flaechenpunkt ort, std::string_view text) const {
    const Rechteck s = Sichtbar();
    return ort.x <= s.rechts && std::int64_t{ort.x} + Textbreite(text) >= s.links && ort.y <= s.unten &&
           std::int64_t{ort.y} + Texthoehe() >= s.oben;
}

Rechteck Vektorflaeche::Umschrieben(std::span<const Flaechenpunkt> ecken) {
    Rechteck r{ecken[0].x, ecken[0].y, ecken[0].x, ecken[0].y};
    for (const Flaechenpunkt& e : ecken) {
        r = Vereint(r, {e.x, e.y, e.x, e.y});
    }
    return r;
}

}  // namespace zrw
