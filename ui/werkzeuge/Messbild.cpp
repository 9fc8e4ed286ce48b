#include "ui/werkzeuge/Messbild.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "output/Abschneiden.h"
#include "ui/werkzeuge/Markierung.h"

namespace zrw {
namespace {

constexpr std::int32_t kStiftbreite = 2;
constexpr std::int32_t kEcke = 4;          ///< half side of the square at a corner
constexpr std::int32_t kTextabstand = 14;  ///< of the text from the mouse
constexpr std::int32_t kTextrand = 3;      ///< round a text

struct Ergebnis {
    Messstrecke letzte;
    double summe = 0.0;
    bool mehrere = false;
};

/// Needs a leg.
Ergebnis MissZug(const Messzug& zug, const std::optional<Welt>& bis) {
    const auto& ecken = zug.Ecken();
    const std::size_t n = ecken.size();
    if (!bis) return {MissStrecke(ecken[n - 2].ort, ecken[n - 1].ort), zug.Summe(), n > 2};
    const Messstrecke letzte = MissStrecke(ecken[n - 1].ort, *bis);
    return {letzte, zug.Summe() + letzte.laenge, n > 1};
}

void ZeichneStrecke(Zeichenflaeche& f, Bildpunkt von, Bildpunkt nach, Strichart art) {
    const Stiftwechsel stift(f, {kMarkierfarbe, kStiftbreite, art}, {kWeiss, true});
    if (const auto teil = SchneideLinieAb(von, nach, f.Sichtbar())) f.Linie(teil->first, teil->second);
}

/// On white, so that it can be read over any picture. @param links, oben top-left corner [px]
void ZeichneTexte(Zeichenflaeche& f, std::int32_t links, std::int32_t oben,
                  const std::vector<std::string>& zeilen) {
    std::int32_t breite = 0;
    for (const std::string& z : zeilen)
        breite = std::max(breite, f.Textbreite(z));
    const auto hoehe = static_cast<std::int32_t>(zeilen.size()) * f.Texthoehe();
    f.FuelleRechteck(
        {links - kTextrand, oben - kTextrand, links + breite + kTextrand, oben + hoehe + kTextrand}, kWeiss);
    for (const std::string& z : zeilen) {
        f.Text({links, oben}, z, kSchwarz);
        oben += f.Texthoehe();
    }
}

/// In the middle of its leg, where there is room between the corners.
void ZeichneLaenge(Zeichenflaeche& f, Bildpunkt von, Bildpunkt nach, const std::string& text) {
    const Bildpunkt mitte{von.x + (nach.x - von.x) / 2, von.y + (nach.y - von.y) / 2};
    const std::int32_t breite = f.Textbreite(text);
    const double weg = std::hypot(static_cast<double>(nach.x - von.x), static_cast<double>(nach.y - von.y));
    if (weg < breite + 4 * kEcke || !InReichweite(mitte, breite, f.Sichtbar())) return;
    const Flaechenpunkt m = Aufflaeche(mitte);
    ZeichneTexte(f, m.x - breite / 2, m.y - f.Texthoehe() / 2, {text});
}

/// Right below the end of the last leg; on the other side where the picture ends.
void ZeichneErgebnis(Zeichenflaeche& f, Bildpunkt ort, const Ergebnis& e) {
    std::vector<std::string> zeilen{Metertext(e.letzte.laenge) + " m",
                                    Richtungstext(e.letzte.richtung) + " gon", "dY " + Metertext(e.letzte.dY),
                                    "dX " + Metertext(e.letzte.dX)};
    if (e.mehrere) zeilen.push_back("Summe " + Metertext(e.summe) + " m");
    std::int32_t breite = 0;
    for (const std::string& z : zeilen)
        breite = std::max(breite, f.Textbreite(z));
    const auto hoehe = static_cast<std::int32_t>(zeilen.size()) * f.Texthoehe();
    const Rechteck s = f.Sichtbar();
    if (!InReichweite(ort, 0, s)) return;
    const Flaechenpunkt p = Aufflaeche(ort);
    const bool links = p.x + kTextabstand + breite > s.rechts;
    const bool oben = p.y + kTextabstand + hoehe > s.unten;
    ZeichneTexte(f, links ? p.x - kTextabstand - breite : p.x + kTextabstand,
                 oben ? p.y - kTextabstand - hoehe : p.y + kTextabstand, zeilen);
}

}  // namespace

void ZeichneMesszug(const Messzug& zug, const std::optional<Welt>& bis, const Ansicht& ansicht,
                    Zeichenflaeche& flaeche) {
    std::vector<Bildpunkt> orte;
    for (const Messzug::Ecke& e : zug.Ecken())
        orte.push_back(ansicht.Bildort(e.ort));
    if (orte.empty()) return;
    for (std::size_t i = 1; i < orte.size(); ++i)
        ZeichneStrecke(flaeche, orte[i - 1], orte[i], Strichart::Voll);
    const Bildpunkt ende = bis ? ansicht.Bildort(*bis) : orte.back();
    if (bis) ZeichneStrecke(flaeche, orte.back(), ende, Strichart::Gestrichelt);
    for (const Bildpunkt& o : orte) {
        if (!InReichweite(o, kEcke, flaeche.Sichtbar())) continue;
        const Flaechenpunkt p = Aufflaeche(o);
        const Stiftwechsel stift(flaeche, {kMarkierfarbe, kStiftbreite, Strichart::Voll}, {kWeiss, true});
        flaeche.ZeichneRechteck({p.x - kEcke, p.y - kEcke, p.x + kEcke, p.y + kEcke});
    }
    // The last leg has its length at its end.
    for (std::size_t i = 1; i < orte.size(); ++i) {
        if (bis || i + 1 < orte.size())
            ZeichneLaenge(flaeche, orte[i - 1], orte[i],
                          Metertext(MissStrecke(zug.Ecken()[i - 1].ort, zug.Ecken()[i].ort).laenge));
    }
    if (bis || orte.size() > 1) ZeichneErgebnis(flaeche, ende, MissZug(zug, bis));
}

std::string Messzeile(const Messzug& zug, const std::optional<Welt>& bis) {
    const Ergebnis e = MissZug(zug, bis);
    std::string text = "Strecke " + Metertext(e.letzte.laenge) + " m   Richtungswinkel " +
                       Richtungstext(e.letzte.richtung) + " gon   dY " + Metertext(e.letzte.dY) + "   dX " +
                       Metertext(e.letzte.dX);
    if (e.mehrere) text += "   Summe " + Metertext(e.summe) + " m";
    return text;
}

}  // namespace zrw
