#include "output/Residuenbild.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "model/Bildorte.h"
#include "model/Cp1252.h"
#include "model/Ganzzahl.h"
#include "model/Zahlentext.h"
#include "output/Abschneiden.h"
#include "output/Balkenbild.h"
#include "output/Residuenmass.h"

namespace zrw {

struct Richtung {
    double cos = 1.0;
    double sin = 0.0;
};

namespace {

/// Gon per radian, a little below 200/pi: ellipses have their corners where this puts them.
constexpr double kRho = 63.66197723675394;
constexpr int kVollkreis = 400;       ///< [gon]
constexpr int kGroessterWinkel = 25;  ///< between two corners of an ellipse [gon]
constexpr int kKleinsterWinkel = 2;
/// Standard deviation of a position above which its ellipse is drawn wide [mm].
constexpr double kGrobeLage = 20.0;
constexpr double kFussbreite = 2.0;  ///< half width of the end strokes [mm]
/// Beyond the figure itself: rounding, and what wide pens add.
constexpr double kZeichenrand = 8.0;

constexpr double kBogenlaenge = 5.0;  ///< of dashed ellipses, about [px]
constexpr double kBogenluecke = 3.0;

constexpr int kFuellung = 12;             ///< of an ellipse: so much is covered [%]
constexpr std::int32_t kPfeilstift = 2;   ///< width of the pen of arrows
constexpr double kPfeilspitze = 9.0;      ///< length of their heads [px]
constexpr double kKuerzesterPfeil = 3.0;  ///< shorter ones have none [px]
constexpr Gon kPfeilwinkel{27};           ///< between shaft and head

constexpr double kMillimeterJeZentimeter = 10.0;
constexpr double kSchmalste = 40.0;  ///< bar of whole centimetres [px]
constexpr double kBreiteste = 400.0;
constexpr double kAndereSchmalste = 50.0;  ///< bar of other steps [px]

Richtung RichtungVon(double gon) {
    return {std::cos(gon / kRho), std::sin(gon / kRho)};
}

/// The corners of all ellipses lie at whole gon.
using Richtungen = std::array<Richtung, kVollkreis + kGroessterWinkel + 1>;

const Richtungen& GanzeGon() {
    static const Richtungen kTafel = [] {
        Richtungen tafel;
        for (std::size_t t = 0; t < tafel.size(); ++t)
            tafel[t] = RichtungVon(static_cast<double>(t));
        return tafel;
    }();
    return kTafel;
}

/// Angle between two corners of an ellipse [gon], for sides of about two dots.
std::size_t Eckwinkel(double umfang) {
    const std::int64_t halber = umfang == 0.0 ? kVollkreis : RundeZuInt64(kVollkreis / umfang);
    if (halber > kGroessterWinkel / 2) return kGroessterWinkel;
    return static_cast<std::size_t>(2 * std::max<std::int64_t>(halber, kKleinsterWinkel / 2));
}

/// Which sides of an ellipse are drawn.
struct Takt {
    std::size_t gezogene = 1;
    std::size_t alle = 1;  ///< drawn ones, and those of the gap behind them
    [[nodiscard]] bool Gezogen(std::size_t seite) const { return seite % alle < gezogene; }
};

/// @param seite length of a side, not below 0 @param faktor dots per pixel
Takt Strichtakt(double seite, double faktor) {
    const auto seiten = [&](double pixel) {
        const double anzahl = pixel * faktor / seite;
        return anzahl < kVollkreis ? std::max<std::size_t>(1, static_cast<std::size_t>(std::lround(anzahl)))
                                   : kVollkreis;
    };
    const std::size_t gezogene = seiten(kBogenlaenge);
    return {gezogene, gezogene + seiten(kBogenluecke)};
}

/// Whole dots of a residual, towards zero.
std::int64_t Ganze(double v) {
    return RundeZuInt64(std::trunc(v));
}

/// Room of a bar with its margin [lines of text].
constexpr std::int64_t kBalkenzeilen = 3;

/// @param pixel width of a bar of whole centimetres on the screen, positive
Teilung WaehleTeilung(double pixel) {
    if (pixel >= kSchmalste && pixel <= kBreiteste) return {};
    return KleinsteTeilung(pixel, kAndereSchmalste);
}

/// What a bar is for, in the order of the switches, UTF-8.
std::string Balkentitel(const Darstellung& d, bool mitEllipsen) {
    std::string titel;
    const auto nimm = [&](bool an, const char* was) {
        if (an) titel += (titel.empty() ? "Residuenmaßstab: " : ", ") + std::string(was);
    };
    nimm(d.ShowLgRes || d.ShowHRes, "Verbesserungen");
    nimm(d.ShowHGen, "Höhengenauigkeit");
    nimm(d.ShowKooVergleich, "Koordinatenvergleich");
    nimm(d.ShowLGGen && mitEllipsen, d.Ellipsen95 ? "Ellipsen 95 %" : "Ellipsen");
    nimm(d.ShowRelEllipsen && mitEllipsen, d.Ellipsen95 ? "relative Ellipsen 95 %" : "relative Ellipsen");
    return titel;
}

}  // namespace

std::string Massstabhinweis(double resMF) {
    if (resMF == 0.0) return "Mit dem Residuenmaßstab 0 lässt sich nichts zeichnen.";
    return resMF < 0.0 ? "Der Residuenmaßstab ist kleiner als 0: Verbesserungen zeigen in die Gegenrichtung, "
                         "der Maßstabsbalken fehlt."
                       : "";
}

Residuenbild::Residuenbild(const Zeichenzustand& zustand, const Einstellungen& einstellungen,
                           const Bildvorlage& v)
    : flaeche_(*zustand.flaeche),
      einstellungen_(einstellungen),
      v_(v),
      geraetefaktor_(zustand.Dichte()),
      f_(geraetefaktor_ * einstellungen.ResMF),
      ellipsen_(geraetefaktor_ * v.darstellung.Ellipsenfaktor(einstellungen.ResMF)) {}

void Residuenbild::Strich(Bildpunkt von, Bildpunkt nach) const {
    if (const auto teil = SchneideLinieAb(von, nach, flaeche_.Grenzen())) {
        flaeche_.Linie(teil->first, teil->second);
    }
}

// --- Points -----------------------------------------------------------------------------------------------

void Residuenbild::ZeichnePunktRes(Punktergebnisse& ergebnisse) const {
    const Darstellung& d = v_.darstellung;
    const bool punkte = d.ZeigtPunktergebnisse();
    if (!punkte && !d.ShowRelEllipsen) return;
    if (d.ShowRelEllipsen) ergebnisse.ErneuereRelative();
    if (punkte) ergebnisse.ErneuereErgebnisse();
    if (d.ShowKooVergleich) ergebnisse.ErneuereVergleich();
    const Stiftwechsel wechsel(flaeche_, {}, {kWeiss, true});
    if (d.ShowRelEllipsen && d.EllipsenGefuellt) ZeichneRelative(ergebnisse, true);
    if (d.ShowLGGen && d.EllipsenGefuellt) FuelleEllipsen(ergebnisse);
    if (d.ShowRelEllipsen) ZeichneRelative(ergebnisse, false);
    if (!punkte) return;
    FuerNummerierte(v_, [&](const PunktKnoten& p, std::string_view nummer) {
        const Punktergebnis* e = ergebnisse.ErgebnisZu(nummer);
        if (e == nullptr) return;
        const Bildpunkt ort = BildortVon(p, v_.ansicht);
        Punktbild(ort, *e);
        if (!d.ShowKooVergleich) return;
        if (const Vergleichslage* lage = ergebnisse.VergleichZu(nummer)) Vergleichsvektor(ort, *e, *lage);
    });
}

/// All of them before the first line: surfaces that draw several lines at a time need not stop for each.
void Residuenbild::FuelleEllipsen(const Punktergebnisse& ergebnisse) const {
    FuerNummerierte(v_, [&](const PunktKnoten& p, std::string_view nummer) {
        const Punktergebnis* e = ergebnisse.ErgebnisZu(nummer);
        if (e == nullptr) return;
        const Bildpunkt ort = BildortVon(p, v_.ansicht);
        FuelleEllipse(Gon{-(e->Phi + 100)}, e->A * ellipsen_, e->B * ellipsen_, static_cast<double>(ort.x),
                      static_cast<double>(ort.y), einstellungen_.LGGCol);
    });
}

void Residuenbild::SetzeStift(Farbe farbe, std::int32_t breite) const {
    flaeche_.SetzeStift({farbe, breite, Strichart::Voll});
}

void Residuenbild::Punktbild(Bildpunkt ort, const Punktergebnis& e) const {
    const double dY = e.dY * f_;
    const double dX = e.dX * f_;
    const double dH = e.dH * f_;
    if (v_.darstellung.ShowLgRes && std::isfinite(dY) && std::isfinite(dX)) {
        ZeichneVektor(ort, {Summe(ort.x, Ganze(dY)), Differenz(ort.y, Ganze(dX))}, einstellungen_.LGRCol);
    }
    if (v_.darstellung.ShowHRes && std::isfinite(dH))
        ZeichneVektor(ort, {ort.x, Differenz(ort.y, Ganze(dH))}, einstellungen_.HRCol);
    if (v_.darstellung.ShowLGGen) Fehlerellipse(ort, e);
    if (v_.darstellung.ShowHGen) {
        SetzeStift(einstellungen_.HGCol, 1);
        Hoehengenauigkeit(ort, e.mH);
    }
}

void Residuenbild::Fehlerellipse(Bildpunkt ort, const Punktergebnis& e) const {
    const bool fein = e.mL <= kGrobeLage;  // not-a-number is not
    SetzeStift(einstellungen_.LGGCol, fein ? 1 : 2);
    // From an azimuth to the direction in the picture.
    DrawEllipse(Gon{-(e.Phi + 100)}, e.A * ellipsen_, e.B * ellipsen_, static_cast<double>(ort.x),
                static_cast<double>(ort.y));
}

/// At the middle of their lines, in the colour of those of points, but dashed. @param gefuellt their areas
void Residuenbild::ZeichneRelative(const Punktergebnisse& ergebnisse, bool gefuellt) const {
    Bildorte orte(v_.netz, v_.ansicht);
    SetzeStift(einstellungen_.LGGCol, 1);
    FuerRelative(v_, ergebnisse, [&](const PunktKante& k, const Relativellipse& r) {
        const Bildpunkt anfang = orte.Anfang(k);
        const Bildpunkt ende = orte.Ende(k);
        const double x = (static_cast<double>(anfang.x) + static_cast<double>(ende.x)) / 2;
        const double y = (static_cast<double>(anfang.y) + static_cast<double>(ende.y)) / 2;
        const Gon phi{-(r.Phi + 100)};
        if (gefuellt) {
            FuelleEllipse(phi, r.A * ellipsen_, r.B * ellipsen_, x, y, einstellungen_.LGGCol);
        } else {
            DrawEllipse(phi, r.A * ellipsen_, r.B * ellipsen_, x, y, Strichart::Gestrichelt);
        }
    });
}

/// In the colour of residuals of the position, but dashed.
void Residuenbild::Vergleichsvektor(Bildpunkt ort, const Punktergebnis& e, const Vergleichslage& lage) const {
    const Lageabweichung abweichung = AbweichungVon(e, lage);
    const double dY = abweichung.dY * f_;
    const double dX = abweichung.dX * f_;
    if (!std::isfinite(dY) || !std::isfinite(dX)) return;
    // Differences of coordinates fall short of round values in the last place.
    ZeichneVektor(ort, {Summe(ort.x, RundeZuInt64(dY)), Differenz(ort.y, RundeZuInt64(dX))},
                  einstellungen_.LGRCol, Strichart::Gestrichelt);
}

void Residuenbild::ZeichneVektor(Bildpunkt von, Bildpunkt nach, Farbe farbe, Strichart art) const {
    const bool pfeil = v_.darstellung.Residuenpfeile;
    flaeche_.SetzeStift({farbe, pfeil ? kPfeilstift : 1, art});
    Strich(von, nach);
    const double dx = static_cast<double>(von.x) - static_cast<double>(nach.x);
    const double dy = static_cast<double>(von.y) - static_cast<double>(nach.y);
    const double laenge = std::hypot(dx, dy);
    if (!pfeil || !(laenge >= kKuerzesterPfeil * geraetefaktor_)) return;
    SetzeStift(farbe, kPfeilstift);
    const double spitze = std::min(kPfeilspitze * geraetefaktor_, laenge / 2) / laenge;
    for (const double seite : {-1.0, 1.0}) {
        const Richtung r = RichtungVon(seite * kPfeilwinkel.wert);
        Strich(nach, {Summe(nach.x, RundeZuInt64(spitze * (r.cos * dx - r.sin * dy))),
                      Summe(nach.y, RundeZuInt64(spitze * (r.sin * dx + r.cos * dy)))});
    }
}

void Residuenbild::Hoehengenauigkeit(Bildpunkt ort, double mH) const {
    const double hoehe = mH / 2 * f_;
    const double breite = kFussbreite * f_;
    if (!std::isfinite(hoehe) || !std::isfinite(breite)) return;
    const std::int64_t h = RundeZuInt64(hoehe);
    const std::int64_t w = RundeZuInt64(breite);
    const std::int64_t oben = Differenz(ort.y, h);
    const std::int64_t unten = Summe(ort.y, h);
    Strich({ort.x, oben}, {ort.x, unten});
    for (const std::int64_t y : {oben, unten})
        Strich({Differenz(ort.x, w), y}, {Summe(ort.x, w), y});
}

struct Residuenbild::Ellipsenform {
    Richtung alpha;
    double a, b, x0, y0;
    double umfang;
    std::size_t winkel;  ///< from one corner to the next [gon]
    bool ganz;           ///< all of it can be seen

    [[nodiscard]] Bildpunkt Ecke(std::size_t gon) const {
        const Richtung& t = GanzeGon()[gon];
        const double c = a * t.cos;
        const double q = b * t.sin;
        return {RundeZuInt64(x0 + alpha.cos * c + alpha.sin * q),
                RundeZuInt64(y0 + alpha.cos * q - alpha.sin * c)};
    }
};

std::optional<Residuenbild::Ellipsenform> Residuenbild::Form(Gon phi, double a, double b, double x0,
                                                             double y0) const {
    const double umfang = std::numbers::pi * (1.5 * (a + b) - std::sqrt(a * b));
    // Finite only for axes that are, and of one sign.
    if (!std::isfinite(umfang) || !std::isfinite(phi.wert)) return std::nullopt;
    const Rechteck s = flaeche_.Sichtbar();
    const double reichweite = std::max(std::fabs(a), std::fabs(b)) + kZeichenrand;
    const double links = x0 - reichweite;
    const double rechts = x0 + reichweite;
    const double oben = y0 - reichweite;
    const double unten = y0 + reichweite;
    if (rechts < s.links || links > s.rechts || unten < s.oben || oben > s.unten) return std::nullopt;
    const bool ganz = links >= s.links && rechts <= s.rechts && oben >= s.oben && unten <= s.unten;
    return Ellipsenform{RichtungVon(phi.wert), a, b, x0, y0, std::fabs(umfang), Eckwinkel(umfang), ganz};
}

void Residuenbild::DrawEllipse(Gon phi, double a, double b, double x0, double y0, Strichart art) const {
    const auto form = Form(phi, a, b, x0, y0);
    if (!form) return;
    const bool gestrichelt = art == Strichart::Gestrichelt;
    const double seitenlaenge = form->umfang * static_cast<double>(form->winkel) / kVollkreis;
    const Takt takt = gestrichelt ? Strichtakt(seitenlaenge, geraetefaktor_) : Takt{};
    Bildpunkt vorige = form->Ecke(0);
    const std::size_t ende = gestrichelt ? kVollkreis : kVollkreis + 1;
    for (std::size_t t = 0, seite = 0; t < ende; ++seite) {
        t += form->winkel;
        const Bildpunkt naechste = form->Ecke(t);
        if (!takt.Gezogen(seite)) {
            // a gap
        } else if (form->ganz) {
            flaeche_.Linie(Aufflaeche(vorige), Aufflaeche(naechste));
        } else {
            Strich(vorige, naechste);
        }
        vorige = naechste;
    }
}

void Residuenbild::FuelleEllipse(Gon phi, double a, double b, double x0, double y0, Farbe farbe) const {
    const auto form = Form(phi, a, b, x0, y0);
    if (!form) return;
    std::vector<Bildpunkt> ecken;
    for (std::size_t t = 0; t < kVollkreis; t += form->winkel)
        ecken.push_back(form->Ecke(t));
    const auto teil = SchneideVieleckAb(ecken, flaeche_.Sichtbar());
    if (!teil.empty()) flaeche_.FuelleDurchscheinend(teil, farbe, kFuellung);
}

// --- Scale bar --------------------------------------------------------------------------------------------

void Residuenbild::DrawResMasstab() const {
    const Darstellung& d = v_.darstellung;
    if (!d.ZeigtErgebnisse()) return;
    const bool eigener = d.EigenerEllipsenmassstab() && d.ZeigtEllipsen();
    const std::string titel = d.WeichtAb() ? Balkentitel(d, !eigener) : "";
    // Where only ellipses are drawn there is nothing to tell them from.
    const bool gemeinsamer = !eigener || !titel.empty();
    if (gemeinsamer) ZeichneBalken(titel.empty() ? "Residuenmaßstab" : titel, einstellungen_.ResMF, 0);
    if (eigener)
        ZeichneBalken(d.Ellipsen95 ? "Maßstab der Ellipsen 95 %" : "Maßstab der Ellipsen", d.Ellipsenmassstab,
                      gemeinsamer ? kBalkenzeilen * flaeche_.Texthoehe() : 0);
}

/// @param titel UTF-8 @param hoeher above the corner [dots]
void Residuenbild::ZeichneBalken(const std::string& titel, double vergroesserung, std::int64_t hoeher) const {
    // On the screen, whatever the device: paper has the same numbers.
    const double pixel = kTeile * kMillimeterJeZentimeter * vergroesserung;
    if (!(pixel > 0.0) || !std::isfinite(pixel)) return;
    const Teilung teilung = WaehleTeilung(pixel);
    Balken balken{Utf8NachCp1252(titel), "cm", {}, 0.0, false};
    for (int i = 0; i <= kTeile; ++i) {
        const auto wert = teilung.Mal(i);
        if (!wert) return;
        balken.werte.push_back(SchreibeReal(*wert));
    }
    balken.laenge = teilung.Mal(1).value_or(0.0) * pixel * geraetefaktor_;
    if (balken.laenge >= kTeile && balken.laenge < static_cast<double>(kZeichengrenze))
        zrw::ZeichneBalken(flaeche_, balken, hoeher);
}

}  // namespace zrw
