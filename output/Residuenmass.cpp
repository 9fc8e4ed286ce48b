#include "output/Residuenmass.h"

#include <algorithm>
#include <cmath>

#include "model/Zahlentext.h"

namespace zrw {
namespace {

constexpr double kMillimeterJeMeter = 1000.0;
constexpr double kTeilDesBildes = 15.0;
constexpr double kKleinste = 3.0;        ///< shorter ones cannot be told apart [px]
constexpr double kGroessterTeil = 0.25;  ///< of the picture's width

/// Values that are no finite numbers are not drawn.
void NimmGroesseres(double& groesstes, double wert) {
    if (std::isfinite(wert)) groesstes = std::max(groesstes, std::fabs(wert));
}

std::string HinweisZu(double pixel, double weite, const char* was, const char* massstab) {
    if (!(pixel > 0.0) || (pixel >= kKleinste && pixel <= kGroessterTeil * weite)) return {};
    const bool klein = pixel < kKleinste;
    return std::string(was) + (klein ? " sind höchstens " : " sind bis zu ") +
           (klein ? Festkomma(pixel, 0, 1) : Festkomma(std::min(pixel, 1e9), 0, 0)) +
           " Bildpunkte groß: Der " + massstab + " ist zu " + (klein ? "klein." : "groß.");
}

}  // namespace

Lageabweichung AbweichungVon(const Punktergebnis& ergebnis, const Vergleichslage& vergleich) {
    return {(vergleich.Y - ergebnis.Y) * kMillimeterJeMeter, (vergleich.X - ergebnis.X) * kMillimeterJeMeter};
}

Residuenmass MissResiduen(const Bildvorlage& v, Punktergebnisse& ergebnisse) {
    const Darstellung& d = v.darstellung;
    Residuenmass mass;
    if (d.ShowRelEllipsen) {
        ergebnisse.ErneuereRelative();
        FuerRelative(v, ergebnisse, [&](const PunktKante& /*k*/, const Relativellipse& r) {
            NimmGroesseres(mass.ellipse, std::max(r.A, r.B));
        });
    }
    ergebnisse.ErneuereErgebnisse();
    if (d.ShowKooVergleich) ergebnisse.ErneuereVergleich();
    FuerNummerierte(v, [&](const PunktKnoten& /*p*/, std::string_view nummer) {
        const Punktergebnis* e = ergebnisse.ErgebnisZu(nummer);
        if (e == nullptr) return;
        if (d.ShowLgRes) NimmGroesseres(mass.vektor, std::hypot(e->dY, e->dX));
        if (d.ShowHRes) NimmGroesseres(mass.vektor, e->dH);
        if (d.ShowHGen) NimmGroesseres(mass.vektor, e->mH / 2);
        if (d.ShowLGGen) NimmGroesseres(mass.ellipse, std::max(e->A, e->B));
        if (!d.ShowKooVergleich) return;
        if (const Vergleichslage* lage = ergebnisse.VergleichZu(nummer)) {
            const Lageabweichung abweichung = AbweichungVon(*e, *lage);
            NimmGroesseres(mass.vektor, std::hypot(abweichung.dY, abweichung.dX));
        }
    });
    return mass;
}

std::optional<double> PassendeVergroesserung(double mm, double weite) {
    const double genau = weite / kTeilDesBildes / mm;
    if (!(mm > 0.0) || !(genau > 0.0) || !std::isfinite(genau)) return std::nullopt;
    const double hoechstens = genau * (1 + 1e-9);  // a quotient may fall short of its round value
    const int exponent = static_cast<int>(std::floor(std::log10(genau)));
    std::optional<double> beste;
    for (const int e : {exponent - 1, exponent, exponent + 1}) {
        for (const int ziffer : {1, 2, 5}) {
            const auto wert = LiesReal(std::to_string(ziffer) + "e" + std::to_string(e));
            if (wert && *wert > 0.0 && *wert <= hoechstens) beste = wert;
        }
    }
    return beste;
}

std::string Groessenhinweis(const Residuenmass& mass, const Residuendarstellung& darstellung, double resMF,
                            double weite) {
    std::string vektoren =
        HinweisZu(mass.vektor * std::fabs(resMF), weite, "Verbesserungen", "Residuenmaßstab");
    if (!vektoren.empty()) return vektoren;
    return HinweisZu(
        mass.ellipse * std::fabs(darstellung.Ellipsenfaktor(resMF)), weite, "Fehlerellipsen",
        darstellung.EigenerEllipsenmassstab() ? "Maßstab der Fehlerellipsen" : "Residuenmaßstab");
}

}  // namespace zrw
