#include "model/ergebnisse/Statistik.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "model/ergebnisse/Listenordnung.h"

namespace zrw {
namespace {

void NimmGroesseres(std::optional<double>& groesstes, double wert) {
    if (!std::isnan(wert) && (!groesstes || wert > *groesstes)) groesstes = wert;
}

std::vector<std::uint32_t> Auffaelligste(const Beobachtungsliste& liste, Beobachtungstabelle t) {
    Listenfilter nurDiese;
    nurDiese.gattungen.fill(false);
    nurDiese.gattungen[static_cast<std::size_t>(t)] = true;
    nurDiese.ueberTG = 0.0;
    std::vector<std::uint32_t> zeilen = OrdneZeilen(liste, nurDiese, {});
    if (zeilen.size() > kAuffaelligste) zeilen.resize(kAuffaelligste);
    return zeilen;
}

}  // namespace

Gattungsstatistik Zaehle(const Beobachtungsliste& liste, Beobachtungstabelle t, double grenze) {
    Gattungsstatistik s{.tabelle = t, .anzahl = liste.Lage(t).Anzahl(), .auffaelligste = {}};
    double summeEV = 0.0;
    std::size_t mitEV = 0;
    for (const Beobachtung& b : liste.Zeilen(t)) {
        s.markiert += b.ff ? 1U : 0U;
        s.unkontrolliert += b.nk ? 1U : 0U;
        if (const double tg = std::fabs(b.Wert(Messwert::TG)); !std::isnan(tg)) {
            ++s.mitTG;
            s.tgUnter1 += tg < 1.0 ? 1U : 0U;
            s.tgUnter2 += tg < 2.0 ? 1U : 0U;
            s.tgUnterGrenze += tg < grenze ? 1U : 0U;
            NimmGroesseres(s.groessteTG, tg);
        }
        if (const double ev = b.Wert(Messwert::EV); !std::isnan(ev)) {
            ++mitEV;
            summeEV += ev;
            s.kleinsterEV = std::min(s.kleinsterEV.value_or(ev), ev);
        }
        NimmGroesseres(s.groessteV, std::fabs(b.Wert(Messwert::V)));
    }
    if (mitEV > 0 && std::isfinite(summeEV)) s.mittlererEV = summeEV / static_cast<double>(mitEV);
    s.auffaelligste = Auffaelligste(liste, t);
    return s;
}

double NormalerAnteil(double grenze) {
    return std::erf(grenze / std::numbers::sqrt2);
}

Histogramm ZaehleKlassen(const Beobachtungsliste& liste, Messwert wert,
                         std::optional<Beobachtungstabelle> tabelle, double ende, std::size_t klassen) {
    Histogramm h{.breite = ende / static_cast<double>(klassen),
                 .anzahlen = std::vector<std::size_t>(klassen)};
    for (const Beobachtung& b : liste.zeilen) {
        const double betrag = std::fabs(b.Wert(wert));
        if (std::isnan(betrag) || (tabelle && b.tabelle != *tabelle)) continue;
        ++h.gesamt;
        if (betrag > ende) {
            ++h.darueber;
        } else {
            ++h.anzahlen[std::min(static_cast<std::size_t>(betrag / h.breite), klassen - 1)];
        }
    }
    return h;
}

}  // namespace zrw
