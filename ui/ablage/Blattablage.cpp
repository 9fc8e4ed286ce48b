#include "ui/ablage/Blattablage.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/Zahlentext.h"

namespace zrw {
namespace {

struct Textwert {
    std::string_view schluessel;
    std::string Blatttexte::*feld;
};
constexpr auto kTexte = std::to_array<Textwert>({
    {"BlattProjekt", &Blatttexte::projekt},
    {"BlattBearbeiter", &Blatttexte::bearbeiter},
    {"BlattFirma", &Blatttexte::firma},
});
constexpr std::string_view kUeberlappung = "BlattUeberlappung";
constexpr std::string_view kStift = "BlattStift";
constexpr std::string_view kSchwarzweiss = "BlattSchwarzweiss";

}  // namespace

void LadeBlattgestaltung(Blattgestaltung& g, const EinstellungsSpeicher& speicher) {
    for (const Textwert& t : kTexte) {
        if (auto wert = speicher.LiesWert(t.schluessel)) g.texte.*t.feld = std::move(*wert);
    }
    const auto lies = [&](std::string_view schluessel) {
        const auto text = speicher.LiesWert(schluessel);
        return text ? LiesReal(*text) : std::nullopt;
    };
    if (const auto mm = lies(kUeberlappung); mm && *mm >= 0 && *mm <= kGroessteUeberlappung)
        g.ueberlappung = static_cast<int>(*mm);
    if (const auto mm = lies(kStift); mm && std::count(kPlanstifte.begin(), kPlanstifte.end(), *mm) > 0)
        g.stift = *mm;
    const auto schwarzweiss = speicher.LiesWert(kSchwarzweiss);
    if (schwarzweiss == "1" || schwarzweiss == "0") g.schwarzweiss = schwarzweiss == "1";
}

void SchreibeBlattgestaltung(const Blattgestaltung& g, EinstellungsSpeicher& speicher) {
    for (const Textwert& t : kTexte)
        speicher.SchreibeWert(t.schluessel, g.texte.*t.feld);
    speicher.SchreibeWert(kUeberlappung, std::to_string(g.ueberlappung));
    speicher.SchreibeWert(kStift, SchreibeReal(g.stift));
    speicher.SchreibeWert(kSchwarzweiss, g.schwarzweiss ? "1" : "0");
}

}  // namespace zrw
