#include "output/blatt/Schriftfeld.h"

#include <array>
#include <string_view>

#include "model/Cp1252.h"

namespace zrw {
namespace {

constexpr double kFeldstrich = 0.18;  ///< [mm]
// Sizes of letters and distances [1/10 mm].
constexpr int kBeschriftung = 18;
constexpr int kWert = 27;
constexpr int kTitelhoehe = 42;
constexpr int kZellenluft = 9;
constexpr int kWertabstand = 27;  ///< from the top of a field to its text

struct Schriftzelle {
    int oben, unten;    ///< [1/10 mm] from the top of the block
    int links, rechts;  ///< in hundredths of its width
    std::string_view beschriftung;
    std::string Schriftfeldtexte::*text;
    int schrift = kWert;
};

constexpr auto kFelder = std::to_array<Schriftzelle>({
    {0, 90, 0, 55, "Firma", &Schriftfeldtexte::firma},
    {0, 90, 55, 100, "Projekt", &Schriftfeldtexte::projekt},
    {90, 225, 0, 100, "Plan", &Schriftfeldtexte::titel, kTitelhoehe},
    {225, 320, 0, 26, "Maßstab", &Schriftfeldtexte::massstab},
    {225, 320, 26, 77, "Koordinatensystem", &Schriftfeldtexte::koordinatensystem},
    {225, 320, 77, 100, "Datum", &Schriftfeldtexte::datum},
    {320, 420, 0, 27, "Bearbeitet", &Schriftfeldtexte::bearbeiter},
    {320, 420, 27, 58, "Unterschrift", &Schriftfeldtexte::unterschrift},
    {320, 420, 58, 81, "Datei", &Schriftfeldtexte::datei},
    {320, 420, 81, 100, "Blatt", &Schriftfeldtexte::blatt},
});
/// The second line of the title.
constexpr Schriftzelle kUntertitel{90, 225, 0, 100, "", &Schriftfeldtexte::untertitel};
constexpr int kUntertitelabstand = 90;

}  // namespace

std::string Gekuerzt(const Zeichenflaeche& flaeche, const std::string& text, std::int32_t breite) {
    if (flaeche.Textbreite(text) <= breite) return text;
    constexpr char kPunkte = '\x85';
    for (std::size_t n = text.size(); n > 0; --n) {
        std::string kurz = text.substr(0, n - 1) + kPunkte;
        if (flaeche.Textbreite(kurz) <= breite) return kurz;
    }
    return {};
}

void ZeichneSchriftfeld(Zeichenflaeche& flaeche, const Rechteck& feld, const Papiermass& mass,
                        const Schriftfeldtexte& texte) {
    const auto x = [&](int hundertstel) {
        return feld.links +
               static_cast<std::int32_t>(std::int64_t{feld.rechts - feld.links} * hundertstel / 100);
    };
    const auto y = [&](int zehntel) { return feld.oben + mass.Dots(zehntel); };
    const auto schreibe = [&](const Schriftzelle& f, int abstand, int schrift, const std::string& text) {
        flaeche.SetzeSchriftmass(mass.Dots(schrift));
        const std::int32_t luft = mass.Dots(kZellenluft);
        flaeche.Text({x(f.links) + luft, y(f.oben + abstand)},
                     Gekuerzt(flaeche, text, x(f.rechts) - x(f.links) - 2 * luft), kSchwarz);
    };
    flaeche.SetzeStrichmass(kFeldstrich);
    const Stiftwechsel stift(flaeche, {kSchwarz, 1, Strichart::Voll}, {kWeiss, true});
    for (const Schriftzelle& f : kFelder) {
        if (f.oben > 0) flaeche.Linie({x(f.links), y(f.oben)}, {x(f.rechts), y(f.oben)});
        if (f.links > 0)
            flaeche.Linie({x(f.links), y(f.oben)}, {x(f.links), std::min(y(f.unten), feld.unten)});
        schreibe(f, kZellenluft / 2, kBeschriftung, Utf8NachCp1252(f.beschriftung));
        schreibe(f, kWertabstand, f.schrift, texte.*f.text);
    }
    schreibe(kUntertitel, kUntertitelabstand, kWert, texte.untertitel);
    flaeche.SetzeSchriftmass(0);
    flaeche.SetzeStrichmass(0);
}

}  // namespace zrw
