#include "output/Residuenbild.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>

#include "model/Bildorte.h"
#include "model/Cp1252.h"
#include "model/Ganzzahl.h"
#include "model/Zahlentext.h"
#include "output/Abschneiden.h"
#include "output/Balkenbild.h"

namespace zrw {
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

constexpr double kMillimeter = 10.0;  ///< in a centimetre
constexpr double kSchmalste = 40.0;   ///< bar of whole centimetres [px]
constexpr double kBreiteste = 400.0;
constexpr double kAndereSchmalste = 50.0;  ///< bar of other steps [px]

struct Richtung {
    double cos = 1.0;
    double sin = 0.0;
};

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

/// Whole dots of a residual, towards zero.
std::int64_t Ganze(double v) {
    return RundeZuInt64(std::trunc(v));
}

/// @param pixel width of a bar of whole centimetres on the screen, positive
Teilung WaehleTeilung(double pixel) {
    if (pixel >= kSchmalste && pixel <= kBreiteste) return {};
    return KleinsteTeilung(pixel, kAndereSchmalste);
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
      f_(geraetefaktor_ * einstellungen.ResMF) {}

void Residuenbild::Strich(Bildpunkt von, Bildpunkt nach) const {
    if (const auto teil = SchneideLinieAb(von, nach, flaeche_.Grenzen())) {
        flaeche_.Linie(teil->first, teil->second);
    }
}

// --- Points -----------------------------------------------------------------------------------------------

void Residuenbild::ZeichnePunktRes(Punktergebnisse& ergebnisse) const {
    const Darstellung& d = v_.darstellung;
    if (!d.ShowLgRes && !d.ShowHRes && !d.ShowLGGen && !d.ShowHGen) return;
    ergebnisse.ErneuereErgebnisse();
    const Stiftwechsel wechsel(flaeche_, {}, {kWeiss, true});
    for (const PunktKnoten* p = v_.netz.PunktKnoten; p != nullptr; p = p->Next) {
        if (!d.Dargestellt(*p->Item) || !v_.Gezeichnet(*p)) continue;
        const PktText* text = v_.netz.FindPktText(p->PNr);
        if (text == nullptr || text->Aus.Leer()) continue;
        if (const Punktergebnis* e = ergebnisse.ErgebnisZu(text->Aus.Text()))
            Punktbild(BildortVon(*p, v_.ansicht), *e);
    }
}

void Residuenbild::Punktbild(Bildpunkt ort, const Punktergebnis& e) const {
    const auto stift = [this](Farbe farbe, std::int32_t breite = 1) {
        flaeche_.SetzeStift({farbe, breite, Strichart::Voll});
    };
    const double dY = e.dY * f_;
    const double dX = e.dX * f_;
    const double dH = e.dH * f_;
    if (v_.darstellung.ShowLgRes && std::isfinite(dY) && std::isfinite(dX)) {
        stift(einstellungen_.LGRCol);
        Strich(ort, {Summe(ort.x, Ganze(dY)), Differenz(ort.y, Ganze(dX))});
    }
    if (v_.darstellung.ShowHRes && std::isfinite(dH)) {
        stift(einstellungen_.HRCol);
        Strich(ort, {ort.x, Differenz(ort.y, Ganze(dH))});
    }
    if (v_.darstellung.ShowLGGen) {
        const bool fein = e.mL <= kGrobeLage;  // not-a-number is not
        stift(einstellungen_.LGGCol, fein ? 1 : 2);
        // From an azimuth to the direction in the picture.
        DrawEllipse(Gon{-(e.Phi + 100)}, e.A * f_, e.B * f_, static_cast<double>(ort.x),
                    static_cast<double>(ort.y));
    }
    if (v_.darstellung.ShowHGen) {
        stift(einstellungen_.HGCol);
        Hoehengenauigkeit(ort, e.mH);
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

void Residuenbild::DrawEllipse(Gon phi, double a, double b, double x0, double y0) const {
    const double umfang = std::numbers::pi * (1.5 * (a + b) - std::sqrt(a * b));
    // Finite only for axes that are, and of one sign.
    if (!std::isfinite(umfang) || !std::isfinite(phi.wert)) return;
    const Rechteck s = flaeche_.Sichtbar();
    const double reichweite = std::max(std::fabs(a), std::fabs(b)) + kZeichenrand;
    const double links = x0 - reichweite;
    const double rechts = x0 + reichweite;
    const double oben = y0 - reichweite;
    const double unten = y0 + reichweite;
    if (rechts < s.links || links > s.rechts || unten < s.oben || oben > s.unten) return;
    const bool ganz = links >= s.links && rechts <= s.rechts && oben >= s.oben && unten <= s.unten;
    const Richtung alpha = RichtungVon(phi.wert);
    const auto ecke = [&](const Richtung& t) {
        const double c = a * t.cos;
        const double q = b * t.sin;
        return Bildpunkt{RundeZuInt64(x0 + alpha.cos * c + alpha.sin * q),
                         RundeZuInt64(y0 + alpha.cos * q - alpha.sin * c)};
    };
    const Richtungen& tafel = GanzeGon();
    const std::size_t winkel = Eckwinkel(umfang);
    Bildpunkt vorige = ecke(tafel[0]);
    for (std::size_t t = 0; t <= kVollkreis;) {
        t += winkel;
        const Bildpunkt naechste = ecke(tafel[t]);
        if (ganz) {
            flaeche_.Linie(Aufflaeche(vorige), Aufflaeche(naechste));
        } else {
            Strich(vorige, naechste);
        }
        vorige = naechste;
    }
}

// --- Scale bar --------------------------------------------------------------------------------------------

void Residuenbild::DrawResMasstab() const {
    if (!v_.darstellung.ZeigtErgebnisse()) return;
    // On the screen, whatever the device: paper has the same numbers.
    const double pixel = kTeile * kMillimeter * einstellungen_.ResMF;
    if (!(pixel > 0.0) || !std::isfinite(pixel)) return;
    const Teilung teilung = WaehleTeilung(pixel);
    Balken balken{Utf8NachCp1252("Residuenmaßstab"), "cm", {}, 0.0, false};
    for (int i = 0; i <= kTeile; ++i) {
        const auto wert = teilung.Mal(i);
        if (!wert) return;
        balken.werte.push_back(SchreibeReal(*wert));
    }
    balken.laenge = teilung.Mal(1).value_or(0.0) * pixel * geraetefaktor_;
    if (balken.laenge >= kTeile && balken.laenge < static_cast<double>(kZeichengrenze))
        ZeichneBalken(flaeche_, balken);
}

}  // namespace zrw
