#include "output/Kartengitter.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "model/Ganzzahl.h"
#include "output/Abschneiden.h"
#include "output/Geonetz.h"

namespace zrw {
namespace {

constexpr Dxfart kGitterart{dxf::kGitter};
// The drawing has its grid in picture coordinates; so are these.
constexpr double kGitterTexthoehe = 8.0;
constexpr double kGitterTextabstand = 5.0;

constexpr double kWestrand = 5.6666666667;  ///< of the sheet columns [deg], 5°40'
constexpr double kNordrand = 56.0;          ///< of the sheet rows [deg]
constexpr double kSpaltenminuten = 10.0;    ///< width of a sheet [arc minutes]
constexpr double kZeilenminuten = 6.0;      ///< height of a sheet [arc minutes]
constexpr double kGitterweite = 1000.0;

/// Steps from `von` to `bis`, at least one; infinite where one of them is no number.
double Schritte(double von, double bis, double schritt) {
    const double n = (bis - von) / schritt + 1;
    return std::isnan(n) ? HUGE_VAL : std::max(n, 1.0);
}

bool Zeichenbar(double spalten, double zeilen) {
    return spalten * zeilen <= Kartengitter::kHoechstensFelder;
}

/// Characters `ab` and the next of a kilometre text, as far as there are any.
std::string Zwei(const std::string& text, std::size_t ab) {
    return text.size() > ab ? text.substr(ab, 2) : std::string();
}

std::string Quadratnummer(double x, double y) {
    const std::string e = std::to_string(RundeZuInt64(std::trunc(x / kGitterweite)));
    const std::string n = std::to_string(RundeZuInt64(std::trunc(y / kGitterweite)));
    return Zwei(e, 0) + Zwei(n, 0) + Zwei(e, 2) + Zwei(n, 2);
}

}  // namespace

Welt Kartengitter::Ecke(bool rechtsUnten) const {
    return ansicht_.BildinWelt(rechtsUnten ? Bildpunkt{ansicht_.Weite, ansicht_.Hoehe} : Bildpunkt{});
}

void Kartengitter::Bildstrich(Bildpunkt von, Bildpunkt nach) const {
    if (ziel_.flaeche == nullptr) return;
    if (const auto teil = SchneideLinieAb(von, nach, ziel_.flaeche->Grenzen())) {
        const Stiftwechsel wechsel(*ziel_.flaeche, {ziel_.farbe, 1, Strichart::Voll}, {kWeiss, true});
        ziel_.flaeche->Linie(teil->first, teil->second);
    }
}

void Kartengitter::Strich(Bildpunkt von, Bildpunkt nach) const {
    Bildstrich(von, nach);
    if (ziel_.dxf != nullptr) {
        ziel_.dxf->DxfLine(kGitterart, {static_cast<double>(von.x), static_cast<double>(von.y)},
                           {static_cast<double>(nach.x), static_cast<double>(nach.y)});
    }
}

/// @param ort south-west corner of the sheet or square; the number stands inside it
/// @param feldbreite its width [px]
void Kartengitter::Nummer(Bildpunkt ort, std::string_view text, std::int64_t feldbreite) const {
    if (ziel_.flaeche != nullptr && ziel_.flaeche->Textbreite(text) <= feldbreite) {
        Zeichenflaeche& f = *ziel_.flaeche;
        const std::int64_t einzug = f.Schriftgrad();
        const std::int64_t hoehe = f.Schrifthoehe();
        const Bildpunkt platz{Summe(ort.x, 2 * einzug), Differenz(ort.y, 2 * hoehe)};
        const std::int64_t rand = std::int64_t{f.Texthoehe()} * 2 * static_cast<std::int64_t>(text.size());
        if (InReichweite(platz, rand, f.Sichtbar())) f.Text(Aufflaeche(platz), text, ziel_.farbe);
    }
    if (ziel_.dxf != nullptr) {
        ziel_.dxf->DxfText(text, kGitterart,
                           {static_cast<double>(ort.x) + kGitterTextabstand, static_cast<double>(ort.y)}, 0.0,
                           kGitterTexthoehe);
    }
}

void Kartengitter::Kartenblaetter(const Netzangaben& netz) {
    const Geonetz geo(netz, ansicht_);
    const Geograph unten = geo.Geographisch(Ecke(true));
    const Geograph oben = geo.Geographisch(Ecke(false));
    if (!AufErden(unten) || !AufErden(oben)) return;
    const double suedrand = unten.breite.wert;
    const double ostrand = unten.laenge.wert;
    auto spalte = static_cast<int>((oben.laenge.wert - kWestrand) * 60 / kSpaltenminuten);
    const auto zeile = static_cast<int>((kNordrand - oben.breite.wert) * 60 / kZeilenminuten);
    const double laenge0 = spalte * kSpaltenminuten / 60 + kWestrand;
    const double breite0 = kNordrand - zeile * kZeilenminuten / 60;
    const double blattbreite = kSpaltenminuten / 60;
    const double blatthoehe = kZeilenminuten / 60;
    if (!Zeichenbar(Schritte(laenge0, ostrand, blattbreite), Schritte(suedrand, breite0, blatthoehe))) return;

    const std::int64_t breiteImBild =
        Differenz(geo.Bildort(breite0, laenge0 + blattbreite).x, geo.Bildort(breite0, laenge0).x);
    double meridian = laenge0;
    while (meridian <= ostrand) {
        int nummer = zeile * 100 + spalte;
        double breite = breite0;
        Bildpunkt vorher = geo.Bildort(breite, meridian);
        do {
            breite -= blatthoehe;
            const Bildpunkt hier = geo.Bildort(breite, meridian);
            Strich(vorher, hier);
            Nummer(hier, std::to_string(nummer), breiteImBild);
            vorher = hier;
            nummer += 100;
        } while (breite >= suedrand);
        meridian += blattbreite;
        ++spalte;
    }
    // Parallels are curved in the grid: a piece for every minute of longitude.
    double breite = breite0;
    do {
        double laenge = laenge0;
        Bildpunkt vorher = geo.Bildort(breite, laenge);
        do {
            laenge += 1.0 / 60;
            const Bildpunkt hier = geo.Bildort(breite, laenge);
            Strich(vorher, hier);
            vorher = hier;
        } while (laenge <= ostrand);
        breite -= blatthoehe;
    } while (breite > suedrand);
}

void Kartengitter::Kilometerquadrate() {
    const Welt oben = Ecke(false);
    const Welt unten = Ecke(true);
    const double x0 = std::trunc(oben.rechts / kGitterweite) * kGitterweite;
    const double y0 = std::trunc(oben.hoch / kGitterweite) * kGitterweite;
    const double spalten = Schritte(x0, unten.rechts, kGitterweite);
    const double zeilen = Schritte(unten.hoch, y0, kGitterweite);
    if (!Zeichenbar(spalten, zeilen)) return;

    const std::int64_t breiteImBild = RundeZuInt64(kGitterweite / ansicht_.Faktor);
    // Counted, not compared: at the far end of the number range a kilometre more changes nothing.
    for (int s = 0; s < static_cast<int>(spalten); ++s) {
        const double x = x0 + s * kGitterweite;
        if (x > unten.rechts) break;
        // Lines begin at the topmost whole kilometre. Pictures have them up to their edge, drawings do not.
        if (y0 < oben.hoch) Bildstrich(ansicht_.Bildort({x, y0 + kGitterweite}), ansicht_.Bildort({x, y0}));
        for (int z = 0; z < static_cast<int>(zeilen); ++z) {
            const double y = y0 - (z + 1) * kGitterweite;
            const Bildpunkt hier = ansicht_.Bildort({x, y});
            Strich(ansicht_.Bildort({x, y + kGitterweite}), hier);
            Nummer(hier, Quadratnummer(x, y), breiteImBild);
        }
    }
    for (int z = 0; z < static_cast<int>(zeilen); ++z) {
        const double y = y0 - z * kGitterweite;
        if (y < unten.hoch) break;
        // West of the origin the first whole kilometre lies within the picture.
        if (x0 > oben.rechts) Bildstrich(ansicht_.Bildort({x0 - kGitterweite, y}), ansicht_.Bildort({x0, y}));
        for (int s = 0; s < static_cast<int>(spalten); ++s) {
            const double x = x0 + s * kGitterweite;
            Strich(ansicht_.Bildort({x, y}), ansicht_.Bildort({x + kGitterweite, y}));
        }
    }
}

}  // namespace zrw
